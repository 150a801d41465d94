#include "qt/ComboList.h"

#include "qt/SheetFrame.h"
#include "qt/Texts.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace Tessellon {

ComboList::ComboList(SheetFrame& frame, ComboBoxControl& control, QWidget& combo)
    : EntryArea(&combo)
    , frame_(frame)
    , control_(control)
    , combo_(combo)
{
    setWindowFlags(Qt::ToolTip | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_X11NetWmWindowTypeCombo);
    setFocusPolicy(Qt::NoFocus);
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    viewport()->setMouseTracking(true);
}

QString ComboList::EntryText(int index) const
{
    return OneLine(control_.State().Item(index));
}

bool ComboList::IsEntrySelected(int index) const
{
    return index == (pointed_ >= 0 ? pointed_ : CurrentEntry());
}

QRect ComboList::Place() const
{
    constexpr int mostEntries = 10;
    const QRect screen = combo_.screen()->availableGeometry();
    const QRect combo(combo_.mapToGlobal(QPoint(0, 0)), combo_.size());
    const int frame = 2 * frameWidth();
    const int below = screen.bottom() - combo.bottom();
    const int above = combo.top() - screen.top();
    int entries = std::min(EntryCount(), mostEntries);
    const bool isAbove = entries * EntryHeight() + frame > below && above > below;
    entries = std::clamp((std::max(isAbove ? above : below, 0) - frame) / EntryHeight(), 1, entries);
    const int bar = entries < EntryCount() ? verticalScrollBar()->sizeHint().width() : 0;
    const int width = std::min(std::max(combo.width(), WidestEntry() + bar + frame), screen.width());
    const int height = entries * EntryHeight() + frame;
    const int left = std::max(screen.left(), std::min(combo.left(), screen.right() + 1 - width));
    return {left, isAbove ? combo.top() - height : combo.bottom() + 1, width, height};
}

void ComboList::Open(const QRect& button)
{
    if (isVisible() || EntryCount() == 0)
        return;
    button_ = button;
    pointed_ = -1;
    setFont(combo_.font());
    setPalette(combo_.palette());
    ensurePolished();
    setGeometry(Place());
    EntriesChanged();
    show();
    ShowEntry(CurrentEntry());
}

void ComboList::Follow()
{
    if (!isVisible())
        return;
    pointed_ = -1;
    if (EntryCount() == 0) {
        hide();
        return;
    }
    EntriesChanged();
    ShowEntry(CurrentEntry());
}

// ---- Mouse ----------------------------------------------------------------------------------------------------------

void ComboList::Point(int entry)
{
    if (entry >= 0 && std::exchange(pointed_, entry) != entry)
        viewport()->update();
}

void ComboList::Choose(int entry)
{
    if (entry < 0)
        return;
    hide();
    frame_.Do([&] { control_.Choose(entry); });
}

void ComboList::PointAt(QPoint global)
{
    if (isVisible())
        Point(EntryAt(viewport()->mapFromGlobal(global)));
}

void ComboList::ChooseAt(QPoint global)
{
    if (isVisible())
        Choose(EntryAt(viewport()->mapFromGlobal(global)));
}

void ComboList::mouseMoveEvent(QMouseEvent* event)
{
    Point(EntryAt(event->position().toPoint()));
}

void ComboList::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Choose(EntryAt(event->position().toPoint()));
}

// ---- What closes the list -------------------------------------------------------------------------------------------

void ComboList::showEvent(QShowEvent* event)
{
    EntryArea::showEvent(event);
    qApp->installEventFilter(this);
}

void ComboList::hideEvent(QHideEvent* event)
{
    qApp->removeEventFilter(this);
    EntryArea::hideEvent(event);
    combo_.update();
}

/// A press reaches first the window and then a widget in it. The button closes the list by itself.
bool ComboList::IsElsewhere(const QObject& watched, QPoint global) const
{
    if (button_.contains(combo_.mapFromGlobal(global)))
        return false;
    if (watched.isWindowType())
        return &watched != windowHandle();
    const auto* const widget = qobject_cast<const QWidget*>(&watched);
    return widget != nullptr && widget != this && !isAncestorOf(widget);
}

bool ComboList::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (IsElsewhere(*watched, static_cast<QMouseEvent*>(event)->globalPosition().toPoint()))
            hide();
        break;
    case QEvent::Move:
        if (watched->isWidgetType() && static_cast<QWidget*>(watched)->isAncestorOf(&combo_))
            hide();
        break;
    case QEvent::Resize:
    case QEvent::WindowStateChange:
    case QEvent::WindowDeactivate:
    case QEvent::NonClientAreaMouseButtonPress:
        if (watched == combo_.window())
            hide();
        break;
    default: break;
    }
    return false;
}

} // namespace Tessellon
