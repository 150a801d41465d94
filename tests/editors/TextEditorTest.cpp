#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace Tessellon {
namespace {

constexpr std::int16_t keyTab = 9;
constexpr std::int16_t keyEnter = 13;
constexpr std::int16_t keyEscape = 27;
constexpr std::int16_t keyPageUp = 33;
constexpr std::int16_t keyPageDown = 34;
constexpr std::int16_t keyEnd = 35;
constexpr std::int16_t keyHome = 36;
constexpr std::int16_t keyLeft = 37;
constexpr std::int16_t keyUp = 38;
constexpr std::int16_t keyRight = 39;
constexpr std::int16_t keyDown = 40;
constexpr std::int16_t keyF2 = 113;

/// Three rows of three text columns; the user is in the middle cell, which holds "abc".
class TextEditor : public testing::Test {
protected:
    TextEditor() { Fill(u"abc"); }
    void Fill(std::u16string_view text)
    {
        if (Sheet->Rows() == 1)
            Sheet.Build({fcTextBox, fcTextBox, fcTextBox}, 3);
        Sheet.Platform->MSFlexGrid1().TextMatrix(2, 2, text);
        Sheet.Hand.Click(2, 2);
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    std::pair<std::int32_t, std::int32_t> Cursor() { return {Sheet->Row(), Sheet->Col()}; }
    std::u16string Cell() { return Sheet->TextMatrix(2, 2); }
    bool IsUp() { return !Sheet.EditorsUp().empty(); }

    using Place = std::pair<std::int32_t, std::int32_t>;
    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

// ---- What is typed --------------------------------------------------------------------------------------------------

TEST_F(TextEditor, TypedCharacter_ReachesTheCellAtOnceBetweenKeyPressAndKeyUp)
{
    Sheet.Hand.Caret(3);
    Sheet.Type(u"d");
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"KeyDown KeyCode=68 Shift=0", "KeyPress KeyAscii=100", "EditorChange",
                                         "KeyUp KeyCode=68 Shift=0"}));
    EXPECT_EQ(Cell(), u"abcd");
}

TEST_F(TextEditor, Cell_IsTrimmedWhileTheBoxKeepsWhatIsTyped)
{
    Sheet.Hand.Caret(3);
    Sheet.Type(u"  ");
    EXPECT_EQ(Cell(), u"abc");
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"abc  \""});
    Sheet.Type(u"d");
    EXPECT_EQ(Cell(), u"abc  d");
}

TEST_F(TextEditor, Space_IsTyped)
{
    Sheet.Press(32);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \" abc\""});
    EXPECT_EQ(Cursor(), Place(2, 2));
}

TEST_F(TextEditor, ChangeInAColumnOfAnotherKind_WritesNothingAndIsTold)
{
    Members.ColumnData.at(1).cdControlType = fcCheckBox;
    Sheet.Type(u"x");
    EXPECT_EQ(Cell(), u"abc");
    EXPECT_EQ(CountOf(Sheet.TakeEvents(), "EditorChange"), 1);
}

TEST_F(TextEditor, ChangeWithoutRowsOrColumns_WritesNothingAndIsTold)
{
    for (std::int32_t SheetMembers::*count : {&SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = std::exchange(Members.*count, 0);
        static_cast<void>(Sheet.TakeCalls());
        Probe.Raise(Child::Text1, ChildEvent::Change);
        Members.*count = kept;
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"EditorChange"});
        EXPECT_EQ(Sheet.TakeCalls(), Lines());
    }
}

TEST_F(TextEditor, ChangeWithoutAColumn_IsReportedUnderItsLabelAndStillTold)
{
    Members.CurrentCol = 0;
    Probe.Raise(Child::Text1, ChildEvent::Change);
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"Text1_Change"});
    EXPECT_EQ(heard.back(), "EditorChange");
}

TEST_F(TextEditor, HostThatFailsInEditorChange_IsNotHeldByTheFrame)
{
    Sheet->EditorChange += [] { throw Failure(7, u"", u""); };
    Sheet.Type(u"x");
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines());
    EXPECT_EQ(CountOf(heard, "exception 7"), 1);
    EXPECT_EQ(Cell(), u"xabc");
}

// ---- Focus ----------------------------------------------------------------------------------------------------------

TEST_F(TextEditor, Focus_PutsTheCaretToTheFrontOnlyIfItIsElsewhereAndSpendsTheRequest)
{
    Members.ShowEditorRequest = true;
    Probe.Raise(Child::Text1, ChildEvent::GotFocus);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_FALSE(Members.ShowEditorRequest);
    Sheet.Hand.Caret(2);
    Probe.Raise(Child::Text1, ChildEvent::GotFocus);
    EXPECT_EQ(Sheet.TakeCalls(), Lines{"Text1.SelStart=0"});
}

TEST_F(TextEditor, FocusThatFails_IsReportedUnderItsLabelAndKeepsTheRequest)
{
    Members.ShowEditorRequest = true;
    Sheet.Calls->FailAtMember(u"Text1.SelStart", 7);
    Probe.Raise(Child::Text1, ChildEvent::GotFocus);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Text1_GotFocus"});
    EXPECT_TRUE(Members.ShowEditorRequest);
}

TEST_F(TextEditor, HostThatCancelsTheValidation_KeepsTheFocusWithTheNewTextInTheCell)
{
    Sheet->EditorValidate += [](bool& Cancel) { Cancel = true; };
    Sheet.Type(u"x");
    Sheet.Heard.clear();
    Sheet.Hand.Click(1, 1);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"EditorValidate Cancel=False"});
    EXPECT_EQ(Sheet.Focus(), "Text1");
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Cell(), u"xabc");
}

// ---- Keys -----------------------------------------------------------------------------------------------------------

TEST_F(TextEditor, Enter_StandsDownAsksMovesAndTellsTheKeyLast)
{
    Sheet.Press(keyEnter);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"AdvanceToNextCell Cancel=False", "LeaveCell", "EnterCell", "RowColChange",
                                         "SelChange", "EditorChange", "EnterCell", "KeyDown KeyCode=13 Shift=0",
                                         "KeyPress KeyAscii=0", "KeyUp KeyCode=13 Shift=0"}));
    EXPECT_EQ(Cursor(), Place(2, 3));
    EXPECT_EQ(Cell(), u"abc");
    EXPECT_EQ(UpTo(Only(Sheet.TakeCalls(), {"Text1."}), "Text1.ZOrder(1)"),
              (Lines{"Text1.Visible=False", "Text1.Enabled=False", "Text1.ZOrder(1)"}));
}

TEST_F(TextEditor, Enter_WithAnyShift_LeavesTheSame)
{
    for (const std::int16_t shift : {1, 2, 4}) {
        Sheet.Hand.Click(2, 2);
        Sheet.Press(keyEnter, shift);
        EXPECT_EQ(Cursor(), Place(2, 3));
    }
}

TEST_F(TextEditor, Escape_PutsTheOldTextBackStandsDownAndStays)
{
    Sheet.Hand.Caret(3);
    Sheet.Type(u"d");
    Sheet.Heard.clear();
    static_cast<void>(Sheet.TakeCalls());
    Sheet.Press(keyEscape);
    EXPECT_EQ(Cell(), u"abc");
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"Text1.", "MSFlexGrid1."}),
              (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"abc\"", "Text1.Visible=False", "Text1.Enabled=False",
                     "Text1.ZOrder(1)"}));
    EXPECT_EQ(UpTo(Sheet.TakeEvents(), "KeyDown KeyCode=27 Shift=0"), Lines{"KeyDown KeyCode=27 Shift=0"});
    EXPECT_FALSE(IsUp());
    EXPECT_TRUE(Members.HideEditorRequest);
    EXPECT_EQ(Sheet.Focus(), "MSFlexGrid1");
    EXPECT_EQ(Cursor(), Place(2, 2));
}

TEST_F(TextEditor, Escape_TrimsTheOldText)
{
    Sheet.Calls->Text1()->Tag(u"  old ");
    Sheet.Press(keyEscape);
    EXPECT_EQ(Cell(), u"old");
}

TEST_F(TextEditor, Escape_WithoutRowsWritesNothingAndStandsDown)
{
    Members.RowCount = 0;
    Sheet.Press(keyEscape);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.TextMatrix"}), Lines());
    EXPECT_FALSE(IsUp());
}

TEST_F(TextEditor, LeftArrow_AtTheFront_GoesToThePreviousCell)
{
    Sheet.Press(keyLeft);
    EXPECT_EQ(Cursor(), Place(2, 1));
    EXPECT_TRUE(IsUp());
}

TEST_F(TextEditor, LeftArrow_InsideTheText_MovesTheCaret)
{
    Sheet.Hand.Caret(2);
    Sheet.Press(keyLeft);
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Sheet.Calls->Text1()->SelStart(), 1);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"KeyDown KeyCode=37 Shift=0", "KeyUp KeyCode=37 Shift=0"}));
}

TEST_F(TextEditor, RightArrow_AtTheEnd_GoesToTheNextCell)
{
    Sheet.Hand.Caret(3);
    Sheet.Press(keyRight);
    EXPECT_EQ(Cursor(), Place(2, 3));
}

TEST_F(TextEditor, RightArrow_InsideTheText_MovesTheCaret)
{
    Sheet.Hand.Caret(2);
    Sheet.Press(keyRight);
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Sheet.Calls->Text1()->SelStart(), 3);
}

TEST_F(TextEditor, RightArrow_BehindTrailingSpaces_StaysInCell)
{
    Sheet.Hand.Caret(3);
    Sheet.Type(u"  ");
    Sheet.Press(keyRight);
    EXPECT_EQ(Cursor(), Place(2, 2));
    Sheet.Hand.Caret(3);
    Sheet.Press(keyRight);
    EXPECT_EQ(Cursor(), Place(2, 3)) << "the end is that of the trimmed text";
}

TEST_F(TextEditor, RightArrow_InABoxOfSpaces_LeavesTheCellOnlyFromTheFront)
{
    Fill(u"");
    Sheet.Type(u"  ");
    EXPECT_EQ(Cell(), u"");
    Sheet.Press(keyRight);
    EXPECT_EQ(Cursor(), Place(2, 2));
    Sheet.Hand.Caret(0);
    Sheet.Press(keyRight);
    EXPECT_EQ(Cursor(), Place(2, 3));
}

TEST_F(TextEditor, UpAndDown_LeaveFromAnyPlaceOfTheCaret)
{
    Sheet.Hand.Caret(2);
    Sheet.Press(keyUp);
    EXPECT_EQ(Cursor(), Place(1, 2));
    Sheet.Hand.Click(2, 2);
    Sheet.Hand.Caret(1);
    Sheet.Press(keyDown);
    EXPECT_EQ(Cursor(), Place(3, 2));
}

TEST_F(TextEditor, OtherKeys_StayInTheBoxAndAreTold)
{
    Sheet.Hand.Caret(1);
    for (const std::int16_t code : {keyTab, keyPageUp, keyPageDown, keyHome, keyEnd, keyF2}) {
        Sheet.Heard.clear();
        Sheet.Press(code);
        EXPECT_EQ(Cursor(), Place(2, 2));
        EXPECT_TRUE(IsUp());
        EXPECT_EQ(Only(Sheet.TakeEvents(), {"KeyDown"}), Lines{"KeyDown KeyCode=" + std::to_string(code) + " Shift=0"});
        EXPECT_EQ(Sheet->TextMatrix(2, 2), u"abc");
    }
}

TEST_F(TextEditor, AnyKey_SpendsTheRequest)
{
    Members.ShowEditorRequest = true;
    Sheet.Press(keyHome);
    EXPECT_FALSE(Members.ShowEditorRequest);
}

TEST_F(TextEditor, KeyThatFails_IsReportedUnderItsLabelAndStillTold)
{
    Sheet.Calls->FailAtMember(u"Text1.Enabled", 7);
    Sheet.Press(keyEscape);
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"Text1_KeyDown"});
    EXPECT_EQ(CountOf(heard, "KeyDown KeyCode=27 Shift=0"), 1);
    EXPECT_EQ(Cell(), u"abc");
}

TEST_F(TextEditor, KeyThatTheHostTakes_IsNotTyped)
{
    Sheet->KeyPress += [](std::int16_t& ascii) { ascii = u'!'; };
    Sheet.Type(u"x");
    EXPECT_EQ(Cell(), u"!abc");
    Sheet->KeyDown += [](std::int16_t& code, std::int16_t&) { code = 0; };
    Sheet.Type(u"y");
    EXPECT_EQ(Cell(), u"!abc");
}

TEST_F(TextEditor, CharactersOfEnterAndEscape_AreToldAsNothing)
{
    for (const auto& [given, told] : {std::pair<std::int16_t, std::int16_t>{13, 0}, {27, 0}, {8, 8}, {65, 65}}) {
        EventArguments arguments;
        arguments.KeyAscii = given;
        Probe.Raise(Child::Text1, ChildEvent::KeyPress, arguments);
        EXPECT_EQ(arguments.KeyAscii, told);
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"KeyPress KeyAscii=" + std::to_string(told)});
    }
}

TEST_F(TextEditor, DoubleClick_IsTold)
{
    Sheet.Hand.Over(OverEvent::DoubleClick, 10, 10);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"DblClick"});
}

TEST_F(TextEditor, EnterThatTheHostRefuses_LeavesTheEditorDown)
{
    Sheet->AdvanceToNextCell += [](bool& Cancel) { Cancel = true; };
    Sheet.Press(keyEnter);
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_FALSE(IsUp());
    EXPECT_EQ(Sheet.Focus(), "MSFlexGrid1");
}

TEST_F(TextEditor, F2InTheGrid_BringsTheEditorBack)
{
    Sheet.Press(keyEscape);
    Sheet.Press(keyF2);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"abc\""});
    EXPECT_FALSE(Members.HideEditorRequest);
}

} // namespace
} // namespace Tessellon
