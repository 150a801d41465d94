#include "editors/ActiveEditor.h"
#include "failure/Frames.h"
#include "shell/RaiseEvent.h"

namespace Tessellon {

/// The one place where an editor is laid. It runs at each cell change and is called directly for a cell that is
/// already current; each run loads the editor anew and tells EnterCell.
void TessellonSheet::MSFlexGrid1_EnterCell()
{
    Armed(u"MSFlexGrid1_EnterCell", [&] {
        EditorLoading = true;
        CurrentRow = MSFlexGrid1->Row();
        CurrentCol = MSFlexGrid1->Col();
        if (PendingTopRow > 0 && CurrentRow == RowCount - 2 && CurrentCol == ColCount - 1) {
            MSFlexGrid1->TopRow(PendingTopRow);
            PendingTopRow = 0;
        }
        if (!SkipEnterCell && GridReady) {
            MSFlexGrid1->Refresh();
            if (RowCount > 0 && ColCount > 0 && CurrentRow > 0 && CurrentCol > 0 && ColumnBound > 0) {
                // In a hidden column or one of width 0 EditorLoading is left standing.
                if (CurrentColumn().cdHidden || MSFlexGrid1->ColWidth(CurrentCol) == 0)
                    return;
                if (CurrentColumn().cdControlType != fcNil)
                    LayEditor();
            }
        }
        EditorLoading = false;
    });
    RaiseEvent(EnterCell);
}

void TessellonSheet::LayEditor()
{
    ShowEditorRequest = true;
    HideEditorRequest = false;
    CommandActivated = false;
    ActiveEditor = GetColControl(CurrentCol);
    const std::u16string editorClassKey(RunTime->UpperCase(Trim(Active()->ClassName())));
    PositionAndFontPass(editorClassKey);
    ValueLoadPass(editorClassKey);
    Active()->Tag(MSFlexGrid1->TextMatrix(CurrentRow, CurrentCol));
    Active()->Enabled(true);
    Active()->Visible(true);
    Active()->ZOrder(0);
    if (Active()->Visible() && Active()->Enabled())
        Active()->SetFocus();
}

/// The editor laid last; read anew at each step, since a handler may have moved on in between. None: failure 91.
std::shared_ptr<Editor> TessellonSheet::Active()
{
    if (!ActiveEditor)
        Fail(91);
    return ActiveEditor;
}

/// The row of the editor whose class is being placed or loaded; a handler that moved on has left another.
std::shared_ptr<Editor> TessellonSheet::ActiveOf(std::u16string_view editorClassKey)
{
    std::shared_ptr<Editor> editor = Active();
    if (editor->ClassName() != editorClassKey)
        Fail(438, editor->Name());
    return editor;
}

std::int32_t TessellonSheet::RowPixels()
{
    const std::int32_t height = ToLong(static_cast<double>(DefaultRowHeight));
    const std::int32_t pixel = ToLong(static_cast<double>(Screen->TwipsPerPixelY()));
    if (pixel == 0)
        Fail(11);
    return height / pixel;
}

/// The font's name is the grid's, its size follows the row.
void TessellonSheet::SetActiveFontSize(std::u16string_view key)
{
    const double pixels = RowPixels();
    const double size = key == comboBoxKey  ? (pixels - 2) / 2
                        : key == listBoxKey ? (pixels + 1.5) / 2
                                            : (pixels - 1.5) / 2;
    ActiveOf(key)->FontSize(size);
}

void TessellonSheet::SetActiveFont(std::u16string_view key)
{
    const std::u16string name(MSFlexGrid1->FontName());
    ActiveOf(key)->FontName(name);
    SetActiveFontSize(key);
}

void TessellonSheet::PlaceActive(std::u16string_view key)
{
    const auto top = static_cast<float>(MSFlexGrid1->CellTop());
    ActiveOf(key)->Top(top);
    const auto left = static_cast<float>(MSFlexGrid1->CellLeft());
    ActiveOf(key)->Left(left);
    const auto width = static_cast<float>(MSFlexGrid1->CellWidth());
    ActiveOf(key)->Width(width);
}

void TessellonSheet::PositionAndFontPass(std::u16string_view key)
{
    constexpr std::int16_t dtpCustom = 3;
    if (key == comboBoxKey || key == listBoxKey) {
        SetActiveFont(key);
        PlaceActive(key);
        const std::int32_t color = MSFlexGrid1->BackColor();
        if (key == comboBoxKey)
            ActiveAs<ComboBox>(key)->BackColor(color);
        else
            ActiveAs<ListBox>(key)->BackColor(color);
    } else if (key == pickerKey) {
        const std::u16string name(MSFlexGrid1->FontName());
        ActiveOf(key)->FontName(name);
        PlaceActive(key);
        SetActiveFontSize(key);
        const std::int32_t color = MSFlexGrid1->BackColor();
        ActiveAs<DTPicker>(key)->CalendarBackColor(color);
        ActiveAs<DTPicker>(key)->Format(dtpCustom);
        ActiveAs<DTPicker>(key)->CustomFormat(DateFormatText);
        ActiveAs<DTPicker>(key)->DataFormat(DateFormatText);
    } else {
        const auto left = static_cast<float>(MSFlexGrid1->CellLeft());
        const auto top = static_cast<float>(MSFlexGrid1->CellTop());
        const auto width = static_cast<float>(MSFlexGrid1->CellWidth());
        // Pixels are taken from twips as they stand.
        const auto height = static_cast<float>(MSFlexGrid1->CellHeight() - MSFlexGrid1->GridLineWidth() * 2);
        ActiveOf(key)->Move(left, top, width, height);
    }
}

} // namespace Tessellon
