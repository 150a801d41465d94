#include "MaskFixture.h"

namespace Tessellon {
namespace {

/// Which of the characters a place of the sign takes, and as what.
std::u16string Taken(std::u16string_view mask, std::u16string_view characters)
{
    const Locale locale = Locale::English();
    const auto pattern = MaskPattern::Read(mask, locale);
    std::u16string taken;
    for (const char16_t character : characters)
        if (const auto held = pattern->Fit(0, character))
            taken += *held;
    return taken;
}

std::u16string Literals(std::u16string_view mask, const Locale& locale)
{
    const auto pattern = MaskPattern::Read(mask, locale);
    std::u16string literals;
    for (std::size_t position = 0; position < pattern->Size(); ++position)
        if (pattern->IsLiteral(position))
            literals += pattern->Literal(position);
    return literals;
}

constexpr std::u16string_view sample = u"5 aZßäİﬁか_-\t\xD83D\xDE00";

TEST(MaskLanguage, DigitSigns_TakeADigitOrABlank)
{
    EXPECT_EQ(Taken(u"#", sample), u"5 ");
    EXPECT_EQ(Taken(u"9", sample), u"5 ");
}

TEST(MaskLanguage, DigitsOfOtherScripts_AreNoDigits)
{
    EXPECT_EQ(Taken(u"#", u"٣３०"), u"");
    EXPECT_EQ(Taken(u"A", u"٣３०"), u"");
}

TEST(MaskLanguage, LetterOrDigitSigns_TakeALetterOrADigit)
{
    EXPECT_EQ(Taken(u"A", sample), u"5aZßäİﬁか");
    EXPECT_EQ(Taken(u"a", sample), u"5aZßäİﬁか");
}

TEST(MaskLanguage, QuestionMark_TakesALetter)
{
    EXPECT_EQ(Taken(u"?", sample), u"aZßäİﬁか");
}

TEST(MaskLanguage, C_TakesAnyCharacterOrBlank)
{
    EXPECT_EQ(Taken(u"C", sample), sample);
}

TEST(MaskLanguage, Ampersand_TakesAnyPrintableCharacter)
{
    EXPECT_EQ(Taken(u"&", sample), u"5 aZßäİﬁか_-\xD83D\xDE00");
    EXPECT_EQ(Taken(u"&", u"\r\n\x1B\x7F\x80\x9F\xA0"), u"\xA0");
}

TEST(MaskLanguage, LoneSurrogates_AreNeitherLettersNorDigits)
{
    for (const std::u16string_view mask : {u"#", u"9", u"A", u"a", u"?", u">?", u"<A"})
        EXPECT_EQ(Taken(mask, u"\xD83D\xDE00\xD801"), u"");
}

TEST(MaskLanguage, WhatFollowsTheSigns_TurnsToUpperOrLowerCase)
{
    EXPECT_EQ(Taken(u">&", u"aZßäİﬁか5"), u"AZßÄİﬁか5");
    EXPECT_EQ(Taken(u"<&", u"aZßÄİﬁか5").substr(0, 4), u"azßä");
    EXPECT_EQ(Taken(u"<&", u"İ").size(), 1u);
    EXPECT_EQ(Taken(u"&", u"aZ"), u"aZ");
}

TEST(MaskLanguage, CaseSigns_TakeNoPosition_AndHoldUntilTheNext)
{
    MaskBox box(u"?>?\?<??");
    EXPECT_EQ(box.State.ShownText(), u"_____");
    EXPECT_EQ(box.Typing(u"aBcDe").State.ShownText(), u"aBCde");
}

TEST(MaskLanguage, CaseSigns_LeaveLiteralsAlone)
{
    EXPECT_EQ(MaskBox(u">xy?").State.ShownText(), u"xy_");
}

TEST(MaskLanguage, Backslash_MakesTheNextCharacterALiteral)
{
    EXPECT_EQ(MaskBox(u"\\#\\A\\\\\\>#").State.ShownText(), u"#A\\>_");
}

TEST(MaskLanguage, AnyOtherCharacter_IsALiteral)
{
    EXPECT_EQ(MaskBox(u"(#) x_ß😀").State.ShownText(), u"(_) x_ß😀");
}

TEST(MaskLanguage, SeparatorSigns_StandForTheLocalesOwn)
{
    Locale locale = Locale::English();
    locale.DecimalSeparator = u'd';
    locale.GroupSeparator = u'g';
    locale.TimeSeparator = u't';
    locale.DateSeparator = u's';
    EXPECT_EQ(Literals(u"#.#,#:#/#", locale), u"dgts");
    EXPECT_EQ(Literals(u"\\.\\,\\:\\/", locale), u".,:/");
}

TEST(MaskLanguage, LoneBackslashAtTheEnd_CannotBeRead)
{
    const Locale locale = Locale::English();
    EXPECT_FALSE(MaskPattern::Read(u"##\\", locale));
    EXPECT_FALSE(MaskPattern::Read(u"\\", locale));
    EXPECT_TRUE(MaskPattern::Read(u"##\\\\", locale));
    EXPECT_TRUE(MaskPattern::Read(u"", locale));
}

} // namespace
} // namespace Tessellon
