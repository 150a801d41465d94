#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

CONTRACT_SUITE(LeavingContract);

// ---- The focus leaves the sheet -------------------------------------------------------------------------------------

TEST_P(LeavingContract, LeavingTheSheet_Validate_ExitFocus_Loss)
{
    Enter(Text());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) { EXPECT_EQ(Holder(), "Text1"); });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus"}));
    EXPECT_EQ(Holder(), "");
}

TEST_P(LeavingContract, LeavingTheGrid_ExitFocus_Loss)
{
    Cells().SetFocus();
    Told();
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"UserControl.ExitFocus", "MSFlexGrid1.LostFocus"}));
}

TEST_P(LeavingContract, LeavingASheetThatHasNotTheFocus_TellsNothing)
{
    User().FocusOut();
    EXPECT_EQ(Told(), Names{});
}

TEST_P(LeavingContract, CancelledValidate_LeavesTheFocus_WithoutExitFocus)
{
    Enter(Text());
    Recorder.Once("Text1.Validate", [](EventArguments& arguments) { arguments.Cancel = true; });
    User().FocusOut();
    EXPECT_EQ(Told(), Names{"Text1.Validate"});
    EXPECT_EQ(Holder(), "Text1");
}

TEST_P(LeavingContract, SetFocusInExitFocus_OnlyNotes_AndALeavingThatIsNotCancelledForgetsIt)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) {
        Check().SetFocus();
        EXPECT_EQ(Holder(), "Text1");
    });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus"}));
    EXPECT_EQ(Holder(), "");
    User().FocusIn();
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

TEST_P(LeavingContract, SetFocusInTheLossOfLeaving_TakesNothingBack)
{
    Enter(Text());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) { Text().SetFocus(); });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus"}));
    EXPECT_EQ(Holder(), "");
}

TEST_P(LeavingContract, CancelledExitFocus_GivesTheFocusToTheOneNoted)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) {
        Check().SetFocus();
        Engine().UserControl().SetFocus();
    });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus", "Check1.GotFocus"}));
    EXPECT_EQ(Holder(), "Check1");
}

TEST_P(LeavingContract, CancelledExitFocus_WithNoneNoted_LeavesTheFocusWhereItWas)
{
    Enter(Text());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) { Engine().UserControl().SetFocus(); });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus"}));
    EXPECT_EQ(Holder(), "Text1");
}

TEST_P(LeavingContract, CancelledExitFocus_GoesToTheGrid_WhereTheHolderIsHiddenByThen)
{
    Enter(Text());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) {
        Text().Visible(false);
        EXPECT_FALSE(Text().Visible());
        Engine().UserControl().SetFocus();
    });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus", "MSFlexGrid1.GotFocus"}));
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

TEST_P(LeavingContract, CancelledExitFocus_GoesToTheGrid_WhereTheOneNotedIsDisabledByThen)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) {
        Check().SetFocus();
        Check().Enabled(false);
        Engine().UserControl().SetFocus();
    });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus", "MSFlexGrid1.GotFocus"}));
}

TEST_P(LeavingContract, CancelledExitFocus_GoesToTheGrid_WhereTheHolderIsUnloadedByThen)
{
    Engine().Combo1().Load(1);
    Enter(Combo(1));
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) {
        Engine().Combo1().Unload(1);
        Engine().UserControl().SetFocus();
    });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"UserControl.ExitFocus", "MSFlexGrid1.GotFocus"}));
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

TEST_P(LeavingContract, WindowThatGoesAndComesBackInExitFocus_GivesTheFocusToWhoHadIt_AndTheLeavingGoesOn)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) {
        Check().SetFocus();
        User().WindowOut();
        User().WindowIn();
        EXPECT_EQ(Holder(), "Text1");
    });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus", "Text1.GotFocus",
                             "Text1.LostFocus"}));
    EXPECT_EQ(Holder(), "");
}

TEST_P(LeavingContract, EditorHiddenInExitFocus_HearsOfItsLossOnceTheSheetIsLeft)
{
    Enter(Text());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) { Text().Visible(false); });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus"}));
    EXPECT_EQ(Holder(), "");
    EXPECT_FALSE(Text().Visible());
}

TEST_P(LeavingContract, WindowGoneInExitFocus_TheOneNotedGetsTheFocusWhenItIsBack)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("UserControl.ExitFocus", [&](EventArguments&) {
        Check().SetFocus();
        User().WindowOut();
        Engine().UserControl().SetFocus();
    });
    User().FocusOut();
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "UserControl.ExitFocus", "Text1.LostFocus"}));
    EXPECT_EQ(Holder(), "");
    User().WindowIn();
    EXPECT_EQ(Told(), Names{"Check1.GotFocus"});
}

TEST_P(LeavingContract, FocusComesBackToTheGrid)
{
    Enter(Text());
    User().FocusOut();
    Told();
    User().FocusIn();
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.GotFocus"});
    User().FocusIn();
    EXPECT_EQ(Told(), Names{});
}

TEST_P(LeavingContract, SetFocusByCodeAfterwards_BringsTheFocusBack)
{
    Enter(Text());
    User().FocusOut();
    Told();
    Text().SetFocus();
    EXPECT_EQ(Told(), Names{"Text1.GotFocus"});
    Engine().UserControl().SetFocus();
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Holder(), "Text1");
}

TEST_P(LeavingContract, FailureInExitFocus_EndsTheLeaving)
{
    Enter(Text());
    Recorder.Once("UserControl.ExitFocus", [](EventArguments&) { throw Failure(11, u"Host", u""); });
    User().FocusOut();
    EXPECT_EQ(Under->UnhandledFailures(), std::vector<std::int32_t>{11});
    EXPECT_EQ(Holder(), "Text1");
    Up(Check());
    Check().SetFocus();
    EXPECT_EQ(Holder(), "Check1");
}

// ---- A host that types elsewhere ------------------------------------------------------------------------------------

TEST_P(LeavingContract, WithoutGrabbing_SetFocusFromOutsideOnlyNotes_AndTheUserBringsItIn)
{
    EXPECT_TRUE(Engine().TheFocus().GrabsFocus());
    Engine().TheFocus().GrabsFocus(false);
    Up(Text());
    Text().SetFocus();
    EXPECT_EQ(Holder(), "");
    EXPECT_EQ(Told(), Names{});
    User().FocusIn();
    EXPECT_EQ(Told(), Names{"Text1.GotFocus"});
}

TEST_P(LeavingContract, WithoutGrabbing_APressGoesToWhatIsPressed)
{
    Engine().TheFocus().GrabsFocus(false);
    Up(Text());
    Text().SetFocus();
    User().Click(2, 2);
    EXPECT_EQ(Told().front(), "MSFlexGrid1.GotFocus");
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

TEST_P(LeavingContract, WithoutGrabbing_SetFocusInsideTheSheetMovesAsEver)
{
    Engine().TheFocus().GrabsFocus(false);
    Up(Text());
    User().FocusIn();
    Told();
    Text().SetFocus();
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.LostFocus", "Text1.GotFocus"}));
}

TEST_P(LeavingContract, WithoutGrabbing_TheWindowComingBackDoesNotBringTheFocusIn)
{
    Engine().TheFocus().GrabsFocus(false);
    Up(Text());
    Text().SetFocus();
    User().WindowOut();
    User().WindowIn();
    EXPECT_EQ(Holder(), "");
    User().FocusIn();
    EXPECT_EQ(Holder(), "Text1");
}

TEST_P(LeavingContract, WithoutGrabbing_TheOneNotedThatIsHidden_LosesItsClaimToTheGrid)
{
    Engine().TheFocus().GrabsFocus(false);
    Up(Text());
    Text().SetFocus();
    Text().Visible(false);
    User().FocusIn();
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.GotFocus"});
}

// ---- Another window -------------------------------------------------------------------------------------------------

TEST_P(LeavingContract, AnotherWindowInFront_TellsTheLossAlone_AndTheGainWhenItIsBack)
{
    Enter(Text());
    User().WindowOut();
    EXPECT_EQ(Told(), Names{"Text1.LostFocus"});
    EXPECT_EQ(Holder(), "");
    User().WindowOut();
    User().WindowIn();
    EXPECT_EQ(Told(), Names{"Text1.GotFocus"});
    User().WindowIn();
    EXPECT_EQ(Told(), Names{});
}

TEST_P(LeavingContract, SetFocusMeanwhile_OnlyNotes_AndGoesAheadOfWhoHadIt)
{
    Enter(Text());
    Up(Check());
    User().WindowOut();
    Told();
    Check().SetFocus();
    EXPECT_EQ(Holder(), "");
    EXPECT_EQ(Told(), Names{});
    User().WindowIn();
    EXPECT_EQ(Told(), Names{"Check1.GotFocus"});
}

TEST_P(LeavingContract, SetFocusInTheLossToAnotherWindow_OnlyNotes)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) { Check().SetFocus(); });
    User().WindowOut();
    EXPECT_EQ(Told(), Names{"Text1.LostFocus"});
    User().WindowIn();
    EXPECT_EQ(Told(), Names{"Check1.GotFocus"});
}

TEST_P(LeavingContract, WhoIsHiddenMeanwhile_LosesItsClaimToTheGridAtThatMoment)
{
    Enter(Text());
    User().WindowOut();
    Text().Visible(false);
    Text().Visible(true);
    Told();
    User().WindowIn();
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.GotFocus"});
}

TEST_P(LeavingContract, WhoWasNotedAndIsDisabledMeanwhile_LosesItsClaimToTheGrid)
{
    Enter(Text());
    Up(Check());
    User().WindowOut();
    Check().SetFocus();
    Check().Enabled(false);
    Told();
    User().WindowIn();
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.GotFocus"});
}

TEST_P(LeavingContract, WindowThatComesBack_GivesNothingToASheetThatHadNoFocus)
{
    User().WindowOut();
    User().WindowIn();
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Holder(), "");
}

TEST_P(LeavingContract, WhileAnotherWindowIsInFront_KeysMouseAndFocusDoNothing)
{
    Enter(Text());
    User().WindowOut();
    Told();
    Type(u"a");
    User().Click(2, 2);
    User().FocusOut();
    User().FocusIn();
    EXPECT_EQ(Told(), Names{});
    User().WindowIn();
    EXPECT_EQ(Holder(), "Text1");
}

TEST_P(LeavingContract, TabDoesNothingOfItsOwn)
{
    Enter(Text());
    Up(Check());
    Key(KeyCode::Tab, u'\t');
    EXPECT_EQ(Told(), Stroked("Text1", 9, 9));
    EXPECT_EQ(Holder(), "Text1");
    EXPECT_EQ(Text().Text(), u"");
}

} // namespace Tessellon::Contract
