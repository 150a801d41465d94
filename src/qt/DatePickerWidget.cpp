#include "qt/DatePickerWidget.h"

#include "qt/Texts.h"

#include <QInputMethodEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessellon {

namespace {

constexpr int edge = 1; ///< The line around the editor.
constexpr int roomAhead = 2; ///< Between the edge and the text.

} // namespace

DatePickerWidget::DatePickerWidget(SheetFrame& frame, PickerControl& control)
    : EditorOn(frame, control, {QPalette::Base, QPalette::Text})
    , composition_(frame, control)
{
    setAttribute(Qt::WA_InputMethodEnabled);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

CalendarDropDown* DatePickerWidget::OpenCalendar() const
{
    return calendar_ != nullptr && calendar_->isVisible() ? calendar_ : nullptr;
}

// ---- The calendar ---------------------------------------------------------------------------------------------------

bool DatePickerWidget::TakeKey(std::int16_t /*keyCode*/, std::int16_t /*shift*/)
{
    ToggleCalendar();
    return true;
}

void DatePickerWidget::ToggleCalendar()
{
    if (TheControl().IsCalendarOpen()) {
        TheControl().CloseCalendar();
        return;
    }
    TheControl().OpenCalendar();
    if (!TheControl().IsCalendarOpen())
        return;
    if (calendar_ == nullptr) {
        calendar_ = new CalendarDropDown(*this, frame_.Platform()->Functions().Functions());
        calendar_->OnLeft = [this] { frame_.Do([this] { TheControl().CloseCalendar(); }); };
        calendar_->OnChosen = [this](double day) { frame_.Do([this, day] { TheControl().Choose(day, false); }); };
    }
    calendar_->OpenOn(TheControl().Fields().Value());
}

void DatePickerWidget::ShowCalendar()
{
    if (calendar_ != nullptr && !TheControl().IsCalendarOpen())
        calendar_->Close();
}

void DatePickerWidget::AboutToGo()
{
    composition_.Drop();
    if (calendar_ != nullptr)
        calendar_->Close();
}

void DatePickerWidget::ShowContent()
{
    update();
    if (OpenCalendar() != nullptr)
        calendar_->ShowValue(TheControl().Fields().Value());
}

// ---- Places ---------------------------------------------------------------------------------------------------------

QRect DatePickerWidget::ButtonPlace() const
{
    constexpr int widest = 18;
    const int across = std::min({height() - 2 * edge, widest, width() / 2});
    return {width() - edge - across, edge, across, height() - 2 * edge};
}

QRect DatePickerWidget::TextPlace() const
{
    const int left = edge + roomAhead;
    return {left, edge, std::max(0, ButtonPlace().left() - left - 1), height() - 2 * edge};
}

void DatePickerWidget::LayOut(Shown& shown) const
{
    const DateFields& fields = TheControl().Fields();
    QString text = OwnText(fields.DisplayText());
    const DateFields::Span span = fields.FieldSpan(fields.CurrentField());
    shown.FieldStart = static_cast<int>(span.Start);
    shown.FieldLength = static_cast<int>(span.Length);
    const QString waiting = OwnText(fields.Pending()) + composition_.Text();
    if (!waiting.isEmpty()) {
        text.replace(shown.FieldStart, shown.FieldLength, waiting);
        shown.FieldLength = static_cast<int>(waiting.size());
    }
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    shown.Layout.setTextOption(option);
    shown.Layout.setFont(font());
    shown.Layout.setText(text);
    shown.Layout.beginLayout();
    shown.Layout.createLine();
    shown.Layout.endLayout();
}

qreal DatePickerWidget::LineBegin(const Shown& shown) const
{
    const QTextLine line = shown.Layout.lineAt(0);
    const QRect room = TextPlace();
    const qreal fieldBegin = line.cursorToX(shown.FieldStart);
    const qreal fieldEnd = line.cursorToX(shown.FieldStart + shown.FieldLength);
    const qreal over = hasFocus() ? std::max(0.0, std::min(fieldEnd - room.width(), fieldBegin)) : 0;
    return room.left() - std::ceil(over);
}

QRect DatePickerWidget::FieldPlace(std::int32_t field) const
{
    Shown shown;
    LayOut(shown);
    const DateFields::Span span = TheControl().Fields().FieldSpan(field);
    const QTextLine line = shown.Layout.lineAt(0);
    const auto at = [&](std::size_t unit) {
        return static_cast<int>(std::lround(LineBegin(shown) + line.cursorToX(static_cast<int>(unit))));
    };
    return {QPoint(at(span.Start), edge), QPoint(at(span.Start + span.Length) - 1, height() - edge - 1)};
}

/// The field that lies there, or else the nearest.
std::int32_t DatePickerWidget::FieldUnder(qreal x) const
{
    std::int32_t nearest = DateFields::None;
    qreal least = 0;
    for (std::int32_t field = 0; field < TheControl().Fields().FieldCount(); ++field) {
        const QRect place = FieldPlace(field);
        const qreal away = std::max({place.left() - x, x - (place.right() + 1), 0.0});
        if (nearest == DateFields::None || away < least) {
            nearest = field;
            least = away;
        }
    }
    return nearest;
}

// ---- Mouse and input methods ----------------------------------------------------------------------------------------

void DatePickerWidget::Pressed(QMouseEvent& event)
{
    const bool hasClosed = calendar_ != nullptr && calendar_->WasLeftByOwnersPress();
    if (event.button() != Qt::LeftButton)
        return;
    if (!ButtonPlace().contains(event.position().toPoint()))
        frame_.Do([&] { TheControl().PickField(FieldUnder(event.position().x())); });
    else if (!hasClosed)
        frame_.Do([this] { ToggleCalendar(); });
}

void DatePickerWidget::DoublePressed(QMouseEvent& event)
{
    Pressed(event);
    frame_.Do([this] { TheControl().Tell(ChildEvent::DblClick); });
}

void DatePickerWidget::inputMethodEvent(QInputMethodEvent* event)
{
    composition_.Take(*event, [this](QInputMethodEvent&) { update(); });
}

void DatePickerWidget::CommitComposition()
{
    composition_.Commit([this](QInputMethodEvent&) { update(); });
}

QVariant DatePickerWidget::inputMethodQuery(Qt::InputMethodQuery query) const
{
    switch (query) {
    case Qt::ImCursorRectangle: return FieldPlace(TheControl().Fields().CurrentField());
    case Qt::ImHints: return static_cast<int>(Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText);
    default: return QWidget::inputMethodQuery(query);
    }
}

void DatePickerWidget::focusInEvent(QFocusEvent* /*event*/)
{
    update();
}

void DatePickerWidget::focusOutEvent(QFocusEvent* /*event*/)
{
    update();
}

// ---- Painting -------------------------------------------------------------------------------------------------------

void DatePickerWidget::paintEvent(QPaintEvent* /*event*/)
{
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Base));
        PaintText(painter);
        PaintButton(painter);
    }
    PaintEdge(*this);
}

void DatePickerWidget::PaintText(QPainter& painter)
{
    Shown shown;
    LayOut(shown);
    const QRect room = TextPlace();
    const QTextLine line = shown.Layout.lineAt(0);
    const qreal top = room.top() + std::floor((room.height() - line.height()) / 2);
    QList<QTextLayout::FormatRange> marked;
    if (hasFocus() && isEnabled() && shown.FieldLength > 0) {
        QTextCharFormat current;
        current.setBackground(palette().brush(QPalette::Highlight));
        current.setForeground(palette().brush(QPalette::HighlightedText));
        current.setFontUnderline(composition_.IsUnderWay());
        marked.push_back({shown.FieldStart, shown.FieldLength, current});
    }
    painter.setClipRect(room.adjusted(0, 0, 1, 0));
    painter.setPen(palette().color(QPalette::Text));
    shown.Layout.draw(&painter, QPointF(LineBegin(shown), top), marked);
    // A callback field whose host gave no text is still seen.
    if (hasFocus() && isEnabled() && shown.FieldLength == 0 && TheControl().Fields().CurrentField() != DateFields::None)
        painter.fillRect(QRectF(LineBegin(shown) + line.cursorToX(shown.FieldStart), top, 2, line.height()),
                         palette().brush(QPalette::Highlight));
    painter.setClipping(false);
}

void DatePickerWidget::PaintButton(QPainter& painter)
{
    QStyleOptionButton button;
    button.initFrom(this);
    button.rect = ButtonPlace();
    button.state.setFlag(QStyle::State_HasFocus, false);
    button.state.setFlag(QStyle::State_Sunken, TheControl().IsCalendarOpen());
    button.state.setFlag(QStyle::State_Raised, !TheControl().IsCalendarOpen());
    style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &button, &painter, this);
    const QPointF middle = QRectF(button.rect).center();
    const qreal half = std::max(2.0, std::min(button.rect.width(), button.rect.height()) / 4.0);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::ButtonText));
    painter.drawPolygon(QPolygonF(
        {middle + QPointF(-half, -half / 2), middle + QPointF(half, -half / 2), middle + QPointF(0, half / 2)}));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace Tessellon
