#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tessellon {
namespace {

/// Three rows of text and two combo boxes; the user is in the first one's middle cell, which holds "Two".
class ComboEditor : public EditorTest {
protected:
    ComboEditor()
    {
        Sheet.Build({fcTextBox, fcComboBox, fcComboBox, fcTextBox}, 3);
        GoTo(2, 2, u"Two");
    }
    ComboBox& Box(std::int16_t index = 0) { return *Sheet.Platform->Combo1().Item(index); }
};

// ---- What is chosen and typed ---------------------------------------------------------------------------------------

TEST_F(ComboEditor, ChosenEntry_ReachesTheCellTrimmedAndTheHostHearsNothing)
{
    Box().AddItem(u"  Four ");
    Sheet.Hand.Select(3);
    EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"Four\""});
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(ComboEditor, ChangeAndClick_AreHandledAlike)
{
    for (const ChildEvent event : {ChildEvent::Change, ChildEvent::Click}) {
        SetCell(2, 2, u"x");
        TellOf(Child::Combo1, 0, event);
        EXPECT_EQ(Cell(2, 2), u"Two");
    }
}

TEST_F(ComboEditor, ClickOfAnotherColumnsBox_WritesNothing)
{
    TellOf(Child::Combo1, 1, ChildEvent::Click);
    TellOf(Child::Combo1, 1, ChildEvent::Change);
    EXPECT_EQ(Writes(), Lines());
    Sheet.Hand.Click(2, 3);
    Forget();
    TellOf(Child::Combo1, 1, ChildEvent::Click);
    EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,3)=\"\""});
}

TEST_F(ComboEditor, ClickInAColumnOfAnotherKind_WritesNothing)
{
    Members.ColumnData.at(1).cdControlType = fcListBox;
    TellOf(Child::Combo1, 0, ChildEvent::Click);
    EXPECT_EQ(Writes(), Lines());
}

TEST_F(ComboEditor, ClickWithoutRowsOrColumns_WritesNothing)
{
    for (std::int32_t SheetMembers::*count : {&SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = std::exchange(Members.*count, 0);
        TellOf(Child::Combo1, 0, ChildEvent::Click);
        Members.*count = kept;
        EXPECT_EQ(Writes(), Lines());
    }
}

TEST_F(ComboEditor, ChangeThatFails_IsReportedUnderTheLabelOfTheClick)
{
    for (const ChildEvent event : {ChildEvent::Change, ChildEvent::Click}) {
        Sheet.Calls->FailAtMember(u"Combo1(0).Text", 7);
        SetCell(2, 2, u"x");
        TellOf(Child::Combo1, 0, event);
        EXPECT_EQ(LabelsHeard(), Lines{"Combo1_Click"});
        EXPECT_EQ(Cell(2, 2), u"x");
    }
}

TEST_F(ComboEditor, Letter_WritesTheTextAsItStoodAndThenTheTextAsItIs)
{
    SetCell(2, 2, u"x");
    Sheet.Hand.Caret(3);
    Forget();
    Sheet.Type(u"s");
    EXPECT_EQ(Writes(), (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"Two\"", "MSFlexGrid1.TextMatrix(2,2)=\"Twos\""}));
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(ComboEditor, UpAndDownArrows_WriteTheTextFromBeforeTheKeyAndThenTheEntryChosen)
{
    Sheet.Press(Key::Up);
    EXPECT_EQ(Writes(), (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"Two\"", "MSFlexGrid1.TextMatrix(2,2)=\"One\""}));
    Sheet.Press(Key::Down);
    EXPECT_EQ(Writes(), (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"One\"", "MSFlexGrid1.TextMatrix(2,2)=\"Two\""}));
    EXPECT_EQ(Cursor(), Place(2, 2));
}

TEST_F(ComboEditor, OtherKey_WritesTheTrimmedTextWhateverTheColumnAndTheRow)
{
    Box().Text(u" six ");
    Members.ColumnData.at(1).cdControlType = fcNil;
    Members.ColumnData.at(1).cdControlIndex = 7;
    Members.RowCount = 0;
    Forget();
    for (const std::int16_t code : {Key::Tab, Key::Space, Key::F2, Key::Home, Key::Up, Key::Down, std::int16_t{0}}) {
        EXPECT_EQ(TellKey(Child::Combo1, code).KeyCode, code);
        EXPECT_EQ(Sheet.TakeCalls(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"six\""}) << code;
    }
}

// ---- Focus ----------------------------------------------------------------------------------------------------------

TEST_F(ComboEditor, Focus_NotesTheCurrentColumn)
{
    Members.ComboFocusCol = 0;
    Members.CurrentCol = 3;
    TellOf(Child::Combo1, 0, ChildEvent::GotFocus);
    EXPECT_EQ(Members.ComboFocusCol, 3);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
}

TEST_F(ComboEditor, LossOfFocus_BeginsTheCountOfArrowsAnewAndSweeps)
{
    Members.ComboPreviousIndex = 5;
    Members.ShowEditorRequest = false;
    Members.HideEditorRequest = true;
    TellOf(Child::Combo1, 0, ChildEvent::LostFocus);
    EXPECT_EQ(Members.ComboPreviousIndex, 0);
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(ComboEditor, LossOfFocusWithoutAColumn_IsReportedWithTheCountBegunAnew)
{
    Members.ComboPreviousIndex = 5;
    Members.CurrentCol = 0;
    TellOf(Child::Combo1, 0, ChildEvent::LostFocus);
    EXPECT_EQ(LabelsHeard(), Lines{"Combo1_LostFocus"});
    EXPECT_EQ(Members.ComboPreviousIndex, 0);
}

// ---- Keys that leave ------------------------------------------------------------------------------------------------

TEST_F(ComboEditor, Escape_WritesTheTrimmedTagWhateverTheNumberOfRowsAndStandsDown)
{
    Box().Tag(u" before ");
    for (const bool rows : {true, false}) {
        GoTo(2, 2, u"Two");
        Box().Tag(u" before ");
        const std::int32_t kept = Members.RowCount;
        Members.RowCount = rows ? kept : 0;
        Members.HideEditorRequest = false;
        TellKey(Child::Combo1, Key::Escape);
        const Lines calls = CallsOn("Combo1(0)");
        Members.RowCount = kept;
        EXPECT_EQ(calls, (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"before\"", "Combo1(0).Visible=False",
                                "Combo1(0).Enabled=False", "Combo1(0).ZOrder(1)"}));
        EXPECT_TRUE(Members.HideEditorRequest);
        EXPECT_FALSE(Members.ShowEditorRequest);
        EXPECT_EQ(Cursor(), Place(2, 2));
    }
    EXPECT_EQ(Sheet.TakeEventNames(), Lines());
}

TEST_F(ComboEditor, Enter_StandsDownAndAdvancesWithoutAWrite)
{
    SetCell(2, 2, u"x");
    EXPECT_EQ(TellKey(Child::Combo1, Key::Enter).KeyCode, Key::Enter);
    EXPECT_EQ(First(CallsOn("Combo1(0)"), 3), StandDownOf("Combo1(0)"));
    EXPECT_EQ(Cell(2, 2), u"x");
    EXPECT_EQ(Cursor(), Place(2, 3));
}

TEST_F(ComboEditor, FirstArrow_StaysAndTheSecondLeavesWhicheverTheyAre)
{
    struct Case {
        std::int16_t One;
        std::int16_t Two;
        Place To;
    };
    const Case cases[] = {{Key::Left, Key::Left, {2, 1}},
                          {Key::Left, Key::Right, {2, 3}},
                          {Key::Right, Key::Left, {2, 1}},
                          {Key::Right, Key::Right, {2, 3}}};
    for (const Case& given : cases) {
        GoTo(2, 2, u"Two");
        Members.ComboPreviousIndex = 0;
        TellKey(Child::Combo1, given.One);
        EXPECT_EQ(Sheet.TakeCalls(), Lines());
        EXPECT_EQ(Cursor(), Place(2, 2));
        EXPECT_EQ(Members.ComboPreviousIndex, 1);
        TellKey(Child::Combo1, given.Two);
        EXPECT_EQ(First(CallsOn("Combo1(0)"), 3), StandDownOf("Combo1(0)"));
        EXPECT_EQ(Cursor(), given.To);
    }
}

TEST_F(ComboEditor, ArrowThatStays_DoesNotReachForTheBox)
{
    Members.ComboPreviousIndex = 0;
    Sheet.Calls->FailAtMember(u"Combo1.Item", 7);
    TellKey(Child::Combo1, Key::Right);
    EXPECT_EQ(LabelsHeard(), Lines());
    EXPECT_EQ(Members.ComboPreviousIndex, 1);
}

TEST_F(ComboEditor, LeavingByAnArrow_LeavesTheCountAtOneSoThatTheNextArrowLeavesAtOnce)
{
    Sheet.Press(Key::Right);
    Sheet.Press(Key::Right);
    ASSERT_EQ(Cursor(), Place(2, 3));
    // The stand-down lost the focus and began the count anew; the press that leaves counts behind it.
    EXPECT_EQ(Members.ComboPreviousIndex, 1);
    Sheet.Press(Key::Right);
    EXPECT_EQ(Cursor(), Place(2, 4));
}

TEST_F(ComboEditor, ArrowThatTheHostRefuses_CountsAllTheSame)
{
    Sheet->AdvanceToNextCell += [](bool& cancel) { cancel = true; };
    Members.ComboPreviousIndex = 1;
    TellKey(Child::Combo1, Key::Left);
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Members.ComboPreviousIndex, 1); // 0 by the loss of focus, and one more.
}

TEST_F(ComboEditor, EveryArrow_CountsOn)
{
    Members.ComboPreviousIndex = 4;
    TellKey(Child::Combo1, Key::Left);
    EXPECT_EQ(Members.ComboPreviousIndex, 5);
    EXPECT_EQ(Cursor(), Place(2, 2));
}

TEST_F(ComboEditor, OtherKeys_DoNotCount)
{
    for (const std::int16_t code : {Key::Up, Key::Down, Key::Home, Key::Tab, std::int16_t{u'T'}})
        TellKey(Child::Combo1, code);
    EXPECT_EQ(Members.ComboPreviousIndex, 0);
}

TEST_F(ComboEditor, AnyKey_SpendsTheShowRequestAndOnlyEscapeSetsTheOther)
{
    for (const bool hide : {false, true}) {
        Members.ShowEditorRequest = true;
        Members.HideEditorRequest = hide;
        TellKey(Child::Combo1, Key::Tab);
        EXPECT_FALSE(Members.ShowEditorRequest);
        EXPECT_EQ(Members.HideEditorRequest, hide);
    }
}

TEST_F(ComboEditor, KeyThatFails_IsReportedUnderItsLabelAndDoesNotCount)
{
    Members.ComboPreviousIndex = 1;
    Sheet.Calls->FailAtMember(u"Combo1(0).Visible", 7);
    TellKey(Child::Combo1, Key::Right);
    EXPECT_EQ(LabelsHeard(), Lines{"Combo1_KeyDown"});
    EXPECT_EQ(Members.ComboPreviousIndex, 1);
    EXPECT_EQ(Cursor(), Place(2, 2));
}

TEST_F(ComboEditor, KeysOfTheBox_AreNotToldToTheHost)
{
    Sheet.Type(u"ab");
    Sheet.Press(Key::Left);
    Sheet.Press(Key::Escape);
    // What comes behind the stand-down is the grid's, which has the focus by then.
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"KeyPress KeyAscii=27", "KeyUp KeyCode=27 Shift=0"}));
}

} // namespace
} // namespace Tessellon
