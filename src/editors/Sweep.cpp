#include "failure/Frames.h"

namespace Tessellon {

namespace {

void PutAway(Editor& editor)
{
    editor.ZOrder(1);
    editor.Visible(false);
    editor.Enabled(false);
}

void TakeFocusIfUp(Editor& editor)
{
    if (editor.Enabled() && editor.Visible())
        editor.SetFocus();
}

template <class Kind>
void BringUp(Kind& editor)
{
    constexpr bool enabledFirst = std::is_same_v<Kind, CommandButton>;
    if constexpr (enabledFirst)
        editor.Enabled(true);
    editor.Visible(true);
    if constexpr (!enabledFirst)
        editor.Enabled(true);
    if constexpr (requires { editor.SelStart(0); })
        editor.SelStart(0);
    editor.ZOrder(0);
    TakeFocusIfUp(editor);
}

} // namespace

/// One step of the sweep. The request is cleared behind the bringing up: a nested sweep brings the same editor up once
/// more, which ends in the same state.
template <class Kind>
void TessellonSheet::SweepOne(bool current, Kind& editor)
{
    if (!current || !GridReady) {
        PutAway(editor);
    } else if (ShowEditorRequest) {
        BringUp(editor);
        ShowEditorRequest = false;
    } else if (HideEditorRequest) {
        PutAway(editor);
        HideEditorRequest = false;
    }
}

template <class Kind>
void TessellonSheet::SweepArray(bool isItsKind, ControlArray<Kind>& array, std::int16_t index)
{
    for (std::int16_t i = 0; i < array.Count(); ++i)
        SweepOne(isItsKind && i == index, *array.Item(i));
}

/// Leaves at most one editor up, that of the given kind and instance, and carries the pending request out on it.
void TessellonSheet::SetObjVisible(std::int32_t ControlType, std::int16_t Index)
{
    Armed(u"SetObjVisible", [&] {
        SweepOne(ControlType == fcTextBox, *Text1);
        SweepOne(ControlType == fcCheckBox, *Check1);
        SweepArray(ControlType == fcComboBox, *Combo1, Index);
        SweepArray(ControlType == fcListBox, *List1, Index);
        SweepOne(ControlType == fcDatePicker, *DTPicker1);
        SweepArray(ControlType == fcMaskedEditBox, *MaskEdBox1, Index);
        SweepOne(ControlType == fcRichTextBox, *RichTextBox1);
        SweepArray(ControlType == fcCommandButton, *Command1, Index);
    });
}

/// The sweep for the column that is current by now, as one of the kind.
void TessellonSheet::SweepAs(std::int32_t ControlType)
{
    SetObjVisible(ControlType, IsArrayControl(CurrentCol) ? CurrentColumn().cdControlIndex : std::int16_t{0});
}

/// What every loss of focus ends in.
void TessellonSheet::SweepCurrentColumn()
{
    SweepAs(CurrentColumn().cdControlType);
}

/// The same where a failure is passed over: without a column everything is put away.
void TessellonSheet::SweepIgnoringFailures()
{
    std::int32_t type = fcNil;
    Ignoring([&] { type = CurrentColumn().cdControlType; }, [&] { SweepAs(type); });
}

void TessellonSheet::SetGridFocus(std::int32_t Row, std::int32_t Col)
{
    Armed(u"SetGridFocus", [&] {
        if (ColumnBound <= 0 || RowCount <= 1 || ColCount <= 1)
            return;
        MSFlexGrid1->Col(Col);
        MSFlexGrid1->Row(Row);
        CurrentCol = Col;
        CurrentRow = Row;
    });
}

void TessellonSheet::CellWriteBack(std::u16string_view text)
{
    MSFlexGrid1->TextMatrix(CurrentRow, CurrentCol, text);
}

} // namespace Tessellon
