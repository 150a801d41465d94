#include "Texts.h"
#include "engine/runtime/AllocationCount.h"

#include <gtest/gtest.h>

#include <functional>

namespace Tessellon {
namespace {

TEST(Allocations, FormattingIntoABufferThatIsLargeEnough_TakesNoMemory)
{
    const RunTimeFunctions functions = At2024();
    std::u16string out;
    out.reserve(200);
    const std::function<void(int)> works[] = {
        [&](int i) { functions.FormatTo(out, Value::OfDate(40000.3 + i), u"dddd, dd/MM/yyyy hh:nn:ss AM/PM"); },
        [&](int i) { functions.FormatTo(out, Value::OfDate(40000.3 + i), u"General Date"); },
        [&](int i) { functions.FormatTo(out, Value::OfDouble(i * 1.1e9 / 7), u"#,##0.00;(#,##0.00)"); },
        [&](int i) { functions.FormatTo(out, Value::OfInteger(i * 1'000'003), u"0.00E+00"); },
        [&](int) { functions.FormatTo(out, Value::OfDecimal(u"12345678901234567890.123456789"), u"Currency"); },
        [&](int) { functions.FormatTo(out, Value::OfText(u"4111111111111111"), u"####-####-####-####"); },
        [&](int) { functions.FormatTo(out, Value::OfText(u"a text of some length"), u">?-?-?-?-?-?-?-?-?"); },
        [&](int i) { functions.GeneralTextTo(out, Value::OfDouble(i / 7.0)); },
        [&](int i) { functions.GeneralTextTo(out, Value::OfSingle(static_cast<float>(i) / 7.0F)); },
        [&](int i) { functions.GeneralTextTo(out, Value::OfInteger(i * 1'000'000'007LL)); },
        [&](int) { functions.GeneralTextTo(out, Value::OfDecimal(u"12345678901234567890.123456789")); },
        [&](int) { static_cast<void>(functions.IsNumeric(u"$1,234,567,890.50 ")); },
        [&](int) { static_cast<void>(functions.ToNumber(u"$1,234,567,890.50 ")); },
        [&](int) { static_cast<void>(functions.ToDate(u"Friday, 15 March 2024 10:30 PM")); }};
    int number = 0;
    for (const auto& work : works) {
        const long before = AllocationCount();
        for (int i = 0; i < 100; ++i) {
            out.clear();
            work(i);
        }
        EXPECT_EQ(AllocationCount(), before) << "work " << number;
        ++number;
    }
}

} // namespace
} // namespace Tessellon
