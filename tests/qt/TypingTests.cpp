#include "Form.h"

#include <QClipboard>

namespace Tessellon {

namespace {

class Typing : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill();
    }
};

} // namespace

TEST_F(Typing, EntryOfACell_PutsALineEditOverItWithTheFocus)
{
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    EXPECT_TRUE(Box().isVisible());
    EXPECT_EQ(Box().geometry(), View().PixelsAround(Frame().Platform()->TheGrid().RectangleOf({1, 1})));
}

TEST_F(Typing, Characters_ReachTheCellAtOnce)
{
    Type(QStringLiteral("Ada"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("Ada"));
    EXPECT_EQ(Box().text(), QStringLiteral("Ada"));
}

TEST_F(Typing, EachCharacter_TellsKeyDownKeyPressChangeAndKeyUp)
{
    Hear();
    Type(QStringLiteral("x"));
    EXPECT_EQ(Heard, QStringList({"KeyDown", "KeyPress", "EditorChange", "KeyUp"}));
}

TEST_F(Typing, Enter_GoesOnEditingInTheNextCell)
{
    Type(QStringLiteral("Ada"));
    Key(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    Type(QStringLiteral("Rome"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("Ada"));
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("Rome"));
}

TEST_F(Typing, Space_TurnsTheCheckBox)
{
    Key(Qt::Key_Return);
    Key(Qt::Key_Return);
    ASSERT_EQ(FocusName(), u"Check1");
    Key(Qt::Key_Space);
    EXPECT_EQ(Sheet->TextMatrix(1, 3), QStringLiteral("True"));
    Key(Qt::Key_Space);
    EXPECT_EQ(Sheet->TextMatrix(1, 3), QStringLiteral("False"));
}

TEST_F(Typing, ShiftWithAnArrow_Selects_AndTypingReplaces)
{
    Type(QStringLiteral("abc"));
    Key(Qt::Key_Left, Qt::ShiftModifier);
    Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Box().selectedText(), QStringLiteral("bc"));
    Type(QStringLiteral("x"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("ax"));
}

TEST_F(Typing, CutAndPaste_AreTheWidgetsOwn_AndReachTheCell)
{
    Type(QStringLiteral("abc"));
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QString());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("abc"));
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("abc"));
}

TEST_F(Typing, Undo_TakesTypingBack_InTheCellToo)
{
    Type(QStringLiteral("ab"));
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Box().text(), QString());
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QString());
}

TEST_F(Typing, Limit_HoldsTypingAndPasting)
{
    Type(QStringLiteral("abcdefgh"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("abcde"));
    Key(Qt::Key_A, Qt::ControlModifier);
    QGuiApplication::clipboard()->setText(QStringLiteral("123456789"));
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("12345"));
}

TEST_F(Typing, TextOfCodeThatIsOverTheLimit_StaysWhole)
{
    Sheet->TextMatrix(2, 1, QStringLiteral("longer than five"));
    Key(Qt::Key_Down);
    EXPECT_EQ(Box().text(), QStringLiteral("longer than five"));
    Type(QStringLiteral("x"));
    EXPECT_EQ(Sheet->TextMatrix(2, 1), QStringLiteral("longer than five"));
    Key(Qt::Key_Delete);
    EXPECT_EQ(Sheet->TextMatrix(2, 1), QStringLiteral("onger than five"));
}

TEST_F(Typing, PairOfSurrogates_GoesInWhole_OrNotAtAll)
{
    const QString pair = QStringLiteral("\U0001F600");
    Type(QStringLiteral("abc") + pair + pair);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("abc") + pair);
    Key(Qt::Key_Backspace);
    Type(QStringLiteral("d") + pair);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("abcd"));
}

TEST_F(Typing, LineBreaksThatArePasted_BecomeBlanks)
{
    Key(Qt::Key_Return);
    QGuiApplication::clipboard()->setText(QStringLiteral("a\r\nb\nc"));
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("a b c"));
}

TEST_F(Typing, VeryLongText_IsShownWhole)
{
    const QString text(100'000, QLatin1Char('x'));
    Sheet->TextMatrix(2, 2, text);
    Click({2, 2});
    EXPECT_EQ(Box().text().size(), text.size());
    EXPECT_EQ(Sheet->TextMatrix(2, 2).size(), text.size());
}

TEST_F(Typing, PressInTheBox_PutsTheCaretThere_AndTheSheetKnows)
{
    Sheet->TextMatrix(2, 1, QStringLiteral("abc"));
    Key(Qt::Key_Down);
    QTest::mouseClick(&Box(), Qt::LeftButton, {}, QPoint(Box().width() - 4, Box().height() / 2));
    EXPECT_EQ(Frame().Platform()->TheTextBox()->SelStart(), 3);
    Type(QStringLiteral("d"));
    EXPECT_EQ(Sheet->TextMatrix(2, 1), QStringLiteral("abcd"));
}

TEST_F(Typing, LeftAtTheStart_LeavesTheCell_AndInTheMiddleItDoesNot)
{
    Key(Qt::Key_Return);
    Type(QStringLiteral("ab"));
    Key(Qt::Key_Left);
    Key(Qt::Key_Left);
    EXPECT_EQ(Sheet->Col(), 2);
    Key(Qt::Key_Left);
    EXPECT_EQ(Sheet->Col(), 1);
}

TEST_F(Typing, RightWithASelectionFromTheFront_GoesToItsEndAndOnlyThenLeavesTheCell)
{
    Key(Qt::Key_Return);
    Type(QStringLiteral("abc"));
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_Right);
    EXPECT_EQ(Sheet->Col(), 2);
    EXPECT_FALSE(Box().hasSelectedText());
    EXPECT_EQ(Box().cursorPosition(), 3);
    Key(Qt::Key_Right);
    EXPECT_EQ(Sheet->Col(), 3);
}

TEST_F(Typing, LeftWithASelectionFromTheFront_LeavesTheCell)
{
    Key(Qt::Key_Return);
    Type(QStringLiteral("abc"));
    Key(Qt::Key_Home);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    ASSERT_EQ(Box().selectedText(), QStringLiteral("ab"));
    Key(Qt::Key_Left);
    EXPECT_EQ(Sheet->Col(), 1);
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("abc"));
}

TEST_F(Typing, Escape_PutsTheOldTextBack_AndLeavesTheGrid)
{
    Type(QStringLiteral("ab"));
    Key(Qt::Key_Escape);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QString());
    EXPECT_FALSE(Box().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &View());
    Key(Qt::Key_F2);
    EXPECT_EQ(QApplication::focusWidget(), &Box());
}

} // namespace Tessellon
