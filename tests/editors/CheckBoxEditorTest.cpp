#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tessellon {
namespace {

/// Three rows of text, check box, text; the user is in the middle cell, which holds "True".
class CheckBoxEditor : public EditorTest {
protected:
    CheckBoxEditor()
    {
        Sheet.Build({fcTextBox, fcCheckBox, fcTextBox}, 3);
        GoTo(2, 2, u"True");
    }
    void Value(std::int16_t value) { Sheet.Platform->Check1()->Value(value); }
    std::int16_t Value() { return Sheet.Platform->Check1()->Value(); }
    void CheckMouse(ChildEvent event)
    {
        EventArguments arguments;
        arguments.Button = 1;
        arguments.Shift = 2;
        arguments.X = 30;
        arguments.Y = 45;
        Tell(Child::Check1, event, arguments);
    }
};

TEST_F(CheckBoxEditor, Click_WritesTrueForATickAndFalseForAnyOtherState)
{
    const std::pair<std::int16_t, std::u16string> states[] = {{0, u"False"}, {1, u"True"}, {2, u"False"}};
    for (const auto& [value, text] : states) {
        Value(value);
        SetCell(2, 2, u"x");
        TellOf(Child::Check1, 0, ChildEvent::Click);
        EXPECT_EQ(Cell(2, 2), text) << value;
    }
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(CheckBoxEditor, Space_TogglesTheBoxWhichWritesTheCell)
{
    Sheet.Press(Key::Space);
    EXPECT_EQ(Value(), 0);
    EXPECT_EQ(Cell(2, 2), u"False");
    EXPECT_EQ(Cursor(), Place(2, 2));
    Sheet.Press(Key::Space);
    EXPECT_EQ(Cell(2, 2), u"True");
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(CheckBoxEditor, ClickInAColumnOfAnotherKind_WritesNothing)
{
    Members.ColumnData.at(1).cdControlType = fcTextBox;
    TellOf(Child::Check1, 0, ChildEvent::Click);
    EXPECT_EQ(Writes(), Lines());
}

TEST_F(CheckBoxEditor, ClickWithoutRowsOrColumns_WritesNothing)
{
    for (std::int32_t SheetMembers::*count : {&SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = std::exchange(Members.*count, 0);
        TellOf(Child::Check1, 0, ChildEvent::Click);
        Members.*count = kept;
        EXPECT_EQ(Writes(), Lines());
    }
}

TEST_F(CheckBoxEditor, ClickThatFails_IsReportedUnderItsLabel)
{
    Sheet.Calls->FailAtMember(u"Check1.Value", 7);
    SetCell(2, 2, u"x");
    TellOf(Child::Check1, 0, ChildEvent::Click);
    EXPECT_EQ(LabelsHeard(), Lines{"Check1_Click"});
    EXPECT_EQ(Cell(2, 2), u"x");
}

TEST_F(CheckBoxEditor, AnyKey_AsksTheSweepToHideTheBox)
{
    for (const std::int16_t code : {Key::Tab, Key::Space, Key::Home, Key::F2, std::int16_t{u'A'}}) {
        Members.HideEditorRequest = false;
        Members.ShowEditorRequest = true;
        EXPECT_EQ(TellKey(Child::Check1, code).KeyCode, code);
        EXPECT_TRUE(Members.HideEditorRequest);
        EXPECT_FALSE(Members.ShowEditorRequest);
    }
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
}

TEST_F(CheckBoxEditor, Escape_WritesTheTrimmedTagAndStandsDownWithoutAdvance)
{
    Sheet.Platform->Check1()->Tag(u" True ");
    Value(0);
    Forget();
    TellKey(Child::Check1, Key::Escape);
    const Lines calls = CallsOn("Check1");
    ASSERT_GE(calls.size(), 2U);
    EXPECT_EQ(First(calls, 2), (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"True\"", "Check1.Visible=False"}));
    EXPECT_EQ(calls.back(), "Check1.ZOrder(1)");
    EXPECT_EQ(Cell(2, 2), u"True");
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(CheckBoxEditor, Escape_WritesWhateverTheNumberOfRows)
{
    Members.RowCount = 0;
    SetCell(2, 2, u"x");
    TellKey(Child::Check1, Key::Escape);
    EXPECT_EQ(Cell(2, 2), u"True");
}

TEST_F(CheckBoxEditor, Enter_WritesTheValueThenStandsDownThenAdvances)
{
    SetCell(2, 2, u"x");
    const EventArguments after = TellKey(Child::Check1, Key::Enter);
    EXPECT_EQ(First(CallsOn("Check1"), 2), (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"True\"", "Check1.Visible=False"}));
    EXPECT_EQ(Cursor(), Place(2, 3));
    EXPECT_EQ(after.KeyCode, Key::Enter);
}

TEST_F(CheckBoxEditor, EnterInTheGreyState_WritesFalse)
{
    Value(2);
    SetCell(2, 2, u"x");
    TellKey(Child::Check1, Key::Enter);
    EXPECT_EQ(Cell(2, 2), u"False");
}

TEST_F(CheckBoxEditor, EnterInAColumnOfAnotherKind_WritesAllTheSame)
{
    Members.ColumnData.at(1).cdControlType = fcTextBox;
    SetCell(2, 2, u"x");
    TellKey(Child::Check1, Key::Enter);
    EXPECT_EQ(Cell(2, 2), u"True");
}

TEST_F(CheckBoxEditor, EnterWithoutColumns_WritesAllTheSame)
{
    Members.ColCount = 0;
    SetCell(2, 2, u"x");
    TellKey(Child::Check1, Key::Enter);
    EXPECT_EQ(Cell(2, 2), u"True");
}

TEST_F(CheckBoxEditor, Arrows_LeaveTheCellTheirWayAndWriteNothing)
{
    const std::pair<std::int16_t, Place> ways[] = {
        {Key::Left, {2, 1}}, {Key::Up, {1, 2}}, {Key::Right, {2, 3}}, {Key::Down, {3, 2}}};
    for (const auto& [code, place] : ways) {
        GoTo(2, 2, u"True");
        SetCell(2, 2, u"x");
        EXPECT_EQ(TellKey(Child::Check1, code).KeyCode, code);
        EXPECT_EQ(Only(Sheet.TakeCalls(), {"Check1"}).front(), "Check1.Visible=False");
        EXPECT_EQ(Cursor(), place);
        EXPECT_EQ(Cell(2, 2), u"x");
    }
}

TEST_F(CheckBoxEditor, StandDownForAKey_IsHiddenDisabledAndSentBack)
{
    Members.ColumnData.at(1).cdControlType = fcNil; // So that no sweep speaks of the box in between.
    Sheet.Hand.FocusOut();
    Sheet.Platform->Check1()->Visible(true);
    Forget();
    TellKey(Child::Check1, Key::Left);
    EXPECT_EQ(First(CallsOn("Check1"), 3), StandDownOf("Check1"));
}

TEST_F(CheckBoxEditor, KeyThatFails_IsReportedUnderItsLabelAndDoesNotAdvance)
{
    Members.ColumnData.at(1).cdControlType = fcNil;
    Sheet.Platform->Check1()->Visible(false); // So that no sweep sends the box back ahead of the key.
    Forget();
    Sheet.Calls->FailAtMember(u"Check1.ZOrder", 7);
    TellKey(Child::Check1, Key::Right);
    EXPECT_EQ(LabelsHeard(), Lines{"Check1_KeyDown"});
    EXPECT_EQ(Cursor(), Place(2, 2));
}

TEST_F(CheckBoxEditor, Validation_AsksTheSweepToHideTheBoxAndNotTheHost)
{
    for (const bool cancel : {false, true}) {
        Members.HideEditorRequest = false;
        Members.ShowEditorRequest = true;
        EventArguments arguments;
        arguments.Cancel = cancel;
        EXPECT_EQ(Tell(Child::Check1, ChildEvent::Validate, arguments).Cancel, cancel);
        EXPECT_TRUE(Members.HideEditorRequest);
        EXPECT_FALSE(Members.ShowEditorRequest);
    }
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(CheckBoxEditor, LossOfFocus_SweepsForTheColumnThatIsCurrentByNow)
{
    Members.ShowEditorRequest = false;
    Members.HideEditorRequest = true;
    TellOf(Child::Check1, 0, ChildEvent::LostFocus);
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(CheckBoxEditor, LossOfFocusWithoutAColumn_IsReportedUnderItsLabel)
{
    Members.CurrentCol = 0;
    TellOf(Child::Check1, 0, ChildEvent::LostFocus);
    EXPECT_EQ(LabelsHeard(), Lines{"Check1_LostFocus"});
}

TEST_F(CheckBoxEditor, PressMoveAndRelease_AllReachTheHostAsPresses)
{
    for (const ChildEvent event : {ChildEvent::MouseDown, ChildEvent::MouseMove, ChildEvent::MouseUp}) {
        CheckMouse(event);
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"MouseDown Button=1 Shift=2 x=30 y=45"});
    }
}

TEST_F(CheckBoxEditor, HostThatFailsInMouseDown_IsHeldByNoFrame)
{
    Sheet->MouseDown += [](std::int16_t&, std::int16_t&, float&, float&) { throw Failure(7, u"", u""); };
    EXPECT_THROW(CheckMouse(ChildEvent::MouseMove), Failure);
}

} // namespace
} // namespace Tessellon
