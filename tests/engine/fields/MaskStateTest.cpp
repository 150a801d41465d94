#include "MaskFixture.h"

namespace Tessellon {
namespace {

TEST(MaskedBox, MaskThatCannotBeRead_IsRefusedAndTheBoxKeepsWhatItHad)
{
    MaskBox box(u"##-##");
    box.Typing(u"12").At(1);
    EXPECT_FALSE(box.State.Mask(u"##\\"));
    EXPECT_EQ(box.State.Mask(), u"##-##");
    EXPECT_EQ(box.State.Text(), u"12-__");
    EXPECT_EQ(box.State.Caret(), 1);
}

TEST(MaskedBox, TextWithPromptInclude_CarriesPromptsAndLiterals)
{
    MaskBox box(u"##-##");
    EXPECT_EQ(box.State.Text(), u"__-__");
    EXPECT_EQ(box.Typing(u"123").State.Text(), u"12-3_");
}

TEST(MaskedBox, TextWithoutPromptInclude_CarriesNeither)
{
    MaskBox box(u"##-##");
    box.Typing(u"123");
    box.State.PromptInclude(false);
    EXPECT_EQ(box.State.Text(), u"123");
    EXPECT_EQ(box.State.ShownText(), u"12-3_");
}

TEST(MaskedBox, PromptIncludeWritten_LeavesTheCaret)
{
    MaskBox box(u"##-##");
    box.Typing(u"123");
    box.State.PromptInclude(false);
    EXPECT_EQ(box.State.Caret(), 4);
}

TEST(MaskedBox, FormattedText_HasLiteralsInPlaceAndBlanksForWhatIsNotFilled)
{
    MaskBox box(u"(##) ##");
    EXPECT_EQ(box.State.FormattedText(), u"(  )   ");
    EXPECT_EQ(box.Typing(u"123").State.FormattedText(), u"(12) 3 ");
    box.State.PromptInclude(false);
    EXPECT_EQ(box.State.FormattedText(), u"(12) 3 ");
}

TEST(MaskedBox, FormattedTextUnderAMask_LeavesTheFormatAside)
{
    MaskBox box(u"##");
    box.State.Format(u"0.00");
    EXPECT_EQ(box.Typing(u"1").State.FormattedText(), u"1 ");
}

TEST(MaskedBox, FormattedTextWithoutAMask_IsTheTextThroughTheFormat)
{
    MaskBox box;
    box.State.Format(u"0.00");
    EXPECT_EQ(box.State.Text(u"12"), MaskWrite::Changed);
    EXPECT_EQ(box.State.FormattedText(), u"12.00");
    EXPECT_EQ(box.State.Text(), u"12");
}

TEST(MaskedBox, FormattedTextReadTwice_IsTheSame)
{
    MaskBox box;
    box.State.Format(u"0.00");
    EXPECT_EQ(box.State.Text(u"12"), MaskWrite::Changed);
    EXPECT_EQ(box.State.FormattedText(), u"12.00");
    EXPECT_EQ(box.State.FormattedText(), u"12.00");
}

TEST(MaskedBox, FormattedTextWithoutMaskAndFormat_IsTheText)
{
    MaskBox box;
    EXPECT_EQ(box.State.Text(u"12"), MaskWrite::Changed);
    EXPECT_EQ(box.State.FormattedText(), u"12");
}

TEST(MaskedBox, FormattedTextOfBlanksAloneWithoutAMask_StaysAsItIs)
{
    MaskBox box;
    box.State.Format(u"##-##");
    EXPECT_EQ(box.State.Text(u"   "), MaskWrite::Changed);
    EXPECT_EQ(box.State.FormattedText(), u"   ");
}

TEST(MaskedBox, WithoutAMask_IsAPlainTextField)
{
    MaskBox box;
    EXPECT_EQ(box.State.Type(u'a'), MaskTyping::Taken);
    EXPECT_EQ(box.State.Type(u'c'), MaskTyping::Taken);
    box.State.Left();
    EXPECT_EQ(box.State.Type(u'b'), MaskTyping::Taken);
    EXPECT_EQ(box.State.Text(), u"abc");
    EXPECT_EQ(box.State.Caret(), 2);
    EXPECT_TRUE(box.State.Delete());
    EXPECT_TRUE(box.State.Backspace());
    EXPECT_EQ(box.State.Text(), u"a");
    box.State.Home();
    EXPECT_EQ(box.State.Caret(), 0);
    box.State.End();
    EXPECT_EQ(box.State.Caret(), 1);
    box.State.Right();
    EXPECT_EQ(box.State.Caret(), 1);
    EXPECT_TRUE(box.State.Caret(9));
    EXPECT_EQ(box.State.Caret(), 1);
    EXPECT_FALSE(box.State.Caret(-1));
}

TEST(MaskedBox, MaxLengthLimitsTyping_ButNotUnderAMask)
{
    MaskBox plain;
    plain.State.MaxLength(2);
    EXPECT_EQ(plain.Typing(u"abc").State.Text(), u"ab");
    EXPECT_EQ(plain.State.Type(u'c'), MaskTyping::Refused);
    EXPECT_EQ(plain.State.Text(u"abcd"), MaskWrite::Changed);
    EXPECT_EQ(plain.State.Text(), u"abcd");

    MaskBox masked(u"####");
    masked.State.MaxLength(2);
    EXPECT_EQ(masked.Typing(u"1234").State.Text(), u"1234");
}

TEST(MaskedBox, TextWrittenThatDoesNotFit_IsRefusedAndTheBoxKeepsWhatItHad)
{
    for (const std::u16string_view text : {u"ab", u"12345", u"1x", u"12+34", u"12-345", u"12-34 "}) {
        MaskBox box(u"##-##");
        box.Typing(u"99").At(1);
        EXPECT_EQ(box.State.Text(text), MaskWrite::DoesNotFit);
        EXPECT_EQ(box.State.Text(), u"99-__");
        EXPECT_EQ(box.State.Caret(), 1);
    }
}

TEST(MaskedBox, TextWritten_MayCarryLiteralsAndPromptsOrNeither)
{
    MaskBox box(u"##-##");
    EXPECT_EQ(box.State.Text(u"1234"), MaskWrite::Changed);
    EXPECT_EQ(box.State.Text(), u"12-34");
    EXPECT_EQ(box.State.Text(u"5_-6_"), MaskWrite::Changed);
    EXPECT_EQ(box.State.Text(), u"5_-6_");
    EXPECT_EQ(box.State.Text(u"78-9"), MaskWrite::Changed);
    EXPECT_EQ(box.State.Text(), u"78-9_");
    EXPECT_EQ(box.State.Text(u""), MaskWrite::Changed);
    EXPECT_EQ(box.State.Text(), u"__-__");
}

TEST(MaskedBox, TextWrittenWithoutPromptInclude_FillsPlacesAlone)
{
    MaskBox box(u"&-&");
    box.State.PromptInclude(false);
    EXPECT_EQ(box.State.Text(u"a-"), MaskWrite::Changed);
    EXPECT_EQ(box.State.Text(), u"a-");
    EXPECT_EQ(box.State.ShownText(), u"a--");
    EXPECT_EQ(box.State.Text(u"a-b"), MaskWrite::Changed);
    EXPECT_EQ(box.State.ShownText(), u"a-b");
}

TEST(MaskedBox, PromptInATextWrittenWithoutPromptInclude_IsACharacter)
{
    MaskBox box(u"&#");
    box.State.PromptInclude(false);
    EXPECT_EQ(box.State.Text(u"_"), MaskWrite::Changed);
    EXPECT_EQ(box.State.Text(), u"_");
    EXPECT_EQ(box.State.FormattedText(), u"_ ");
    EXPECT_EQ(box.State.Text(u"a_"), MaskWrite::DoesNotFit);
}

TEST(MaskedBox, BlankInAWrittenText_PassesOverAPlaceThatTakesNone)
{
    MaskBox box(u"?\?-##");
    EXPECT_EQ(box.State.Text(u" a 1"), MaskWrite::Changed);
    EXPECT_EQ(box.State.Text(), u"_a- 1");
    EXPECT_EQ(box.State.FormattedText(), u" a- 1");
}

TEST(MaskedBox, TextThatBecomesAnother_PutsTheCaretToZero_AndOneThatDoesNotLeavesIt)
{
    MaskBox box(u"##-##");
    box.Typing(u"123");
    EXPECT_EQ(box.State.Text(u"12-3_"), MaskWrite::Same);
    EXPECT_EQ(box.State.Text(u"12-3"), MaskWrite::Same);
    EXPECT_EQ(box.State.Caret(), 4);
    EXPECT_EQ(box.State.Text(u"124"), MaskWrite::Changed);
    EXPECT_EQ(box.State.Caret(), 0);
}

TEST(MaskedBox, WrittenText_TakesTheCaseOfItsPlaces)
{
    MaskBox box(u">?\?<??");
    EXPECT_EQ(box.State.Text(u"abCD"), MaskWrite::Changed);
    EXPECT_EQ(box.State.Text(), u"ABcd");
}

TEST(MaskedBox, MaskWrittenOverAText_TakesItsCharactersFromTheLeft)
{
    MaskBox box;
    EXPECT_EQ(box.State.Text(u"12052002"), MaskWrite::Changed);
    EXPECT_TRUE(box.State.Mask(u"##/##/####"));
    EXPECT_EQ(box.State.Text(), u"12/05/2002");
    EXPECT_EQ(box.State.FormattedText(), u"12/05/2002");
}

TEST(MaskedBox, MaskWrittenOverAText_KeepsBlanksThatItsPlacesTake)
{
    MaskBox box;
    EXPECT_EQ(box.State.Text(u"  152002"), MaskWrite::Changed);
    EXPECT_TRUE(box.State.Mask(u"##/##/####"));
    EXPECT_EQ(box.State.Text(), u"  /15/2002");
}

TEST(MaskedBox, MaskWrittenOverAText_LetsABlankPassOverAPlaceThatTakesNone)
{
    MaskBox box;
    EXPECT_EQ(box.State.Text(u" a b"), MaskWrite::Changed);
    EXPECT_TRUE(box.State.Mask(u"????"));
    EXPECT_EQ(box.State.Text(), u"_a_b");
}

TEST(MaskedBox, MaskWrittenOverAText_DropsWhatDoesNotFitAndWhatIsLeftOver)
{
    MaskBox box;
    EXPECT_EQ(box.State.Text(u"x1y2z34"), MaskWrite::Changed);
    EXPECT_TRUE(box.State.Mask(u"#-##"));
    EXPECT_EQ(box.State.Text(), u"1-23");
}

TEST(MaskedBox, MaskWrittenOverAText_DropsAPairOfSurrogatesWhole)
{
    MaskBox box;
    EXPECT_EQ(box.State.Text(u"a😀b😀"), MaskWrite::Changed);
    EXPECT_TRUE(box.State.Mask(u"&-&-&"));
    EXPECT_EQ(box.State.Text(), u"a-b-_");
    MaskBox other;
    EXPECT_EQ(other.State.Text(u"a😀b😀"), MaskWrite::Changed);
    EXPECT_TRUE(other.State.Mask(u"&&&&&"));
    EXPECT_EQ(other.State.Text(), u"a😀b_");
}

TEST(MaskedBox, MaskWrittenOverAText_TurnsItsCase)
{
    MaskBox box;
    EXPECT_EQ(box.State.Text(u"straße"), MaskWrite::Changed);
    EXPECT_TRUE(box.State.Mask(u">??????"));
    EXPECT_EQ(box.State.Text(), u"STRAßE");
}

TEST(MaskedBox, MaskWritten_PutsTheCaretToZero)
{
    MaskBox box(u"####");
    box.Typing(u"12");
    EXPECT_TRUE(box.State.Mask(u"####"));
    EXPECT_EQ(box.State.Text(), u"12__");
    EXPECT_EQ(box.State.Caret(), 0);
    box.At(2);
    EXPECT_TRUE(box.State.Mask(u""));
    EXPECT_EQ(box.State.Caret(), 0);
    box.At(2);
    EXPECT_TRUE(box.State.Mask(u""));
    EXPECT_EQ(box.State.Caret(), 0);
}

TEST(MaskedBox, MaskEmptied_LeavesWhatTextReads)
{
    MaskBox with(u"##-##");
    with.Typing(u"123");
    EXPECT_TRUE(with.State.Mask(u""));
    EXPECT_EQ(with.State.Text(), u"12-3_");

    MaskBox without(u"##-##");
    without.Typing(u"123");
    without.State.PromptInclude(false);
    EXPECT_TRUE(without.State.Mask(u""));
    EXPECT_EQ(without.State.Text(), u"123");
}

TEST(MaskedBox, MaskWrittenOverAnother_PutsOnTheCharactersFilledIn)
{
    MaskBox box(u"&&-&&");
    box.Typing(u"ab-c");
    EXPECT_TRUE(box.State.Mask(u"&/&/&/&"));
    EXPECT_EQ(box.State.Text(), u"a/b/c/_");
}

TEST(MaskedBox, CellEntryOrder_LoadsTextThenMask)
{
    MaskBox box(u"##/##/####");
    box.Typing(u"99");
    box.State.PromptInclude(false);
    EXPECT_TRUE(box.State.Mask(u""));
    EXPECT_EQ(box.State.Text(u""), MaskWrite::Changed);
    EXPECT_EQ(box.State.Text(u"12052002"), MaskWrite::Changed);
    EXPECT_TRUE(box.State.Mask(u"##/##/####"));
    box.State.PromptInclude(true);
    EXPECT_EQ(box.State.Text(), u"12/05/2002");
    EXPECT_EQ(box.State.Caret(), 0);
}

} // namespace
} // namespace Tessellon
