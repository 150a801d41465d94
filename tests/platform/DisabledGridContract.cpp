#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

CONTRACT_SUITE(DisabledGridContract);

TEST_P(DisabledGridContract, DisabledGrid_TakesNoPressAndNoWheel)
{
    Enter(Text());
    Cells().Enabled(false);
    User().Click(2, 2);
    User().DoubleClick(2, 2);
    User().Drag(2, 2, 3, 3);
    User().MouseDown(1500, 300);
    User().Hover(1500, 300);
    User().MouseUp(1500, 300);
    User().Scroll(3, 2);
    Act([&] { Cells().TurnWheel(-1, 0); });
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Holder(), "Text1");
    EXPECT_EQ(Cells().TopRow(), 1);
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
}

TEST_P(DisabledGridContract, GridThatHasTheFocus_KeepsItWhileDisabled_ButHearsOfNoKey)
{
    Cells().SetFocus();
    Told();
    Cells().Enabled(false);
    EXPECT_EQ(Holder(), "MSFlexGrid1");
    Key(KeyCode::Down);
    Type(u"a");
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Under->Bells(), 0);
    Cells().Enabled(true);
    EXPECT_EQ(Told(), Names{});
    Key(KeyCode::Down);
    EXPECT_EQ(Cell(), (Names{"2", "1", "2", "1"}));
}

TEST_P(DisabledGridContract, SetFocusOfADisabledGrid_LeavesTheFocusNowhere_AndOwesItToTheGrid)
{
    Enter(Text());
    Cells().Enabled(false);
    Cells().SetFocus();
    EXPECT_EQ(Told(), Names{"Text1.LostFocus"});
    EXPECT_EQ(Holder(), "");
    Cells().Enabled(true);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.GotFocus"});
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

TEST_P(DisabledGridContract, FocusOfAHiddenEditor_IsOwedToADisabledGrid)
{
    Enter(Text());
    Cells().Enabled(false);
    Text().Visible(false);
    EXPECT_EQ(Told(), Names{"Text1.LostFocus"});
    EXPECT_EQ(Holder(), "");
    Cells().Enabled(true);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.GotFocus"});
}

TEST_P(DisabledGridContract, FocusComingBackToTheSheet_IsOwedToADisabledGrid)
{
    Cells().Enabled(false);
    User().FocusIn();
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Holder(), "");
    Cells().Enabled(true);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.GotFocus"});
}

TEST_P(DisabledGridContract, FocusComingBackToTheWindow_IsOwedToADisabledGrid)
{
    Cells().SetFocus();
    User().WindowOut();
    Cells().Enabled(false);
    Told();
    User().WindowIn();
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Holder(), "");
    Cells().Enabled(true);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.GotFocus"});
}

TEST_P(DisabledGridContract, FocusThatIsOwed_WaitsForTheWindow)
{
    Enter(Text());
    Cells().Enabled(false);
    Text().Visible(false);
    User().WindowOut();
    Cells().Enabled(true);
    EXPECT_EQ(Holder(), "");
    Told();
    User().WindowIn();
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.GotFocus"});
}

TEST_P(DisabledGridContract, FocusThatIsOwed_IsSettledByAnotherControlThatTakesIt)
{
    Enter(Text());
    Up(Check());
    Cells().Enabled(false);
    Text().Visible(false);
    Check().SetFocus();
    Told();
    Cells().Enabled(true);
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Holder(), "Check1");
}

TEST_P(DisabledGridContract, FocusThatIsOwed_IsGivenUpWhenTheUserLeavesTheSheet)
{
    Enter(Text());
    Cells().Enabled(false);
    Text().Visible(false);
    Told();
    User().FocusOut();
    Cells().Enabled(true);
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Holder(), "");
}

TEST_P(DisabledGridContract, DisabledInValidate_LosesThePress_AndTheFocusStaysWhereItIs)
{
    Enter(Text());
    Recorder.Once("Text1.Validate", [&](EventArguments&) { Cells().Enabled(false); });
    User().Click(2, 2);
    EXPECT_EQ(Told(), Names{"Text1.Validate"});
    EXPECT_EQ(Holder(), "Text1");
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
}

TEST_P(DisabledGridContract, DisabledInTheLossAheadOfMouseDown_LosesThePress_AndTheFocusStaysWhereItIs)
{
    Enter(Combo());
    Recorder.Once("Combo1(0).LostFocus", [&](EventArguments&) { Cells().Enabled(false); });
    User().Click(2, 2);
    EXPECT_EQ(Told(), (Names{"Combo1(0).LostFocus", "MSFlexGrid1.GotFocus"}));
    EXPECT_EQ(Holder(), "MSFlexGrid1");
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
}

TEST_P(DisabledGridContract, DisabledInMouseDown_TheRestOfThePressIsNotDone)
{
    Recorder.Once("MSFlexGrid1.MouseDown", [&](EventArguments&) { Cells().Enabled(false); });
    User().Click(2, 2);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.GotFocus", "MSFlexGrid1.MouseDown(1)"}));
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
    Cells().Enabled(true);
    User().MouseUp(1500, 300);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(DisabledGridContract, DisabledInKeyDown_TheRestOfTheKeyIsNotDone)
{
    Cells().SetFocus();
    Told();
    Recorder.Once("MSFlexGrid1.KeyDown", [&](EventArguments&) { Cells().Enabled(false); });
    Type(u"a");
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.KeyDown(65,0)"});
    EXPECT_EQ(Under->Bells(), 0);
    Cells().Enabled(true);
    Recorder.Once("MSFlexGrid1.KeyDown", [&](EventArguments&) { Cells().Enabled(false); });
    Key(KeyCode::Down);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.KeyDown(40,0)"});
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
}

TEST_P(DisabledGridContract, DisabledInTheMove_TellsTheWholeMoveButNoRelease)
{
    Recorder.Once("MSFlexGrid1.EnterCell", [&](EventArguments&) { Cells().Enabled(false); });
    User().Click(2, 2);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.GotFocus", "MSFlexGrid1.MouseDown(1)", "MSFlexGrid1.LeaveCell",
                             "MSFlexGrid1.EnterCell", "MSFlexGrid1.RowColChange", "MSFlexGrid1.SelChange"}));
    EXPECT_EQ(Cell(), (Names{"2", "2", "2", "2"}));
}

TEST_P(DisabledGridContract, CodeMovesADisabledGridsCursorAsEver)
{
    Cells().Enabled(false);
    Cells().Row(2);
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.LeaveCell", "MSFlexGrid1.EnterCell", "MSFlexGrid1.RowColChange",
                             "MSFlexGrid1.SelChange"}));
}

TEST_P(DisabledGridContract, DisabledInTheLossOfAHiddenEditor_TheGridStillHearsThatItHasTheFocus)
{
    Enter(Text());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) { Cells().Enabled(false); });
    Text().Visible(false);
    EXPECT_EQ(Told(), (Names{"Text1.LostFocus", "MSFlexGrid1.GotFocus"}));
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

TEST_P(DisabledGridContract, DisabledInAMoveBetweenEditors_ChangesNothingThere)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) { Cells().Enabled(false); });
    Check().SetFocus();
    EXPECT_EQ(Told(), (Names{"Text1.LostFocus", "Check1.GotFocus"}));
    Check().Visible(false);
    EXPECT_EQ(Told(), Names{"Check1.LostFocus"});
    EXPECT_EQ(Holder(), "");
}

TEST_P(DisabledGridContract, DisabledInExitFocus_ACancelledLeavingOfAHiddenEditorOwesTheFocus)
{
    Enter(Text());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) {
        Text().Visible(false);
        Cells().Enabled(false);
        Engine().UserControl().SetFocus();
    });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus"}));
    EXPECT_EQ(Holder(), "");
    Cells().Enabled(true);
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

} // namespace Tessellon::Contract
