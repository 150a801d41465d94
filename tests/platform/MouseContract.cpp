#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

CONTRACT_SUITE(MouseContract);

TEST_P(MouseContract, Editor_TakesTheFocus_ThenTellsMouseDown_ThenMouseUp)
{
    Up(Combo());
    PressOn(Combo());
    ReleaseOn(Combo());
    EXPECT_EQ(Told(), (Names{"Combo1(0).GotFocus", "Combo1(0).MouseDown(1)", "Combo1(0).MouseUp(1)"}));
}

TEST_P(MouseContract, Positions_AreTwipsFromTheEditorsOwnCorner)
{
    Up(Text());
    Recorder.Always("Text1.MouseDown", [](EventArguments& arguments) {
        EXPECT_EQ(arguments.X, 30);
        EXPECT_EQ(arguments.Y, 45);
    });
    User().Over(OverEvent::Down, 30, 45);
    EXPECT_EQ(Told(), Names{"Text1.MouseDown(1)"});
}

TEST_P(MouseContract, CheckBoxReleasedInside_ChangesBehindMouseUp)
{
    Enter(Check());
    PressOn(Check());
    ReleaseOn(Check());
    EXPECT_EQ(Told(), (Names{"Check1.MouseDown(1)", "Check1.MouseUp(1)", "Check1.Click"}));
    EXPECT_EQ(Check().Value(), 1);
    PressOn(Check());
    ReleaseOn(Check(), false);
    EXPECT_EQ(Told(), (Names{"Check1.MouseDown(1)", "Check1.MouseUp(1)"}));
    EXPECT_EQ(Check().Value(), 1);
}

TEST_P(MouseContract, ButtonReleasedInside_TellsClickBehindMouseUp)
{
    Enter(Button());
    PressOn(Button());
    ReleaseOn(Button());
    EXPECT_EQ(Told(), (Names{"Command1(0).MouseDown(1)", "Command1(0).MouseUp(1)", "Command1(0).Click"}));
    PressOn(Button());
    ReleaseOn(Button(), false);
    EXPECT_EQ(Told().back(), "Command1(0).MouseUp(1)");
}

TEST_P(MouseContract, AnotherButtonThanTheLeft_MeansNothing)
{
    Enter(Check());
    PressOn(Check(), 2);
    ReleaseOn(Check(), true, 2);
    EXPECT_EQ(Told(), (Names{"Check1.MouseDown(2)", "Check1.MouseUp(2)"}));
    EXPECT_EQ(Check().Value(), 0);
}

TEST_P(MouseContract, Picker_TellsClickOfAPressThatOpensNoCalendar)
{
    Enter(Picker());
    PressOn(Picker());
    ReleaseOn(Picker());
    EXPECT_EQ(Told(), (Names{"DTPicker1.MouseDown(1)", "DTPicker1.MouseUp(1)", "DTPicker1.Click"}));
    PressOn(Picker());
    Act([&] { Picker().OpenCalendar(); });
    ReleaseOn(Picker());
    EXPECT_EQ(Told(), (Names{"DTPicker1.MouseDown(1)", "DTPicker1.DropDown", "DTPicker1.MouseUp(1)"}));
}

TEST_P(MouseContract, TextBoxAndPicker_TellTheSecondPressOfADoubleClick)
{
    Enter(Text());
    User().Over(OverEvent::DoubleClick, 15, 15);
    EXPECT_EQ(Told(), Names{"Text1.DblClick"});
    Text().Visible(false);
    Enter(Picker());
    User().Over(OverEvent::DoubleClick, 15, 15);
    EXPECT_EQ(Told(), Names{"DTPicker1.DblClick"});
    Picker().Visible(false);
    Enter(Combo());
    User().Over(OverEvent::DoubleClick, 15, 15);
    User().Over(OverEvent::Click, 15, 15);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(MouseContract, EditorTakenDownInMouseDown_DoesNotDoWhatThePressMeans)
{
    Enter(Check());
    Recorder.Once("Check1.MouseDown", [&](EventArguments&) { Check().Visible(false); });
    EXPECT_FALSE(PressOn(Check()));
    EXPECT_EQ(Check().Value(), 0);
}

TEST_P(MouseContract, EditorTakenDownInMouseUp_DoesNotDoWhatThePressMeans)
{
    Enter(Button());
    PressOn(Button());
    Recorder.Once("Command1(0).MouseUp", [&](EventArguments&) { Button().Visible(false); });
    ReleaseOn(Button());
    for (const std::string& event : Told())
        EXPECT_NE(event, "Command1(0).Click");
}

TEST_P(MouseContract, InstanceUnloadedInItsOwnMouseDown_LosesThePress)
{
    Engine().Command1().Load(1);
    Enter(Button(1));
    CommandButtonControl& button = Button(1);
    Recorder.Once("Command1(1).MouseDown", [&](EventArguments&) { Engine().Command1().Unload(1); });
    EXPECT_FALSE(PressOn(button));
    EXPECT_EQ(Told(), (Names{"Command1(1).MouseDown(1)", "Command1(1).LostFocus", "MSFlexGrid1.GotFocus"}));
}

TEST_P(MouseContract, Push_GivesTheFocusAsAPressDoes_AndTellsTheClickAlone)
{
    Enter(Text());
    Text().Visible(false);
    Up(Button());
    User().Push();
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.LostFocus", "Command1(0).GotFocus", "Command1(0).Click"}));
}

TEST_P(MouseContract, MoveOverAnEditor_HasNoButton)
{
    Up(List());
    User().Over(OverEvent::Move, 15, 15);
    User().Over(OverEvent::Up, 15, 15);
    EXPECT_EQ(Told(), (Names{"List1(0).MouseMove(0)", "List1(0).MouseUp(1)"}));
}

TEST_P(MouseContract, WheelOverTheSheet_ScrollsByThreeRows_AndWithShiftByAColumn)
{
    Enter(Check());
    Cells().Rows(60);
    Cells().Cols(30);
    Act([&] { Cells().TurnWheel(-1, 0); });
    EXPECT_EQ(Cells().TopRow(), 4);
    Act([&] { Cells().TurnWheel(-1, Modifier::Shift); });
    EXPECT_EQ(Cells().LeftCol(), 2);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.Scroll", "MSFlexGrid1.Scroll"}));
    EXPECT_EQ(Check().Value(), 0);
}

} // namespace Tessellon::Contract
