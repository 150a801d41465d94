#include "engine/runtime/CaseMap.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdint>

namespace Tessellon {
namespace {

struct CasePair {
    char16_t Lower;
    char16_t Upper;
};

TEST(CaseMap, LettersOfManyScripts_HaveTheirOtherCase)
{
    const CasePair pairs[] = {
        {u'a', u'A'},   {u'z', u'Z'},   {u'ä', u'Ä'},           {u'ÿ', u'Ÿ'},          {u'ı', u'I'}, {u'ſ', u'S'},
        {u'µ', u'Μ'},   {u'ά', u'Ά'},   {u'ς', u'Σ'},           {u'ж', u'Ж'},          {u'ѐ', u'Ѐ'}, {u'ա', u'Ա'},
        {u'ა', u'Ა'}, {u'ḁ', u'Ḁ'},   {u'ᾀ', u'ᾈ'},           {u'ᾳ', u'ᾼ'},          {u'ⅷ', u'Ⅷ'}, {u'ⓐ', u'Ⓐ'},
        {u'ɐ', u'Ɐ'},   {u'ａ', u'Ａ'}, {u'\u01C6', u'\u01C4'}, {u'\u01C5', u'\u01C4'}};
    for (const auto& [lower, upper] : pairs)
        EXPECT_EQ(UpperCase(lower), upper) << std::hex << static_cast<int>(lower);
    const CasePair back[] = {{u'a', u'A'}, {u'ä', u'Ä'}, {u'i', u'İ'}, {u'σ', u'Σ'}, {u'ж', u'Ж'},
                             {u'ß', u'ẞ'}, {u'k', u'K'}, {u'å', u'Å'}, {u'ᾀ', u'ᾈ'}, {u'\u01C6', u'\u01C5'}};
    for (const auto& [lower, upper] : back)
        EXPECT_EQ(LowerCase(upper), lower) << std::hex << static_cast<int>(upper);
}

TEST(CaseMap, UnitWithoutSimpleMapping_Stays)
{
    for (const char16_t unit : std::u16string_view(u"ßﬁŉǰΐևẖᾲ1_ \u3042\u30A2\u6F22\uFF71\0\uFFFF"))
        EXPECT_EQ(UpperCase(unit), unit) << std::hex << static_cast<int>(unit);
    EXPECT_EQ(UpperCase(u'İ'), u'İ');
}

TEST(CaseMap, Surrogates_StayAsTheyAre)
{
    for (int unit = 0xD800; unit <= 0xDFFF; ++unit) {
        const auto surrogate = static_cast<char16_t>(unit);
        ASSERT_EQ(UpperCase(surrogate), surrogate);
        ASSERT_EQ(LowerCase(surrogate), surrogate);
        ASSERT_FALSE(IsLetter(surrogate));
    }
    // U+10428 has an upper case, but as a pair only.
    EXPECT_EQ(UpperCase(std::u16string_view(u"a\U00010428b")), u"A\U00010428B");
}

TEST(CaseMap, UpperCaseOfAText_KeepsItsLengthAndZeros)
{
    const std::u16string text(u"straße\0ﬁx\xD800y", 12);
    const std::u16string upper(u"STRAßE\0ﬁX\xD800Y", 12);
    EXPECT_EQ(UpperCase(std::u16string_view(text)), upper);
    EXPECT_EQ(UpperCase(std::u16string(100'000, u'я')), std::u16string(100'000, u'Я'));
    std::u16string out = u"kept ";
    UpperCaseTo(out, u"käse");
    EXPECT_EQ(out, u"kept KÄSE");
}

TEST(CaseMap, Letters_AreWhatUnicodeCallsLetters)
{
    for (const char16_t unit : std::u16string_view(u"aZäßıﬁªʰǅאعकあアｱ漢가々ー"))
        EXPECT_TRUE(IsLetter(unit)) << std::hex << static_cast<int>(unit);
    for (const char16_t unit : std::u16string_view(u"019_ -.@[`{Ⅷⓐ٣０€\u0301\u3099\uFFFF"))
        EXPECT_FALSE(IsLetter(unit)) << std::hex << static_cast<int>(unit);
}

TEST(CaseMap, Digits_AreTheTenOfAscii)
{
    for (int unit = 0; unit <= 0xFFFF; ++unit)
        ASSERT_EQ(IsDigit(static_cast<char16_t>(unit)), unit >= '0' && unit <= '9');
}

TEST(CaseMap, TextsAreCompared_UnitByUnitInUpperCase)
{
    EXPECT_TRUE(EqualIgnoringCase(u"MÄRZ", u"märz"));
    EXPECT_TRUE(EqualIgnoringCase(u"", u""));
    EXPECT_FALSE(EqualIgnoringCase(u"STRASSE", u"straße"));
    EXPECT_FALSE(EqualIgnoringCase(u"ab", u"abc"));
    EXPECT_FALSE(EqualIgnoringCase(u"i", u"İ"));
    EXPECT_TRUE(StartsWithIgnoringCase(u"märzen", u"MÄRZ"));
    EXPECT_TRUE(StartsWithIgnoringCase(u"x", u""));
    EXPECT_FALSE(StartsWithIgnoringCase(u"mär", u"März"));
}

RC_GTEST_PROP(CaseMap, Texts_AreRaisedUnitByUnit, ())
{
    const bool isAscii = *rc::gen::arbitrary<bool>();
    const auto text = *rc::gen::container<std::u16string>(rc::gen::inRange<char16_t>(0, isAscii ? 0x80 : 0x250));
    std::u16string out = u"ahead ";
    UpperCaseTo(out, text);
    std::u16string expected = u"ahead ";
    for (const char16_t unit : text)
        expected.push_back(UpperCase(unit));
    RC_ASSERT(out == expected);
}

RC_GTEST_PROP(CaseMap, UpperCaseTwice_IsUpperCase, (std::uint16_t number))
{
    const auto unit = static_cast<char16_t>(number);
    RC_ASSERT(UpperCase(UpperCase(unit)) == UpperCase(unit));
    RC_ASSERT(LowerCase(LowerCase(unit)) == LowerCase(unit));
}

} // namespace
} // namespace Tessellon
