#include "engine/grid/RecordingGrid.h"

namespace Tessellon::GridTests {

using MouseOnGrid = GridTest;

TEST_F(MouseOnGrid, PressAndReleaseOnACell_TellInOrder)
{
    Build(7, 4);
    EXPECT_TRUE(Grid.PressMouse({1, 0, 2000, 500}));
    EXPECT_EQ(Told(), Names{"MouseDown"} + wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{2, 2, 2, 2}));
    Grid.ReleaseMouse({1, 2, 2001, 501});
    EXPECT_EQ(Told(), (Names{"MouseUp", "Click"}));
    EXPECT_FLOAT_EQ(Surroundings.Mouse[0].X, 2000);
    EXPECT_FLOAT_EQ(Surroundings.Mouse[0].Y, 500);
    EXPECT_EQ(Surroundings.Mouse[0].Button, 1);
    EXPECT_EQ(Surroundings.Mouse[1].Shift, 2);
    EXPECT_FLOAT_EQ(Surroundings.Mouse[1].X, 2001);
}

TEST_F(MouseOnGrid, PressOnANamedCell_IsInItsMiddle)
{
    Build(7, 4);
    EXPECT_TRUE(Grid.PressCell({1, 1}));
    Grid.ReleaseHere();
    EXPECT_FLOAT_EQ(Surroundings.Mouse[0].X, 1440);
    EXPECT_FLOAT_EQ(Surroundings.Mouse[0].Y, 360);
    EXPECT_FLOAT_EQ(Surroundings.Mouse[1].X, 1440);
    EXPECT_EQ(Told(), (Names{"MouseDown", "MouseUp", "Click"}));
    EXPECT_FALSE(Grid.PressCell({7, 1}));
    EXPECT_FALSE(Grid.PressCell({1, -1}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(MouseOnGrid, NamedCellWithoutWidth_CanBePressed)
{
    Build(7, 4);
    Grid.ColWidth(2, 0);
    Grid.PressCell({3, 2});
    EXPECT_EQ(Cursor(), (Numbers{3, 2, 3, 2}));
    EXPECT_FLOAT_EQ(Surroundings.Mouse[0].X, 1920);
}

TEST_F(MouseOnGrid, Press_GivesTheFocusFirst)
{
    Build(7, 4);
    Surroundings.HasFocus = false;
    Grid.PressCell({2, 1});
    EXPECT_EQ(Told(), (Names{"Focus", "MouseDown"}) + wholeMove);
}

TEST_F(MouseOnGrid, PressThatValidateRefused_IsLostWithItsRelease)
{
    Build(7, 4);
    Surroundings.LosesPress = true;
    EXPECT_FALSE(Grid.PressCell({2, 1}));
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
}

TEST_F(MouseOnGrid, ReleaseWithoutPress_IsNothing)
{
    Build(7, 4);
    Grid.ReleaseMouse({1, 0, 2000, 500});
    EXPECT_EQ(Told(), Names{});
}

TEST_F(MouseOnGrid, PressedCell_IsFoundWhenTheGridHasTheFocus)
{
    Build(100, 4);
    Surroundings.HasFocus = false;
    Surroundings.OnFocus = [&] { Grid.TopRow(11); };
    Grid.PressMouse({1, 0, 2000, 500});
    EXPECT_EQ(Cursor(), (Numbers{12, 2, 12, 2}));
}

TEST_F(MouseOnGrid, PressedCell_IsSettledBeforeMouseDownIsTold)
{
    Build(100, 4);
    Surroundings.Once(ChildEvent::MouseDown, [&] { Grid.TopRow(11); });
    Grid.PressMouse({1, 0, 2000, 500});
    EXPECT_EQ(Told(), (Names{"MouseDown", "Scroll", "Scroll"}) + wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{2, 2, 2, 2}));
    EXPECT_EQ(Grid.TopRow(), 2);
}

TEST_F(MouseOnGrid, PressedCellThatIsGoneBehindMouseDown_MovesNothing)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::MouseDown, [&] { Grid.Rows(3); });
    Grid.PressCell({5, 2});
    EXPECT_EQ(Told(), Names{"MouseDown"});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), (Names{"MouseUp", "Click"}));
}

TEST_F(MouseOnGrid, PressWhereNoCellIs_TellsTheMouseAlone)
{
    Build(3, 3);
    EXPECT_TRUE(Grid.PressMouse({1, 0, 8000, 300}));
    Grid.ReleaseMouse({1, 0, 8000, 300});
    EXPECT_EQ(Told(), (Names{"MouseDown", "MouseUp", "Click"}));
    EXPECT_TRUE(Grid.PressMouse({1, 0, 1000, 4000}));
    EXPECT_EQ(Told(), Names{"MouseDown"});
}

TEST_F(MouseOnGrid, SecondPressOfADoubleClick_MovesNothingAndItsReleaseDoesNotClick)
{
    Build(7, 4);
    Grid.PressCell({2, 1});
    Grid.ReleaseHere();
    Forget();
    Grid.DoublePressCell({2, 1});
    EXPECT_EQ(Told(), (Names{"MouseDown", "DblClick"}));
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), Names{"MouseUp"});
    Grid.DoublePressMouse({1, 0, 2000, 1000});
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), (Names{"MouseDown", "DblClick", "MouseUp"}));
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 2, 1}));
}

TEST_F(MouseOnGrid, OtherButtons_NeitherMoveNorClick)
{
    Build(7, 4);
    Grid.PressCell({3, 2}, 2);
    Grid.ReleaseHere(2);
    EXPECT_EQ(Told(), (Names{"MouseDown", "MouseUp"}));
    EXPECT_EQ(Surroundings.Mouse[1].Button, 2);
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
}

TEST_F(MouseOnGrid, Drag_ExtendsTheSelectionAndTellsItAtItsEndAheadOfMouseUp)
{
    Build(9, 5);
    Grid.PressCell({2, 1});
    Forget();
    Grid.DragToCell({5, 3});
    EXPECT_EQ(Told(), Names{"MouseMove"});
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 5, 3}));
    Grid.DragToCell({4, 2});
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), (Names{"MouseMove", "SelChange", "MouseUp", "Click"}));
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 4, 2}));
    EXPECT_FLOAT_EQ(Surroundings.Mouse.back().X, 2400);
    EXPECT_FLOAT_EQ(Surroundings.Mouse.back().Y, 1080);
}

TEST_F(MouseOnGrid, DragByPosition_SelectsTheCellThere)
{
    Build(9, 5);
    Grid.PressMouse({1, 0, 1000, 300});
    Grid.MoveMouse({1, 0, 3000, 800});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 3, 3}));
    Grid.MoveMouse({1, 0, 500, 800});
    Grid.MoveMouse({1, 0, 3000, 100});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 3, 3}));
}

TEST_F(MouseOnGrid, DragThatEndsWhereItBegan_TellsNoSelChange)
{
    Build(9, 5);
    Grid.PressCell({1, 1});
    Grid.DragToCell({3, 3});
    Grid.DragToCell({1, 1});
    Forget();
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), (Names{"MouseUp", "Click"}));
}

TEST_F(MouseOnGrid, Drag_SelectsOnlyFromADataCellToADataCell)
{
    Build(9, 5);
    Grid.PressCell({2, 2});
    Grid.DragToCell({0, 3});
    Grid.DragToCell({4, 0});
    EXPECT_EQ(Cursor(), (Numbers{2, 2, 2, 2}));
    Grid.ReleaseHere();
    Grid.PressCell({3, 0});
    const Numbers before = Cursor();
    Grid.DragToCell({5, 3});
    Grid.ReleaseHere();
    EXPECT_EQ(Cursor(), before);
}

TEST_F(MouseOnGrid, DragToACell_DoesNotScroll)
{
    Build(100, 5);
    Grid.PressCell({1, 1});
    Forget();
    Grid.DragToCell({60, 3});
    EXPECT_EQ(Told(), Names{"MouseMove"});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 60, 3}));
}

TEST_F(MouseOnGrid, PressWithShift_ExtendsInsteadOfMoving)
{
    Build(9, 5);
    Grid.PressCell({4, 3}, 1, 1);
    EXPECT_EQ(Told(), Names{"MouseDown"});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 4, 3}));
    Grid.ReleaseHere(1, 1);
    EXPECT_EQ(Told(), (Names{"SelChange", "MouseUp", "Click"}));
}

TEST_F(MouseOnGrid, PressOnAHeading_SelectsTheColumnFromTheCurrentRowWithoutClick)
{
    Build(5, 4);
    Grid.Row(2);
    Forget();
    Grid.PressCell({0, 2});
    EXPECT_EQ(Told(), Names{"MouseDown"} + wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{2, 2, 4, 2}));
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), Names{"MouseUp"});
}

TEST_F(MouseOnGrid, PressOnTheHeadingOfTheCurrentCell_IsToldAllTheSame)
{
    Build(5, 4);
    Grid.Row(2);
    Forget();
    Grid.PressCell({0, 1});
    EXPECT_EQ(Told(), Names{"MouseDown"} + wholeMove);
    Grid.ReleaseHere();
    Forget();
    Grid.PressCell({0, 1});
    EXPECT_EQ(Told(), (Names{"MouseDown", "LeaveCell", "EnterCell", "RowColChange"}));
}

TEST_F(MouseOnGrid, PressOnAHeadingWithoutACurrentDataRow_TakesTheFirst)
{
    Build(5, 4);
    Grid.Row(0);
    Grid.PressCell({0, 3});
    EXPECT_EQ(Cursor(), (Numbers{1, 3, 4, 3}));
}

TEST_F(MouseOnGrid, PressOnAHeadingOrTheCorner_ScrollsNothing)
{
    Build(100, 31);
    Grid.Row(50);
    Forget();
    Grid.PressCell({0, 2});
    EXPECT_EQ(Cursor(), (Numbers{50, 2, 99, 2}));
    Grid.PressCell({0, 0});
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
}

TEST_F(MouseOnGrid, PressOnTheMarkerColumn_SelectsTheRowFromTheFirstShownColumnAndClicks)
{
    Build(5, 4);
    Grid.ColWidth(1, 0);
    Grid.PressCell({3, 0});
    EXPECT_EQ(Told(), Names{"MouseDown"} + wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{3, 2, 3, 3}));
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), (Names{"MouseUp", "Click"}));
}

TEST_F(MouseOnGrid, PressOnTheMarkerColumn_BringsTheCellIntoViewAheadOfItsMove)
{
    Build(100, 31);
    Grid.LeftCol(10);
    Forget();
    Grid.PressMouse({1, 0, 100, 500});
    EXPECT_EQ(Told(), (Names{"MouseDown", "Scroll"}) + wholeMove);
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
}

TEST_F(MouseOnGrid, PressOnTheCorner_SelectsAllFromTheFirstShownCell)
{
    Build(5, 4);
    Grid.Row(3);
    Grid.ColWidth(1, 0);
    Forget();
    Grid.PressCell({0, 0});
    EXPECT_EQ(Told(), Names{"MouseDown"} + wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{1, 2, 4, 3}));
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), Names{"MouseUp"});
    Grid.PressCell({0, 0});
    EXPECT_EQ(Told(), Names{"MouseDown"});
}

TEST_F(MouseOnGrid, WithoutDataRowsOrShownColumns_HeadingsMoveNothing)
{
    Build(1, 3);
    Grid.PressCell({0, 1});
    Grid.PressCell({0, 0});
    EXPECT_EQ(Told(), (Names{"MouseDown", "MouseDown"}));
    Grid.Rows(3);
    Grid.ColWidth(1, 0);
    Grid.ColWidth(2, 0);
    Grid.PressCell({0, 1});
    Grid.PressCell({1, 0});
    Grid.PressCell({0, 0});
    EXPECT_EQ(Told(), (Names{"MouseDown", "MouseDown", "MouseDown"}));
}

TEST_F(MouseOnGrid, PressOnACellThatIsPartlyInView_ScrollsBeforeTheMove)
{
    Build(100, 31);
    Grid.Move(0, 0, 9700, 4900);
    Grid.PressMouse({1, 0, 9650, 4850});
    EXPECT_EQ(Told(), (Names{"MouseDown", "Scroll", "Scroll"}) + wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{20, 10, 20, 10}));
    EXPECT_EQ(Scrolled(), (Numbers{2, 2}));
}

TEST_F(MouseOnGrid, DisabledGrid_TakesNoPressAndTellsNothing)
{
    Build(7, 4);
    Surroundings.HasFocus = false;
    Grid.Enabled(false);
    Forget();
    EXPECT_FALSE(Grid.PressCell({2, 1}));
    EXPECT_FALSE(Grid.DoublePressCell({2, 1}));
    Grid.HoverMouse({0, 0, 100, 100});
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), Names{});
}

TEST_F(MouseOnGrid, DisabledWhileTheFocusIsTaken_LosesThePress)
{
    Build(7, 4);
    Surroundings.HasFocus = false;
    Surroundings.OnFocus = [&] { Grid.Enabled(false); };
    EXPECT_FALSE(Grid.PressCell({2, 1}));
    EXPECT_EQ(Told(), (Names{"Focus", "EnabledChanged"}));
}

TEST_F(MouseOnGrid, DisabledInMouseDown_LeavesTheRestOfThePressUndone)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::MouseDown, [&] { Grid.Enabled(false); });
    Grid.PressCell({2, 1});
    Grid.Enabled(true);
    Forget();
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
}

TEST_F(MouseOnGrid, DisabledInMouseUp_DoesNotClick)
{
    Build(7, 4);
    Grid.PressCell({2, 1});
    Surroundings.Once(ChildEvent::MouseUp, [&] { Grid.Enabled(false); });
    Forget();
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), (Names{"MouseUp", "EnabledChanged"}));
}

TEST_F(MouseOnGrid, FailureInMouseDown_MovesNothingAndLetsTheReleaseBeTold)
{
    Build(7, 4);
    Surroundings.Once(ChildEvent::MouseDown, [] { throw 5; });
    EXPECT_THROW(Grid.PressCell({2, 1}), int);
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
    Forget();
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), (Names{"MouseUp", "Click"}));
}

TEST_F(MouseOnGrid, FailureInSelChangeOfADrag_LeavesMouseUpOut)
{
    Build(7, 4);
    Grid.PressCell({2, 1});
    Grid.DragToCell({3, 1});
    Surroundings.Once(ChildEvent::SelChange, [] { throw 5; });
    Forget();
    EXPECT_THROW(Grid.ReleaseHere(), int);
    EXPECT_EQ(Told(), Names{"SelChange"});
    EXPECT_FALSE(Grid.IsHeld(1));
}

TEST_F(MouseOnGrid, Hover_TellsTheMoveAlone)
{
    Build(7, 4);
    Grid.HoverMouse({0, 0, 100, 100});
    Grid.PressCell({2, 1});
    Grid.HoverMouse({1, 0, 2000, 2000});
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), (Names{"MouseMove", "MouseDown"} + wholeMove + Names{"MouseMove", "MouseUp", "Click"}));
    EXPECT_EQ(Surroundings.Mouse[0].Button, 0);
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 2, 1}));
}

TEST_F(MouseOnGrid, AbandonedPress_HasNoRelease)
{
    Build(7, 4);
    Grid.PressCell({2, 1});
    Grid.AbandonPress();
    Forget();
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), Names{});
}

TEST_F(MouseOnGrid, EdgeOfAHeading_ReachesSixtyTwipsEitherSide)
{
    Build(5, 4);
    EXPECT_EQ(Grid.EdgeAt(1920, 100), std::nullopt);
    Grid.AllowUserResizing(1);
    EXPECT_EQ(Grid.EdgeAt(1860, 100), 1);
    EXPECT_EQ(Grid.EdgeAt(1980, 100), 1);
    EXPECT_EQ(Grid.EdgeAt(1859, 100), std::nullopt);
    EXPECT_EQ(Grid.EdgeAt(1981, 100), std::nullopt);
    EXPECT_EQ(Grid.EdgeAt(960, 0), 0);
    EXPECT_EQ(Grid.EdgeAt(1920, 240), std::nullopt);
    Grid.ColWidth(2, 0);
    EXPECT_EQ(Grid.EdgeAt(1930, 100), 1);
    EXPECT_EQ(Grid.EdgeAt(2880, 100), 3);
}

TEST_F(MouseOnGrid, PullingAnEdge_SetsTheWidthAndTellsNoCellEvent)
{
    Build(5, 4);
    Grid.AllowUserResizing(1);
    Surroundings.HasFocus = false;
    Grid.PressMouse({1, 0, 1900, 100});
    EXPECT_TRUE(Grid.IsResizing());
    Grid.MoveMouse({1, 0, 2400, 100});
    EXPECT_EQ(Grid.ColWidth(1), 1460);
    Grid.MoveMouse({1, 0, -500, 100});
    EXPECT_EQ(Grid.ColWidth(1), 0);
    Grid.MoveMouse({1, 0, 1960, 3000});
    EXPECT_EQ(Grid.ColWidth(1), 1020);
    Grid.ReleaseMouse({1, 0, 1960, 3000});
    EXPECT_EQ(Told(), (Names{"Focus", "MouseDown", "MouseMove", "MouseMove", "MouseMove", "MouseUp"}));
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
    EXPECT_FALSE(Grid.IsResizing());
}

TEST_F(MouseOnGrid, EdgeWithoutResizing_IsTheHeading)
{
    Build(5, 4);
    Grid.PressMouse({1, 0, 1900, 100});
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 4, 1}));
    Grid.AllowUserResizing(1);
    Grid.PressMouse({1, 0, 2860, 100}, HeadingEdges::Ignore);
    EXPECT_EQ(Cursor(), (Numbers{1, 2, 4, 2}));
}

TEST_F(MouseOnGrid, ColumnThatVanishesWhileItIsPulled_IsLeftAlone)
{
    Build(5, 4);
    Grid.AllowUserResizing(1);
    Grid.PressMouse({1, 0, 3840, 100});
    Surroundings.Once(ChildEvent::MouseMove, [&] { Grid.Cols(2); });
    Grid.MoveMouse({1, 0, 3900, 100});
    EXPECT_EQ(Grid.Cols(), 2);
}

TEST_F(MouseOnGrid, DragStep_ScrollsOneRowAndTakesTheCornerThere)
{
    Build(100, 31);
    Grid.PressCell({5, 3});
    Forget();
    Grid.StepDrag(4000, 5000);
    EXPECT_EQ(Scrolled(), (Numbers{2, 1}));
    EXPECT_EQ(Cursor(), (Numbers{5, 3, 20, 3}));
    EXPECT_EQ(Told(), Names{"Scroll"});
    Grid.StepDrag(9700, 1000);
    EXPECT_EQ(Scrolled(), (Numbers{2, 2}));
    EXPECT_EQ(Cursor(), (Numbers{5, 3, 20, 10}));
    Grid.StepDrag(-10, -10);
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
    EXPECT_EQ(Cursor(), (Numbers{5, 3, 1, 1}));
    Grid.StepDrag(4000, -10);
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
    Forget();
    Grid.ReleaseHere();
    EXPECT_EQ(Told(), (Names{"SelChange", "MouseUp", "Click"}));
    Grid.StepDrag(4000, 5000);
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
}

TEST_F(MouseOnGrid, DragStepAtTheEnd_TakesTheLastRow)
{
    Build(10, 3);
    Grid.PressCell({5, 1});
    Grid.StepDrag(1000, 5000);
    EXPECT_EQ(Cursor(), (Numbers{5, 1, 9, 1}));
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
}

} // namespace Tessellon::GridTests
