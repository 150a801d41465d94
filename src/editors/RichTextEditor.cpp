#include "editors/LeaveBy.h"
#include "failure/Frames.h"
#include "shell/RaiseEvent.h"

namespace Tessellon {

// The handlers of the rich text box: the text box with a second meaning of Enter. Keys that it acted on are eaten.

void TessellonSheet::RichTextBox1_Change()
{
    Armed(u"RichTextBox1_Change", [&] {
        if (RowCount > 0 && ColCount > 0 && CurrentColumn().cdControlType == fcRichTextBox)
            WriteCurrentCell(Trim(RichTextBox1->Text()));
    });
    RaiseEvent(EditorChange);
}

void TessellonSheet::RichTextBox1_GotFocus()
{
    Armed(u"RichTextBox1_GotFocus", [&] {
        if (RichTextBox1->SelStart() != 0)
            RichTextBox1->SelStart(0);
    });
}

void TessellonSheet::RichTextBox1_KeyDown(std::int16_t& KeyCode, std::int16_t Shift)
{
    const auto leave = [&](Way way) {
        LeaveBy(*RichTextBox1, way);
        KeyCode = 0;
    };
    Armed(u"RichTextBox1_KeyDown", [&] {
        ShowEditorRequest = false;
        switch (KeyCode) {
        case keyEscape:
            if (RowCount > 0)
                WriteCurrentCell(Trim(RichTextBox1->Tag()));
            StandDown(*RichTextBox1);
            HideEditorRequest = true;
            break;
        case keyEnter:
            if (Shift != shiftCtrl) {
                leave(nextCell);
                break;
            }
            // The new line goes to the end of the whole text, wherever the caret stands.
            RichTextBox1->Text(std::u16string(RichTextBox1->Text()) + u"\r\n");
            RichTextBox1->SelStart(static_cast<std::int32_t>(RichTextBox1->Text().size()));
            KeyCode = 0;
            break;
        case keyLeft:
            if (RichTextBox1->SelStart() == 0)
                leave(previousCell);
            break;
        case keyUp: leave(cellAbove); break;
        case keyRight:
            if (IsCaretAtEnd(*RichTextBox1))
                leave(nextCell);
            break;
        case keyDown: leave(cellBelow); break;
        default: break;
        }
    });
}

void TessellonSheet::RichTextBox1_KeyPress(std::int16_t& KeyAscii)
{
    RaiseEvent(KeyPress, KeyAscii);
}

void TessellonSheet::RichTextBox1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift)
{
    RaiseEvent(KeyUp, KeyCode, Shift);
}

void TessellonSheet::RichTextBox1_LostFocus()
{
    SweepIgnoringFailures();
}

} // namespace Tessellon
