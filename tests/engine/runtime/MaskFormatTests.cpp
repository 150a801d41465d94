#include "Texts.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <iterator>

namespace Tessellon {
namespace {

struct TextCase {
    std::u16string_view Text;
    std::u16string_view Format;
    std::u16string_view Result;
};

void ExpectTexts(const RunTimeFunctions& functions, std::initializer_list<TextCase> cases)
{
    for (const auto& [text, format, result] : cases)
        EXPECT_EQ(Shown(FormatText(text, format, functions)), Shown(result)) << Shown(text) << " in " << Shown(format);
}

TEST(MaskFormat, UnitsOfAText_FillThePlacesFromTheRightEnd)
{
    ExpectTexts(At2024(), {{u"AB123", u"?\?-###", u"AB-123"},
                           {u"12345", u"@@-@@@", u"12-345"},
                           {u"abc", u"&&-&&&", u"-abc"},
                           {u"abcd", u"CC/CC", u"ab/cd"},
                           {u"abcd", u"AA.aa", u"ab.cd"},
                           {u"1234", u"99:99", u"12:34"},
                           {u"x12", u"###-#", u"x1-2"},
                           {u"abc", u"#,###", u",abc"}});
}

TEST(MaskFormat, PlacesLeftOver_GiveNothingButAtSignsABlank)
{
    ExpectTexts(At2024(), {{u"12", u"99-99-99", u"--12"},
                           {u"1x", u"##/##/####", u"//1x"},
                           {u"abc", u"@@@@@", u"  abc"},
                           {u"abc", u"&&&&&", u"abc"},
                           {u"123", u"(@@@) @@@-@@@@", u"(   )    - 123"}});
}

TEST(MaskFormat, UnitsLeftOver_GoInFrontOfAll)
{
    ExpectTexts(At2024(),
                {{u"abcde", u"(?\?) ?", u"ab(cd) e"}, {u"12345", u"@@-@", u"1234-5"}, {u"abcde", u"-?", u"abcd-e"}});
}

TEST(MaskFormat, ExclamationMark_FillsFromTheLeft)
{
    ExpectTexts(At2024(), {{u"abc", u"!@@@@@", u"abc  "},
                           {u"abc", u"@@@@@!", u"abc  "},
                           {u"abc", u"!&&-&&", u"ab-c"},
                           {u"abcdef", u"!@@-@@", u"ab-cdef"},
                           {u"abc", u"!", u"abc"}});
}

TEST(MaskFormat, SignsOfCase_TurnTheText)
{
    ExpectTexts(At2024(), {{u"Straße", u">", u"STRAßE"},
                           {u"HÄUSER", u"<", u"häuser"},
                           {u"abc", u">@@@@", u" ABC"},
                           {u"abcde", u">@@@", u"ABCDE"},
                           {u"abc", u"@@@>", u"ABC"},
                           {u"mCDONALD", u">?<???????", u"Mcdonald"},
                           {u"ab", u">?x?", u"AxB"},
                           {u"12a", u"<", u"12a"},
                           {u"12", u">", u"12"},
                           {u"ﬁ\xD800ß", u">", u"ﬁ\xD800ß"}});
}

TEST(MaskFormat, TextOfBlanks_GivesTheLiteralsWithBlanksBetween)
{
    ExpectTexts(At2024(), {{u"        ", u"##/##/####", u"  /  /    "},
                           {u"          ", u"##/##/####", u"    /  /    "},
                           {u"   ", u"##-##", u" -  "},
                           {u"     ", u"(###)", u"  (   )"},
                           {u" ", u"0;0", u" 0;0"},
                           {u"  ", u"0##;9", u"0 ; "},
                           {u"  ", u"dd/MM", u"  dd/MM"},
                           {u"  ", u"\\##\"##\"#", u"# ## "},
                           {u"  ", u"%E+0", u"  %E+0"},
                           {u" ", u">", u" "},
                           {u" ", u"", u" "},
                           {u"  ", u"Fixed", u"  "},
                           {u"  ", u"short date", u"  "},
                           {u"  ", u"@@;@@", u"  ;  "},
                           {u"  ", u"&&;&&", u";  "}});
}

TEST(MaskFormat, SeparatorsAreTheLocales_AndLiterals)
{
    ExpectTexts(At2024(Locale::German()), {{u"        ", u"##/##/####", u"  .  .    "},
                                           {u"      ", u"##.##,##", u"  ,  .  "},
                                           {u"ab", u"?:?", u"a:b"},
                                           {u"ab", u"?\\/?", u"a/b"}});
}

TEST(MaskFormat, NumericText_IsANumberInAFormatOfNumbersAndNoMask)
{
    ExpectTexts(At2024(), {{u"4111111111111111", u"####-####-####-####", u"4111-1111-1111-1111"},
                           {u"123", u"##/##/####", u"//123"},
                           {u"1234.5", u"#,##0.00", u"1,234.50"},
                           {u"-5", u"0;(0)", u"(5)"},
                           {u"0.5", u"0%", u"50%"},
                           {u"1234", u"##-AA", u"12-34"},
                           {u"1234", u"##-99", u"12-34"},
                           {u"12", u"##-?\?-##", u"--12"},
                           {u"12", u"AAA", u"12"},
                           {u"5", u"0 CAD", u"5 CAD"},
                           {u"5", u"0 A", u"5 A"},
                           {u"5", u"# days", u"5 days"},
                           {u"12", u"@@@@", u"  12"}});
}

TEST(MaskFormat, TextThatIsNotNumeric_StaysInAFormatWithZero)
{
    ExpectTexts(At2024(), {{u"abc", u"0.00", u"abc"},
                           {u"abc", u"#,##0;(0)", u"abc"},
                           {u"15/03/2024", u"0.00", u"15/03/2024"},
                           {u"ab1", u"0##-??", u"ab1"},
                           {u"abc", u"\\0??", u"a0bc"},
                           {u"abc", u"%", u"abc"}});
}

TEST(MaskFormat, EmptyText_IsEmptyUnlessTheFormatHasTextPlaces)
{
    ExpectTexts(At2024(), {{u"", u"0.00", u""},
                           {u"", u"dd/MM/yyyy", u""},
                           {u"", u"##-##", u""},
                           {u"", u"99-??", u""},
                           {u"", u"Currency", u""},
                           {u"", u"\"@\"", u""},
                           {u"", u"", u""},
                           {u"", u"@@-@@", u"  -  "},
                           {u"", u"&&-&&", u"-"},
                           {u"", u"@@;\"none\"", u"none"},
                           {u"ab", u"@@;\"none\"", u"ab"}});
}

TEST(MaskFormat, TextInADateFormat_IsADateElseASerial)
{
    ExpectTexts(At2024(), {{u"15/03/2024", u"yyyy-MM-dd", u"2024-03-15"},
                           {u"3 April 2024 10:30", u"dd.MM. hh:nn", u"03.04. 10:30"},
                           {u"45366", u"dd/MM/yyyy", u"15/03/2024"},
                           {u"0.75", u"hh:nn", u"18:00"},
                           {u"10:30", u"hh:nn AM/PM", u"10:30 AM"},
                           {u"1-2", u"d mmm", u"1 Feb"},
                           {u"abc", u"dd/MM/yyyy", u"abc"},
                           {u"32/01/2024", u"dd/MM/yyyy", u"32/01/2024"},
                           {u"15/03/2024", u"c", u"15/03/2024"},
                           {u"15/03/2024", u"dd/##", u"15/03/20dd/24"}});
}

TEST(MaskFormat, TextInANamedFormat_IsConvertedOrStays)
{
    ExpectTexts(At2024(), {{u"1234.5", u"Standard", u"1,234.50"},
                           {u"15 March 2024", u"Short Date", u"15/03/2024"},
                           {u"45366", u"long date", u"Friday, 15 March 2024"},
                           {u"0", u"Yes/No", u"No"},
                           {u"abc", u"Fixed", u"abc"},
                           {u"abc", u"Short Date", u"abc"},
                           {u"15/03/2024", u"Fixed", u"15/03/2024"}});
}

TEST(MaskFormat, FormatWithoutPlaces_LeavesTheText)
{
    ExpectTexts(At2024(), {{u"abc", u"kg", u"abc"},
                           {u"abc", u"--", u"abc"},
                           {u"12", u"\"x\"", u"12"},
                           {u"abc", u"\\", u"abc"},
                           {u"abc", u"\"", u"abc"},
                           {u"abc", u";", u"abc"}});
}

TEST(MaskFormat, NumbersInAMask_AreTheirText)
{
    const RunTimeFunctions functions = At2024();
    EXPECT_EQ(functions.Format(Value::OfInteger(1234), u"##-AA"), u"12-34");
    EXPECT_EQ(functions.Format(Value::OfInteger(12), u"@@@@"), u"  12");
    EXPECT_EQ(functions.Format(Value::OfDouble(1.5), u"@@@@@"), u"  1.5");
    EXPECT_EQ(functions.Format(Value::OfDate(45366), u"@@@@@@@@@@@"), u" 15/03/2024");
    EXPECT_EQ(functions.Format(Value::OfInteger(12), u"99.99"), u".12");
}

TEST(MaskFormat, ExtremeTextsAndMasks_AreDone)
{
    const std::u16string letters(100'000, u'x');
    EXPECT_EQ(FormatText(letters, u"?\?-??"), letters.substr(4) + u"xx-xx");
    EXPECT_EQ(FormatText(u"ab", std::u16string(100'000, u'?')), u"ab");
    EXPECT_EQ(FormatText(u"ab", std::u16string(100'000, u'@')).size(), 100'000U);
    EXPECT_EQ(FormatText(u"ab", std::u16string(100'000, u'>')), u"AB");
    EXPECT_EQ(FormatText(letters, letters), letters);
    EXPECT_EQ(FormatText(std::u16string_view(u"a\0b", 3), u"?-?-?"), std::u16string_view(u"a-\0-b", 5));
    EXPECT_EQ(FormatText(u"\xD83D\xDE00", u"?-?"), u"\xD83D-\xDE00");
    EXPECT_EQ(FormatText(u"ab", std::u16string_view(u"?\0?", 3)), std::u16string_view(u"a\0b", 3));
}

/// What the preparation of a mask's text does with these functions.
std::u16string Skeleton(std::u16string_view mask, const RunTimeFunctions& functions)
{
    return FormatText(std::u16string(mask.size(), u' '), mask, functions);
}

RC_GTEST_PROP(MaskFormat, Skeleton_HasTheLiteralsInTheirOrder, ())
{
    const auto mask = *rc::gen::nonEmpty(
        rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"##99Aa?C&--()/:.,x0"))));
    std::u16string literals;
    std::ranges::copy_if(mask, std::back_inserter(literals), [](char16_t unit) {
        return std::u16string_view(u"#9Aa?C&").find(unit) == std::u16string::npos;
    });
    std::u16string skeleton = Skeleton(mask, At2024());
    std::erase(skeleton, u' ');
    RC_ASSERT(skeleton == literals);
}

RC_GTEST_PROP(MaskFormat, TextAsLongAsThePlaces_FillsThemAll, ())
{
    const auto text =
        *rc::gen::nonEmpty(rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"abcXYZäß"))));
    std::u16string mask;
    for (std::size_t i = 0; i < text.size(); ++i)
        mask += u"?-";
    std::u16string filled = FormatText(text, mask);
    RC_ASSERT(filled.size() == mask.size());
    std::erase(filled, u'-');
    RC_ASSERT(filled == text);
}

} // namespace
} // namespace Tessellon
