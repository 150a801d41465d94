#include "editors/KeyHandling.h"

namespace Tessellon {

// The handlers of the date picker. It keeps the arrows to itself; Enter and Esc are the ways out by keyboard.

void TessellonSheet::WriteDate(const Value& date)
{
    CellWriteBack(RunTime->Format(date, DateFormatText));
}

void TessellonSheet::DTPicker1_Change()
{
    Armed(u"DTPicker1_Change", [&] {
        if (RowCount > 0 && ColCount > 0 && CurrentColumn().cdControlType == fcDatePicker)
            WriteDate(Value::OfDate(DTPicker1->Value()));
    });
    RaiseEvent(EditorChange);
}

void TessellonSheet::DTPicker1_Click()
{
    Ignoring([&] { DTPicker1_Change(); }, [&] { RaiseEvent(Click); });
}

void TessellonSheet::DTPicker1_CloseUp()
{
    Ignoring([&] { DTPicker1_Change(); }, [&] { RaiseEvent(DateBoxCloseUp); });
}

void TessellonSheet::DTPicker1_DropDown()
{
    RaiseEvent(DateBoxDropDown);
}

void TessellonSheet::DTPicker1_DblClick()
{
    RaiseEvent(DblClick);
}

/// The host gets a copy of the field; the text goes back to the picker.
void TessellonSheet::DTPicker1_Format(std::u16string& CallbackField, std::u16string& FormattedString)
{
    std::u16string field = CallbackField;
    RaiseEvent(Format, field, FormattedString);
}

void TessellonSheet::DTPicker1_CallbackKeyDown(std::int16_t KeyCode, std::int16_t Shift,
                                               const std::u16string& CallbackField, double& CallbackDate)
{
    const std::u16string field = CallbackField;
    RaiseEvent(DatePickerCallbackKeyDown, KeyCode, Shift, field, CallbackDate);
}

void TessellonSheet::DTPicker1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift)
{
    HearKey(fcDatePicker, u"DTPicker1_KeyDown", KeyCode, Shift, [&](KeyAction action) {
        ShowEditorRequest = false;
        switch (action) {
        case KeyAction::RestoreDate: {
            const std::u16string tag(DTPicker1->Tag());
            WriteDate(Value::OfText(tag));
            StandDown(*DTPicker1);
            HideEditorRequest = true;
            return true;
        }
        case KeyAction::WriteNext:
            WriteDate(Value::OfDate(DTPicker1->Value()));
            LeaveBy(*DTPicker1, action);
            return true;
        default: return false;
        }
    });
}

void TessellonSheet::DTPicker1_KeyPress(std::int16_t& KeyAscii)
{
    if (KeyAscii == keyEnter)
        KeyAscii = 0;
    RaiseEvent(KeyPress, KeyAscii);
}

void TessellonSheet::DTPicker1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift)
{
    RaiseEvent(KeyUp, KeyCode, Shift);
}

void TessellonSheet::DTPicker1_LostFocus()
{
    SweepIgnoringFailures();
}

// Moves and releases over the picker reach the host as presses.

void TessellonSheet::DTPicker1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

void TessellonSheet::DTPicker1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

void TessellonSheet::DTPicker1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

} // namespace Tessellon
