#include "qt/CalendarDropDown.h"
#include "qt/CalendarPage.h"

#include "engine/runtime/Locale.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace Tessellon {

namespace {

constexpr int sunday = 1;
constexpr int monday = 2;
const CivilTime march15{2024, 3, 15, 0, 0, 0};

int PlaceOf(const CalendarPage& page, const CivilTime& day)
{
    for (int place = 0; place < CalendarPage::Weeks * CalendarPage::DaysAWeek; ++place)
        if (page.DayAt(place) == day)
            return place;
    return -1;
}

/// A calendar on a widget in the middle of the screen.
class Calendar : public testing::Test {
protected:
    Calendar()
    {
        Functions.Clock([] { return SerialOf(march15) + 0.4; });
        Owner.setGeometry(Owner.screen()->availableGeometry().center().x(), 200, 120, 21);
        Owner.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&Owner));
        Opened = std::make_unique<CalendarDropDown>(Owner, Functions);
        Opened->OnChosen = [this](double day) { Chosen.push_back(FieldsOf(day)); };
        Opened->OnLeft = [this] { ++Left; };
        Opened->OpenOn(SerialOf(march15) + 0.5);
        QCoreApplication::processEvents();
    }
    ~Calendar() override { Opened.reset(); }

    void Press(QPoint position) const { QTest::mouseClick(Opened.get(), Qt::LeftButton, {}, position); }
    void PressDay(const CivilTime& day) const { Press(Opened->PlaceOfDay(PlaceOf(Opened->Page(), day)).center()); }
    void Turn(int eighths) const
    {
        const QPointF at = Opened->rect().center();
        QWheelEvent wheel(at, Opened->mapToGlobal(at), {}, QPoint(0, eighths), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Opened.get(), &wheel);
    }
    [[nodiscard]] QColor ColorAt(const CivilTime& day) const
    {
        const QRect place = Opened->PlaceOfDay(PlaceOf(Opened->Page(), day));
        return Opened->grab().toImage().pixelColor(place.left() + 4, place.top() + 3);
    }

    RunTimeFunctions Functions{Locale::German()};
    QWidget Owner;
    std::unique_ptr<CalendarDropDown> Opened;
    std::vector<CivilTime> Chosen;
    int Left = 0;
};

} // namespace

TEST(CalendarPages, WeekBeginsWithTheLocalesFirstDay)
{
    const CalendarPage german(march15, monday);
    EXPECT_EQ(german.WeekdayOf(0), monday);
    EXPECT_EQ(german.WeekdayOf(6), sunday);
    EXPECT_EQ(german.DayAt(0), (CivilTime{2024, 2, 26, 0, 0, 0}));
    EXPECT_EQ(PlaceOf(german, march15), 18);
    const CalendarPage american(march15, sunday);
    EXPECT_EQ(american.WeekdayOf(0), sunday);
    EXPECT_EQ(american.DayAt(0), (CivilTime{2024, 2, 25, 0, 0, 0}));
    EXPECT_EQ(PlaceOf(american, march15), 19);
    EXPECT_EQ(american.DayAt(41), (CivilTime{2024, 4, 6, 0, 0, 0}));
}

TEST(CalendarPages, MonthThatBeginsWithTheWeek_BeginsThePage)
{
    EXPECT_EQ(CalendarPage({2024, 4, 9, 0, 0, 0}, monday).DayAt(0), (CivilTime{2024, 4, 1, 0, 0, 0}));
}

TEST(CalendarPages, DaysOutsideTheYears_AreNotThere)
{
    const CalendarPage first({100, 1, 20, 0, 0, 0}, monday);
    EXPECT_EQ(PlaceOf(first, {100, 1, 1, 0, 0, 0}), 4) << "a Friday";
    EXPECT_FALSE(first.DayAt(3));
    const CalendarPage last({9999, 12, 1, 0, 0, 0}, monday);
    EXPECT_EQ(PlaceOf(last, {9999, 12, 31, 0, 0, 0}), 32) << "a Friday";
    EXPECT_FALSE(last.DayAt(33));
}

TEST(CalendarPages, Turning_GoesOverTheYears_AndEndsWithThem)
{
    EXPECT_EQ(CalendarPage(march15, monday).Turned(-3), (CivilTime{2023, 12, 1, 0, 0, 0}));
    EXPECT_EQ(CalendarPage(march15, monday).Turned(12), (CivilTime{2025, 3, 1, 0, 0, 0}));
    EXPECT_EQ(CalendarPage({100, 2, 1, 0, 0, 0}, monday).Turned(-12), (CivilTime{100, 1, 1, 0, 0, 0}));
    EXPECT_EQ(CalendarPage({9999, 12, 1, 0, 0, 0}, monday).Turned(1), (CivilTime{9999, 12, 1, 0, 0, 0}));
}

TEST_F(Calendar, OpensBelowItsOwner_OnTheMonthOfTheValue_WithoutTheFocus)
{
    EXPECT_TRUE(Opened->isVisible());
    EXPECT_EQ(Opened->geometry().top(), Owner.mapToGlobal(QPoint(0, 0)).y() + Owner.height());
    EXPECT_EQ(Opened->geometry().left(), Owner.mapToGlobal(QPoint(0, 0)).x());
    EXPECT_EQ(Opened->Page().Year(), 2024);
    EXPECT_EQ(Opened->Page().Month(), 3);
    EXPECT_EQ(Opened->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Calendar, OpensAbove_WhereThereIsNoRoomBelow_AndStaysOnTheScreen)
{
    const QRect screen = Owner.screen()->availableGeometry();
    Owner.move(screen.right() - 150, screen.bottom() - 60);
    QTest::qWait(50);
    Opened->OpenOn(SerialOf(march15));
    EXPECT_EQ(Opened->geometry().bottom() + 1, Owner.mapToGlobal(QPoint(0, 0)).y());
    EXPECT_LE(Opened->geometry().right(), screen.right());
}

TEST_F(Calendar, ReleaseOnADay_ChoosesIt_AlsoOfTheMonthBeside)
{
    PressDay({2024, 3, 20, 0, 0, 0});
    PressDay({2024, 4, 1, 0, 0, 0});
    EXPECT_EQ(Chosen, (std::vector<CivilTime>{{2024, 3, 20, 0, 0, 0}, {2024, 4, 1, 0, 0, 0}}));
    EXPECT_EQ(Left, 0);
}

TEST_F(Calendar, PressThatEndsOutside_ChoosesNothing)
{
    QTest::mousePress(Opened.get(), Qt::LeftButton, {}, Opened->PlaceOfDay(10).center());
    QTest::mouseRelease(Opened.get(), Qt::LeftButton, {}, QPoint(-5, -5));
    QTest::mouseClick(Opened.get(), Qt::RightButton, {}, Opened->PlaceOfDay(10).center());
    EXPECT_TRUE(Chosen.empty());
}

TEST_F(Calendar, ArrowsAndWheel_TurnThePage_AndChooseNothing)
{
    Press(Opened->PlaceOfTurn(1).center());
    EXPECT_EQ(Opened->Page().Month(), 4);
    Press(Opened->PlaceOfTurn(12).center());
    EXPECT_EQ(Opened->Page().Year(), 2025);
    Press(Opened->PlaceOfTurn(-1).center());
    QTest::mouseDClick(Opened.get(), Qt::LeftButton, {}, Opened->PlaceOfTurn(-1).center());
    EXPECT_EQ(Opened->Page().Month(), 2) << "quick presses count singly";
    Press(Opened->PlaceOfTurn(-12).center());
    EXPECT_EQ(Opened->Page().Year(), 2024);
    Turn(-60);
    Turn(-60);
    EXPECT_EQ(Opened->Page().Month(), 3);
    Turn(240);
    EXPECT_EQ(Opened->Page().Month(), 1);
    EXPECT_TRUE(Chosen.empty());
    PressDay({2024, 1, 10, 0, 0, 0});
    EXPECT_EQ(Chosen.size(), 1U);
}

TEST_F(Calendar, AnotherValue_TurnsToItsMonth_TheSameLeavesThePage)
{
    Press(Opened->PlaceOfTurn(1).center());
    Opened->ShowValue(SerialOf(march15) + 0.5);
    EXPECT_EQ(Opened->Page().Month(), 4);
    Opened->ShowValue(SerialOf({2023, 11, 2, 0, 0, 0}));
    EXPECT_EQ(Opened->Page().Month(), 11);
    EXPECT_EQ(Opened->Page().Year(), 2023);
}

TEST_F(Calendar, ValueIsHighlighted_AndTodayFramed)
{
    const QPalette palette = Opened->palette();
    EXPECT_EQ(ColorAt(march15), palette.color(QPalette::Highlight));
    Opened->ShowValue(SerialOf({2024, 3, 4, 0, 0, 0}));
    EXPECT_EQ(ColorAt({2024, 3, 4, 0, 0, 0}), palette.color(QPalette::Highlight));
    EXPECT_EQ(ColorAt({2024, 3, 5, 0, 0, 0}), palette.color(QPalette::Base));
    EXPECT_EQ(ColorAt(march15), palette.color(QPalette::Base));
    const QRect today = Opened->PlaceOfDay(PlaceOf(Opened->Page(), march15));
    EXPECT_EQ(Opened->grab().toImage().pixelColor(today.left() + 4, today.top() + 1),
              palette.color(QPalette::Highlight));
}

TEST_F(Calendar, DarkPalette_GivesADarkCalendar)
{
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    Owner.setPalette(dark);
    Opened->OpenOn(SerialOf(march15));
    EXPECT_EQ(ColorAt({2024, 3, 5, 0, 0, 0}), QColor(30, 30, 30));
}

TEST_F(Calendar, FirstAndLastDayThereIs_AreShown_AndNoneBeyond)
{
    Opened->OpenOn(SerialOf({9999, 12, 31, 0, 0, 0}));
    Press(Opened->PlaceOfTurn(12).center());
    Press(Opened->PlaceOfDay(40).center());
    EXPECT_TRUE(Chosen.empty());
    Opened->OpenOn(SerialOf({100, 1, 1, 0, 0, 0}));
    Press(Opened->PlaceOfTurn(-1).center());
    Press(Opened->PlaceOfDay(0).center());
    EXPECT_TRUE(Chosen.empty());
    EXPECT_EQ(Opened->Page().Year(), 100);
    PressDay({100, 1, 1, 0, 0, 0});
    EXPECT_EQ(Chosen.size(), 1U);
}

TEST_F(Calendar, PressElsewhereAndHiding_LeaveIt_APressInItDoesNot)
{
    Press(QPoint(1, 1));
    EXPECT_EQ(Left, 0);
    QTest::mousePress(&Owner, Qt::LeftButton);
    EXPECT_EQ(Left, 1);
    EXPECT_TRUE(Opened->WasLeftByOwnersPress());
    EXPECT_FALSE(Opened->WasLeftByOwnersPress());
    QWidget other;
    QTest::mousePress(&other, Qt::LeftButton);
    EXPECT_EQ(Left, 2);
    EXPECT_FALSE(Opened->WasLeftByOwnersPress());
    Opened->Close();
    QTest::mousePress(&other, Qt::LeftButton);
    EXPECT_EQ(Left, 2);
    EXPECT_FALSE(Opened->isVisible());
}

} // namespace Tessellon
