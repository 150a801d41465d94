#include "recordset/sqlite/StoredMoment.h"

#include "recordset/common/Moment.h"

#include <cmath>
#include <cstdint>

namespace Tessellon::Sqlite {

namespace {

constexpr double DaysFromSerialZeroTo1970 = 25'569;
constexpr double JulianDayOfSerialZero = 2'415'018.5;
constexpr double LastJulianDay = 5'373'484.5;
constexpr double MillisecondsPerDay = 86'400'000.0;

} // namespace

std::optional<double> SerialOfNumber(double number)
{
    // Ahead of the rounding, which needs a number that fits.
    if (!(number > -1e12 && number < 1e12))
        return std::nullopt;
    const bool isJulianDay = number >= 0 && number < LastJulianDay;
    const double milliseconds =
        isJulianDay ? std::floor(number * MillisecondsPerDay + 0.5) - JulianDayOfSerialZero * MillisecondsPerDay
                    : std::floor(number * 1000.0 + 0.5) + DaysFromSerialZeroTo1970 * MillisecondsPerDay;
    return Common::SerialOfMicroseconds(static_cast<std::int64_t>(milliseconds) * 1000);
}

std::optional<double> TimeOfNumber(double number)
{
    if (number >= 0 && number < 1)
        return number;
    const std::optional<double> serial = SerialOfNumber(number);
    if (!serial)
        return std::nullopt;
    return std::abs(*serial - std::trunc(*serial));
}

} // namespace Tessellon::Sqlite
