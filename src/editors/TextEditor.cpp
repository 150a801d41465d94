#include "editors/LeaveBy.h"
#include "failure/Frames.h"
#include "shell/RaiseEvent.h"

namespace Tessellon {

// The handlers of the text box. What is typed reaches the cell at once; leaving the cell is the key handler's work.

/// A load that changes the box's text runs this as typing does.
void TessellonSheet::Text1_Change()
{
    Armed(u"Text1_Change", [&] {
        if (RowCount > 0 && ColCount > 0 && CurrentColumn().cdControlType == fcTextBox)
            WriteCurrentCell(Trim(Text1->Text()));
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
    Armed(u"Text1_KeyDown", [&] {
        ShowEditorRequest = false;
        switch (KeyCode) {
        case keyEscape:
            if (RowCount > 0)
                WriteCurrentCell(Trim(Text1->Tag()));
            StandDown(*Text1);
            HideEditorRequest = true;
            break;
        case keyEnter: LeaveBy(*Text1, nextCell); break;
        case keyLeft:
            if (Text1->SelStart() == 0)
                LeaveBy(*Text1, previousCell);
            break;
        case keyUp: LeaveBy(*Text1, cellAbove); break;
        case keyRight:
            if (IsCaretAtEnd(*Text1))
                LeaveBy(*Text1, nextCell);
            break;
        case keyDown: LeaveBy(*Text1, cellBelow); break;
        default: break;
        }
    });
    RaiseEvent(KeyDown, KeyCode, Shift);
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
