#include "engine/grid/RecordingGrid.h"

namespace Tessellon::GridTests {

using CursorEvents = GridTest;

TEST_F(CursorEvents, MoveByCode_TellsEachEventOnceInOrder)
{
    Build(7, 3);
    Grid.Row(3);
    EXPECT_EQ(Told(), wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{3, 1, 3, 1}));
}

TEST_F(CursorEvents, WriteThatChangesNothing_TellsNothing)
{
    Build(7, 3);
    Grid.Row(1);
    Grid.Col(1);
    Grid.RowSel(1);
    Grid.ColSel(1);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(CursorEvents, OldCell_IsCurrentInLeaveCellAndTheNewOneBehindIt)
{
    Build(7, 3);
    std::vector<Numbers> seen;
    for (const ChildEvent event :
         {ChildEvent::LeaveCell, ChildEvent::EnterCell, ChildEvent::RowColChange, ChildEvent::SelChange})
        Surroundings.Once(event, [&] { seen.push_back(Cursor()); });
    Grid.Row(3);
    EXPECT_EQ(seen, (std::vector<Numbers>{{1, 1, 1, 1}, {3, 1, 3, 1}, {3, 1, 3, 1}, {3, 1, 3, 1}}));
}

TEST_F(CursorEvents, WriteOfRowOrCol_CollapsesTheSelection)
{
    Build(7, 4);
    Select(2, 1, 4, 3);
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 4, 3}));
    Forget();
    Grid.Row(2);
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 2, 1}));
    EXPECT_EQ(Told(), Names{"SelChange"});
    Grid.RowSel(5);
    EXPECT_EQ(Told(), Names{"SelChange"});
    Grid.Col(2);
    EXPECT_EQ(Cursor(), (Numbers{2, 2, 2, 2}));
    EXPECT_EQ(Told(), wholeMove);
}

TEST_F(CursorEvents, CellsThatAreNotThere_FailAndMoveNothing)
{
    Build(7, 4);
    EXPECT_EQ(NumberOf([&] { Grid.Row(7); }), 30009);
    EXPECT_EQ(NumberOf([&] { Grid.Row(-1); }), 30009);
    EXPECT_EQ(NumberOf([&] { Grid.RowSel(7); }), 30009);
    EXPECT_EQ(NumberOf([&] { Grid.Col(4); }), 30010);
    EXPECT_EQ(NumberOf([&] { Grid.ColSel(-1); }), 30010);
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
    EXPECT_EQ(Told(), Names{});
    Grid.Row(0);
    Grid.Col(0);
    EXPECT_EQ(Cursor(), (Numbers{0, 0, 0, 0}));
}

TEST_F(CursorEvents, MoveInLeaveCell_IsToldWholeAndTheOuterMoveGoesOn)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::LeaveCell, [&] { Grid.Row(5); });
    Grid.Row(3);
    EXPECT_EQ(Told(), (Names{"LeaveCell"} + wholeMove + Names{"EnterCell", "RowColChange", "SelChange"}));
    EXPECT_EQ(Cursor(), (Numbers{3, 1, 3, 1}));
    Grid.Row(3);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(CursorEvents, MoveInLeaveCellToTheOuterTarget_StillLetsTheOuterOneTellItsOwn)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::LeaveCell, [&] { Grid.Row(3); });
    Grid.Row(3);
    EXPECT_EQ(Told(), (Names{"LeaveCell"} + wholeMove + Names{"EnterCell", "RowColChange", "SelChange"}));
}

TEST_F(CursorEvents, TargetThatLeaveCellTookAway_IsDrawnBackIntoTheGrid)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::LeaveCell, [&] {
        Grid.Rows(4);
        Grid.Cols(2);
    });
    Grid.Row(6);
    EXPECT_EQ(Cursor(), (Numbers{3, 1, 3, 1}));
    EXPECT_EQ(Told(), wholeMove);
}

TEST_F(CursorEvents, MoveInEnterCell_IsToldWholeInsideAndStays)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::EnterCell, [&] { Grid.Row(5); });
    Grid.Row(3);
    EXPECT_EQ(Told(), ((Names{"LeaveCell", "EnterCell"}) + wholeMove + Names{"RowColChange", "SelChange"}));
    EXPECT_EQ(Cursor(), (Numbers{5, 1, 5, 1}));
    Grid.Row(5);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(CursorEvents, MoveBackInRowColChange_TellsItsSelChangeToo)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::RowColChange, [&] { Grid.Row(1); });
    Grid.Row(3);
    EXPECT_EQ(Told(), ((Names{"LeaveCell", "EnterCell", "RowColChange"}) + wholeMove + Names{"SelChange"}));
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
}

TEST_F(CursorEvents, FailureInLeaveCell_LeavesTheCursorAndTheRestOut)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::LeaveCell, [] { throw 5; });
    EXPECT_THROW(Grid.Row(3), int);
    EXPECT_EQ(Told(), Names{"LeaveCell"});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
    Grid.Row(3);
    EXPECT_EQ(Told(), wholeMove);
}

TEST_F(CursorEvents, FailureInEnterCell_LeavesTheMoveDoneAndTheRestUntold)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::EnterCell, [] { throw 5; });
    EXPECT_THROW(Grid.Row(3), int);
    EXPECT_EQ(Told(), (Names{"LeaveCell", "EnterCell"}));
    EXPECT_EQ(Cursor(), (Numbers{3, 1, 3, 1}));
    Grid.Row(3);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(CursorEvents, ColumnsRebuiltInRowColChange_LeaveTheCursorInsideTheGrid)
{
    Build(7, 6);
    Surroundings.Once(ChildEvent::RowColChange, [&] {
        Grid.Cols(1);
        Grid.Rows(1);
        Grid.Rows(3);
        Grid.Cols(3);
    });
    Grid.Col(5);
    EXPECT_EQ(Told(), wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{0, 0, 0, 0}));
}

TEST_F(CursorEvents, WritingRowOrCol_DoesNotScroll)
{
    Build(200, 40);
    Grid.Row(150);
    Grid.Col(30);
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
    EXPECT_EQ(Told(), wholeMove + wholeMove);
}

TEST_F(CursorEvents, FillStyleOne_AppliesAPropertyToTheWholeSelectionAndZeroToTheCurrentCell)
{
    Build(6, 5);
    Select(2, 1, 3, 2);
    Grid.CellBackColor(10);
    EXPECT_EQ(Grid.ColorOf({2, 1}), 10);
    EXPECT_EQ(Grid.ColorOf({2, 2}), std::nullopt);
    Grid.FillStyle(1);
    Grid.CellBackColor(20);
    Grid.CellPicture(Picture::Arrow);
    Grid.CellPictureAlignment(4);
    for (const GridCell cell : {GridCell{2, 1}, GridCell{2, 2}, GridCell{3, 1}, GridCell{3, 2}}) {
        EXPECT_EQ(Grid.ColorOf(cell), 20);
        EXPECT_EQ(Grid.PictureOf(cell), Picture::Arrow);
        EXPECT_EQ(Grid.PictureAlignmentOf(cell), 4);
    }
    EXPECT_EQ(Grid.ColorOf({4, 1}), std::nullopt);
    EXPECT_EQ(Grid.ColorOf({2, 3}), std::nullopt);
    EXPECT_EQ(Grid.PictureOf({2, 3}), Picture::None);
}

} // namespace Tessellon::GridTests
