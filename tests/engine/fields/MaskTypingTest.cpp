#include "MaskFixture.h"

namespace Tessellon {
namespace {

TEST(MaskedBox, CharacterThatDoesNotFit_IsNotTaken)
{
    MaskBox box(u"#?");
    EXPECT_EQ(box.State.Type(u'x'), MaskTyping::Refused);
    EXPECT_EQ(box.State.Caret(), 0);
    EXPECT_EQ(box.State.Type(u'1'), MaskTyping::Taken);
    EXPECT_EQ(box.State.Type(u'2'), MaskTyping::Refused);
    EXPECT_EQ(box.State.Caret(), 1);
    EXPECT_EQ(box.State.Text(), u"1_");
}

TEST(MaskedBox, CharacterBehindTheLastPlace_IsNotTaken)
{
    MaskBox box(u"#)");
    box.Typing(u"1");
    EXPECT_EQ(box.State.Type(u'2'), MaskTyping::Refused);
    EXPECT_EQ(box.State.Caret(), 1);
    EXPECT_EQ(box.State.Type(u')'), MaskTyping::Passed);
    EXPECT_EQ(box.State.Caret(), 2);
    EXPECT_EQ(box.State.Type(u')'), MaskTyping::Refused);
    EXPECT_EQ(box.State.Caret(), 2);
}

TEST(MaskedBox, Typing_ReplacesThePlaceAtTheCaretAndShiftsNothing)
{
    MaskBox box(u"####");
    box.Typing(u"1234").At(1);
    EXPECT_EQ(box.State.Type(u'9'), MaskTyping::Taken);
    EXPECT_EQ(box.State.Text(), u"1934");
    EXPECT_EQ(box.State.Caret(), 2);
}

TEST(MaskedBox, BehindATypedPlace_TheCaretStandsDirectlyBehindIt_AheadOfTheLiteral)
{
    MaskBox box(u"##-##");
    EXPECT_EQ(box.Typing(u"12").State.Caret(), 2);
    EXPECT_EQ(box.Typing(u"3").State.Caret(), 4);
}

TEST(MaskedBox, LiteralTypedWhereItStands_IsPassed)
{
    MaskBox box(u"##-##");
    box.Typing(u"12");
    EXPECT_EQ(box.State.Type(u'-'), MaskTyping::Passed);
    EXPECT_EQ(box.State.Caret(), 3);
    EXPECT_EQ(box.State.Text(), u"12-__");
}

TEST(MaskedBox, CharacterTypedOnALiteral_IsTriedAtTheNextPlace)
{
    MaskBox box(u"(-)#");
    EXPECT_EQ(box.State.Type(u'7'), MaskTyping::Taken);
    EXPECT_EQ(box.State.Text(), u"(-)7");
    EXPECT_EQ(box.State.Caret(), 4);
}

TEST(MaskedBox, CharacterTypedOnALiteralThatDoesNotFitBehindIt_LeavesTheCaret)
{
    MaskBox box(u"(-)#");
    EXPECT_EQ(box.State.Type(u'x'), MaskTyping::Refused);
    EXPECT_EQ(box.State.Type(u'-'), MaskTyping::Refused);
    EXPECT_EQ(box.State.Caret(), 0);
}

TEST(MaskedBox, LiteralThatWouldFitAPlace_IsTypedIntoIt)
{
    MaskBox box(u"&-&");
    EXPECT_EQ(box.State.Type(u'-'), MaskTyping::Taken);
    EXPECT_EQ(box.State.Type(u'-'), MaskTyping::Passed);
    EXPECT_EQ(box.State.Type(u'-'), MaskTyping::Taken);
    EXPECT_EQ(box.State.FormattedText(), u"---");
}

TEST(MaskedBox, LocalesSeparator_IsTheLiteralThatIsTyped)
{
    Locale locale = Locale::English();
    locale.DateSeparator = u'.';
    MaskBox box(u"##/##", locale);
    EXPECT_EQ(box.Typing(u"12.3").State.Text(), u"12.3_");
    MaskBox other(u"##/##", locale);
    other.Typing(u"12");
    EXPECT_EQ(other.State.Type(u'/'), MaskTyping::Refused);
}

TEST(MaskedBox, TypedCharacter_TakesTheCaseOfItsPlace)
{
    MaskBox box(u">??\?<???");
    EXPECT_EQ(box.Typing(u"aßäAÄß").State.Text(), u"AßÄaäß");
}

TEST(MaskedBox, TypedBlank_FillsAPlaceThatTakesOne_AndIsRefusedElsewhere)
{
    MaskBox box(u"#A");
    EXPECT_EQ(box.State.Type(u' '), MaskTyping::Taken);
    EXPECT_EQ(box.State.Text(), u" _");
    EXPECT_EQ(box.State.Type(u' '), MaskTyping::Refused);
    EXPECT_EQ(box.State.Caret(), 1);
}

TEST(MaskedBox, ControlCharacters_AreNotTyped)
{
    MaskBox box(u"CC");
    for (const char16_t unit : {u'\r', u'\n', u'\t', u'\b', u'\x1B', u'\x03'})
        EXPECT_EQ(box.State.Type(unit), MaskTyping::Refused);
    EXPECT_EQ(box.State.Text(), u"__");
}

TEST(MaskedBox, Backspace_GoesBackOverLiteralsAndEmptiesThePlaceBeforeThem)
{
    MaskBox box(u"##--##");
    box.Typing(u"1234").At(4);
    EXPECT_TRUE(box.State.Backspace());
    EXPECT_EQ(box.State.Text(), u"1_--34");
    EXPECT_EQ(box.State.Caret(), 1);
    EXPECT_TRUE(box.State.Backspace());
    EXPECT_EQ(box.State.Text(), u"__--34");
    EXPECT_FALSE(box.State.Backspace());
    EXPECT_EQ(box.State.Caret(), 0);
}

TEST(MaskedBox, BackspaceWithNoPlaceBefore_DoesNothing)
{
    MaskBox box(u"(##");
    box.Typing(u"1").At(1);
    EXPECT_FALSE(box.State.Backspace());
    EXPECT_EQ(box.State.Caret(), 1);
    EXPECT_EQ(box.State.Text(), u"(1_");
}

TEST(MaskedBox, BackspaceOnAnEmptyPlace_MovesTheCaretAlone)
{
    MaskBox box(u"##");
    box.At(2);
    EXPECT_FALSE(box.State.Backspace());
    EXPECT_EQ(box.State.Caret(), 1);
}

TEST(MaskedBox, Delete_EmptiesThePlaceAtTheCaretAndShiftsNothing)
{
    MaskBox box(u"##-##");
    box.Typing(u"1234").At(1);
    EXPECT_TRUE(box.State.Delete());
    EXPECT_EQ(box.State.Text(), u"1_-34");
    EXPECT_EQ(box.State.Caret(), 1);
    EXPECT_FALSE(box.State.Delete());
}

TEST(MaskedBox, DeleteOnALiteralAndAtTheEnd_DoesNothing)
{
    MaskBox box(u"##-##");
    box.Typing(u"1234").At(2);
    EXPECT_FALSE(box.State.Delete());
    box.At(5);
    EXPECT_FALSE(box.State.Delete());
    EXPECT_EQ(box.State.Text(), u"12-34");
}

TEST(MaskedBox, ArrowsStopAtEachPosition)
{
    MaskBox box(u"#--#");
    for (const std::int32_t caret : {1, 2, 3, 4, 4}) {
        box.State.Right();
        EXPECT_EQ(box.State.Caret(), caret);
    }
    for (const std::int32_t caret : {3, 2, 1, 0, 0}) {
        box.State.Left();
        EXPECT_EQ(box.State.Caret(), caret);
    }
}

TEST(MaskedBox, HomeAndEnd_GoToTheEnds)
{
    MaskBox box(u"(#)");
    box.State.End();
    EXPECT_EQ(box.State.Caret(), 3);
    box.State.Home();
    EXPECT_EQ(box.State.Caret(), 0);
}

TEST(MaskedBox, CaretAboveTheLength_IsTheLength_AndBelowZeroIsRefused)
{
    MaskBox box(u"##-##");
    EXPECT_TRUE(box.State.Caret(99));
    EXPECT_EQ(box.State.Caret(), 5);
    EXPECT_FALSE(box.State.Caret(-1));
    EXPECT_EQ(box.State.Caret(), 5);
}

TEST(MaskedBox, PairOfSurrogates_FillsTwoPlacesAndIsPassedAndRemovedAsOne)
{
    MaskBox box(u"&&&&");
    EXPECT_EQ(box.Typing(u"a😀b").State.Text(), u"a😀b");
    box.At(1);
    box.State.Right();
    EXPECT_EQ(box.State.Caret(), 3);
    EXPECT_TRUE(box.State.Backspace());
    EXPECT_EQ(box.State.Text(), u"a__b");
    EXPECT_EQ(box.State.Caret(), 1);
    EXPECT_TRUE(box.Typing(u"😀").At(2).State.Delete());
    EXPECT_EQ(box.State.Text(), u"a__b");
    EXPECT_EQ(box.State.Caret(), 1);
}

TEST(MaskedBox, PairOfSurrogatesWithRoomForOneHalf_IsNotTakenAtAll)
{
    for (const std::u16string_view mask : {u"&", u"&-&", u"C#"}) {
        MaskBox box(mask);
        EXPECT_EQ(box.State.Type(0xD83D), MaskTyping::Refused);
        EXPECT_EQ(box.State.Type(0xDE00), MaskTyping::Refused);
        EXPECT_EQ(box.State.Caret(), 0);
    }
}

TEST(MaskedBox, CharacterTypedOverHalfAPair_LeavesNoHalfBehind)
{
    MaskBox box(u"&&&");
    EXPECT_EQ(box.Typing(u"😀b").At(0).Typing(u"x").State.Text(), u"x_b");
    MaskBox other(u"&&&");
    EXPECT_EQ(other.Typing(u"😀b").At(1).Typing(u"x").State.Text(), u"_xb");
    MaskBox same(u"&&&");
    EXPECT_EQ(same.Typing(u"😀b").At(0).Typing(u"😁").State.Text(), u"😁b");
    MaskBox half(u"&&&");
    EXPECT_EQ(half.Typing(u"😀b").At(1).Typing(u"\xDE01").State.Text(), u"😁b");
}

} // namespace
} // namespace Tessellon
