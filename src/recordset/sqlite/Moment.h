#pragma once

#include <optional>
#include <string_view>

namespace Tessellon::Sqlite {

/// The date serial of an ISO text: "2024-03-15", "2024-03-15 10:30", "2024-03-15T10:30:00.250Z" or a time alone.
/// A zone's offset is taken off, as SQLite's own functions do, so that moments compare. None for any other text, for a
/// date that no calendar has and for years outside 100 to 9999.
std::optional<double> SerialOfText(std::u16string_view text);

/// The date serial of a number as SQLite's date functions read it: a Julian day up to the year 9999, else seconds since
/// 1970, both to the millisecond. None outside the years 100 to 9999.
std::optional<double> SerialOfNumber(double number);

/// The same for a time of day: a fraction of a day is taken as it is, of a moment only its time.
std::optional<double> TimeOfNumber(double number);

} // namespace Tessellon::Sqlite
