#include "recordset/common/Moment.h"
#include "recordset/sqlite/StoredMoment.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace Tessellon::Sqlite {

namespace {

constexpr double Day15March2024 = 45366;

TEST(StoredMoment, SmallNumber_IsAJulianDay)
{
    EXPECT_EQ(SerialOfNumber(2415018.5), 0.0);
    EXPECT_EQ(SerialOfNumber(2460385), Day15March2024 + 0.5);
    EXPECT_EQ(SerialOfNumber(2460384.9375), Day15March2024 + 0.4375);
}

TEST(StoredMoment, JulianDay_IsRoundedToTheMillisecond)
{
    const double halfPastTen = 10.5 / 24 + 1.0 / 86400;
    EXPECT_EQ(SerialOfNumber(2415018.5 + Day15March2024 + halfPastTen), Common::SerialOfText(u"2024-03-15 10:30:01"));
}

TEST(StoredMoment, LargeNumber_IsSecondsSince1970)
{
    EXPECT_EQ(SerialOfNumber(1710504000), Day15March2024 + 0.5);
    EXPECT_EQ(SerialOfNumber(-86400), 25568.0);
}

TEST(StoredMoment, NumberOutsideTheYears_IsNone)
{
    for (const double number : {0.0, 2024.0, 1e12, -1e11, 1e300, -1e300, 1.0 / 0.0, std::nan("")})
        EXPECT_FALSE(SerialOfNumber(number).has_value()) << number;
}

TEST(StoredMoment, TimeNumber_IsAFractionOrTheMomentsTime)
{
    EXPECT_EQ(TimeOfNumber(0.25), 0.25);
    EXPECT_EQ(TimeOfNumber(2460384.9375), 0.4375);
    EXPECT_FALSE(TimeOfNumber(2024).has_value());
}

RC_GTEST_PROP(StoredMomentProperty, EveryJulianDay_ReadsAsItsSerial, ())
{
    const int serial = *rc::gen::inRange(-657434, 2958466);
    RC_ASSERT(SerialOfNumber(serial + 2415018.5) == static_cast<double>(serial));
}

} // namespace

} // namespace Tessellon::Sqlite
