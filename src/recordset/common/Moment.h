#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Tessellon::Common {

inline constexpr std::int64_t MicrosecondsPerDay = 86'400'000'000;

/// The date serial of so many microseconds behind 30 December 1899. None outside the years 100 to 9999.
std::optional<double> SerialOfMicroseconds(std::int64_t microseconds);

/// The date serial of a day and of the microseconds since its midnight. None for a date that no calendar has and for
/// years outside 100 to 9999.
std::optional<double> SerialOfDate(int year, int month, int day, std::int64_t microseconds = 0);

/// The date serial of an ISO text: "2024-03-15", "2024-03-15 10:30", "2024-03-15T10:30:00.250Z" or a time alone.
/// A zone's offset is taken off, so that moments compare. None for any other text, for a date that no calendar has and
/// for years outside 100 to 9999.
std::optional<double> SerialOfText(std::u16string_view text);

} // namespace Tessellon::Common
