#include "failure/Frames.h"

#include <limits>
#include <utility>

namespace Tessellon {

namespace {

constexpr char16_t itemSeparator = u'|';

/// Calls `take` with each piece of a setting between separators, empty ones too; an empty setting has none.
template <class Take>
void Split(std::u16string_view setting, const Take& take)
{
    if (setting.empty())
        return;
    for (;;) {
        const auto end = setting.find(itemSeparator);
        take(setting.substr(0, end));
        if (end == std::u16string_view::npos)
            return;
        setting.remove_prefix(end + 1);
    }
}

} // namespace

std::shared_ptr<Editor> TessellonSheet::GetColControl(std::int32_t Col)
{
    return ArmedResult(u"GetColControl", std::shared_ptr<Editor>(), [&](std::shared_ptr<Editor>& result) {
        const ColDataType& column = Column(Col - 1);
        switch (column.cdControlType) {
        case fcTextBox: result = Text1; break;
        case fcCheckBox: result = Check1; break;
        case fcComboBox: result = Combo1->Item(column.cdControlIndex); break;
        case fcListBox: result = List1->Item(column.cdControlIndex); break;
        case fcDatePicker: result = DTPicker1; break;
        case fcMaskedEditBox: result = MaskEdBox1->Item(column.cdControlIndex); break;
        case fcRichTextBox: result = RichTextBox1; break;
        case fcCommandButton: result = Command1->Item(column.cdControlIndex); break;
        default: break;
        }
    });
}

bool TessellonSheet::IsArrayControl(std::int32_t Col)
{
    return ArmedResult(u"IsArrayControl", false, [&](bool& result) {
        if (RowCount <= 1 || ColCount < 2 || Col < 1 || Col >= ColCount || ColumnBound <= 0)
            return;
        switch (Column(Col - 1).cdControlType) {
        case fcComboBox:
        case fcListBox:
        case fcMaskedEditBox:
        case fcCommandButton: result = true; break;
        default: break;
        }
    });
}

bool TessellonSheet::IsColEditable(std::int32_t Col)
{
    return ArmedResult(u"IsColEditable", true, [&](bool& result) {
        if (RowCount <= 1 || ColCount <= 1 || Col <= 0 || Col >= ColCount || ColumnBound <= 0)
            return;
        result = MSFlexGrid1->ColWidth(Col) != 0 && Column(Col - 1).cdControlType != fcNil && !Column(Col - 1).cdHidden;
    });
}

/// Makes the next instance of a kind and tells its index: the first column uses the one that is always there.
template <class Kind>
std::int16_t TessellonSheet::MakeInstance(ControlArray<Kind>& array, std::int16_t counter)
{
    const auto index = static_cast<std::int16_t>(counter - 1);
    if (counter > 1)
        array.Load(index);
    return index;
}

void TessellonSheet::Count(std::int16_t& counter)
{
    if (counter == std::numeric_limits<std::int16_t>::max())
        Fail(6);
    ++counter;
}

void TessellonSheet::LoadComboState(std::int32_t Index, std::u16string Setting)
{
    Armed(u"LoadComboState", [&] {
        const std::int16_t instance = MakeInstance(*Combo1, NextComboIndex);
        Column(Index).cdControlIndex = instance;
        Split(Setting, [&](std::u16string_view item) { Combo1->Item(instance)->AddItem(item); });
        Count(NextComboIndex);
    });
}

void TessellonSheet::LoadListState(std::int32_t Index, std::u16string Setting)
{
    Armed(u"LoadListState", [&] {
        const std::int16_t instance = MakeInstance(*List1, NextListIndex);
        Column(Index).cdControlIndex = instance;
        Split(Setting, [&](std::u16string_view item) { List1->Item(instance)->AddItem(item); });
        Count(NextListIndex);
    });
}

void TessellonSheet::LoadMaskState(std::int32_t Index, std::u16string Setting)
{
    Armed(u"LoadMaskState", [&] {
        EditorLoading = true;
        const std::int16_t instance = MakeInstance(*MaskEdBox1, NextMaskIndex);
        Column(Index).cdControlIndex = instance;
        if (Column(Index).cdUseMask)
            MaskEdBox1->Item(instance)->Mask(Setting);
        else
            MaskEdBox1->Item(instance)->Format(Setting);
        Count(NextMaskIndex);
        EditorLoading = false;
    });
}

/// Buttons report under the list's labels: both pairs answer to them.
void TessellonSheet::LoadCommandState(std::int32_t Index, std::u16string Setting)
{
    Armed(u"LoadListState", [&] {
        const std::int16_t instance = MakeInstance(*Command1, NextCommandIndex);
        Command1->Item(instance)->Caption(Trim(Setting));
        Column(Index).cdControlIndex = instance;
        Count(NextCommandIndex);
    });
}

template <class Kind>
void TessellonSheet::UnloadAllButFirst(ControlArray<Kind>& array, std::int16_t& counter)
{
    counter = 1;
    while (array.Count() >= 2)
        array.Unload(static_cast<std::int16_t>(array.Count() - 1));
}

/// The format of the first instance survives, on purpose.
void TessellonSheet::ResetMaskState()
{
    Armed(u"ResetMaskState", [&] {
        UnloadAllButFirst(*MaskEdBox1, NextMaskIndex);
        MaskEdBox1->Item(0)->Mask(u"");
    });
}

void TessellonSheet::ResetComboState()
{
    Armed(u"ResetComboState", [&] {
        UnloadAllButFirst(*Combo1, NextComboIndex);
        Combo1->Item(0)->Clear();
    });
}

void TessellonSheet::ResetListState()
{
    Armed(u"ResetListState", [&] {
        UnloadAllButFirst(*List1, NextListIndex);
        List1->Item(0)->Clear();
    });
}

void TessellonSheet::ResetCommandState()
{
    Armed(u"ResetListState", [&] {
        UnloadAllButFirst(*Command1, NextCommandIndex);
        Command1->Item(0)->Caption(u"");
    });
}

void TessellonSheet::ResetControlState()
{
    ResetMaskState();
    ResetComboState();
    ResetListState();
    ResetCommandState();
}

} // namespace Tessellon
