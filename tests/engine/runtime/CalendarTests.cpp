#include "engine/runtime/Calendar.h"

#include "engine/runtime/RunTimeFunctions.h"
#include "platform/Failure.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>

namespace Tessellon {
namespace {

struct Moment {
    double Serial;
    CivilTime Fields;
};

template <typename Call>
int FailureOfCall(Call call)
{
    try {
        call();
    } catch (const Failure& failure) {
        return failure.Number;
    }
    return 0;
}

TEST(Calendar, SerialsAndFields_AreTwoFormsOfOneMoment)
{
    const Moment moments[] = {
        {0.0, {1899, 12, 30, 0, 0, 0}},         {1.0, {1899, 12, 31, 0, 0, 0}},
        {2.0, {1900, 1, 1, 0, 0, 0}},           {60.0, {1900, 2, 28, 0, 0, 0}},
        {61.0, {1900, 3, 1, 0, 0, 0}},          {36585.0, {2000, 2, 29, 0, 0, 0}},
        {45366.4375, {2024, 3, 15, 10, 30, 0}}, {2958465.0, {9999, 12, 31, 0, 0, 0}},
        {-657434.0, {100, 1, 1, 0, 0, 0}},      {-1.0, {1899, 12, 29, 0, 0, 0}},
        {-1.25, {1899, 12, 29, 6, 0, 0}},       {-657434.5, {100, 1, 1, 12, 0, 0}},
        {0.75, {1899, 12, 30, 18, 0, 0}},
    };
    for (const Moment& moment : moments) {
        EXPECT_EQ(FieldsOf(moment.Serial), moment.Fields) << moment.Serial;
        EXPECT_DOUBLE_EQ(SerialOf(moment.Fields), moment.Serial);
    }
}

TEST(Calendar, TimeOfDay_IsRoundedToTheSecondAndMayReachTheNextDay)
{
    EXPECT_EQ(FieldsOf(45366.999999), (CivilTime{2024, 3, 16, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(45366.0 + 1.4 / 86400), (CivilTime{2024, 3, 15, 0, 0, 1}));
    EXPECT_EQ(FieldsOf(-1.999999), (CivilTime{1899, 12, 30, 0, 0, 0}));
    EXPECT_EQ(FieldsOf(2958465.999999), (CivilTime{9999, 12, 31, 23, 59, 59}));
}

TEST(Calendar, SerialOutsideTheYears100To9999_IsFailure5)
{
    for (const double serial : {-657435.0, 2958466.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_FALSE(IsLegalSerial(serial));
        EXPECT_EQ(FailureOfCall([&] { FieldsOf(serial); }), 5) << serial;
        EXPECT_EQ(FailureOfCall([&] { WholeSeconds(serial); }), 5) << serial;
    }
}

TEST(Calendar, DateOrTimeThatIsNone_IsFailure5)
{
    const CivilTime wrong[] = {{2023, 2, 29, 0, 0, 0}, {99, 1, 1, 0, 0, 0},    {10000, 1, 1, 0, 0, 0},
                               {2024, 0, 1, 0, 0, 0},  {2024, 13, 1, 0, 0, 0}, {2024, 1, 0, 0, 0, 0},
                               {2024, 1, 1, 24, 0, 0}, {2024, 1, 1, 0, 60, 0}, {2024, 1, 1, 0, 0, -1}};
    for (const CivilTime& fields : wrong)
        EXPECT_EQ(FailureOfCall([&] { SerialOf(fields); }), 5);
}

TEST(Calendar, MonthsHaveTheirDays)
{
    EXPECT_EQ(DaysInMonth(2024, 2), 29);
    EXPECT_EQ(DaysInMonth(1900, 2), 28);
    EXPECT_EQ(DaysInMonth(2000, 2), 29);
    EXPECT_EQ(DaysInMonth(2023, 4), 30);
    EXPECT_EQ(DaysInMonth(2023, 13), 0);
    EXPECT_EQ(DaysInMonth(2023, 0), 0);
}

TEST(Calendar, WeekdaysAndDaysOfTheYear_AreCounted)
{
    EXPECT_EQ(WeekdayOf(FieldsOf(1.0)), 1);
    EXPECT_EQ(WeekdayOf(FieldsOf(45366.0)), 6);
    EXPECT_EQ(WeekdayOf(FieldsOf(0.0)), 7);
    EXPECT_EQ(WeekdayOf(FieldsOf(-657434.0)), 6);
    EXPECT_EQ(DayOfYear({2024, 12, 31, 0, 0, 0}), 366);
    EXPECT_EQ(DayOfYear({2023, 1, 1, 0, 0, 0}), 1);
}

TEST(Calendar, DifferenceInSeconds_CountsAcrossTheZeroSerial)
{
    EXPECT_EQ(RunTimeFunctions::DateDifferenceInSeconds(0.5, 1.0), 43200.0);
    EXPECT_EQ(RunTimeFunctions::DateDifferenceInSeconds(1.0, 0.5), -43200.0);
    EXPECT_EQ(RunTimeFunctions::DateDifferenceInSeconds(-1.75, 0.0), 21600.0);
    EXPECT_EQ(RunTimeFunctions::DateDifferenceInSeconds(-657434.0, 2958465.0), 3615899.0 * 86400.0);
    EXPECT_EQ(FailureOfCall([] { static_cast<void>(RunTimeFunctions::DateDifferenceInSeconds(1.0, 1e9)); }), 5);
}

RC_GTEST_PROP(Calendar, EverySecond_HasFieldsAndASerial, ())
{
    const int day = *rc::gen::inRange(-657434, 2958466);
    const int second = *rc::gen::inRange(0, 86400);
    const double serial = SerialWithTime(day, second / 86400.0);
    const CivilTime fields = FieldsOf(serial);
    RC_ASSERT(fields.Hour * 3600 + fields.Minute * 60 + fields.Second == second);
    RC_ASSERT(IsLegalDate(fields.Year, fields.Month, fields.Day));
    RC_ASSERT(SerialOf(fields) == serial);
    RC_ASSERT(WholeSeconds(serial) == std::int64_t{day} * 86400 + second);
}

RC_GTEST_PROP(Calendar, TheNextDay_IsTheNextWeekday, ())
{
    const int day = *rc::gen::inRange(-657434, 2958465);
    const CivilTime today = FieldsOf(day);
    const CivilTime tomorrow = FieldsOf(day + 1);
    RC_ASSERT(WeekdayOf(tomorrow) == WeekdayOf(today) % 7 + 1);
    RC_ASSERT(tomorrow.Day == (today.Day == DaysInMonth(today.Year, today.Month) ? 1 : today.Day + 1));
}

} // namespace
} // namespace Tessellon
