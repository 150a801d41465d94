#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon {
namespace {

struct MaskCase {
    const char* Name;
    std::u16string Text;
    std::u16string Mask;
    std::u16string Prepared;
};

class MaskText : public testing::TestWithParam<MaskCase> {};

TEST_P(MaskText, IsPreparedByTheRule)
{
    SheetUnderTest sheet;
    SheetProbe probe(*sheet);
    std::u16string text = GetParam().Text;
    probe.FormatStr(text, GetParam().Mask);
    EXPECT_EQ(text, GetParam().Prepared);
    EXPECT_EQ(sheet.TakeEvents(), Lines());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MaskText,
    testing::Values(
        MaskCase{"AsLongAsTheMask_LosesItsLiterals", u"12/05/2002", u"##/##/####", u"12052002"},
        MaskCase{"ShorterWithLiterals_IsPaddedByWhatItLacksAsItStood", u"1/5/2002", u"##/##/####", u"  152002"},
        MaskCase{"ShorterWithoutLiterals_IsPaddedByWhatItsFormatLacks", u"152002", u"##/##/####", u"  152002"},
        MaskCase{"ShorterWhoseFormatFillsTheMask_IsNotPadded", u"12052002", u"##/##/####", u"12052002"},
        MaskCase{"Empty_StaysEmpty", u"", u"##/##", u""},
        MaskCase{"EmptyMask_LeavesTheBlanksToo", u" 1/2 ", u"", u" 1/2 "},
        MaskCase{"MaskOfBlanks_CountsAsEmpty", u" 1/2 ", u"   ", u" 1/2 "},
        MaskCase{"MaskWithoutLiterals_LeavesTheText", u"1/2", u"####", u"1/2"},
        MaskCase{"AllLiterals_GivesNothing", u"/", u"##/##", u""},
        MaskCase{"LiteralsAndBlanks_KeepsTheBlanks", u"/ /", u"##/##", u" "},
        MaskCase{"LongerThanTheMask_KeepsItsFrontTwice", u"123/45", u"##/##", u"112345"},
        MaskCase{"LongerByALiteral_KeepsThatInFront", u"/12/34", u"##/##", u"/1234"},
        MaskCase{"ExactLengthWithoutLiterals_StaysAsItIs", u"12345", u"##/##", u"12345"},
        MaskCase{"MaskWithBlanksAround_IsTrimmed", u"12/34", u"  ##/##  ", u"1234"},
        MaskCase{"TypedCharacterThatIsALiteralToo_GoesToo", u"-1-2-", u"##-##", u"12"},
        MaskCase{"LiteralsWhereverTheyStand_Go", u"1//23", u"##/##", u"123"}),
    [](const auto& prepared) { return std::string(prepared.param.Name); });

TEST(MaskText, CaseOfLiterals_Counts)
{
    SheetUnderTest sheet;
    SheetProbe probe(*sheet);
    std::u16string text = u"Xx12";
    probe.FormatStr(text, u"\\x-##");
    EXPECT_EQ(text, u" X12");
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
