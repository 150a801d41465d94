#include "Form.h"
#include "HostDialog.h"

#include <QAction>

namespace Tessellon {

namespace {

class Shortcuts : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill();
    }

    void AddShortcut(const QKeySequence& keys)
    {
        auto* const action = new QAction(Window.get());
        action->setShortcut(keys);
        Window->addAction(action);
        QObject::connect(action, &QAction::triggered, [this] { ++Triggered; });
    }

    int Triggered = 0;
};

} // namespace

TEST_F(Shortcuts, KeysThatTheEditorUses_StayTheEditors)
{
    for (const char* keys : {"F2", "Del", "A", "Left", "Ctrl+C", "Ctrl+V", "Ctrl+A", "Return", "Esc"})
        AddShortcut(QKeySequence(QString::fromLatin1(keys)));
    QTest::keyClick(&Box(), 'a');
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("a"));
    Key(Qt::Key_Left);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QString());
    Key(Qt::Key_F2);
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    Key(Qt::Key_Return);
    EXPECT_EQ(Sheet->Col(), 2);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Triggered, 0);
}

TEST_F(Shortcuts, F2InTheGrid_ReentersTheCell)
{
    AddShortcut(QKeySequence(Qt::Key_F2));
    Key(Qt::Key_Escape);
    ASSERT_EQ(FocusName(), u"MSFlexGrid1");
    Key(Qt::Key_F2);
    EXPECT_EQ(FocusName(), u"Text1");
    EXPECT_EQ(Triggered, 0);
}

TEST_F(Shortcuts, OtherKeys_AreTheHosts)
{
    AddShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
    AddShortcut(QKeySequence(QStringLiteral("F5")));
    Key(Qt::Key_S, Qt::ControlModifier);
    Key(Qt::Key_F5);
    EXPECT_EQ(Triggered, 2);
}

TEST(SheetInADialog, EnterPressesNoDefaultButton_AndEscClosesNothing_WhileAnEditorIsUp)
{
    HostDialog dialog;
    SheetWidget* const sheet = dialog.Sheet;
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    sheet->Cols(3);
    sheet->CreateColumnDataType(1, QStringLiteral("A"), fcTextBox, {}, false, fcLeft, 0, faNil, false);
    sheet->CreateColumnDataType(2, QStringLiteral("B"), fcCheckBox, {}, false, fcLeft, 0, faNil, false);
    sheet->BuildGridColumns();
    sheet->AllowAddNew(true);
    sheet->Add(0, 2);
    const auto focusName = [&] { return sheet->findChild<SheetFrame*>()->Platform()->FocusName(); };
    ASSERT_EQ(focusName(), u"Text1");

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(focusName(), u"Check1");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(focusName(), u"Text1");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(focusName(), u"MSFlexGrid1");
    EXPECT_EQ(dialog.Pressed, 0);
    EXPECT_TRUE(dialog.isVisible());

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(dialog.Pressed, 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

} // namespace Tessellon
