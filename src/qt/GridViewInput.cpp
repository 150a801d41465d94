#include "qt/FocusEcho.h"
#include "qt/GridView.h"
#include "qt/KeyInput.h"
#include "qt/KeyTranslation.h"
#include "qt/SheetFrame.h"

#include <QWheelEvent>

namespace Tessellon {

bool GridView::event(QEvent* event)
{
    return frame_.TheKeyInput().Handle(*event) || QWidget::event(event);
}

// The bases of these repaint the whole widget.
void GridView::focusInEvent(QFocusEvent* /*event*/)
{
}

void GridView::focusOutEvent(QFocusEvent* /*event*/)
{
}

void GridView::hideEvent(QHideEvent* /*event*/)
{
    dragging_.stop();
    frame_.Platform()->TheGrid().AbandonPress();
}

GridMouse GridView::MouseOf(const QMouseEvent& event, std::int16_t button) const
{
    const auto pixel = static_cast<double>(frame_.TheMetrics().TwipsAPixel());
    return {button, ShiftOf(event.modifiers()), static_cast<float>(event.position().x() * pixel),
            static_cast<float>(event.position().y() * pixel)};
}

std::optional<GridCell> GridView::CellAt(const QPoint& place) const
{
    const float pixel = frame_.TheMetrics().TwipsAPixel();
    return frame_.Platform()->TheGrid().CellAt(static_cast<float>(place.x()) * pixel,
                                               static_cast<float>(place.y()) * pixel);
}

void GridView::ClickCell(GridCell cell)
{
    if (!frame_.Echo().BeforePress())
        return;
    frame_.Do([&] {
        GridEngine& grid = frame_.Platform()->TheGrid();
        if (grid.PressCell(cell))
            grid.ReleaseHere();
    });
}

void GridView::Press(const QMouseEvent& event, bool isSecond)
{
    const std::int16_t button = ButtonOf(event.button());
    isPressTaken_ = false;
    if (button == 0 || !frame_.Echo().BeforePress())
        return;
    frame_.Do([&] { isPressTaken_ = TakePress(MouseOf(event, button), isSecond); });
}

bool GridView::TakePress(const GridMouse& mouse, bool isSecond)
{
    GridEngine& grid = frame_.Platform()->TheGrid();
    if (named_)
        return isSecond ? grid.DoublePressCell(*named_, mouse.Button, mouse.Shift)
                        : grid.PressCell(*named_, mouse.Button, mouse.Shift);
    if (isSecond)
        return grid.DoublePressMouse(mouse);
    return grid.PressMouse(mouse, frame_.TheConduct() == Conduct::Replay ? HeadingEdges::Ignore : HeadingEdges::Resize);
}

void GridView::mousePressEvent(QMouseEvent* event)
{
    Press(*event, false);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event)
{
    Press(*event, true);
}

void GridView::mouseMoveEvent(QMouseEvent* event)
{
    GridEngine& grid = frame_.Platform()->TheGrid();
    const GridMouse mouse = MouseOf(*event, ButtonsOf(event->buttons()));
    ShowPointer(mouse);
    frame_.Do([&] {
        if (named_)
            grid.DragToCell(*named_, mouse.Shift);
        else if (mouse.Button != 0)
            grid.MoveMouse(mouse);
        else
            grid.HoverMouse(mouse);
    });
    WatchDrag(mouse);
}

void GridView::mouseReleaseEvent(QMouseEvent* event)
{
    const std::int16_t button = ButtonOf(event->button());
    if (button == 1)
        dragging_.stop();
    if (button == 0)
        return;
    GridEngine& grid = frame_.Platform()->TheGrid();
    frame_.Do([&] {
        if (named_)
            grid.ReleaseHere(button, ShiftOf(event->modifiers()));
        else
            grid.ReleaseMouse(MouseOf(*event, button));
    });
}

void GridView::ShowPointer(const GridMouse& mouse)
{
    const GridEngine& grid = frame_.Platform()->TheGrid();
    if (grid.IsResizing() || (mouse.Button == 0 && grid.EdgeAt(mouse.X, mouse.Y)))
        setCursor(Qt::SplitHCursor);
    else
        unsetCursor();
}

void GridView::WatchDrag(const GridMouse& mouse)
{
    GridEngine& grid = frame_.Platform()->TheGrid();
    const GridRectangle fixed = grid.RectangleOf({0, 0});
    const GridRectangle view = grid.View();
    const bool isOutside = mouse.X < static_cast<float>(fixed.Width) || mouse.Y < static_cast<float>(fixed.Height) ||
                           mouse.X >= static_cast<float>(view.Width) || mouse.Y >= static_cast<float>(view.Height);
    dragged_ = mouse;
    if (!grid.IsHeld(1) || !isOutside || frame_.TheConduct() == Conduct::Replay)
        dragging_.stop();
    else if (!dragging_.isActive())
        dragging_.start();
}

void GridView::wheelEvent(QWheelEvent* event)
{
    TurnWheel(*event);
}

void GridView::TurnWheel(QWheelEvent& event)
{
    constexpr std::int16_t shiftKey = 1;
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    event.accept();
    frame_.CommitComposition();
    GridEngine& grid = frame_.Platform()->TheGrid();
    turned_ += event.angleDelta().y();
    turnedAcross_ += event.angleDelta().x();
    const int notches = turned_ / notch;
    const int across = turnedAcross_ / notch;
    turned_ %= notch;
    turnedAcross_ %= notch;
    if (notches != 0)
        frame_.Do([&] { grid.TurnWheel(notches, ShiftOf(event.modifiers())); });
    if (across != 0)
        frame_.Do([&] { grid.TurnWheel(across, shiftKey); });
}

} // namespace Tessellon
