#include "qt/ComboBoxWidget.h"

#include "engine/controls/KeyCodes.h"
#include "qt/ComboList.h"

#include <QPainter>
#include <QStyleOptionComboBox>

namespace Tessellon {

ComboBoxWidget::ComboBoxWidget(SheetFrame& frame, ComboBoxControl& control)
    : LineEditWidget(frame, control)
    , combo_(control)
    , list_(new ComboList(frame, control, *this))
{
}

// ---- What the control shows -----------------------------------------------------------------------------------------

void ComboBoxWidget::ShowLook()
{
    LeaveRoomForButton();
}

void ComboBoxWidget::ShowContent()
{
    LineEditWidget::ShowContent();
    list_->Follow();
}

void ComboBoxWidget::ShowItems()
{
    list_->Follow();
}

/// The list goes first: Qt would leave it open over the cell that its combo has left.
void ComboBoxWidget::AboutToGo()
{
    list_->hide();
    isFieldPressed_ = false;
    LineEditWidget::AboutToGo();
}

QStyleOptionComboBox ComboBoxWidget::Option() const
{
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.editable = true;
    option.frame = true;
    option.subControls = QStyle::SC_ComboBoxFrame | QStyle::SC_ComboBoxArrow;
    if (list_->isVisible()) {
        option.activeSubControls = QStyle::SC_ComboBoxArrow;
        option.state |= QStyle::State_On | QStyle::State_Sunken;
    }
    return option;
}

QRect ComboBoxWidget::Button() const
{
    const QStyleOptionComboBox option = Option();
    const QRect arrow = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    return isMirrored ? QRect(0, 0, arrow.right() + 1, height()) : rect().adjusted(arrow.left(), 0, 0, 0);
}

void ComboBoxWidget::LeaveRoomForButton()
{
    const int room = Button().width() + 1;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    setTextMargins(isMirrored ? room : 1, 0, isMirrored ? 1 : room, 0);
}

void ComboBoxWidget::resizeEvent(QResizeEvent* event)
{
    LineEditWidget::resizeEvent(event);
    LeaveRoomForButton();
}

void ComboBoxWidget::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    {
        QPainter painter(this);
        const QStyleOptionComboBox option = Option();
        painter.setClipRect(Button());
        style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
    }
    PaintEdge(*this);
}

// ---- Keys -----------------------------------------------------------------------------------------------------------

/// Enter and Esc close the list even where a handler left the combo up.
bool ComboBoxWidget::TakeKey(std::int16_t keyCode, std::int16_t shift)
{
    const bool opens = keyCode == KeyCode::F4 ||
                       ((shift & Modifier::Alt) != 0 && (keyCode == KeyCode::Down || keyCode == KeyCode::Up));
    if (opens) {
        OpenList();
        return true;
    }
    if (keyCode == KeyCode::Enter || keyCode == KeyCode::Escape)
        list_->hide();
    return LineEditWidget::TakeKey(keyCode, shift);
}

/// The key or press may have led elsewhere before its turn comes here.
void ComboBoxWidget::OpenList()
{
    if (!combo_.HasFocus() || !combo_.CanHaveFocus())
        return;
    list_->Open(Button());
    update();
}

// ---- Mouse ----------------------------------------------------------------------------------------------------------

bool ComboBoxWidget::IsOnButton(const QMouseEvent& event) const
{
    return Button().contains(event.position().toPoint());
}

void ComboBoxWidget::PressButton(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return;
    if (list_->isVisible())
        list_->hide();
    else
        OpenList();
}

void ComboBoxWidget::Pressed(QMouseEvent& event)
{
    isFieldPressed_ = !IsOnButton(event);
    if (isFieldPressed_)
        LineEditWidget::Pressed(event);
    else
        PressButton(event);
}

void ComboBoxWidget::DoublePressed(QMouseEvent& event)
{
    isFieldPressed_ = !IsOnButton(event);
    if (isFieldPressed_)
        LineEditWidget::DoublePressed(event);
    else
        PressButton(event);
}

void ComboBoxWidget::Moved(QMouseEvent& event)
{
    if (event.buttons() == Qt::NoButton)
        setCursor(IsOnButton(event) ? Qt::ArrowCursor : Qt::IBeamCursor);
    if (event.buttons() == Qt::NoButton || isFieldPressed_)
        LineEditWidget::Moved(event);
    else
        list_->PointAt(event.globalPosition().toPoint());
}

void ComboBoxWidget::Released(QMouseEvent& event)
{
    if (isFieldPressed_)
        LineEditWidget::Released(event);
    else if (event.button() == Qt::LeftButton)
        list_->ChooseAt(event.globalPosition().toPoint());
}

void ComboBoxWidget::focusOutEvent(QFocusEvent* event)
{
    list_->hide();
    LineEditWidget::focusOutEvent(event);
}

} // namespace Tessellon
