#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <vector>

namespace Tessellon {
namespace {

/// Editors as the user and the host meet them, from the mouse and the keyboard to the events.
class EditorWalk : public EditorTest {};

TEST_F(EditorWalk, MouseOverAnEditor_IsToldAsPressesByThreeKindsAsItIsByTheButtonAndByNoOther)
{
    struct Case {
        FieldControlType Kind;
        Lines Told; ///< Of a press, a move and a release.
    };
    const Lines presses{"MouseDown Button=1 Shift=0 x=30 y=15", "MouseDown Button=0 Shift=0 x=30 y=15",
                        "MouseDown Button=1 Shift=0 x=30 y=15"};
    const Lines asItIs{"MouseDown Button=1 Shift=0 x=30 y=15", "MouseMove Button=0 Shift=0 x=30 y=15",
                       "MouseUp Button=1 Shift=0 x=30 y=15"};
    const Case cases[] = {{fcTextBox, {}},      {fcCheckBox, presses},     {fcComboBox, {}},
                          {fcListBox, presses}, {fcDatePicker, presses},   {fcMaskedEditBox, {}},
                          {fcRichTextBox, {}},  {fcCommandButton, asItIs}, {fcNil, {}}};
    std::vector<FieldControlType> kinds;
    for (const Case& given : cases)
        kinds.push_back(given.Kind);
    Sheet.Build(kinds, 2);
    for (std::int32_t col = 1; const Case& given : cases) {
        GoTo(1, col++, u"");
        for (const OverEvent event : {OverEvent::Down, OverEvent::Move, OverEvent::Up})
            Sheet.Hand.Over(event, 30, 15);
        EXPECT_EQ(Sheet.TakeEvents(), given.Told) << given.Kind;
    }
}

TEST_F(EditorWalk, CallbackField_ShowsTheHostsTextAndTakesTheHostsDate)
{
    constexpr double fifthOfMay2002 = 37381;
    Sheet->DateFormat(u"dd/XX");
    Sheet->Format += [](std::u16string&, std::u16string& text) { text = u"spring"; };
    Sheet->DatePickerCallbackKeyDown +=
        [](std::int16_t code, std::int16_t, const std::u16string&, double& date) { date += code == Key::Up ? 7 : 0; };
    Sheet.Build({fcDatePicker, fcTextBox}, 2);
    GoTo(1, 1, u"");
    Sheet.Platform->DTPicker1()->Value(fifthOfMay2002);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"DTPicker1 \"05/spring\""});
    Sheet.Press(Key::Right);
    Forget();

    Sheet.Press(Key::Up);

    EXPECT_EQ(Sheet.TakeEvents(),
              (Lines{"KeyDown KeyCode=38 Shift=0", "DatePickerCallbackKeyDown KeyCode=38 Shift=0 CallbackField=\"XX\"",
                     "Format CallbackField=\"XX\" FormattedString=\"\"", "EditorChange", "KeyUp KeyCode=38 Shift=0"}));
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"DTPicker1 \"12/spring\""});
    EXPECT_EQ(Cell(1, 1), u"12/XX");
    Sheet.Type(u"9");
    EXPECT_EQ(CountOf(Sheet.TakeEvents(), "EditorChange"), 0) << "the date came back as it was";
}

TEST_F(EditorWalk, ButtonOnTheLastRowOfASheetThatScrollsBothWays_IsEnteredAnewAheadOfThePressThatLeavesIt)
{
    std::vector<FieldControlType> kinds(11, fcTextBox);
    kinds.at(1) = kinds.at(2) = fcCommandButton;
    Sheet.Build(kinds, 30);
    Sheet.Hand.Click(30, 2);
    Forget();

    Sheet.Hand.Click(30, 3);

    EXPECT_EQ(Sheet.TakeEventNames(), (Lines{"EnterCell", "MouseDown", "LeaveCell", "EnterCell", "RowColChange",
                                             "SelChange", "MouseDown", "EnterCell"}));
    EXPECT_EQ(Sheet.EditorsUp().size(), 1U);
    EXPECT_EQ(Sheet.Focus(), "Command1(1)");
    Sheet.Hand.Click(29, 2); // Ahead of the last row nothing is entered anew.
    Forget();
    Sheet.Hand.Click(29, 3);
    EXPECT_EQ(Sheet.TakeEventNames().front(), "MouseDown");
}

TEST_F(EditorWalk, KeyThatAnEditorEats_TypesNothingAndItsReleaseIsTheNextEditors)
{
    Sheet->Cols(3);
    Sheet.Column(1, fcMaskedEditBox, u"##", false, true);
    Sheet.Column(2, fcTextBox);
    Sheet->BuildGridColumns();
    Sheet->AllowAddNew(true);
    Sheet->Add(0, 2);
    GoTo(1, 1, u"12");

    Sheet.Press(Key::Enter);

    EXPECT_EQ(Only(Sheet.TakeEvents(), {"Key"}), Lines{"KeyUp KeyCode=13 Shift=0"}) << "of the text box";
    Sheet.Press(Key::Left);
    Forget();
    Sheet.Hand.Caret(0);
    Sheet.Press(Key::Down); // Not eaten by the masked box, but told by nobody.
    EXPECT_EQ(Only(Sheet.TakeEvents(), {"Key"}), Lines());
    EXPECT_EQ(Cursor(), Place(2, 1));
}

} // namespace
} // namespace Tessellon
