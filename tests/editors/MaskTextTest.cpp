#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon {
namespace {

std::u16string Prepared(std::u16string text, std::u16string mask)
{
    SheetUnderTest sheet;
    SheetProbe(*sheet).FormatStr(text, std::move(mask));
    EXPECT_EQ(sheet.TakeEvents(), Lines());
    return text;
}

struct MaskCase {
    const char* Name;
    std::u16string Text;
    std::u16string Mask;
    std::u16string Prepared;
};

class MaskText : public testing::TestWithParam<MaskCase> {};

TEST_P(MaskText, IsPreparedByTheRule)
{
    EXPECT_EQ(Prepared(GetParam().Text, GetParam().Mask), GetParam().Prepared);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MaskText,
    testing::Values(
        MaskCase{"AsLongAsTheMask_LosesItsLiterals", u"12/05/2002", u"##/##/####", u"12052002"},
        MaskCase{"ShorterWithLiterals_IsPaddedByWhatItLacksAsItStood", u"1/5/2002", u"##/##/####", u"  152002"},
        MaskCase{"ShorterWithoutLiterals_IsPaddedByWhatItsFormatLacks", u"152002", u"##/##/####", u"  152002"},
        MaskCase{"ShorterWhoseFormatFillsTheMask_IsNotPadded", u"12052002", u"##/##/####", u"12052002"},
        MaskCase{"MaskOfBlanks_CountsAsEmpty", u" 1/2 ", u"   ", u" 1/2 "},
        MaskCase{"MaskWithoutLiterals_LeavesTheText", u"1/2", u"####", u"1/2"},
        MaskCase{"LiteralsAndBlanks_KeepsTheBlanks", u"/ /", u"##/##", u" "},
        MaskCase{"LongerByALiteral_KeepsThatInFront", u"/12/34", u"##/##", u"/1234"},
        MaskCase{"MaskWithBlanksAround_IsTrimmed", u"12/34", u"  ##/##  ", u"1234"},
        MaskCase{"TypedCharacterThatIsALiteralToo_GoesToo", u"-1-2-", u"##-##", u"12"},
        MaskCase{"LiteralsWhereverTheyStand_Go", u"1//23", u"##/##", u"123"}),
    [](const auto& prepared) { return std::string(prepared.param.Name); });

TEST(MaskText, CaseOfLiterals_Counts)
{
    EXPECT_EQ(Prepared(u"Xx12", u"\\x-##"), u" X12");
}

TEST(MaskText, EmptyTextOrEmptyMask_LeavesTheTextWithItsBlanks)
{
    EXPECT_EQ(Prepared(u"", u"##/##"), u"");
    EXPECT_EQ(Prepared(u" 1/2 ", u""), u" 1/2 ");
}

TEST(MaskText, NothingButLiterals_GivesTheEmptyText)
{
    EXPECT_EQ(Prepared(u"/", u"##/##"), u"");
    EXPECT_EQ(Prepared(u"-/-", u"#-#/#"), u"");
}

TEST(MaskText, TextLongerThanTheMask_KeepsItsSurplusInFrontSoThatItStandsTwice)
{
    EXPECT_EQ(Prepared(u"123/45", u"##/##"), u"112345");
    EXPECT_EQ(Prepared(u"1/2/34", u"##/##"), u"11234");
    EXPECT_EQ(Prepared(u"1/23/45/67", u"##/##"), u"1/23/1234567");
}

TEST(MaskText, TextOfTheMasksLengthWithoutLiterals_StaysAsItIs)
{
    EXPECT_EQ(Prepared(u"12345", u"##/##"), u"12345");
    EXPECT_EQ(Prepared(u"45061", u"mmmm/"), u"45061") << "as a date it would be shorter";
}

TEST(MaskText, Failure_IsReportedAndLeavesWhatTheTextWasByThen)
{
    SheetUnderTest sheet;
    SheetProbe probe(*sheet);
    // The number is no date of the years that there are: its format as a date fails.
    std::u16string text = u"99999999";
    probe.FormatStr(text, u"dddd dddd/mmmm/yyyy");
    EXPECT_EQ(text, u"99999999");
    EXPECT_EQ(Labels(sheet.TakeEvents()), Lines{"FormatStr"});
}

} // namespace
} // namespace Tessellon
