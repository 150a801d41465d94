#pragma once

#include "engine/runtime/Locale.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// The parts of a date in the order of a format, each once. Weekdays and minutes are none of them, nor what is quoted.
struct DateParts {
    std::array<DatePart, 3> Parts{};
    std::size_t Count = 0;

    void Add(DatePart part);
    [[nodiscard]] bool Has(DatePart part) const { return PositionOf(part) < Count; }
    [[nodiscard]] std::size_t PositionOf(DatePart part) const; ///< `Count` where it is not there.
    [[nodiscard]] bool Precedes(DatePart first, DatePart second) const
    {
        return PositionOf(first) < PositionOf(second);
    }
};

DateParts DatePartsOf(std::u16string_view format, const Locale& locale);

/// How the texts of dates are ordered: by the sheet's date format first, then by the locale, then from the year down.
class DateOrdering {
public:
    DateOrdering(std::u16string_view format, const Locale& locale);

    /// Orders of all three parts, to be tried one after the other. Behind those asked for stand the ones that are
    /// left, for a text that can be read in no other way.
    [[nodiscard]] const std::vector<std::array<DatePart, 3>>& Orders() const { return orders_; }
    /// True where the sheet's format has month and year and no day: two numbers are month and year.
    [[nodiscard]] bool TwoAreMonthAndYear() const { return twoAreMonthAndYear_; }
    [[nodiscard]] bool MonthBeforeYear() const { return monthBeforeYear_; }
    /// Words that the formats of sheet and locale write between the parts ("年", "de"), the longest first.
    [[nodiscard]] const std::vector<std::u16string>& Words() const { return words_; }

private:
    void AddOrder(std::array<DatePart, 3> order);
    void AddWords(std::u16string_view format);

    std::vector<std::array<DatePart, 3>> orders_;
    std::vector<std::u16string> words_;
    bool twoAreMonthAndYear_ = false;
    bool monthBeforeYear_ = true;
};

} // namespace Tessellon
