#include "Texts.h"

#include "engine/runtime/NumberText.h"
#include "platform/Failure.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace Tessellon {
namespace {

struct NumberCase {
    std::u16string_view Text;
    double Number;
};

void ExpectNumbers(const RunTimeFunctions& functions, std::initializer_list<NumberCase> cases)
{
    for (const auto& [text, number] : cases) {
        ASSERT_TRUE(functions.IsNumeric(text)) << Shown(text);
        EXPECT_EQ(functions.ToNumber(text), number) << Shown(text);
    }
}

void ExpectNoNumbers(const RunTimeFunctions& functions, std::initializer_list<std::u16string_view> texts)
{
    for (const std::u16string_view text : texts) {
        EXPECT_FALSE(functions.IsNumeric(text)) << Shown(text);
        try {
            static_cast<void>(functions.ToNumber(text));
            ADD_FAILURE() << Shown(text);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, 13);
            EXPECT_EQ(failure.Description, u"Type mismatch");
        }
    }
}

TEST(NumberText, PlainNumbers_AreNumericWithSignPointAndExponent)
{
    ExpectNumbers(At2024(), {{u"0", 0},
                             {u"12", 12},
                             {u"-12", -12},
                             {u"+12", 12},
                             {u"12-", -12},
                             {u"- 12", -12},
                             {u"1.5", 1.5},
                             {u".5", 0.5},
                             {u"5.", 5},
                             {u"-.25", -0.25},
                             {u"007", 7},
                             {u"1E3", 1000},
                             {u"1e+3", 1000},
                             {u"25E-2", 0.25},
                             {u"1.7E308", 1.7e308},
                             {u"179769313486231570000000000", 179769313486231570000000000.0},
                             {u"0.1234567890123456789", 0.1234567890123456789},
                             {u"1E-400", 0}});
}

TEST(NumberText, BlanksCurrencyGroupsAndParentheses_MayStandAroundANumber)
{
    ExpectNumbers(At2024(), {{u"  12  ", 12},
                             {u"1,234,567.5", 1234567.5},
                             {u"1,2", 12},
                             {u"$12", 12},
                             {u"12$", 12},
                             {u"-$12", -12},
                             {u"$-12", -12},
                             {u"$ 1,234", 1234},
                             {u"(12)", -12},
                             {u"($12.50)", -12.5},
                             {u"$(12)", -12},
                             {u"( 12 )", -12}});
}

TEST(NumberText, OtherLocales_HaveTheirOwnSeparatorsAndSigns)
{
    const RunTimeFunctions german = At2024(Locale::German());
    ExpectNumbers(german, {{u"1.234,5", 1234.5}, {u"1,5", 1.5}, {u"12 €", 12}, {u"€ -3", -3}, {u"1.5", 15}});
    ExpectNoNumbers(german, {u"1,5,5", u"1,234.5", u"$5"});
    ExpectNumbers(At2024(Locale::Japanese()), {{u"¥1,234", 1234}, {u"1.5", 1.5}});
}

TEST(NumberText, HexAndOctal_AreSignedInSixteenBitsUnlessAnAmpersandEndsThem)
{
    ExpectNumbers(At2024(), {{u"&HFF", 255},
                             {u"&hff", 255},
                             {u" &HFF ", 255},
                             {u"&H7FFF", 32767},
                             {u"&H8000", -32768},
                             {u"&HFFFF", -1},
                             {u"&HFFFF&", 65535},
                             {u"&H10000", 65536},
                             {u"&HFFFFFFFF", -1},
                             {u"&H7FFFFFFF", 2147483647},
                             {u"&H80000000&", -2147483648.0},
                             {u"&O17", 15},
                             {u"&o177777", -1},
                             {u"&O177777&", 65535},
                             {u"&O37777777777", -1}});
    ExpectNoNumbers(At2024(), {u"&", u"&17", u"&H", u"&H&", u"&HG", u"&O8", u"&H100000000", u"&O40000000000", u"& HFF",
                               u"&H-1", u"-&H1", u"&HFF&&", u"HFF", u"&H1.5"});
}

TEST(NumberText, WhatIsNoNumber_IsNotNumericAndIsFailure13)
{
    ExpectNoNumbers(At2024(),
                    {u"",      u" ",    u"x",    u"1x",         u".",      u"-",     u"+-1",  u"--1",   u"-1-",
                     u"1 2",   u"1,,2", u",1",   u"1,",         u"1.2.3",  u"1.2,3", u"E5",   u"1E",    u"1E+",
                     u"1E5.5", u"1D5",  u"(1",   u"1)",         u"()",     u"(-1)",  u"-(1)", u"((1))", u"$",
                     u"$$1",   u"$1$",  u"12%",  u"1E400",      u"-1E309", u"\t1",   u"１２", u"٣",     u"\xD800",
                     u"NaN",   u"inf",  u"0x10", u"15/03/2024", u"True"});
    ExpectNoNumbers(At2024(), {std::u16string_view(u"1\0", 2), std::u16string_view(u"\0", 1)});
}

TEST(NumberText, Zero_HasNoSign)
{
    EXPECT_FALSE(std::signbit(At2024().ToNumber(u"-0")));
    EXPECT_FALSE(std::signbit(At2024().ToNumber(u"(0.00)")));
    EXPECT_EQ(At2024().GeneralText(Value::OfDouble(-0.0)), u"0");
    EXPECT_EQ(At2024().GeneralText(Value::OfSingle(-0.0F)), u"0");
    EXPECT_EQ(At2024().GeneralText(Value::OfDecimal(u"-0.000")), u"0");
}

TEST(NumberText, NumbersOfExtremeLength_AreRead)
{
    const RunTimeFunctions functions = At2024();
    EXPECT_EQ(functions.ToNumber(std::u16string(100'000, u'0') + u"7"), 7.0);
    EXPECT_EQ(functions.ToNumber(u"0." + std::u16string(100'000, u'3')), 1.0 / 3.0);
    EXPECT_EQ(functions.ToNumber(u"0." + std::u16string(100'000, u'0') + u"1"), 0.0);
    EXPECT_FALSE(functions.IsNumeric(std::u16string(100'000, u'9')));
    EXPECT_FALSE(functions.IsNumeric(std::u16string(100'000, u'(')));
    EXPECT_FALSE(functions.IsNumeric(u"1E" + std::u16string(100'000, u'9')));
    EXPECT_TRUE(functions.IsNumeric(u"1E-" + std::u16string(100'000, u'9')));
}

struct DoubleCase {
    double Number;
    std::u16string_view Text;
};

TEST(GeneralText, Doubles_HaveFifteenDigitsAndAnExponentOutsideTheirRange)
{
    const DoubleCase cases[] = {{0, u"0"},
                                {1, u"1"},
                                {-1, u"-1"},
                                {1.5, u"1.5"},
                                {0.1 + 0.2, u"0.3"},
                                {1.0 / 3, u"0.333333333333333"},
                                {2.0 / 3, u"0.666666666666667"},
                                {-200.0 / 3, u"-66.6666666666667"},
                                {100, u"100"},
                                {123456789012345, u"123456789012345"},
                                {999999999999999, u"999999999999999"},
                                {999999999999999.9, u"1E+15"},
                                {1e15, u"1E+15"},
                                {1234567890123456, u"1.23456789012346E+15"},
                                {-2.5e100, u"-2.5E+100"},
                                {0.0001, u"0.0001"},
                                {0.00012345, u"0.00012345"},
                                {0.00009999999999999999, u"0.0001"},
                                {0.00001, u"1E-05"},
                                {-0.000012345, u"-1.2345E-05"},
                                {1e-100, u"1E-100"},
                                {5e-324, u"4.94065645841247E-324"},
                                {1.7976931348623157e308, u"1.79769313486232E+308"}};
    for (const auto& [number, text] : cases)
        EXPECT_EQ(Shown(At2024().GeneralText(Value::OfDouble(number))), Shown(text));
}

TEST(GeneralText, Singles_HaveSevenDigitsAndAnExponentOutsideTheirRange)
{
    const std::pair<float, std::u16string_view> cases[] = {{0.1F, u"0.1"},
                                                           {300.1F, u"300.1"},
                                                           {1.0F / 3, u"0.3333333"},
                                                           {9999999.0F, u"9999999"},
                                                           {1e7F, u"1E+07"},
                                                           {12345678.0F, u"1.234568E+07"},
                                                           {0.0001F, u"0.0001"},
                                                           {0.00001F, u"1E-05"},
                                                           {16777216.0F, u"1.677722E+07"},
                                                           {-2.5F, u"-2.5"},
                                                           {3.4028235e38F, u"3.402823E+38"}};
    for (const auto& [number, text] : cases)
        EXPECT_EQ(Shown(At2024().GeneralText(Value::OfSingle(number))), Shown(text));
}

TEST(GeneralText, WholeNumbers_AreWhole)
{
    const RunTimeFunctions functions = At2024();
    EXPECT_EQ(functions.GeneralText(Value::OfInteger(std::numeric_limits<std::int64_t>::min())),
              u"-9223372036854775808");
    EXPECT_EQ(functions.GeneralText(Value::OfInteger(std::numeric_limits<std::int64_t>::max())),
              u"9223372036854775807");
    EXPECT_EQ(functions.GeneralText(Value::OfUnsigned(std::numeric_limits<std::uint64_t>::max())),
              u"18446744073709551615");
    EXPECT_EQ(functions.GeneralText(Value::OfInteger(0)), u"0");
}

TEST(GeneralText, Decimals_KeepAllTheirDigitsButTrailingZeros)
{
    const std::pair<std::u16string_view, std::u16string_view> cases[] = {
        {u"12345678901234567890.12345678901234567890", u"12345678901234567890.1234567890123456789"},
        {u"1.500", u"1.5"},
        {u"100", u"100"},
        {u"100.00", u"100"},
        {u".5", u"0.5"},
        {u"-0.050", u"-0.05"},
        {u"007", u"7"},
        {u"1E5", u"100000"},
        {u"25E-3", u"0.025"},
        {u"0.00000000000000000001", u"0.00000000000000000001"}};
    for (const auto& [digits, text] : cases)
        EXPECT_EQ(Shown(At2024().GeneralText(Value::OfDecimal(digits))), Shown(text));
    EXPECT_EQ(At2024(Locale::German()).GeneralText(Value::OfDecimal(u"1.5")), u"1,5");
    EXPECT_EQ(At2024().GeneralText(Value::OfDecimal(u"NaN")), u"NaN");
    EXPECT_EQ(At2024().GeneralText(Value::OfDecimal(u"")), u"");
}

TEST(GeneralText, OtherKinds_HaveTheirText)
{
    const RunTimeFunctions functions = At2024();
    EXPECT_EQ(functions.GeneralText(Value::Null()), u"");
    EXPECT_EQ(functions.GeneralText(Value::OfBoolean(true)), u"True");
    EXPECT_EQ(functions.GeneralText(Value::OfBoolean(false)), u"False");
    EXPECT_EQ(functions.GeneralText(Value::OfText(u" a\xD800 ")), u" a\xD800 ");
    EXPECT_EQ(functions.GeneralText(Value::OfDate(45366)), u"15/03/2024");
    EXPECT_EQ(functions.GeneralText(Value::OfDate(45366.4375)), u"15/03/2024 10:30:00");
    EXPECT_EQ(functions.GeneralText(Value::OfDate(0.4375)), u"10:30:00");
    EXPECT_EQ(At2024(Locale::German()).GeneralText(Value::OfDouble(1.5)), u"1,5");
    EXPECT_EQ(At2024(Locale::German()).GeneralText(Value::OfDouble(1.5e20)), u"1,5E+20");
}

TEST(GeneralText, FloatThatIsNotFinite_IsAWord)
{
    EXPECT_EQ(At2024().GeneralText(Value::OfDouble(HUGE_VAL)), u"Infinity");
    EXPECT_EQ(At2024().GeneralText(Value::OfDouble(-HUGE_VAL)), u"-Infinity");
    EXPECT_EQ(At2024().Format(Value::OfDouble(std::nan("")), u"0.00"), u"NaN");
}

TEST(GeneralText, AppendingVariant_KeepsWhatIsThere)
{
    std::u16string out = u"a=";
    At2024().GeneralTextTo(out, Value::OfDouble(2.5));
    At2024().FormatTo(out, Value::OfInteger(7), u"000");
    EXPECT_EQ(out, u"a=2.5007");
}

RC_GTEST_PROP(GeneralText, OfAnyDouble_IsReadBackToFifteenDigits, (std::int64_t mantissa, std::int8_t power))
{
    const double number = static_cast<double>(mantissa % 1'000'000'000'000'000) * std::pow(10.0, power);
    for (const RunTimeFunctions& functions : {At2024(), At2024(Locale::German()), At2024(Locale::Japanese())}) {
        const std::u16string text = functions.GeneralText(Value::OfDouble(number));
        RC_ASSERT(functions.IsNumeric(text));
        RC_ASSERT(std::abs(functions.ToNumber(text) - number) <= std::abs(number) * 1e-14);
    }
}

RC_GTEST_PROP(GeneralText, OfAFewDecimals_IsWhatItsDigitsAre, (std::int64_t digits))
{
    const int decimals = *rc::gen::inRange(0, 8);
    const double number = static_cast<double>(digits % 1'000'000'000'000'000) / std::pow(10.0, decimals);
    std::u16string plain;
    AppendPlain(plain, DecimalDigits::OfDouble(number), u'.');
    if (number == 0.0 || std::abs(number) >= 0.0001)
        RC_ASSERT(At2024().GeneralText(Value::OfDouble(number)) == (number == 0.0 ? u"0" : plain));
}

RC_GTEST_PROP(GeneralText, OfAnyInteger_IsReadBack, (std::int32_t number))
{
    RC_ASSERT(At2024().ToNumber(At2024().GeneralText(Value::OfInteger(number))) == number);
}

RC_GTEST_PROP(NumberText, WhatIsNumeric_ConvertsToAFiniteNumber, ())
{
    const auto text =
        *rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"0123456789019+-., ()$E&HOF")));
    const RunTimeFunctions functions = At2024();
    RC_CLASSIFY(functions.IsNumeric(text));
    if (functions.IsNumeric(text))
        RC_ASSERT(std::isfinite(functions.ToNumber(text)));
    else
        RC_ASSERT_THROWS_AS(static_cast<void>(functions.ToNumber(text)), Failure);
}

RC_GTEST_PROP(NumberText, QuickWayAndFullWay_ReadTheSameNumber, ())
{
    const int count = *rc::gen::inRange(1, 8);
    const auto text = *rc::gen::container<std::u16string>(count, rc::gen::elementOf(std::u16string(u"0123456789.")));
    const RunTimeFunctions functions = At2024();
    // A blank in front takes the full way.
    RC_ASSERT(functions.IsNumeric(text) == functions.IsNumeric(u" " + text));
    if (functions.IsNumeric(text))
        RC_ASSERT(functions.ToNumber(text) == functions.ToNumber(u" " + text));
}

} // namespace
} // namespace Tessellon
