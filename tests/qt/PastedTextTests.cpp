#include "EditorForm.h"

#include "qt/Texts.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QMenu>

#include <utility>
#include <vector>

namespace Tessellon {

namespace {

constexpr int wideCol = 1;
constexpr int limitedCol = 2;
constexpr int comboCol = 3;
constexpr int listCol = 4;
constexpr int checkCol = 5;
constexpr int buttonCol = 6;
constexpr int dateCol = 7;
constexpr int maskCol = 8;
constexpr int plainMaskCol = 9; ///< Neither mask nor format.
constexpr int richCol = 10;
constexpr int lastCol = richCol;
constexpr int lineCols[] = {wideCol, comboCol, plainMaskCol};

/// The cell without its outer blanks.
QString Trimmed(const QString& text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == QLatin1Char(' '))
        ++begin;
    while (end > begin && text[end - 1] == QLatin1Char(' '))
        --end;
    return text.mid(begin, end - begin);
}

struct Odd {
    const char* Name;
    QString Pasted;
    QString Shown; ///< In a field of one line.
    QString Lines; ///< In a field of many.
};

std::vector<Odd> OddTexts()
{
    using namespace std::string_view_literals;
    const auto same = [](const char* name, std::u16string_view text) {
        return Odd{name, OwnText(text), OwnText(text), OwnText(text)};
    };
    return {
        {"line breaks", OwnText(u"a\r\nb\nc\rd"sv), OwnText(u"a b c d"sv), OwnText(u"a\r\nb\r\nc\r\nd"sv)},
        {"breaks around", OwnText(u"\r\n\na\r\n"sv), OwnText(u"  a "sv), OwnText(u"\r\n\r\na\r\n"sv)},
        {"tabs", OwnText(u"\ta\tb\t"sv), OwnText(u" a b "sv), OwnText(u"\ta\tb\t"sv)},
        {"a null in the middle", OwnText(u"a\0b"sv), OwnText(u"a b"sv), OwnText(u"a b"sv)},
        {"a null alone", OwnText(u"\0"sv), OwnText(u" "sv), OwnText(u" "sv)},
        same("outer blanks", u"  a b  "sv),
        same("blanks alone", u"    "sv),
        same("pairs", u"\U0001F600x\U0001F468\u200D\U0001F469"sv),
        same("combining marks", u"e\u0301o\u0323\u0308\u0301"sv),
        same("a mark without a letter", u"\u0301"sv),
        same("letters from right to left", u"\u05D0\u05D1 a"sv),
        same("a first half alone", u"x\xD83Dy"sv),
        same("a second half alone", u"x\xDE00y"sv),
        same("a first half at the end", u"xy\xD83D"sv),
        same("halves the wrong way round", u"\xDE00\xD83D"sv),
        {"a first half behind a break", OwnText(u"a\r\nb\xD83D"sv), OwnText(u"a b\xD83D"sv),
         OwnText(u"a\r\nb\xD83D"sv)},
        same("unusual blanks", u"a\u00A0b\u2028c\uFEFF"sv),
        same("very long", std::u16string(100'000, u'x')),
        {"very long with breaks", QStringLiteral("ab\r\n").repeated(25'000), QStringLiteral("ab ").repeated(25'000),
         QStringLiteral("ab\r\n").repeated(25'000)},
        same("very many pairs", UnitsOf(QStringLiteral("\U0001F600").repeated(50'000))),
    };
}

/// A form whose sheet has a column of each kind; every cell holds a text of its own, but for the lists' and checks'.
class Pasting : public EditorForm {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Sheet->Cols(lastCol + 1);
        Declare(wideCol, fcTextBox);
        Declare(limitedCol, fcTextBox, "", 8);
        Declare(comboCol, fcComboBox, "red|green|violet");
        Declare(listCol, fcListBox, "apple|violet|pear");
        Declare(checkCol, fcCheckBox);
        Declare(buttonCol, fcCommandButton, "V");
        Declare(dateCol, fcDatePicker);
        Declare(maskCol, fcMaskedEditBox, "##/##", 0, true);
        Declare(plainMaskCol, fcMaskedEditBox);
        Declare(richCol, fcRichTextBox);
        Sheet->BuildGridColumns();
        Sheet->AllowAddNew(true);
        Sheet->Add(0, 3);
        for (int row = 1; row <= 3; ++row) {
            for (int col = 1; col <= lastCol; ++col)
                Sheet->TextMatrix(row, col, QStringLiteral("%1.%2").arg(row).arg(col));
            Sheet->TextMatrix(row, listCol, QStringLiteral("apple"));
            Sheet->TextMatrix(row, checkCol, QStringLiteral("True"));
            Sheet->TextMatrix(row, dateCol, QStringLiteral("05/05/2002"));
        }
        QObject::connect(Sheet, &SheetWidget::ButtonClick, [this] { ++ButtonClicks; });
    }
    void Declare(int col, FieldControlType kind, const char* setting = "", int length = 0, bool useMask = false) const
    {
        Sheet->CreateColumnDataType(col, QStringLiteral("C%1").arg(col), kind, QString::fromLatin1(setting), false,
                                    fcLeft, length, faNil, useMask);
        Sheet->ColWidth(col, 800);
    }

    /// The user goes into a cell of the second row that holds the text.
    void GoTo(int col, const QString& text)
    {
        Sheet->TextMatrix(2, col, text);
        Click({1, buttonCol});
        Click({2, col});
        Kept = Others(col);
    }
    [[nodiscard]] QString Cell(int col) const { return Sheet->TextMatrix(2, col); }
    /// All cells but the one of the second row.
    [[nodiscard]] QStringList Others(int col) const
    {
        QStringList others;
        for (int row = 0; row < Sheet->Rows(); ++row)
            for (int at = 0; at < Sheet->Cols(); ++at)
                if (row != 2 || at != col)
                    others += Sheet->TextMatrix(row, at);
        return others;
    }
    static void Paste(const QString& text)
    {
        Copy(text);
        Ctrl(Qt::Key_V);
    }
    /// The line that has the focus.
    [[nodiscard]] static QLineEdit& Line() { return Focused<QLineEdit>(); }

    QStringList Kept;
    int ButtonClicks = 0;
};

} // namespace

TEST_F(Pasting, OddText_IsShownInOneLine_AndTheCellHoldsWhatIsShown)
{
    for (const int col : lineCols) {
        for (const Odd& odd : OddTexts()) {
            GoTo(col, QString());
            Paste(odd.Pasted);
            EXPECT_TRUE(Line().text() == odd.Shown) << odd.Name << ": " << Line().text().left(40).toStdString();
            EXPECT_TRUE(Cell(col) == Trimmed(odd.Shown)) << odd.Name << ": " << Cell(col).left(40).toStdString();
            EXPECT_EQ(Others(col), Kept) << odd.Name;
        }
    }
}

TEST_F(Pasting, OddText_StaysInTheCell_ThroughLeavingAndEntering)
{
    for (const int col : lineCols) {
        for (const Odd& odd : OddTexts()) {
            GoTo(col, QString());
            Paste(odd.Pasted);
            Click({1, buttonCol});
            EXPECT_TRUE(Cell(col) == Trimmed(odd.Shown)) << odd.Name;
            Click({2, col});
            EXPECT_TRUE(Line().text() == Trimmed(odd.Shown)) << odd.Name;
            EXPECT_TRUE(Cell(col) == Trimmed(odd.Shown)) << odd.Name;
            EXPECT_EQ(Others(col), Kept) << odd.Name;
        }
    }
}

TEST_F(Pasting, Undo_TakesThePastedTextBack_InTheCellToo)
{
    for (const int col : lineCols) {
        for (const Odd& odd : OddTexts()) {
            GoTo(col, QStringLiteral("old"));
            Paste(odd.Pasted);
            EXPECT_TRUE(Line().text() == odd.Shown + QStringLiteral("old")) << odd.Name;
            Ctrl(Qt::Key_Z);
            EXPECT_EQ(Line().text().left(40), QStringLiteral("old")) << odd.Name;
            EXPECT_EQ(Cell(col).left(40), QStringLiteral("old")) << odd.Name;
        }
    }
}

TEST_F(Pasting, UndoBehindAPasteOverASelection_BringsTheSelectedTextBack)
{
    for (const int col : lineCols) {
        for (const Odd& odd : OddTexts()) {
            GoTo(col, QStringLiteral("old"));
            Ctrl(Qt::Key_A);
            Paste(odd.Pasted);
            EXPECT_TRUE(Cell(col) == Trimmed(odd.Shown)) << odd.Name;
            Ctrl(Qt::Key_Z);
            EXPECT_EQ(Line().text().left(40), QStringLiteral("old")) << odd.Name;
            EXPECT_EQ(Cell(col).left(40), QStringLiteral("old")) << odd.Name;
        }
    }
}

TEST_F(Pasting, Escape_BringsTheOldTextBack)
{
    for (const int col : lineCols) {
        for (const Odd& odd : OddTexts()) {
            GoTo(col, QStringLiteral("old"));
            Paste(odd.Pasted);
            Key(Qt::Key_Escape);
            EXPECT_EQ(Cell(col).left(40), QStringLiteral("old")) << odd.Name;
            EXPECT_EQ(Others(col), Kept) << odd.Name;
        }
    }
}

// ---- Lines and masks ------------------------------------------------------------------------------------------------

TEST_F(Pasting, OddTextInARichTextBox_KeepsItsLinesAndTabs)
{
    for (const Odd& odd : OddTexts()) {
        GoTo(richCol, QString());
        Paste(odd.Pasted);
        EXPECT_TRUE(Cell(richCol) == Trimmed(odd.Lines)) << odd.Name;
        Ctrl(Qt::Key_Z);
        EXPECT_EQ(Cell(richCol), QString()) << odd.Name;
        Paste(odd.Pasted);
        Click({1, buttonCol});
        Click({2, richCol});
        EXPECT_TRUE(Cell(richCol) == Trimmed(odd.Lines)) << odd.Name;
        EXPECT_EQ(Others(richCol), Kept) << odd.Name;
    }
}

TEST_F(Pasting, UndoInARichTextBox_BringsTheOldTextBack)
{
    for (const Odd& odd : OddTexts()) {
        GoTo(richCol, QStringLiteral("old"));
        Paste(odd.Pasted);
        EXPECT_TRUE(Cell(richCol) == Trimmed(odd.Lines + QStringLiteral("old"))) << odd.Name;
        Ctrl(Qt::Key_Z);
        EXPECT_EQ(Cell(richCol).left(40), QStringLiteral("old")) << odd.Name;
    }
}

TEST_F(Pasting, VeryLongWordInARichTextBox_IsTypedInAndEnteredWithoutDelay)
{
    GoTo(richCol, QString());
    QElapsedTimer watch;
    watch.start();
    Paste(QString(100'000, QLatin1Char('x')));
    Type(QStringLiteral("abc"));
    Click({1, buttonCol});
    Click({2, richCol});
    Key(Qt::Key_Delete);
    EXPECT_LT(watch.elapsed(), 3000);
    EXPECT_TRUE(Cell(richCol) == QString(99'999, QLatin1Char('x')) + QStringLiteral("abc"));
}

TEST_F(Pasting, Mask_TakesWhatFits_AndUndoBringsTheOldTextBack)
{
    using namespace std::string_view_literals;
    const std::pair<std::u16string_view, std::u16string_view> cases[] = {
        {u"99"sv, u"99/34"sv},
        {u"9\r\n8\t7\0/6"sv, u"98/76"sv},
        {u"\U0001F6009\u0301"sv, u"92/34"sv},
        {u"\xD83D\xDE00\xD83D"sv, u"12/34"sv},
        {u"abc"sv, u"12/34"sv},
        {u"98765432"sv, u"98/76"sv},
        {u"\u0661\u0662"sv, u"12/34"sv}, // No digits of a mask.
    };
    for (const auto& [pasted, cell] : cases) {
        GoTo(maskCol, QStringLiteral("12/34"));
        Paste(OwnText(pasted));
        EXPECT_EQ(Cell(maskCol), OwnText(cell));
        EXPECT_EQ(Line().text(), OwnText(cell));
        EXPECT_EQ(Others(maskCol), Kept);
        Ctrl(Qt::Key_Z);
        EXPECT_EQ(Cell(maskCol), QStringLiteral("12/34"));
    }
    for (const char16_t unit : {u'7', u'x', u'\n', u'\0'}) {
        GoTo(maskCol, QString());
        Paste(QString(100'000, QChar(unit)));
        EXPECT_EQ(Cell(maskCol), unit == u'7' ? QStringLiteral("77/77") : QString());
    }
}

// ---- The limit ------------------------------------------------------------------------------------------------------

TEST_F(Pasting, Limit_LetsInWhatHasRoom_AndCutsNoPair)
{
    using namespace std::string_view_literals;
    const std::pair<std::u16string_view, std::u16string_view> cases[] = {
        {u"0123456789"sv, u"01234abc"sv}, // Room for five.
        {u"0123\U0001F600"sv, u"0123abc"sv},
        {u"012\U0001F600x"sv, u"012\U0001F600abc"sv},
        {u"0\r\n1\r\n23"sv, u"0 1 2abc"sv}, // A break is one blank.
        {u"\r\n\r\n\r\n\r\n\r\n\r\n"sv, u"     abc"sv},
        {u"e\u0301e\u0301e\u0301"sv, u"e\u0301e\u0301eabc"sv}, // The limit counts units.
    };
    for (const auto& [pasted, shown] : cases) {
        GoTo(limitedCol, QStringLiteral("abc"));
        Paste(OwnText(pasted));
        EXPECT_EQ(Line().text(), OwnText(shown));
        EXPECT_EQ(Cell(limitedCol), Trimmed(OwnText(shown)));
        EXPECT_EQ(Others(limitedCol), Kept);
        Ctrl(Qt::Key_Z);
        EXPECT_EQ(Cell(limitedCol), QStringLiteral("abc"));
    }
}

TEST_F(Pasting, FullBox_TakesNothing_AndUndoStillReachesWhatWasTyped)
{
    GoTo(limitedCol, QString());
    Type(QStringLiteral("12345678"));
    Paste(QStringLiteral("x"));
    EXPECT_EQ(Cell(limitedCol), QStringLiteral("12345678"));
    Type(QStringLiteral("9"));
    EXPECT_EQ(Cell(limitedCol), QStringLiteral("12345678"));
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Cell(limitedCol), QString());
}

TEST_F(Pasting, VeryLongTextInALimitedBox_FillsItAndNoMore)
{
    GoTo(limitedCol, QStringLiteral("abc"));
    Ctrl(Qt::Key_A);
    Paste(QString(100'000, QLatin1Char('x')));
    EXPECT_EQ(Cell(limitedCol), QStringLiteral("xxxxxxxx"));
    Ctrl(Qt::Key_Z);
    EXPECT_EQ(Cell(limitedCol), QStringLiteral("abc"));
}

TEST_F(Pasting, UndoOfADeletion_BringsBackWhatCodeHadWritten_OverTheLimitOrInLines)
{
    for (const QString& text : {QStringLiteral("longer than eight"), QStringLiteral("a\r\nb")}) {
        GoTo(limitedCol, text);
        Ctrl(Qt::Key_A);
        Key(Qt::Key_Delete);
        EXPECT_EQ(Cell(limitedCol), QString());
        Ctrl(Qt::Key_Z);
        EXPECT_EQ(Line().text(), text);
        EXPECT_EQ(Cell(limitedCol), text);
    }
}

// ---- The menu -------------------------------------------------------------------------------------------------------

TEST_F(Pasting, PasteOfTheMenu_FitsTheLineAndTheLimit_AndIsUndone)
{
    const auto menu = [this](const char* name) {
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(3, 3), Line().mapToGlobal(QPoint(3, 3)));
        QCoreApplication::sendEvent(&Line(), &asked);
        auto* const opened = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(opened, nullptr);
        for (QAction* action : opened->actions())
            if (action->text().startsWith(QLatin1String(name)))
                action->trigger();
        opened->close();
        Window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
        QCoreApplication::processEvents();
    };
    GoTo(limitedCol, QStringLiteral("abc"));
    Copy(QStringLiteral("0\r\n1\n2345"));
    menu("&Paste");
    EXPECT_EQ(Line().text(), QStringLiteral("0 1 2abc"));
    EXPECT_EQ(Cell(limitedCol), QStringLiteral("0 1 2abc"));
    menu("&Undo");
    EXPECT_EQ(Cell(limitedCol), QStringLiteral("abc"));
    menu("&Redo");
    EXPECT_EQ(Cell(limitedCol), QStringLiteral("0 1 2abc"));
    GoTo(limitedCol, QStringLiteral("longer than eight"));
    Ctrl(Qt::Key_A);
    Key(Qt::Key_Delete);
    menu("&Undo");
    EXPECT_EQ(Cell(limitedCol), QStringLiteral("longer than eight"));
    Paste(QStringLiteral("\n"));
    EXPECT_EQ(Cell(limitedCol), QString()); // In place of the selection that came back, too.
    EXPECT_EQ(Others(limitedCol), Kept);
}

// ---- What takes no text ---------------------------------------------------------------------------------------------

TEST_F(Pasting, ListCheckButtonAndDate_TakeNothing)
{
    for (const int col : {listCol, checkCol, buttonCol, dateCol}) {
        GoTo(col, Cell(col));
        const QString before = Cell(col);
        const auto focus = std::u16string(FocusName());
        for (const Odd& odd : OddTexts()) {
            Paste(odd.Pasted);
            EXPECT_EQ(Cell(col), before) << odd.Name;
            EXPECT_EQ(FocusName(), focus) << odd.Name;
            EXPECT_EQ(Others(col), Kept) << odd.Name;
        }
    }
    EXPECT_EQ(ButtonClicks, 0);
}

TEST_F(Pasting, Grid_TakesNothing)
{
    GoTo(wideCol, QStringLiteral("old"));
    Key(Qt::Key_Escape);
    ASSERT_EQ(FocusName(), u"MSFlexGrid1");
    for (const Odd& odd : OddTexts())
        Paste(odd.Pasted);
    EXPECT_EQ(Cell(wideCol), QStringLiteral("old"));
    EXPECT_EQ(Others(wideCol), Kept);
    EXPECT_EQ(FocusName(), u"MSFlexGrid1");
}

} // namespace Tessellon
