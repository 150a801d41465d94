#include "Form.h"

#include <QContextMenuEvent>
#include <QVBoxLayout>

namespace Tessellon {

namespace {

class FocusOnTheDesktop : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill();
        Hear();
    }
};

} // namespace

TEST_F(FocusOnTheDesktop, SheetIsOneTabStop)
{
    Before->setFocus();
    ASSERT_EQ(FocusName(), u"");
    Key(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), u"MSFlexGrid1");
    EXPECT_EQ(QApplication::focusWidget(), &View());
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Behind);
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &View());
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), Before);
    EXPECT_EQ(FocusName(), u"");
}

TEST_F(FocusOnTheDesktop, TabInAnEditor_LeavesTheSheet_AndTakesTheEditorDown)
{
    Type(QStringLiteral("a"));
    Heard.clear();
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Behind);
    EXPECT_EQ(Heard, QStringList({"KeyDown", "KeyPress", "EditorValidate", "ExitFocus"}));
    EXPECT_FALSE(Box().isVisible());
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("a"));
}

TEST_F(FocusOnTheDesktop, TabThatAHandlerAte_StaysInTheSheet)
{
    QObject::connect(Sheet, &SheetWidget::KeyDown, [](short& KeyCode, short&) { KeyCode = 0; });
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    EXPECT_FALSE(Heard.contains(QStringLiteral("ExitFocus")));
}

TEST_F(FocusOnTheDesktop, TabWithNowhereElseToGo_DoesNothing)
{
    Before->setFocusPolicy(Qt::NoFocus);
    Behind->setFocusPolicy(Qt::NoFocus);
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    EXPECT_FALSE(Heard.contains(QStringLiteral("ExitFocus")));
}

TEST_F(FocusOnTheDesktop, CancelledExitFocus_KeepsTheFocusFromAPressAndFromTab)
{
    QObject::connect(Sheet, &SheetWidget::ExitFocus, [](bool& Cancel) { Cancel = true; });
    ClickThroughWindow(*Before);
    EXPECT_EQ(FocusName(), u"Text1");
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Box());
}

TEST_F(FocusOnTheDesktop, CancelledValidate_LosesThePressOnTheHostsButton)
{
    int pressed = 0;
    QObject::connect(Behind, &QPushButton::clicked, [&] { ++pressed; });
    QObject::connect(Sheet, &SheetWidget::EditorValidate, [](bool& Cancel) { Cancel = true; });
    ClickThroughWindow(*Behind);
    EXPECT_EQ(pressed, 0);
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    EXPECT_FALSE(Heard.contains(QStringLiteral("ExitFocus")));
}

TEST_F(FocusOnTheDesktop, CodeThatTakesTheFocusAway_IsToldAsALeaving_AndCanBeRefused)
{
    Before->setFocus();
    EXPECT_EQ(Heard, QStringList({"EditorValidate", "ExitFocus"}));
    EXPECT_EQ(FocusName(), u"");
    Sheet->Add(1);
    ASSERT_EQ(QApplication::focusWidget(), &Box());
    QObject::connect(Sheet, &SheetWidget::ExitFocus, [](bool& Cancel) { Cancel = true; });
    Before->setFocus();
    EXPECT_EQ(QApplication::focusWidget(), &Box());
}

TEST_F(FocusOnTheDesktop, ButtonForANewRow_LetsTheUserTypeAtOnce)
{
    QObject::connect(Behind, &QPushButton::clicked, [this] { Sheet->Add(3); });
    ClickThroughWindow(*Behind);
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    EXPECT_EQ(Sheet->Row(), 4);
    Type(QStringLiteral("new"));
    EXPECT_EQ(Sheet->TextMatrix(4, 1), QStringLiteral("new"));
}

TEST_F(FocusOnTheDesktop, SheetThatGrabsNoFocus_LeavesTheUserWhereHeTypes)
{
    Before->setFocus();
    Sheet->setGrabsFocus(false);
    Sheet->Row(2);
    Type(QStringLiteral("search"));
    EXPECT_EQ(QApplication::focusWidget(), Before);
    EXPECT_EQ(Before->text(), QStringLiteral("search"));
}

TEST_F(FocusOnTheDesktop, AnotherWindow_TakesTheFocusWithoutValidate_AndGivesItBack)
{
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_EQ(FocusName(), u"");
    EXPECT_EQ(Heard, QStringList());
    other.hide();
    Window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
    EXPECT_NE(FocusName(), u"");
    EXPECT_EQ(QApplication::focusWidget(), FocusName() == u"Text1" ? static_cast<QWidget*>(&Box()) : &View());
}

TEST_F(FocusOnTheDesktop, ContextMenuOfTheBox_IsNoLossOfFocus)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), Box().mapToGlobal(QPoint(3, 3)));
    QCoreApplication::sendEvent(&Box(), &event);
    QCoreApplication::processEvents();
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(FocusName(), u"Text1");
    EXPECT_TRUE(Box().isVisible());
    menu->close();
    QCoreApplication::processEvents();
    EXPECT_EQ(FocusName(), u"Text1");
    EXPECT_EQ(Heard, QStringList());
}

TEST_F(FocusOnTheDesktop, EditorThatCodeHides_GivesTheFocusToTheGrid_NotToTheNextInTheChain)
{
    Sheet->ColWidth(1, 0);
    Sheet->Row(2);
    EXPECT_TRUE(Frame().isAncestorOf(QApplication::focusWidget()));
    EXPECT_FALSE(Behind->hasFocus());
}

TEST_F(FocusOnTheDesktop, PressInASecondSheet_LeavesTheFirst)
{
    auto* const second = new SheetWidget(Window.get());
    static_cast<QVBoxLayout*>(Window->layout())->insertWidget(2, second, 1);
    QCoreApplication::processEvents();
    Fill(*second);
    ASSERT_EQ(FrameOf(*second).Platform()->FocusName(), u"Text1");
    EXPECT_EQ(FocusName(), u"");
    EXPECT_EQ(Heard, QStringList({"EditorValidate", "ExitFocus"}));

    Click({2, 1});
    EXPECT_EQ(FrameOf(*second).Platform()->FocusName(), u"");
    EXPECT_EQ(FocusName(), u"Text1");
    Type(QStringLiteral("one"));
    EXPECT_EQ(Sheet->TextMatrix(2, 1), QStringLiteral("one"));
    EXPECT_EQ(second->TextMatrix(2, 1), QString());

    QObject::connect(Sheet, &SheetWidget::EditorValidate, [](bool& Cancel) { Cancel = true; });
    QTest::mouseClick(&FrameOf(*second).View(), Qt::LeftButton, {}, MiddleOf({1, 1}));
    EXPECT_EQ(FocusName(), u"Text1");
    EXPECT_EQ(QApplication::focusWidget(), &Box());
}

TEST_F(FocusOnTheDesktop, PressOnTheGrid_WhileTheHostHasTheFocus_BringsItIn)
{
    Before->setFocus();
    Click({2, 2});
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_EQ(Sheet->Col(), 2);
}

} // namespace Tessellon
