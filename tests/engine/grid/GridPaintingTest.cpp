#include "engine/grid/RecordingGrid.h"

#include <utility>

namespace Tessellon::GridTests {

class Painting : public GridTest {
protected:
    std::vector<GridRectangle> Parts() { return std::exchange(Surroundings.Parts, {}); }
    int Paintings() { return std::exchange(Surroundings.Paintings, 0); }
    static std::int64_t Area(const std::vector<GridRectangle>& parts)
    {
        std::int64_t area = 0;
        for (const GridRectangle& part : parts)
            area += std::int64_t{part.Width} * part.Height;
        return area;
    }

    static constexpr std::int64_t cell = 960 * 240;
};

TEST_F(Painting, RefreshWithNothingNew_CostsNothing)
{
    Build(100, 5);
    Grid.Refresh();
    Grid.Refresh();
    Grid.Redraw(true);
    EXPECT_EQ(Paintings(), 0);
    EXPECT_EQ(Parts().size(), 0U);
}

TEST_F(Painting, TextInView_InvalidatesItsCellAndIsPaintedByRefresh)
{
    Build(100, 5);
    Grid.TextMatrix(2, 3, u"new");
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{2880, 480, 960, 240}}));
    EXPECT_EQ(Paintings(), 0);
    Grid.Refresh();
    EXPECT_EQ(Paintings(), 1);
    Grid.TextMatrix(2, 3, u"new");
    Grid.Refresh();
    EXPECT_EQ(Paintings(), 0);
    EXPECT_EQ(Parts().size(), 0U);
}

TEST_F(Painting, RowsOutOfView_InvalidateNothing)
{
    Build(100, 31);
    Grid.TextMatrix(50, 1, u"far");
    Grid.TextMatrix(2, 25, u"far");
    Grid.RowHeight(60, 700);
    Grid.AddItem(u"\tx", 70);
    Grid.AddItem(u"\tx", -1);
    Grid.RemoveItem(80);
    Grid.Row(90);
    Grid.FillStyle(1);
    Grid.Row(95);
    Grid.CellBackColor(5);
    Grid.FillStyle(0);
    Parts();
    Grid.Rows(500);
    Grid.Row(300);
    Grid.Refresh();
    EXPECT_EQ(Parts().size(), 0U);
}

TEST_F(Painting, RowBehindAScrollBar_IsInvalidatedAsSoonAsTheBarIsGone)
{
    Build(100, 4);
    Surroundings.BarHeight = 480;
    Forget();
    Grid.TextMatrix(18, 1, u"hidden");
    EXPECT_EQ(Surroundings.Parts.size(), 0U);
    Surroundings.BarHeight = 0;
    Grid.TextMatrix(18, 1, u"shown");
    EXPECT_EQ(Surroundings.Parts.size(), 1U);
}

TEST_F(Painting, RowThatASmallerOneBehindAScrollBarLetsIn_IsInvalidatedAsSoonAsTheBarIsGone)
{
    Build(100, 4);
    Surroundings.BarHeight = 480;
    Forget();
    Grid.RowHeight(19, 60);
    Grid.TextMatrix(20, 1, u"hidden");
    EXPECT_EQ(Surroundings.Parts.size(), 0U);
    Surroundings.BarHeight = 0;
    Grid.TextMatrix(20, 1, u"shown");
    EXPECT_EQ(Surroundings.Parts.size(), 1U);
}

TEST_F(Painting, AdvanceToTheNextCell_InvalidatesTwoCellsAndTheMarkers)
{
    Build(100, 5);
    Grid.Redraw(false);
    Grid.Row(2);
    Grid.Col(0);
    Grid.CellPictureAlignment(4);
    Grid.CellPicture(Picture::Arrow);
    Grid.Row(1);
    Grid.Col(1);
    Grid.Redraw(true);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{0, 480, 960, 240}}));
    Grid.Row(2);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{960, 240, 960, 240}, {960, 480, 960, 240}}));
    Grid.RowSel(2);
    Grid.ColSel(1);
    Grid.Refresh();
    EXPECT_EQ(Parts().size(), 0U);
}

TEST_F(Painting, SelectionThatChanges_InvalidatesWhatItCoveredAndCovers)
{
    Build(100, 5);
    Grid.RowSel(3);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{960, 240, 960, 240}, {960, 240, 960, 720}}));
}

TEST_F(Painting, SelectionLargerThanTheView_IsCutOffAtIt)
{
    Build(1000, 31);
    Grid.TopRow(10);
    Parts();
    Grid.PressCell({0, 0});
    const std::vector<GridRectangle> parts = Parts();
    EXPECT_EQ(parts.back(), (GridRectangle{960, 240, 8640, 4560}));
}

TEST_F(Painting, WhileRedrawIsFalse_NothingIsInvalidatedAndWhatIsDueComesBehind)
{
    Build(100, 5);
    Grid.Redraw(false);
    Grid.TextMatrix(2, 3, u"new");
    Grid.TextMatrix(2, 3, u"newer");
    Grid.Refresh();
    EXPECT_TRUE(Grid.IsPaintingHeld());
    EXPECT_EQ(Paintings(), 0);
    EXPECT_EQ(Parts().size(), 0U);
    Grid.Redraw(true);
    EXPECT_EQ(Paintings(), 1);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{2880, 480, 960, 240}}));
}

TEST_F(Painting, MuchHeldBack_BecomesTheWholeView)
{
    Build(100, 10);
    Grid.Redraw(false);
    for (std::int32_t row = 1; row < 20; ++row)
        for (std::int32_t col = 1; col < 10; ++col)
            Grid.TextMatrix(row, col, u"new");
    Grid.Redraw(true);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{0, 0, 9600, 4800}}));
}

TEST_F(Painting, WalkThatComesBack_InvalidatesOnlyWhatItPainted)
{
    Build(100, 5);
    for (std::int32_t row = 1; row < 100; ++row) {
        Grid.FillStyle(1);
        Grid.Row(row);
        Grid.Col(1);
        Grid.ColSel(4);
        Grid.CellBackColor(row % 2);
        Grid.FillStyle(0);
    }
    Grid.Row(1);
    Parts();
    for (std::int32_t row = 1; row < 100; ++row) {
        Grid.FillStyle(1);
        Grid.Row(row);
        Grid.Col(1);
        Grid.ColSel(4);
        Grid.CellBackColor(row % 2);
        Grid.Row(1);
        Grid.FillStyle(0);
    }
    EXPECT_EQ(Parts().size(), 0U);
}

TEST_F(Painting, RowsInserted_InvalidateFromThereDown)
{
    Build(100, 5);
    Grid.AddItem(u"", 10);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{0, 2400, 9600, 2400}}));
    Grid.RowHeight(5, 300);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{0, 1200, 9600, 3600}}));
    Grid.ColWidth(3, 100);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{2880, 0, 6720, 4800}}));
}

TEST_F(Painting, RowsGrowingIntoView_AreInvalidated)
{
    Build(5, 5);
    Grid.Rows(6);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{0, 1200, 9600, 3600}}));
    EXPECT_EQ(Grid.VisibleRows(), (GridSpan{1, 5}));
    Grid.Rows(4);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{0, 960, 9600, 3840}}));
    Grid.Rows(6);
    Parts();
    Grid.AddItem(u"", -1);
    EXPECT_EQ(Area(Parts()), std::int64_t{9600} * (4800 - 6 * 240));
    EXPECT_EQ(Grid.VisibleRows(), (GridSpan{1, 6}));
}

TEST_F(Painting, Scroll_InvalidatesTheViewBeforeItIsTold)
{
    Build(100, 5);
    std::size_t parts = 0;
    Surroundings.Once(ChildEvent::Scroll, [&] { parts = Surroundings.Parts.size(); });
    Grid.TopRow(5);
    EXPECT_EQ(parts, 1U);
    EXPECT_EQ(Parts(), (std::vector<GridRectangle>{{0, 0, 9600, 4800}}));
    EXPECT_EQ(Grid.VisibleRows(), (GridSpan{5, 23}));
}

TEST_F(Painting, CellsScrolledAway_InvalidateNothing)
{
    Build(100, 31);
    Grid.TopRow(50);
    Grid.LeftCol(20);
    Parts();
    Grid.TextMatrix(10, 20, u"x");
    Grid.TextMatrix(55, 5, u"x");
    EXPECT_EQ(Parts().size(), 0U);
    Grid.TextMatrix(0, 20, u"x");
    Grid.TextMatrix(50, 0, u"x");
    EXPECT_EQ(Area(Parts()), 2 * cell);
}

TEST_F(Painting, VisibleSpansAndRectangles_FollowTheView)
{
    Build(100, 31);
    EXPECT_EQ(Grid.VisibleRows(), (GridSpan{1, 19}));
    EXPECT_EQ(Grid.VisibleCols(), (GridSpan{1, 9}));
    Grid.Move(0, 0, 9601, 4801);
    EXPECT_EQ(Grid.VisibleRows(), (GridSpan{1, 20}));
    EXPECT_EQ(Grid.VisibleCols(), (GridSpan{1, 10}));
    Surroundings.BarHeight = 241;
    EXPECT_EQ(Grid.VisibleRows(), (GridSpan{1, 18}));
    EXPECT_EQ(Grid.View(), (GridRectangle{0, 0, 9601, 4560}));
    Grid.TopRow(10);
    EXPECT_EQ(Grid.RectangleOf({12, 2}), (GridRectangle{1920, 720, 960, 240}));
    EXPECT_EQ(Grid.RectangleOf({0, 2}), (GridRectangle{1920, 0, 960, 240}));
    EXPECT_EQ(Grid.RectangleOf({9, 2}), (GridRectangle{1920, 0, 960, 240}));
    EXPECT_EQ(Grid.RectangleOf({5, 2}).Top, -960);
    EXPECT_EQ(Grid.RectangleOf({500, 2}), GridRectangle{});
}

TEST_F(Painting, CellAt_FindsFixedAndScrolledCells)
{
    Build(100, 31);
    Grid.TopRow(10);
    Grid.LeftCol(5);
    EXPECT_EQ(Grid.CellAt(0, 0), (GridCell{0, 0}));
    EXPECT_EQ(Grid.CellAt(959.5F, 239.5F), (GridCell{0, 0}));
    EXPECT_EQ(Grid.CellAt(960, 240), (GridCell{10, 5}));
    EXPECT_EQ(Grid.CellAt(100, 500), (GridCell{11, 0}));
    EXPECT_EQ(Grid.CellAt(-1, 100), std::nullopt);
    EXPECT_EQ(Grid.CellAt(100, 4800), std::nullopt);
    Grid.Rows(3);
    EXPECT_EQ(Grid.CellAt(100, 800), std::nullopt);
}

TEST_F(Painting, PaintedByTheToolkit_LeavesNothingForRefresh)
{
    Build(100, 5);
    Grid.TextMatrix(2, 3, u"new");
    Grid.Painted();
    Grid.Refresh();
    EXPECT_EQ(Paintings(), 0);
}

TEST_F(Painting, RowsOfALoadOutOfView_PaintNothing)
{
    Build(1001, 5);
    for (std::int32_t row = 1; row < 1001; ++row) {
        Grid.TextMatrix(row, 1, u"text");
        Grid.RowHeight(row, 240);
        Grid.Redraw(true);
        Grid.Row(row);
        Grid.FillStyle(1);
        Grid.Col(1);
        Grid.ColSel(4);
        Grid.CellBackColor(row % 2);
        Grid.FillStyle(0);
    }
    EXPECT_LE(Paintings(), 21);
    EXPECT_LE(Parts().size(), 140U);
}

} // namespace Tessellon::GridTests
