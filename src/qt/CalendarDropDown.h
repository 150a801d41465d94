#pragma once

#include "engine/runtime/RunTimeFunctions.h"
#include "qt/CalendarPage.h"
#include "qt/DropDown.h"

#include <cstdint>
#include <functional>

namespace Tessellon {

/// The open calendar of a date picker: the month of its value, the days of the week from the locale's first on, today
/// marked. The mouse turns the pages and chooses a day; the keys go to the picker, whose value this follows.
class CalendarDropDown : public DropDown {
public:
    /// The functions give the locale and today.
    CalendarDropDown(QWidget& owner, const RunTimeFunctions& functions);

    void OpenOn(double value); ///< A date serial.
    void ShowValue(double value); ///< Turns to its month if the value is another.

    std::function<void(double day)> OnChosen; ///< The serial of the day, without a time.

    [[nodiscard]] const CalendarPage& Page() const { return page_; }
    /// What turns the page by so many months: 1 or 12, back or on.
    [[nodiscard]] QRect PlaceOfTurn(int months) const;
    [[nodiscard]] QRect PlaceOfDay(int place) const; ///< Counted as in the page.

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    static constexpr int nowhere = -1;

    void Measure();
    [[nodiscard]] int DayUnder(QPoint position) const; ///< The place of a day that there is, or nowhere.
    [[nodiscard]] int TurnUnder(QPoint position) const; ///< In months; 0 for none.
    void Turn(int months);
    void Point(QPoint position);
    void PaintHeading(QPainter& painter);
    void PaintWeekdays(QPainter& painter);
    void PaintDay(QPainter& painter, int place);

    const RunTimeFunctions& functions_;
    double value_ = 0;
    CalendarPage page_;
    QSize cell_;
    int heading_ = 0; ///< Its height.
    int pointed_ = nowhere; ///< The day under the mouse.
    int pressed_ = nowhere;
    int turned_ = 0; ///< Of the wheel, what is no whole notch yet.
};

} // namespace Tessellon
