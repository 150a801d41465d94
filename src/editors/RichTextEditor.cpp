#include "editors/KeyHandling.h"

namespace Tessellon {

// The handlers of the rich text box: the text box with a second meaning of Enter. Keys that it acted on are eaten.

void TessellonSheet::RichTextBox1_Change()
{
    Armed(u"RichTextBox1_Change", [&] {
        if (RowCount > 0 && ColCount > 0 && CurrentColumn().cdControlType == fcRichTextBox)
            CellWriteBack(Trim(RichTextBox1->Text()));
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

/// A new line goes to the end of the whole text, wherever the caret stands.
void TessellonSheet::RichTextBox1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift)
{
    HearKey(fcRichTextBox, u"RichTextBox1_KeyDown", KeyCode, Shift, [&](KeyAction action) {
        ShowEditorRequest = false;
        if (action == KeyAction::Restore) {
            Restore(*RichTextBox1);
        } else if (action == KeyAction::BreakOrNext && Shift == shiftCtrl) {
            RichTextBox1->Text(std::u16string(RichTextBox1->Text()) + u"\r\n");
            RichTextBox1->SelStart(static_cast<std::int32_t>(RichTextBox1->Text().size()));
        } else {
            return LeaveAtCaret(action, *RichTextBox1);
        }
        return true;
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
