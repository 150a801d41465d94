#pragma once

#include <cstdint>
#include <string>

namespace Tessellon {

/// The child controls of the sheet, by name, and the sheet's own frame.
enum class Child : std::uint8_t {
    MSFlexGrid1,
    Text1,
    Check1,
    Combo1,
    List1,
    DTPicker1,
    MaskEdBox1,
    RichTextBox1,
    Command1,
    UserControl,
};

/// Everything that a child control may tell.
enum class ChildEvent : std::uint8_t {
    Change,
    Click,
    DblClick,
    GotFocus,
    LostFocus,
    Validate, ///< Cancel
    KeyDown, ///< KeyCode, Shift
    KeyPress, ///< KeyAscii
    KeyUp, ///< KeyCode, Shift
    MouseDown, ///< Button, Shift, X, Y; so are the two below
    MouseMove,
    MouseUp,
    Compare, ///< Row1, Row2, Cmp
    EnterCell,
    LeaveCell,
    RowColChange,
    Scroll,
    SelChange,
    CloseUp,
    DropDown,
    Format, ///< CallbackField, FormattedString
    CallbackKeyDown, ///< KeyCode, Shift, CallbackField, CallbackDate
    Resize,
    ExitFocus,
};

/// The arguments of one event. Those of an event that goes by reference come back as the handler left them.
struct EventArguments {
    std::int16_t Index = 0; ///< Place in the control array; 0 for a control that stands alone.
    std::int16_t KeyCode = 0;
    std::int16_t Shift = 0; ///< 1 Shift, 2 Ctrl, 4 Alt, added up.
    std::int16_t KeyAscii = 0; ///< A UTF-16 unit as a signed 16-bit number.
    std::int16_t Button = 0; ///< 1 left, 2 right, 4 middle.
    float X = 0; ///< Twips from the control's own left edge.
    float Y = 0; ///< Twips from the control's own top edge.
    bool Cancel = false;
    std::int32_t Row1 = 0;
    std::int32_t Row2 = 0;
    std::int16_t Cmp = 0;
    std::u16string CallbackField;
    std::u16string FormattedString;
    double CallbackDate = 0; ///< Date serial.
};

/// Where child controls tell their events. The sheet is the one listener.
class EventSink {
public:
    virtual ~EventSink() = default;

    /// Tells one event, at once; returns when its handler has. A failure that leaves the handler leaves this call.
    virtual void Raise(Child child, ChildEvent event, EventArguments& arguments) = 0;
};

} // namespace Tessellon
