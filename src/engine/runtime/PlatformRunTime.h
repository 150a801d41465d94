#pragma once

#include "engine/runtime/CaseMap.h"
#include "engine/runtime/RunTimeFunctions.h"
#include "platform/RunTime.h"

#include <array>
#include <cstddef>
#include <string>
#include <utility>

namespace Tessellon {

/// The run time as the sheet sees it, on the functions of the engine. A toolkit adds its message box.
class PlatformRunTime : public RunTime {
public:
    explicit PlatformRunTime(Locale locale)
        : functions_(std::move(locale))
    {
    }

    RunTimeFunctions& Functions() { return functions_; }

    std::u16string_view Format(const Value& value, std::u16string_view format) override
    {
        return Filled([&](std::u16string& text) { functions_.FormatTo(text, value, format); });
    }
    std::u16string_view GeneralText(const Value& value) override
    {
        return Filled([&](std::u16string& text) { functions_.GeneralTextTo(text, value); });
    }
    bool IsNumeric(std::u16string_view text) override { return functions_.IsNumeric(text); }
    double ToNumber(std::u16string_view text) override { return functions_.ToNumber(text); }
    bool IsDate(std::u16string_view text) override { return functions_.IsDate(text); }
    double ToDate(std::u16string_view text) override { return functions_.ToDate(text); }
    void DateOrder(std::u16string_view dateFormat) override { functions_.DateOrder(dateFormat); }
    double DateDifferenceInSeconds(double from, double to) override
    {
        return RunTimeFunctions::DateDifferenceInSeconds(from, to);
    }
    std::u16string_view UpperCase(std::u16string_view text) override
    {
        return Filled([&](std::u16string& out) { UpperCaseTo(out, text); });
    }
    double Now() override { return functions_.Now(); }
    double Today() override { return functions_.Today(); }
    std::u16string_view FailureText(std::int32_t number) override { return RunTimeFunctions::FailureText(number); }

private:
    // What is asked may be a view of the last answer, so that one stays until the next is there.
    template <typename Fill>
    std::u16string_view Filled(Fill fill)
    {
        std::u16string& text = texts_[next_];
        text.clear();
        fill(text);
        next_ = 1 - next_;
        return text;
    }

    RunTimeFunctions functions_;
    std::array<std::u16string, 2> texts_;
    std::size_t next_ = 0;
};

} // namespace Tessellon
