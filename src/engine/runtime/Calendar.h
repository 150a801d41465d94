#pragma once

#include <cstdint>

namespace Tessellon {

/// A date and a time of day, to the second. A serial counts days since 30 December 1899; its fraction is the time of
/// day, and stays one behind a minus sign: -1.25 is 29 December 1899, 06:00.
struct CivilTime {
    int Year = 1899; ///< 100 to 9999
    int Month = 12; ///< 1 to 12
    int Day = 30; ///< From 1
    int Hour = 0;
    int Minute = 0;
    int Second = 0;

    bool operator==(const CivilTime&) const = default;
};

inline constexpr int FirstYear = 100;
inline constexpr int LastYear = 9999;

bool IsLeapYear(int year);
int DaysInMonth(int year, int month); ///< 0 for a month that is none.
bool IsLegalDate(int year, int month, int day);
bool IsLegalSerial(double serial);

/// Rounded to the nearest second. A serial outside the years 100 to 9999: failure 5.
CivilTime FieldsOf(double serial);
/// No legal date or time of day: failure 5.
double SerialOf(const CivilTime& fields);

int WeekdayOf(const CivilTime& fields); ///< 1 is Sunday, 7 Saturday.
int DayOfYear(const CivilTime& fields); ///< From 1.
/// Seconds since 30 December 1899, negative ahead of it, rounded. A serial outside the years: failure 5.
std::int64_t WholeSeconds(double serial);
/// Moves the time of day of `fraction` (0 up to 1) to the day of `day`, on either side of the zero serial.
double SerialWithTime(double day, double fraction);

} // namespace Tessellon
