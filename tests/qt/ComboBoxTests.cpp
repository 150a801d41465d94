#include "ChoiceForm.h"
#include "HostDialog.h"
#include "PaintedArea.h"

#include <QAction>
#include <QInputMethodEvent>
#include <QScreen>
#include <QScrollBar>

#include <utility>

namespace Tessellon {

namespace {

class ComboOnTheDesktop : public ChoiceForm {};

} // namespace

TEST_F(ComboOnTheDesktop, StandsOverItsCell_WithTheButtonAtItsEnd)
{
    const QRect cell = PlaceOf({1, 1});
    EXPECT_EQ(FocusName(), u"Combo1(0)");
    EXPECT_EQ(QApplication::focusWidget(), &Combo());
    EXPECT_EQ(Combo().geometry().topLeft(), cell.topLeft());
    EXPECT_EQ(Combo().width(), cell.width());
    EXPECT_EQ(Combo().Button().right(), Combo().rect().right());
    EXPECT_GE(Combo().Button().width(), 10);
}

TEST_F(ComboOnTheDesktop, F4_AltDown_AltUp_OpenTheList_AndChooseNothing)
{
    const std::pair<Qt::Key, Qt::KeyboardModifier> keys[] = {
        {Qt::Key_F4, Qt::NoModifier}, {Qt::Key_Down, Qt::AltModifier}, {Qt::Key_Up, Qt::AltModifier}};
    for (const auto& [key, modifier] : keys) {
        WindowKey(key, modifier);
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(Combo().text(), QString());
        EXPECT_EQ(FocusName(), u"Combo1(0)");
        Combo().List().hide();
    }
}

TEST_F(ComboOnTheDesktop, OpenList_DownAndUpChooseAtOnce_AndLeaveItOpen)
{
    WindowKey(Qt::Key_F4);
    WindowKey(Qt::Key_Down);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("red"));
    WindowKey(Qt::Key_Down);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("green"));
    WindowKey(Qt::Key_Up);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("red"));
    EXPECT_TRUE(IsOpen());
}

TEST_F(ComboOnTheDesktop, OpenList_EnterClosesIt_AndGoesToTheNextCell)
{
    WindowKey(Qt::Key_F4);
    ComboList& list = Combo().List();
    WindowKey(Qt::Key_Down);
    WindowKey(Qt::Key_Return);
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("red"));
    EXPECT_EQ(FocusName(), u"List1(0)");
}

TEST_F(ComboOnTheDesktop, OpenList_EscClosesIt_AndPutsTheOldTextBack)
{
    Sheet->TextMatrix(2, 1, QStringLiteral("blue"));
    WindowClick({2, 1});
    WindowKey(Qt::Key_F4);
    WindowKey(Qt::Key_Up);
    ASSERT_EQ(Sheet->TextMatrix(2, 1), QStringLiteral("green"));
    WindowKey(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Sheet->TextMatrix(2, 1), QStringLiteral("blue"));
    EXPECT_EQ(FocusName(), u"MSFlexGrid1");
}

TEST_F(ComboOnTheDesktop, OpenList_WhatIsTyped_GoesIntoTheField)
{
    WindowKey(Qt::Key_F4);
    QTest::keyClick(Window->windowHandle(), 'x');
    QTest::keyClick(Window->windowHandle(), 'y');
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Combo().text(), QStringLiteral("xy"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("xy"));
}

TEST_F(ComboOnTheDesktop, ItsButton_OpensTheList_AndClosesIt)
{
    PressButtonOfCombo();
    EXPECT_TRUE(IsOpen());
    PressButtonOfCombo();
    EXPECT_FALSE(IsOpen());
    PressButtonOfCombo();
    EXPECT_TRUE(IsOpen());
}

TEST_F(ComboOnTheDesktop, PressOnAnEntry_ChoosesIt_AndTheUserStaysInTheField)
{
    PressButtonOfCombo();
    ClickInList(2);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("blue"));
    EXPECT_EQ(Combo().text(), QStringLiteral("blue"));
    EXPECT_EQ(FocusName(), u"Combo1(0)");
    EXPECT_EQ(QApplication::focusWidget(), &Combo());
}

TEST_F(ComboOnTheDesktop, PressHeldFromTheButtonToAnEntry_ChoosesItWhereItIsLetGo)
{
    QTest::mousePress(&Combo(), Qt::LeftButton, {}, Combo().Button().center());
    ASSERT_TRUE(IsOpen());
    const QPoint global = Combo().List().viewport()->mapToGlobal(QPoint(8, Combo().List().EntryHeight() + 3));
    const QPoint entry = Combo().mapFromGlobal(global);
    QMouseEvent move(QEvent::MouseMove, entry, global, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Combo(), &move);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QString());
    QTest::mouseRelease(&Combo(), Qt::LeftButton, {}, entry);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("green"));
}

TEST_F(ComboOnTheDesktop, PressOnACell_WithTheListOpen_ClosesItAndEntersTheCell)
{
    WindowKey(Qt::Key_F4);
    ComboList& list = Combo().List();
    WindowClick({5, 4});
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(Sheet->Row(), 5);
    EXPECT_EQ(FocusName(), u"Text1");
    EXPECT_EQ(QApplication::focusWidget(), &Box());
}

TEST_F(ComboOnTheDesktop, PressOnTheHostsButton_WithTheListOpen_ClosesItAndCounts)
{
    int pressed = 0;
    QObject::connect(Behind, &QPushButton::clicked, [&] { ++pressed; });
    WindowKey(Qt::Key_F4);
    ComboList& list = Combo().List();
    WindowClick(*Behind, Behind->rect().center());
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(FocusName(), u"");
}

TEST_F(ComboOnTheDesktop, TabWithTheListOpen_LeavesTheSheet)
{
    WindowKey(Qt::Key_F4);
    ComboList& list = Combo().List();
    WindowKey(Qt::Key_Tab);
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(FocusName(), u"");
    EXPECT_EQ(QApplication::focusWidget(), Behind);
}

TEST_F(ComboOnTheDesktop, CodeThatMovesTheCursor_TakesTheListDownWithTheCombo)
{
    WindowKey(Qt::Key_F4);
    ComboList& list = Combo().List();
    Sheet->Col(4);
    EXPECT_FALSE(list.isVisible());
    EXPECT_EQ(FocusName(), u"Text1");
}

TEST_F(ComboOnTheDesktop, OpenList_LiesBelow_OrAboveWhereThereIsNoRoom)
{
    WindowKey(Qt::Key_F4);
    EXPECT_EQ(Combo().List().geometry().top(), Combo().mapToGlobal(QPoint(0, Combo().height())).y());
    EXPECT_GE(Combo().List().width(), Combo().width());
    Combo().List().hide();
    const int bottom = Window->screen()->availableGeometry().bottom();
    Window->move(Window->x(), bottom - View().mapTo(Window.get(), Combo().geometry().bottomLeft()).y() - 10);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Combo().mapToGlobal(QPoint(0, 0)).y() > bottom - 60; }, 2000));
    WindowKey(Qt::Key_F4);
    EXPECT_EQ(Combo().List().geometry().bottom() + 1, Combo().mapToGlobal(QPoint(0, 0)).y());
    EXPECT_TRUE(Window->screen()->geometry().contains(Combo().List().geometry()));
}

TEST_F(ComboOnTheDesktop, AnotherWindowInFront_ClosesTheList)
{
    WindowKey(Qt::Key_F4);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(FocusName(), u"");
}

TEST_F(ComboOnTheDesktop, WindowThatMoves_ClosesTheList)
{
    WindowKey(Qt::Key_F4);
    ASSERT_TRUE(IsOpen());
    Window->move(Window->pos() + QPoint(40, 30));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !IsOpen(); }, 2000));
    EXPECT_EQ(FocusName(), u"Combo1(0)");
}

TEST_F(ComboOnTheDesktop, WithoutEntries_OpensNothing)
{
    Sheet->CreateColumnDataType(1, QStringLiteral("Colour"), fcComboBox, {}, false, fcLeft, 0, faNil, false);
    Sheet->BuildGridColumns();
    WindowClick({1, 1});
    WindowKey(Qt::Key_F4);
    EXPECT_FALSE(IsOpen());
}

TEST_F(ComboOnTheDesktop, Wheel_ScrollsTheGrid_AndChoosesNothing)
{
    WindowKey(Qt::Key_Down);
    ASSERT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("red"));
    Turn(Combo(), -120);
    EXPECT_EQ(Frame().Platform()->TheGrid().TopRow(), 4);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("red"));
}

TEST_F(ComboOnTheDesktop, WheelOverTheOpenList_ScrollsTheList_AndNotTheGrid)
{
    Sheet->CreateColumnDataType(1, QStringLiteral("Figure"), fcComboBox,
                                QStringLiteral("a|b|c|d|e|f|g|h|i|j|k|l|m|n|o|p"), false, fcLeft, 0, faNil, false);
    Sheet->BuildGridColumns();
    WindowClick({1, 1});
    WindowKey(Qt::Key_F4);
    ComboList& list = Combo().List();
    Turn(*list.viewport(), -120);
    EXPECT_EQ(list.verticalScrollBar()->value(), 3);
    Turn(*list.verticalScrollBar(), -1200);
    EXPECT_EQ(list.verticalScrollBar()->value(), list.verticalScrollBar()->maximum());
    EXPECT_EQ(list.verticalScrollBar()->maximum(), 6);
    EXPECT_TRUE(list.isVisible());
    EXPECT_EQ(Frame().Platform()->TheGrid().TopRow(), 1);
    EXPECT_EQ(Combo().text(), QString());
    ClickInList(0);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("g"));
}

TEST_F(ComboOnTheDesktop, DoubleClickInTheField_SelectsTheWord)
{
    QTest::keyClick(Window->windowHandle(), 'a');
    QTest::keyClick(Window->windowHandle(), 'b');
    QTest::mouseDClick(&Combo(), Qt::LeftButton, {}, QPoint(6, Combo().height() / 2));
    EXPECT_EQ(Combo().selectedText(), QStringLiteral("ab"));
    WindowKey(Qt::Key_Delete);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QString());
}

TEST_F(ComboOnTheDesktop, CompositionOfAnInputMethod_IsTyped_AndKeepsTheArrowsToItself)
{
    QInputMethodEvent compose(QStringLiteral("ni"), {});
    QCoreApplication::sendEvent(&Combo(), &compose);
    WindowKey(Qt::Key_Down);
    WindowKey(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"Combo1(0)");
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QString());
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("\u65E5\u672C"));
    QCoreApplication::sendEvent(&Combo(), &commit);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("\u65E5\u672C"));
}

TEST_F(ComboOnTheDesktop, ShortcutsOfTheHost_GetOnlyWhatTheComboHasNoUseFor)
{
    int triggered = 0;
    for (const char* keys : {"F2", "Del", "Ctrl+A", "F4", "Alt+Down", "Ctrl+F"}) {
        auto* const action = new QAction(Window.get());
        action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
        Window->addAction(action);
        QObject::connect(action, &QAction::triggered, [&] { ++triggered; });
    }
    QTest::keyClick(Window->windowHandle(), 'a');
    WindowKey(Qt::Key_F2);
    WindowKey(Qt::Key_A, Qt::ControlModifier);
    WindowKey(Qt::Key_Delete);
    WindowKey(Qt::Key_F4);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(triggered, 0);
    Combo().List().hide();
    WindowKey(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(triggered, 1);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QString());
}

TEST_F(ComboOnTheDesktop, AdvanceToTheList_PaintsWhatTheTwoEditorsCover_AndNoMore)
{
    const QRect left = Combo().geometry();
    const PaintedArea area(View());
    WindowKey(Qt::Key_Return);
    QTest::qWait(20);
    ASSERT_EQ(FocusName(), u"List1(0)");
    const QRegion expected = QRegion(left) + ListBox().geometry() + PlaceOf({1, 1}) + PlaceOf({1, 2});
    EXPECT_FALSE(area.Painted.isEmpty());
    EXPECT_TRUE((area.Painted - expected).isEmpty()) << area.Pixels;
    EXPECT_LE(area.Pixels, PaintedArea::PixelsOf(expected)) << "nothing twice";
}

TEST_F(ComboOnTheDesktop, SheetMayGo_WhenEnterClosesTheList)
{
    const QPointer<SheetFrame> frame(&Frame());
    WindowKey(Qt::Key_F4);
    ComboList& list = Combo().List();
    QObject::connect(Sheet, &SheetWidget::AdvanceToNextCell, [this] { delete std::exchange(Sheet, nullptr); });
    QTest::keyClick(Window->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(frame && list.isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(frame.isNull());
}

TEST_F(ComboOnTheDesktop, WidgetsOfAnArray_AreMadeWhenFirstShown_AndGoWithTheirColumns)
{
    EXPECT_EQ(View().findChildren<QAbstractScrollArea*>(Qt::FindDirectChildrenOnly).size(), 0);
    EXPECT_EQ(View().findChildren<QPushButton*>().size(), 0);
    WindowKey(Qt::Key_Return);
    EXPECT_EQ(View().findChildren<QAbstractScrollArea*>(Qt::FindDirectChildrenOnly).size(), 1);
    const QPointer<QWidget> second = [this] {
        Sheet->CreateColumnDataType(2, QStringLiteral("Other"), fcComboBox, QStringLiteral("a|b"), false, fcLeft, 0,
                                    faNil, false);
        Sheet->BuildGridColumns();
        WindowClick({1, 2});
        return &Editor<ComboBoxWidget>(Child::Combo1, 1);
    }();
    ASSERT_TRUE(second->isVisible());
    Sheet->Clear();
    ASSERT_FALSE(second.isNull());
    EXPECT_FALSE(second->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(second.isNull());
}

TEST(ComboInADialog, EnterEscAndTabWithTheListOpen_AreNotTheDialogs)
{
    HostDialog dialog;
    SheetWidget* const sheet = dialog.Sheet;
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    sheet->Cols(3);
    sheet->CreateColumnDataType(1, QStringLiteral("A"), fcComboBox, QStringLiteral("a|b"), false, fcLeft, 0, faNil,
                                false);
    sheet->CreateColumnDataType(2, QStringLiteral("B"), fcCommandButton, QStringLiteral("Go"), false, fcLeft, 0, faNil,
                                false);
    sheet->BuildGridColumns();
    sheet->AllowAddNew(true);
    sheet->Add(0, 2);
    const auto focusName = [&] { return sheet->findChild<SheetFrame*>()->Platform()->FocusName(); };
    QWindow* const window = dialog.windowHandle();
    ASSERT_EQ(focusName(), u"Combo1(0)");
    const auto& combo = dynamic_cast<ComboBoxWidget&>(*QApplication::focusWidget());
    const auto isOpen = [&] { return combo.List().isVisible(); };
    QTest::keyClick(window, Qt::Key_F4);
    ASSERT_TRUE(isOpen());
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(dialog.isVisible());
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_F4, Qt::Key_Down, Qt::Key_Return})
        QTest::keyClick(window, key);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(sheet->TextMatrix(1, 1), QStringLiteral("a"));
    ASSERT_EQ(focusName(), u"Command1(0)");
    QTest::keyClick(window, Qt::Key_Return);
    QTest::keyClick(window, Qt::Key_Space);
    EXPECT_EQ(dialog.Pressed, 0);
}

} // namespace Tessellon
