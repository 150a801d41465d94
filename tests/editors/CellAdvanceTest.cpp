#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace Tessellon {
namespace {

const std::vector<std::string_view> cursorWrites{
    "MSFlexGrid1.Row=", "MSFlexGrid1.Col=", "MSFlexGrid1.RowSel=", "MSFlexGrid1.ColSel="};

/// Three rows; the cursor is put where a test begins, its editor down as a key handler leaves it.
class CellAdvance : public testing::Test {
protected:
    void Build(const std::vector<FieldControlType>& kinds, std::int32_t row, std::int32_t col)
    {
        Sheet.Build(kinds, 3);
        GoTo(row, col);
    }
    void GoTo(std::int32_t row, std::int32_t col)
    {
        Sheet.Hand.Click(row, col);
        Probe.SetAllDisable();
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    std::pair<std::int32_t, std::int32_t> Cursor() { return {Sheet->Row(), Sheet->Col()}; }
    std::ptrdiff_t Heard(const std::string& name) { return CountOf(Sheet.Heard, name); }
    void ExpectNoMove(std::pair<std::int32_t, std::int32_t> at)
    {
        EXPECT_EQ(Cursor(), at);
        EXPECT_EQ(Sheet.TakeEvents(), (Lines{Asked, "EnterCell"}));
        EXPECT_EQ(Only(Sheet.TakeCalls(), cursorWrites), Lines());
        EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
        EXPECT_FALSE(Members.AdvancePending);
    }
    void Hide(std::int32_t col)
    {
        Members.ColumnData.at(static_cast<std::size_t>(col - 1)).cdHidden = true;
        Sheet.Platform->MSFlexGrid1().ColWidth(col, 0);
    }

    using Cell = std::pair<std::int32_t, std::int32_t>;
    const std::string Asked = "AdvanceToNextCell Cancel=False";
    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

TEST_F(CellAdvance, ToTheNextCell_AsksMovesWithoutMarkerAndEntersOnceMore)
{
    Build({fcTextBox, fcTextBox}, 1, 1);
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Cursor(), Cell(1, 2));
    EXPECT_EQ(Only(Sheet.TakeCalls(), cursorWrites),
              (Lines{"MSFlexGrid1.Row=1", "MSFlexGrid1.Col=2", "MSFlexGrid1.RowSel=1", "MSFlexGrid1.ColSel=2"}));
    EXPECT_EQ(Sheet.TakeEventNames(),
              (Lines{"AdvanceToNextCell", "LeaveCell", "EnterCell", "RowColChange", "SelChange", "EnterCell"}));
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    EXPECT_TRUE(Members.AdvancingCell);
    EXPECT_FALSE(Members.AdvancePending);
    EXPECT_TRUE(Members.GridReady);
}

TEST_F(CellAdvance, ToTheNextRow_MovesTheMarkerAheadOfTheCursor)
{
    Build({fcTextBox, fcTextBox}, 1, 2);
    Probe.IncrementCell(0, 1);
    EXPECT_EQ(Cursor(), Cell(2, 2));
    const Lines calls = Sheet.TakeCalls();
    const Lines expected{// The marker goes from row 1
                         "MSFlexGrid1.Redraw=False", "MSFlexGrid1.Row=1", "MSFlexGrid1.Col=0", "MSFlexGrid1.RowSel=1",
                         "MSFlexGrid1.ColSel=0", "MSFlexGrid1.CellPictureAlignment=4", "MSFlexGrid1.CellPicture=none",
                         "MSFlexGrid1.Row=1", "MSFlexGrid1.Col=2", "MSFlexGrid1.RowSel=1", "MSFlexGrid1.ColSel=2",
                         "MSFlexGrid1.Redraw=True",
                         // and comes to row 2;
                         "MSFlexGrid1.Redraw=False", "MSFlexGrid1.Row=2", "MSFlexGrid1.Col=0", "MSFlexGrid1.RowSel=2",
                         "MSFlexGrid1.ColSel=0", "MSFlexGrid1.CellPictureAlignment=4", "MSFlexGrid1.CellPicture=none",
                         "MSFlexGrid1.CellPicture=arrow", "MSFlexGrid1.Row=1", "MSFlexGrid1.Col=2",
                         "MSFlexGrid1.RowSel=1", "MSFlexGrid1.ColSel=2", "MSFlexGrid1.Redraw=True",
                         // then the cursor follows.
                         "MSFlexGrid1.Row=2"};
    ASSERT_GE(calls.size(), expected.size());
    EXPECT_EQ(Lines(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(expected.size())), expected);
    EXPECT_EQ(Members.MarkerRow, 2);
    EXPECT_TRUE(Members.AdvancePending);
}

TEST_F(CellAdvance, PastTheLastColumn_GoesToTheNextRowsFirst)
{
    Build({fcTextBox, fcTextBox}, 1, 2);
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Cursor(), Cell(2, 1));
    EXPECT_EQ(Members.MarkerRow, 2);
    EXPECT_TRUE(Members.AdvancePending);
}

TEST_F(CellAdvance, BackFromTheFirstColumn_GoesToTheRowAboveSettingTheColumnFirst)
{
    Build({fcTextBox, fcTextBox}, 2, 1);
    Probe.IncrementCell(-1, 0);
    EXPECT_EQ(Cursor(), Cell(1, 2));
    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_FALSE(Members.AdvancePending);
}

TEST_F(CellAdvance, Wrap_SetsTheRowFirstAndTheBackwardOneTheColumn)
{
    Build({fcTextBox, fcTextBox}, 1, 2);
    Members.ColumnsDeclared = false; // No marker walks among the writes.
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Only(Sheet.TakeCalls(), cursorWrites),
              (Lines{"MSFlexGrid1.Row=2", "MSFlexGrid1.Col=1", "MSFlexGrid1.RowSel=2", "MSFlexGrid1.ColSel=1"}));
    Probe.IncrementCell(-1, 0);
    EXPECT_EQ(Only(Sheet.TakeCalls(), cursorWrites),
              (Lines{"MSFlexGrid1.Col=2", "MSFlexGrid1.Row=1", "MSFlexGrid1.RowSel=1", "MSFlexGrid1.ColSel=2"}));
}

TEST_F(CellAdvance, LeftFromTheFirstCell_GoesNowhereAndTheSameEditorComesUpAgain)
{
    Build({fcTextBox, fcTextBox}, 1, 1);
    Probe.IncrementCell(-1, 0);
    ExpectNoMove({1, 1});
}

TEST_F(CellAdvance, LeftFromTheMarkerColumn_GoesNowhere)
{
    Build({fcTextBox, fcTextBox}, 2, 1);
    Members.CurrentCol = 0;
    Probe.IncrementCell(-1, 0);
    ExpectNoMove({2, 1});
}

TEST_F(CellAdvance, UpFromTheFirstRow_GoesNowhereAndTheSameEditorComesUpAgain)
{
    for (const std::int32_t col : {1, 2}) {
        Build({fcTextBox, fcTextBox}, 1, col);
        Probe.IncrementCell(0, -1);
        ExpectNoMove({1, col});
    }
}

TEST_F(CellAdvance, AtTheLastCell_GivesTheFocusToTheGridAndAddsNoRow)
{
    Build({fcTextBox, fcTextBox}, 3, 2);
    Sheet->AllowAddNew(true);
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Cursor(), Cell(3, 2));
    EXPECT_EQ(Sheet->Rows(), 4);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{Asked});
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Sheet.Focus(), "MSFlexGrid1");
    const Lines calls = Sheet.TakeCalls();
    EXPECT_EQ(calls.back(), "MSFlexGrid1.SetFocus()");
    EXPECT_EQ(Only(calls, cursorWrites), Lines());
    EXPECT_TRUE(Members.AdvancePending);
    EXPECT_TRUE(Members.HideEditorRequest);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.AdvancingCell);
}

TEST_F(CellAdvance, DownFromTheLastRow_EndsTheSameWayInItsColumn)
{
    Build({fcTextBox, fcTextBox}, 3, 1);
    Probe.IncrementCell(0, 1);
    EXPECT_EQ(Cursor(), Cell(3, 1));
    EXPECT_EQ(Sheet.Focus(), "MSFlexGrid1");
    EXPECT_TRUE(Members.AdvancePending);
}

TEST_F(CellAdvance, HostThatRefuses_LeavesEverythingAsTheStandDownDid)
{
    Build({fcComboBox, fcTextBox}, 1, 1);
    Members.AdvancingCell = true;
    Members.AdvancePending = true;
    Members.SkipEnterCell = true;
    Members.ScrollRightPending = true;
    Members.ShowEditorRequest = true;
    Sheet->AdvanceToNextCell += [&](bool& Cancel) {
        EXPECT_FALSE(Members.ShowEditorRequest);
        EXPECT_TRUE(Members.HideEditorRequest);
        Cancel = true;
    };
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_FALSE(Members.AdvancingCell);
    EXPECT_FALSE(Members.AdvancePending);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
    EXPECT_TRUE(Members.SkipEnterCell);
    EXPECT_TRUE(Members.ScrollRightPending);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(CellAdvance, HostThatSetsRequestsWhileRefusing_FindsThemOverwritten)
{
    Build({fcTextBox, fcTextBox}, 1, 1);
    Sheet->AdvanceToNextCell += [&](bool& Cancel) {
        Members.ShowEditorRequest = true;
        Members.HideEditorRequest = false;
        Cancel = true;
    };
    Probe.IncrementCell(1, 0);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
}

TEST_F(CellAdvance, FromAnArrayColumn_TakesAllEditorsDownBehindTheHostsLeave)
{
    Build({fcComboBox, fcTextBox}, 1, 1);
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Sheet.TakeCalls().front(), "Text1.Visible=False");
    GoTo(1, 2);
    Probe.IncrementCell(-1, 0);
    EXPECT_EQ(Sheet.TakeCalls().front(), "MSFlexGrid1.Row=1");
}

TEST_F(CellAdvance, SkippedEntry_IsForgotten)
{
    Build({fcTextBox, fcTextBox}, 1, 1);
    Members.SkipEnterCell = true;
    Probe.IncrementCell(1, 0);
    EXPECT_FALSE(Members.SkipEnterCell);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
}

TEST_F(CellAdvance, ColumnsThatCannotBeEdited_AreHoppedOneByOne)
{
    Build({fcTextBox, fcNil, fcTextBox, fcTextBox}, 1, 1);
    Hide(3);
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Cursor(), Cell(1, 4));
    EXPECT_EQ(Heard(Asked), 3);
    // One entry for each write that moved the cursor, and one for each level.
    EXPECT_EQ(Heard("EnterCell"), 3 + 3);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
}

TEST_F(CellAdvance, ColumnsThatCannotBeEdited_AreHoppedBackwardsToo)
{
    Build({fcTextBox, fcNil, fcTextBox}, 2, 3);
    Probe.IncrementCell(-1, 0);
    EXPECT_EQ(Cursor(), Cell(2, 1));
    EXPECT_EQ(Heard(Asked), 2);
}

TEST_F(CellAdvance, UpAndDown_StopOnAColumnWithoutAnEditor)
{
    Build({fcTextBox, fcNil}, 2, 2);
    Probe.IncrementCell(0, 1);
    EXPECT_EQ(Cursor(), Cell(3, 2));
    EXPECT_EQ(Heard(Asked), 1);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(CellAdvance, HopThatWraps_PutsTheOutersRowBehindNone)
{
    Build({fcTextBox, fcNil}, 1, 1);
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Cursor(), Cell(2, 1));
    EXPECT_EQ(Members.MarkerRow, 2);
    EXPECT_FALSE(Members.AdvancePending) << "the outermost call stayed on its row";
}

TEST_F(CellAdvance, HopOffTheGrid_FocusesTheGridAndTheOuterCallsStillEnterTheCell)
{
    Build({fcTextBox, fcNil}, 3, 1);
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Cursor(), Cell(3, 2));
    EXPECT_EQ(Heard(Asked), 2);
    EXPECT_EQ(Heard("EnterCell"), 1 + 1);
    EXPECT_EQ(CountOf(Sheet.TakeCalls(), "MSFlexGrid1.SetFocus()"), 1);
    EXPECT_FALSE(Members.AdvancePending);
}

TEST_F(CellAdvance, HopThatTheHostRefuses_LeavesTheCursorOnTheColumnThatCannotBeEdited)
{
    Build({fcTextBox, fcNil, fcTextBox}, 1, 1);
    int calls = 0;
    Sheet->AdvanceToNextCell += [&](bool& Cancel) { Cancel = ++calls == 2; };
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Cursor(), Cell(1, 2));
    EXPECT_EQ(calls, 2);
    EXPECT_FALSE(Members.AdvancingCell);
    EXPECT_TRUE(Members.GridReady);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(CellAdvance, MarkerThatCannotBeSet_KeepsItsRowAndTheMoveGoesOn)
{
    Build({fcTextBox, fcTextBox}, 1, 1);
    Members.ColumnsDeclared = false;
    Probe.IncrementCell(0, 1);
    EXPECT_EQ(Cursor(), Cell(2, 1));
    EXPECT_EQ(Members.MarkerRow, 1);
}

TEST_F(CellAdvance, TargetPastTheColumnsByMoreThanOne_GoesNowhere)
{
    Build({fcTextBox, fcTextBox}, 1, 2);
    Members.ColCount = 2;
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Cursor(), Cell(1, 2));
    EXPECT_EQ(Only(Sheet.TakeCalls(), cursorWrites), Lines());
    EXPECT_EQ(Heard("EnterCell"), 1);
}

TEST_F(CellAdvance, FailureWhileTheCursorIsSet_LeavesTheGridNotReadyUnderItsLabel)
{
    Build({fcTextBox, fcTextBox}, 1, 1);
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Col", 7);
    // The column fails where it is written: the entry of row 1 is no move, so nothing reads it before.
    Probe.IncrementCell(1, 0);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"IncrementCell"});
    EXPECT_FALSE(Members.GridReady);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

// ---- What scrolling is expected -------------------------------------------------------------------------------------

/// The view is 9600 by 4800: nine columns of 960 beside the marker column, 19 rows of 240 under the heading.
class ExpectedScrolling : public CellAdvance {
protected:
    void BuildLarge(std::int32_t rows)
    {
        Sheet.Build(std::vector<FieldControlType>(14, fcTextBox), rows);
        Sheet->Scroll += [this] { requestAtScroll = Members.ShowEditorRequest; };
    }
    void Advance(std::int32_t row, std::int32_t col, std::int16_t colStep, std::int16_t rowStep)
    {
        GoTo(row, col);
        requestAtScroll = false;
        Probe.IncrementCell(colStep, rowStep);
    }

    bool requestAtScroll = false;
};

TEST_F(ExpectedScrolling, ColumnPastTheEdge_IsAnnouncedAndTheEditorComesBack)
{
    BuildLarge(3);
    Advance(1, 9, 1, 0);
    EXPECT_EQ(Heard("Scroll"), 1);
    EXPECT_TRUE(requestAtScroll);
    EXPECT_FALSE(Members.ScrollRightPending) << "spent by the scroll";
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    EXPECT_EQ(Sheet.Focus(), "Text1");
}

TEST_F(ExpectedScrolling, ColumnNearTheEdge_IsAnnouncedByItsMarginAndWithoutAScrollItStays)
{
    BuildLarge(3);
    // 960 + 2 + 8 * 961 + 960 / 8.4 + 1 is below 9600, with a ninth column it is not.
    Advance(1, 7, 1, 0);
    EXPECT_FALSE(Members.ScrollRightPending);
    Advance(1, 8, 1, 0);
    EXPECT_TRUE(Members.ScrollRightPending);
    EXPECT_EQ(Heard("Scroll"), 0);
}

TEST_F(ExpectedScrolling, ColumnLeftOfTheView_IsAnnounced)
{
    BuildLarge(3);
    Advance(1, 14, 1, 0);
    EXPECT_EQ(Cursor(), Cell(2, 1));
    EXPECT_EQ(Heard("Scroll"), 1);
    EXPECT_TRUE(requestAtScroll);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
}

TEST_F(ExpectedScrolling, LeftmostColumn_CountsAsScrollingOnTheLastRowAndIsMeasuredOnTheOthers)
{
    BuildLarge(3);
    Advance(3, 2, -1, 0);
    EXPECT_TRUE(Members.ScrollRightPending);
    Advance(2, 2, -1, 0);
    EXPECT_FALSE(Members.ScrollRightPending);
    Advance(3, 3, -1, 0);
    EXPECT_FALSE(Members.ScrollRightPending);
    Advance(3, 8, 1, 0);
    EXPECT_TRUE(Members.ScrollRightPending);
}

TEST_F(ExpectedScrolling, RowNearTheBottom_IsAnnouncedByTheRowsAboveIt)
{
    BuildLarge(40);
    // 240 + 4 + 480 + 16 * 241 is below 4800, with a seventeenth row it is not.
    Advance(15, 1, 0, 1);
    EXPECT_FALSE(Members.ScrollDownPending);
    Advance(16, 1, 0, 1);
    EXPECT_TRUE(Members.ScrollDownPending);
}

TEST_F(ExpectedScrolling, RowAboveTheView_IsAnnounced)
{
    BuildLarge(40);
    GoTo(2, 1);
    Sheet.Hand.Scroll(5, 1);
    Probe.IncrementCell(0, 1);
    EXPECT_EQ(Cursor(), Cell(3, 1));
    EXPECT_TRUE(requestAtScroll);
    EXPECT_FALSE(Members.ScrollDownPending);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
}

TEST_F(ExpectedScrolling, TopmostRow_IsMeasured)
{
    BuildLarge(40);
    GoTo(6, 1);
    Sheet.Hand.Scroll(5, 1);
    Probe.IncrementCell(0, -1);
    EXPECT_EQ(Cursor(), Cell(5, 1));
    EXPECT_FALSE(Members.ScrollDownPending);
}

TEST_F(ExpectedScrolling, LastRow_IsAnnouncedByTheMoveOfTheView)
{
    BuildLarge(40);
    Advance(39, 2, 0, 1);
    EXPECT_FALSE(Members.ScrollDownPending) << "how many rows fit is not known yet";
    Members.VisibleRows = 17;
    Advance(39, 2, 0, 1);
    EXPECT_TRUE(Members.ScrollDownPending);
}

// ---- Keys that change no text ---------------------------------------------------------------------------------------

TEST_F(CellAdvance, KeysThatChangeNoText_AreTheFortyOfTheTable)
{
    const std::vector<std::int16_t> singles{9,  12, 13, 16, 17, 18, 19, 20, 27, 33, 34, 35,
                                            36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 47, 144};
    int found = 0;
    for (std::int16_t code = -1; code <= 300; ++code) {
        const bool expected =
            std::find(singles.begin(), singles.end(), code) != singles.end() || (code >= 112 && code <= 127);
        EXPECT_EQ(Probe.IsFunctionKey(code), expected) << code;
        found += expected ? 1 : 0;
    }
    EXPECT_EQ(found, 40);
}

// ---- Leaving the sheet ----------------------------------------------------------------------------------------------

TEST_F(CellAdvance, LeavingTheSheet_TakesTheEditorDownWithARequestToHide)
{
    Sheet.Build({fcTextBox}, 1);
    Members.ShowEditorRequest = true;
    Sheet.Hand.FocusOut();
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"EditorValidate Cancel=False", "ExitFocus Cancel=False"}));
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Sheet.Focus(), "none");
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_FALSE(Members.HideEditorRequest) << "spent by the sweep of the loss of focus";
}

TEST_F(CellAdvance, LeavingTheSheetFromTheGrid_LeavesTheRequestToHide)
{
    Sheet.Build({fcTextBox}, 1);
    Probe.SetAllDisable();
    Members.ShowEditorRequest = true;
    Members.HideEditorRequest = false;
    Sheet.Hand.FocusOut();
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
}

TEST_F(CellAdvance, LeavingThatTheHostCancels_KeepsTheEditorAsItIs)
{
    Sheet.Build({fcTextBox}, 1);
    Members.HideEditorRequest = false;
    Sheet->ExitFocus += [](bool& Cancel) { Cancel = true; };
    Sheet.Calls->Notes(true);
    Sheet.Hand.FocusOut();
    EXPECT_EQ(Sheet.TakeCalls(), Lines{"UserControl.SetFocus()"});
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    EXPECT_EQ(Sheet.Focus(), "Text1");
    EXPECT_FALSE(Members.HideEditorRequest);
}

TEST_F(CellAdvance, HostThatFailsInExitFocus_DoesNotStopTheHiding)
{
    Sheet.Build({fcTextBox}, 1);
    Sheet->ExitFocus += [](bool&) { throw Failure(7, u"", u""); };
    Sheet.Hand.FocusOut();
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"EditorValidate Cancel=False", "ExitFocus Cancel=False"}));
}

} // namespace
} // namespace Tessellon
