#include "ChoiceForm.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>

#include <cmath>

namespace Tessellon {

namespace {

class ListOnTheDesktop : public ChoiceForm {
protected:
    void SetUp() override
    {
        ChoiceForm::SetUp();
        WindowClick({1, 2});
    }

    /// In the list as it is scrolled.
    [[nodiscard]] QPoint Middle() const { return {10, ListBox().viewport()->height() / 2}; }
    void ClickOnEntry(int entry, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        ListBox().verticalScrollBar()->setValue(entry);
        WindowClick(*ListBox().viewport(), Middle(), modifiers);
    }
    [[nodiscard]] int Shown() const { return ListBox().EntryAt(Middle()); }
};

class ButtonOnTheDesktop : public ChoiceForm {
protected:
    void SetUp() override
    {
        ChoiceForm::SetUp();
        WindowClick({1, 3});
        QObject::connect(Sheet, &SheetWidget::ButtonClick, [this](short index) { Clicked.append(index); });
    }

    QList<int> Clicked;
};

/// A host's window that notes the keys that reach it.
struct KeysOfTheWindow : QObject {
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress)
            Heard.append(static_cast<QKeyEvent*>(event)->key());
        return false;
    }
    QList<int> Heard;
};

} // namespace

TEST_F(ListOnTheDesktop, HasTheFocusOverItsCell_InTheHeightOfItsDesign)
{
    EXPECT_EQ(FocusName(), u"List1(0)");
    EXPECT_EQ(QApplication::focusWidget(), &ListBox());
    EXPECT_EQ(ListBox().height(), 20);
}

TEST_F(ListOnTheDesktop, DownAndALetter_Choose_AndTheChosenEntryIsShown)
{
    WindowKey(Qt::Key_Down);
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("apple"));
    WindowKey(Qt::Key_Down);
    WindowKey(Qt::Key_Down);
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("plum"));
    EXPECT_EQ(Shown(), 2);
    QTest::keyClick(Window->windowHandle(), 'q');
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("quince"));
    EXPECT_EQ(Shown(), 3);
}

TEST_F(ListOnTheDesktop, EntryOfTheCell_IsShownWhenTheListComesUp)
{
    Sheet->TextMatrix(2, 2, QStringLiteral("quince"));
    WindowClick({2, 2});
    EXPECT_EQ(Shown(), 3);
}

TEST_F(ListOnTheDesktop, Click_ChoosesBehindTheRelease)
{
    Hear();
    ListBox().verticalScrollBar()->setValue(1);
    QTest::mousePress(ListBox().viewport(), Qt::LeftButton, {}, Middle());
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QString());
    QTest::mouseRelease(ListBox().viewport(), Qt::LeftButton, {}, Middle());
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("pear"));
    EXPECT_EQ(Heard, QStringList({"MouseDown", "MouseDown"}));
}

TEST_F(ListOnTheDesktop, Moves_AreToldAsPresses_FromTheCornerOfTheList)
{
    QList<float> across;
    QObject::connect(Sheet, &SheetWidget::MouseDown, [&](short&, short&, float& x) { across.append(x); });
    const QPointF at(10, 5);
    QMouseEvent move(QEvent::MouseMove, at, ListBox().viewport()->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(ListBox().viewport(), &move);
    const float twipsAPixel = Frame().TheMetrics().TwipsAPixel();
    EXPECT_EQ(across, QList<float>({(10 + static_cast<float>(ListBox().viewport()->x())) * twipsAPixel}));
}

TEST_F(ListOnTheDesktop, PressReleasedOutside_ChoosesNothing)
{
    QTest::mousePress(ListBox().viewport(), Qt::LeftButton, {}, Middle());
    QTest::mouseRelease(ListBox().viewport(), Qt::LeftButton, {}, QPoint(10, -30));
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QString());
}

TEST_F(ListOnTheDesktop, ShiftAndCtrl_SelectSeveral_AndTheFirstOfThemIsTheCells)
{
    const ListState& state = dynamic_cast<ListBoxControl&>(*Frame().Platform()->FocusedEditor()).State();
    ClickOnEntry(1);
    ClickOnEntry(3, Qt::ShiftModifier);
    EXPECT_TRUE(state.Selected(1) && state.Selected(2) && state.Selected(3));
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("pear"));
    ClickOnEntry(0, Qt::ControlModifier);
    EXPECT_TRUE(state.Selected(0));
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("apple"));
}

TEST_F(ListOnTheDesktop, ItsScrollBar_ShowsOtherEntries_AndChoosesNothing)
{
    QScrollBar& bar = *ListBox().verticalScrollBar();
    ASSERT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.maximum(), 3);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() / 2, bar.height() - 3));
    EXPECT_EQ(Shown(), 1);
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QString());
    EXPECT_EQ(FocusName(), u"List1(0)");
    EXPECT_EQ(QApplication::focusWidget(), &ListBox());
}

TEST_F(ListOnTheDesktop, Wheel_ScrollsTheGrid_AlsoOverTheScrollBar)
{
    Turn(*ListBox().viewport(), -120);
    EXPECT_EQ(Frame().Platform()->TheGrid().TopRow(), 4);
    WindowClick({5, 2});
    Turn(*ListBox().verticalScrollBar(), -120);
    EXPECT_EQ(Frame().Platform()->TheGrid().TopRow(), 7);
    EXPECT_EQ(Sheet->TextMatrix(5, 2), QString());
}

TEST_F(ButtonOnTheDesktop, Click_PressesIt_WhenReleasedInside)
{
    ASSERT_EQ(FocusName(), u"Command1(0)");
    QTest::mousePress(&Button(), Qt::LeftButton, {}, Button().rect().center());
    EXPECT_TRUE(Button().isDown());
    EXPECT_TRUE(Clicked.isEmpty());
    QTest::mouseRelease(&Button(), Qt::LeftButton, {}, Button().rect().center());
    EXPECT_FALSE(Button().isDown());
    EXPECT_EQ(Clicked, QList<int>({0}));
    QTest::mousePress(&Button(), Qt::LeftButton, {}, Button().rect().center());
    QTest::mouseRelease(&Button(), Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_FALSE(Button().isDown());
    EXPECT_EQ(Clicked.size(), 1);
}

TEST_F(ButtonOnTheDesktop, SpaceAndEnter_PressIt_AndOtherKeysDoNot)
{
    WindowKey(Qt::Key_Space);
    EXPECT_EQ(Clicked.size(), 1);
    WindowKey(Qt::Key_Return);
    EXPECT_EQ(Clicked.size(), 2);
    WindowKey(Qt::Key_Down);
    WindowKey(Qt::Key_A);
    EXPECT_EQ(Clicked.size(), 2);
    EXPECT_TRUE(Button().isVisible());
    WindowKey(Qt::Key_Escape);
    EXPECT_FALSE(Button().isVisible());
}

TEST_F(ButtonOnTheDesktop, AmpersandOfItsCaption_IsNoShortcut)
{
    EXPECT_TRUE(Button().shortcut().isEmpty());
    WindowClick({2, 4});
    WindowKey(Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(Clicked.isEmpty());
}

TEST_F(ButtonOnTheDesktop, MouseThatOnlyMovesOverIt_IsTold_WithoutAButton)
{
    QList<int> buttons;
    QObject::connect(Sheet, &SheetWidget::MouseMove, [&](short& Button) { buttons.append(Button); });
    const QPointF at(10, 5);
    QMouseEvent move(QEvent::MouseMove, at, Button().mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Button(), &move);
    EXPECT_EQ(buttons, QList<int>({0}));
    EXPECT_FALSE(Button().isDown());
}

TEST_F(ButtonOnTheDesktop, Wheel_ScrollsTheGrid)
{
    Turn(Button(), -120);
    EXPECT_EQ(Frame().Platform()->TheGrid().TopRow(), 4);
}

TEST_F(ChoiceForm, ToolTipOfTheSheet_IsShownOverAnyEditor)
{
    Sheet->setToolTip(QStringLiteral("Orders"));
    for (int col = 1; col <= 4; ++col) {
        WindowClick({2, col});
        QWidget& editor = *QApplication::focusWidget();
        auto* const area = qobject_cast<QAbstractScrollArea*>(&editor);
        QWidget& pointed = area != nullptr ? *area->viewport() : editor;
        QHelpEvent event(QEvent::ToolTip, QPoint(3, 3), pointed.mapToGlobal(QPoint(3, 3)));
        QCoreApplication::sendEvent(&pointed, &event);
        EXPECT_EQ(QToolTip::text(), QStringLiteral("Orders")) << col;
        QToolTip::hideText();
        ASSERT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 2000));
    }
}

TEST_F(ChoiceForm, SheetDisabledAndEnabledAgain_HasTheFocusThatItWasNotLeftBy)
{
    QObject::connect(Sheet, &SheetWidget::ExitFocus, [](bool& Cancel) { Cancel = true; });
    ASSERT_EQ(QApplication::focusWidget(), &Combo());
    Sheet->setEnabled(false);
    EXPECT_EQ(FocusName(), u"Combo1(0)");
    Sheet->setEnabled(true);
    EXPECT_EQ(FocusName(), u"Combo1(0)");
    EXPECT_EQ(QApplication::focusWidget(), &Combo());
}

TEST_F(ChoiceForm, Editors_CanBeRead_OnALightAndADarkDesktop_AlsoDisabled)
{
    const auto brightness = [](const QColor& color) {
        return 0.2126 * color.redF() + 0.7152 * color.greenF() + 0.0722 * color.blueF();
    };
    const QPalette light = Window->palette();
    for (const QPalette& desktop : {light, QPalette(QColor(60, 60, 63), QColor(45, 45, 48))}) {
        Window->setPalette(desktop);
        for (int col = 1; col <= 4; ++col) {
            WindowClick({2, col});
            const QWidget& editor = *QApplication::focusWidget();
            const bool isButton = &editor == static_cast<const QWidget*>(View().findChild<QPushButton*>());
            const QPalette::ColorRole text = isButton ? QPalette::ButtonText : QPalette::Text;
            const QPalette::ColorRole background = isButton ? QPalette::Button : QPalette::Base;
            for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Disabled})
                EXPECT_GT(std::abs(brightness(editor.palette().color(group, text)) -
                                   brightness(editor.palette().color(group, background))),
                          0.3)
                    << col;
        }
    }
}

TEST_F(ChoiceForm, KeysThatADisabledGridDoesNotHear_AreTheWindows)
{
    WindowKey(Qt::Key_Escape);
    ASSERT_EQ(FocusName(), u"MSFlexGrid1");
    KeysOfTheWindow keys;
    Window->installEventFilter(&keys);
    WindowKey(Qt::Key_Down);
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_TRUE(keys.Heard.isEmpty());
    WindowKey(Qt::Key_Escape);
    keys.Heard.clear();
    ASSERT_EQ(FocusName(), u"MSFlexGrid1");
    Frame().Platform()->TheGrid().Enabled(false);
    ASSERT_EQ(FocusName(), u"MSFlexGrid1");
    WindowKey(Qt::Key_Down);
    WindowKey(Qt::Key_F2);
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_EQ(keys.Heard, QList<int>({Qt::Key_Down, Qt::Key_F2}));
}

} // namespace Tessellon
