#pragma once

#include "engine/input/Stroke.h"
#include "platform/Events.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace Tessellon {

/// A control as focus and keys see it: the grid and every editor.
class InputControl {
public:
    virtual ~InputControl() = default;

    [[nodiscard]] virtual std::u16string_view ControlName() const = 0;
    [[nodiscard]] virtual bool CanHaveFocus() const = 0; ///< Visible and enabled.
    /// Whether its Validate is raised when the user takes the focus away.
    [[nodiscard]] virtual bool IsValidated() const { return false; }
    /// Has the focus, or may have it, and takes no keys all the same.
    [[nodiscard]] virtual bool IsDeaf() const { return false; }
    /// Keeps the control in being as long as it is held: a handler may do away with the control that told it.
    [[nodiscard]] virtual std::shared_ptr<const void> Alive() const { return nullptr; }
    /// Grows each time the control is hidden or disabled.
    [[nodiscard]] virtual unsigned TimesTakenDown() const { return 0; }

    /// Tells the sheet an event of this control.
    virtual void Raise(ChildEvent event, EventArguments& arguments) = 0;

    /// What waits in the control is taken, ahead of what the user does next; `stroke` is the key he pressed, or none.
    virtual void TakePending(const Stroke* stroke) { static_cast<void>(stroke); }
    /// What the key means to the control, behind KeyDown. `takenDown`: the handler of KeyDown hid or disabled it.
    virtual void KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown) = 0;
    /// A character is typed, behind KeyPress.
    virtual void TakeUp(char16_t character, std::int16_t shift) = 0;
    /// The focus has come, ahead of GotFocus.
    virtual void FocusArrived() {}
};

} // namespace Tessellon
