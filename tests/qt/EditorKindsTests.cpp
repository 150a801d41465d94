#include "EditorForm.h"
#include "HostDialog.h"
#include "PaintedArea.h"

#include <QAction>

#include <utility>

namespace Tessellon {

namespace {

struct Kind {
    const char* Name;
    FieldControlType Type;
    const char* Settings;
    std::u16string_view Control;
};

/// What holds for the editors that are typed in, whatever their kind.
class EditorKinds : public EditorForm, public testing::WithParamInterface<Kind> {
protected:
    void FillWithKind() { FillWith(GetParam().Type, QString::fromLatin1(GetParam().Settings), 0, true); }
};

void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.Name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, EditorKinds,
                         testing::Values(Kind{"Date", fcDatePicker, "", u"DTPicker1"},
                                         Kind{"Mask", fcMaskedEditBox, "####", u"MaskEdBox1(0)"},
                                         Kind{"Rich", fcRichTextBox, "", u"RichTextBox1"}),
                         [](const auto& kind) { return kind.param.Name; });

TEST_P(EditorKinds, EntryAndLeaving_MoveTheFocus)
{
    FillWithKind();
    EXPECT_EQ(FocusName(), GetParam().Control);
    QWidget* const editor = QApplication::focusWidget();
    EXPECT_EQ(editor->focusPolicy(), Qt::NoFocus);
    Key(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"Text1");
    EXPECT_FALSE(editor->isVisible());
    Click({2, 1});
    EXPECT_EQ(QApplication::focusWidget(), editor) << "the same for all rows";
    ClickThroughWindow(*Before);
    EXPECT_EQ(FocusName(), u"");
}

TEST_P(EditorKinds, AdvanceByEnter_PaintsWhatTheTwoEditorsCover_AndNoMore)
{
    FillWithKind();
    QTest::qWait(20);
    const QRect left = QApplication::focusWidget()->geometry();
    const PaintedArea area(View());
    Key(Qt::Key_Return);
    QTest::qWait(20);
    ASSERT_EQ(Sheet->Col(), 2);
    const QRegion cells = QRegion(View().PixelsAround(Frame().Platform()->TheGrid().RectangleOf({1, 1}))) +
                          QRegion(View().PixelsAround(Frame().Platform()->TheGrid().RectangleOf({1, 2})));
    const QRegion expected = cells + left;
    EXPECT_FALSE(area.Painted.isEmpty());
    EXPECT_TRUE((area.Painted - expected).isEmpty()) << area.Pixels;
    EXPECT_LE(area.Pixels, PaintedArea::PixelsOf(expected)) << "nothing twice";
}

TEST_P(EditorKinds, EnterEscAndTab_AreTheSheets_InADialog)
{
    HostDialog dialog;
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    Sheet = dialog.Sheet;
    FillWithKind();
    ASSERT_EQ(FocusName(), GetParam().Control);
    if (GetParam().Type == fcDatePicker)
        Key(Qt::Key_F4);
    Key(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"Text1");
    Click({2, 1});
    ASSERT_EQ(FocusName(), GetParam().Control);
    if (GetParam().Type == fcDatePicker)
        Key(Qt::Key_F4);
    Key(Qt::Key_Escape);
    EXPECT_EQ(FocusName(), u"MSFlexGrid1");
    EXPECT_EQ(dialog.Pressed, 0);
    EXPECT_TRUE(dialog.isVisible());
    Click({2, 1});
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), dialog.Button);
    EXPECT_EQ(dialog.Pressed, 0);
}

TEST_P(EditorKinds, KeysThatTheEditorUses_AreNoShortcutsOfTheHosts_OthersAre)
{
    FillWithKind();
    QStringList triggered;
    for (const char* keys : {"F2", "Del", "Ctrl+F", "1", "Left", "Return", "Esc", "F4", "F5"}) {
        auto* const action = new QAction(Window.get());
        action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
        Window->addAction(action);
        QObject::connect(action, &QAction::triggered, [&triggered, keys] { triggered += QString::fromLatin1(keys); });
    }
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Delete, Qt::Key_1, Qt::Key_Left})
        Key(key);
    EXPECT_EQ(triggered, QStringList());
    Click({2, 1});
    Ctrl(Qt::Key_F);
    Key(Qt::Key_F5);
    EXPECT_EQ(triggered, QStringList({"Ctrl+F", "F5"}));
    Key(Qt::Key_F4);
    Key(Qt::Key_Escape);
    EXPECT_EQ(triggered, QStringList({"Ctrl+F", "F5"}));
}

TEST_P(EditorKinds, WordsOfCopyingAndUndoing_AreTheTextsOwn)
{
    FillWithKind();
    int triggered = 0;
    for (const char* keys : {"Ctrl+A", "Ctrl+C", "Ctrl+V", "Ctrl+X", "Ctrl+Z"}) {
        auto* const action = new QAction(Window.get());
        action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
        Window->addAction(action);
        QObject::connect(action, &QAction::triggered, [&] { ++triggered; });
    }
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_X, Qt::Key_V, Qt::Key_Z})
        Ctrl(key);
    EXPECT_EQ(triggered, GetParam().Type == fcDatePicker ? 5 : 0);
}

TEST_P(EditorKinds, SheetMayGo_InTheMiddleOfAKey)
{
    FillWithKind();
    QObject::connect(Sheet, &SheetWidget::EnterCell, [this] { delete std::exchange(Sheet, nullptr); });
    Key(Qt::Key_Return);
    EXPECT_EQ(Sheet, nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_P(EditorKinds, EditorInAnotherFontAndColour_IsReadable)
{
    FillWithKind();
    QWidget* const editor = QApplication::focusWidget();
    QPalette dark(QColor(60, 60, 63), QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    Window->setPalette(dark);
    QTest::qWait(20);
    const QImage image = editor->grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() - 3), QColor(30, 30, 30));
    EXPECT_EQ(editor->palette().color(QPalette::Text), QColor(230, 230, 230));
}

} // namespace Tessellon
