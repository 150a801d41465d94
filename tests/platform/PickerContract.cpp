#include "engine/runtime/Calendar.h"
#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

namespace {

constexpr double march15 = 45366; ///< 15 March 2024.

} // namespace

class PickerContract : public PlatformContract, public ::testing::WithParamInterface<PlatformFactory> {
protected:
    PickerContract() { Picker().Format(3); }

    void Load(std::u16string_view format, double value = march15)
    {
        Picker().CustomFormat(format);
        Picker().Value(value);
        Enter(Picker());
    }
    std::string Shown() { return Narrow(Picker().ShownText()); }
    std::string By(std::int16_t key)
    {
        Key(key);
        return Shown();
    }
};

INSTANTIATE_TEST_SUITE_P(On, PickerContract, ::testing::Values(TheFactory()), PlatformName);

// ---- Value and text -------------------------------------------------------------------------------------------------

TEST_P(PickerContract, Change_IsToldOfTheUserAlone)
{
    Load(u"dd/MM/yyyy");
    Picker().Value(march15 + 1);
    EXPECT_EQ(Told(), Names{});
    Key(KeyCode::Up);
    EXPECT_EQ(Told(), (Names{"DTPicker1.KeyDown(38,0)", "DTPicker1.Change", "DTPicker1.KeyUp(38,0)"}));
    EXPECT_EQ(Picker().Value(), march15 + 2);
}

TEST_P(PickerContract, SignsOfTheFormat)
{
    const double afternoon = march15 + (13 * 3600 + 5 * 60 + 9) / 86400.0;
    Load(u"M m H h", afternoon);
    EXPECT_EQ(Shown(), "3 5 13 1");
    Picker().CustomFormat(u"dddd, dd MMM yy 'at''s' tt");
    EXPECT_EQ(Shown(), "Friday, 15 Mar 24 at's PM");
    Picker().CustomFormat(u"d MMMM y yyy hh:mm:ss t");
    EXPECT_EQ(Shown(), "15 March 24 2024 01:05:09 P");
}

TEST_P(PickerContract, Format_IsRaisedOnceForEachRunOfX_WhenThePickerBecomesVisible)
{
    Recorder.Always("DTPicker1.Format", [](EventArguments& arguments) {
        arguments.FormattedString = u"<" + arguments.CallbackField + u">";
    });
    Picker().CustomFormat(u"X dd XX");
    Picker().Value(march15);
    EXPECT_EQ(Told(), Names{});
    Picker().Visible(true);
    EXPECT_EQ(Told(), (Names{"DTPicker1.Format(X)", "DTPicker1.Format(XX)"}));
    EXPECT_EQ(Shown(), "<X> 15 <XX>");
    Picker().SetFocus();
    Picker().Move(0, 0, 2000, 300);
    Picker().Value(march15);
    EXPECT_EQ(Told(), Names{"DTPicker1.GotFocus"});
    Picker().Value(march15 + 1);
    EXPECT_EQ(Told(), (Names{"DTPicker1.Format(X)", "DTPicker1.Format(XX)"}));
    Picker().CustomFormat(u"XXX");
    EXPECT_EQ(Told(), Names{"DTPicker1.Format(XXX)"});
    Picker().Visible(false);
    Picker().Value(march15);
    EXPECT_EQ(Told(), (Names{"DTPicker1.LostFocus", "MSFlexGrid1.GotFocus"}));
}

TEST_P(PickerContract, Format_IsRaisedAheadOfChange)
{
    Load(u"dd X");
    Key(KeyCode::Up);
    EXPECT_EQ(Told(),
              (Names{"DTPicker1.KeyDown(38,0)", "DTPicker1.Format(X)", "DTPicker1.Change", "DTPicker1.KeyUp(38,0)"}));
}

TEST_P(PickerContract, ValueOutsideTheYears_IsFailure5)
{
    EXPECT_EQ(NumberOf([&] { Picker().Value(1e9); }), 5);
    EXPECT_EQ(SourceOf([&] { Picker().Value(-1e9); }), "DTPicker1");
}

// ---- Fields ---------------------------------------------------------------------------------------------------------

TEST_P(PickerContract, FirstFieldIsCurrentWhenTheFocusComes_ArrowsGoWithoutWrapping)
{
    Load(u"dd/MM/yyyy");
    const auto field = [&](std::int16_t key) {
        Key(key);
        return Picker().Fields().CurrentField();
    };
    EXPECT_EQ(Picker().Fields().CurrentField(), 0);
    EXPECT_EQ(field(KeyCode::Left), 0);
    EXPECT_EQ(field(KeyCode::Right), 1);
    EXPECT_EQ(field(KeyCode::End), 2);
    EXPECT_EQ(field(KeyCode::Right), 2);
    EXPECT_EQ(field(KeyCode::Home), 0);
    field(KeyCode::End);
    User().WindowOut();
    User().WindowIn();
    EXPECT_EQ(Picker().Fields().CurrentField(), 0);
}

TEST_P(PickerContract, UpAndDown_RollOverInsideTheField_TheOthersStay)
{
    Load(u"d/M H:m:s t", SerialOf({2024, 12, 31, 23, 59, 59}));
    EXPECT_EQ(By(KeyCode::Up), "1/12 23:59:59 P");
    Key(KeyCode::Right);
    EXPECT_EQ(By(KeyCode::Up), "1/1 23:59:59 P");
    Key(KeyCode::Right);
    EXPECT_EQ(By(KeyCode::Up), "1/1 0:59:59 A");
    Key(KeyCode::Right);
    EXPECT_EQ(By(KeyCode::Up), "1/1 0:0:59 A");
    Key(KeyCode::Right);
    EXPECT_EQ(By(KeyCode::Up), "1/1 0:0:0 A");
    Key(KeyCode::Right);
    EXPECT_EQ(By(KeyCode::Down), "1/1 12:0:0 P");
}

TEST_P(PickerContract, YearStopsAtItsEnds_WithTheBell)
{
    Load(u"yyyy", SerialOf({9999, 1, 1, 0, 0, 0}));
    EXPECT_EQ(By(KeyCode::Up), "9999");
    EXPECT_EQ(Under->Bells(), 1);
}

TEST_P(PickerContract, DayIsTheSmallerOfTheMonthsLastAndTheDayTyped)
{
    Load(u"dd/MM/yyyy", SerialOf({2024, 2, 1, 0, 0, 0}));
    Type(u"31");
    EXPECT_EQ(Shown(), "29/02/2024");
    Key(KeyCode::Right);
    Type(u"03");
    EXPECT_EQ(Shown(), "31/03/2024");
}

TEST_P(PickerContract, DigitsAreTaken_WhenNoFurtherOneCouldFit_OrAheadOfAnyOtherKey)
{
    Load(u"dd/MM/yyyy");
    Type(u"1");
    EXPECT_EQ(Picker().Value(), march15);
    Type(u"6");
    EXPECT_EQ(Picker().Value(), march15 + 1);
    Type(u"7");
    EXPECT_EQ(Picker().Value(), march15 - 8);
    Type(u"1");
    Told();
    Key(KeyCode::Enter, u'\r');
    EXPECT_EQ(Told(), (Names{"DTPicker1.Change", "DTPicker1.KeyDown(13,0)", "DTPicker1.KeyPress(13)",
                             "DTPicker1.KeyUp(13,0)"}));
    EXPECT_EQ(Picker().Value(), march15 - 14);
}

TEST_P(PickerContract, DigitsAreTaken_AheadOfAPressElsewhere_TheLeavingOfSheetAndWindow)
{
    Load(u"dd/MM/yyyy");
    Up(Text());
    const auto typed = [&](const std::function<void()>& leave) {
        Picker().Value(march15);
        Picker().SetFocus();
        Type(u"1");
        Told();
        leave();
        EXPECT_EQ(Picker().Value(), march15 - 14);
        return Told();
    };
    EXPECT_EQ(typed([&] { User().WindowOut(); }), (Names{"DTPicker1.Change", "DTPicker1.LostFocus"}));
    User().WindowIn();
    EXPECT_EQ(typed([&] { PressOn(Text()); }),
              (Names{"DTPicker1.Change", "DTPicker1.LostFocus", "Text1.GotFocus", "Text1.MouseDown(1)"}));
    EXPECT_EQ(typed([&] { User().FocusOut(); }),
              (Names{"DTPicker1.Change", "UserControl.ExitFocus", "DTPicker1.LostFocus"}));
}

TEST_P(PickerContract, NumberThatIsNoLegalValue_IsDroppedWithTheBell)
{
    Load(u"dd/MM/yyyy");
    Type(u"39");
    EXPECT_EQ(Shown(), "15/03/2024");
    EXPECT_EQ(Under->Bells(), 1);
    Key(KeyCode::End);
    Type(u"202");
    Key(KeyCode::Home);
    EXPECT_EQ(Shown(), "15/03/2024");
    EXPECT_EQ(Under->Bells(), 2);
    Key(KeyCode::End);
    Type(u"29");
    Key(KeyCode::Home);
    EXPECT_EQ(Shown(), "15/03/2029");
    Key(KeyCode::End);
    Type(u"30");
    Key(KeyCode::Home);
    EXPECT_EQ(Shown(), "15/03/1930");
}

TEST_P(PickerContract, WhatCodeWritesOrHides_DropsTheDigits)
{
    Load(u"dd/MM/yyyy");
    const auto dropped = [&](const std::function<void()>& action) {
        Type(u"1");
        action();
        Key(KeyCode::Enter);
        return Picker().Value() == march15;
    };
    EXPECT_TRUE(dropped([&] { Picker().Value(march15); }));
    EXPECT_TRUE(dropped([&] { Picker().CustomFormat(u"d/M/yyyy"); }));
    EXPECT_TRUE(dropped([&] {
        Picker().Visible(false);
        Picker().Visible(true);
        Picker().SetFocus();
    }));
}

TEST_P(PickerContract, CustomFormatWritten_LeavesTheNumberOfTheCurrentField_DrawnBackToTheLast)
{
    Load(u"dd/MM/yyyy");
    Key(KeyCode::End);
    Picker().CustomFormat(u"yyyy-MM-dd");
    EXPECT_EQ(Picker().Fields().CurrentField(), 2);
    Picker().CustomFormat(u"MM-dd");
    EXPECT_EQ(Picker().Fields().CurrentField(), 1);
}

TEST_P(PickerContract, CharacterBehindTheField_GoesOn_AnyOtherSoundsTheBell)
{
    Load(u"dd/MM/yyyy");
    Type(u"7/");
    EXPECT_EQ(Picker().Fields().CurrentField(), 1);
    EXPECT_EQ(Shown(), "07/03/2024");
    Type(u"-");
    EXPECT_EQ(Picker().Fields().CurrentField(), 1);
    EXPECT_EQ(Under->Bells(), 1);
}

TEST_P(PickerContract, LettersSetTheHalfOfTheDay_AheadOfALiteralBehind)
{
    Load(u"t'p'hh", march15);
    EXPECT_EQ(Shown(), "Ap12");
    Type(u"p");
    EXPECT_EQ(Shown(), "Pp12");
    EXPECT_EQ(Picker().Fields().CurrentField(), 0);
    Type(u"A");
    EXPECT_EQ(Shown(), "Ap12");
}

TEST_P(PickerContract, WithAlt_NoKeyButDownDoesAnything)
{
    Load(u"dd/MM/yyyy");
    Key(KeyCode::Up, Modifier::Alt);
    Key(KeyCode::Right, Modifier::Alt);
    Key(55, u'7', Modifier::Alt);
    EXPECT_EQ(Picker().Value(), march15);
    EXPECT_EQ(Picker().Fields().CurrentField(), 0);
    EXPECT_EQ(Picker().Fields().Pending(), u"");
    EXPECT_EQ(Under->Bells(), 0);
}

// ---- Callback fields ------------------------------------------------------------------------------------------------

TEST_P(PickerContract, CallbackField_GetsEveryKey_ButThoseThatMeanElsewhere)
{
    Load(u"XX dd");
    for (const std::int16_t key : {KeyCode::Up, KeyCode::Down, KeyCode::Delete, KeyCode::PageUp})
        Key(key);
    EXPECT_EQ(Told(), (Names{"DTPicker1.KeyDown(38,0)", "DTPicker1.CallbackKeyDown(XX,38)", "DTPicker1.Format(XX)",
                             "DTPicker1.KeyUp(38,0)", "DTPicker1.KeyDown(40,0)", "DTPicker1.CallbackKeyDown(XX,40)",
                             "DTPicker1.Format(XX)", "DTPicker1.KeyUp(40,0)", "DTPicker1.KeyDown(46,0)",
                             "DTPicker1.CallbackKeyDown(XX,46)", "DTPicker1.Format(XX)", "DTPicker1.KeyUp(46,0)",
                             "DTPicker1.KeyDown(33,0)", "DTPicker1.CallbackKeyDown(XX,33)", "DTPicker1.Format(XX)",
                             "DTPicker1.KeyUp(33,0)"}));
    for (const std::int16_t key : {KeyCode::Left, KeyCode::Home, KeyCode::Enter, KeyCode::Escape, KeyCode::Tab})
        Key(key);
    Key(KeyCode::Up, Modifier::Alt);
    Key(KeyCode::Right);
    for (const std::string& event : Told())
        EXPECT_EQ(event.find("Callback"), std::string::npos) << event;
    EXPECT_EQ(Picker().Fields().CurrentField(), 1);
}

TEST_P(PickerContract, DateThatComesBackFromTheCallback_IsTaken)
{
    Load(u"XX dd");
    Recorder.Once("DTPicker1.CallbackKeyDown", [](EventArguments& arguments) {
        EXPECT_EQ(arguments.CallbackDate, march15);
        arguments.CallbackDate += 1;
    });
    Type(u"a");
    EXPECT_EQ(Told(), (Names{"DTPicker1.KeyDown(65,0)", "DTPicker1.CallbackKeyDown(XX,65)", "DTPicker1.Format(XX)",
                             "DTPicker1.Change", "DTPicker1.KeyPress(97)", "DTPicker1.KeyUp(65,0)"}));
    EXPECT_EQ(Picker().Value(), march15 + 1);
    EXPECT_EQ(Under->Bells(), 0);
}

// ---- The calendar ---------------------------------------------------------------------------------------------------

TEST_P(PickerContract, Pick_DropDown_Change_CloseUp_AndTheTimeOfDayStays)
{
    Load(u"dd/MM/yyyy", march15 + 0.25);
    User().Pick(march15 + 3, false);
    EXPECT_EQ(Told(), (Names{"DTPicker1.DropDown", "DTPicker1.Change", "DTPicker1.CloseUp"}));
    EXPECT_EQ(Picker().Value(), march15 + 3.25);
    User().Pick(march15 + 3, false);
    EXPECT_EQ(Told(), (Names{"DTPicker1.DropDown", "DTPicker1.CloseUp"}));
    User().Pick(march15 + 3.5, true);
    EXPECT_EQ(Picker().Value(), march15 + 3.5);
}

TEST_P(PickerContract, Pick_FirstGivesTheFocus_AsAPressDoes)
{
    Load(u"dd/MM/yyyy");
    Cells().SetFocus();
    Told();
    User().Pick(march15, false);
    EXPECT_EQ(Told(),
              (Names{"MSFlexGrid1.LostFocus", "DTPicker1.GotFocus", "DTPicker1.DropDown", "DTPicker1.CloseUp"}));
}

TEST_P(PickerContract, OpeningTheCalendar_TakesTheDigitsFirst)
{
    Load(u"dd/MM/yyyy");
    Type(u"1");
    Told();
    Act([&] { Picker().OpenCalendar(); });
    EXPECT_EQ(Told(), (Names{"DTPicker1.Change", "DTPicker1.DropDown"}));
}

TEST_P(PickerContract, PickerTakenDownOrWrittenUnderItsCalendar_ClosesItWithoutChoiceAndCloseUp)
{
    Load(u"dd/MM/yyyy");
    const std::vector<std::function<void()>> ways{[&] { Picker().Visible(false); }, [&] { Picker().Enabled(false); },
                                                  [&] { Picker().Value(march15); }};
    for (const auto& way : ways) {
        Enter(Picker());
        Recorder.Once("DTPicker1.DropDown", [&](EventArguments&) { way(); });
        User().Pick(march15 + 3, false);
        for (const std::string& event : Told())
            EXPECT_TRUE(event != "DTPicker1.CloseUp" && event != "DTPicker1.Change") << event;
        EXPECT_FALSE(Picker().IsCalendarOpen());
        EXPECT_EQ(Picker().Value(), march15);
    }
}

TEST_P(PickerContract, WrittenInChange_TheRestOfThePickIsNotDone)
{
    Load(u"dd/MM/yyyy");
    Recorder.Once("DTPicker1.Change", [&](EventArguments&) { Picker().Value(march15 + 9); });
    User().Pick(march15 + 3, false);
    EXPECT_EQ(Told(), (Names{"DTPicker1.DropDown", "DTPicker1.Change"}));
    EXPECT_EQ(Picker().Value(), march15 + 9);
}

TEST_P(PickerContract, OpenCalendar_HearsOfEachKeyFirst_AndGoesByIt)
{
    Load(u"XX dd/MM/yyyy");
    Act([&] { Picker().OpenCalendar(); });
    const auto day = [&](std::int16_t key) {
        Told();
        Key(key);
        EXPECT_EQ(Told().front(), "DTPicker1.KeyDown(" + std::to_string(key) + ",0)");
        return Picker().Value() - march15;
    };
    EXPECT_EQ(day(KeyCode::Right), 1);
    EXPECT_EQ(day(KeyCode::Left), 0);
    EXPECT_EQ(day(KeyCode::Down), 7);
    EXPECT_EQ(day(KeyCode::Up), 0);
    EXPECT_EQ(day(KeyCode::PageDown), 31);
    EXPECT_EQ(day(KeyCode::PageUp), 0);
    EXPECT_EQ(day(KeyCode::Home), -14);
    EXPECT_EQ(day(KeyCode::End), 16);
    Recorder.Once("DTPicker1.KeyDown", [](EventArguments& arguments) { arguments.KeyCode = 0; });
    EXPECT_EQ(day(KeyCode::Left), 16);
}

} // namespace Tessellon::Contract
