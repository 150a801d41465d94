#pragma once

#include "engine/input/InputControl.h"

#include <functional>

namespace Tessellon {

/// Who has the focus, and in what order losses and gains are told. The toolkit's own focus follows this one.
class Focus {
public:
    /// The sheet's frame, as far as the focus is concerned.
    struct Frame {
        std::function<void()> RaiseExitFocus;
        std::function<void()> Moved; ///< The holder is another, or the focus came or went: the toolkit follows.
    };

    Focus(InputControl& grid, Frame frame);

    [[nodiscard]] InputControl* Holder() const { return holder_; } ///< Null while nobody in the sheet has it.
    [[nodiscard]] bool IsInside() const { return inside_; } ///< The sheet has the focus within its window.
    [[nodiscard]] bool IsWindowInFront() const { return windowInFront_; }
    /// Whether code may bring the focus into the sheet from outside.
    [[nodiscard]] bool GrabsFocus() const { return grabsFocus_; }
    void GrabsFocus(bool grabs) { grabsFocus_ = grabs; }

    // What code does.
    void Set(InputControl& control); ///< A hidden or disabled editor: failure 5.
    void GiveBack(); ///< The component asks for it back while it is leaving.
    void TakenDown(InputControl& control); ///< The editor was just hidden or disabled.
    void TakenDownAgain(InputControl& control); ///< The same in silence, behind a handler that brought it up again.
    void Forget(InputControl& control); ///< The control is about to go for good.
    void GridEnabled(); ///< A focus that is owed to the grid is given.

    // What the user does.
    bool Press(InputControl& control); ///< False: the press is lost.
    void LeaveSheet();
    void EnterSheet();
    void WindowOut();
    void WindowIn();

private:
    void Move(InputControl& control);
    void Give(InputControl& control);
    void ClaimGoesToGrid(InputControl& control);
    void Tell(InputControl& control, ChildEvent event);
    bool MayLeave();
    void Drop();

    InputControl& grid_;
    Frame frame_;
    InputControl* holder_ = nullptr;
    InputControl* noted_ = nullptr; ///< Who is to have it as soon as it may be given.
    InputControl* heldLast_ = nullptr; ///< Who had it when the window went behind another.
    bool inside_ = false;
    bool windowInFront_ = true;
    bool owedToGrid_ = false;
    bool leaving_ = false;
    bool givenBack_ = false;
    bool grabsFocus_ = true;
};

} // namespace Tessellon
