#pragma once

#include "platform/Value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// The functions of the run time, in the locale that the container gives. A text that is handed out as a view stays
/// valid until the next call.
class RunTime {
public:
    virtual ~RunTime() = default;

    /// The text of a value in a format: of numbers, of dates, of texts and masks, or a named one.
    virtual std::u16string_view Format(const Value& value, std::u16string_view format) = 0;
    /// The text that a value has of itself: general number text, "True" and "False", a date in the short form.
    virtual std::u16string_view GeneralText(const Value& value) = 0;

    virtual bool IsNumeric(std::u16string_view text) = 0;
    virtual double ToNumber(std::u16string_view text) = 0; ///< Not numeric: failure 13.
    virtual bool IsDate(std::u16string_view text) = 0;
    virtual double ToDate(std::u16string_view text) = 0; ///< No date: failure 13.
    /// The sheet's date format: a text that could be two dates takes its order of day and month.
    virtual void DateOrder(std::u16string_view dateFormat) = 0;
    /// Whole seconds from one date to the other.
    virtual double DateDifferenceInSeconds(double from, double to) = 0;

    virtual std::u16string_view UpperCase(std::u16string_view text) = 0;

    virtual double Now() = 0;
    virtual double Today() = 0;

    /// The platform's text for a failure's number.
    virtual std::u16string_view FailureText(std::int32_t number) = 0;
    /// Shows a modal message; returns when it is closed, or at once where the platform cannot wait.
    virtual void MessageBox(std::u16string_view text, std::int16_t style) = 0;
};

/// The text without blanks (U+0020) at both ends.
inline std::u16string_view Trim(std::u16string_view text)
{
    const auto first = text.find_first_not_of(u' ');
    if (first == std::u16string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

} // namespace Tessellon
