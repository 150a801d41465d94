#include "engine/input/Focus.h"

#include "engine/Failures.h"

#include <utility>

namespace Tessellon {

Focus::Focus(InputControl& grid, Frame frame)
    : grid_(grid)
    , frame_(std::move(frame))
{
}

void Focus::Tell(InputControl& control, ChildEvent event)
{
    EventArguments arguments;
    control.Raise(event, arguments);
}

/// The focus already stands on the new control when the old one hears of its loss: a handler that asks for it again
/// there changes nothing, and so ends.
void Focus::Move(InputControl& control)
{
    InputControl* const old = std::exchange(holder_, &control);
    inside_ = true;
    owedToGrid_ = false;
    noted_ = nullptr;
    frame_.Moved();
    if (old != nullptr && old != &control)
        Tell(*old, ChildEvent::LostFocus);
    if (holder_ == &control) {
        control.FocusArrived();
        Tell(control, ChildEvent::GotFocus);
    }
}

/// Like Move, but a disabled grid leaves the focus nowhere and has it owed.
void Focus::Give(InputControl& control)
{
    if (&control != &grid_ || grid_.CanHaveFocus()) {
        Move(control);
        return;
    }
    InputControl* const old = std::exchange(holder_, nullptr);
    inside_ = true;
    owedToGrid_ = true;
    noted_ = nullptr;
    frame_.Moved();
    if (old != nullptr)
        Tell(*old, ChildEvent::LostFocus);
}

void Focus::Set(InputControl& control)
{
    if (&control != &grid_ && !control.CanHaveFocus())
        Fail(5, control.ControlName());
    const bool onlyNotes = leaving_ || !windowInFront_ || (!inside_ && !grabsFocus_);
    if (onlyNotes)
        noted_ = &control;
    else if (holder_ != &control)
        Give(control);
}

void Focus::GiveBack()
{
    if (leaving_)
        givenBack_ = true;
    else if (!inside_)
        Set(grid_);
}

void Focus::ClaimGoesToGrid(InputControl& control)
{
    if (noted_ == &control)
        noted_ = &grid_;
    if (heldLast_ == &control)
        heldLast_ = &grid_;
}

void Focus::TakenDown(InputControl& control)
{
    ClaimGoesToGrid(control);
    // While the sheet is being left the control keeps what it is about to lose anyway.
    if (holder_ == &control && !leaving_)
        Give(grid_);
}

void Focus::TakenDownAgain(InputControl& control)
{
    ClaimGoesToGrid(control);
    if (holder_ != &control || leaving_)
        return;
    const bool toGrid = grid_.CanHaveFocus();
    holder_ = toGrid ? &grid_ : nullptr;
    owedToGrid_ = !toGrid;
    frame_.Moved();
}

void Focus::Forget(InputControl& control)
{
    TakenDownAgain(control);
    if (holder_ == &control)
        holder_ = nullptr;
}

void Focus::GridEnabled()
{
    if (owedToGrid_ && windowInFront_ && !leaving_ && grid_.CanHaveFocus())
        Move(grid_);
}

/// Asks whoever has the focus whether the user may take it away.
bool Focus::MayLeave()
{
    if (holder_ != nullptr)
        holder_->TakePending(nullptr);
    if (holder_ == nullptr || !holder_->IsValidated())
        return true;
    EventArguments arguments;
    holder_->Raise(ChildEvent::Validate, arguments);
    return !arguments.Cancel;
}

bool Focus::Press(InputControl& control)
{
    if (!windowInFront_ || leaving_ || !control.CanHaveFocus())
        return false;
    if (holder_ != &control) {
        if (!MayLeave() || !windowInFront_ || !control.CanHaveFocus())
            return false;
        if (holder_ != &control)
            Move(control);
    }
    // A handler of the loss may have taken the focus elsewhere: the press counts all the same.
    return windowInFront_ && control.CanHaveFocus();
}

/// Nothing in the sheet has the focus any more.
void Focus::Drop()
{
    inside_ = false;
    owedToGrid_ = false;
    noted_ = nullptr;
    heldLast_ = nullptr;
    InputControl* const old = std::exchange(holder_, nullptr);
    frame_.Moved();
    if (old != nullptr)
        Tell(*old, ChildEvent::LostFocus);
    noted_ = nullptr;
}

void Focus::LeaveSheet()
{
    if (!inside_ || !windowInFront_ || leaving_)
        return;
    if (holder_ == nullptr) {
        inside_ = false;
        owedToGrid_ = false;
        return;
    }
    if (!MayLeave() || !windowInFront_ || !inside_)
        return;
    struct Leaving {
        bool& flag;
        explicit Leaving(bool& set)
            : flag(set)
        {
            flag = true;
        }
        ~Leaving() { flag = false; }
        Leaving(const Leaving&) = delete;
        Leaving& operator=(const Leaving&) = delete;
    };
    noted_ = nullptr;
    givenBack_ = false;
    {
        const Leaving leaving(leaving_);
        frame_.RaiseExitFocus();
        if (!givenBack_) {
            Drop();
            return;
        }
    }
    InputControl* const wanted = std::exchange(noted_, nullptr);
    if (!windowInFront_) {
        if (wanted != nullptr)
            heldLast_ = wanted;
        return;
    }
    if (wanted != nullptr)
        Give(*wanted);
    else if (holder_ == nullptr || !holder_->CanHaveFocus())
        Give(grid_);
}

void Focus::EnterSheet()
{
    if (inside_ || !windowInFront_)
        return;
    InputControl* const wanted = std::exchange(noted_, nullptr);
    Give(wanted != nullptr ? *wanted : grid_);
}

void Focus::WindowOut()
{
    if (!windowInFront_)
        return;
    if (holder_ != nullptr)
        holder_->TakePending(nullptr);
    if (!windowInFront_)
        return;
    windowInFront_ = false;
    InputControl* const old = std::exchange(holder_, nullptr);
    heldLast_ = old;
    frame_.Moved();
    if (old != nullptr)
        Tell(*old, ChildEvent::LostFocus);
}

void Focus::WindowIn()
{
    if (windowInFront_)
        return;
    windowInFront_ = true;
    InputControl* wanted = std::exchange(heldLast_, nullptr);
    // While the sheet is being left, who is noted waits for the leaving to be refused.
    if (noted_ != nullptr && !leaving_ && (inside_ || grabsFocus_))
        wanted = std::exchange(noted_, nullptr);
    if (wanted != nullptr)
        Give(*wanted);
    else
        GridEnabled();
}

} // namespace Tessellon
