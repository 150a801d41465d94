#include "engine/grid/RecordingGrid.h"

namespace Tessellon::GridTests {

namespace {

constexpr std::int16_t pageUp = 33, pageDown = 34, end = 35, home = 36, left = 37, up = 38, right = 39, down = 40;
constexpr std::int16_t shiftKey = 1, ctrlKey = 2, altKey = 4;

} // namespace

class KeysInGrid : public GridTest {
protected:
    Numbers Behind(std::int16_t key, std::int16_t shift = 0)
    {
        Grid.PressKey(key, shift);
        return Cursor();
    }
};

TEST_F(KeysInGrid, Arrows_MoveByOneCellWithinTheData)
{
    Build(4, 4);
    EXPECT_EQ(Behind(down), (Numbers{2, 1, 2, 1}));
    EXPECT_EQ(Told(), wholeMove);
    EXPECT_EQ(Behind(right), (Numbers{2, 2, 2, 2}));
    EXPECT_EQ(Behind(up), (Numbers{1, 2, 1, 2}));
    EXPECT_EQ(Behind(left), (Numbers{1, 1, 1, 1}));
    Forget();
    EXPECT_EQ(Behind(left), (Numbers{1, 1, 1, 1}));
    EXPECT_EQ(Behind(up), (Numbers{1, 1, 1, 1}));
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Behind(end, ctrlKey), (Numbers{3, 3, 3, 3}));
    Forget();
    EXPECT_EQ(Behind(right), (Numbers{3, 3, 3, 3}));
    EXPECT_EQ(Behind(down), (Numbers{3, 3, 3, 3}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(KeysInGrid, ColumnsWithoutWidth_ArePassedOver)
{
    Build(4, 6);
    Grid.ColWidth(1, 0);
    Grid.ColWidth(3, 0);
    Grid.ColWidth(5, 0);
    Grid.Col(2);
    EXPECT_EQ(Behind(right), (Numbers{1, 4, 1, 4}));
    EXPECT_EQ(Behind(right), (Numbers{1, 4, 1, 4}));
    EXPECT_EQ(Behind(left), (Numbers{1, 2, 1, 2}));
    EXPECT_EQ(Behind(left), (Numbers{1, 2, 1, 2}));
    EXPECT_EQ(Behind(end), (Numbers{1, 4, 1, 4}));
    EXPECT_EQ(Behind(home), (Numbers{1, 2, 1, 2}));
}

TEST_F(KeysInGrid, Pages_AreTheRowsWholeInView)
{
    Build(100, 4);
    EXPECT_EQ(Behind(pageDown), (Numbers{20, 1, 20, 1}));
    EXPECT_EQ(Grid.TopRow(), 2);
    EXPECT_EQ(Behind(pageUp), (Numbers{1, 1, 1, 1}));
    EXPECT_EQ(Grid.TopRow(), 1);
    Grid.Move(0, 0, 9600, 300);
    EXPECT_EQ(Behind(pageDown), (Numbers{2, 1, 2, 1}));
    EXPECT_EQ(Behind(pageUp), (Numbers{1, 1, 1, 1}));
    Grid.Move(0, 0, 9600, 4800);
    EXPECT_EQ(Behind(end, ctrlKey), (Numbers{99, 3, 99, 3}));
    EXPECT_EQ(Behind(pageDown), (Numbers{99, 3, 99, 3}));
}

TEST_F(KeysInGrid, PageOfMixedHeights_CountsWholeRows)
{
    Build(100, 4);
    Grid.RowHeight(2, 3000);
    EXPECT_EQ(Behind(pageDown), (Numbers{8, 1, 8, 1}));
}

TEST_F(KeysInGrid, HomeAndEnd_GoWithinTheRowAndWithCtrlToTheEndsOfTheSheet)
{
    Build(10, 5);
    Grid.Row(4);
    EXPECT_EQ(Behind(end), (Numbers{4, 4, 4, 4}));
    EXPECT_EQ(Behind(home), (Numbers{4, 1, 4, 1}));
    EXPECT_EQ(Behind(end, ctrlKey), (Numbers{9, 4, 9, 4}));
    EXPECT_EQ(Behind(home, ctrlKey), (Numbers{1, 1, 1, 1}));
}

TEST_F(KeysInGrid, CtrlWithArrowsAndPagesAndAltWithAny_AreAsIfNotPressed)
{
    Build(100, 5);
    EXPECT_EQ(Behind(down, ctrlKey), (Numbers{2, 1, 2, 1}));
    EXPECT_EQ(Behind(right, ctrlKey | altKey), (Numbers{2, 2, 2, 2}));
    EXPECT_EQ(Behind(pageDown, ctrlKey), (Numbers{21, 2, 21, 2}));
    EXPECT_EQ(Behind(home, altKey), (Numbers{21, 1, 21, 1}));
}

TEST_F(KeysInGrid, Shift_ExtendsTheSelectionAndMovesNothing)
{
    Build(10, 5);
    Grid.Row(3);
    Grid.Col(2);
    Forget();
    EXPECT_EQ(Behind(down, shiftKey), (Numbers{3, 2, 4, 2}));
    EXPECT_EQ(Behind(right, shiftKey), (Numbers{3, 2, 4, 3}));
    EXPECT_EQ(Told(), (Names{"SelChange", "SelChange"}));
    EXPECT_EQ(Behind(home, shiftKey | ctrlKey), (Numbers{3, 2, 1, 1}));
    EXPECT_EQ(Behind(up, shiftKey), (Numbers{3, 2, 1, 1}));
    EXPECT_EQ(Told(), Names{"SelChange"});
    EXPECT_EQ(Behind(down), (Numbers{4, 2, 4, 2}));
    EXPECT_EQ(Told(), wholeMove);
}

TEST_F(KeysInGrid, TargetInTheHeadingOrTheMarkerColumn_IsDrawnToTheData)
{
    Build(5, 4);
    Grid.ColWidth(1, 0);
    Grid.Row(0);
    Grid.Col(0);
    EXPECT_EQ(Behind(left), (Numbers{1, 2, 1, 2}));
    Grid.Row(0);
    Grid.Col(0);
    EXPECT_EQ(Behind(down), (Numbers{1, 2, 1, 2}));
    Grid.Row(0);
    EXPECT_EQ(Behind(home), (Numbers{1, 2, 1, 2}));
}

TEST_F(KeysInGrid, WithoutDataRowsOrShownColumns_MoveNothing)
{
    Build(1, 4);
    EXPECT_EQ(Behind(down), (Numbers{0, 1, 0, 1}));
    Grid.Rows(4);
    for (std::int32_t col = 1; col < 4; ++col)
        Grid.ColWidth(col, 0);
    EXPECT_EQ(Behind(right), (Numbers{0, 1, 0, 1}));
    EXPECT_EQ(Behind(end, shiftKey | ctrlKey), (Numbers{0, 1, 0, 1}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(KeysInGrid, Target_IsBroughtIntoViewBeforeTheMoveIsTold)
{
    Build(100, 31);
    Grid.PressKey(end, 0);
    EXPECT_EQ(Told(), Names{"Scroll"} + wholeMove);
    EXPECT_EQ(Grid.LeftCol(), 22);
    Grid.PressKey(end, ctrlKey);
    EXPECT_EQ(Told(), Names{"Scroll"} + wholeMove);
    EXPECT_EQ(Grid.TopRow(), 81);
}

TEST_F(KeysInGrid, TargetThatScrollTookAway_IsNotGoneTo)
{
    Build(100, 3);
    Surroundings.Once(ChildEvent::Scroll, [&] { Grid.Rows(10); });
    Grid.PressKey(end, ctrlKey);
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
}

TEST_F(KeysInGrid, OtherKeysAndADisabledGrid_DoNothing)
{
    Build(5, 4);
    Grid.PressKey(0, 0);
    Grid.PressKey(13, 0);
    Grid.PressKey(113, 0);
    Grid.PressKey(86, ctrlKey);
    Grid.Enabled(false);
    Forget();
    Grid.PressKey(down, 0);
    Grid.TypeCharacter(u'a');
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
}

TEST_F(KeysInGrid, PrintableCharacter_SoundsTheBellOnce)
{
    Grid.TypeCharacter(u'a');
    Grid.TypeCharacter(u' ');
    Grid.TypeCharacter(static_cast<std::int16_t>(u'\u20AC'));
    EXPECT_EQ(Told(), (Names{"Bell", "Bell", "Bell"}));
    for (const std::int16_t unit : {0, 3, 8, 9, 13, 27, 127, 0x85})
        Grid.TypeCharacter(unit);
    EXPECT_EQ(Told(), Names{});
    Grid.TypeCharacter(static_cast<std::int16_t>(0xD83D));
    Grid.TypeCharacter(static_cast<std::int16_t>(0xDE00));
    EXPECT_EQ(Told(), Names{"Bell"});
}

TEST_F(KeysInGrid, CtrlC_CopiesTheSelectionWithQuotesWhereNeeded)
{
    Build(4, 5);
    Grid.TextMatrix(1, 1, u"plain");
    Grid.TextMatrix(1, 2, u"hidden");
    Grid.TextMatrix(1, 3, u"a\tb");
    Grid.TextMatrix(2, 1, u"say \"so\"");
    Grid.TextMatrix(2, 3, u"one\r\ntwo");
    Grid.ColWidth(2, 0);
    Select(2, 3, 1, 1);
    Forget();
    Grid.PressKey(67, ctrlKey);
    ASSERT_EQ(Surroundings.Copied.size(), 1U);
    EXPECT_EQ(Surroundings.Copied[0], u"plain\t\"a\tb\"\r\n\"say \"\"so\"\"\"\t\"one\r\ntwo\"\r\n");
    EXPECT_EQ(Told(), Names{});
    Grid.PressKey(67, 0);
    EXPECT_EQ(Surroundings.Copied.size(), 1U);
}

} // namespace Tessellon::GridTests
