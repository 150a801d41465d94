#pragma once

#include <optional>

namespace Tessellon::Sqlite {

/// The date serial of a number as SQLite's date functions read it: a Julian day up to the year 9999, else seconds since
/// 1970, both to the millisecond. None outside the years 100 to 9999.
std::optional<double> SerialOfNumber(double number);

/// The same for a time of day: a fraction of a day is taken as it is, of a moment only its time.
std::optional<double> TimeOfNumber(double number);

} // namespace Tessellon::Sqlite
