#include "recordset/common/Moment.h"

#include <chrono>
#include <cstdio>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace Tessellon::Common {

namespace {

constexpr double Day15March2024 = 45366;

TEST(Moment, DateText_IsDaysFrom30December1899)
{
    EXPECT_EQ(SerialOfText(u"2024-03-15"), Day15March2024);
    EXPECT_EQ(SerialOfText(u"1899-12-31"), 1.0);
    EXPECT_EQ(SerialOfText(u"1899-12-30"), 0.0);
    EXPECT_EQ(SerialOfText(u"1899-12-29"), -1.0);
    EXPECT_EQ(SerialOfText(u"0100-01-01"), -657434.0);
    EXPECT_EQ(SerialOfText(u"9999-12-31"), 2958465.0);
}

TEST(Moment, TimeText_IsAFractionOfTheDay)
{
    EXPECT_EQ(SerialOfText(u"2024-03-15 12:00"), Day15March2024 + 0.5);
    EXPECT_EQ(SerialOfText(u"2024-03-15T18:00:00"), Day15March2024 + 0.75);
    EXPECT_EQ(SerialOfText(u"06:00"), 0.25);
    EXPECT_DOUBLE_EQ(*SerialOfText(u"00:00:00.250"), 0.25 / 86400);
    EXPECT_DOUBLE_EQ(*SerialOfText(u"00:00:01.000000999999999999999999999"), 1.0 / 86400);
}

TEST(Moment, TimeAheadOfSerialZero_GrowsAwayFromZero)
{
    EXPECT_EQ(SerialOfText(u"1899-12-29 06:00"), -1.25);
    EXPECT_EQ(SerialOfText(u"1899-12-28 18:00"), -2.75);
}

TEST(Moment, ZoneInText_IsTakenOff)
{
    EXPECT_EQ(SerialOfText(u"2024-03-15T12:00:00Z"), Day15March2024 + 0.5);
    EXPECT_EQ(SerialOfText(u"2024-03-15 12:00:00 +06:00"), Day15March2024 + 0.25);
    EXPECT_EQ(SerialOfText(u"2024-03-15T21:00:00.0-03:00"), Day15March2024 + 1.0);
}

TEST(Moment, OtherText_IsNone)
{
    for (const char16_t* text : {u"",
                                 u"2024",
                                 u"2024-3-15",
                                 u"2024-02-30",
                                 u"2023-02-29",
                                 u"2024-00-10",
                                 u"2024-13-10",
                                 u"0099-12-31",
                                 u"2024-03-15T",
                                 u"2024-03-15 ",
                                 u"2024-03-15x",
                                 u"2024-03-15 24:00",
                                 u"2024-03-15 10:60",
                                 u"10:30:60",
                                 u"10:30:1",
                                 u"10:30:10.",
                                 u"10:30 x",
                                 u"10:30+2",
                                 u"10:30+25:00",
                                 u"1x:30",
                                 u"15/03/2024",
                                 u"-2024-03-15",
                                 u"12024-03-15",
                                 u"tomorrow"})
        EXPECT_FALSE(SerialOfText(text).has_value()) << std::string(text, text + std::u16string_view(text).size());
}

TEST(Moment, ZoneThatLeavesTheYears_IsNone)
{
    EXPECT_FALSE(SerialOfText(u"9999-12-31 23:00-02:00").has_value());
    EXPECT_FALSE(SerialOfText(u"0100-01-01 01:00+02:00").has_value());
}

TEST(Moment, DateWithItsMicroseconds_IsASerial)
{
    EXPECT_EQ(SerialOfDate(2024, 3, 15), Day15March2024);
    EXPECT_EQ(SerialOfDate(2024, 3, 15, MicrosecondsPerDay / 4), Day15March2024 + 0.25);
    EXPECT_EQ(SerialOfDate(1899, 12, 29, MicrosecondsPerDay / 4), -1.25);
    EXPECT_EQ(SerialOfDate(9999, 12, 31, MicrosecondsPerDay - 1), SerialOfText(u"9999-12-31 23:59:59.999999"));
    EXPECT_EQ(SerialOfMicroseconds(-MicrosecondsPerDay / 4), -1.75);
}

TEST(Moment, DateThatNoCalendarHas_IsNone)
{
    EXPECT_FALSE(SerialOfDate(2023, 2, 29).has_value());
    EXPECT_FALSE(SerialOfDate(99, 12, 31).has_value());
    EXPECT_FALSE(SerialOfDate(10000, 1, 1).has_value());
    EXPECT_FALSE(SerialOfDate(-4713, 1, 1).has_value());
    EXPECT_FALSE(SerialOfDate(9999, 12, 31, MicrosecondsPerDay).has_value());
    EXPECT_FALSE(SerialOfMicroseconds(-700'000 * MicrosecondsPerDay).has_value());
}

RC_GTEST_PROP(MomentProperty, EveryDayOfTheCalendar_ReadsAsItsSerial, ())
{
    const int serial = *rc::gen::inRange(-657434, 2958466);
    const std::chrono::year_month_day date(std::chrono::sys_days(std::chrono::days(serial - 25569)));
    char text[40];
    const int length = std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
                                     static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    RC_ASSERT(SerialOfText(std::u16string(text, text + length)) == static_cast<double>(serial));
    RC_ASSERT(SerialOfDate(static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                           static_cast<int>(static_cast<unsigned>(date.day()))) == static_cast<double>(serial));
}

} // namespace

} // namespace Tessellon::Common
