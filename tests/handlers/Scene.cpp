#include "handlers/Scene.h"

#include "engine/DefaultProperties.h"
#include "engine/Journal.h"
#include "support/SheetUnderTest.h"

#include <string>

namespace Tessellon::HandlerTests {

namespace {

constexpr std::int16_t enter = 13;
constexpr std::int16_t escape = 27;
constexpr std::int16_t left = 37;
constexpr std::int16_t up = 38;
constexpr std::int16_t right = 39;
constexpr std::int16_t down = 40;
constexpr std::int16_t f2 = 113;

/// A platform whose threads have little stack, so that hosts that start the sheet without end are soon at its end.
class ShallowPlatform final : public Journal {
public:
    using Journal::Journal;
    std::size_t StackBudget() override { return 200'000; }
};

std::u16string_view SettingOf(FieldControlType kind)
{
    switch (kind) {
    case fcComboBox:
    case fcListBox: return u"one|two|three";
    case fcMaskedEditBox: return u"##-##";
    case fcCommandButton: return u"Go";
    default: return u"";
    }
}

} // namespace

Scene::Scene(FieldControlType kind)
    : platform_(Contract::TheFactory().Make())
    , Sheet(TessellonSheet::Create(std::make_shared<ShallowPlatform>(platform_->Get())))
    , kind_(kind)
{
    DefaultProperties properties;
    Sheet->UserControl_ReadProperties(properties);
    Engine().Resize(9600, 3600);
    Sheet->ShowErrMessage(false);
    Sheet->AllowAddNew(true);
    Declare();
    Fill();
}

void Scene::Declare()
{
    const auto column = [this](std::int32_t col, FieldControlType kind, bool hide) {
        Sheet->CreateColumnDataType(col, u"Heading", kind, SettingOf(kind), hide, fcLeft, 0, faContent, true);
    };
    Sheet->DateFormat(u"dd/MM/yyyy XX");
    Sheet->Cols(nameCol + 1);
    column(1, kind_, false);
    column(2, fcTextBox, false);
    column(3, fcTextBox, true);
    column(4, kind_, false);
    column(5, fcDatePicker, false);
    column(6, fcCommandButton, false);
    column(nameCol, fcNil, false);
    Sheet->BuildGridColumns();
}

std::u16string Scene::NameOf(std::int32_t row)
{
    return u"row " + Utf16(std::to_string(row));
}

void Scene::Fill()
{
    if (Sheet->Rows() <= rows)
        Sheet->Add(Sheet->Rows() - 1, rows + 1 - Sheet->Rows());
    for (std::int32_t row = 1; row <= rows; ++row) {
        for (std::int32_t col = 1; col < nameCol; ++col)
            Sheet->TextMatrix(row, col, col == 5 ? u"01/02/2024" : u"one");
        Sheet->TextMatrix(row, nameCol, NameOf(row));
    }
}

void Scene::LoadOthers()
{
    constexpr std::int32_t wideText = 202;
    const auto records = std::make_shared<TestRecordset>();
    records->Types.assign(nameCol, wideText);
    for (int record = 0; record < 3; ++record)
        records->Records.emplace_back(nameCol, TestRecordset::Cell{Value::Kind::Text, u"loaded"});
    Sheet->DataSource(records, std::make_shared<TestConnection>());
}

std::vector<std::u16string> Scene::Names()
{
    std::vector<std::u16string> names;
    for (std::int32_t row = 1; row < Sheet->Rows(); ++row)
        if (const std::u16string name = Sheet->TextMatrix(row, nameCol); name.starts_with(u"row "))
            names.push_back(name);
    return names;
}

void Scene::Key(std::int16_t code, std::int16_t shift)
{
    const bool hasCharacter = code == enter || code == escape || code == u' ';
    TheHand().Press({code, shift, hasCharacter, static_cast<char16_t>(hasCharacter ? code : 0)});
}

void Scene::Type(std::u16string_view text)
{
    for (const char16_t character : text)
        TheHand().Press({static_cast<std::int16_t>(character & ~0x20), 0, true, character});
}

/// What a host calls between the user's doings; it takes what failure may come out of it.
template <class Call>
void Scene::AsHost(const Call& call)
{
    if (HasEnded())
        return;
    try {
        call(*Sheet);
    } catch (const Failure&) {
    }
}

void Scene::Walk()
{
    UseEditor();
    UseOtherColumns();
    UseGrid();
    CallMembers();
}

void Scene::UseEditor()
{
    TheHand().Click(2, 1);
    TheHand().Over(OverEvent::Down, 60, 60);
    TheHand().Over(OverEvent::Move, 90, 60);
    TheHand().Over(OverEvent::Up, 90, 60);
    Type(u"1a");
    Key(u' ');
    TheHand().Caret(1);
    TheHand().Select(1);
    TheHand().Toggle();
    TheHand().Push();
    TheHand().Pick(45000, false);
    for (const std::int16_t key : {left, down, up, right})
        Key(key);
    TheHand().Click(3, 1);
    Type(u"2");
    Key(escape);
    Key(f2);
    Key(enter);
}

void Scene::UseOtherColumns()
{
    TheHand().Click(3, 2);
    Type(u"b");
    TheHand().Over(OverEvent::DoubleClick, 60, 60);
    TheHand().FocusOut();
    TheHand().FocusIn();
    Key(f2);
    TheHand().Click(4, 5);
    Type(u"12");
    for (int field = 0; field < 3; ++field)
        Key(right);
    Type(u"k");
    TheHand().Pick(45001, false);
    TheHand().Over(OverEvent::Down, 60, 60);
    TheHand().Over(OverEvent::Click, 60, 60);
    Key(enter);
    TheHand().Click(5, 6);
    TheHand().Over(OverEvent::Down, 60, 60);
    TheHand().Over(OverEvent::Move, 60, 60);
    TheHand().Over(OverEvent::Up, 60, 60);
    TheHand().Push();
    Key(enter);
}

void Scene::UseGrid()
{
    TheHand().Scroll(8, 1);
    TheHand().Drag(10, 1, 12, 2);
    TheHand().DoubleClick(11, 4);
    TheHand().Hover(3000, 100);
    TheHand().MouseDown(1500, 100);
    TheHand().MouseUp(1500, 100);
    TheHand().Click(rows, 4);
    Key(enter);
    TheHand().WindowOut();
    TheHand().WindowIn();
    TheHand().Resize(5000, 2400);
    TheHand().Click(12, 4);
    Engine().UserAction([this] { Engine().TheGrid().SortByCompare(); });
    TheHand().Wait();
}

void Scene::CallMembers()
{
    AsHost([](TessellonSheet& sheet) { sheet.ColWidth(2, 1e12F); }); // more than the grid can take
    AsHost([](TessellonSheet& sheet) { sheet.Add(3); });
    AsHost([](TessellonSheet& sheet) { sheet.Row(2); });
    AsHost([](TessellonSheet& sheet) { sheet.Col(2); });
    AsHost([](TessellonSheet& sheet) { sheet.BackColor(1, Yellow); });
    AsHost([](TessellonSheet& sheet) { sheet.SearchCol(2, u"one"); });
    AsHost([](TessellonSheet& sheet) { sheet.RowHeight(300, true, true); });
    AsHost([](TessellonSheet& sheet) { sheet.TextMatrix(2, 2, u"a text much wider than its column was until now"); });
    TheHand().Wait();
}

} // namespace Tessellon::HandlerTests
