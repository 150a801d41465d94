#include "qt/FocusEcho.h"

#include "qt/GridView.h"
#include "qt/SheetFrame.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

#include <utility>

namespace Tessellon {

FocusEcho::FocusEcho(SheetFrame& frame)
    : QObject(&frame)
    , frame_(frame)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) { Moved(now); });
}

void FocusEcho::Stop()
{
    qApp->disconnect(this);
    if (window_)
        window_->removeEventFilter(this);
}

bool FocusEcho::IsInside(const QWidget* widget) const
{
    return widget == &frame_ || frame_.isAncestorOf(widget);
}

void FocusEcho::Give(QWidget& widget)
{
    const bool before = std::exchange(isOurs_, true);
    widget.setFocus(Qt::OtherFocusReason);
    isOurs_ = before;
}

void FocusEcho::Follow()
{
    const Focus& focus = frame_.Platform()->TheFocus();
    if (!focus.IsInside() || !focus.IsWindowInFront())
        return;
    QWidget& wanted = focus.Holder() != nullptr ? frame_.WidgetOf(focus.Holder()) : frame_;
    if (frame_.window()->focusWidget() != &wanted || QApplication::focusWidget() != &wanted)
        Give(wanted);
}

void FocusEcho::BeforeHiding(QWidget& widget)
{
    if (frame_.window()->focusWidget() == &widget)
        Give(frame_.View());
}

bool FocusEcho::Leave()
{
    Focus& focus = frame_.Platform()->TheFocus();
    frame_.CommitComposition();
    frame_.Do([&] { focus.LeaveSheet(); });
    return !focus.IsInside();
}

bool FocusEcho::BeforePress()
{
    frame_.CommitComposition();
    if (frame_.TheConduct() == Conduct::Desktop)
        frame_.Do([this] { frame_.Platform()->TheFocus().WindowIn(); });
    for (SheetFrame* other : frame_.window()->findChildren<SheetFrame*>()) {
        if (other != &frame_ && other->Platform()->TheFocus().IsInside() && !other->Echo().Leave())
            return false;
    }
    return true;
}

/// Qt's focus went where it is now without our doing.
void FocusEcho::Moved(QWidget* now)
{
    if (isOurs_ || now == nullptr || QApplication::activePopupWidget() != nullptr || now->window() != frame_.window())
        return;
    Focus& focus = frame_.Platform()->TheFocus();
    if (IsInside(now)) {
        if (!focus.IsInside())
            frame_.Do([&] { focus.EnterSheet(); });
        Follow();
    } else if (focus.IsInside() && focus.IsWindowInFront() && !Leave()) {
        Follow();
    }
}

bool FocusEcho::HasOtherStop() const
{
    for (const QWidget* at = frame_.nextInFocusChain(); at != &frame_; at = at->nextInFocusChain())
        if (!IsInside(at) && (at->focusPolicy() & Qt::TabFocus) != 0 && at->isVisible() && at->isEnabled() &&
            at->window() == frame_.window() && at->focusProxy() == nullptr)
            return true;
    return false;
}

void FocusEcho::Tab(bool forward)
{
    if (!frame_.Platform()->TheFocus().IsInside() || !HasOtherStop() || !Leave())
        return;
    // From the sheet's own stop on: from an editor, back would lead to that stop.
    Give(frame_);
    frame_.GoOn(forward);
}

// ---- Presses elsewhere in the window --------------------------------------------------------------------------------

void FocusEcho::WatchWindow()
{
    QWindow* const window = frame_.window()->windowHandle();
    if (window == window_)
        return;
    if (window_)
        window_->removeEventFilter(this);
    window_ = window;
    if (window_)
        window_->installEventFilter(this);
}

bool FocusEcho::TakesFocusByPress(QWidget* widget) const
{
    for (; widget != nullptr; widget = widget->isWindow() ? nullptr : widget->parentWidget())
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus)
            return true;
    return false;
}

/// A widget with click focus has the focus before any filter of its own sees the press; only here can the sheet refuse.
bool FocusEcho::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != window_ || event->type() != QEvent::MouseButtonPress ||
        QApplication::activePopupWidget() != nullptr || !frame_.Platform()->TheFocus().IsInside())
        return false;
    QWidget* const window = frame_.window();
    QWidget* const pressed = window->childAt(static_cast<QMouseEvent*>(event)->position().toPoint());
    if (pressed == nullptr || IsInside(pressed) || !TakesFocusByPress(pressed))
        return false;
    const QPointer<FocusEcho> alive(this);
    return !Leave() && alive;
}

} // namespace Tessellon
