#include "EditorForm.h"

#include "engine/runtime/Calendar.h"
#include "qt/DatePickerWidget.h"

#include <QDateTime>

#include <utility>

namespace Tessellon {

namespace {

class DatePicker : public EditorForm {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Frame().Platform()->Functions().Functions().Clock([] { return SerialOf({2024, 3, 15, 10, 30, 0}); });
        FillWith(fcDatePicker);
        Hear();
        const auto note = [this](const char* name) { return [this, name] { Heard += QString::fromLatin1(name); }; };
        QObject::connect(Sheet, &SheetWidget::DateBoxDropDown, note("DropDown"));
        QObject::connect(Sheet, &SheetWidget::DateBoxCloseUp, note("CloseUp"));
        QObject::connect(Sheet, &SheetWidget::DblClick, note("DblClick"));
    }

    [[nodiscard]] DatePickerWidget& Picker() const
    {
        return EditorIn<DatePickerWidget>(Frame(), Frame().Platform()->ThePicker().get());
    }
    [[nodiscard]] bool IsOpen() const { return Picker().OpenCalendar() != nullptr; }
    void Open() const
    {
        Key(Qt::Key_F4);
        ASSERT_TRUE(IsOpen());
    }
    void PressButton() const { QTest::mouseClick(&Picker(), Qt::LeftButton, {}, Picker().ButtonPlace().center()); }
    void PressField(std::int32_t field) const
    {
        QTest::mouseClick(&Picker(), Qt::LeftButton, {}, Picker().FieldPlace(field).center());
    }
    /// The place of a day of the month shown.
    [[nodiscard]] QPoint DayInCalendar(int day) const
    {
        const CalendarDropDown& calendar = *Picker().OpenCalendar();
        for (int place = 0; place < 42; ++place)
            if (const auto at = calendar.Page().DayAt(place); at->Month == calendar.Page().Month() && at->Day == day)
                return calendar.PlaceOfDay(place).center();
        return {};
    }
    void PressDay(int day) const { QTest::mouseClick(Picker().OpenCalendar(), Qt::LeftButton, {}, DayInCalendar(day)); }
};

} // namespace

TEST_F(DatePicker, EntryOfACell_PutsThePickerOverIt_WithTodayInIt)
{
    EXPECT_EQ(QApplication::focusWidget(), &Picker());
    const QRect cell = View().PixelsAround(Frame().Platform()->TheGrid().RectangleOf({1, 1}));
    EXPECT_EQ(Picker().geometry(), QRect(cell.topLeft(), QSize(cell.width(), 21)));
    EXPECT_EQ(Frame().Platform()->ThePicker()->ShownText(), u"15/03/2024");
}

TEST_F(DatePicker, Digits_GoFromFieldToField_AndReachTheCell)
{
    Type(QStringLiteral("24/12/2023"));
    EXPECT_EQ(Cell(), QStringLiteral("24/12/2023"));
    Key(Qt::Key_Return);
    EXPECT_EQ(Sheet->Col(), 2);
}

TEST_F(DatePicker, DigitsThatWait_AreShownInTheirField)
{
    const int before = Picker().FieldPlace(1).left();
    Type(QStringLiteral("2"));
    EXPECT_EQ(Cell(), QString());
    EXPECT_NE(Picker().grab().toImage(), QImage());
    EXPECT_GE(before, Picker().FieldPlace(0).right());
    Key(Qt::Key_Right);
    EXPECT_EQ(Cell(), QStringLiteral("02/03/2024"));
}

TEST_F(DatePicker, PressOnAField_MakesItCurrent)
{
    PressField(2);
    Type(QStringLiteral("1999"));
    EXPECT_EQ(Cell(), QStringLiteral("15/03/1999"));
    PressField(0);
    Key(Qt::Key_Up);
    EXPECT_EQ(Cell(), QStringLiteral("16/03/1999"));
}

TEST_F(DatePicker, SecondPressOfADoubleClick_IsTold)
{
    QTest::mouseDClick(&Picker(), Qt::LeftButton, {}, Picker().FieldPlace(1).center());
    EXPECT_EQ(Heard.count(QStringLiteral("DblClick")), 1);
    Key(Qt::Key_Up);
    EXPECT_EQ(Cell(), QStringLiteral("15/04/2024"));
}

TEST_F(DatePicker, F4AndAltWithDown_OpenTheCalendar_AndCloseItAgain)
{
    Open();
    EXPECT_EQ(QApplication::focusWidget(), &Picker());
    EXPECT_TRUE(Heard.contains(QStringLiteral("DropDown")));
    EXPECT_FALSE(Heard.contains(QStringLiteral("ExitFocus")));
    Key(Qt::Key_F4);
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(Heard.contains(QStringLiteral("CloseUp")));
    Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(IsOpen());
}

TEST_F(DatePicker, KeysInTheOpenCalendar_TakeEachDay)
{
    Open();
    const auto pressed = [&](Qt::Key key) {
        Key(key);
        EXPECT_TRUE(IsOpen());
        return Cell();
    };
    EXPECT_EQ(pressed(Qt::Key_Right), QStringLiteral("16/03/2024"));
    EXPECT_EQ(pressed(Qt::Key_Down), QStringLiteral("23/03/2024"));
    EXPECT_EQ(pressed(Qt::Key_PageDown), QStringLiteral("23/04/2024"));
    EXPECT_EQ(Picker().OpenCalendar()->Page().Month(), 4);
    EXPECT_EQ(pressed(Qt::Key_Home), QStringLiteral("01/04/2024"));
    EXPECT_EQ(pressed(Qt::Key_End), QStringLiteral("30/04/2024"));
    EXPECT_EQ(pressed(Qt::Key_PageUp), QStringLiteral("30/03/2024"));
    EXPECT_EQ(pressed(Qt::Key_Up), QStringLiteral("23/03/2024"));
    EXPECT_EQ(pressed(Qt::Key_Left), QStringLiteral("22/03/2024"));
    Type(QStringLiteral("7"));
    EXPECT_EQ(Cell(), QStringLiteral("22/03/2024")) << "digits are the fields'";
}

TEST_F(DatePicker, EnterInTheOpenCalendar_TakesTheDayAndGoesOn)
{
    Open();
    Key(Qt::Key_Right);
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(), QStringLiteral("16/03/2024"));
    EXPECT_EQ(Sheet->Col(), 2);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(QApplication::focusWidget(), &Box());
}

TEST_F(DatePicker, EscInTheOpenCalendar_PutsTheOldTextBack)
{
    Sheet->TextMatrix(2, 1, QStringLiteral("01/02/2023"));
    Click({2, 1});
    Open();
    EXPECT_EQ(Picker().OpenCalendar()->Page().Month(), 2);
    Key(Qt::Key_Right);
    EXPECT_EQ(Cell(2), QStringLiteral("02/02/2023"));
    Key(Qt::Key_Escape);
    EXPECT_EQ(Cell(2), QStringLiteral("01/02/2023"));
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(Picker().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &View());
}

TEST_F(DatePicker, Button_OpensTheCalendar_AndTheNextPressClosesIt)
{
    PressButton();
    EXPECT_TRUE(IsOpen());
    PressButton();
    EXPECT_FALSE(IsOpen());
    PressButton();
    EXPECT_TRUE(IsOpen());
    PressField(1);
    EXPECT_FALSE(IsOpen());
    Key(Qt::Key_Up);
    EXPECT_EQ(Cell(), QStringLiteral("15/04/2024"));
}

TEST_F(DatePicker, DayPressedInTheCalendar_IsWritten_AndClosesIt)
{
    PressButton();
    Heard.clear();
    PressDay(20);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Cell(), QStringLiteral("20/03/2024"));
    EXPECT_EQ(Heard, QStringList({"EditorChange", "EditorChange", "CloseUp"}));
    EXPECT_EQ(QApplication::focusWidget(), &Picker());
    Key(Qt::Key_Return);
    EXPECT_EQ(Sheet->Col(), 2);
}

TEST_F(DatePicker, PageTurnedByTheMouse_ChangesNoValue)
{
    PressButton();
    QTest::mouseClick(Picker().OpenCalendar(), Qt::LeftButton, {}, Picker().OpenCalendar()->PlaceOfTurn(-1).center());
    Turn(*Picker().OpenCalendar());
    Turn(*Picker().OpenCalendar());
    EXPECT_EQ(Cell(), QString());
    EXPECT_EQ(Picker().OpenCalendar()->Page().Month(), 4);
    PressDay(2);
    EXPECT_EQ(Cell(), QStringLiteral("02/04/2024"));
}

TEST_F(DatePicker, PressOnTheHostsWidget_ClosesTheCalendar_AndCounts)
{
    int pressed = 0;
    QObject::connect(Behind, &QPushButton::clicked, [&] { ++pressed; });
    Open();
    Heard.clear();
    ClickThroughWindow(*Behind);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(Heard, QStringList({"EditorChange", "CloseUp", "ExitFocus"}));
}

TEST_F(DatePicker, PressOnAnotherCell_ClosesTheCalendar_AndEntersIt)
{
    Open();
    Click({3, 2});
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Sheet->Row(), 3);
    EXPECT_EQ(QApplication::focusWidget(), &Box());
}

TEST_F(DatePicker, AnotherWindowInFront_ClosesTheCalendar)
{
    Open();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(IsOpen());
}

TEST_F(DatePicker, Tab_ClosesTheCalendar_AndLeavesTheSheet)
{
    Open();
    Key(Qt::Key_Tab);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(QApplication::focusWidget(), Behind);
}

TEST_F(DatePicker, WindowThatMoves_ClosesTheCalendar)
{
    Open();
    Window->move(Window->pos() + QPoint(30, 20));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !IsOpen(); }, 2000));
}

TEST_F(DatePicker, SheetThatTheHostHides_TakesItsCalendarAlong)
{
    Open();
    Sheet->hide();
    EXPECT_FALSE(IsOpen());
}

TEST_F(DatePicker, CalendarTakenDownByCode_IsHiddenAheadOfThePicker)
{
    Open();
    QObject::connect(Sheet, &SheetWidget::EditorChange, Sheet, [this] { Sheet->Row(2); });
    Key(Qt::Key_Right);
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_FALSE(IsOpen());
}

TEST_F(DatePicker, SheetMayGo_WithItsCalendarOpen)
{
    for (const auto signal :
         {&SheetWidget::DateBoxDropDown, &SheetWidget::DateBoxCloseUp, &SheetWidget::EditorChange}) {
        if (Sheet == nullptr) {
            Form::TearDown();
            SetUp();
        }
        QObject::connect(Sheet, signal, [this] { delete std::exchange(Sheet, nullptr); });
        QTest::mouseClick(&Picker(), Qt::LeftButton, {}, Picker().ButtonPlace().center());
        if (Sheet != nullptr)
            PressDay(20);
        EXPECT_EQ(Sheet, nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(DatePicker, SheetMayGo_InTheCloseUpOfAPressElsewhere)
{
    Open();
    QObject::connect(Sheet, &SheetWidget::DateBoxCloseUp, [this] { delete std::exchange(Sheet, nullptr); });
    ClickThroughWindow(*Behind);
    EXPECT_EQ(Sheet, nullptr);
}

TEST_F(DatePicker, CallbackField_AsksTheHost_AndHandsItTheKeys)
{
    QObject::connect(Sheet, &SheetWidget::Format,
                     [](QString& /*field*/, QString& text) { text = QStringLiteral("Q1"); });
    int heard = 0;
    QObject::connect(Sheet, &SheetWidget::DatePickerCallbackKeyDown,
                     [&](short KeyCode, short /*Shift*/, const QString& field, QDateTime& date) {
                         heard += KeyCode == Qt::Key_7 && field == QStringLiteral("XX") ? 1 : 0;
                         date = date.addMonths(3);
                     });
    Sheet->DateFormat(QStringLiteral("XX yyyy"));
    Click({2, 1});
    EXPECT_EQ(Frame().Platform()->ThePicker()->ShownText(), u"Q1 2024");
    EXPECT_GT(Picker().FieldPlace(0).width(), 4);
    Type(QStringLiteral("7"));
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(FieldsOf(Frame().Platform()->ThePicker()->Value()).Month, 6);
}

TEST_F(DatePicker, InputMethod_KeepsItsKeys_AndWhatItCommitsIsTyped)
{
    Compose(QStringLiteral("2"));
    Key(Qt::Key_Return);
    Key(Qt::Key_Up);
    EXPECT_EQ(Sheet->Col(), 1);
    EXPECT_EQ(Cell(), QString());
    Commit(QStringLiteral("24"));
    EXPECT_EQ(Cell(), QStringLiteral("24/03/2024"));
    Compose(QStringLiteral("11"));
    Click({2, 2});
    EXPECT_EQ(Cell(), QStringLiteral("11/03/2024"));
}

TEST_F(DatePicker, Wheel_ScrollsTheGrid_AndLeavesTheValue)
{
    Sheet->Add(3, 200);
    Click({1, 1});
    const int before = TopRow();
    Turn(Picker());
    EXPECT_EQ(TopRow(), before + 3);
    EXPECT_EQ(Cell(), QString());
}

TEST_F(DatePicker, NarrowColumn_KeepsTheCurrentFieldInView)
{
    Sheet->ColWidth(1, 750);
    Click({2, 1});
    Key(Qt::Key_End);
    EXPECT_LE(Picker().FieldPlace(2).right(), Picker().ButtonPlace().left());
    Key(Qt::Key_Home);
    EXPECT_GE(Picker().FieldPlace(0).left(), 0);
}

} // namespace Tessellon
