#include "view/GridEventsUnderTest.h"

namespace Tessellon {

TEST_F(GridEvents, ChangeOfTheCell_MirrorsItSweepsAndSetsTheRequests)
{
    Request(false, true);
    Members.SkipEnterCell = true;
    Members.CurrentRow = Members.CurrentCol = 9;
    Tell(ChildEvent::RowColChange);
    EXPECT_EQ(Members.CurrentRow, 1);
    EXPECT_EQ(Members.CurrentCol, 1);
    const Lines calls = Sheet.TakeCalls();
    EXPECT_EQ(calls.front(), "MSFlexGrid1.Refresh()");
    EXPECT_EQ(calls.back(), "Command1(0).Enabled=False");
    EXPECT_FALSE(IsUp()) << "the request of before takes effect";
    ExpectRequests(true, false);
    EXPECT_FALSE(Members.SkipEnterCell);
}

TEST_F(GridEvents, ChangeWhoseColumnCannotBeRead_HasMirroredTheRow)
{
    for (const ChildEvent event : {ChildEvent::RowColChange, ChildEvent::SelChange}) {
        Members.CurrentRow = Members.CurrentCol = 9;
        Sheet.Calls->FailAtMember(u"MSFlexGrid1.Col", 7);
        Tell(event);
        EXPECT_EQ(Members.CurrentRow, 1);
        EXPECT_EQ(Members.CurrentCol, 9);
    }
}

TEST_F(GridEvents, ChangeToAColumnOutOfSight_AsksToHide)
{
    TheGrid().ColWidth(1, 0);
    Tell(ChildEvent::RowColChange);
    ExpectRequests(false, true);
    TheGrid().ColWidth(1, 960);
    Tell(ChildEvent::RowColChange);
    ExpectRequests(true, false);
    Members.ColumnData.at(0).cdHidden = true;
    Tell(ChildEvent::RowColChange);
    ExpectRequests(false, true);
}

TEST_F(GridEvents, ChangeToAColumnWithoutAnEditor_AsksToShowAllTheSame)
{
    Members.ColumnData.at(0).cdControlType = fcNil;
    Request(false, false);
    Tell(ChildEvent::RowColChange);
    EXPECT_FALSE(IsUp());
    ExpectRequests(true, false);
}

TEST_F(GridEvents, ChangeWhileTheGridIsNotReady_MirrorsAndTellsAndNothingElse)
{
    Members.GridReady = false;
    Members.SkipEnterCell = true;
    Members.CurrentRow = 9;
    Request(false, true);
    Tell(ChildEvent::RowColChange);
    EXPECT_EQ(Members.CurrentRow, 1);
    EXPECT_TRUE(Members.SkipEnterCell);
    ExpectRequests(false, true);
    EXPECT_EQ(Sheet.TakeCalls(), Lines{"MSFlexGrid1.Refresh()"});
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"RowColChange"});
}

TEST_F(GridEvents, ChangeWithoutAnyEditorEverOrInALoad_SweepsNothingAndSetsTheRequests)
{
    for (const bool loading : {true, false}) {
        Members.LoadingRecordset = loading;
        if (!loading)
            Members.ActiveEditor = nullptr;
        Request(false, true);
        Forget();
        Tell(ChildEvent::RowColChange);
        EXPECT_EQ(Sheet.TakeCalls(), Lines{"MSFlexGrid1.Refresh()"});
        ExpectRequests(true, false);
    }
}

TEST_F(GridEvents, ChangeWithoutRows_ForgetsTheSkipAndLeavesTheRequests)
{
    Members.RowCount = 0;
    Members.SkipEnterCell = true;
    Request(false, false);
    Tell(ChildEvent::RowColChange);
    EXPECT_FALSE(Members.SkipEnterCell);
    ExpectRequests(false, false);
}

TEST_F(GridEvents, ChangeThatFails_LeavesNewMirrorsAndOldRequests)
{
    Request(false, true);
    Members.CurrentRow = 9;
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.ColWidth", 7);
    Tell(ChildEvent::RowColChange);
    EXPECT_EQ(Members.CurrentRow, 1);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_EQ(Sheet.TakeEventNames().back(), "RowColChange");
}

} // namespace Tessellon
