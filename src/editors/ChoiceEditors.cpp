#include "editors/LeaveBy.h"
#include "failure/Frames.h"
#include "shell/RaiseEvent.h"

namespace Tessellon {

// The handlers of check box, combo box and list box: what their cells hold is chosen, not typed.

std::u16string_view TessellonSheet::CheckBoxValue()
{
    return Check1->Value() == 1 ? u"True" : u"False";
}

void TessellonSheet::Check1_Click()
{
    Armed(u"Check1_Click", [&] {
        if (RowCount > 0 && ColCount > 0 && CurrentColumn().cdControlType == fcCheckBox)
            WriteCurrentCell(CheckBoxValue());
    });
}

void TessellonSheet::Check1_KeyDown(std::int16_t KeyCode)
{
    Armed(u"Check1_KeyDown", [&] {
        HideEditorRequest = true;
        ShowEditorRequest = false;
        switch (KeyCode) {
        case keyEscape:
            WriteCurrentCell(Trim(Check1->Tag()));
            StandDown(*Check1);
            break;
        case keyEnter:
            WriteCurrentCell(CheckBoxValue());
            LeaveBy(*Check1, nextCell);
            break;
        case keyLeft: LeaveBy(*Check1, previousCell); break;
        case keyUp: LeaveBy(*Check1, cellAbove); break;
        case keyRight: LeaveBy(*Check1, nextCell); break;
        case keyDown: LeaveBy(*Check1, cellBelow); break;
        default: break;
        }
    });
}

void TessellonSheet::Check1_LostFocus()
{
    Armed(u"Check1_LostFocus", [&] { SweepCurrentColumn(); });
}

void TessellonSheet::Check1_Validate()
{
    HideEditorRequest = true;
    ShowEditorRequest = false;
}

// Moves and releases over check box and list reach the host as presses.

void TessellonSheet::Check1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

void TessellonSheet::Check1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

void TessellonSheet::Check1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

/// Typing in the box and choosing from its list are handled alike.
void TessellonSheet::Combo1_Change(std::int16_t Index)
{
    Combo1_Click(Index);
}

void TessellonSheet::Combo1_Click(std::int16_t Index)
{
    Armed(u"Combo1_Click", [&] {
        if (CurrentColumn().cdControlIndex == Index && RowCount > 0 && ColCount > 0 &&
            CurrentColumn().cdControlType == fcComboBox)
            WriteCurrentCell(Trim(Combo1->Item(Index)->Text()));
    });
}

void TessellonSheet::Combo1_GotFocus()
{
    Armed(u"Combo1_GotFocus", [&] { ComboFocusCol = CurrentCol; });
}

/// Of left and right every second press leaves the cell: they share one counter, which goes up behind the advance.
void TessellonSheet::Combo1_KeyDown(std::int16_t Index, std::int16_t KeyCode)
{
    Armed(u"Combo1_KeyDown", [&] {
        ShowEditorRequest = false;
        const auto box = Combo1->Item(Index);
        switch (KeyCode) {
        case keyEscape:
            WriteCurrentCell(Trim(box->Tag()));
            StandDown(*box);
            HideEditorRequest = true;
            break;
        case keyEnter: LeaveBy(*box, nextCell); break;
        case keyLeft:
        case keyRight:
            if (ComboPreviousIndex % 2 != 0)
                LeaveBy(*box, KeyCode == keyLeft ? previousCell : nextCell);
            ++ComboPreviousIndex;
            break;
        default: WriteCurrentCell(Trim(box->Text())); break;
        }
    });
}

void TessellonSheet::Combo1_LostFocus()
{
    Armed(u"Combo1_LostFocus", [&] {
        ComboPreviousIndex = 0;
        SweepCurrentColumn();
    });
}

/// The first selected entry; with none selected the cell is not touched.
void TessellonSheet::WriteListSelection(std::int16_t Index)
{
    const auto list = List1->Item(Index);
    const std::int32_t count = list->ListCount();
    for (std::int32_t i = 0; i < count; ++i) {
        if (list->Selected(i)) {
            WriteCurrentCell(Trim(list->List(i)));
            return;
        }
    }
}

void TessellonSheet::List1_Click(std::int16_t Index)
{
    Armed(u"List1_Click", [&] {
        if (ListKeyHandled) {
            ListKeyHandled = false;
            return;
        }
        if (IsInstanceOfCurrentColumn(Index, fcListBox) && RowCount > 0 && ColCount > 0)
            WriteListSelection(Index);
    });
}

/// An arrow that leaves the cell also moves the list's selection: the click that comes of it must change nothing.
void TessellonSheet::List1_KeyDown(std::int16_t Index, std::int16_t KeyCode)
{
    Armed(u"List1_KeyDown", [&] {
        ShowEditorRequest = false;
        ListKeyHandled = false;
        const auto list = List1->Item(Index);
        switch (KeyCode) {
        case keyEscape:
            if (RowCount > 0)
                WriteCurrentCell(Trim(list->Tag()));
            StandDown(*list);
            HideEditorRequest = true;
            break;
        case keyEnter:
            if (CurrentCol == ColCount - 1 && CurrentRow == RowCount - 1 && RowCount > 0)
                WriteListSelection(Index);
            LeaveBy(*list, nextCell);
            break;
        case keyLeft:
        case keyRight:
            LeaveBy(*list, KeyCode == keyLeft ? previousCell : nextCell);
            ListKeyHandled = true;
            break;
        case keyUp:
        case keyDown:
            if (RowCount > 0)
                WriteListSelection(Index);
            break;
        default: break;
        }
    });
}

void TessellonSheet::List1_LostFocus()
{
    Armed(u"List1_LostFocus", [&] { SweepCurrentColumn(); });
}

void TessellonSheet::List1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

void TessellonSheet::List1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

void TessellonSheet::List1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

} // namespace Tessellon
