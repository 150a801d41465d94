#include "editors/KeyHandling.h"

namespace Tessellon {

// The handlers of the text box. What is typed reaches the cell at once; leaving the cell is the key handler's work.

/// A load that changes the box's text runs this as typing does.
void TessellonSheet::Text1_Change()
{
    Armed(u"Text1_Change", [&] {
        if (RowCount > 0 && ColCount > 0 && CurrentColumn().cdControlType == fcTextBox)
            CellWriteBack(Trim(Text1->Text()));
    });
    RaiseEvent(EditorChange);
}

void TessellonSheet::Text1_GotFocus()
{
    Armed(u"Text1_GotFocus", [&] {
        if (Text1->SelStart() != 0)
            Text1->SelStart(0);
        ShowEditorRequest = false;
    });
}

void TessellonSheet::Text1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift)
{
    HearKey(fcTextBox, u"Text1_KeyDown", KeyCode, Shift, [&](KeyAction action) {
        ShowEditorRequest = false;
        if (action != KeyAction::Restore)
            return LeaveAtCaret(action, *Text1);
        Restore(*Text1);
        return true;
    });
}

void TessellonSheet::Text1_KeyPress(std::int16_t& KeyAscii)
{
    if (KeyAscii == keyEnter || KeyAscii == keyEscape)
        KeyAscii = 0;
    RaiseEvent(KeyPress, KeyAscii);
}

void TessellonSheet::Text1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift)
{
    RaiseEvent(KeyUp, KeyCode, Shift);
}

void TessellonSheet::Text1_DblClick()
{
    RaiseEvent(DblClick);
}

void TessellonSheet::Text1_Validate(bool& Cancel)
{
    RaiseEvent(EditorValidate, Cancel);
}

void TessellonSheet::Text1_LostFocus()
{
    SweepIgnoringFailures();
}

} // namespace Tessellon
