#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

CONTRACT_SUITE(FocusContract);

// ---- SetFocus -------------------------------------------------------------------------------------------------------

TEST_P(FocusContract, SetFocus_TellsTheLossAtOnce_ThenTheGain)
{
    Enter(Text());
    Up(Check());
    Check().SetFocus();
    EXPECT_EQ(Told(), (Names{"Text1.LostFocus", "Check1.GotFocus"}));
    EXPECT_EQ(Holder(), "Check1");
}

TEST_P(FocusContract, SetFocus_OnWhoHasIt_TellsNothing)
{
    Enter(Text());
    Text().SetFocus();
    EXPECT_EQ(Told(), Names{});
}

TEST_P(FocusContract, WhenTheLossIsTold_TheFocusStandsOnTheNewControl_AndAskingForItThereDoesNothing)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) {
        EXPECT_EQ(Holder(), "Check1");
        Check().SetFocus();
    });
    Check().SetFocus();
    EXPECT_EQ(Told(), (Names{"Text1.LostFocus", "Check1.GotFocus"}));
}

TEST_P(FocusContract, GainIsNotTold_WhereTheLossMovedTheFocusOn_ButTheLossOfWhoNeverHeardOfItIs)
{
    Enter(Text());
    Up(Check());
    Up(Combo());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) { Combo().SetFocus(); });
    Check().SetFocus();
    EXPECT_EQ(Told(), (Names{"Text1.LostFocus", "Check1.LostFocus", "Combo1(0).GotFocus"}));
    EXPECT_EQ(Holder(), "Combo1(0)");
}

TEST_P(FocusContract, SetFocus_OnAHiddenOrDisabledEditor_IsFailure5OfThatControl)
{
    EXPECT_EQ(NumberOf([&] { Text().SetFocus(); }), 5);
    Text().Visible(true);
    Text().Enabled(false);
    EXPECT_EQ(NumberOf([&] { Text().SetFocus(); }), 5);
    EXPECT_EQ(SourceOf([&] { Combo().SetFocus(); }), "Combo1(0)");
    EXPECT_EQ(Told(), Names{});
}

TEST_P(FocusContract, SetFocus_FromOutside_BringsTheFocusIntoTheSheet)
{
    Up(Text());
    EXPECT_EQ(Holder(), "");
    Text().SetFocus();
    EXPECT_EQ(Holder(), "Text1");
    EXPECT_EQ(Told(), Names{"Text1.GotFocus"});
}

TEST_P(FocusContract, SetFocus_IsNoReasonForValidate)
{
    Enter(Text());
    Cells().SetFocus();
    Enter(Check());
    Cells().SetFocus();
    EXPECT_EQ(Told(), (Names{"Check1.LostFocus", "MSFlexGrid1.GotFocus"}));
}

// ---- Hiding and disabling -------------------------------------------------------------------------------------------

TEST_P(FocusContract, HidingTheHolder_GivesTheFocusToTheGrid)
{
    Enter(Text());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) {
        EXPECT_FALSE(Text().Visible());
        EXPECT_EQ(Holder(), "MSFlexGrid1");
    });
    Text().Visible(false);
    EXPECT_EQ(Told(), (Names{"Text1.LostFocus", "MSFlexGrid1.GotFocus"}));
}

TEST_P(FocusContract, DisablingTheHolder_GivesTheFocusToTheGrid)
{
    Enter(Combo());
    Recorder.Once("Combo1(0).LostFocus", [&](EventArguments&) {
        EXPECT_FALSE(Combo().Enabled());
        EXPECT_TRUE(Combo().Visible());
    });
    Combo().Enabled(false);
    EXPECT_EQ(Told(), (Names{"Combo1(0).LostFocus", "MSFlexGrid1.GotFocus"}));
    Combo().Visible(false);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(FocusContract, HidingOneThatHasNotTheFocus_TellsNothing)
{
    Enter(Text());
    Up(Check());
    Check().Visible(false);
    Check().Enabled(false);
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Holder(), "Text1");
}

TEST_P(FocusContract, GridIsNotToldOfTheFocus_WhereTheLossMovedItOn)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) { Check().SetFocus(); });
    Text().Visible(false);
    EXPECT_EQ(Told(), (Names{"Text1.LostFocus", "MSFlexGrid1.LostFocus", "Check1.GotFocus"}));
}

TEST_P(FocusContract, WhatWasHidden_IsHidden_ThoughItsLossBroughtItUpAgain)
{
    Enter(Text());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) { Text().Visible(true); });
    Text().Visible(false);
    EXPECT_FALSE(Text().Visible());
    EXPECT_EQ(Told(), (Names{"Text1.LostFocus", "MSFlexGrid1.GotFocus"}));
}

TEST_P(FocusContract, WhatWasDisabled_IsDisabled_ThoughItsLossEnabledItAndGaveItTheFocus)
{
    Enter(Text());
    Recorder.Once("Text1.LostFocus", [&](EventArguments&) {
        Text().Enabled(true);
        Text().SetFocus();
    });
    Text().Enabled(false);
    EXPECT_FALSE(Text().Enabled());
    EXPECT_TRUE(Text().Visible());
    // It is taken down again in silence: no second loss is told.
    EXPECT_EQ(Told(), (Names{"Text1.LostFocus", "MSFlexGrid1.LostFocus", "Text1.GotFocus"}));
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

TEST_P(FocusContract, StandDown_LeavesNothingStanding_WhateverEachLossBringsUp)
{
    Enter(Text());
    Recorder.Always("Text1.LostFocus", [&](EventArguments&) {
        Text().Visible(true);
        Text().Enabled(true);
        Text().SetFocus();
    });
    Text().Visible(false);
    Text().Enabled(false);
    EXPECT_FALSE(Text().Visible());
    EXPECT_FALSE(Text().Enabled());
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

TEST_P(FocusContract, FailureInTheLoss_GoesOnToWhoeverHidTheControl)
{
    Enter(Text());
    Recorder.Once("Text1.LostFocus", [](EventArguments&) { throw Failure(7, u"Host", u""); });
    EXPECT_EQ(NumberOf([&] { Text().Visible(false); }), 7);
    EXPECT_FALSE(Text().Visible());
    EXPECT_EQ(Holder(), "MSFlexGrid1");
    EXPECT_EQ(Told(), Names{"Text1.LostFocus"});
}

TEST_P(FocusContract, InstanceMayBeUnloadedInItsOwnLoss)
{
    Engine().Combo1().Load(1);
    Enter(Combo(1));
    const std::shared_ptr<ComboBox> combo = Engine().Combo1().Item(1);
    Recorder.Once("Combo1(1).LostFocus", [&](EventArguments&) { Engine().Combo1().Unload(1); });
    combo->Visible(false);
    EXPECT_EQ(Told(), (Names{"Combo1(1).LostFocus", "MSFlexGrid1.GotFocus"}));
    combo->Visible(true);
    EXPECT_FALSE(combo->Visible());
}

TEST_P(FocusContract, UnloadingTheHolder_GivesTheFocusToTheGrid)
{
    Engine().Combo1().Load(1);
    Enter(Combo(1));
    Engine().Combo1().Unload(1);
    EXPECT_EQ(Told(), (Names{"Combo1(1).LostFocus", "MSFlexGrid1.GotFocus"}));
    EXPECT_EQ(Holder(), "MSFlexGrid1");
}

// ---- Validate -------------------------------------------------------------------------------------------------------

TEST_P(FocusContract, Press_AsksTextBoxAndCheckBox_BeforeItTakesTheFocus)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("Text1.Validate", [&](EventArguments&) { EXPECT_EQ(Holder(), "Text1"); });
    EXPECT_TRUE(PressOn(Check()));
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "Text1.LostFocus", "Check1.GotFocus", "Check1.MouseDown(1)"}));
    EXPECT_TRUE(PressOn(Text()));
    EXPECT_EQ(Told(), (Names{"Check1.Validate", "Check1.LostFocus", "Text1.GotFocus", "Text1.MouseDown(1)"}));
}

TEST_P(FocusContract, Press_AsksNoOtherKindOfEditor)
{
    Up(Text());
    const auto pressAway = [&](auto& editor) {
        Enter(editor);
        PressOn(Text());
        return Told().front();
    };
    EXPECT_EQ(pressAway(Combo()), "Combo1(0).LostFocus");
    EXPECT_EQ(pressAway(List()), "List1(0).LostFocus");
    EXPECT_EQ(pressAway(Picker()), "DTPicker1.LostFocus");
    EXPECT_EQ(pressAway(Mask()), "MaskEdBox1(0).LostFocus");
    EXPECT_EQ(pressAway(Rich()), "RichTextBox1.LostFocus");
    EXPECT_EQ(pressAway(Button()), "Command1(0).LostFocus");
}

TEST_P(FocusContract, CancelledValidate_LosesThePress)
{
    Enter(Text());
    Up(Check());
    Recorder.Always("Text1.Validate", [](EventArguments& arguments) { arguments.Cancel = true; });
    EXPECT_FALSE(PressOn(Check()));
    User().Click(2, 2);
    EXPECT_EQ(Told(), (Names{"Text1.Validate", "Text1.Validate"}));
    EXPECT_EQ(Holder(), "Text1");
    EXPECT_EQ(Cell(), (Names{"1", "1", "1", "1"}));
}

TEST_P(FocusContract, Press_OnWhoHasTheFocus_AsksNothing)
{
    Enter(Text());
    EXPECT_TRUE(PressOn(Text()));
    EXPECT_EQ(Told(), Names{"Text1.MouseDown(1)"});
}

TEST_P(FocusContract, Press_OnAHiddenOrDisabledEditor_IsLost)
{
    Enter(Text());
    Up(Check());
    Check().Enabled(false);
    EXPECT_FALSE(PressOn(Check()));
    Check().Visible(false);
    EXPECT_FALSE(PressOn(Check()));
    EXPECT_EQ(Told(), Names{});
}

TEST_P(FocusContract, HidingByCode_AsksNothing)
{
    Enter(Check());
    Check().Visible(false);
    EXPECT_EQ(Told(), (Names{"Check1.LostFocus", "MSFlexGrid1.GotFocus"}));
}

TEST_P(FocusContract, PressOnAnEditorThatValidateTookDown_IsLost_AndTheFocusStays)
{
    Enter(Text());
    Up(Check());
    Recorder.Once("Text1.Validate", [&](EventArguments&) { Check().Visible(false); });
    EXPECT_FALSE(PressOn(Check()));
    EXPECT_EQ(Told(), Names{"Text1.Validate"});
    EXPECT_EQ(Holder(), "Text1");
}

} // namespace Tessellon::Contract
