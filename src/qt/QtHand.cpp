#include "qt/QtHand.h"

#include "qt/GridView.h"
#include "qt/KeyTranslation.h"
#include "qt/SheetFrame.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

#include <cmath>

namespace Tessellon {

QtHand::QtHand(SheetFrame& frame, QWidget& elsewhere)
    : HeadlessHand(frame.Platform())
    , frame_(frame)
    , elsewhere_(elsewhere)
{
    QObject::connect(&frame, &SheetFrame::UnhandledFailure, &failures_, [this] { hasFailed_ = true; });
}

bool QtHand::IsInFront() const
{
    return frame_.Platform()->TheFocus().IsWindowInFront();
}

QPointF QtHand::PixelsOf(float x, float y) const
{
    const auto pixel = static_cast<double>(frame_.TheMetrics().TwipsAPixel());
    return {static_cast<double>(x) / pixel, static_cast<double>(y) / pixel};
}

bool QtHand::IsOnSheet(float x, float y) const
{
    Container& sheet = frame_.Platform()->UserControl();
    return IsInFront() && x >= 0 && y >= 0 && x < sheet.ScaleWidth() && y < sheet.ScaleHeight();
}

// ---- Mouse ----------------------------------------------------------------------------------------------------------

void QtHand::Send(QEvent::Type type, QPointF position)
{
    const bool isMove = type == QEvent::MouseMove;
    const bool isHeld = frame_.Platform()->TheGrid().IsHeld(1);
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease || (isMove && !isHeld)
                                      ? Qt::MouseButtons(Qt::NoButton)
                                      : Qt::MouseButtons(Qt::LeftButton);
    QMouseEvent event(type, position, frame_.View().mapToGlobal(position), isMove ? Qt::NoButton : Qt::LeftButton, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&frame_.View(), &event);
}

void QtHand::SendToCell(GridCell cell, QEvent::Type type)
{
    const GridRectangle place = frame_.Platform()->TheGrid().RectangleOf(cell);
    frame_.View().Name(cell);
    Send(type, PixelsOf(static_cast<float>(place.Left) + static_cast<float>(place.Width) / 2,
                        static_cast<float>(place.Top) + static_cast<float>(place.Height) / 2));
    frame_.View().Name({});
}

bool QtHand::Reach(GridCell cell)
{
    GridEngine& grid = frame_.Platform()->TheGrid();
    hasFailed_ = false;
    const bool isThere = cell.Row >= 0 && cell.Col >= 0 && cell.Row < grid.Rows() && cell.Col < grid.Cols();
    if (!IsInFront() || !isThere || !grid.Enabled())
        return false;
    frame_.Do([&] { grid.ScrollIntoView(cell); });
    return !hasFailed_;
}

void QtHand::PressAndRelease(GridCell cell, QEvent::Type press)
{
    SendToCell(cell, press);
    if (!hasFailed_ && frame_.View().WasPressTaken())
        SendToCell(cell, QEvent::MouseButtonRelease);
}

void QtHand::DropFailedPress()
{
    if (hasFailed_)
        frame_.Platform()->TheGrid().AbandonPress();
}

void QtHand::Click(std::int32_t row, std::int32_t col)
{
    if (Reach({row, col}))
        PressAndRelease({row, col}, QEvent::MouseButtonPress);
    DropFailedPress();
}

void QtHand::DoubleClick(std::int32_t row, std::int32_t col)
{
    if (Reach({row, col})) {
        PressAndRelease({row, col}, QEvent::MouseButtonPress);
        if (!hasFailed_ && IsInFront())
            PressAndRelease({row, col}, QEvent::MouseButtonDblClick);
    }
    DropFailedPress();
}

void QtHand::Drag(std::int32_t row, std::int32_t col, std::int32_t toRow, std::int32_t toCol)
{
    GridEngine& grid = frame_.Platform()->TheGrid();
    hasFailed_ = false;
    if (toRow < 0 || toCol < 0 || toRow >= grid.Rows() || toCol >= grid.Cols() || !Reach({row, col})) {
        DropFailedPress();
        return;
    }
    SendToCell({row, col}, QEvent::MouseButtonPress);
    if (!hasFailed_ && frame_.View().WasPressTaken()) {
        SendToCell({toRow, toCol}, QEvent::MouseMove);
        if (!hasFailed_)
            SendToCell({toRow, toCol}, QEvent::MouseButtonRelease);
    }
    DropFailedPress();
}

void QtHand::MouseDown(float x, float y)
{
    if (IsOnSheet(x, y))
        Send(QEvent::MouseButtonPress, PixelsOf(x, y));
}

void QtHand::MouseUp(float x, float y)
{
    if (IsOnSheet(x, y))
        Send(QEvent::MouseButtonRelease, PixelsOf(x, y));
}

/// No button is down in what the pointer tells here, whatever a script holds.
void QtHand::Hover(float x, float y)
{
    if (!IsOnSheet(x, y))
        return;
    QMouseEvent event(QEvent::MouseMove, PixelsOf(x, y), frame_.View().mapToGlobal(PixelsOf(x, y)), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&frame_.View(), &event);
}

// ---- Keys -----------------------------------------------------------------------------------------------------------

void QtHand::Press(const Stroke& stroke)
{
    if (!IsInFront())
        return;
    hasFailed_ = false;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QWidget* const focused = frame_.window()->focusWidget();
        // Outside the sheet a key is not this user's business: Tab would lead back in.
        if (hasFailed_ || (focused != &frame_ && !frame_.isAncestorOf(focused)))
            return;
        const QString text = stroke.HasCharacter ? QString(QChar(stroke.Character)) : QString();
        QKeyEvent event(type, QtKeyOf(stroke.Code), ModifiersOf(stroke.Shift), text);
        QCoreApplication::sendEvent(focused, &event);
    }
}

// ---- Focus and window -----------------------------------------------------------------------------------------------

/// A press elsewhere in the window, as the window gets it.
void QtHand::FocusOut()
{
    if (!IsInFront())
        return;
    const QPointF middle = elsewhere_.mapTo(frame_.window(), QRectF(elsewhere_.rect()).center());
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool isPress = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, middle, middle, frame_.window()->mapToGlobal(middle), Qt::LeftButton,
                          isPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(frame_.window()->windowHandle(), &event);
    }
}

void QtHand::FocusIn()
{
    if (IsInFront() && !frame_.Platform()->TheFocus().IsInside())
        frame_.setFocus(Qt::TabFocusReason);
}

void QtHand::WindowOut()
{
    QEvent event(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(frame_.window(), &event);
}

void QtHand::WindowIn()
{
    QEvent event(QEvent::WindowActivate);
    QCoreApplication::sendEvent(frame_.window(), &event);
}

/// The size is told in twips: pixels would round it.
void QtHand::Resize(float width, float height)
{
    const QPointF size = PixelsOf(width, height);
    frame_.resize(static_cast<int>(std::lround(size.x())), static_cast<int>(std::lround(size.y())));
    HeadlessHand::Resize(width, height);
    frame_.Bars().Follow();
}

void QtHand::Wait()
{
    QCoreApplication::processEvents();
}

} // namespace Tessellon
