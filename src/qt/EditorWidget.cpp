#include "qt/EditorWidget.h"

#include "qt/Colors.h"
#include "qt/DevicePixels.h"
#include "qt/FocusEcho.h"
#include "qt/GridView.h"
#include "qt/KeyInput.h"
#include "qt/MouseOver.h"
#include "qt/Texts.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace Tessellon {

EditorWidget::EditorWidget(SheetFrame& frame, ControlCore& control, QWidget& widget, Roles roles)
    : frame_(frame)
    , control_(control.shared_from_this())
    , widget_(widget)
    , roles_(roles)
{
    widget_.hide();
    widget_.setFocusPolicy(Qt::NoFocus);
    widget_.setAutoFillBackground(true);
    // Moves are told without a button down, too.
    widget_.setMouseTracking(true);
    if (auto* const area = qobject_cast<QAbstractScrollArea*>(&widget_))
        area->viewport()->setMouseTracking(true);
}

bool EditorWidget::TakeKey(std::int16_t /*keyCode*/, std::int16_t /*shift*/)
{
    return false;
}

bool EditorWidget::TakeCharacter(char16_t /*character*/)
{
    return false;
}

// ---- What the control shows -----------------------------------------------------------------------------------------

void EditorWidget::FollowAll()
{
    for (const Aspect aspect :
         {Aspect::Look, Aspect::Items, Aspect::Enabled, Aspect::Visible, Aspect::Order, Aspect::Calendar})
        Follow(aspect);
}

void EditorWidget::Follow(Aspect aspect)
{
    switch (aspect) {
    case Aspect::Visible: ShowVisible(); break;
    case Aspect::Enabled:
        if (!control_->IsEnabled()) {
            AboutToGo();
            frame_.Echo().BeforeHiding(widget_);
        }
        widget_.setEnabled(control_->IsEnabled());
        break;
    case Aspect::Order:
        if (control_->IsInFront())
            widget_.raise();
        break;
    case Aspect::Place:
        if (control_->IsVisible())
            widget_.setGeometry(frame_.PixelsOf(control_->Place()));
        break;
    case Aspect::Look: Look(); break;
    case Aspect::Content: ShowContent(); break;
    case Aspect::Caret: ShowCaret(); break;
    case Aspect::Items: ShowItems(); break;
    case Aspect::Calendar: ShowCalendar(); break;
    case Aspect::Gone: break;
    }
}

void EditorWidget::ShowVisible()
{
    if (!control_->IsVisible()) {
        held_ = {};
        AboutToGo();
        frame_.Echo().BeforeHiding(widget_);
        widget_.hide();
        return;
    }
    widget_.setGeometry(frame_.PixelsOf(control_->Place()));
    GridEngine& grid = frame_.Platform()->TheGrid();
    widget_.setAccessibleName(OwnText(grid.TextOf({0, grid.Col()})));
    ShowContent();
    widget_.show();
}

QString EditorWidget::Spoken() const
{
    return OwnText(control_->ShownText());
}

void EditorWidget::Drop()
{
    held_ = {};
    AboutToGo();
    frame_.Echo().BeforeHiding(widget_);
    widget_.hide();
    widget_.deleteLater();
}

void EditorWidget::Look()
{
    const QFont font = QtFontOf(control_->GetFont());
    if (widget_.font() != font)
        widget_.setFont(font);
    QPalette colors = frame_.palette();
    Dress(colors);
    if (widget_.palette() != colors)
        widget_.setPalette(colors);
    // Scroll bars are the desktop's, whatever the colours of what scrolls: named, so that they are not inherited.
    QPalette desktop = frame_.palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (const QPalette::ColorRole role : {QPalette::WindowText, roles_.Background, roles_.Text})
            desktop.setBrush(group, role, desktop.brush(group, role));
    for (QScrollBar* const bar : widget_.findChildren<QScrollBar*>())
        bar->setPalette(desktop);
    ShowLook();
}

void EditorWidget::Dress(QPalette& colors) const
{
    const QColor background = ColorFrom(control_->Color(), colors);
    const QColor text = ReadableOn(background, colors.color(QPalette::Active, roles_.Text));
    colors.setColor(roles_.Background, background);
    colors.setColor(roles_.Text, text);
    colors.setColor(QPalette::Disabled, roles_.Text, Faded(text, background));
}

/// On whole pixels of the device, so that the line is equally strong on all sides.
void EditorWidget::PaintEdge(QWidget& canvas)
{
    QPainter painter(&canvas);
    const DevicePixels pixels = DevicePixels::Of(painter.deviceTransform());
    const qreal line = std::max(1.0, std::floor(pixels.Scale())) / pixels.Scale();
    const QColor color = canvas.palette().color(QPalette::Highlight);
    const QRectF edge(QPointF(pixels.Left(), pixels.Top()),
                      QPointF(pixels.Across(canvas.width()), pixels.Down(canvas.height())));
    painter.fillRect(QRectF(edge.left(), edge.top(), edge.width(), line), color);
    painter.fillRect(QRectF(edge.left(), edge.bottom() - line, edge.width(), line), color);
    painter.fillRect(QRectF(edge.left(), edge.top(), line, edge.height()), color);
    painter.fillRect(QRectF(edge.right() - line, edge.top(), line, edge.height()), color);
}

// ---- Keys and mouse -------------------------------------------------------------------------------------------------

bool EditorWidget::HandleKey(QEvent& event)
{
    return frame_.TheKeyInput().Handle(event);
}

EventArguments EditorWidget::MouseOf(const QMouseEvent& event) const
{
    return MouseOver(event, Corner(), frame_.TheMetrics());
}

void EditorWidget::Press(QMouseEvent& event, bool isSecond)
{
    if (ButtonOf(event.button()) == 0)
        return;
    bool isTaken = false;
    if (frame_.Echo().BeforePress())
        frame_.Do([&] { isTaken = control_->PressMouse(MouseOf(event)); });
    held_.setFlag(event.button(), isTaken);
    if (!isTaken)
        return;
    if (isSecond)
        DoublePressed(event);
    else
        Pressed(event);
}

void EditorWidget::Move(QMouseEvent& event)
{
    if (event.buttons() != Qt::NoButton && held_ == Qt::NoButton)
        return;
    Moved(event);
    frame_.Do([&] { control_->MoveMouse(MouseOf(event)); });
}

void EditorWidget::Release(QMouseEvent& event)
{
    if (!held_.testFlag(event.button()))
        return;
    held_.setFlag(event.button(), false);
    Released(event);
    const bool isInside = widget_.rect().contains(event.position().toPoint() + Corner());
    frame_.Do([&] { control_->ReleaseMouse(MouseOf(event), isInside); });
    if (isInside && event.button() == Qt::LeftButton && control_->CanHaveFocus())
        ReleasedInside(event);
}

void EditorWidget::TurnWheel(QWheelEvent& event)
{
    frame_.View().TurnWheel(event);
}

} // namespace Tessellon
