#include "EditorForm.h"

#include "qt/MaskBoxWidget.h"

#include <QMenu>

namespace Tessellon {

namespace {

class MaskBoxes : public EditorForm {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Frame().OnBell = [this] { ++Bells; };
    }

    void FillMasked(const QString& mask = QStringLiteral("##/##/##")) { FillWith(fcMaskedEditBox, mask, 0, true); }
    static MaskBoxWidget& Mask() { return Focused<MaskBoxWidget>(); }
    static void Select(int start, int length)
    {
        Key(Qt::Key_Home);
        for (int step = 0; step < start; ++step)
            Key(Qt::Key_Right);
        for (int step = 0; step < length; ++step)
            Key(Qt::Key_Right, Qt::ShiftModifier);
    }
    /// Chooses in the menu that the right button opens.
    static void Menu(const QString& text)
    {
        MaskBoxWidget& box = Mask();
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(3, 3), box.mapToGlobal(QPoint(3, 3)));
        QCoreApplication::sendEvent(&box, &asked);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text() == text)
                action->trigger();
        menu->close();
        // Without a window manager nobody brings the window back to the front.
        box.window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(box.window()));
    }

    int Bells = 0;
};

} // namespace

TEST_F(MaskBoxes, EntryOfACell_ShowsThePrompts)
{
    FillMasked();
    EXPECT_EQ(Mask().text(), QStringLiteral("__/__/__"));
    EXPECT_EQ(Mask().cursorPosition(), 0);
    EXPECT_EQ(Mask().geometry(), View().PixelsAround(Frame().Platform()->TheGrid().RectangleOf({1, 1})));
    EXPECT_EQ(Cell(), QString());
}

TEST_F(MaskBoxes, EachKeyLetGo_WritesTheCell)
{
    FillMasked();
    Type(QStringLiteral("1"));
    EXPECT_EQ(Cell(), QStringLiteral("1 /  /"));
    Type(QStringLiteral("2x34"));
    EXPECT_EQ(Bells, 1);
    EXPECT_EQ(Mask().text(), QStringLiteral("12/34/__"));
    EXPECT_EQ(Cell(), QStringLiteral("12/34/"));
    EXPECT_EQ(Mask().cursorPosition(), 5);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Mask().text(), QStringLiteral("12/3_/__"));
    EXPECT_EQ(Cell(), QStringLiteral("12/3 /"));
}

TEST_F(MaskBoxes, Enter_GoesToTheNextCell_AndBackToWhatWasTyped)
{
    FillMasked();
    Type(QStringLiteral("123456"));
    Key(Qt::Key_Return);
    EXPECT_EQ(Sheet->Col(), 2);
    Click({1, 1});
    EXPECT_EQ(Mask().text(), QStringLiteral("12/34/56"));
}

TEST_F(MaskBoxes, SelectionsFront_IsTheCaretOfTheControl)
{
    FillMasked();
    Type(QStringLiteral("123456"));
    Select(1, 4);
    EXPECT_EQ(Frame().Platform()->MaskEdBox1().Item(0)->SelStart(), 1);
    Ctrl(Qt::Key_A);
    Key(Qt::Key_Right);
    EXPECT_EQ(Sheet->Col(), 1);
    EXPECT_EQ(Frame().Platform()->MaskEdBox1().Item(0)->SelStart(), 8);
    Key(Qt::Key_Right);
    EXPECT_EQ(Sheet->Col(), 2);
}

TEST_F(MaskBoxes, TypingOverASelection_EmptiesItsPlaces)
{
    FillMasked();
    Type(QStringLiteral("123456"));
    Select(1, 4);
    Type(QStringLiteral("9"));
    EXPECT_EQ(Mask().text(), QStringLiteral("19/__/56"));
    EXPECT_EQ(Mask().cursorPosition(), 2);
    EXPECT_EQ(Cell(), QStringLiteral("19/  /56"));
}

TEST_F(MaskBoxes, CharacterThatDoesNotFit_LeavesTheSelection)
{
    FillMasked();
    Type(QStringLiteral("123456"));
    Select(1, 4);
    Type(QStringLiteral("x"));
    EXPECT_EQ(Mask().text(), QStringLiteral("12/34/56"));
    EXPECT_EQ(Mask().selectedText(), QStringLiteral("2/34"));
    EXPECT_EQ(Bells, 1);
}

TEST_F(MaskBoxes, DeleteAndBackspace_EmptyTheSelection_WithCtrlAWord)
{
    FillMasked();
    Type(QStringLiteral("123456"));
    Select(0, 2);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Mask().text(), QStringLiteral("__/34/56"));
    Select(3, 2);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Mask().text(), QStringLiteral("__/__/56"));
    Key(Qt::Key_End);
    Ctrl(Qt::Key_Backspace);
    EXPECT_EQ(Mask().text(), QStringLiteral("__/__/__"));
    EXPECT_EQ(Cell(), QString());
}

TEST_F(MaskBoxes, Clipboard_GoesThroughTheMask)
{
    FillMasked();
    Copy(QStringLiteral("12/34/56\r\n"));
    Ctrl(Qt::Key_V);
    EXPECT_EQ(Mask().text(), QStringLiteral("12/34/56"));
    EXPECT_EQ(Cell(), QStringLiteral("12/34/56"));
    EXPECT_EQ(Bells, 0);
    Ctrl(Qt::Key_A);
    Ctrl(Qt::Key_C);
    EXPECT_EQ(Copied(), QStringLiteral("12/34/56"));
    Ctrl(Qt::Key_X);
    EXPECT_EQ(Mask().text(), QStringLiteral("__/__/__"));
    EXPECT_EQ(Cell(), QString());
    Copy(QStringLiteral("a7b"));
    Ctrl(Qt::Key_V);
    EXPECT_EQ(Mask().text(), QStringLiteral("7_/__/__"));
    EXPECT_EQ(Bells, 1);
}

TEST_F(MaskBoxes, ShiftWithInsert_WritesTheCellToo)
{
    FillMasked();
    Copy(QStringLiteral("12"));
    Key(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(Cell(), QStringLiteral("12/  /"));
}

TEST_F(MaskBoxes, Undo_TakesBackWhatWasTypedInOne_AndEachOtherStep)
{
    FillMasked();
    Type(QStringLiteral("12"));
    Type(QStringLiteral("/34"));
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Home);
    Type(QStringLiteral("9"));
    EXPECT_EQ(Mask().text(), QStringLiteral("92/3_/__"));
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Mask().text(), QStringLiteral("12/3_/__"));
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Mask().text(), QStringLiteral("12/34/__"));
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Mask().text(), QStringLiteral("__/__/__"));
    EXPECT_EQ(Cell(), QString());
    Ctrl(Qt::Key_Z);
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Mask().text(), QStringLiteral("12/34/__"));
    EXPECT_EQ(Cell(), QStringLiteral("12/34/"));
    Type(QStringLiteral("5"));
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Mask().text(), QStringLiteral("12/34/5_")) << "typing ends what could be done again";
}

TEST_F(MaskBoxes, NextCell_HasNothingToUndo)
{
    FillMasked();
    Type(QStringLiteral("12"));
    Key(Qt::Key_Down);
    ASSERT_EQ(Sheet->Row(), 2);
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Mask().text(), QStringLiteral("__/__/__"));
    EXPECT_EQ(Cell(2), QString());
}

TEST_F(MaskBoxes, Menu_PastesAndUndoes_AndWritesTheCell)
{
    FillMasked();
    Copy(QStringLiteral("12"));
    Menu(QStringLiteral("&Paste"));
    EXPECT_EQ(Cell(), QStringLiteral("12/  /"));
    EXPECT_EQ(FocusName(), u"MaskEdBox1(0)");
    Menu(QStringLiteral("&Undo"));
    EXPECT_EQ(Cell(), QString());
    Menu(QStringLiteral("&Redo"));
    Menu(QStringLiteral("Select All"));
    EXPECT_EQ(Mask().selectedText(), QStringLiteral("12/__/__"));
    Menu(QStringLiteral("Cu&t"));
    EXPECT_EQ(Cell(), QString());
    EXPECT_EQ(Copied(), QStringLiteral("12/__/__"));
}

TEST_F(MaskBoxes, Mouse_PutsTheCaretAndSelects)
{
    FillMasked();
    Type(QStringLiteral("123456"));
    QTest::mouseClick(&Mask(), Qt::LeftButton, {}, QPoint(Mask().width() - 4, 5));
    EXPECT_EQ(Mask().cursorPosition(), 8);
    QTest::mouseClick(&Mask(), Qt::LeftButton, {}, QPoint(3, 5));
    Type(QStringLiteral("9"));
    EXPECT_EQ(Cell(), QStringLiteral("92/34/56"));
    QTest::mouseDClick(&Mask(), Qt::LeftButton, {}, QPoint(6, 5));
    EXPECT_FALSE(Mask().selectedText().isEmpty());
    Type(QStringLiteral("7"));
    EXPECT_EQ(Mask().text().left(2), QStringLiteral("7_"));
}

TEST_F(MaskBoxes, InputMethod_KeepsItsKeys_AndWhatItCommitsGoesThroughTheMaskIntoTheCell)
{
    FillMasked(QString(QLatin1String("\?\?-##")));
    Compose(QStringLiteral("ab"));
    Key(Qt::Key_Return);
    EXPECT_EQ(Sheet->Col(), 1);
    Commit(QStringLiteral("a7b1"));
    EXPECT_EQ(Mask().text(), QStringLiteral("ab-1_"));
    EXPECT_EQ(Bells, 1);
    EXPECT_EQ(Cell(), QStringLiteral("ab-1"));
    Compose(QStringLiteral("5"));
    Click({2, 2});
    EXPECT_EQ(Cell(), QStringLiteral("ab-15"));
}

TEST_F(MaskBoxes, CompositionOverASelection_EmptiesIt)
{
    FillMasked();
    Type(QStringLiteral("1234"));
    Select(0, 2);
    Compose(QStringLiteral("x"));
    Compose(QString());
    EXPECT_EQ(Mask().text(), QStringLiteral("__/34/__"));
    EXPECT_EQ(Cell(), QStringLiteral("/34/"));
}

TEST_F(MaskBoxes, BoxWithoutMask_IsALineOfText)
{
    FillWith(fcMaskedEditBox, QStringLiteral("0.00"), 8, false);
    EXPECT_EQ(Mask().text(), QString());
    Type(QStringLiteral("12.5"));
    EXPECT_EQ(Mask().text(), QStringLiteral("12.5"));
    EXPECT_EQ(Cell(), QStringLiteral("12.50"));
    Select(0, 2);
    Type(QStringLiteral("7"));
    EXPECT_EQ(Mask().text(), QStringLiteral("7.5"));
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Mask().text(), QStringLiteral("12.5"));
    Copy(QStringLiteral("1234567890"));
    Ctrl(Qt::Key_V);
    EXPECT_EQ(Mask().text().size(), 8);
}

TEST_F(MaskBoxes, VeryLongTextPasted_IsTakenAtOnce)
{
    FillWith(fcMaskedEditBox, QString(), 0, false);
    Type(QStringLiteral("ab"));
    Key(Qt::Key_Left);
    Copy(QString(300'000, QLatin1Char('x')));
    Ctrl(Qt::Key_V);
    EXPECT_EQ(Mask().text().size(), 300'002);
    EXPECT_EQ(Cell().size(), 300'002);
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Cell(), QStringLiteral("ab"));
}

TEST_F(MaskBoxes, VeryLongTextPastedIntoAMask_FillsItAndNoMore)
{
    FillMasked();
    Copy(QString(300'000, QLatin1Char('7')));
    Ctrl(Qt::Key_V);
    EXPECT_EQ(Cell(), QStringLiteral("77/77/77"));
    EXPECT_EQ(Bells, 1);
}

TEST_F(MaskBoxes, PairOfSurrogates_GoesInWhole_OrNotAtAll)
{
    FillMasked(QStringLiteral("&&&"));
    const QString pair = QStringLiteral("\U0001F600");
    Type(pair + pair);
    EXPECT_EQ(Mask().text(), pair + QStringLiteral("_"));
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Mask().text(), QStringLiteral("___"));
}

TEST_F(MaskBoxes, Wheel_ScrollsTheGrid_AndLeavesTheValue)
{
    FillMasked();
    Type(QStringLiteral("12"));
    Sheet->Add(3, 200);
    Click({1, 1});
    const int before = TopRow();
    Turn(Mask());
    EXPECT_EQ(TopRow(), before + 3);
    EXPECT_EQ(Cell(), QStringLiteral("12/  /"));
}

TEST_F(MaskBoxes, WidgetOfEachColumn_IsMadeWhenItIsFirstShown)
{
    Sheet->Cols(4);
    for (const int col : {1, 2, 3})
        Sheet->CreateColumnDataType(col, QStringLiteral("M"), fcMaskedEditBox, QStringLiteral("##"), false, fcLeft, 0,
                                    faNil, true);
    Sheet->BuildGridColumns();
    Sheet->AllowAddNew(true);
    EXPECT_TRUE(View().findChildren<QLineEdit*>().isEmpty());
    Sheet->Add(0, 2);
    EXPECT_EQ(View().findChildren<QLineEdit*>().size(), 1);
    Type(QStringLiteral("12"));
    Key(Qt::Key_Return);
    EXPECT_EQ(View().findChildren<QLineEdit*>().size(), 2);
    EXPECT_EQ(Mask().text(), QStringLiteral("__"));
}

} // namespace Tessellon
