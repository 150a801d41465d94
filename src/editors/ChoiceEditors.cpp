#include "editors/KeyHandling.h"

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
            CellWriteBack(CheckBoxValue());
    });
}

void TessellonSheet::Check1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift)
{
    HearKey(fcCheckBox, u"Check1_KeyDown", KeyCode, Shift, [&](KeyAction action) {
        HideEditorRequest = true;
        ShowEditorRequest = false;
        switch (action) {
        case KeyAction::Nothing: return false;
        case KeyAction::Restore:
            CellWriteBack(Trim(Check1->Tag()));
            StandDown(*Check1);
            return true;
        case KeyAction::WriteNext: CellWriteBack(CheckBoxValue()); [[fallthrough]];
        default: LeaveBy(*Check1, action); return true;
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
            CellWriteBack(Trim(Combo1->Item(Index)->Text()));
    });
}

void TessellonSheet::Combo1_GotFocus()
{
    Armed(u"Combo1_GotFocus", [&] { ComboFocusCol = CurrentCol; });
}

/// Of left and right every second press leaves the cell: they share one counter, which goes up behind the advance.
void TessellonSheet::Combo1_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift)
{
    HearKey(fcComboBox, u"Combo1_KeyDown", KeyCode, Shift, [&](KeyAction action) {
        ShowEditorRequest = false;
        switch (action) {
        case KeyAction::Restore: {
            const auto box = Combo1->Item(Index);
            CellWriteBack(Trim(box->Tag()));
            StandDown(*box);
            HideEditorRequest = true;
            return true;
        }
        case KeyAction::WriteText: CellWriteBack(Trim(Combo1->Item(Index)->Text())); return true;
        case KeyAction::PreviousOn2nd:
        case KeyAction::NextOn2nd:
            if (ComboPreviousIndex % 2 != 0)
                LeaveBy(*Combo1->Item(Index), action);
            ++ComboPreviousIndex;
            return true;
        default: LeaveBy(*Combo1->Item(Index), action); return true;
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
            CellWriteBack(Trim(list->List(i)));
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
void TessellonSheet::List1_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift)
{
    HearKey(fcListBox, u"List1_KeyDown", KeyCode, Shift, [&](KeyAction action) {
        ShowEditorRequest = false;
        ListKeyHandled = false;
        switch (action) {
        case KeyAction::Nothing: return false;
        case KeyAction::Restore: Restore(*List1->Item(Index)); return true;
        case KeyAction::WriteChosen:
            if (RowCount > 0)
                WriteListSelection(Index);
            return true;
        case KeyAction::WriteIfLast:
            if (CurrentCol == ColCount - 1 && CurrentRow == RowCount - 1 && RowCount > 0)
                WriteListSelection(Index);
            LeaveBy(*List1->Item(Index), action);
            return true;
        default:
            LeaveBy(*List1->Item(Index), action);
            ListKeyHandled = true;
            return true;
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
