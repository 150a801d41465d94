#include "engine/grid/RecordingGrid.h"

namespace Tessellon::GridTests {

using Scrolling = GridTest;

TEST_F(Scrolling, TopRowAndLeftCol_AreClampedToTheLastFullPage)
{
    Build(41, 31);
    Grid.TopRow(1000);
    EXPECT_EQ(Grid.TopRow(), 22);
    EXPECT_EQ(Told(), Names{"Scroll"});
    Grid.LeftCol(1000);
    EXPECT_EQ(Grid.LeftCol(), 22);
    EXPECT_EQ(Told(), Names{"Scroll"});
    Grid.TopRow(-5);
    Grid.LeftCol(0);
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
    EXPECT_EQ(Told(), (Names{"Scroll", "Scroll"}));
    Grid.TopRow(1);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Scrolling, ScrollBarsMovedByTheUser_TellOnceForEachThatChanges)
{
    Build(41, 3);
    Grid.ScrollTo(1000, 1000);
    EXPECT_EQ(Scrolled(), (Numbers{22, 1}));
    EXPECT_EQ(Told(), Names{"Scroll"});
}

TEST_F(Scrolling, RowThatFitsExactly_IsWhole)
{
    Build(41, 3);
    Grid.Row(19);
    EXPECT_EQ(Grid.CellTop(), 19 * 240);
    EXPECT_EQ(Grid.TopRow(), 1);
    Grid.Row(20);
    EXPECT_EQ(Grid.CellTop(), 19 * 240);
    EXPECT_EQ(Grid.TopRow(), 2);
}

TEST_F(Scrolling, RoomOfScrollBars_IsTakenFromTheView)
{
    Build(41, 31);
    Surroundings.BarHeight = 240;
    Surroundings.BarWidth = 960;
    Grid.TopRow(1000);
    Grid.LeftCol(1000);
    EXPECT_EQ(Scrolled(), (Numbers{23, 23}));
}

TEST_F(Scrolling, ReadingThePlaceOfTheCell_BringsItIntoViewRowsFirst)
{
    Build(100, 31);
    Grid.Row(50);
    Grid.Col(20);
    Forget();
    std::vector<Numbers> seen;
    for (int time = 0; time < 2; ++time)
        Surroundings.Once(ChildEvent::Scroll, [&] { seen.push_back(Scrolled()); });
    EXPECT_EQ(Grid.CellLeft(), 9 * 960);
    EXPECT_EQ(seen, (std::vector<Numbers>{{32, 1}, {32, 12}}));
    EXPECT_EQ(Told(), (Names{"Scroll", "Scroll"}));
    EXPECT_EQ(Grid.CellTop(), 19 * 240);
    EXPECT_EQ(Grid.CellWidth(), 960);
    EXPECT_EQ(Grid.CellHeight(), 240);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Scrolling, EachOfTheFourReads_BringsTheCellIntoView)
{
    Build(100, 3);
    const std::vector<std::function<void()>> reads{[&] { Grid.CellLeft(); }, [&] { Grid.CellTop(); },
                                                   [&] { Grid.CellWidth(); }, [&] { Grid.CellHeight(); }};
    for (const std::function<void()>& read : reads) {
        Grid.TopRow(1);
        Grid.Row(50);
        Forget();
        read();
        EXPECT_EQ(Told(), Names{"Scroll"});
        EXPECT_EQ(Grid.TopRow(), 32);
        Grid.Row(1);
    }
}

TEST_F(Scrolling, CellAboveTheView_ComesFirst)
{
    Build(100, 3);
    Grid.TopRow(60);
    Grid.Row(30);
    EXPECT_EQ(Grid.CellTop(), 240);
    EXPECT_EQ(Grid.TopRow(), 30);
}

TEST_F(Scrolling, BringingIntoView_DoesNotHeedTheLastFullPage)
{
    Build(41, 3);
    Grid.TopRow(22);
    Grid.Move(0, 0, 9600, 2400);
    Grid.Row(40);
    EXPECT_EQ(Grid.CellTop(), 9 * 240);
    EXPECT_EQ(Grid.TopRow(), 32);
    Grid.Move(0, 0, 9600, 4800);
    Grid.Row(25);
    Forget();
    EXPECT_EQ(Grid.CellTop(), 240);
    EXPECT_EQ(Grid.TopRow(), 25);
    EXPECT_EQ(Told(), Names{"Scroll"});
}

TEST_F(Scrolling, FixedCells_AreAlwaysInView)
{
    Build(100, 31);
    Grid.TopRow(50);
    Grid.LeftCol(20);
    Grid.Row(0);
    Grid.Col(0);
    Forget();
    EXPECT_EQ(Grid.CellLeft(), 0);
    EXPECT_EQ(Grid.CellTop(), 0);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Scrolling, SizesOfViewRowsAndColumns_ScrollNothing)
{
    Build(41, 31);
    Grid.TopRow(22);
    Grid.LeftCol(22);
    Forget();
    Grid.Move(0, 0, 30000, 30000);
    Grid.RowHeight(30, 1);
    Grid.RowHeightMin(500);
    Grid.ColWidth(25, 1);
    Grid.FontSize(4);
    Grid.Rows(60);
    EXPECT_EQ(Scrolled(), (Numbers{22, 22}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Scrolling, RowLargerThanTheView_IsShownFromItsNearEdge)
{
    Build(41, 31);
    Grid.RowHeight(10, 9000);
    Grid.ColWidth(5, 20000);
    Grid.Row(10);
    Grid.Col(5);
    EXPECT_EQ(Grid.CellTop(), 240);
    EXPECT_EQ(Grid.CellLeft(), 960);
    EXPECT_EQ(Grid.CellHeight(), 9000);
    EXPECT_EQ(Scrolled(), (Numbers{10, 5}));
    Grid.RowHeight(40, 9000);
    Grid.TopRow(1000);
    EXPECT_EQ(Grid.TopRow(), 40);
}

TEST_F(Scrolling, HandlerThatMovesTheCursor_GetsTheRectangleOfItsCell)
{
    Build(100, 3);
    Grid.Row(50);
    Surroundings.Once(ChildEvent::Scroll, [&] { Grid.Row(40); });
    EXPECT_EQ(Grid.CellTop(), 240 + (40 - 32) * 240);
}

TEST_F(Scrolling, HandlerThatTakesTheRowsAway_LeavesAPlaceInsideTheGrid)
{
    Build(100, 31);
    Grid.Row(50);
    Grid.Col(20);
    Surroundings.Once(ChildEvent::Scroll, [&] {
        Grid.Cols(1);
        Grid.Rows(1);
    });
    EXPECT_EQ(Grid.CellTop(), 0);
    EXPECT_EQ(Cursor(), (Numbers{0, 0, 0, 0}));
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
}

TEST_F(Scrolling, FailureInScroll_LeavesTheViewScrolled)
{
    Build(100, 3);
    Surroundings.Once(ChildEvent::Scroll, [] { throw 5; });
    EXPECT_THROW(Grid.TopRow(30), int);
    EXPECT_EQ(Grid.TopRow(), 30);
}

TEST_F(Scrolling, HiddenColumns_TakeNoPartInTheView)
{
    Build(3, 31);
    for (std::int32_t col = 5; col < 31; ++col)
        Grid.ColWidth(col, 0);
    Grid.LeftCol(1000);
    EXPECT_EQ(Grid.LeftCol(), 1);
    Grid.Col(30);
    EXPECT_EQ(Grid.CellWidth(), 0);
    EXPECT_EQ(Grid.LeftCol(), 1);
}

TEST_F(Scrolling, GridWithoutDataRows_StaysAtTheFirst)
{
    Grid.Rows(1);
    Grid.Cols(1);
    Grid.TopRow(5);
    Grid.LeftCol(5);
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
    EXPECT_EQ(Grid.RowScroll(), (GridScrollRange{1, 1, 1, 1}));
    EXPECT_TRUE(Grid.VisibleRows().IsEmpty());
    EXPECT_TRUE(Grid.VisibleCols().IsEmpty());
}

TEST_F(Scrolling, ScrollIntoView_GoesByTheLeastThatShowsTheCellWhole)
{
    Build(100, 31);
    Grid.ScrollIntoView({50, 20});
    EXPECT_EQ(Scrolled(), (Numbers{32, 12}));
    EXPECT_EQ(Told(), (Names{"Scroll", "Scroll"}));
    Grid.ScrollIntoView({0, 20});
    Grid.ScrollIntoView({500, 1});
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Scrolling, Wheel_ScrollsThreeRowsAndWithShiftAShownColumn)
{
    Build(100, 31);
    Grid.ColWidth(2, 0);
    Grid.TurnWheel(-2, 0);
    EXPECT_EQ(Scrolled(), (Numbers{7, 1}));
    Grid.TurnWheel(1, 0);
    EXPECT_EQ(Scrolled(), (Numbers{4, 1}));
    Grid.TurnWheel(-1, 1);
    EXPECT_EQ(Scrolled(), (Numbers{4, 3}));
    Grid.TurnWheel(1, 1);
    EXPECT_EQ(Scrolled(), (Numbers{4, 1}));
    EXPECT_EQ(Told(), (Names{"Scroll", "Scroll", "Scroll", "Scroll"}));
    Grid.TurnWheel(500, 0);
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
    Grid.TurnWheel(-5000, 0);
    EXPECT_EQ(Scrolled(), (Numbers{81, 1}));
}

TEST_F(Scrolling, DisabledGrid_IsNotScrolledByTheUser)
{
    Build(100, 31);
    Grid.Enabled(false);
    Forget();
    Grid.TurnWheel(-2, 0);
    Grid.ScrollTo(20, 5);
    Grid.ScrollIntoView({50, 20});
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
    EXPECT_EQ(Told(), Names{});
    Grid.TopRow(20);
    EXPECT_EQ(Told(), Names{"Scroll"});
}

TEST_F(Scrolling, ScrollRange_SaysTheLastPageAndWhatIsWholeInView)
{
    Build(41, 31);
    EXPECT_EQ(Grid.RowScroll(), (GridScrollRange{1, 22, 19, 1}));
    EXPECT_EQ(Grid.ColScroll(), (GridScrollRange{1, 22, 9, 1}));
    Grid.TopRow(22);
    EXPECT_EQ(Grid.RowScroll(), (GridScrollRange{1, 22, 19, 22}));
}

} // namespace Tessellon::GridTests
