#include "engine/fields/ComboState.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace Tessellon {
namespace {

ComboState Holding(std::initializer_list<std::u16string_view> items, std::u16string_view text = u"")
{
    ComboState state;
    for (const auto item : items)
        state.AddItem(item);
    state.Field().Text(text);
    return state;
}

TEST(ComboBox, TextNeedNotBeAnItem)
{
    auto state = Holding({u"a", u"b"}, u"zzz");
    EXPECT_EQ(state.Field().Text(), u"zzz");
    EXPECT_EQ(state.Current(), ComboState::None);
}

TEST(ComboBox, Down_ChoosesTheItemBehindTheOneThatEqualsTheText)
{
    auto state = Holding({u"a", u"b", u"c"}, u"b");
    EXPECT_TRUE(state.Down());
    EXPECT_EQ(state.Field().Text(), u"c");
}

TEST(ComboBox, DownWhereNoItemEqualsTheText_ChoosesTheFirst)
{
    auto state = Holding({u"a", u"b", u"c"}, u"B");
    EXPECT_TRUE(state.Down());
    EXPECT_EQ(state.Field().Text(), u"a");
}

TEST(ComboBox, DownOnTheLastItem_DoesNothing)
{
    auto state = Holding({u"a", u"b"}, u"b");
    EXPECT_FALSE(state.Down());
    EXPECT_EQ(state.Field().Text(), u"b");
}

TEST(ComboBox, Up_ChoosesTheItemBeforeTheOneThatEqualsTheText)
{
    auto state = Holding({u"a", u"b", u"c"}, u"b");
    EXPECT_TRUE(state.Up());
    EXPECT_EQ(state.Field().Text(), u"a");
    EXPECT_FALSE(state.Up());
    EXPECT_EQ(state.Field().Text(), u"a");
}

TEST(ComboBox, UpWhereNoItemEqualsTheText_DoesNothing)
{
    auto state = Holding({u"a", u"b"}, u"x");
    EXPECT_FALSE(state.Up());
    EXPECT_EQ(state.Field().Text(), u"x");
}

TEST(ComboBox, KeysWithoutItems_DoNothing)
{
    auto state = Holding({}, u"x");
    EXPECT_FALSE(state.Up());
    EXPECT_FALSE(state.Down());
    EXPECT_EQ(state.Field().Text(), u"x");
}

TEST(ComboBox, ItemsThatReadTheSame_ArePassedOneByOneWithoutAChange)
{
    auto state = Holding({u"a", u"a", u"b"}, u"a");
    EXPECT_FALSE(state.Down());
    EXPECT_EQ(state.Current(), 1);
    EXPECT_TRUE(state.Down());
    EXPECT_EQ(state.Field().Text(), u"b");
}

TEST(ComboBox, Choosing_ChangesOnlyIfTheTextBecomesAnother)
{
    auto state = Holding({u"a", u"b"}, u"a");
    EXPECT_FALSE(state.Choose(0));
    EXPECT_TRUE(state.Choose(1));
    EXPECT_EQ(state.Field().Text(), u"b");
}

TEST(ComboBox, ChoosingPutsTheCaretToZero)
{
    auto state = Holding({u"aa", u"bb"}, u"aa");
    EXPECT_TRUE(state.Field().Caret(2));
    EXPECT_TRUE(state.Down());
    EXPECT_EQ(state.Field().Caret(), 0);
}

TEST(ComboBox, ChoosingAnItemThatIsNotThere_DoesNothing)
{
    auto state = Holding({u"a", u"b"}, u"a");
    EXPECT_FALSE(state.Choose(-1));
    EXPECT_FALSE(state.Choose(2));
    EXPECT_EQ(state.Field().Text(), u"a");
}

TEST(ComboBox, Letters_ChooseNothingButStandInTheText)
{
    auto state = Holding({u"apple", u"berry"}, u"");
    EXPECT_TRUE(state.Field().Type(u'b'));
    EXPECT_EQ(state.Field().Text(), u"b");
    EXPECT_EQ(state.Current(), ComboState::None);
}

TEST(ComboBox, TypedTextThatEqualsAnItem_IsWhereTheKeysStart)
{
    auto state = Holding({u"a", u"b", u"c"}, u"");
    EXPECT_TRUE(state.Field().Type(u'b'));
    EXPECT_TRUE(state.Down());
    EXPECT_EQ(state.Field().Text(), u"c");
}

TEST(ComboBox, HasNoLimitOfLength)
{
    auto state = Holding({u"a"});
    for (int count = 0; count < 1000; ++count)
        EXPECT_TRUE(state.Field().Type(u'x'));
    EXPECT_EQ(state.Field().Text().size(), 1000u);
}

TEST(ComboBox, Clear_TakesItemsAndText)
{
    auto state = Holding({u"a", u"b"}, u"b");
    state.Clear();
    EXPECT_EQ(state.Count(), 0);
    EXPECT_EQ(state.Field().Text(), u"");
    EXPECT_EQ(state.Current(), ComboState::None);
}

TEST(ComboBox, ItemPastTheLast_IsEmpty)
{
    const auto state = Holding({u"a"});
    EXPECT_EQ(state.Item(0), u"a");
    EXPECT_EQ(state.Item(1), u"");
    EXPECT_EQ(state.Item(-1), u"");
}

TEST(ComboBox, EmptyItem_EqualsAnEmptyText)
{
    auto state = Holding({u"", u"b"}, u"");
    EXPECT_EQ(state.Current(), 0);
    EXPECT_TRUE(state.Down());
    EXPECT_EQ(state.Field().Text(), u"b");
}

} // namespace
} // namespace Tessellon
