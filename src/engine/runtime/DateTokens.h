#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Tessellon {

/// What a stretch of a date format stands for.
enum class DateSign : std::uint8_t {
    Literal,
    DateSeparator,
    TimeSeparator,
    General, ///< c
    Day,
    DayTwo,
    DayNameShort, ///< ddd
    DayName, ///< dddd
    ShortDate, ///< ddddd
    LongDate, ///< dddddd
    Weekday, ///< w
    Week, ///< ww
    Month,
    MonthTwo,
    MonthNameShort, ///< mmm
    MonthName, ///< mmmm
    Quarter, ///< q
    DayOfYear, ///< y
    YearTwo,
    Year,
    Hour,
    HourTwo,
    Minute,
    MinuteTwo,
    Second,
    SecondTwo,
    LongTime, ///< ttttt
    HalfUpper, ///< AM/PM
    HalfLower, ///< am/pm
    HalfUpperShort, ///< A/P
    HalfLowerShort, ///< a/p
    HalfOfLocale, ///< AMPM
};

struct DateToken {
    DateSign Kind = DateSign::Literal;
    std::u16string_view Text; ///< The units of the format; of a literal the one that is shown.
};

/// Walks a date format. Case does not count; one or two m directly behind an hour, whatever literals stand between,
/// are minutes.
class DateTokens {
public:
    explicit DateTokens(std::u16string_view format)
        : format_(format)
    {
    }

    bool Next(DateToken& token);

private:
    bool NextRun(DateToken& token);
    bool NextHalf(DateToken& token);
    void Take(DateToken& token, DateSign kind, std::size_t length);

    std::u16string_view format_;
    std::size_t position_ = 0;
    bool quoted_ = false;
    bool behindHour_ = false;
};

} // namespace Tessellon
