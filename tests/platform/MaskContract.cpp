#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

class MaskContract : public PlatformContract, public ::testing::WithParamInterface<PlatformFactory> {
protected:
    MaskContract() { Mask().PromptInclude(true); }

    void Masked(std::u16string_view mask)
    {
        Mask().Mask(mask);
        Enter(Mask());
    }
    std::string Shown() { return Narrow(Mask().Text()); }
    std::string Typed(std::u16string_view text)
    {
        Type(text);
        return Shown();
    }
};

INSTANTIATE_TEST_SUITE_P(On, MaskContract, ::testing::Values(TheFactory()), PlatformName);

TEST_P(MaskContract, EachSign_TakesItsOwnCharacters)
{
    const auto takes = [&](std::u16string_view mask, char16_t character) {
        Masked(u"");
        Mask().Text(u"");
        Masked(mask);
        const int before = Under->Bells();
        Type({&character, 1});
        return Under->Bells() == before;
    };
    EXPECT_TRUE(takes(u"#", u'7') && takes(u"#", u' ') && !takes(u"#", u'x'));
    EXPECT_TRUE(takes(u"9", u'7') && takes(u"9", u' ') && !takes(u"9", u'x'));
    EXPECT_TRUE(takes(u"A", u'7') && takes(u"A", u'x') && !takes(u"A", u'-'));
    EXPECT_TRUE(takes(u"a", u'7') && takes(u"a", u'x') && !takes(u"a", u'-'));
    EXPECT_TRUE(takes(u"?", u'x') && !takes(u"?", u'7'));
    EXPECT_TRUE(takes(u"C", u'-') && takes(u"C", u' '));
    EXPECT_TRUE(takes(u"&", u'-') && takes(u"&", u'x'));
}

TEST_P(MaskContract, CaseSigns_TurnWhatFollows)
{
    Masked(u">?<?A");
    EXPECT_EQ(Typed(u"aBC"), "Abc");
}

TEST_P(MaskContract, PromptInclude_DecidesWhetherTextCarriesPromptsAndLiterals)
{
    Masked(u"(##)-\\##");
    EXPECT_EQ(Typed(u"1"), "(1_)-#_");
    Mask().PromptInclude(false);
    EXPECT_EQ(Shown(), "1");
}

TEST_P(MaskContract, FormattedText_HasLiteralsInPlace_AndBlanksForWhatIsNotFilled)
{
    Masked(u"(##)");
    Type(u"1");
    EXPECT_EQ(Mask().FormattedText(), u"(1 )");
}

TEST_P(MaskContract, FormattedText_WithoutAMask_IsTheTextThroughFormat)
{
    Mask().Mask(u"");
    Mask().Format(u"0.00");
    Mask().Text(u"5");
    EXPECT_EQ(Mask().FormattedText(), u"5.00");
    Mask().Text(u"   ");
    EXPECT_EQ(Mask().FormattedText(), u"   ");
}

TEST_P(MaskContract, CharacterThatDoesNotFit_IsNotTaken_AndSoundsTheBell)
{
    Masked(u"##");
    EXPECT_EQ(Typed(u"x"), "__");
    EXPECT_EQ(Under->Bells(), 1);
    EXPECT_EQ(Mask().SelStart(), 0);
}

TEST_P(MaskContract, TextWrittenThatDoesNotFit_IsFailure380_AndTheBoxKeepsWhatItHad)
{
    Masked(u"##");
    Type(u"12");
    EXPECT_EQ(NumberOf([&] { Mask().Text(u"ab"); }), 380);
    EXPECT_EQ(Shown(), "12");
}

TEST_P(MaskContract, MaskThatCannotBeRead_IsFailure380_OfTheInstance)
{
    EXPECT_EQ(NumberOf([&] { Mask().Mask(u"##\\"); }), 380);
    EXPECT_EQ(SourceOf([&] { Mask().Mask(u"##\\"); }), "MaskEdBox1(0)");
}

TEST_P(MaskContract, MaskWrittenOverAText_PutsItsCharactersIntoThePlacesFromTheLeft)
{
    Mask().Text(u"1x 23456");
    Masked(u"##-##");
    EXPECT_EQ(Shown(), "1 -23");
    EXPECT_EQ(Mask().SelStart(), 0);
}

TEST_P(MaskContract, Typing_ReplacesThePlaceAtTheCaret_AndShiftsNothing)
{
    Masked(u"###");
    Type(u"123");
    Mask().SelStart(1);
    EXPECT_EQ(Typed(u"9"), "193");
    EXPECT_EQ(Mask().SelStart(), 2);
}

TEST_P(MaskContract, CharacterAtALiteral_PassesItOrGoesToTheNextPlace)
{
    Masked(u"##/##");
    Type(u"12");
    EXPECT_EQ(Mask().SelStart(), 2);
    Type(u"/");
    EXPECT_EQ(Mask().SelStart(), 3);
    Mask().SelStart(2);
    EXPECT_EQ(Typed(u"3"), "12/3_");
    EXPECT_EQ(Mask().SelStart(), 4);
    Mask().SelStart(2);
    Type(u"x");
    EXPECT_EQ(Mask().SelStart(), 2);
}

TEST_P(MaskContract, Backspace_GoesBackOverLiterals_DeleteOnALiteralDoesNothing)
{
    Masked(u"#--#");
    Type(u"12");
    Mask().SelStart(3);
    Key(KeyCode::Delete);
    EXPECT_EQ(Shown(), "1--_");
    Key(KeyCode::Backspace, u'\b');
    EXPECT_EQ(Shown(), "_--_");
    EXPECT_EQ(Mask().SelStart(), 0);
    Type(u"7");
    Mask().SelStart(1);
    Key(KeyCode::Delete);
    EXPECT_EQ(Shown(), "7--_");
    Mask().SelStart(0);
    Key(KeyCode::Backspace, u'\b');
    EXPECT_EQ(Shown(), "7--_");
}

TEST_P(MaskContract, ArrowsStopAtEachPosition)
{
    Masked(u"#--#");
    for (const int position : {1, 2, 3, 4, 4}) {
        Key(KeyCode::Right);
        EXPECT_EQ(Mask().SelStart(), position);
    }
    Key(KeyCode::Left);
    EXPECT_EQ(Mask().SelStart(), 3);
    Key(KeyCode::Home);
    EXPECT_EQ(Mask().SelStart(), 0);
    Key(KeyCode::End);
    EXPECT_EQ(Mask().SelStart(), 4);
}

TEST_P(MaskContract, MaskEmptied_LeavesWhatTextReads)
{
    Masked(u"(##)");
    Type(u"1");
    Mask().Mask(u"");
    EXPECT_EQ(Shown(), "(1_)");
}

TEST_P(MaskContract, MaxLength_CountsWithoutAMaskAlone)
{
    Mask().MaxLength(1);
    Masked(u"##");
    EXPECT_EQ(Typed(u"12"), "12");
    Mask().Mask(u"");
    Mask().Text(u"");
    EXPECT_EQ(Typed(u"12"), "1");
}

} // namespace Tessellon::Contract
