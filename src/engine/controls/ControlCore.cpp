#include "engine/controls/ControlCore.h"

#include "engine/Failures.h"
#include "engine/input/Focus.h"

#include <utility>

namespace Tessellon {

namespace {

constexpr auto windowBackground = static_cast<std::int32_t>(0x80000005);

} // namespace

ControlCore::ControlCore(ControlSurroundings& surroundings, Child child, std::u16string name, std::int16_t index,
                         float height)
    : surroundings_(surroundings)
    , child_(child)
    , name_(std::move(name))
    , index_(index)
    , color_(windowBackground)
{
    place_.Height = height;
}

bool ControlCore::HasFocus() const
{
    return surroundings_.TheFocus().Holder() == this;
}

void ControlCore::Raise(ChildEvent event, EventArguments& arguments)
{
    if (retired_)
        return;
    arguments.Index = index_;
    surroundings_.RaiseChild(child_, event, arguments);
}

void ControlCore::Tell(ChildEvent event)
{
    EventArguments arguments;
    Raise(event, arguments);
}

void ControlCore::Tell(ChildEvent event, const EventArguments& mouse)
{
    EventArguments arguments = mouse;
    Raise(event, arguments);
}

/// A handler of the loss of focus may bring the control up again: what was taken down stays down, in silence.
void ControlCore::TakenDown(bool& state)
{
    const std::shared_ptr<const void> alive = Alive();
    ++timesTakenDown_;
    surroundings_.TheFocus().TakenDown(*this);
    if (!state)
        return;
    state = false;
    Show(&state == &visible_ ? Aspect::Visible : Aspect::Enabled);
    surroundings_.TheFocus().TakenDownAgain(*this);
}

void ControlCore::SetVisible(bool visible)
{
    if (visible_ == visible || (visible && retired_))
        return;
    visible_ = visible;
    Show(Aspect::Visible);
    if (visible) {
        BecameVisible();
    } else {
        BecameHidden();
        TakenDown(visible_);
    }
}

void ControlCore::SetEnabled(bool enabled)
{
    if (enabled_ == enabled)
        return;
    enabled_ = enabled;
    Show(Aspect::Enabled);
    if (!enabled) {
        BecameDisabled();
        TakenDown(enabled_);
    }
}

void ControlCore::SetOrder(std::int16_t position)
{
    inFront_ = position == 0;
    Show(Aspect::Order);
}

void ControlCore::SetPlace(const Rectangle& place)
{
    place_ = place;
    Show(Aspect::Place);
}

void ControlCore::SetFontName(std::u16string_view name)
{
    if (font_.Name == name)
        return;
    font_.Name = name;
    FontChanged();
    Show(Aspect::Look);
}

void ControlCore::SetFontSize(double points)
{
    if (!(points > 0))
        Fail(380, name_);
    if (font_.Size == points)
        return;
    font_.Size = points;
    FontChanged();
    Show(Aspect::Look);
}

void ControlCore::SetColor(std::int32_t color)
{
    if (std::exchange(color_, color) != color)
        Show(Aspect::Look);
}

void ControlCore::SetAlignment(std::int16_t alignment)
{
    if (std::exchange(alignment_, alignment) != alignment)
        Show(Aspect::Look);
}

void ControlCore::AskForFocus()
{
    surroundings_.TheFocus().Set(*this);
}

bool ControlCore::PressMouse(const EventArguments& mouse)
{
    const std::shared_ptr<const void> alive = Alive();
    if (!surroundings_.TheFocus().Press(*this))
        return false;
    Tell(ChildEvent::MouseDown, mouse);
    return CanHaveFocus();
}

void ControlCore::MoveMouse(const EventArguments& mouse)
{
    Tell(ChildEvent::MouseMove, mouse);
}

void ControlCore::ReleaseMouse(const EventArguments& mouse, bool inside)
{
    constexpr std::int16_t leftButton = 1;
    const std::shared_ptr<const void> alive = Alive();
    Tell(ChildEvent::MouseUp, mouse);
    if (inside && mouse.Button == leftButton && CanHaveFocus())
        PressMeans();
}

void ControlCore::Retire()
{
    SetVisible(false);
    retired_ = true;
    surroundings_.TheFocus().Forget(*this);
    Show(Aspect::Gone);
}

} // namespace Tessellon
