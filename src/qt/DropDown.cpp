#include "qt/DropDown.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace Tessellon {

DropDown::DropDown(QWidget& owner)
    : QWidget(&owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus)
    , owner_(owner)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_X11NetWmWindowTypeCombo);
    setFocusPolicy(Qt::NoFocus);
}

void DropDown::Open(QSize size)
{
    const QRect anchor(owner_.mapToGlobal(QPoint(0, 0)), owner_.size());
    const QRect screen = owner_.screen()->availableGeometry();
    const int roomBelow = screen.bottom() - anchor.bottom();
    const int roomAbove = anchor.top() - screen.top();
    const bool isBelow = size.height() <= roomBelow || roomBelow >= roomAbove;
    const int top = isBelow ? anchor.bottom() + 1 : anchor.top() - size.height();
    const int left = std::max(screen.left(), std::min(anchor.left(), screen.right() + 1 - size.width()));
    setGeometry(QRect(QPoint(left, top), size));
    isLeftByOwnersPress_ = false;
    if (!std::exchange(isOpen_, true))
        qApp->installEventFilter(this);
    show();
    raise();
}

void DropDown::Close()
{
    if (!std::exchange(isOpen_, false))
        return;
    qApp->removeEventFilter(this);
    hide();
}

bool DropDown::WasLeftByOwnersPress()
{
    return std::exchange(isLeftByOwnersPress_, false);
}

/// The window gets a press ahead of the widget that lies there, and others may act on it that early.
bool DropDown::IsPressElsewhere(QObject* watched, const QEvent& event)
{
    const QPoint position = static_cast<const QMouseEvent&>(event).globalPosition().toPoint();
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr ? widget == this || isAncestorOf(widget) : watched == windowHandle())
        return false;
    isLeftByOwnersPress_ = widget != nullptr ? widget == &owner_ || owner_.isAncestorOf(widget)
                                             : watched == owner_.window()->windowHandle() &&
                                                   owner_.rect().contains(owner_.mapFromGlobal(position));
    return true;
}

bool DropDown::IsLeftBy(QObject* watched, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonPress: return IsPressElsewhere(watched, event);
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
    case QEvent::WindowDeactivate: return watched == owner_.window();
    case QEvent::Hide: return watched == &owner_ || watched == owner_.window();
    case QEvent::FocusOut: return watched == &owner_;
    default: return false;
    }
}

bool DropDown::eventFilter(QObject* watched, QEvent* event)
{
    if (!isOpen_ || !OnLeft || !IsLeftBy(watched, *event))
        return false;
    const QPointer<QObject> receiver(watched);
    OnLeft();
    return receiver.isNull();
}

} // namespace Tessellon
