#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

CONTRACT_SUITE(KeysContract);

TEST_P(KeysContract, Key_IsToldToWhoHasTheFocus_Down_Press_Up)
{
    Enter(Text());
    Type(u"a");
    EXPECT_EQ(Told(), Stroked("Text1", 65, 97, {"Text1.Change"}));
    EXPECT_EQ(Text().Text(), u"a");
}

TEST_P(KeysContract, WithoutAFocus_KeysAreToldToNobody)
{
    Up(Text());
    Type(u"a");
    Key(KeyCode::Down);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(KeysContract, KeyCode0_LeavesNothingButKeyUp)
{
    Enter(Text());
    Recorder.Once("Text1.KeyDown", [](EventArguments& arguments) { arguments.KeyCode = 0; });
    Type(u"a");
    EXPECT_EQ(Told(), (Names{"Text1.KeyDown(65,0)", "Text1.KeyUp(65,0)"}));
    EXPECT_EQ(Text().Text(), u"");
}

TEST_P(KeysContract, WhatTheKeyMeans_IsDoneAheadOfKeyPress)
{
    Enter(Text());
    Type(u"ab");
    Text().SelStart(2);
    Told();
    Key(KeyCode::Backspace, u'\b');
    EXPECT_EQ(Told(), (Names{"Text1.KeyDown(8,0)", "Text1.Change", "Text1.KeyPress(8)", "Text1.KeyUp(8,0)"}));
    EXPECT_EQ(Text().Text(), u"a");
}

TEST_P(KeysContract, Character_GoesToWhoHasTheFocusByThen)
{
    Enter(Text());
    Up(Combo());
    Recorder.Once("Text1.KeyDown", [&](EventArguments&) { Combo().SetFocus(); });
    Type(u"a");
    EXPECT_EQ(Told(), (Names{"Text1.KeyDown(65,0)", "Text1.LostFocus", "Combo1(0).GotFocus", "Combo1(0).KeyPress(97)",
                             "Combo1(0).Change", "Combo1(0).KeyUp(65,0)"}));
    EXPECT_EQ(Combo().Text(), u"a");
    EXPECT_EQ(Text().Text(), u"");
}

TEST_P(KeysContract, TheSameControlDoesWhatTheKeyMeans_ThoughTheFocusHasGone)
{
    Enter(Check());
    Up(Text());
    Recorder.Once("Check1.KeyDown", [&](EventArguments&) { Text().SetFocus(); });
    Key(KeyCode::Space, u' ');
    EXPECT_EQ(Check().Value(), 1);
    EXPECT_EQ(Text().Text(), u" ");
}

TEST_P(KeysContract, KeyUp_GoesToWhoHasTheFocusByThen)
{
    Enter(Text());
    Recorder.Once("Text1.KeyPress", [&](EventArguments&) { Text().Visible(false); });
    Type(u"a");
    EXPECT_EQ(Told(), (Names{"Text1.KeyDown(65,0)", "Text1.KeyPress(97)", "Text1.LostFocus", "MSFlexGrid1.GotFocus",
                             "MSFlexGrid1.KeyUp(65,0)"}));
    EXPECT_EQ(Text().Text(), u"");
}

TEST_P(KeysContract, KeyAscii0_TakesUpNothing)
{
    Enter(Text());
    Recorder.Once("Text1.KeyPress", [](EventArguments& arguments) { arguments.KeyAscii = 0; });
    Type(u"ab");
    EXPECT_EQ(Text().Text(), u"b");
}

TEST_P(KeysContract, ChangedKeyAscii_IsTheCharacterThatIsTakenUp)
{
    Enter(Text());
    Recorder.Once("Text1.KeyPress", [](EventArguments& arguments) { arguments.KeyAscii = u'X'; });
    Type(u"a");
    EXPECT_EQ(Text().Text(), u"X");
}

TEST_P(KeysContract, ChangedKeyCode_HasThatKeysEffect_TheCharacterAndKeyUpStay)
{
    Enter(Text());
    Text().Text(u"xy");
    Text().SelStart(2);
    Told();
    Recorder.Once("Text1.KeyDown", [](EventArguments& arguments) { arguments.KeyCode = KeyCode::Home; });
    Type(u"a");
    EXPECT_EQ(Text().Text(), u"axy");
    EXPECT_EQ(Told().back(), "Text1.KeyUp(65,0)");
}

TEST_P(KeysContract, KeyWithoutACode_IsNotEatenByItsCodeOf0)
{
    Enter(Text());
    Key(0, u'\u00E9');
    EXPECT_EQ(Told(), (Names{"Text1.KeyDown(0,0)", "Text1.KeyPress(233)", "Text1.Change", "Text1.KeyUp(0,0)"}));
    Recorder.Once("Text1.KeyDown", [](EventArguments& arguments) { arguments.KeyCode = KeyCode::Home; });
    Key(0, u'-');
    EXPECT_EQ(Text().Text(), u"-\u00E9");
}

TEST_P(KeysContract, Characters_AreUnits_AsSigned16BitNumbers)
{
    Enter(Text());
    Type(u"\U0001F600");
    EXPECT_EQ(Told(), (Names{"Text1.KeyDown(0,0)", "Text1.KeyPress(-10179)", "Text1.Change", "Text1.KeyUp(0,0)",
                             "Text1.KeyDown(0,0)", "Text1.KeyPress(-8704)", "Text1.Change", "Text1.KeyUp(0,0)"}));
    EXPECT_EQ(Text().Text(), u"\U0001F600");
}

TEST_P(KeysContract, EnterEscTabAndBackspace_TellTheirCharacter_AndInsertNothing)
{
    Enter(Text());
    Key(KeyCode::Enter, u'\r');
    Key(KeyCode::Escape, u'\x1B');
    Key(KeyCode::Tab, u'\t');
    Key(KeyCode::Backspace, u'\b');
    EXPECT_EQ(Told(),
              Stroked("Text1", 13, 13) + Stroked("Text1", 27, 27) + Stroked("Text1", 9, 9) + Stroked("Text1", 8, 8));
    EXPECT_EQ(Text().Text(), u"");
}

TEST_P(KeysContract, EnterThatEndsOneCell_LeavesNoLineBreakInTheNext)
{
    Enter(Text());
    Up(Rich());
    Recorder.Once("Text1.KeyDown", [&](EventArguments&) {
        Text().Visible(false);
        Rich().SetFocus();
    });
    Key(KeyCode::Enter, u'\r');
    EXPECT_EQ(Rich().Text(), u"");
    EXPECT_EQ(Holder(), "RichTextBox1");
}

TEST_P(KeysContract, KeyPressCannotStopWhatTheseKeysDo)
{
    Enter(Rich());
    Recorder.Always("RichTextBox1.KeyPress", [](EventArguments& arguments) { arguments.KeyAscii = 0; });
    Rich().Text(u"ab");
    Rich().SelStart(1);
    Key(KeyCode::Enter, u'\r');
    EXPECT_EQ(Rich().Text(), u"a\r\nb");
    Key(KeyCode::Backspace, u'\b');
    EXPECT_EQ(Rich().Text(), u"ab");
}

TEST_P(KeysContract, RichTextBox_BreaksItsLineOnTheKeyItself)
{
    Enter(Rich());
    Key(KeyCode::Enter, u'\r');
    EXPECT_EQ(Told(), (Names{"RichTextBox1.KeyDown(13,0)", "RichTextBox1.Change", "RichTextBox1.KeyPress(13)",
                             "RichTextBox1.KeyUp(13,0)"}));
}

TEST_P(KeysContract, TextFieldTakenDownByItsHandler_DoesNothingMoreWithTheKey_ThoughItBeUpAgain)
{
    const auto downAndUpAgain = [](auto& editor) {
        return [&editor](EventArguments&) {
            editor.Visible(false);
            editor.Visible(true);
            editor.SetFocus();
        };
    };
    const auto keyed = [&](auto& editor, const std::string& name, std::u16string_view text) {
        Enter(editor);
        editor.Text(text);
        editor.SelStart(1);
        Recorder.Once(name + ".KeyDown", downAndUpAgain(editor));
        Key(KeyCode::Delete);
        return std::u16string(editor.Text());
    };
    EXPECT_EQ(keyed(Text(), "Text1", u"abc"), u"abc");
    EXPECT_EQ(keyed(Rich(), "RichTextBox1", u"abc"), u"abc");
    Mask().PromptInclude(true);
    Mask().Mask(u"###");
    EXPECT_EQ(keyed(Mask(), "MaskEdBox1(0)", u"123"), u"123");
}

TEST_P(KeysContract, DisablingCountsLikeHiding)
{
    Enter(Text());
    Text().Text(u"abc");
    Recorder.Once("Text1.KeyDown", [&](EventArguments&) {
        Text().Enabled(false);
        Text().Enabled(true);
        Text().SetFocus();
    });
    Key(KeyCode::Delete);
    EXPECT_EQ(Text().Text(), u"abc");
}

TEST_P(KeysContract, CharacterIsTakenUp_ThoughItsControlWentDownAndUpInKeyDown)
{
    Enter(Text());
    Recorder.Once("Text1.KeyDown", [&](EventArguments&) {
        Text().Visible(false);
        Text().Visible(true);
        Text().SetFocus();
    });
    Type(u"a");
    EXPECT_EQ(Text().Text(), u"a");
}

TEST_P(KeysContract, CharacterIsNotTakenUp_ByWhoWasNotToldIt)
{
    Enter(Text());
    Up(Combo());
    Recorder.Once("Text1.KeyPress", [&](EventArguments&) { Combo().SetFocus(); });
    Type(u"a");
    EXPECT_EQ(Text().Text(), u"");
    EXPECT_EQ(Combo().Text(), u"");
}

TEST_P(KeysContract, ListThatItsHandlerTookDown_TellsTheClickAndMovesWhereItIsNotUpAgain)
{
    Enter(List());
    List().AddItem(u"a");
    List().AddItem(u"b");
    Recorder.Once("List1(0).KeyDown", [&](EventArguments&) { List().Visible(false); });
    Key(KeyCode::Down);
    EXPECT_EQ(Told(), (Names{"List1(0).KeyDown(40,0)", "List1(0).LostFocus", "MSFlexGrid1.GotFocus", "List1(0).Click",
                             "MSFlexGrid1.KeyUp(40,0)"}));
    EXPECT_TRUE(List().Selected(0));
}

TEST_P(KeysContract, ListThatIsUpAgain_TellsTheClickAndKeepsItsSelection)
{
    Enter(List());
    List().AddItem(u"a");
    List().AddItem(u"b");
    List().Selected(0, true);
    Recorder.Once("List1(0).KeyDown", [&](EventArguments&) {
        List().Visible(false);
        List().Visible(true);
        List().SetFocus();
        Told();
    });
    Key(KeyCode::Down);
    EXPECT_EQ(Told(), (Names{"List1(0).Click", "List1(0).KeyUp(40,0)"}));
    EXPECT_TRUE(List().Selected(0));
    EXPECT_FALSE(List().Selected(1));
}

TEST_P(KeysContract, ListThatIsUpAgain_TellsNoClickThatTheKeyWouldNotHaveCaused)
{
    Enter(List());
    List().AddItem(u"a");
    List().Selected(0, true);
    Recorder.Once("List1(0).KeyDown", [&](EventArguments&) {
        List().Visible(false);
        List().Visible(true);
        List().SetFocus();
        Told();
    });
    Key(KeyCode::Down);
    EXPECT_EQ(Told(), Names{"List1(0).KeyUp(40,0)"});
}

TEST_P(KeysContract, InstanceUnloadedInItsOwnKeyDown_TellsNothingMore)
{
    Engine().Combo1().Load(1);
    Enter(Combo(1));
    Combo(1).AddItem(u"a");
    Recorder.Once("Combo1(1).KeyDown", [&](EventArguments&) { Engine().Combo1().Unload(1); });
    Key(KeyCode::Down);
    EXPECT_EQ(Told(), (Names{"Combo1(1).KeyDown(40,0)", "Combo1(1).LostFocus", "MSFlexGrid1.GotFocus",
                             "MSFlexGrid1.KeyUp(40,0)"}));
    EXPECT_EQ(Engine().Combo1().Count(), 1);
}

TEST_P(KeysContract, FailureInKeyDown_EndsTheKey_AndIsToldToTheHost)
{
    Enter(Text());
    Recorder.Once("Text1.KeyDown", [](EventArguments&) { throw Failure(13, u"Host", u""); });
    Type(u"a");
    EXPECT_EQ(Under->UnhandledFailures(), std::vector<std::int32_t>{13});
    EXPECT_EQ(Text().Text(), u"");
    EXPECT_EQ(Told(), Names{"Text1.KeyDown(65,0)"});
}

} // namespace Tessellon::Contract
