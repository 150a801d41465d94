#include "engine/fields/TextState.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace Tessellon {
namespace {

TextState Holding(std::u16string_view text, std::int32_t caret)
{
    TextState state;
    state.Text(text);
    EXPECT_TRUE(state.Caret(caret));
    return state;
}

bool TypeAll(TextState& state, std::u16string_view text)
{
    bool changed = false;
    for (const char16_t unit : text)
        changed = state.Type(unit) || changed;
    return changed;
}

TEST(TextState, StartsEmptyWithCaretAtZeroAndNoLimit)
{
    const TextState state;
    EXPECT_EQ(state.Text(), u"");
    EXPECT_EQ(state.Caret(), 0);
    EXPECT_EQ(state.MaxLength(), 0);
    EXPECT_FALSE(state.Multiline());
}

TEST(TextState, TextThatBecomesAnother_PutsTheCaretToZero)
{
    auto state = Holding(u"abc", 2);
    EXPECT_TRUE(state.Text(u"abd"));
    EXPECT_EQ(state.Caret(), 0);
}

TEST(TextState, TextWrittenAsItIs_LeavesTheCaret)
{
    auto state = Holding(u"abc", 2);
    EXPECT_FALSE(state.Text(u"abc"));
    EXPECT_EQ(state.Caret(), 2);
}

TEST(TextState, PartOfItsOwnTextMayBeWritten)
{
    auto state = Holding(u"a longer text than any small string keeps", 4);
    EXPECT_TRUE(state.Text(state.Text().substr(2)));
    EXPECT_EQ(state.Text(), u"longer text than any small string keeps");
}

TEST(TextState, CaretAboveTheLength_IsTheLength)
{
    auto state = Holding(u"abc", 0);
    EXPECT_TRUE(state.Caret(99));
    EXPECT_EQ(state.Caret(), 3);
}

TEST(TextState, CaretBelowZero_IsRefusedAndStays)
{
    auto state = Holding(u"abc", 2);
    EXPECT_FALSE(state.Caret(-1));
    EXPECT_EQ(state.Caret(), 2);
}

TEST(TextState, TypedCharacter_StandsAtTheCaret)
{
    auto state = Holding(u"ac", 1);
    EXPECT_TRUE(state.Type(u'b'));
    EXPECT_EQ(state.Text(), u"abc");
    EXPECT_EQ(state.Caret(), 2);
}

TEST(TextState, ControlCharacters_InsertNothing)
{
    auto state = Holding(u"a", 1);
    state.Multiline(true);
    for (const char16_t unit : {u'\r', u'\n', u'\t', u'\b', u'\x1B', u'\x01', u'\x7F'})
        EXPECT_FALSE(state.Type(unit));
    EXPECT_EQ(state.Text(), u"a");
}

TEST(TextState, TypingAtTheLimit_IsNotTaken)
{
    TextState state;
    state.MaxLength(3);
    EXPECT_TRUE(TypeAll(state, u"abcdef"));
    EXPECT_EQ(state.Text(), u"abc");
    EXPECT_FALSE(state.Type(u'd'));
    EXPECT_EQ(state.Caret(), 3);
}

TEST(TextState, TextThatCodeWrites_StaysWholeUnderALimit)
{
    TextState state;
    state.MaxLength(3);
    EXPECT_TRUE(state.Text(u"abcdef"));
    EXPECT_EQ(state.Text(), u"abcdef");
    EXPECT_FALSE(state.Type(u'g'));
    EXPECT_TRUE(state.Delete());
    EXPECT_EQ(state.Text(), u"bcdef");
}

TEST(TextState, LimitOfZeroOrBelow_IsNone)
{
    for (const std::int32_t limit : {0, -1}) {
        TextState state;
        state.MaxLength(limit);
        EXPECT_TRUE(TypeAll(state, u"abcdef"));
        EXPECT_EQ(state.Text(), u"abcdef");
    }
}

TEST(TextState, PairOfSurrogates_IsTypedUnitByUnit)
{
    TextState state;
    EXPECT_TRUE(state.Type(u'a'));
    EXPECT_TRUE(state.Type(0xD83D));
    EXPECT_EQ(state.Text().size(), 2u);
    EXPECT_TRUE(state.Type(0xDE00));
    EXPECT_EQ(state.Text(), u"a\U0001F600");
}

TEST(TextState, PairWithRoomForOneUnit_IsNotTakenAtAll)
{
    TextState state;
    state.MaxLength(3);
    TypeAll(state, u"ab");
    EXPECT_FALSE(state.Type(0xD83D));
    EXPECT_FALSE(state.Type(0xDE00));
    EXPECT_EQ(state.Text(), u"ab");
    EXPECT_TRUE(state.Type(u'c'));
    EXPECT_EQ(state.Text(), u"abc");
}

TEST(TextState, PairThatFillsTheLimit_IsTaken)
{
    TextState state;
    state.MaxLength(3);
    EXPECT_TRUE(TypeAll(state, u"a\U0001F600"));
    EXPECT_EQ(state.Text(), u"a\U0001F600");
}

TEST(TextState, Backspace_RemovesTheUnitBeforeTheCaret)
{
    auto state = Holding(u"abc", 2);
    EXPECT_TRUE(state.Backspace());
    EXPECT_EQ(state.Text(), u"ac");
    EXPECT_EQ(state.Caret(), 1);
}

TEST(TextState, BackspaceAtTheStart_DoesNothing)
{
    auto state = Holding(u"abc", 0);
    EXPECT_FALSE(state.Backspace());
    EXPECT_EQ(state.Text(), u"abc");
}

TEST(TextState, Delete_RemovesTheUnitBehindTheCaret)
{
    auto state = Holding(u"abc", 1);
    EXPECT_TRUE(state.Delete());
    EXPECT_EQ(state.Text(), u"ac");
    EXPECT_EQ(state.Caret(), 1);
}

TEST(TextState, DeleteAtTheEnd_DoesNothing)
{
    auto state = Holding(u"abc", 3);
    EXPECT_FALSE(state.Delete());
    EXPECT_EQ(state.Text(), u"abc");
}

TEST(TextState, PairsAreRemovedAsOne)
{
    for (const std::u16string_view pair : {u"\U0001F600", u"\r\n"}) {
        const std::u16string text = u"a" + std::u16string(pair) + u"b";
        auto state = Holding(text, 3);
        EXPECT_TRUE(state.Backspace());
        EXPECT_EQ(state.Text(), u"ab");
        EXPECT_EQ(state.Caret(), 1);

        state = Holding(text, 1);
        EXPECT_TRUE(state.Delete());
        EXPECT_EQ(state.Text(), u"ab");
        EXPECT_EQ(state.Caret(), 1);
    }
}

TEST(TextState, PairsAreRemovedAsOne_AlsoFromTheirMiddle)
{
    auto state = Holding(u"a\U0001F600b", 2);
    EXPECT_TRUE(state.Backspace());
    EXPECT_EQ(state.Text(), u"ab");
    EXPECT_EQ(state.Caret(), 1);

    state = Holding(u"a\r\nb", 2);
    EXPECT_TRUE(state.Delete());
    EXPECT_EQ(state.Text(), u"ab");
    EXPECT_EQ(state.Caret(), 1);
}

TEST(TextState, PairsArePassedAsOne)
{
    for (const std::u16string_view text : {u"a\U0001F600b", u"a\r\nb"}) {
        auto state = Holding(text, 1);
        state.Right();
        EXPECT_EQ(state.Caret(), 3);
        state.Left();
        EXPECT_EQ(state.Caret(), 1);
    }
}

TEST(TextState, LoneHalves_ArePassedAndRemovedAlone)
{
    auto state = Holding(u"\xDE00\xD83D\n\r", 0);
    state.Right();
    EXPECT_EQ(state.Caret(), 1);
    state.Right();
    EXPECT_EQ(state.Caret(), 2);
    EXPECT_TRUE(state.Delete());
    EXPECT_TRUE(state.Backspace());
    EXPECT_EQ(state.Text(), u"\xDE00\r");
}

TEST(TextState, ArrowsStopAtTheEnds)
{
    auto state = Holding(u"ab", 0);
    state.Left();
    EXPECT_EQ(state.Caret(), 0);
    state.Right();
    state.Right();
    state.Right();
    EXPECT_EQ(state.Caret(), 2);
}

TEST(TextState, HomeAndEndGoToTheEndsOfTheWholeText)
{
    auto state = Holding(u"ab\r\ncd", 5);
    state.Multiline(true);
    state.Home();
    EXPECT_EQ(state.Caret(), 0);
    state.End();
    EXPECT_EQ(state.Caret(), 6);
}

TEST(TextState, LineBreak_IsCarriageReturnAndLineFeed_OnlyWhereThereAreLines)
{
    auto state = Holding(u"ab", 1);
    EXPECT_FALSE(state.LineBreak());
    EXPECT_EQ(state.Text(), u"ab");
    state.Multiline(true);
    EXPECT_TRUE(state.LineBreak());
    EXPECT_EQ(state.Text(), u"a\r\nb");
    EXPECT_EQ(state.Caret(), 3);
}

TEST(TextState, LineBreakWithRoomForOneUnit_IsNotTaken)
{
    auto state = Holding(u"ab", 1);
    state.Multiline(true);
    state.MaxLength(3);
    EXPECT_FALSE(state.LineBreak());
    EXPECT_EQ(state.Text(), u"ab");
}

TEST(TextState, WhatARealWidgetHolds_IsTakenWithItsCaret)
{
    auto state = Holding(u"ab", 1);
    EXPECT_TRUE(state.TakeFrom(u"abc", 2));
    EXPECT_EQ(state.Text(), u"abc");
    EXPECT_EQ(state.Caret(), 2);
    EXPECT_FALSE(state.TakeFrom(u"abc", 99));
    EXPECT_EQ(state.Caret(), 3);
    EXPECT_FALSE(state.TakeFrom(u"abc", -4));
    EXPECT_EQ(state.Caret(), 0);
}

RC_GTEST_PROP(TextStateProperties, CaretStaysInRange_LimitHolds_AndTheResultTellsOfTheChange, ())
{
    TextState state;
    const auto limit = *rc::gen::inRange(0, 6);
    state.MaxLength(limit);
    state.Multiline(true);
    const auto units = rc::gen::elementOf(std::u16string(u"ab \xD83D\xDE00\r\n"));
    for (const int action : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 9))) {
        const std::u16string before(state.Text());
        bool changed = false;
        switch (action) {
        case 0: changed = state.Backspace(); break;
        case 1: changed = state.Delete(); break;
        case 2: state.Left(); break;
        case 3: state.Right(); break;
        case 4: state.Home(); break;
        case 5: state.End(); break;
        case 6: changed = state.LineBreak(); break;
        default: changed = state.Type(*units); break;
        }
        RC_ASSERT(changed == (state.Text() != before));
        RC_ASSERT(state.Caret() >= 0 && state.Caret() <= static_cast<std::int32_t>(state.Text().size()));
        RC_ASSERT(limit == 0 || static_cast<int>(state.Text().size()) <= limit);
    }
}

} // namespace
} // namespace Tessellon
