#include "Form.h"

#include <QMetaMethod>
#include <QMetaProperty>

#include <stdexcept>

namespace Tessellon {

namespace {

class Widget : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill();
    }
};

} // namespace

TEST(SheetWidgetClass, HasASignalForEachEvent_AndItsOwnForFailuresAndForLoads)
{
    const QStringList expected{
        "AdvanceToNextCell", "ButtonClick",     "Click",     "Compare",      "DatePickerCallbackKeyDown",
        "DateBoxCloseUp",    "DateBoxDropDown", "DblClick",  "EditorChange", "EditorValidate",
        "EnterCell",         "ErrInfo",         "ExitFocus", "Format",       "KeyDown",
        "KeyPress",          "KeyUp",           "LeaveCell", "MouseDown",    "MouseMove",
        "MouseUp",           "RowColChange",    "Scroll",    "SelChange",    "UseAdvanceToNextCell",
        "loadProgress",      "unhandledFailure"};
    QStringList found;
    const QMetaObject& meta = SheetWidget::staticMetaObject;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        if (meta.method(index).methodType() == QMetaMethod::Signal)
            found += QString::fromLatin1(meta.method(index).name());
    found.sort();
    QStringList sorted = expected;
    sorted.sort();
    EXPECT_EQ(found, sorted);
}

TEST_F(Widget, ArgumentByReference_IsTheSlotsAnswer)
{
    QObject::connect(Sheet, &SheetWidget::KeyPress, [](short& KeyAscii) { KeyAscii = 'z'; });
    Type(QStringLiteral("a"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("z"));
    QObject::connect(Sheet, &SheetWidget::AdvanceToNextCell, [](bool& Cancel) { Cancel = true; });
    Key(Qt::Key_Return);
    EXPECT_EQ(Sheet->Col(), 1);
}

TEST_F(Widget, KeyCodeThatASlotChanges_HasThatKeysEffect)
{
    Type(QStringLiteral("abc"));
    QObject::connect(Sheet, &SheetWidget::KeyDown,
                     [](short& KeyCode, short&) { KeyCode = KeyCode == 'X' ? 8 : KeyCode; });
    QObject::connect(Sheet, &SheetWidget::KeyPress, [](short& KeyAscii) { KeyAscii = 0; });
    Type(QStringLiteral("x"));
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("ab"));
}

TEST_F(Widget, FailureOfASlotBehindNoFrame_IsTold_AndNotThrownThroughQt)
{
    QList<int> numbers;
    QStringList sources;
    QObject::connect(Sheet, &SheetWidget::unhandledFailure, [&](int number, const QString& source, const QString&) {
        numbers += number;
        sources += source;
    });
    QObject::connect(Sheet, &SheetWidget::KeyUp, [] { throw std::out_of_range("slot"); });
    Key(Qt::Key_A);
    EXPECT_EQ(numbers, QList<int>({9}));
    EXPECT_EQ(sources, QStringList({QStringLiteral("Host")}));
}

TEST_F(Widget, FontAndEnabledAndGrabsFocus_AreProperties)
{
    QFont font = Sheet->font();
    font.setPointSize(14);
    EXPECT_TRUE(Sheet->setProperty("font", font));
    EXPECT_DOUBLE_EQ(Sheet->Font().pointSizeF(), 14);

    EXPECT_TRUE(Sheet->property("enabled").toBool());
    EXPECT_TRUE(Sheet->setProperty("enabled", false));
    EXPECT_FALSE(Sheet->Enabled());
    Sheet->Enabled(true);
    EXPECT_TRUE(Sheet->property("enabled").toBool());

    EXPECT_TRUE(Sheet->property("grabsFocus").toBool());
    EXPECT_TRUE(Sheet->setProperty("grabsFocus", false));
    EXPECT_FALSE(Sheet->grabsFocus());
}

TEST_F(Widget, FontBySheet_IsTheWidgetsFontToo)
{
    QFont font = Sheet->font();
    font.setPointSize(12);
    Sheet->Font(font);
    EXPECT_EQ(Sheet->font().pointSize(), 12);
    EXPECT_DOUBLE_EQ(Sheet->Font().pointSizeF(), 12);
}

TEST_F(Widget, WidgetThatIsDisabled_DisablesTheGrid)
{
    Sheet->setEnabled(false);
    EXPECT_FALSE(Sheet->Enabled());
    Sheet->setEnabled(true);
    EXPECT_TRUE(Sheet->Enabled());
}

TEST_F(Widget, Members_SpeakQt)
{
    Sheet->TextMatrix(2, 1, QStringLiteral("Zo\u00EB"));
    EXPECT_EQ(Sheet->TextMatrix(2, 1), QStringLiteral("Zo\u00EB"));
    EXPECT_EQ(Sheet->SearchCol(1, QStringLiteral("Zo\u00EB")), 2);
    EXPECT_EQ(Sheet->ColumnHeader(2), QStringLiteral("Town"));
    EXPECT_EQ(Sheet->Rows(), 4);
    EXPECT_EQ(Sheet->Cols(), 4);
    bool success = false;
    EXPECT_EQ(Sheet->Maximum(1, mtString, success), QStringLiteral("Zo\u00EB"));
    EXPECT_TRUE(success);
    EXPECT_NE(Sheet->hWnd(), 0);
    Sheet->Delete(2);
    EXPECT_EQ(Sheet->Rows(), 3);
    Sheet->Clear();
    EXPECT_EQ(Sheet->Cols(), 1);
}

TEST_F(Widget, SheetBeforeItsWindowIsShown_HasItsFocusWhenTheWindowComes)
{
    QWidget later;
    auto* const sheet = new SheetWidget(&later);
    sheet->resize(400, 200);
    Fill(*sheet);
    EXPECT_EQ(FrameOf(*sheet).Platform()->FocusName(), u"");
    later.resize(400, 200);
    later.show();
    later.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&later));
    EXPECT_EQ(FrameOf(*sheet).Platform()->FocusName(), u"Text1");
    EXPECT_EQ(QApplication::focusWidget(), &FrameOf(*sheet).WidgetOf(FrameOf(*sheet).Platform()->TheTextBox().get()));
}

} // namespace Tessellon
