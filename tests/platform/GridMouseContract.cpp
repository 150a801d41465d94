#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

namespace {

const Names move{"MSFlexGrid1.LeaveCell", "MSFlexGrid1.EnterCell", "MSFlexGrid1.RowColChange", "MSFlexGrid1.SelChange"};
const Names down{"MSFlexGrid1.MouseDown(1)"};
const Names up{"MSFlexGrid1.MouseUp(1)"};
const Names click{"MSFlexGrid1.Click"};

} // namespace

/// The grid has the focus already, so that presses tell of themselves alone.
class GridMouseContract : public PlatformContract, public ::testing::WithParamInterface<PlatformFactory> {
protected:
    GridMouseContract()
    {
        Cells().SetFocus();
        Told();
    }

    bool Press(float x, float y, std::int16_t button = 1, std::int16_t shift = 0)
    {
        bool isTaken = false;
        Act([&] { isTaken = Cells().PressMouse({button, shift, x, y}); });
        return isTaken;
    }
    void Release(float x, float y, std::int16_t button = 1)
    {
        Act([&] { Cells().ReleaseMouse({button, 0, x, y}); });
    }
    void Drag(float x, float y)
    {
        Act([&] { Cells().MoveMouse({1, 0, x, y}); });
    }
};

INSTANTIATE_TEST_SUITE_P(On, GridMouseContract, ::testing::Values(TheFactory()), PlatformName);

// ---- Presses --------------------------------------------------------------------------------------------------------

TEST_P(GridMouseContract, Press_Focus_MouseDown_Move_Release_MouseUp_Click)
{
    Enter(Text());
    User().Click(3, 2);
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "Text1.LostFocus", "MSFlexGrid1.GotFocus"} + down + move + up + click));
    EXPECT_EQ(Cell(), (Names{"3", "2", "3", "2"}));
}

TEST_P(GridMouseContract, PressOnTheCurrentCell_MovesNothing)
{
    User().Click(1, 1);
    EXPECT_EQ(Told(), down + up + click);
}

TEST_P(GridMouseContract, PressedCell_IsFoundWhenTheGridHasTheFocus)
{
    Cells().Rows(101);
    Enter(Combo());
    Recorder.Once("Combo1(0).LostFocus", [&](EventArguments&) { Cells().TopRow(11); });
    Press(1500, 300);
    EXPECT_EQ(Cell(), (Names{"11", "1", "11", "1"}));
}

TEST_P(GridMouseContract, PressedCell_IsNotSoughtAgainBehindMouseDown)
{
    Cells().Rows(101);
    Recorder.Once("MSFlexGrid1.MouseDown", [&](EventArguments&) { Cells().TopRow(11); });
    Press(1500, 540);
    EXPECT_EQ(Cells().Row(), 2);
}

TEST_P(GridMouseContract, PressWhereNoCellIs_TellsMouseDown_ItsReleaseMouseUpAndClick)
{
    Press(9000, 300);
    Release(9000, 300);
    EXPECT_EQ(Told(), down + up + click);
}

TEST_P(GridMouseContract, PressWhoseCellIsGoneBehindMouseDown_MovesNothing)
{
    Recorder.Once("MSFlexGrid1.MouseDown", [&](EventArguments&) { Cells().Rows(3); });
    User().Click(9, 2);
    EXPECT_EQ(Told(), down + up + click);
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
}

TEST_P(GridMouseContract, SecondPressOfADoubleClick_TellsMouseDownAndDblClick_ItsReleaseNoClick)
{
    User().DoubleClick(2, 2);
    EXPECT_EQ(Told(), (down + move + up + click + down + Names{"MSFlexGrid1.DblClick"} + up));
}

TEST_P(GridMouseContract, OnlyButton1_MovesTheCursorAndTellsClick)
{
    Press(3000, 900, 2);
    Release(3000, 900, 2);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.MouseDown(2)", "MSFlexGrid1.MouseUp(2)"}));
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
}

TEST_P(GridMouseContract, CellThatIsPressed_IsBroughtIntoViewBeforeTheMoveIsAnnounced)
{
    Cells().Rows(101);
    Cells().Move(0, 0, 9600, 1100);
    Told();
    Press(1500, 1000);
    EXPECT_EQ(Told(), (down + Names{"MSFlexGrid1.Scroll"} + move));
    EXPECT_EQ(Cells().TopRow(), 2);
}

TEST_P(GridMouseContract, ShiftPress_ExtendsTheSelection_WithSelChangeAtTheRelease)
{
    Press(3000, 900, 1, 1);
    EXPECT_EQ(Told(), down);
    EXPECT_EQ(Cell(), (Names{"1", "1", "3", "3"}));
    Release(3000, 900);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.SelChange"} + up + click));
}

// ---- Drags ----------------------------------------------------------------------------------------------------------

TEST_P(GridMouseContract, Drag_ExtendsTheSelection_WithSelChangeAtItsEnd_AheadOfMouseUp)
{
    User().Drag(2, 2, 4, 3);
    EXPECT_EQ(Told(), (down + move + Names{"MSFlexGrid1.MouseMove(1)", "MSFlexGrid1.SelChange"} + up + click));
    EXPECT_EQ(Cell(), (Names{"2", "2", "4", "3"}));
}

TEST_P(GridMouseContract, Drag_SelectsOnlyFromADataCellToADataCell)
{
    User().Drag(2, 2, 0, 3);
    EXPECT_EQ(Cell(), (Names{"2", "2", "2", "2"}));
    User().Drag(2, 0, 4, 3);
    EXPECT_EQ(Cell(), (Names{"2", "1", "2", "5"}));
}

TEST_P(GridMouseContract, DragBackToItsBegin_TellsNoSelChange)
{
    Press(2500, 900);
    Told();
    Drag(3500, 1200);
    Drag(2500, 900);
    Release(2500, 900);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.MouseMove(1)", "MSFlexGrid1.MouseMove(1)"} + up + click));
}

TEST_P(GridMouseContract, DragStepOutside_ScrollsByOne_AndMovesTheCornerThere)
{
    Cells().Rows(101);
    Cells().Cols(31);
    Press(1500, 300);
    Told();
    Act([&] { Cells().StepDrag(1500, 5000); });
    EXPECT_EQ(Cells().TopRow(), 2);
    EXPECT_EQ(Cells().RowSel(), 20);
    Act([&] { Cells().StepDrag(9700, 300); });
    EXPECT_EQ(Cells().LeftCol(), 2);
    EXPECT_EQ(Cells().ColSel(), 10);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.Scroll", "MSFlexGrid1.Scroll"}));
}

// ---- Headings -------------------------------------------------------------------------------------------------------

TEST_P(GridMouseContract, HeadingPress_SelectsTheColumn_InTheCurrentRow_WithoutClick)
{
    Cells().Row(4);
    Told();
    User().Click(0, 3);
    EXPECT_EQ(Told(), down + move + up);
    EXPECT_EQ(Cell(), (Names{"4", "3", "20", "3"}));
}

TEST_P(GridMouseContract, HeadingPress_IsAnnouncedThoughItsCellIsTheCurrentOne)
{
    User().Click(0, 1);
    Told();
    User().Click(0, 1);
    EXPECT_EQ(Told(),
              (down + Names{"MSFlexGrid1.LeaveCell", "MSFlexGrid1.EnterCell", "MSFlexGrid1.RowColChange"} + up));
}

TEST_P(GridMouseContract, HeadingPress_WithTheCursorInTheHeading_GoesToTheFirstRow)
{
    Cells().Row(0);
    User().Click(0, 2);
    EXPECT_EQ(Cell(), (Names{"1", "2", "20", "2"}));
}

TEST_P(GridMouseContract, HeadingAndCornerPress_ScrollNothing_TheMarkerPressShowsItsCell)
{
    Cells().Rows(101);
    Cells().Cols(31);
    Cells().TopRow(50);
    Cells().LeftCol(10);
    Told();
    Press(1500, 100);
    Release(1500, 100);
    EXPECT_EQ(Cell(), (Names{"1", "10", "100", "10"}));
    Press(100, 100);
    Release(100, 100);
    EXPECT_EQ(Cells().TopRow(), 50);
    EXPECT_EQ(Cells().LeftCol(), 10);
    Told();
    Press(100, 300);
    EXPECT_EQ(Told(), (down + Names{"MSFlexGrid1.Scroll"} + move));
    EXPECT_EQ(Cells().LeftCol(), 1);
    EXPECT_EQ(Cell(), (Names{"50", "1", "50", "30"}));
}

TEST_P(GridMouseContract, MarkerPress_SelectsTheRow_FromItsFirstShownColumn_WithClick)
{
    Cells().ColWidth(1, 0);
    User().Click(5, 0);
    EXPECT_EQ(Told(), down + move + up + click);
    EXPECT_EQ(Cell(), (Names{"5", "2", "5", "5"}));
}

TEST_P(GridMouseContract, CornerPress_SelectsAll_AnnouncedLikeAnyMove_WithoutClick)
{
    Cells().ColWidth(1, 0);
    User().Click(0, 0);
    EXPECT_EQ(Told(), down + move + up);
    EXPECT_EQ(Cell(), (Names{"1", "2", "20", "5"}));
    User().Click(0, 0);
    EXPECT_EQ(Told(), down + up);
}

TEST_P(GridMouseContract, WithoutADataRowOrAShownColumn_HeadingsMoveNothing)
{
    for (std::int32_t col = 1; col < 6; ++col)
        Cells().ColWidth(col, 0);
    User().Click(0, 0);
    User().Click(3, 0);
    User().Click(0, 2);
    EXPECT_EQ(Told(), (down + up + down + up + click + down + up));
    Cells().ColWidth(1, -1);
    Cells().Rows(1);
    Told();
    User().Click(0, 1);
    EXPECT_EQ(Told(), down + up);
}

// ---- The edges of headings ------------------------------------------------------------------------------------------

TEST_P(GridMouseContract, EdgeOfAHeading_Is60TwipsEitherSide_WhereResizingIsAllowed)
{
    EXPECT_EQ(Cells().EdgeAt(1920, 100), std::nullopt);
    Cells().AllowUserResizing(1);
    EXPECT_EQ(Cells().EdgeAt(1860, 100), 1);
    EXPECT_EQ(Cells().EdgeAt(1980, 100), 1);
    EXPECT_EQ(Cells().EdgeAt(1859, 100), std::nullopt);
    EXPECT_EQ(Cells().EdgeAt(1981, 100), std::nullopt);
    EXPECT_EQ(Cells().EdgeAt(960, 100), 0);
    EXPECT_EQ(Cells().EdgeAt(1920, 300), std::nullopt);
    Cells().ColWidth(1, 0);
    EXPECT_EQ(Cells().EdgeAt(960, 100), 0);
}

TEST_P(GridMouseContract, ColumnDraggedByItsHeadingsEdge_IsResized_WithoutACellEventAndWithoutClick)
{
    Cells().AllowUserResizing(1);
    Enter(Text());
    Press(1930, 100);
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "Text1.LostFocus", "MSFlexGrid1.GotFocus"} + down));
    Drag(2430, 100);
    EXPECT_EQ(Cells().ColWidth(1), 1460);
    Drag(30, 100);
    EXPECT_EQ(Cells().ColWidth(1), 0);
    Drag(1900, 2000);
    EXPECT_EQ(Cells().ColWidth(1), 930);
    Release(1900, 2000);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.MouseMove(1)", "MSFlexGrid1.MouseMove(1)", "MSFlexGrid1.MouseMove(1)"} + up));
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
    Drag(2500, 100);
    EXPECT_EQ(Cells().ColWidth(1), 930);
}

TEST_P(GridMouseContract, EdgeDragOfTheMarkerColumn_ResizesIt)
{
    Cells().AllowUserResizing(1);
    Press(960, 100);
    Drag(760, 100);
    Release(760, 100);
    EXPECT_EQ(Cells().ColWidth(0), 760);
}

TEST_P(GridMouseContract, EdgeDrag_WhoseColumnIsGone_DoesNothing)
{
    Cells().AllowUserResizing(1);
    Press(5760, 100);
    Cells().Cols(3);
    Drag(6000, 100);
    Release(6000, 100);
    EXPECT_EQ(Under->UnhandledFailures(), std::vector<std::int32_t>{});
    EXPECT_EQ(Told(), (down + Names{"MSFlexGrid1.MouseMove(1)"} + up));
}

TEST_P(GridMouseContract, EdgeWithoutResizing_IsTheHeading)
{
    Press(1920, 100);
    EXPECT_EQ(Cell(), (Names{"1", "2", "20", "2"}));
}

// ---- Failures and lost presses --------------------------------------------------------------------------------------

TEST_P(GridMouseContract, FailureInAPress_EndsTheRest_AndLeavesNoButtonHeld)
{
    Recorder.Once("MSFlexGrid1.MouseDown", [](EventArguments&) { throw Failure(6, u"Host", u""); });
    User().Click(3, 3);
    EXPECT_EQ(Under->UnhandledFailures(), std::vector<std::int32_t>{6});
    EXPECT_EQ(Told(), down);
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
    User().MouseUp(1500, 300);
    User().MouseMove(1500, 300);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridMouseContract, ReleaseWithoutAPress_IsNothing_AndAHoverTellsMouseMoveWithoutAButton)
{
    User().MouseUp(1500, 300);
    User().MouseMove(1500, 300);
    EXPECT_EQ(Told(), Names{});
    User().Hover(1500, 300);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.MouseMove(0)"});
}

} // namespace Tessellon::Contract
