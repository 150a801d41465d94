#include "qt/CalendarPage.h"

#include <algorithm>

namespace Tessellon {

namespace {

constexpr int monthsAYear = 12;

} // namespace

CalendarPage::CalendarPage(const CivilTime& date, int firstDayOfWeek)
    : year_(date.Year)
    , month_(date.Month)
    , firstDayOfWeek_(firstDayOfWeek)
    , ahead_((Tessellon::WeekdayOf({year_, month_, 1, 0, 0, 0}) - firstDayOfWeek + DaysAWeek) % DaysAWeek)
{
}

std::optional<CivilTime> CalendarPage::DayAt(int place) const
{
    CivilTime day{year_, month_, place - ahead_ + 1, 0, 0, 0};
    if (day.Day < 1) {
        day.Month = month_ > 1 ? month_ - 1 : monthsAYear;
        day.Year -= month_ > 1 ? 0 : 1;
        day.Day += DaysInMonth(day.Year, day.Month);
    } else if (const int days = DaysInMonth(year_, month_); day.Day > days) {
        day.Day -= days;
        day.Month = month_ < monthsAYear ? month_ + 1 : 1;
        day.Year += month_ < monthsAYear ? 0 : 1;
    }
    return IsLegalDate(day.Year, day.Month, day.Day) ? std::optional(day) : std::nullopt;
}

int CalendarPage::WeekdayOf(int column) const
{
    return (firstDayOfWeek_ - 1 + column) % DaysAWeek + 1;
}

CivilTime CalendarPage::Turned(int months) const
{
    const int wanted = year_ * monthsAYear + month_ - 1 + months;
    const int turned = std::clamp(wanted, FirstYear * monthsAYear, LastYear * monthsAYear + monthsAYear - 1);
    return {turned / monthsAYear, turned % monthsAYear + 1, 1, 0, 0, 0};
}

} // namespace Tessellon
