#pragma once

#include <array>
#include <string>

namespace Tessellon {

enum class DatePart : unsigned char { Day, Month, Year };

/// What the run-time functions need to know of a country. Its formats are written in the language of `Format`.
struct Locale {
    char16_t DecimalSeparator = u'.';
    char16_t GroupSeparator = u',';
    char16_t DateSeparator = u'/';
    char16_t TimeSeparator = u':';

    std::array<DatePart, 3> DateOrder = {DatePart::Day, DatePart::Month, DatePart::Year};
    std::array<std::u16string, 12> MonthNames;
    std::array<std::u16string, 12> MonthAbbreviations;
    std::array<std::u16string, 7> DayNames; ///< From Sunday
    std::array<std::u16string, 7> DayAbbreviations; ///< From Sunday
    int FirstDayOfWeek = 1; ///< 1 is Sunday, 7 Saturday. Of calendars; `Format` counts weeks from Sunday always.

    std::u16string Am;
    std::u16string Pm;

    std::u16string CurrencySign;
    bool CurrencyInFront = true; ///< Behind, a blank parts it from the number.

    std::u16string ShortDate;
    std::u16string LongDate;
    std::u16string ShortTime;
    std::u16string LongTime;

    static Locale English(); ///< Day before month, 24 hours.
    static Locale German();
    static Locale Japanese();
};

} // namespace Tessellon
