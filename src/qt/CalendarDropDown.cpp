#include "qt/CalendarDropDown.h"

#include "engine/runtime/Locale.h"
#include "qt/Texts.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace Tessellon {

namespace {

constexpr int margin = 4;
constexpr std::array turns{-12, -1, 1, 12};
constexpr int monthsAYear = 12;

/// So much of the one colour, the rest of the other.
QColor Mixed(const QColor& one, const QColor& other, double share)
{
    const auto mix = [&](float first, float second) {
        return static_cast<float>(share) * first + (1 - static_cast<float>(share)) * second;
    };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

/// A triangle that points back or on.
void PaintArrow(QPainter& painter, QPointF middle, qreal half)
{
    painter.drawPolygon(QPolygonF(
        {middle + QPointF(half, 0), middle + QPointF(-half, -1.3 * half), middle + QPointF(-half, 1.3 * half)}));
}

} // namespace

CalendarDropDown::CalendarDropDown(QWidget& owner, const RunTimeFunctions& functions)
    : DropDown(owner)
    , functions_(functions)
    , page_({}, functions.GetLocale().FirstDayOfWeek)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CalendarDropDown::OpenOn(double value)
{
    setFont(parentWidget()->font());
    setPalette(parentWidget()->palette());
    Measure();
    value_ = value;
    page_ = CalendarPage(FieldsOf(value), functions_.GetLocale().FirstDayOfWeek);
    pointed_ = nowhere;
    pressed_ = nowhere;
    turned_ = 0;
    Open({CalendarPage::DaysAWeek * cell_.width() + 2 * margin,
          heading_ + (CalendarPage::Weeks + 1) * cell_.height() + 2 * margin});
}

void CalendarDropDown::ShowValue(double value)
{
    if (std::exchange(value_, value) == value)
        return;
    page_ = CalendarPage(FieldsOf(value), functions_.GetLocale().FirstDayOfWeek);
    update();
}

void CalendarDropDown::Measure()
{
    constexpr int roomAcross = 8;
    constexpr int roomDown = 4;
    const Locale& locale = functions_.GetLocale();
    const QFontMetrics metrics(font(), this);
    int day = metrics.horizontalAdvance(QStringLiteral("88"));
    for (const std::u16string& name : locale.DayAbbreviations)
        day = std::max(day, metrics.horizontalAdvance(OwnText(name)));
    heading_ = metrics.height() + 2 * roomDown;
    int month = 0;
    for (const std::u16string& name : locale.MonthNames)
        month = std::max(month, metrics.horizontalAdvance(OwnText(name) + QStringLiteral(" 8888")));
    const int headingWidth = month + roomAcross + static_cast<int>(turns.size()) * heading_;
    const int perDay = (headingWidth + CalendarPage::DaysAWeek - 1) / CalendarPage::DaysAWeek;
    cell_ = {std::max(day + roomAcross, perDay), metrics.height() + roomDown};
}

// ---- Places ---------------------------------------------------------------------------------------------------------

QRect CalendarDropDown::PlaceOfTurn(int months) const
{
    const int right = margin + CalendarPage::DaysAWeek * cell_.width();
    const bool isYear = months == monthsAYear || months == -monthsAYear;
    const int fromEdge = isYear ? 0 : heading_;
    return {months < 0 ? margin + fromEdge : right - heading_ - fromEdge, margin, heading_, heading_};
}

QRect CalendarDropDown::PlaceOfDay(int place) const
{
    const int week = place / CalendarPage::DaysAWeek;
    const int column = place % CalendarPage::DaysAWeek;
    return {QPoint(margin + column * cell_.width(), margin + heading_ + (week + 1) * cell_.height()), cell_};
}

int CalendarDropDown::DayUnder(QPoint position) const
{
    for (int place = 0; place < CalendarPage::Weeks * CalendarPage::DaysAWeek; ++place)
        if (PlaceOfDay(place).contains(position))
            return page_.DayAt(place) ? place : nowhere;
    return nowhere;
}

int CalendarDropDown::TurnUnder(QPoint position) const
{
    for (const int months : turns)
        if (PlaceOfTurn(months).contains(position))
            return months;
    return 0;
}

// ---- Mouse ----------------------------------------------------------------------------------------------------------

void CalendarDropDown::Turn(int months)
{
    page_ = CalendarPage(page_.Turned(months), functions_.GetLocale().FirstDayOfWeek);
    pressed_ = nowhere;
    update();
}

void CalendarDropDown::Point(QPoint position)
{
    if (std::exchange(pointed_, DayUnder(position)) != pointed_)
        update();
}

void CalendarDropDown::mousePressEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    pressed_ = event->button() == Qt::LeftButton ? DayUnder(position) : nowhere;
    const int months = event->button() == Qt::LeftButton ? TurnUnder(position) : 0;
    if (months != 0)
        Turn(months);
    Point(position);
}

void CalendarDropDown::mouseMoveEvent(QMouseEvent* event)
{
    Point(event->position().toPoint());
}

/// A day is chosen by the release: by the press, that would go to whatever lies under the calendar.
void CalendarDropDown::mouseReleaseEvent(QMouseEvent* event)
{
    const int place = DayUnder(event->position().toPoint());
    if (event->button() != Qt::LeftButton || std::exchange(pressed_, nowhere) == nowhere || place == nowhere)
        return;
    OnChosen(SerialOf(*page_.DayAt(place)));
}

void CalendarDropDown::leaveEvent(QEvent* /*event*/)
{
    if (std::exchange(pointed_, nowhere) != nowhere)
        update();
}

void CalendarDropDown::wheelEvent(QWheelEvent* event)
{
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    event->accept();
    turned_ += event->angleDelta().y();
    const int notches = std::exchange(turned_, turned_ % notch) / notch;
    if (notches != 0)
        Turn(-notches);
    Point(event->position().toPoint());
}

// ---- Painting -------------------------------------------------------------------------------------------------------

void CalendarDropDown::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor background = palette().color(QPalette::Base);
    painter.fillRect(rect(), background);
    PaintHeading(painter);
    PaintWeekdays(painter);
    for (int place = 0; place < CalendarPage::Weeks * CalendarPage::DaysAWeek; ++place)
        PaintDay(painter, place);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Mixed(palette().color(QPalette::Text), background, 0.5));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void CalendarDropDown::PaintHeading(QPainter& painter)
{
    const QColor text = palette().color(QPalette::Text);
    const std::u16string& name = functions_.GetLocale().MonthNames[static_cast<std::size_t>(page_.Month() - 1)];
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(text);
    const QRect between(PlaceOfTurn(-1).topRight(), PlaceOfTurn(1).bottomLeft());
    painter.drawText(between, Qt::AlignCenter, OwnText(name) + u' ' + QString::number(page_.Year()));
    painter.setFont(font());
    painter.setPen(Qt::NoPen);
    for (const int months : turns) {
        const CivilTime target = page_.Turned(months);
        const bool leads = target.Year != page_.Year() || target.Month != page_.Month();
        painter.setBrush(leads ? text : Mixed(text, palette().color(QPalette::Base), 0.3));
        const QRectF place = PlaceOfTurn(months);
        const qreal half = place.height() / (months < 0 ? -6 : 6);
        const qreal apart = months == monthsAYear || months == -monthsAYear ? half : 0;
        PaintArrow(painter, place.center() - QPointF(apart, 0), half);
        if (apart != 0)
            PaintArrow(painter, place.center() + QPointF(apart, 0), half);
    }
}

void CalendarDropDown::PaintWeekdays(QPainter& painter)
{
    const QColor faint = Mixed(palette().color(QPalette::Text), palette().color(QPalette::Base), 0.65);
    painter.setPen(faint);
    for (int column = 0; column < CalendarPage::DaysAWeek; ++column) {
        const auto weekday = static_cast<std::size_t>(page_.WeekdayOf(column) - 1);
        painter.drawText(PlaceOfDay(column).translated(0, -cell_.height()), Qt::AlignCenter,
                         OwnText(functions_.GetLocale().DayAbbreviations[weekday]));
    }
    const qreal bottom = PlaceOfDay(0).top() - 0.5;
    painter.drawLine(QPointF(margin, bottom), QPointF(width() - margin, bottom));
}

void CalendarDropDown::PaintDay(QPainter& painter, int place)
{
    const std::optional<CivilTime> day = page_.DayAt(place);
    if (!day)
        return;
    const QColor background = palette().color(QPalette::Base);
    const QColor highlight = palette().color(QPalette::Highlight);
    const CivilTime value = FieldsOf(value_);
    const CivilTime today = FieldsOf(functions_.Today());
    const auto isThe = [&](const CivilTime& other) {
        return day->Year == other.Year && day->Month == other.Month && day->Day == other.Day;
    };
    const QRectF box = QRectF(PlaceOfDay(place)).adjusted(1, 1, -1, -1);
    QColor text = palette().color(QPalette::Text);
    if (isThe(value)) {
        painter.fillRect(box, highlight);
        text = palette().color(QPalette::HighlightedText);
    } else {
        if (place == pointed_)
            painter.fillRect(box, Mixed(highlight, background, 0.25));
        if (day->Month != page_.Month())
            text = Mixed(text, background, 0.5);
    }
    if (isThe(today)) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(isThe(value) ? text : highlight);
        painter.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    painter.setPen(text);
    painter.drawText(box, Qt::AlignCenter, QString::number(day->Day));
}

} // namespace Tessellon
