#include "Literals.h"
#include "ScriptError.h"
#include "engine/runtime/Calendar.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace Tessellon::Replay {
namespace {

Word Bare(std::u16string_view text)
{
    return {.Bare = std::u16string(text), .Text = {}};
}

Word Quoted(std::u16string_view text)
{
    return {.Bare = {}, .Text = std::u16string(text)};
}

template <class Value>
Value Read(std::u16string_view text)
{
    return ReadAs<Value>(Bare(text));
}

TEST(Numbers, WholeOnes_MayBeWrittenInEveryWay)
{
    EXPECT_EQ(Read<std::int32_t>(u"3"), 3);
    EXPECT_EQ(Read<std::int32_t>(u"+3"), 3);
    EXPECT_EQ(Read<std::int32_t>(u"-3"), -3);
    EXPECT_EQ(Read<std::int32_t>(u"3.0"), 3);
    EXPECT_EQ(Read<std::int32_t>(u"0.3e1"), 3);
    EXPECT_EQ(Read<std::int32_t>(u"300E-2"), 3);
    EXPECT_EQ(Read<std::int32_t>(u"-0"), 0);
    EXPECT_EQ(Read<std::int32_t>(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
}

TEST(Numbers, HexadecimalOnes_AreSigned)
{
    EXPECT_EQ(Read<std::int32_t>(u"0x80000005"), -2147483643);
    EXPECT_EQ(Read<std::int32_t>(u"&HFFFFFFFF"), -1);
    EXPECT_EQ(Read<std::int32_t>(u"0xfF"), 255);
    EXPECT_EQ(Read<std::int16_t>(u"0xFFFFFFFF"), -1);
    EXPECT_EQ(Read<double>(u"0x10"), 16);
    for (const char16_t* text : {u"0x", u"&H", u"0x123456789", u"0x1G", u"-0x1", u"&H1&"})
        EXPECT_THROW(Read<std::int32_t>(text), ScriptError);
}

TEST(Numbers, ConstantsOfTheEnumerations_ServeAsNumbers)
{
    EXPECT_EQ(Read<std::int32_t>(u"fcCommandButton"), 8);
    EXPECT_EQ(Read<float>(u"mtDate"), 3);
    EXPECT_EQ(Read<std::int32_t>(u"ButtonFace"), Read<std::int32_t>(u"ThreeDFace"));
    EXPECT_EQ(Read<ColorType>(u"InfoBackground"), InfoBackground);
    EXPECT_EQ(Read<FieldControlType>(u"77"), static_cast<FieldControlType>(77));
    EXPECT_THROW(Read<std::int32_t>(u"fctextbox"), ScriptError);
    EXPECT_THROW(Read<std::int16_t>(u"White"), ScriptError);
}

TEST(Numbers, WhatTheTypeCannotHold_IsRefused)
{
    for (const char16_t* text : {u"1.5", u"2147483648", u"-2147483649", u"1e10", u"True", u"", u"1x", u"1,000", u".",
                                 u"e5", u"1e", u"99999999999999999999999"})
        EXPECT_THROW(Read<std::int32_t>(text), ScriptError);
    EXPECT_THROW(ReadAs<std::int32_t>(Quoted(u"1")), ScriptError);
    EXPECT_EQ(Read<std::int16_t>(u"-32768"), -32768);
    EXPECT_THROW(Read<std::int16_t>(u"32768"), ScriptError);
    EXPECT_FLOAT_EQ(Read<float>(u"-3.4e38"), -3.4e38F);
    EXPECT_THROW(Read<float>(u"3.5e38"), ScriptError);
    EXPECT_THROW(Read<double>(u"1e400"), ScriptError);
    EXPECT_EQ(Read<float>(u".5"), 0.5F);
}

TEST(Numbers, WholeOnesOf64Bits_KeepAllTheirFigures)
{
    using Limits = std::numeric_limits<std::int64_t>;
    EXPECT_EQ(WholeNumber(*ReadNumber(Bare(u"9223372036854775807")), Limits::min(), Limits::max()), Limits::max());
    EXPECT_EQ(WholeNumber(*ReadNumber(Bare(u"-9223372036854775808")), Limits::min(), Limits::max()), Limits::min());
    EXPECT_EQ(WholeNumber(*ReadNumber(Bare(u"9223372036854775808")), Limits::min(), Limits::max()), std::nullopt);
    EXPECT_EQ(WholeMagnitude(*ReadNumber(Bare(u"18446744073709551615"))), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(WholeMagnitude(*ReadNumber(Bare(u"18446744073709551616"))), std::nullopt);
    EXPECT_EQ(WholeNumber(*ReadNumber(Bare(u"-1")), 0, 255), std::nullopt);
}

RC_GTEST_PROP(Numbers, EveryWholeNumber_IsReadAsItself, (std::int32_t number))
{
    const std::string digits = std::to_string(number);
    RC_ASSERT(Read<std::int32_t>(std::u16string(digits.begin(), digits.end())) == number);
}

TEST(Truths, AreTrueAndFalseAlone)
{
    EXPECT_TRUE(Read<bool>(u"True"));
    EXPECT_FALSE(Read<bool>(u"False"));
    for (const char16_t* text : {u"true", u"1", u"0", u"-1"})
        EXPECT_THROW(Read<bool>(text), ScriptError);
    EXPECT_THROW(ReadAs<bool>(Quoted(u"True")), ScriptError);
}

TEST(Texts, StandInQuotes)
{
    EXPECT_EQ(ReadAs<std::u16string>(Quoted(u"a b")), u"a b");
    EXPECT_THROW(Read<std::u16string>(u"a"), ScriptError);
}

TEST(Dates, AreYearMonthDayWithOrWithoutATime)
{
    EXPECT_EQ(Read<DateLiteral>(u"1899-12-31").Serial, 1);
    EXPECT_FALSE(Read<DateLiteral>(u"2024-03-15").HasTime);
    EXPECT_TRUE(Read<DateLiteral>(u"2024-03-15T00:00:00").HasTime);
    EXPECT_EQ(FieldsOf(Read<DateLiteral>(u"2024-02-29T23:59:58").Serial),
              (CivilTime{.Year = 2024, .Month = 2, .Day = 29, .Hour = 23, .Minute = 59, .Second = 58}));
    for (const char16_t* text : {u"2023-02-29", u"2024-13-01", u"2024-00-01", u"0099-01-01", u"24-03-15", u"2024-3-15",
                                 u"2024-03-15T", u"2024-03-15T24:00:00", u"2024-03-15T10:60:00", u"2024-03-15T10:30",
                                 u"2024-03-15T10:30:00Z", u"2024/03/15", u"15/03/2024"})
        EXPECT_THROW(Read<DateLiteral>(text), ScriptError);
}

TEST(Keys, HaveNames)
{
    EXPECT_EQ(Read<KeyLiteral>(u"Enter").Code, 13);
    EXPECT_EQ(Read<KeyLiteral>(u"Enter").Characters, u"\r");
    EXPECT_EQ(Read<KeyLiteral>(u"PageDown").Code, 34);
    EXPECT_EQ(Read<KeyLiteral>(u"PageDown").Characters, u"");
    EXPECT_EQ(Read<KeyLiteral>(u"F1").Code, 112);
    EXPECT_EQ(Read<KeyLiteral>(u"F16").Code, 127);
    EXPECT_EQ(Read<KeyLiteral>(u"F").Code, 70);
    for (const char16_t* text : {u"F0", u"F17", u"F01", u"enter", u"Insert", u"ab", u""})
        EXPECT_THROW(Read<KeyLiteral>(text), ScriptError);
}

TEST(Keys, OfOneCharacter_AreThatCharacter)
{
    EXPECT_EQ(Read<KeyLiteral>(u"a").Code, 65);
    EXPECT_EQ(Read<KeyLiteral>(u"a").Characters, u"a");
    EXPECT_EQ(Read<KeyLiteral>(u"\u00E9").Code, 0);
    EXPECT_EQ(Read<KeyLiteral>(u"\U0001F600").Characters.size(), 2U);
    EXPECT_EQ(ReadAs<KeyLiteral>(Quoted(u"#")).Characters, u"#");
    EXPECT_THROW(ReadAs<KeyLiteral>(Quoted(u"Enter")), ScriptError);
}

TEST(Keys, CodesOfCharacters_AreThoseOfTheirKeys)
{
    const auto codes = [](std::u16string_view characters) {
        std::vector<int> found;
        for (const char16_t character : characters)
            found.push_back(KeyCodeOf(character));
        return found;
    };
    EXPECT_EQ(codes(u"aZ09"), (std::vector<int>{65, 90, 48, 57}));
    EXPECT_EQ(codes(u"!@#$%^&*()"), (std::vector<int>{49, 50, 51, 52, 53, 54, 55, 56, 57, 48}));
    EXPECT_EQ(codes(u";=,-./`"), (std::vector<int>{186, 187, 188, 189, 190, 191, 192}));
    EXPECT_EQ(codes(u":+<_>?~"), (std::vector<int>{186, 187, 188, 189, 190, 191, 192}));
    EXPECT_EQ(codes(u"[\\]'{|}\""), (std::vector<int>{219, 220, 221, 222, 219, 220, 221, 222}));
    EXPECT_EQ(codes(u" \u00DF\u20AC"), (std::vector<int>{32, 0, 0}));
}

TEST(Modifiers, AreAddedUp)
{
    EXPECT_EQ(Read<ModifierLiteral>(u"Shift").Shift, 1);
    EXPECT_EQ(Read<ModifierLiteral>(u"Shift+Ctrl+Alt").Shift, 7);
    EXPECT_EQ(Read<ModifierLiteral>(u"Alt+Shift").Shift, 5);
    for (const char16_t* text : {u"", u"shift", u"Shift+", u"+Shift", u"Shift+Shift", u"ShiftCtrl"})
        EXPECT_THROW(Read<ModifierLiteral>(text), ScriptError);
}

} // namespace
} // namespace Tessellon::Replay
