#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tessellon {
namespace {

/// Three rows of text, rich text, text; the user is in the middle cell, which holds "abc".
class RichTextEditor : public EditorTest {
protected:
    RichTextEditor()
    {
        Sheet.Build({fcTextBox, fcRichTextBox, fcTextBox}, 3);
        GoTo(2, 2, u"abc");
    }
    RichTextBox& Box() { return *Sheet.Platform->RichTextBox1(); }
    /// The calls on the box at its stand-down, without the sweep that the loss of focus runs in between.
    Lines StandDownCalls()
    {
        Lines calls = Only(Sheet.TakeCalls(), {"RichTextBox1"});
        return First(calls, 1);
    }
};

// ---- What is typed --------------------------------------------------------------------------------------------------

TEST_F(RichTextEditor, TypedCharacter_ReachesTheCellTrimmedAndTheHostHearsNoKeyDown)
{
    Sheet.Hand.Caret(3);
    Forget();
    Sheet.Type(u" ");
    EXPECT_EQ(Cell(2, 2), u"abc");
    EXPECT_EQ(Box().Text(), u"abc ");
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"KeyPress KeyAscii=32", "EditorChange", "KeyUp KeyCode=32 Shift=0"}));
}

TEST_F(RichTextEditor, ChangeInAColumnOfAnotherKind_WritesNothingAndIsTold)
{
    Members.ColumnData.at(1).cdControlType = fcTextBox;
    Tell(Child::RichTextBox1, ChildEvent::Change);
    EXPECT_EQ(Writes(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"EditorChange"});
}

TEST_F(RichTextEditor, ChangeWithoutRowsOrColumns_WritesNothingAndIsTold)
{
    for (std::int32_t SheetMembers::*count : {&SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = std::exchange(Members.*count, 0);
        Tell(Child::RichTextBox1, ChildEvent::Change);
        Members.*count = kept;
        EXPECT_EQ(Writes(), Lines());
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"EditorChange"});
    }
}

TEST_F(RichTextEditor, ChangeThatFails_IsReportedUnderItsLabelAndStillTold)
{
    Sheet.Calls->FailAtMember(u"RichTextBox1.Text", 7);
    Tell(Child::RichTextBox1, ChildEvent::Change);
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"RichTextBox1_Change"});
    EXPECT_EQ(heard.back(), "EditorChange");
}

TEST_F(RichTextEditor, HostThatFailsInEditorChange_IsNotHeldByTheFrame)
{
    Sheet->EditorChange += [] { throw Failure(7, u"", u""); };
    EXPECT_THROW(Tell(Child::RichTextBox1, ChildEvent::Change), Failure);
}

// ---- Focus ----------------------------------------------------------------------------------------------------------

TEST_F(RichTextEditor, Focus_PutsTheCaretToTheFrontOnlyIfItIsElsewhereAndLeavesTheRequest)
{
    Members.ShowEditorRequest = true;
    Tell(Child::RichTextBox1, ChildEvent::GotFocus);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    Sheet.Hand.Caret(2);
    Tell(Child::RichTextBox1, ChildEvent::GotFocus);
    EXPECT_EQ(Sheet.TakeCalls(), Lines{"RichTextBox1.SelStart=0"});
    EXPECT_TRUE(Members.ShowEditorRequest);
}

TEST_F(RichTextEditor, FocusThatFails_IsReportedUnderItsLabel)
{
    Sheet.Calls->FailAtMember(u"RichTextBox1.SelStart", 7);
    Tell(Child::RichTextBox1, ChildEvent::GotFocus);
    EXPECT_EQ(LabelsHeard(), Lines{"RichTextBox1_GotFocus"});
}

TEST_F(RichTextEditor, LossOfFocus_SweepsForTheColumnThatIsCurrentByNow)
{
    Members.ShowEditorRequest = false;
    Members.HideEditorRequest = true;
    Tell(Child::RichTextBox1, ChildEvent::LostFocus);
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(RichTextEditor, LossOfFocusWithoutAColumn_IsSilent)
{
    Members.CurrentCol = 0;
    Tell(Child::RichTextBox1, ChildEvent::LostFocus);
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

// ---- Enter ----------------------------------------------------------------------------------------------------------

TEST_F(RichTextEditor, CtrlEnter_PutsALineBreakAndTheCaretToTheEndWhereverTheCaretStood)
{
    Sheet.Hand.Caret(1);
    Forget();
    const EventArguments after = TellKey(Child::RichTextBox1, Key::Enter, 0, 2);
    EXPECT_EQ(CallsOn("RichTextBox1"), (Lines{"RichTextBox1.Text=\"abc\\r\\n\"",
                                              "MSFlexGrid1.TextMatrix(2,2)=\"abc\\r\\n\"", "RichTextBox1.SelStart=5"}));
    EXPECT_EQ(Box().SelStart(), 5);
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(after.KeyCode, 0);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"EditorChange"});
}

TEST_F(RichTextEditor, CtrlEnterPressed_BreaksTheLineOnce)
{
    Sheet.Hand.Caret(1);
    Sheet.Press(Key::Enter, 2);
    EXPECT_EQ(Box().Text(), u"abc\r\n");
    EXPECT_EQ(Cell(2, 2), u"abc\r\n");
}

TEST_F(RichTextEditor, EnterWithAnyOtherShift_LeavesTheCell)
{
    for (const std::int16_t shift : {0, 1, 3, 4, 6, 7}) {
        GoTo(2, 2, u"abc");
        const EventArguments after = TellKey(Child::RichTextBox1, Key::Enter, 0, shift);
        EXPECT_EQ(StandDownCalls(), Lines{"RichTextBox1.Visible=False"}) << shift;
        EXPECT_EQ(Cursor(), Place(2, 3)) << shift;
        EXPECT_EQ(Cell(2, 2), u"abc");
        EXPECT_EQ(after.KeyCode, 0);
    }
}

// ---- The other keys -------------------------------------------------------------------------------------------------

TEST_F(RichTextEditor, Escape_WritesTheTrimmedTagIfThereAreRowsAndStandsDown)
{
    for (const bool rows : {true, false}) {
        GoTo(2, 2, u"abc");
        Box().Tag(u" before ");
        const std::int32_t kept = Members.RowCount;
        Members.RowCount = rows ? kept : 0;
        Members.HideEditorRequest = false;
        const EventArguments after = TellKey(Child::RichTextBox1, Key::Escape);
        const Lines calls = CallsOn("RichTextBox1");
        Members.RowCount = kept;
        EXPECT_EQ(Cell(2, 2), rows ? u"before" : u"abc");
        EXPECT_EQ(calls.front(), rows ? "MSFlexGrid1.TextMatrix(2,2)=\"before\"" : "RichTextBox1.Visible=False");
        EXPECT_EQ(calls.back(), "RichTextBox1.ZOrder(1)");
        EXPECT_TRUE(Members.HideEditorRequest);
        EXPECT_EQ(after.KeyCode, Key::Escape);
        EXPECT_EQ(Cursor(), Place(2, 2));
    }
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(RichTextEditor, LeftArrow_LeavesTheCellAndIsEatenOnlyAtTheFront)
{
    Sheet.Hand.Caret(1);
    EXPECT_EQ(TellKey(Child::RichTextBox1, Key::Left).KeyCode, Key::Left);
    EXPECT_EQ(Cursor(), Place(2, 2));
    Sheet.Hand.Caret(0);
    EXPECT_EQ(TellKey(Child::RichTextBox1, Key::Left).KeyCode, 0);
    EXPECT_EQ(Cursor(), Place(2, 1));
}

TEST_F(RichTextEditor, RightArrow_LeavesTheCellAndIsEatenOnlyBehindTheTrimmedText)
{
    GoTo(2, 2, u"abc");
    Box().Text(u"abc  ");
    for (const std::int32_t caret : {0, 2, 4, 5}) {
        Sheet.Hand.Caret(caret);
        EXPECT_EQ(TellKey(Child::RichTextBox1, Key::Right).KeyCode, Key::Right) << caret;
        EXPECT_EQ(Cursor(), Place(2, 2)) << caret;
    }
    Sheet.Hand.Caret(3);
    EXPECT_EQ(TellKey(Child::RichTextBox1, Key::Right).KeyCode, 0);
    EXPECT_EQ(Cursor(), Place(2, 3));
}

TEST_F(RichTextEditor, UpAndDownArrows_LeaveTheCellFromAnyLineAndAreEaten)
{
    const std::pair<std::int16_t, Place> ways[] = {{Key::Up, {1, 2}}, {Key::Down, {3, 2}}};
    for (const auto& [code, place] : ways) {
        for (const std::int32_t caret : {0, 4, 7}) {
            GoTo(2, 2, u"one\r\ntwo");
            Sheet.Hand.Caret(caret);
            Forget();
            EXPECT_EQ(TellKey(Child::RichTextBox1, code).KeyCode, 0);
            EXPECT_EQ(StandDownCalls(), Lines{"RichTextBox1.Visible=False"});
            EXPECT_EQ(Cursor(), place);
        }
    }
}

TEST_F(RichTextEditor, StandDown_IsHiddenThenDisabledThenSentBack)
{
    // The box shows nothing that a loss of focus would sweep in between.
    Box().Visible(false);
    Members.ColumnData.at(1).cdControlType = fcNil;
    Forget();
    TellKey(Child::RichTextBox1, Key::Down);
    EXPECT_EQ(First(CallsOn("RichTextBox1"), 3), StandDownOf("RichTextBox1"));
}

TEST_F(RichTextEditor, AnyKey_SpendsTheShowRequestAndLeavesTheOther)
{
    for (const std::int16_t code : {Key::Tab, Key::Home, Key::PageUp, Key::F2, std::int16_t{u'A'}}) {
        Members.ShowEditorRequest = true;
        Members.HideEditorRequest = false;
        EXPECT_EQ(TellKey(Child::RichTextBox1, code).KeyCode, code);
        EXPECT_FALSE(Members.ShowEditorRequest);
        EXPECT_FALSE(Members.HideEditorRequest);
    }
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(RichTextEditor, KeyThatFails_IsReportedUnderItsLabelAndNotEaten)
{
    Sheet.Calls->FailAtMember(u"RichTextBox1.Visible", 7);
    EXPECT_EQ(TellKey(Child::RichTextBox1, Key::Down).KeyCode, Key::Down);
    EXPECT_EQ(LabelsHeard(), Lines{"RichTextBox1_KeyDown"});
    EXPECT_EQ(Cursor(), Place(2, 2));
}

TEST_F(RichTextEditor, Characters_AreToldAsTheyAre)
{
    for (const std::int16_t character : {std::int16_t{13}, std::int16_t{27}, std::int16_t{97}}) {
        EventArguments arguments;
        arguments.KeyAscii = character;
        EXPECT_EQ(Tell(Child::RichTextBox1, ChildEvent::KeyPress, arguments).KeyAscii, character);
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"KeyPress KeyAscii=" + std::to_string(character)});
    }
}

TEST_F(RichTextEditor, ReleaseOfAKey_IsTold)
{
    EventArguments arguments;
    arguments.KeyCode = Key::Home;
    arguments.Shift = 2;
    Tell(Child::RichTextBox1, ChildEvent::KeyUp, arguments);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"KeyUp KeyCode=36 Shift=2"});
}

} // namespace
} // namespace Tessellon
