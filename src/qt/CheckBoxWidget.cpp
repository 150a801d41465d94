#include "qt/CheckBoxWidget.h"

#include "qt/Colors.h"
#include "qt/FocusEcho.h"
#include "qt/GridView.h"
#include "qt/KeyInput.h"
#include "qt/MouseOver.h"
#include "qt/SheetFrame.h"
#include "qt/Texts.h"

#include <QPainter>

#include <utility>

namespace Tessellon {

CheckBoxWidget::CheckBoxWidget(SheetFrame& frame)
    : QCheckBox(&frame.View())
    , frame_(frame)
{
    hide();
    setFocusPolicy(Qt::NoFocus);
    setAutoFillBackground(true);
}

CheckBoxControl& CheckBoxWidget::Control() const
{
    return *frame_.Platform()->TheCheckBox();
}

void CheckBoxWidget::Follow(Aspect aspect)
{
    switch (aspect) {
    case Aspect::Visible:
        if (!Control().IsVisible()) {
            isPressed_ = false;
            setDown(false);
            frame_.Echo().BeforeHiding(*this);
            hide();
            break;
        }
        setGeometry(frame_.PixelsOf(Control().Place()));
        show();
        break;
    case Aspect::Enabled:
        if (!Control().IsEnabled())
            frame_.Echo().BeforeHiding(*this);
        setEnabled(Control().IsEnabled());
        break;
    case Aspect::Order:
        if (Control().IsInFront())
            raise();
        break;
    case Aspect::Place:
        if (isVisible())
            setGeometry(frame_.PixelsOf(Control().Place()));
        break;
    case Aspect::Look: Look(); break;
    case Aspect::Content: ShowState(); break;
    case Aspect::Caret:
    case Aspect::Items:
    case Aspect::Calendar: break;
    }
}

void CheckBoxWidget::Look()
{
    const QFont font = QtFontOf(Control().GetFont());
    if (this->font() != font)
        setFont(font);
    QPalette colors = frame_.palette();
    const QColor background = ColorFrom(Control().Color(), colors);
    colors.setColor(QPalette::Window, background);
    colors.setColor(QPalette::WindowText, ReadableOn(background, colors.color(QPalette::WindowText)));
    if (palette() != colors)
        setPalette(colors);
    setText(OwnText(Control().ShownCaption()));
    setLayoutDirection(Control().TextAlignment() == 1 ? Qt::RightToLeft : Qt::LeftToRight);
}

void CheckBoxWidget::ShowState()
{
    constexpr std::int16_t grey = 2;
    setCheckState(Control().State() == grey ? Qt::PartiallyChecked
                  : Control().State() != 0  ? Qt::Checked
                                            : Qt::Unchecked);
}

bool CheckBoxWidget::event(QEvent* event)
{
    return frame_.TheKeyInput().Handle(*event) || QCheckBox::event(event);
}

void CheckBoxWidget::paintEvent(QPaintEvent* event)
{
    QCheckBox::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CheckBoxWidget::mousePressEvent(QMouseEvent* event)
{
    isPressed_ = false;
    if (!frame_.Echo().BeforePress())
        return;
    frame_.Do([&] { isPressed_ = Control().PressMouse(MouseOver(*event, frame_.TheMetrics())); });
    setDown(isPressed_ && event->button() == Qt::LeftButton);
}

void CheckBoxWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton || isPressed_)
        frame_.Do([&] { Control().MoveMouse(MouseOver(*event, frame_.TheMetrics())); });
}

void CheckBoxWidget::mouseReleaseEvent(QMouseEvent* event)
{
    setDown(false);
    if (!std::exchange(isPressed_, false))
        return;
    const bool isInside = rect().contains(event->position().toPoint());
    frame_.Do([&] { Control().ReleaseMouse(MouseOver(*event, frame_.TheMetrics()), isInside); });
}

void CheckBoxWidget::wheelEvent(QWheelEvent* event)
{
    frame_.View().TurnWheel(*event);
}

} // namespace Tessellon
