#include "engine/EnginePlatform.h"
#include "engine/controls/KeyCodes.h"
#include "headless/HeadlessHand.h"
#include "headless/HeadlessToolkit.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace Tessellon {

namespace {

/// A toolkit that has lists and calendars to open.
class OpeningToolkit : public HeadlessToolkit {
public:
    void Changed(ControlCore& /*control*/, Aspect aspect) override { Closed += aspect == Aspect::Calendar ? 1 : 0; }
    bool KeyInWidget(ControlCore& control, std::int16_t keyCode, std::int16_t shift) override
    {
        if (control.Which() == Child::DTPicker1) {
            ++Calendars;
            return true;
        }
        const bool opens = control.Which() == Child::Combo1 && (keyCode == KeyCode::F4 || (shift & Modifier::Alt) != 0);
        Lists += opens ? 1 : 0;
        return opens;
    }

    int Calendars = 0; ///< How often a key was to open the picker's calendar.
    int Closed = 0; ///< How often the open one was to be taken off the screen.
    int Lists = 0;
};

class OpeningKeys : public ::testing::Test {
protected:
    OpeningKeys()
        : Toolkit(std::make_shared<OpeningToolkit>())
        , Platform(std::make_shared<EnginePlatform>(Toolkit, Locale::English()))
        , User(Platform)
    {
    }

    template <class Control>
    void Enter(Control& control)
    {
        control.Visible(true);
        control.SetFocus();
    }
    int CalendarsBy(std::int16_t code, std::int16_t shift)
    {
        const int before = Toolkit->Calendars;
        User.Press({code, shift, false, 0});
        return Toolkit->Calendars - before;
    }

    std::shared_ptr<OpeningToolkit> Toolkit;
    std::shared_ptr<EnginePlatform> Platform;
    HeadlessHand User;
};

TEST_F(OpeningKeys, F4AndAltWithDown_OpenTheCalendar_AltWithAnyOtherKeyDoesNothing)
{
    Platform->DTPicker1()->CustomFormat(u"X dd/MM/yyyy");
    Enter(*Platform->DTPicker1());
    EXPECT_EQ(CalendarsBy(KeyCode::F4, 0), 1);
    EXPECT_EQ(CalendarsBy(KeyCode::Down, Modifier::Alt), 1);
    EXPECT_EQ(CalendarsBy(KeyCode::F4, Modifier::Alt), 0);
    EXPECT_EQ(CalendarsBy(KeyCode::Up, Modifier::Alt), 0);
    EXPECT_EQ(CalendarsBy(KeyCode::Down, 0), 0);
}

TEST_F(OpeningKeys, DisabledPicker_HasItsCalendarClosed)
{
    Enter(*Platform->DTPicker1());
    Platform->ThePicker()->OpenCalendar();
    Platform->DTPicker1()->Enabled(false);
    EXPECT_FALSE(Platform->ThePicker()->IsCalendarOpen());
    EXPECT_EQ(Toolkit->Closed, 1);
}

TEST_F(OpeningKeys, UserWhoTurnsToSomethingElse_ClosesTheCalendar)
{
    Enter(*Platform->DTPicker1());
    Platform->ThePicker()->OpenCalendar();
    User.WindowOut();
    EXPECT_FALSE(Platform->ThePicker()->IsCalendarOpen());
    User.WindowIn();
    Platform->ThePicker()->OpenCalendar();
    User.Press({KeyCode::Down, 0, false, 0});
    EXPECT_TRUE(Platform->ThePicker()->IsCalendarOpen());
    User.FocusOut();
    EXPECT_FALSE(Platform->ThePicker()->IsCalendarOpen());
    EXPECT_EQ(Toolkit->Closed, 2);
}

TEST_F(OpeningKeys, AltWithDownOrUp_OpenTheCombosList_AndChooseNothing)
{
    const std::shared_ptr<ComboBox> combo = Platform->Combo1().Item(0);
    combo->AddItem(u"a");
    combo->AddItem(u"b");
    Enter(*combo);
    User.Press({KeyCode::Down, Modifier::Alt, false, 0});
    User.Press({KeyCode::Up, Modifier::Alt, false, 0});
    User.Press({KeyCode::F4, 0, false, 0});
    EXPECT_EQ(Toolkit->Lists, 3);
    EXPECT_EQ(combo->Text(), u"");
    User.Press({KeyCode::Down, 0, false, 0});
    EXPECT_EQ(Toolkit->Lists, 3);
    EXPECT_EQ(combo->Text(), u"a");
}

} // namespace

} // namespace Tessellon
