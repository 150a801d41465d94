#pragma once

#include "engine/runtime/DateFormat.h"
#include "engine/runtime/DateOrder.h"
#include "engine/runtime/Locale.h"
#include "platform/Value.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Tessellon {

/// The run-time functions for one locale, for one thread at a time. What stands in a `To` function's first argument
/// stays, the text goes behind.
class RunTimeFunctions {
public:
    explicit RunTimeFunctions(Locale locale);

    [[nodiscard]] const Locale& GetLocale() const { return locale_; }
    /// The source of the present moment, a date serial. The system's local time until one is given.
    void Clock(std::function<double()> now) { now_ = std::move(now); }
    /// The sheet's date format: a text that could be two dates takes its order of day, month and year.
    void DateOrder(std::u16string_view dateFormat) { ordering_ = DateOrdering(dateFormat, locale_); }

    /// The text of a value in a format. A date outside the years 100 to 9999: failure 5.
    [[nodiscard]] std::u16string Format(const Value& value, std::u16string_view format) const;
    void FormatTo(std::u16string& out, const Value& value, std::u16string_view format) const;
    /// The text that a value has of itself: general number text, "True" and "False", short date and long time.
    [[nodiscard]] std::u16string GeneralText(const Value& value) const;
    void GeneralTextTo(std::u16string& out, const Value& value) const;

    [[nodiscard]] bool IsNumeric(std::u16string_view text) const;
    [[nodiscard]] double ToNumber(std::u16string_view text) const; ///< Not numeric: failure 13.
    [[nodiscard]] bool IsDate(std::u16string_view text) const;
    [[nodiscard]] double ToDate(std::u16string_view text) const; ///< No date: failure 13.
    /// Whole seconds from one date to the other. A serial outside the years 100 to 9999: failure 5.
    [[nodiscard]] static double DateDifferenceInSeconds(double from, double to);

    [[nodiscard]] double Now() const { return now_(); }
    [[nodiscard]] double Today() const; ///< Now without the time of day.

    [[nodiscard]] static std::u16string_view FailureText(std::int32_t number);

private:
    void FormatText(std::u16string& out, std::u16string_view text, std::u16string_view format) const;
    void FormatMissing(std::u16string& out, std::u16string_view format) const;
    void FormatNumber(std::u16string& out, const Value& value, std::u16string_view format) const;
    bool ReadDateText(std::u16string_view text, double& serial) const;
    [[nodiscard]] const DatePattern& PatternOf(std::u16string_view format) const;

    Locale locale_;
    DateOrdering ordering_;
    std::function<double()> now_;
    mutable std::optional<DatePattern> pattern_; ///< Of the format in which a date was written last.
};

} // namespace Tessellon
