#include "editors/ActiveEditor.h"
#include "failure/Frames.h"

#include <limits>

namespace Tessellon {

namespace {

constexpr std::int16_t alignLeft = 1;
constexpr std::int16_t alignCenter = 4;
constexpr std::int16_t alignRight = 7;

} // namespace

/// The text of the current cell, as it stands now.
std::u16string TessellonSheet::CurrentText()
{
    return std::u16string(MSFlexGrid1->TextMatrix(CurrentRow, CurrentCol));
}

bool TessellonSheet::EqualInUpperCase(std::u16string_view one, std::u16string_view other)
{
    const std::u16string upper(RunTime->UpperCase(Trim(one)));
    return RunTime->UpperCase(Trim(other)) == upper;
}

/// Loads the cell's text into the editor. What the load makes the editor write into the cell is part of it, except
/// where a row writes the kept text back.
void TessellonSheet::ValueLoadPass(std::u16string_view key)
{
    if (key == checkBoxKey)
        LoadCheckBox();
    else if (key == maskedBoxKey)
        LoadMaskedEditor();
    else if (key == textBoxKey)
        LoadTextBox();
    else if (key == pickerKey)
        LoadPicker();
    else if (key == richTextBoxKey)
        LoadRichTextBox();
    else if (key == listBoxKey)
        LoadListBox();
    else if (key == comboBoxKey)
        ActiveAs<ComboBox>(key)->Text(CurrentText());
    else if (key == commandButtonKey)
        SetActiveFont(key);
}

void TessellonSheet::LoadCheckBox()
{
    const std::u16string kept(Trim(CurrentText()));
    const std::int16_t value = EqualInUpperCase(CurrentText(), u"TRUE") ? 1 : 0;
    ActiveAs<CheckBox>(checkBoxKey)->Value(value);
    SetActiveFont(checkBoxKey);
    const std::int32_t color = MSFlexGrid1->BackColor();
    ActiveAs<CheckBox>(checkBoxKey)->BackColor(color);
    switch (MSFlexGrid1->ColAlignment(CurrentCol)) {
    case alignLeft:
    case alignCenter: ActiveAs<CheckBox>(checkBoxKey)->Alignment(0); break;
    case alignRight: ActiveAs<CheckBox>(checkBoxKey)->Alignment(1); break;
    default: break;
    }
    CellWriteBack(kept);
}

void TessellonSheet::LoadTextBox()
{
    const std::int32_t maxLength = CurrentColumn().cdMaxLength;
    ActiveAs<TextBox>(textBoxKey)->MaxLength(maxLength);
    ActiveAs<TextBox>(textBoxKey)->Text(CurrentText());
    SetActiveFont(textBoxKey);
    switch (MSFlexGrid1->ColAlignment(CurrentCol)) {
    case alignLeft: ActiveAs<TextBox>(textBoxKey)->Alignment(0); break;
    case alignRight: ActiveAs<TextBox>(textBoxKey)->Alignment(1); break;
    case alignCenter: ActiveAs<TextBox>(textBoxKey)->Alignment(2); break;
    default: break;
    }
    const std::int32_t color = MSFlexGrid1->BackColor();
    ActiveAs<TextBox>(textBoxKey)->BackColor(color);
}

/// A cell without a date that can be read shows today.
void TessellonSheet::LoadPicker()
{
    double date = RunTime->Today();
    const std::u16string text = CurrentText();
    if (!Trim(text).empty() && RunTime->IsDate(text))
        date = RunTime->ToDate(text);
    ActiveAs<DTPicker>(pickerKey)->Value(date);
}

void TessellonSheet::LoadRichTextBox()
{
    ActiveAs<RichTextBox>(richTextBoxKey)->Text(CurrentText());
    SetActiveFont(richTextBoxKey);
    const std::int32_t maxLength = CurrentColumn().cdMaxLength;
    ActiveAs<RichTextBox>(richTextBoxKey)->MaxLength(maxLength);
    ActiveAs<RichTextBox>(richTextBoxKey)->SelStart(0);
    const std::int32_t color = MSFlexGrid1->BackColor();
    ActiveAs<RichTextBox>(richTextBoxKey)->BackColor(color);
}

void TessellonSheet::LoadListBox()
{
    const std::int32_t count = ActiveAs<ListBox>(listBoxKey)->ListCount();
    if (count == 0)
        ActiveAs<ListBox>(listBoxKey)->Text(u"");
    for (std::int32_t i = 0; i < count; ++i) {
        const std::u16string entry(ActiveAs<ListBox>(listBoxKey)->List(i));
        const bool selected = EqualInUpperCase(entry, CurrentText());
        ActiveAs<ListBox>(listBoxKey)->Selected(i, selected);
    }
}

/// The pattern is taken off, the text put in, and the pattern put back: a mask behind the text, a format ahead of it.
void TessellonSheet::LoadMaskedEditor()
{
    const auto box = [this] { return ActiveAs<MaskEdBox>(maskedBoxKey); };
    box()->PromptInclude(false);
    const bool useMask = CurrentColumn().cdUseMask;
    const std::u16string pattern(useMask ? box()->Mask() : box()->Format());
    box()->Mask(u"");
    box()->Format(u"");
    box()->Text(u"");
    std::u16string working(Trim(CurrentText()));
    const std::u16string kept(Trim(working));
    if (useMask)
        FormatStr(working, pattern);
    MaskCellHadText = !working.empty();
    if (useMask) {
        box()->Text(working);
        box()->Mask(pattern);
    } else {
        box()->Format(pattern);
        box()->Text(working);
    }
    box()->PromptInclude(true);
    SetActiveFont(maskedBoxKey);
    const std::int32_t maxLength = CurrentColumn().cdMaxLength;
    if (maxLength > std::numeric_limits<std::int16_t>::max() || maxLength < std::numeric_limits<std::int16_t>::min())
        Fail(6);
    box()->MaxLength(static_cast<std::int16_t>(maxLength));
    const std::int32_t color = MSFlexGrid1->BackColor();
    box()->BackColor(color);
    box()->SelStart(0);
    CellWriteBack(kept);
}

} // namespace Tessellon
