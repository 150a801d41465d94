#include "support/SheetUnderTest.h"

#include <cstdio>

namespace Tessellon {

std::string Utf8(std::u16string_view text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        const bool pair =
            c >= 0xD800 && c < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000;
        if (pair)
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00U);
        else if (c >= 0xD800 && c < 0xE000)
            c = 0xFFFD;
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

std::u16string Utf16(std::string_view text)
{
    std::u16string out;
    for (const char c : text)
        out += static_cast<char16_t>(static_cast<unsigned char>(c));
    return out;
}

namespace {

std::string Truth(bool truth)
{
    return truth ? "True" : "False";
}

std::string Number(double number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.7g", number);
    return text;
}

std::string Quoted(std::u16string_view text)
{
    return '"' + Utf8(text) + '"';
}

} // namespace

Font TestBag::ReadFont(std::u16string_view name, const Font& byDefault)
{
    Calls.push_back("Read " + Utf8(name));
    return SavedFont != nullptr ? *SavedFont : byDefault;
}

bool TestBag::ReadTruth(std::u16string_view name, bool byDefault)
{
    Calls.push_back("Read " + Utf8(name));
    return SavedEnabled != nullptr ? *SavedEnabled : byDefault;
}

void TestBag::WriteFont(std::u16string_view name, const Font& font, const Font& byDefault)
{
    Calls.push_back("Write " + Utf8(name) + ' ' + Utf8(font.Name) + ' ' + Number(font.Size) + " (default " +
                    Utf8(byDefault.Name) + ' ' + Number(byDefault.Size) + ')');
}

void TestBag::WriteTruth(std::u16string_view name, bool truth, bool byDefault)
{
    Calls.push_back("Write " + Utf8(name) + ' ' + Truth(truth) + " (default " + Truth(byDefault) + ')');
}

SheetUnderTest::SheetUnderTest()
    : Toolkit(std::make_shared<HeadlessToolkit>())
    , Platform(std::make_shared<EnginePlatform>(Toolkit, Locale::English()))
    , Calls(std::make_shared<Journal>(Platform))
    , Sheet(TessellonSheet::Create(Calls))
    , Hand(Platform)
{
    Toolkit->OnMessageBox = [this](std::u16string_view text) { Heard.push_back("box " + Utf8(text)); };
    Toolkit->OnUnhandledFailure = [this](const Failure& failure) {
        Heard.push_back("exception " + std::to_string(failure.Number));
    };
    constexpr double noonOf15March2024 = 45366.4375; // 10:30
    Platform->Functions().Functions().Clock([] { return noonOf15March2024; });
    Listen();
    TestBag bag;
    Sheet->UserControl_ReadProperties(bag);
    Platform->Resize(9600, 4800);
}

/// The end of the sheet may still be heard, where a test has left a failure to come.
SheetUnderTest::~SheetUnderTest()
{
    Sheet.reset();
}

void SheetUnderTest::Listen()
{
    TessellonSheet& sheet = *Sheet;
    const auto hear = [this](std::string line) { Heard.push_back(std::move(line)); };
    const auto plain = [&](Event<>& event, const char* name) { event += [hear, name] { hear(name); }; };
    const auto truth = [&](Event<bool&>& event, const char* name, const char* argument) {
        event += [hear, name, argument](bool& value) { hear(std::string(name) + ' ' + argument + '=' + Truth(value)); };
    };
    const auto keys = [&](Event<std::int16_t&, std::int16_t&>& event, const char* name) {
        event += [hear, name](std::int16_t& code, std::int16_t& shift) {
            hear(std::string(name) + " KeyCode=" + std::to_string(code) + " Shift=" + std::to_string(shift));
        };
    };
    const auto mouse = [&](Event<std::int16_t&, std::int16_t&, float&, float&>& event, const char* name) {
        event += [hear, name](std::int16_t& button, std::int16_t& shift, float& x, float& y) {
            hear(std::string(name) + " Button=" + std::to_string(button) + " Shift=" + std::to_string(shift) +
                 " x=" + Number(x) + " y=" + Number(y));
        };
    };
    sheet.Compare += [hear](std::int32_t row1, std::int32_t row2, std::int16_t& cmp) {
        hear("Compare Row1=" + std::to_string(row1) + " Row2=" + std::to_string(row2) + " Cmp=" + std::to_string(cmp));
    };
    truth(sheet.AdvanceToNextCell, "AdvanceToNextCell", "Cancel");
    truth(sheet.ExitFocus, "ExitFocus", "Cancel");
    mouse(sheet.MouseDown, "MouseDown");
    mouse(sheet.MouseMove, "MouseMove");
    mouse(sheet.MouseUp, "MouseUp");
    plain(sheet.Click, "Click");
    plain(sheet.DblClick, "DblClick");
    keys(sheet.KeyUp, "KeyUp");
    keys(sheet.KeyDown, "KeyDown");
    sheet.KeyPress += [hear](std::int16_t& ascii) { hear("KeyPress KeyAscii=" + std::to_string(ascii)); };
    plain(sheet.RowColChange, "RowColChange");
    plain(sheet.Scroll, "Scroll");
    plain(sheet.SelChange, "SelChange");
    plain(sheet.LeaveCell, "LeaveCell");
    plain(sheet.EnterCell, "EnterCell");
    truth(sheet.EditorValidate, "EditorValidate", "Cancel");
    plain(sheet.EditorChange, "EditorChange");
    plain(sheet.DateBoxCloseUp, "DateBoxCloseUp");
    plain(sheet.DateBoxDropDown, "DateBoxDropDown");
    sheet.Format += [hear](std::u16string& field, std::u16string& text) {
        hear("Format CallbackField=" + Quoted(field) + " FormattedString=" + Quoted(text));
    };
    sheet.DatePickerCallbackKeyDown +=
        [hear](std::int16_t code, std::int16_t shift, const std::u16string& field, double&) {
            hear("DatePickerCallbackKeyDown KeyCode=" + std::to_string(code) + " Shift=" + std::to_string(shift) +
                 " CallbackField=" + Quoted(field));
        };
    sheet.ButtonClick += [hear](std::int16_t index) { hear("ButtonClick ButtonIndex=" + std::to_string(index)); };
    truth(sheet.UseAdvanceToNextCell, "UseAdvanceToNextCell", "Use");
    sheet.ErrInfo += [hear](std::int32_t number, const std::u16string& source, const std::u16string& description,
                            const std::u16string& helpFile, const std::u16string& helpContext) {
        hear("ErrInfo ErrNum=" + std::to_string(number) + " ErrSource=" + Quoted(source) + " ErrDesc=" +
             Quoted(description) + " ErrHelpFile=" + Quoted(helpFile) + " ErrHelpContext=" + Quoted(helpContext));
    };
}

std::vector<std::string> SheetUnderTest::TakeEvents()
{
    return std::exchange(Heard, {});
}

std::vector<std::string> SheetUnderTest::TakeEventNames()
{
    std::vector<std::string> names = TakeEvents();
    for (std::string& name : names)
        name = name.substr(0, name.find(' '));
    return names;
}

std::vector<std::string> SheetUnderTest::TakeCalls()
{
    std::vector<std::string> calls;
    for (const std::u16string& call : Calls->TakeNotes())
        calls.push_back(Utf8(call));
    return calls;
}

std::vector<std::string> SheetUnderTest::EditorsUp() const
{
    std::vector<std::string> up;
    for (const auto& editor : Platform->Editors()) {
        if (editor->IsVisible())
            up.push_back(Utf8(editor->ControlName()) + ' ' + Quoted(editor->ShownText()));
    }
    return up;
}

std::string SheetUnderTest::Focus() const
{
    const std::string name = Utf8(Platform->FocusName());
    return name.empty() ? "none" : name;
}

void SheetUnderTest::Press(std::int16_t code, std::int16_t shift)
{
    Stroke stroke{.Code = code, .Shift = shift, .HasCharacter = false, .Character = 0};
    if (code == 13 || code == 27 || code == 9 || code == 8 || code == 32) {
        stroke.HasCharacter = true;
        stroke.Character = static_cast<char16_t>(code);
    }
    Hand.Press(stroke);
}

void SheetUnderTest::Type(std::u16string_view text)
{
    for (const char16_t unit : text) {
        const bool letter = (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
        const bool digit = unit >= u'0' && unit <= u'9';
        const auto code = static_cast<std::int16_t>(letter ? (unit & ~0x20) : digit || unit == u' ' ? unit : 0);
        Hand.Press({.Code = code, .Shift = 0, .HasCharacter = true, .Character = unit});
    }
}

void SheetUnderTest::Column(std::int32_t col, FieldControlType kind, std::u16string_view setting, bool hidden,
                            bool useMask)
{
    constexpr std::int32_t maxLength = 40;
    Sheet->CreateColumnDataType(col, u"C" + Utf16(std::to_string(col)), kind, setting, hidden, fcLeft, maxLength, faNil,
                                useMask);
}

void SheetUnderTest::Build(const std::vector<FieldControlType>& kinds, std::int32_t rows)
{
    Sheet->Cols(static_cast<std::int32_t>(kinds.size()) + 1);
    std::int32_t col = 0;
    for (const FieldControlType kind : kinds)
        Column(++col, kind, kind == fcComboBox || kind == fcListBox ? u"One|Two|Three" : u"");
    Sheet->BuildGridColumns();
    Sheet->AllowAddNew(true);
    Sheet->Add(0, rows);
    Heard.clear();
    static_cast<void>(Calls->TakeNotes());
}

void TestRecordset::MoveFirst()
{
    ++FirstMoves;
    if (Records.empty())
        throw Failure(3021, u"Recordset", u"Either BOF or EOF is True");
    at_ = 0;
}

void TestRecordset::MoveNext()
{
    ++NextMoves;
    if (AtEnd())
        throw Failure(3021, u"Recordset", u"Either BOF or EOF is True");
    ++at_;
}

Value TestRecordset::FieldValue(std::int32_t field)
{
    const Cell& cell = Records.at(at_).at(static_cast<std::size_t>(field));
    switch (cell.Kind) {
    case Value::Kind::Null: return Value::Null();
    case Value::Kind::Boolean: return Value::OfBoolean(cell.Integer != 0);
    case Value::Kind::Integer: return Value::OfInteger(cell.Integer);
    case Value::Kind::Unsigned: return Value::OfUnsigned(static_cast<std::uint64_t>(cell.Integer));
    case Value::Kind::Single: return Value::OfSingle(static_cast<float>(cell.Real));
    case Value::Kind::Double: return Value::OfDouble(cell.Real);
    case Value::Kind::Decimal: return Value::OfDecimal(cell.Text);
    case Value::Kind::Date: return Value::OfDate(cell.Real);
    case Value::Kind::Text: return Value::OfText(cell.Text);
    }
    return Value::Null();
}

} // namespace Tessellon
