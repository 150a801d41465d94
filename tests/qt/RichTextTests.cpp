#include "EditorForm.h"

#include "qt/RichTextWidget.h"

#include <QElapsedTimer>
#include <QScrollBar>

namespace Tessellon {

namespace {

class RichTexts : public EditorForm {
protected:
    void SetUp() override
    {
        Form::SetUp();
        FillWith(fcRichTextBox);
    }

    void Enter(int row, const QString& text)
    {
        Sheet->TextMatrix(row, 1, text);
        Click({row, 1});
    }
    static RichTextWidget& Rich() { return Focused<RichTextWidget>(); }
    [[nodiscard]] std::int32_t Caret() const { return Frame().Platform()->TheRichTextBox()->SelStart(); }
};

} // namespace

TEST_F(RichTexts, EntryOfACell_PutsATextEditOverIt)
{
    EXPECT_TRUE(Rich().isVisible());
    EXPECT_EQ(Rich().geometry(), View().PixelsAround(Frame().Platform()->TheGrid().RectangleOf({1, 1})));
    EXPECT_EQ(FocusName(), u"RichTextBox1");
}

TEST_F(RichTexts, EachChange_ReachesTheCellAtOnce)
{
    Hear();
    Type(QStringLiteral("a"));
    EXPECT_EQ(Heard, QStringList({"KeyPress", "EditorChange", "KeyUp"}));
    Type(QStringLiteral("bc"));
    EXPECT_EQ(Cell(), QStringLiteral("abc"));
    Key(Qt::Key_Left);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Cell(), QStringLiteral("ac"));
    EXPECT_EQ(Caret(), 1);
}

TEST_F(RichTexts, CtrlWithEnter_BreaksTheLineAtTheEnd)
{
    Type(QStringLiteral("ab"));
    Key(Qt::Key_Left);
    Ctrl(Qt::Key_Return);
    Type(QStringLiteral("c"));
    EXPECT_EQ(Cell(), QStringLiteral("ab\r\nc"));
    EXPECT_EQ(Rich().toPlainText(), QStringLiteral("ab\nc"));
    EXPECT_EQ(Caret(), 5);
    Key(Qt::Key_Return);
    EXPECT_EQ(Sheet->Col(), 2);
}

TEST_F(RichTexts, UpAndDown_LeaveTheCell_PagesStayInIt)
{
    Enter(2, QStringLiteral("a\r\nb\r\nc"));
    Key(Qt::Key_PageDown);
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_GT(Caret(), 0);
    Key(Qt::Key_Down);
    EXPECT_EQ(Sheet->Row(), 3);
    Key(Qt::Key_Up);
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_EQ(Caret(), 0);
}

TEST_F(RichTexts, BreaksThatTheUserLeaves_StayWhatTheyAre)
{
    const QString odd = QStringLiteral("a\nb\rc\r\nd\u00A0e\u2028f");
    Enter(2, odd);
    EXPECT_EQ(Cell(2), odd);
    Type(QStringLiteral("x"));
    EXPECT_EQ(Cell(2), QStringLiteral("x") + odd);
    Key(Qt::Key_Right);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Cell(2), QStringLiteral("xab\rc\r\nd\u00A0e\u2028f"));
    Ctrl(Qt::Key_End);
    Type(QStringLiteral("y"));
    EXPECT_EQ(Cell(2), QStringLiteral("xab\rc\r\nd\u00A0e\u2028fy"));
    EXPECT_EQ(Caret(), Cell(2).size());
}

TEST_F(RichTexts, Selection_IsReplacedAndCopied)
{
    Enter(2, QStringLiteral("ab\r\ncd"));
    Key(Qt::Key_Right);
    for (int step = 0; step < 3; ++step)
        Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Caret(), 1) << "where the selection begins";
    Ctrl(Qt::Key_C);
    EXPECT_EQ(Copied(), QStringLiteral("b\nc"));
    Type(QStringLiteral("x"));
    EXPECT_EQ(Cell(2), QStringLiteral("axd"));
    Ctrl(Qt::Key_A);
    Ctrl(Qt::Key_X);
    EXPECT_EQ(Cell(2), QString());
    EXPECT_EQ(Copied(), QStringLiteral("axd"));
}

TEST_F(RichTexts, PastedLines_AreLinesOfTheCell)
{
    Type(QStringLiteral("[]"));
    Key(Qt::Key_Left);
    Copy(QStringLiteral("a\nb\r\nc\td\u0007"));
    Ctrl(Qt::Key_V);
    EXPECT_EQ(Cell(), QStringLiteral("[a\r\nb\r\nc\td ]"));
}

TEST_F(RichTexts, UndoAndRedo_ReachTheCell)
{
    Type(QStringLiteral("ab"));
    Copy(QStringLiteral("c\nd"));
    Ctrl(Qt::Key_V);
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Cell(), QStringLiteral("ab"));
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Cell(), QString());
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Cell(), QStringLiteral("abc\r\nd"));
}

TEST_F(RichTexts, NextCell_HasNothingToUndo)
{
    Type(QStringLiteral("ab"));
    Key(Qt::Key_Down);
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Cell(1), QStringLiteral("ab"));
    EXPECT_EQ(Cell(2), QString());
}

TEST_F(RichTexts, Limit_HoldsTypingAndPasting_AndLeavesWhatCodeWrote)
{
    Sheet->Clear();
    FillWith(fcRichTextBox, {}, 5);
    Type(QStringLiteral("abcdefg"));
    EXPECT_EQ(Cell(), QStringLiteral("abcde"));
    Ctrl(Qt::Key_A);
    Copy(QStringLiteral("1\n2\n3"));
    Ctrl(Qt::Key_V);
    EXPECT_EQ(Cell(), QStringLiteral("1\r\n2")) << "half a break is none";
    Enter(2, QStringLiteral("longer than five"));
    EXPECT_EQ(Rich().toPlainText(), QStringLiteral("longer than five"));
    Type(QStringLiteral("x"));
    EXPECT_EQ(Cell(2), QStringLiteral("longer than five"));
    Key(Qt::Key_Delete);
    EXPECT_EQ(Cell(2), QStringLiteral("onger than five"));
}

TEST_F(RichTexts, PairOfSurrogates_IsPassedAndRemovedAsOne)
{
    const QString pair = QStringLiteral("\U0001F600");
    Type(QStringLiteral("a") + pair + QStringLiteral("b"));
    EXPECT_EQ(Cell(), QStringLiteral("a") + pair + QStringLiteral("b"));
    Key(Qt::Key_Left);
    Key(Qt::Key_Left);
    EXPECT_EQ(Caret(), 1);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Cell(), QStringLiteral("ab"));
}

TEST_F(RichTexts, InputMethod_KeepsItsKeys_AndWhatItCommitsIsTyped)
{
    Hear();
    Compose(QStringLiteral("ni"));
    Key(Qt::Key_Return);
    Key(Qt::Key_Down);
    EXPECT_EQ(Sheet->Row(), 1);
    EXPECT_EQ(Cell(), QString());
    Heard.clear();
    Commit(QStringLiteral("\u65E5\u672C"));
    EXPECT_EQ(Cell(), QStringLiteral("\u65E5\u672C"));
    EXPECT_EQ(Heard, QStringList({"KeyPress", "EditorChange", "KeyPress", "EditorChange"}));
    Compose(QStringLiteral("abc"));
    Click({2, 2});
    EXPECT_EQ(Cell(), QStringLiteral("\u65E5\u672Cabc"));
}

TEST_F(RichTexts, Mouse_PutsTheCaretAndSelectsAWord)
{
    Enter(2, QStringLiteral("one two"));
    QTest::mouseClick(Rich().viewport(), Qt::LeftButton, {}, QPoint(Rich().width() - 5, 8));
    EXPECT_EQ(Caret(), 7);
    QTest::mouseDClick(Rich().viewport(), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(Rich().textCursor().selectedText(), QStringLiteral("one"));
    Type(QStringLiteral("x"));
    EXPECT_EQ(Cell(2), QStringLiteral("x two"));
}

TEST_F(RichTexts, Wheel_ScrollsTheGrid_AndNotTheText)
{
    Sheet->Add(3, 200);
    Enter(5, QStringLiteral("a\r\nb\r\nc"));
    RichTextWidget& rich = Rich();
    const int scrolled = rich.verticalScrollBar()->value();
    const int before = TopRow();
    Turn(*rich.viewport());
    EXPECT_EQ(TopRow(), before + 3);
    EXPECT_EQ(rich.verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(Cell(5), QStringLiteral("a\r\nb\r\nc"));
}

TEST_F(RichTexts, LinesBeyondTheBox_AreScrolledTo)
{
    Enter(2, QStringLiteral("a\r\nb\r\nc\r\nd\r\ne\r\nf"));
    Ctrl(Qt::Key_End);
    EXPECT_GT(Rich().verticalScrollBar()->value(), 0);
    EXPECT_TRUE(Rich().viewport()->rect().contains(Rich().cursorRect().center()));
    EXPECT_FALSE(Rich().verticalScrollBar()->isVisible());
}

TEST_F(RichTexts, VeryLongTextPasted_IsTaken_AndTypedInWithoutDelay)
{
    QString lines;
    for (int line = 0; line < 20'000; ++line)
        lines += QStringLiteral("line\n");
    Copy(lines);
    Ctrl(Qt::Key_V);
    EXPECT_EQ(Cell().size(), 20'000 * 6);
    QElapsedTimer watch;
    watch.start();
    Type(QStringLiteral("abc"));
    EXPECT_LT(watch.elapsed(), 1500);
    EXPECT_TRUE(Cell().endsWith(QStringLiteral("line\r\nabc")));
}

} // namespace Tessellon
