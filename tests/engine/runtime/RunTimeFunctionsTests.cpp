#include "Texts.h"

#include "engine/Failures.h"
#include "engine/runtime/PlatformRunTime.h"
#include "engine/runtime/Rounding.h"
#include "platform/Failure.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>

namespace Tessellon {
namespace {

TEST(Rounding, Halves_GoToTheEvenNumber)
{
    const std::pair<double, std::int32_t> cases[] = {{0, 0},
                                                     {0.5, 0},
                                                     {1.5, 2},
                                                     {2.5, 2},
                                                     {-0.5, 0},
                                                     {-1.5, -2},
                                                     {-2.5, -2},
                                                     {2.4999, 2},
                                                     {2.5001, 3},
                                                     {0.49999999999999994, 0},
                                                     {2147483647.49, 2147483647},
                                                     {-2147483648.5, -2147483647 - 1}};
    for (const auto& [number, rounded] : cases)
        EXPECT_EQ(RoundToLong(number), rounded) << number;
}

TEST(Rounding, NumberPast32Bits_IsFailure6)
{
    for (const double number : {2147483647.5, -2147483648.6, 1e300, -1e300, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        try {
            RoundToLong(number);
            ADD_FAILURE() << number;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, 6);
            EXPECT_EQ(failure.Description, u"Overflow");
        }
    }
}

RC_GTEST_PROP(Rounding, WholeNumbers_Stay, (std::int32_t number))
{
    RC_ASSERT(RoundToLong(number) == number);
}

TEST(Failures, NumbersWithAText_HaveItAndOthersTheApplications)
{
    EXPECT_EQ(FailureText(5), u"Invalid procedure call or argument");
    EXPECT_EQ(FailureText(28), u"Out of stack space");
    EXPECT_EQ(FailureText(438), u"Object doesn't support this property or method");
    EXPECT_EQ(FailureText(30017), u"Invalid Cols value");
    for (const std::int32_t number : {0, 1, -5, 10, 30001, 2147483647})
        EXPECT_EQ(FailureText(number), u"Application-defined error");
    EXPECT_EQ(RunTimeFunctions::FailureText(13), u"Type mismatch");
}

TEST(Failures, Failure_CarriesNumberSourceAndText)
{
    const Failure failure = FailureOf(340, u"Combo1(2)");
    EXPECT_EQ(failure.Number, 340);
    EXPECT_EQ(failure.Source, u"Combo1(2)");
    EXPECT_EQ(failure.Description, u"Control array element does not exist");
    EXPECT_EQ(failure.HelpFile, u"");
    EXPECT_EQ(failure.HelpContext, 0);
    EXPECT_THROW(Fail(7, u"Grid"), Failure);
}

TEST(Clock, GivenClock_IsTheOnlyOneAsked)
{
    RunTimeFunctions functions(Locale::English());
    double moment = 45366.4375;
    functions.Clock([&] { return moment; });
    EXPECT_EQ(functions.Now(), 45366.4375);
    EXPECT_EQ(functions.Today(), 45366.0);
    moment = 36525.75;
    EXPECT_EQ(functions.Now(), 36525.75);
    EXPECT_EQ(functions.Today(), 36525.0);
    EXPECT_EQ(functions.ToDate(u"1 January"), 36526.0 - 365.0);
}

TEST(Clock, WithoutOne_TheSystemsTimeIsTaken)
{
    const RunTimeFunctions functions(Locale::English());
    EXPECT_GT(functions.Now(), 45000.0);
    EXPECT_EQ(functions.Today(), std::floor(functions.Now()));
}

TEST(Locale, English_IsTheSettingOfReplays)
{
    const Locale locale = Locale::English();
    EXPECT_EQ(locale.DecimalSeparator, u'.');
    EXPECT_EQ(locale.GroupSeparator, u',');
    EXPECT_EQ(locale.DateSeparator, u'/');
    EXPECT_EQ(locale.TimeSeparator, u':');
    EXPECT_EQ(locale.ShortDate, u"dd/MM/yyyy");
    EXPECT_EQ(locale.LongDate, u"dddd, d MMMM yyyy");
    EXPECT_EQ(locale.LongTime, u"HH:nn:ss");
    EXPECT_EQ(locale.Am, u"AM");
    EXPECT_EQ(locale.CurrencySign, u"$");
    EXPECT_TRUE(locale.CurrencyInFront);
}

class QuietRunTime : public PlatformRunTime {
public:
    using PlatformRunTime::PlatformRunTime;
    void MessageBox(std::u16string_view, std::int16_t) override {}
};

TEST(PlatformRunTime, Views_HoldUntilTheNextCallEvenAsItsArgument)
{
    QuietRunTime runTime(Locale::English());
    std::u16string_view text = runTime.Format(Value::OfText(u"15/03/2024 and what else is long enough"), u"<");
    text = runTime.Format(Value::OfText(text), u">");
    text = runTime.UpperCase(text);
    text = runTime.GeneralText(Value::OfText(text));
    EXPECT_EQ(text, u"15/03/2024 AND WHAT ELSE IS LONG ENOUGH");
}

TEST(PlatformRunTime, IsTheFunctionsBehindTheInterface)
{
    QuietRunTime quiet(Locale::English());
    quiet.Functions().Clock([] { return 45366.4375; });
    RunTime& runTime = quiet;
    EXPECT_TRUE(runTime.IsNumeric(u"1,5"));
    EXPECT_EQ(runTime.ToNumber(u"1.5"), 1.5);
    EXPECT_FALSE(runTime.IsDate(u"1.5"));
    runTime.DateOrder(u"MM/dd/yyyy");
    EXPECT_EQ(runTime.ToDate(u"03/04/2024"), 45355.0);
    EXPECT_EQ(runTime.DateDifferenceInSeconds(1.0, 2.0), 86400.0);
    EXPECT_EQ(runTime.Now(), 45366.4375);
    EXPECT_EQ(runTime.Today(), 45366.0);
    EXPECT_EQ(runTime.FailureText(6), u"Overflow");
    EXPECT_EQ(runTime.Format(Value::Null(), u"0"), u"");
}

TEST(PlatformRunTime, FailureInAFormat_LeavesNothingOfItBehind)
{
    QuietRunTime runTime(Locale::English());
    EXPECT_THROW(runTime.Format(Value::OfDouble(1e9), u"dd/MM/yyyy"), Failure);
    EXPECT_EQ(runTime.Format(Value::OfInteger(5), u"0"), u"5");
}

} // namespace
} // namespace Tessellon
