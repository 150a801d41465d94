#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tessellon {
namespace {

/// Three rows of text, list, list; the user is in the first list's middle cell, which holds "Two".
class ListEditor : public EditorTest {
protected:
    ListEditor()
    {
        Sheet.Build({fcTextBox, fcListBox, fcListBox}, 3);
        GoTo(2, 2, u"Two");
    }
    ListBox& List(std::int16_t index = 0) { return *Sheet.Platform->List1().Item(index); }
    void Choose(std::initializer_list<std::int32_t> entries, std::int16_t index = 0)
    {
        for (std::int32_t i = 0; i < List(index).ListCount(); ++i)
            List(index).Selected(i, false);
        for (const std::int32_t entry : entries)
            List(index).Selected(entry, true);
        Forget();
    }
    void MouseOver(ChildEvent event)
    {
        EventArguments arguments;
        arguments.Index = 1;
        arguments.Button = 2;
        arguments.Shift = 4;
        arguments.X = 15;
        arguments.Y = 7.5F;
        Tell(Child::List1, event, arguments);
    }
};

// ---- Clicks ---------------------------------------------------------------------------------------------------------

TEST_F(ListEditor, Click_WritesTheFirstSelectedEntryTrimmed)
{
    List().AddItem(u"  Four ");
    Choose({3});
    TellOf(Child::List1, 0, ChildEvent::Click);
    EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"Four\""});
    Choose({2, 1});
    TellOf(Child::List1, 0, ChildEvent::Click);
    EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"Two\""});
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(ListEditor, ClickWithNothingSelectedOrNothingToSelect_LeavesTheCell)
{
    Choose({});
    TellOf(Child::List1, 0, ChildEvent::Click);
    List().Clear();
    TellOf(Child::List1, 0, ChildEvent::Click);
    EXPECT_EQ(Writes(), Lines());
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(ListEditor, ClickInAnotherColumn_WritesNothing)
{
    TellOf(Child::List1, 1, ChildEvent::Click);
    Members.ColumnData.at(1).cdControlType = fcComboBox;
    TellOf(Child::List1, 0, ChildEvent::Click);
    EXPECT_EQ(Writes(), Lines());
}

TEST_F(ListEditor, ClickWithoutRowsOrColumns_WritesNothing)
{
    for (std::int32_t SheetMembers::*count : {&SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = std::exchange(Members.*count, 0);
        TellOf(Child::List1, 0, ChildEvent::Click);
        Members.*count = kept;
        EXPECT_EQ(Writes(), Lines());
    }
}

TEST_F(ListEditor, ClickBehindAnArrowThatLeft_IsSwallowedOnce)
{
    Choose({0});
    Members.ListKeyHandled = true;
    TellOf(Child::List1, 0, ChildEvent::Click);
    EXPECT_EQ(Writes(), Lines());
    EXPECT_FALSE(Members.ListKeyHandled);
    TellOf(Child::List1, 0, ChildEvent::Click);
    EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"One\""});
}

TEST_F(ListEditor, ClickThatFails_IsReportedUnderItsLabel)
{
    Sheet.Calls->FailAtMember(u"List1(0).Selected", 7);
    SetCell(2, 2, u"x");
    TellOf(Child::List1, 0, ChildEvent::Click);
    EXPECT_EQ(LabelsHeard(), Lines{"List1_Click"});
    EXPECT_EQ(Cell(2, 2), u"x");
}

// ---- Keys -----------------------------------------------------------------------------------------------------------

TEST_F(ListEditor, UpAndDownArrows_WriteTheSelectionAndThenWhatTheListMovesTo)
{
    SetCell(2, 2, u"x");
    Sheet.Press(Key::Down);
    EXPECT_EQ(Writes(), (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"Two\"", "MSFlexGrid1.TextMatrix(2,2)=\"Three\""}));
    Sheet.Press(Key::Up);
    EXPECT_EQ(Writes(), (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"Three\"", "MSFlexGrid1.TextMatrix(2,2)=\"Two\""}));
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(ListEditor, ArrowsInAnEmptyList_DoNothingAndAreNoFailure)
{
    List().Clear();
    Sheet.Press(Key::Up);
    Sheet.Press(Key::Down);
    EXPECT_EQ(Writes(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(ListEditor, UpAndDownArrowsWithoutRows_WriteNothing)
{
    Members.RowCount = 0;
    TellKey(Child::List1, Key::Up);
    TellKey(Child::List1, Key::Down);
    EXPECT_EQ(Writes(), Lines());
}

TEST_F(ListEditor, UpAndDownArrows_WriteWhateverTheColumn)
{
    Members.ColumnData.at(1).cdControlType = fcNil;
    TellKey(Child::List1, Key::Up);
    EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"Two\""});
}

TEST_F(ListEditor, Letter_MovesTheSelectionWhoseClickWritesTheCell)
{
    Sheet.Type(u"o");
    EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"One\""});
}

TEST_F(ListEditor, LeftAndRightArrows_LeaveAndTheClickOfTheKeyWritesNothing)
{
    const std::pair<std::int16_t, Place> ways[] = {{Key::Left, {2, 1}}, {Key::Right, {2, 3}}};
    for (const auto& [code, place] : ways) {
        GoTo(2, 2, u"Two");
        SetCell(place.first, place.second, u"kept");
        Sheet.Press(code);
        EXPECT_EQ(Cursor(), place);
        EXPECT_EQ(Cell(2, 2), u"Two");
        EXPECT_EQ(Cell(place.first, place.second), u"kept");
        EXPECT_FALSE(Members.ListKeyHandled) << "the click of the same key was swallowed";
    }
}

TEST_F(ListEditor, LeftAndRightArrows_StandDownThenAdvanceThenExpectTheClick)
{
    bool duringAdvance = true;
    Sheet->AdvanceToNextCell += [&](bool&) { duringAdvance = Members.ListKeyHandled; };
    for (const std::int16_t code : {Key::Left, Key::Right}) {
        GoTo(2, 2, u"Two");
        Members.ListKeyHandled = true;
        EXPECT_EQ(TellKey(Child::List1, code).KeyCode, code);
        EXPECT_EQ(First(CallsOn("List1(0)"), 3), StandDownOf("List1(0)"));
        EXPECT_FALSE(duringAdvance);
        EXPECT_TRUE(Members.ListKeyHandled);
        duringAdvance = true;
    }
}

TEST_F(ListEditor, ArrowThatRaisedNoClick_HasTheNextClickOfTheMouseSwallowed)
{
    Choose({2}); // The last entry: the right arrow moves no selection.
    Sheet.Press(Key::Right);
    ASSERT_EQ(Cursor(), Place(2, 3));
    ASSERT_TRUE(Members.ListKeyHandled);
    SetCell(2, 3, u"x");
    Sheet.Hand.Select(0);
    EXPECT_EQ(Cell(2, 3), u"x");
    Sheet.Hand.Select(1);
    EXPECT_EQ(Cell(2, 3), u"Two");
}

TEST_F(ListEditor, AnyKey_SpendsTheShowRequestAndTheSwallowedClick)
{
    for (const std::int16_t code : {Key::Tab, Key::Home, Key::Space, Key::F2, Key::Up}) {
        Members.ShowEditorRequest = true;
        Members.HideEditorRequest = false;
        Members.ListKeyHandled = true;
        EXPECT_EQ(TellKey(Child::List1, code).KeyCode, code);
        EXPECT_FALSE(Members.ShowEditorRequest);
        EXPECT_FALSE(Members.HideEditorRequest);
        EXPECT_FALSE(Members.ListKeyHandled);
    }
}

TEST_F(ListEditor, EnterInAnyCellButTheLast_WritesNothingAndAdvances)
{
    SetCell(2, 2, u"x");
    EXPECT_EQ(TellKey(Child::List1, Key::Enter).KeyCode, Key::Enter);
    EXPECT_EQ(First(CallsOn("List1(0)"), 3), StandDownOf("List1(0)"));
    EXPECT_EQ(Cell(2, 2), u"x");
    EXPECT_EQ(Cursor(), Place(2, 3));
    GoTo(2, 3, u"Two"); // The last column of another row.
    SetCell(2, 3, u"x");
    TellKey(Child::List1, Key::Enter, 1);
    EXPECT_EQ(Cell(2, 3), u"x");
    GoTo(3, 2, u"Two"); // Another column of the last row.
    SetCell(3, 2, u"x");
    TellKey(Child::List1, Key::Enter);
    EXPECT_EQ(Cell(3, 2), u"x");
}

TEST_F(ListEditor, EnterInTheVeryLastCell_WritesTheSelectionThenStandsDownThenAdvances)
{
    GoTo(3, 3, u"Two");
    SetCell(3, 3, u"x");
    TellKey(Child::List1, Key::Enter, 1);
    EXPECT_EQ(First(CallsOn("List1(1)"), 4), (Lines{"MSFlexGrid1.TextMatrix(3,3)=\"Two\"", "List1(1).Visible=False",
                                                    "List1(1).Enabled=False", "List1(1).ZOrder(1)"}));
    EXPECT_EQ(Cursor(), Place(3, 3));
    EXPECT_EQ(Sheet.Focus(), "MSFlexGrid1");
}

TEST_F(ListEditor, Escape_WritesTheTrimmedTagIfThereAreRowsAndStandsDown)
{
    for (const bool rows : {true, false}) {
        GoTo(2, 2, u"Two");
        List().Tag(u" before ");
        const std::int32_t kept = Members.RowCount;
        Members.RowCount = rows ? kept : 0;
        Members.HideEditorRequest = false;
        TellKey(Child::List1, Key::Escape);
        Lines calls = CallsOn("List1(0)");
        Members.RowCount = kept;
        if (rows) {
            ASSERT_FALSE(calls.empty());
            EXPECT_EQ(calls.front(), "MSFlexGrid1.TextMatrix(2,2)=\"before\"");
            calls.erase(calls.begin());
        }
        EXPECT_EQ(calls, StandDownOf("List1(0)"));
        EXPECT_TRUE(Members.HideEditorRequest);
        EXPECT_EQ(Cursor(), Place(2, 2));
    }
}

TEST_F(ListEditor, KeyThatFails_IsReportedUnderItsLabelAndSwallowsNoClick)
{
    Sheet.Calls->FailAtMember(u"List1(0).Visible", 7);
    TellKey(Child::List1, Key::Right);
    EXPECT_EQ(LabelsHeard(), Lines{"List1_KeyDown"});
    EXPECT_FALSE(Members.ListKeyHandled);
    EXPECT_EQ(Cursor(), Place(2, 2));
}

// ---- Focus and mouse ------------------------------------------------------------------------------------------------

TEST_F(ListEditor, LossOfFocus_SweepsForTheColumnThatIsCurrentByNowAndKeepsTheCounts)
{
    Members.ComboPreviousIndex = 1;
    Members.ShowEditorRequest = false;
    Members.HideEditorRequest = true;
    TellOf(Child::List1, 1, ChildEvent::LostFocus);
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_EQ(Members.ComboPreviousIndex, 1);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(ListEditor, LossOfFocusWithoutAColumn_IsReportedUnderItsLabel)
{
    Members.CurrentCol = 0;
    TellOf(Child::List1, 0, ChildEvent::LostFocus);
    EXPECT_EQ(LabelsHeard(), Lines{"List1_LostFocus"});
}

TEST_F(ListEditor, PressMoveAndRelease_AllReachTheHostAsPressesWithoutTheIndex)
{
    for (const ChildEvent event : {ChildEvent::MouseDown, ChildEvent::MouseMove, ChildEvent::MouseUp}) {
        MouseOver(event);
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"MouseDown Button=2 Shift=4 x=15 y=7.5"});
    }
}

} // namespace
} // namespace Tessellon
