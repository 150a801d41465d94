#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

CONTRACT_SUITE(GridCursorContract);

namespace {

const Names move{"MSFlexGrid1.LeaveCell", "MSFlexGrid1.EnterCell", "MSFlexGrid1.RowColChange"};
const Names wholeMove = move + Names{"MSFlexGrid1.SelChange"};

} // namespace

TEST_P(GridCursorContract, Move_LeaveCellWhileTheOldCellIsCurrent_ThenTheChange_ThenTheRest)
{
    Recorder.Once("MSFlexGrid1.LeaveCell", [&](EventArguments&) { EXPECT_EQ(Cells().Row(), 1); });
    for (const char* event : {"MSFlexGrid1.EnterCell", "MSFlexGrid1.RowColChange", "MSFlexGrid1.SelChange"})
        Recorder.Once(event, [&](EventArguments&) { EXPECT_EQ(Cell(), (Names{"4", "1", "4", "1"})); });
    Cells().Row(4);
    EXPECT_EQ(Told(), wholeMove);
}

TEST_P(GridCursorContract, WritingRowOrCol_CollapsesTheSelection)
{
    Cells().RowSel(5);
    Cells().ColSel(3);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.SelChange", "MSFlexGrid1.SelChange"}));
    Cells().Row(2);
    EXPECT_EQ(Cell(), (Names{"2", "1", "2", "1"}));
    Cells().ColSel(3);
    Told();
    Cells().Col(1);
    EXPECT_EQ(Cell(), (Names{"2", "1", "2", "1"}));
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.SelChange"});
}

TEST_P(GridCursorContract, WriteThatChangesNothing_TellsNothing)
{
    Cells().Row(1);
    Cells().Col(1);
    Cells().RowSel(1);
    Cells().ColSel(1);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridCursorContract, WhileRedrawIsFalseOrFillStyleIs1_TheCursorIsWrittenInSilence)
{
    const auto walk = [&] {
        Cells().Row(9);
        Cells().Col(3);
        Cells().RowSel(12);
        Cells().ColSel(5);
        Cells().Row(1);
        Cells().Col(1);
    };
    Cells().Redraw(false);
    walk();
    Cells().Redraw(true);
    Cells().FillStyle(1);
    walk();
    Cells().FillStyle(0);
    Cells().Row(1);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridCursorContract, BehindAWalk_TheNextWriteIsComparedWithTheCellAnnouncedLast)
{
    Cells().Redraw(false);
    Cells().Row(9);
    Cells().Redraw(true);
    EXPECT_EQ(Told(), Names{});
    Recorder.Once("MSFlexGrid1.LeaveCell", [&](EventArguments&) { EXPECT_EQ(Cells().Row(), 9); });
    Cells().Row(9);
    EXPECT_EQ(Told(), wholeMove);
}

TEST_P(GridCursorContract, BehindAWalk_TheAnnouncedRowOrColumn_PutsTheWholeCursorBackUnheard)
{
    Cells().Redraw(false);
    Cells().Row(9);
    Cells().Col(4);
    Cells().Redraw(true);
    Cells().RowSel(12);
    EXPECT_EQ(Told(), Names{});
    Cells().Col(1);
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridCursorContract, BehindAWalkFromARange_TheReturnTellsSelChangeAlone)
{
    Cells().RowSel(5);
    Told();
    Cells().FillStyle(1);
    Cells().Row(9);
    Cells().FillStyle(0);
    Cells().Row(1);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.SelChange"});
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
}

TEST_P(GridCursorContract, TheUsersOwnMoves_AreAlwaysAnnounced)
{
    Cells().SetFocus();
    Cells().Redraw(false);
    Told();
    User().Click(3, 3);
    EXPECT_EQ(Told(),
              (Names{"MSFlexGrid1.MouseDown(1)"} + wholeMove + Names{"MSFlexGrid1.MouseUp(1)", "MSFlexGrid1.Click"}));
    Key(KeyCode::Down);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.KeyDown(40,0)"} + wholeMove + Names{"MSFlexGrid1.KeyUp(40,0)"}));
}

TEST_P(GridCursorContract, MoveMadeInLeaveCell_IsToldWhole_ThenTheOuterGoesOnWithoutAnotherLeaveCell)
{
    Recorder.Once("MSFlexGrid1.LeaveCell", [&](EventArguments&) { Cells().Row(7); });
    Cells().Row(3);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.LeaveCell"} + wholeMove +
                       Names{"MSFlexGrid1.EnterCell", "MSFlexGrid1.RowColChange", "MSFlexGrid1.SelChange"}));
    EXPECT_EQ(Cell(), (Names{"3", "1", "3", "1"}));
}

TEST_P(GridCursorContract, TargetOfAGridThatShrankInLeaveCell_IsDrawnBackIntoIt)
{
    Recorder.Once("MSFlexGrid1.LeaveCell", [&](EventArguments&) { Cells().Rows(5); });
    Cells().Row(9);
    EXPECT_EQ(Cell(), (Names{"4", "1", "4", "1"}));
    EXPECT_EQ(Told(), wholeMove);
}

TEST_P(GridCursorContract, MoveMadeInEnterCell_IsToldWholeInside_TheOuterEventsStillCome_TheCursorStays)
{
    Recorder.Once("MSFlexGrid1.EnterCell", [&](EventArguments&) { Cells().Row(7); });
    Cells().Row(3);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.LeaveCell", "MSFlexGrid1.EnterCell"} + wholeMove +
                       Names{"MSFlexGrid1.RowColChange", "MSFlexGrid1.SelChange"}));
    EXPECT_EQ(Cell(), (Names{"7", "1", "7", "1"}));
}

TEST_P(GridCursorContract, FailureInAHandler_GoesToWhoeverWrote_WhatWasDoneStays)
{
    Recorder.Once("MSFlexGrid1.LeaveCell", [](EventArguments&) { throw Failure(7, u"Host", u""); });
    EXPECT_EQ(NumberOf([&] { Cells().Row(3); }), 7);
    EXPECT_EQ(Cells().Row(), 1);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.LeaveCell"});
    Recorder.Once("MSFlexGrid1.EnterCell", [](EventArguments&) { throw Failure(7, u"Host", u""); });
    EXPECT_EQ(NumberOf([&] { Cells().Row(3); }), 7);
    EXPECT_EQ(Cells().Row(), 3);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.LeaveCell", "MSFlexGrid1.EnterCell"}));
    Cells().Row(3);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridCursorContract, WritingRowOrCol_DoesNotScroll_ReadingTheCellsPlaceDoes)
{
    Cells().Rows(101);
    Cells().Cols(21);
    Cells().Row(50);
    Cells().Col(15);
    EXPECT_EQ(Cells().TopRow(), 1);
    Told();
    EXPECT_EQ(Cells().CellTop(), 4560);
    EXPECT_EQ(Cells().CellLeft(), 8640);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.Scroll", "MSFlexGrid1.Scroll"}));
    EXPECT_EQ(Cells().TopRow(), 32);
    EXPECT_EQ(Cells().LeftCol(), 7);
    EXPECT_EQ(Cells().CellWidth(), 960);
    EXPECT_EQ(Cells().CellHeight(), 240);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridCursorContract, TopRowAndLeftCol_AreClamped_AndTellScrollForEachChange)
{
    Cells().Rows(101);
    Cells().Cols(21);
    Told();
    Cells().TopRow(9999);
    EXPECT_EQ(Cells().TopRow(), 82);
    Cells().TopRow(-5);
    EXPECT_EQ(Cells().TopRow(), 1);
    Cells().LeftCol(9999);
    EXPECT_EQ(Cells().LeftCol(), 12);
    Cells().LeftCol(12);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.Scroll", "MSFlexGrid1.Scroll", "MSFlexGrid1.Scroll"}));
}

TEST_P(GridCursorContract, SizesThatChange_DoNotScroll)
{
    Cells().Rows(101);
    Cells().TopRow(82);
    Told();
    Cells().Move(0, 0, 9600, 9600);
    Cells().RowHeight(100, 60);
    Cells().ColWidth(1, 60);
    EXPECT_EQ(Cells().TopRow(), 82);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridCursorContract, RowLargerThanTheView_IsShownFromItsNearEdge)
{
    Cells().Rows(101);
    Cells().RowHeight(50, 9000);
    Cells().Row(50);
    EXPECT_EQ(Cells().CellTop(), 240);
    EXPECT_EQ(Cells().TopRow(), 50);
}

} // namespace Tessellon::Contract
