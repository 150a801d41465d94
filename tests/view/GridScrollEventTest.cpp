#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon {
namespace {

/// Forty rows with the editor up in the first cell; scrolls and changes of the selection are told by hand.
class ScrollOfTheGrid : public testing::Test {
protected:
    ScrollOfTheGrid()
    {
        Sheet.Build({fcTextBox, fcTextBox}, 40);
        Members.AdvancingCell = false;
        Sheet.Calls->Notes(true);
        Forget();
    }
    void Forget()
    {
        Sheet.Heard.clear();
        static_cast<void>(Sheet.TakeCalls());
    }
    void Scroll()
    {
        Forget();
        Probe.Raise(Child::MSFlexGrid1, ChildEvent::Scroll);
    }
    /// A scroll inside an advance, whose editor is down by then.
    void Announced(bool right, bool down)
    {
        Probe.SetAllDisable();
        Members.AdvancingCell = true;
        Members.ScrollRightPending = right;
        Members.ScrollDownPending = down;
        Scroll();
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

TEST_F(ScrollOfTheGrid, ByTheUser_TakesTheEditorDownAndTellsOnce)
{
    Sheet.Hand.Scroll(10, 1);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"Scroll"});
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Sheet.Focus(), "MSFlexGrid1");
    EXPECT_FALSE(Members.ShowEditorRequest);
}

TEST_F(ScrollOfTheGrid, TakesTheActiveEditorDownByItsOwnOrderThenAllOthers)
{
    Probe.SetAllDisable();
    Scroll();
    const Lines calls = Sheet.TakeCalls();
    const Lines first{"Text1.Enabled=False", "Text1.Visible=False", "Text1.ZOrder(1)",     "Text1.Visible=False",
                      "Text1.Enabled=False", "Text1.ZOrder(1)",     "Check1.Visible=False"};
    ASSERT_GE(calls.size(), first.size());
    EXPECT_EQ(Lines(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(first.size())), first);
    EXPECT_EQ(calls.back(), "Command1(0).ZOrder(1)");
}

TEST_F(ScrollOfTheGrid, WithoutAnyEditorEver_RunsAllTheOtherSteps)
{
    Members.ActiveEditor = nullptr;
    Members.GridScrolled = false;
    Members.GridClicked = true;
    Scroll();
    EXPECT_EQ(Sheet.TakeCalls().front(), "Text1.Visible=False");
    EXPECT_TRUE(Members.GridScrolled);
    EXPECT_FALSE(Members.GridClicked);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"Scroll"});
}

TEST_F(ScrollOfTheGrid, WhileTheGridIsNotReady_IsNotNoted)
{
    Members.GridScrolled = false;
    Members.GridReady = false;
    Announced(true, true);
    EXPECT_FALSE(Members.GridScrolled);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.ScrollRightPending && Members.ScrollDownPending);
}

TEST_F(ScrollOfTheGrid, OutsideAnAdvance_ForgetsThePendingOne)
{
    Members.AdvancePending = true;
    Scroll();
    EXPECT_FALSE(Members.AdvancePending);
    Members.AdvancePending = true;
    Members.AdvancingCell = true;
    Scroll();
    EXPECT_TRUE(Members.AdvancePending);
}

struct PendingClickCase {
    bool AdvancePending;
    bool AddingRows;
    bool Stays;
};

TEST_F(ScrollOfTheGrid, PendingClickOfARow_OutlivesOnlyTheAddingOfRows)
{
    for (const PendingClickCase& pending :
         {PendingClickCase{false, false, false}, {false, true, true}, {true, false, false}, {true, true, false}}) {
        Members.AdvancingCell = true;
        Members.AdvancePending = pending.AdvancePending;
        Members.AddingRows = pending.AddingRows;
        Members.GridRowClickPending = true;
        Scroll();
        EXPECT_EQ(Members.GridRowClickPending, pending.Stays);
    }
}

TEST_F(ScrollOfTheGrid, Announced_SpendsOneAnnouncementAtATime)
{
    Announced(true, true);
    EXPECT_FALSE(Members.ScrollRightPending);
    EXPECT_TRUE(Members.ScrollDownPending);
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_FALSE(Members.HideEditorRequest);
    Scroll();
    EXPECT_FALSE(Members.ScrollDownPending);
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_FALSE(Members.HideEditorRequest);
    Scroll();
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
}

TEST_F(ScrollOfTheGrid, AnnouncedUnderAnEditorWithTheFocus_IsForgottenWithTheFocusThatTheGridGets)
{
    Members.AdvancingCell = true;
    Members.ScrollRightPending = true;
    Scroll();
    EXPECT_FALSE(Members.ScrollRightPending);
    EXPECT_FALSE(Members.ShowEditorRequest);
}

TEST_F(ScrollOfTheGrid, ThatFails_IsReportedAndToldAndLeavesWhatWasDone)
{
    Members.GridClicked = true;
    Sheet.Calls->FailAtMember(u"Text1.Enabled", 7);
    Scroll();
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"MSFlexGrid1_Scroll"});
    EXPECT_EQ(heard.back(), "Scroll");
    EXPECT_TRUE(Members.GridClicked);
    EXPECT_TRUE(Members.HideEditorRequest);
}

TEST_F(ScrollOfTheGrid, ChangeOfTheSelection_MirrorsTheCursorAndMovesTheMarker)
{
    Members.MarkerRow = 3;
    Members.CurrentRow = Members.CurrentCol = 9;
    Members.HideEditorRequest = true;
    Members.GridClickPending = Members.GridRowClickPending = false;
    Members.ShowEditorRequest = true;
    Forget();
    Probe.Raise(Child::MSFlexGrid1, ChildEvent::SelChange);
    EXPECT_EQ(Members.CurrentRow, 1);
    EXPECT_EQ(Members.CurrentCol, 1);
    EXPECT_EQ(Members.PreviousMarkerRow, 3);
    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_TRUE(Members.GridClickPending && Members.GridRowClickPending);
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.CellPicture="}),
              (Lines{"MSFlexGrid1.CellPicture=none", "MSFlexGrid1.CellPicture=none", "MSFlexGrid1.CellPicture=arrow"}));
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"SelChange"});
}

TEST_F(ScrollOfTheGrid, ChangeOfTheSelectionInTheMarkersRow_OnlyTakesTheRequestToHideBack)
{
    Members.PreviousMarkerRow = 7;
    Members.GridClickPending = Members.GridRowClickPending = false;
    Members.HideEditorRequest = true;
    Forget();
    Probe.Raise(Child::MSFlexGrid1, ChildEvent::SelChange);
    EXPECT_EQ(Members.PreviousMarkerRow, 7);
    EXPECT_FALSE(Members.GridClickPending || Members.GridRowClickPending);
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
}

TEST_F(ScrollOfTheGrid, MarkerThatCannotBeShown_KeepsItsRowThroughAChangeOfTheSelection)
{
    Members.MarkerRow = 3;
    Members.ColumnsDeclared = false;
    Probe.Raise(Child::MSFlexGrid1, ChildEvent::SelChange);
    EXPECT_EQ(Members.MarkerRow, 3);
    EXPECT_EQ(Members.PreviousMarkerRow, 3);
    EXPECT_TRUE(Members.GridClickPending);
}

TEST_F(ScrollOfTheGrid, ChangeToTheLastRow_KeepsTheEndInView)
{
    Members.VisibleRows = 17;
    Sheet->Row(40);
    EXPECT_GE(CountOf(Sheet.TakeCalls(), "MSFlexGrid1.TopRow=25"), 1);
}

} // namespace
} // namespace Tessellon
