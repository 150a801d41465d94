#include "engine/runtime/Calendar.h"

#include "engine/Failures.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace Tessellon {

namespace {

constexpr std::int64_t secondsOfDay = 86400;
constexpr std::int64_t daysOfEra = 146097; // 400 years
constexpr std::int64_t zeroDay = 693899; // Of 30 December 1899, counted from 1 March of the year 0
constexpr std::int64_t firstDay = -657434; // 1 January 100
constexpr std::int64_t lastDay = 2958465; // 31 December 9999

struct DayAndSecond {
    std::int64_t Day;
    std::int64_t Second;
};

DayAndSecond Split(double serial)
{
    if (!IsLegalSerial(serial))
        Fail(5, u"TessellonSheet");
    const auto day = static_cast<std::int64_t>(serial);
    const auto whole = static_cast<double>(day);
    if (whole == serial)
        return {day, 0};
    const std::int64_t second = std::llround(std::abs(serial - whole) * static_cast<double>(secondsOfDay));
    if (second < secondsOfDay)
        return {day, second};
    return day < lastDay ? DayAndSecond{day + 1, 0} : DayAndSecond{day, secondsOfDay - 1};
}

// Years are counted from March here, so that a leap day is the last of its year.
std::int64_t DayNumber(int year, int month, int day)
{
    const std::int64_t shifted = month > 2 ? year : year - 1;
    const std::int64_t monthFromMarch = month > 2 ? month - 3 : month + 9;
    const std::int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + day - 1;
    return shifted * 365 + shifted / 4 - shifted / 100 + shifted / 400 + dayOfYear - zeroDay;
}

void SetDay(CivilTime& fields, std::int64_t serial)
{
    const std::int64_t days = serial + zeroDay;
    const std::int64_t era = days / daysOfEra;
    const std::int64_t dayOfEra = days % daysOfEra;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    fields.Day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    fields.Month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    fields.Year = static_cast<int>(yearOfEra + era * 400 + (fields.Month <= 2 ? 1 : 0));
}

} // namespace

bool IsLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysInMonth(int year, int month)
{
    constexpr std::array days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12)
        return 0;
    return month == 2 && IsLeapYear(year) ? 29 : days[static_cast<std::size_t>(month - 1)];
}

bool IsLegalDate(int year, int month, int day)
{
    return year >= FirstYear && year <= LastYear && day >= 1 && day <= DaysInMonth(year, month);
}

bool IsLegalSerial(double serial)
{
    return serial > static_cast<double>(firstDay - 1) && serial < static_cast<double>(lastDay + 1);
}

CivilTime FieldsOf(double serial)
{
    const DayAndSecond split = Split(serial);
    CivilTime fields;
    SetDay(fields, split.Day);
    const int second = static_cast<int>(split.Second);
    fields.Hour = second / 3600;
    fields.Minute = second / 60 % 60;
    fields.Second = second % 60;
    return fields;
}

double SerialOf(const CivilTime& fields)
{
    const bool legalTime = fields.Hour >= 0 && fields.Hour < 24 && fields.Minute >= 0 && fields.Minute < 60 &&
                           fields.Second >= 0 && fields.Second < 60;
    if (!legalTime || !IsLegalDate(fields.Year, fields.Month, fields.Day))
        Fail(5, u"TessellonSheet");
    const int second = fields.Hour * 3600 + fields.Minute * 60 + fields.Second;
    return SerialWithTime(static_cast<double>(DayNumber(fields.Year, fields.Month, fields.Day)),
                          static_cast<double>(second) / static_cast<double>(secondsOfDay));
}

int WeekdayOf(const CivilTime& fields)
{
    // 31 December 1899 was a Sunday.
    const std::int64_t days = DayNumber(fields.Year, fields.Month, fields.Day) - 1;
    return static_cast<int>((days % 7 + 7) % 7) + 1;
}

int DayOfYear(const CivilTime& fields)
{
    return static_cast<int>(DayNumber(fields.Year, fields.Month, fields.Day) - DayNumber(fields.Year, 1, 1)) + 1;
}

std::int64_t WholeSeconds(double serial)
{
    const DayAndSecond split = Split(serial);
    return split.Day * secondsOfDay + split.Second;
}

double SerialWithTime(double day, double fraction)
{
    return day < 0.0 ? day - fraction : day + fraction;
}

} // namespace Tessellon
