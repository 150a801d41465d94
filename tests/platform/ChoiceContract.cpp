#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

CONTRACT_SUITE(ChoiceContract);

// ---- Check box ------------------------------------------------------------------------------------------------------

TEST_P(ChoiceContract, CheckBox_TellsClickForEveryOtherValue_ByUserAndByCode)
{
    Enter(Check());
    Check().Value(1);
    EXPECT_EQ(Told(), Names{"Check1.Click"});
    Check().Value(1);
    EXPECT_EQ(Told(), Names{});
    User().Toggle();
    EXPECT_EQ(Told(), Names{"Check1.Click"});
    EXPECT_EQ(Check().Value(), 0);
}

TEST_P(ChoiceContract, CheckBox_AnotherValueIsFailure380)
{
    EXPECT_EQ(NumberOf([&] { Check().Value(3); }), 380);
    EXPECT_EQ(NumberOf([&] { Check().Value(-1); }), 380);
    Check().Value(2);
    EXPECT_EQ(Check().Value(), 2);
}

TEST_P(ChoiceContract, Space_ChangesTheCheckBoxOnTheKeyDown_AnyStateBut0Becomes0)
{
    Enter(Check());
    Key(KeyCode::Space, u' ');
    EXPECT_EQ(Told(), (Names{"Check1.KeyDown(32,0)", "Check1.Click", "Check1.KeyPress(32)", "Check1.KeyUp(32,0)"}));
    EXPECT_EQ(Check().Value(), 1);
    Check().Value(2);
    Key(KeyCode::Space, u' ');
    EXPECT_EQ(Check().Value(), 0);
}

TEST_P(ChoiceContract, Toggle_NeedsTheFocus)
{
    Up(Check());
    User().Toggle();
    EXPECT_EQ(Told(), Names{});
}

// ---- Combo box ------------------------------------------------------------------------------------------------------

TEST_P(ChoiceContract, ComboBox_TellsChangeOfTextThatIsWrittenOrTyped_AndNoClick)
{
    Enter(Combo());
    Combo().AddItem(u"Ada");
    Combo().Text(u"Ada");
    EXPECT_EQ(Told(), Names{"Combo1(0).Change"});
    Type(u"x");
    EXPECT_EQ(Told(), Stroked("Combo1(0)", 88, 120, {"Combo1(0).Change"}));
}

TEST_P(ChoiceContract, ComboBox_TextNeedNotBeAnItem_AndHasNoLimitOfLength)
{
    const std::u16string text(5000, u'x');
    Enter(Combo());
    Combo().Text(text);
    Combo().Caret(5000);
    Type(u"y");
    EXPECT_EQ(Combo().Text(), text + u"y");
}

TEST_P(ChoiceContract, ComboBox_DownAndUp_ChooseBesideTheEntryThatEqualsTheText)
{
    Enter(Combo());
    for (const auto* item : {u"a", u"b", u"c"})
        Combo().AddItem(item);
    Told();
    Key(KeyCode::Up);
    EXPECT_EQ(Told(), (Names{"Combo1(0).KeyDown(38,0)", "Combo1(0).KeyUp(38,0)"}));
    Key(KeyCode::Down);
    EXPECT_EQ(Combo().Text(), u"a");
    EXPECT_EQ(Told(), (Names{"Combo1(0).KeyDown(40,0)", "Combo1(0).Click", "Combo1(0).KeyUp(40,0)"}));
    Combo().Text(u"b");
    Key(KeyCode::Down);
    EXPECT_EQ(Combo().Text(), u"c");
    Told();
    Key(KeyCode::Down);
    EXPECT_EQ(Told(), (Names{"Combo1(0).KeyDown(40,0)", "Combo1(0).KeyUp(40,0)"}));
    Key(KeyCode::Up);
    EXPECT_EQ(Combo().Text(), u"b");
    Combo().Text(u"zzz");
    Key(KeyCode::Down);
    EXPECT_EQ(Combo().Text(), u"a");
}

TEST_P(ChoiceContract, ComboBox_ItemChosenByTheUser_TellsClickAlone_AndOnlyOfAnotherText)
{
    Enter(Combo());
    Combo().AddItem(u"a");
    Combo().AddItem(u"b");
    Told();
    User().Select(1);
    EXPECT_EQ(Told(), Names{"Combo1(0).Click"});
    EXPECT_EQ(Combo().Text(), u"b");
    User().Select(1);
    User().Select(7);
    User().Select(-1);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(ChoiceContract, EmptyingAListOrComboByCode_TellsNothing)
{
    Enter(Combo());
    Combo().AddItem(u"a");
    User().Select(0);
    Up(List());
    List().AddItem(u"a");
    List().Selected(0, true);
    Told();
    Combo().Clear();
    List().Clear();
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Combo().Text(), u"");
    EXPECT_EQ(List().ListCount(), 0);
}

TEST_P(ChoiceContract, ComboField_IsEditedLikeAText)
{
    Enter(Combo());
    Combo().Text(u"abc");
    User().Caret(1);
    Told();
    Key(KeyCode::Delete);
    EXPECT_EQ(Combo().Text(), u"ac");
    EXPECT_EQ(Told(), (Names{"Combo1(0).KeyDown(46,0)", "Combo1(0).Change", "Combo1(0).KeyUp(46,0)"}));
    Key(KeyCode::End);
    Key(KeyCode::Backspace, u'\b');
    EXPECT_EQ(Combo().Text(), u"a");
}

// ---- List box -------------------------------------------------------------------------------------------------------

class ListContract : public ChoiceContract {
protected:
    ListContract()
    {
        for (const auto* item : {u"Ada", u"Bob", u"adam", u"Carl"})
            List().AddItem(item);
        Enter(List());
    }

    std::string Selected()
    {
        std::string selected;
        for (std::int32_t item = 0; item < List().ListCount(); ++item)
            selected += List().Selected(item) ? '1' : '0';
        return selected;
    }
};

INSTANTIATE_TEST_SUITE_P(On, ListContract, ::testing::Values(TheFactory()), PlatformName);

TEST_P(ListContract, Click_IsToldOfTheUsersChoiceAlone)
{
    List().Selected(1, true);
    List().Text(u"Carl");
    EXPECT_EQ(Told(), Names{});
    User().Select(0);
    EXPECT_EQ(Told(), Names{"List1(0).Click"});
    EXPECT_EQ(Selected(), "1000");
    User().Select(0);
    User().Select(9);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(ListContract, ArrowsHomeAndEnd_MoveTheOneSelection)
{
    const auto by = [&](std::int16_t key) {
        Key(key);
        return Selected();
    };
    EXPECT_EQ(by(KeyCode::Down), "1000");
    EXPECT_EQ(by(KeyCode::Right), "0100");
    EXPECT_EQ(by(KeyCode::End), "0001");
    EXPECT_EQ(by(KeyCode::Up), "0010");
    EXPECT_EQ(by(KeyCode::Left), "0100");
    EXPECT_EQ(by(KeyCode::Home), "1000");
    Told();
    EXPECT_EQ(by(KeyCode::Home), "1000");
    EXPECT_EQ(Told(), (Names{"List1(0).KeyDown(36,0)", "List1(0).KeyUp(36,0)"}));
}

TEST_P(ListContract, WithoutASelection_EveryKeyTakesTheFirst_EndTheLast)
{
    const auto by = [&](std::int16_t key) {
        List().Selected(0, true);
        List().Selected(0, false);
        for (std::int32_t item = 0; item < 4; ++item)
            List().Selected(item, false);
        Key(key);
        return Selected();
    };
    for (const std::int16_t key : {KeyCode::Down, KeyCode::Up, KeyCode::Right, KeyCode::Left, KeyCode::Home})
        EXPECT_EQ(by(key), "1000") << key;
    EXPECT_EQ(by(KeyCode::End), "0001");
}

TEST_P(ListContract, KeysStartFromTheEntryLastSetTrueByCode)
{
    List().Selected(2, true);
    Key(KeyCode::Down);
    EXPECT_EQ(Selected(), "0001");
}

TEST_P(ListContract, Letter_GoesToTheNextEntryThatBeginsWithIt_CaseNotCounting_AndRound)
{
    Type(u"a");
    EXPECT_EQ(Selected(), "1000");
    EXPECT_EQ(Told(),
              (Names{"List1(0).KeyDown(65,0)", "List1(0).KeyPress(97)", "List1(0).Click", "List1(0).KeyUp(65,0)"}));
    Type(u"A");
    EXPECT_EQ(Selected(), "0010");
    Type(u"a");
    EXPECT_EQ(Selected(), "1000");
    Told();
    Type(u"z");
    EXPECT_EQ(Selected(), "1000");
    EXPECT_EQ(Told(), Stroked("List1(0)", 90, 122));
}

TEST_P(ListContract, WithCtrlOrAlt_KeysDoNothing)
{
    List().Selected(1, true);
    Key(KeyCode::Down, Modifier::Ctrl);
    Key(KeyCode::End, Modifier::Alt);
    EXPECT_EQ(Selected(), "0100");
}

TEST_P(ListContract, ShiftSelectsFromTheAnchorToTheEntryReached_AndNothingElse)
{
    User().Select(1);
    Key(KeyCode::Down, Modifier::Shift);
    EXPECT_EQ(Selected(), "0110");
    Key(KeyCode::Home, Modifier::Shift);
    EXPECT_EQ(Selected(), "1100");
    Key(KeyCode::Down);
    EXPECT_EQ(Selected(), "0100");
}

TEST_P(ListContract, WithoutAnAnchor_ShiftCountsAsAbsent)
{
    Key(KeyCode::End, Modifier::Shift);
    EXPECT_EQ(Selected(), "0001");
}

TEST_P(ListContract, WithALetter_ShiftCountsAsAbsent)
{
    User().Select(1);
    Key(67, u'C', Modifier::Shift);
    EXPECT_EQ(Selected(), "0001");
}

TEST_P(ListContract, CtrlWithTheMouse_TurnsOneEntryOver_ShiftTakesTheStretch)
{
    User().Select(0);
    Told();
    Act([&] { List().Choose(2, Modifier::Ctrl); });
    EXPECT_EQ(Selected(), "1010");
    Act([&] { List().Choose(2, Modifier::Ctrl); });
    EXPECT_EQ(Selected(), "1000");
    Act([&] { List().Choose(3, Modifier::Ctrl); });
    Act([&] { List().Choose(1, Modifier::Shift); });
    EXPECT_EQ(Selected(), "0111");
    EXPECT_EQ(Told(), (Names{"List1(0).Click", "List1(0).Click", "List1(0).Click", "List1(0).Click"}));
}

TEST_P(ListContract, BadIndexOfSelected_IsFailure381)
{
    EXPECT_EQ(NumberOf([&] { List().Selected(4, true); }), 381);
    EXPECT_EQ(SourceOf([&] { List().Selected(-1, true); }), "List1(0)");
}

// ---- Control arrays -------------------------------------------------------------------------------------------------

TEST_P(ChoiceContract, ControlArray_StartsWithItsInstance0)
{
    EXPECT_EQ(Engine().Combo1().Count(), 1);
    EXPECT_EQ(Engine().List1().Count(), 1);
    EXPECT_EQ(Engine().MaskEdBox1().Count(), 1);
    EXPECT_EQ(Engine().Command1().Count(), 1);
    EXPECT_EQ(Combo().Name(), u"Combo1(0)");
}

TEST_P(ChoiceContract, MakingAnIndexThatExists_IsFailure360_UsingOneThatDoesNotIs340_OfTheArray)
{
    EXPECT_EQ(NumberOf([&] { Engine().Combo1().Load(0); }), 360);
    Engine().Combo1().Load(1);
    EXPECT_EQ(NumberOf([&] { Engine().Combo1().Load(1); }), 360);
    EXPECT_EQ(NumberOf([&] { Engine().Combo1().Item(2); }), 340);
    EXPECT_EQ(NumberOf([&] { Engine().Combo1().Unload(2); }), 340);
    EXPECT_EQ(SourceOf([&] { Engine().Combo1().Item(2); }), "Combo1");
    Engine().Combo1().Unload(1);
    EXPECT_EQ(NumberOf([&] { Engine().Combo1().Item(1); }), 340);
}

TEST_P(ChoiceContract, HandleOutlivesTheInstance_AndStaysHidden)
{
    Engine().Command1().Load(1);
    const std::shared_ptr<CommandButton> button = Engine().Command1().Item(1);
    Engine().Command1().Unload(1);
    button->Visible(true);
    button->Caption(u"x");
    EXPECT_FALSE(button->Visible());
    EXPECT_EQ(NumberOf([&] { button->SetFocus(); }), 5);
}

} // namespace Tessellon::Contract
