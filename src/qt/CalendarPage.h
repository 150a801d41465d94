#pragma once

#include "engine/runtime/Calendar.h"

#include <optional>

namespace Tessellon {

/// One month as a calendar shows it: six weeks, of which the first holds the first of the month.
class CalendarPage {
public:
    static constexpr int Weeks = 6;
    static constexpr int DaysAWeek = 7;

    /// The month of a date. The week begins on `firstDayOfWeek`: 1 is Sunday, 7 Saturday.
    CalendarPage(const CivilTime& date, int firstDayOfWeek);

    [[nodiscard]] int Year() const { return year_; }
    [[nodiscard]] int Month() const { return month_; }
    /// The day at a place, counted from 0 by weeks; nothing ahead of the year 100 and behind 9999.
    [[nodiscard]] std::optional<CivilTime> DayAt(int place) const;
    /// The weekday of a column from 0 to 6: 1 is Sunday.
    [[nodiscard]] int WeekdayOf(int column) const;
    /// The first of the month that lies so many months on; drawn to the first or the last month that there is.
    [[nodiscard]] CivilTime Turned(int months) const;

private:
    int year_;
    int month_;
    int firstDayOfWeek_;
    int ahead_; ///< Days of the month before.
};

} // namespace Tessellon
