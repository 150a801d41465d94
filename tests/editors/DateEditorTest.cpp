#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tessellon {
namespace {

constexpr double fifthOfMay2002 = 37381;

/// Three rows of text, date, text; the user is in the middle cell, which holds 05/05/2002.
class DateEditor : public EditorTest {
protected:
    DateEditor()
    {
        Sheet.Build({fcTextBox, fcDatePicker, fcTextBox}, 3);
        GoTo(2, 2, u"05/05/2002");
    }
    DTPicker& Picker() { return *Sheet.Platform->DTPicker1(); }
};

// ---- What the cell gets ---------------------------------------------------------------------------------------------

TEST_F(DateEditor, Change_WritesTheDateInTheSheetsFormatAndTellsTheHost)
{
    ASSERT_EQ(Picker().Value(), fifthOfMay2002);
    SetCell(2, 2, u"x");
    Tell(Child::DTPicker1, ChildEvent::Change);
    EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"05/05/2002\""});
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"EditorChange"});
}

TEST_F(DateEditor, Change_TrimsNothing)
{
    Sheet->DateFormat(u"yyyy");
    Members.DateFormatText = u" yyyy ";
    Tell(Child::DTPicker1, ChildEvent::Change);
    EXPECT_EQ(Cell(2, 2), u" 2002 ");
}

TEST_F(DateEditor, FormatThatIsChangedWhileThePickerIsUp_HoldsFromTheNextWriteOn)
{
    Sheet->DateFormat(u"yyyy-MM-dd");
    EXPECT_EQ(Cell(2, 2), u"05/05/2002");
    Sheet.Press(Key::Up); // The first field is the year: 2003.
    EXPECT_EQ(Cell(2, 2), u"2003-05-05");
}

TEST_F(DateEditor, ChangeInAColumnOfAnotherKind_WritesNothingAndIsTold)
{
    Members.ColumnData.at(1).cdControlType = fcTextBox;
    Tell(Child::DTPicker1, ChildEvent::Change);
    EXPECT_EQ(Writes(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"EditorChange"});
}

TEST_F(DateEditor, ChangeWithoutRowsOrColumns_WritesNothingAndIsTold)
{
    for (std::int32_t SheetMembers::*count : {&SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = std::exchange(Members.*count, 0);
        Tell(Child::DTPicker1, ChildEvent::Change);
        Members.*count = kept;
        EXPECT_EQ(Writes(), Lines());
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"EditorChange"});
    }
}

TEST_F(DateEditor, ChangeThatFails_IsReportedUnderItsLabelAndStillTold)
{
    Sheet.Calls->FailAtMember(u"DTPicker1.Value", 7);
    Tell(Child::DTPicker1, ChildEvent::Change);
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"DTPicker1_Change"});
    EXPECT_EQ(heard.back(), "EditorChange");
}

// ---- Click and calendar ---------------------------------------------------------------------------------------------

TEST_F(DateEditor, Click_WritesTheCellAndTellsTheChangeAheadOfIt)
{
    SetCell(2, 2, u"x");
    Tell(Child::DTPicker1, ChildEvent::Click);
    EXPECT_EQ(Cell(2, 2), u"05/05/2002");
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"EditorChange", "Click"}));
}

TEST_F(DateEditor, CloseUp_WritesTheCellAndTellsTheChangeAheadOfIt)
{
    SetCell(2, 2, u"x");
    Tell(Child::DTPicker1, ChildEvent::CloseUp);
    EXPECT_EQ(Cell(2, 2), u"05/05/2002");
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"EditorChange", "DateBoxCloseUp"}));
}

TEST_F(DateEditor, DropDown_LeavesTheCell)
{
    Tell(Child::DTPicker1, ChildEvent::DropDown);
    EXPECT_EQ(Writes(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"DateBoxDropDown"});
}

TEST_F(DateEditor, DayChosenInTheCalendar_IsToldTwice)
{
    Sheet.Hand.Pick(fifthOfMay2002 + 1, false);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"DateBoxDropDown", "EditorChange", "EditorChange", "DateBoxCloseUp"}));
    EXPECT_EQ(Cell(2, 2), u"06/05/2002");
}

TEST_F(DateEditor, HostThatFailsInEditorChange_IsPassedOverByClickAndCloseUpOnly)
{
    Sheet->EditorChange += [] { throw Failure(7, u"", u""); };
    Tell(Child::DTPicker1, ChildEvent::Click);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"EditorChange", "Click"}));
    Tell(Child::DTPicker1, ChildEvent::CloseUp);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"EditorChange", "DateBoxCloseUp"}));
    EXPECT_THROW(Tell(Child::DTPicker1, ChildEvent::Change), Failure);
}

TEST_F(DateEditor, HostThatFailsInClickOrCloseUp_IsPassedOver)
{
    Sheet->Click += [] { throw Failure(7, u"", u""); };
    Sheet->DateBoxCloseUp += [] { throw Failure(7, u"", u""); };
    Sheet->DateBoxDropDown += [] { throw Failure(7, u"", u""); };
    EXPECT_NO_THROW(Tell(Child::DTPicker1, ChildEvent::Click));
    EXPECT_NO_THROW(Tell(Child::DTPicker1, ChildEvent::CloseUp));
    EXPECT_THROW(Tell(Child::DTPicker1, ChildEvent::DropDown), Failure);
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(DateEditor, DoubleClick_IsTold)
{
    Tell(Child::DTPicker1, ChildEvent::DblClick);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"DblClick"});
}

// ---- Fields that the host fills -------------------------------------------------------------------------------------

TEST_F(DateEditor, Format_TakesTheHostsTextBackAndNotHisField)
{
    Sheet->Format += [](std::u16string& field, std::u16string& text) {
        field = u"lost";
        text = u"week 18";
    };
    EventArguments arguments;
    arguments.CallbackField = u"XX";
    arguments.FormattedString = u"?";
    const EventArguments after = Tell(Child::DTPicker1, ChildEvent::Format, arguments);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"Format CallbackField=\"XX\" FormattedString=\"?\""});
    EXPECT_EQ(after.CallbackField, u"XX");
    EXPECT_EQ(after.FormattedString, u"week 18");
}

TEST_F(DateEditor, CallbackKey_TakesTheHostsDateBack)
{
    Sheet->DatePickerCallbackKeyDown +=
        [](std::int16_t, std::int16_t, const std::u16string&, double& date) { date += 7; };
    EventArguments arguments;
    arguments.KeyCode = Key::Up;
    arguments.Shift = 1;
    arguments.CallbackField = u"XXX";
    arguments.CallbackDate = fifthOfMay2002;
    const EventArguments after = Tell(Child::DTPicker1, ChildEvent::CallbackKeyDown, arguments);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"DatePickerCallbackKeyDown KeyCode=38 Shift=1 CallbackField=\"XXX\""});
    EXPECT_EQ(after.CallbackDate, fifthOfMay2002 + 7);
    EXPECT_EQ(after.KeyCode, Key::Up);
}

// ---- Keys -----------------------------------------------------------------------------------------------------------

TEST_F(DateEditor, Escape_WritesTheTagThroughTheFormatWhateverTheNumberOfRowsAndStandsDown)
{
    Picker().Tag(u"2002-05-07");
    Members.HideEditorRequest = false;
    Members.RowCount = 0;
    TellKey(Child::DTPicker1, Key::Escape);
    const Lines calls = CallsOn("DTPicker1");
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(First(calls, 2), (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"07/05/2002\"", "DTPicker1.Visible=False"}));
    EXPECT_EQ(calls.back(), "DTPicker1.ZOrder(1)");
    EXPECT_TRUE(Members.HideEditorRequest);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"KeyDown KeyCode=27 Shift=0"});
}

TEST_F(DateEditor, EscapeInACellThatWasEmpty_LeavesItEmpty)
{
    GoTo(2, 2, u"");
    Sheet.Press(Key::Up);
    ASSERT_NE(Cell(2, 2), u"");
    Sheet.Press(Key::Escape);
    EXPECT_EQ(Cell(2, 2), u"");
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Cursor(), Place(2, 2));
}

TEST_F(DateEditor, EscapeInACellWithoutADate_WritesItsTextAsItWas)
{
    GoTo(2, 2, u"soon");
    Sheet.Press(Key::Escape);
    EXPECT_EQ(Cell(2, 2), u"soon");
}

TEST_F(DateEditor, Enter_WritesTheDateThenStandsDownThenAdvancesThenTellsTheHost)
{
    SetCell(2, 2, u"x");
    EXPECT_EQ(TellKey(Child::DTPicker1, Key::Enter).KeyCode, Key::Enter);
    EXPECT_EQ(First(CallsOn("DTPicker1"), 2),
              (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"05/05/2002\"", "DTPicker1.Visible=False"}));
    EXPECT_EQ(Cursor(), Place(2, 3));
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(heard.front(), "AdvanceToNextCell Cancel=False");
    EXPECT_EQ(heard.back(), "KeyDown KeyCode=13 Shift=0");
}

TEST_F(DateEditor, EnterWithoutRowsOrInAnotherColumn_WritesAllTheSame)
{
    Members.ColumnData.at(1).cdControlType = fcTextBox;
    Members.RowCount = 0;
    SetCell(2, 2, u"x");
    TellKey(Child::DTPicker1, Key::Enter);
    EXPECT_EQ(Cell(2, 2), u"05/05/2002");
}

TEST_F(DateEditor, Arrows_StayInThePickerAndAreTold)
{
    for (const std::int16_t code : {Key::Left, Key::Up, Key::Right, Key::Down}) {
        for (const std::int16_t shift : {0, 1, 2}) {
            Members.ShowEditorRequest = true;
            EXPECT_EQ(TellKey(Child::DTPicker1, code, 0, shift).KeyCode, code);
            EXPECT_FALSE(Members.ShowEditorRequest);
            EXPECT_EQ(Sheet.TakeEvents(),
                      Lines{"KeyDown KeyCode=" + std::to_string(code) + " Shift=" + std::to_string(shift)});
        }
    }
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_EQ(Cursor(), Place(2, 2));
}

TEST_F(DateEditor, HostsKeyCode_GoesBackToThePicker)
{
    Sheet->KeyDown += [](std::int16_t& code, std::int16_t& shift) {
        code = 0;
        shift = 2;
    };
    const EventArguments after = TellKey(Child::DTPicker1, Key::Up);
    EXPECT_EQ(after.KeyCode, 0);
    EXPECT_EQ(after.Shift, 2);
}

TEST_F(DateEditor, KeyThatFails_IsReportedUnderItsLabelAndStillTold)
{
    for (const std::int16_t code : {Key::Enter, Key::Escape}) {
        Sheet.Calls->FailAtMember(code == Key::Enter ? u"DTPicker1.Value" : u"DTPicker1.Tag", 7);
        TellKey(Child::DTPicker1, code);
        const Lines heard = Sheet.TakeEvents();
        EXPECT_EQ(Labels(heard), Lines{"DTPicker1_KeyDown"});
        EXPECT_EQ(heard.back(), "KeyDown KeyCode=" + std::to_string(code) + " Shift=0");
        EXPECT_EQ(Cursor(), Place(2, 2));
    }
}

TEST_F(DateEditor, CharacterOfEnter_IsToldAsNoneAndThatOfEscapeAsItIs)
{
    const std::pair<std::int16_t, std::int16_t> characters[] = {{13, 0}, {27, 27}, {53, 53}};
    for (const auto& [character, told] : characters) {
        EventArguments arguments;
        arguments.KeyAscii = character;
        EXPECT_EQ(Tell(Child::DTPicker1, ChildEvent::KeyPress, arguments).KeyAscii, told);
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"KeyPress KeyAscii=" + std::to_string(told)});
    }
}

TEST_F(DateEditor, ReleaseOfAKey_IsTold)
{
    EventArguments arguments;
    arguments.KeyCode = Key::F2;
    arguments.Shift = 1;
    Tell(Child::DTPicker1, ChildEvent::KeyUp, arguments);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"KeyUp KeyCode=113 Shift=1"});
}

// ---- Focus and mouse ------------------------------------------------------------------------------------------------

TEST_F(DateEditor, LossOfFocus_SweepsForTheColumnThatIsCurrentByNow)
{
    Members.ShowEditorRequest = false;
    Members.HideEditorRequest = true;
    Tell(Child::DTPicker1, ChildEvent::LostFocus);
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(DateEditor, LossOfFocusWithoutAColumn_IsSilent)
{
    Members.CurrentCol = 0;
    Tell(Child::DTPicker1, ChildEvent::LostFocus);
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(DateEditor, GainOfFocusAndValidation_AreNotHeard)
{
    Members.ShowEditorRequest = true;
    Tell(Child::DTPicker1, ChildEvent::GotFocus);
    Tell(Child::DTPicker1, ChildEvent::Validate);
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
}

TEST_F(DateEditor, PressMoveAndRelease_AllReachTheHostAsPresses)
{
    for (const ChildEvent event : {ChildEvent::MouseDown, ChildEvent::MouseMove, ChildEvent::MouseUp}) {
        EventArguments arguments;
        arguments.Button = 1;
        arguments.Shift = 4;
        arguments.X = 15;
        arguments.Y = 30;
        Tell(Child::DTPicker1, event, arguments);
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"MouseDown Button=1 Shift=4 x=15 y=30"});
    }
}

} // namespace
} // namespace Tessellon
