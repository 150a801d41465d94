#include "examples/window/Clerk.h"

#include "orders/EventsPanel.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenuBar>
#include <QSet>
#include <QTest>

#include <fstream>

namespace Orders {

namespace {

constexpr int customer = 2;
constexpr int phone = 9;
constexpr Qt::KeyboardModifiers ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;

std::string Edit(int row, int col, const QString& text)
{
    return QStringLiteral("%1, %2: %3").arg(row).arg(col).arg(text).toStdString();
}

TEST_F(Clerk, NewRow_StandsBehindTheCurrentOne_WithItsEditorUp)
{
    Open();
    GoTo(5, phone);
    const QString next = Sheet().TextMatrix(6, customer);
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Orders(), 41);
    EXPECT_EQ(Edited(), Edit(6, customer, {}));
    EXPECT_EQ(Sheet().TextMatrix(7, customer), next);
    Type(QStringLiteral("Ada"));
    EXPECT_EQ(Sheet().TextMatrix(6, customer), QStringLiteral("Ada"));
    EXPECT_TRUE(Window().isWindowModified());
}

TEST_F(Clerk, NewRowAtTheEnd_IsTheLast)
{
    Open();
    GoTo(5, phone);
    Press(Qt::Key_N, ctrlShift);
    EXPECT_EQ(Edited(), Edit(41, customer, {}));
    EXPECT_EQ(Message(), "Row 41 is new. It is kept in this window only.");
}

TEST_F(Clerk, NewRow_InASheetWithoutAny_IsTheFirst)
{
    Open(0);
    EXPECT_EQ(Summary(), "No orders. Ctrl+N makes one.");
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Edited(), Edit(1, customer, {}));
    Press(Qt::Key_N, ctrlShift);
    EXPECT_EQ(Edited(), Edit(2, customer, {}));
}

TEST_F(Clerk, RefusedValidation_KeepsTheUserInTheCell)
{
    Open();
    QObject::connect(&Sheet(), &Tessellon::SheetWidget::EditorValidate, &Window(), [](bool& cancel) { cancel = true; });
    GoTo(5, phone);
    Type(QStringLiteral("X"));
    const std::string before = Edited();
    Press(Qt::Key_N, Qt::ControlModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    Press(Qt::Key_F5);
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Edited(), before);
    EXPECT_EQ(Orders(), 40);
}

TEST_F(Clerk, DayThatIsHalfTyped_IsTakenAheadOfACommand)
{
    constexpr int ordered = 4;
    Open();
    Sheet().TextMatrix(5, ordered, QStringLiteral("2024-03-15"));
    GoTo(5, ordered);
    Press(Qt::Key_End);
    Type(QStringLiteral("2"));
    EXPECT_EQ(Sheet().TextMatrix(5, ordered), QStringLiteral("2024-03-15"));
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Sheet().TextMatrix(5, ordered), QStringLiteral("2024-03-02"));
    EXPECT_EQ(Edited(), Edit(6, customer, {}));
}

TEST_F(Clerk, Delete_AsksAndIsCancelledByEscAndByEnter)
{
    Open();
    GoTo(5, phone);
    const QString text = Sheet().TextMatrix(5, phone);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        AnswerNextBox(key);
        Press(Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_EQ(Orders(), 40);
        EXPECT_EQ(Edited(), Edit(5, phone, text));
    }
    EXPECT_EQ(Boxes, 2);
    EXPECT_FALSE(Window().isWindowModified());
}

TEST_F(Clerk, Delete_EntersTheRowThatTakesThePlace)
{
    Open();
    GoTo(5, phone);
    const QString next = Sheet().TextMatrix(6, phone);
    AnswerNextBox(Qt::Key_D, Qt::AltModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Orders(), 39);
    EXPECT_EQ(Edited(), Edit(5, phone, next));
    EXPECT_TRUE(Message().starts_with("Row 5 is deleted: 10005"));
}

TEST_F(Clerk, DeleteOfTheLastRow_EntersTheOneAbove)
{
    Open();
    GoTo(40, phone);
    const QString above = Sheet().TextMatrix(39, phone);
    AnswerNextBox(Qt::Key_D, Qt::AltModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Edited(), Edit(39, phone, above));
}

TEST_F(Clerk, DeleteOfTheOnlyRow_LeavesNone_AndAnotherDeleteSaysSo)
{
    Open(1);
    GoTo(1, phone);
    AnswerNextBox(Qt::Key_D, Qt::AltModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Orders(), 0);
    EXPECT_EQ(Summary(), "No orders. Ctrl+N makes one.");
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Message(), "There is no row to delete.");
    EXPECT_EQ(Boxes, 1);
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Edited(), Edit(1, customer, {}));
}

TEST_F(Clerk, Reload_WithoutEdits_AsksNothingAndKeepsThePlace)
{
    Open();
    GoTo(7, phone);
    InDatabase("DELETE FROM orders WHERE id < 10004; UPDATE orders SET phone = '+47 55' WHERE id = 10007");
    Press(Qt::Key_F5);
    EXPECT_EQ(Orders(), 37);
    EXPECT_EQ(Edited(), Edit(4, phone, QStringLiteral("+47 55")));
    EXPECT_EQ(Boxes, 0);
}

TEST_F(Clerk, Reload_WithEdits_AsksFirst)
{
    Open();
    GoTo(7, phone);
    const QString stored = Sheet().TextMatrix(7, phone);
    Type(QStringLiteral("X"));
    AnswerNextBox(Qt::Key_Escape);
    Press(Qt::Key_F5);
    EXPECT_EQ(Edited(), Edit(7, phone, u'X' + stored));
    AnswerNextBox(Qt::Key_R, Qt::AltModifier);
    Press(Qt::Key_F5);
    EXPECT_EQ(Edited(), Edit(7, phone, stored));
    EXPECT_FALSE(Window().isWindowModified());
    EXPECT_EQ(Boxes, 2);
}

TEST_F(Clerk, Reload_AsksAlsoBehindACheckBox)
{
    constexpr int paid = 7;
    Open();
    GoTo(7, paid);
    Press(Qt::Key_Space);
    AnswerNextBox(Qt::Key_Escape);
    Press(Qt::Key_F5);
    EXPECT_EQ(Boxes, 1);
}

TEST_F(Clerk, ReloadOfATableThatIsEmptyNow_EmptiesTheSheet)
{
    Open();
    GoTo(7, phone);
    InDatabase("DELETE FROM orders");
    Press(Qt::Key_F5);
    EXPECT_EQ(Orders(), 0);
    InDatabase("INSERT INTO orders SELECT 1, 'Ada', 'Bergen', '2024-01-01', 5, 'NOK', '+47 55', 1, 0, NULL");
    Press(Qt::Key_F5);
    EXPECT_EQ(Orders(), 1);
    GoTo(1, phone);
    EXPECT_EQ(Edited(), Edit(1, phone, QStringLiteral("+47 55")));
}

TEST_F(Clerk, ReloadOfADatabaseThatIsGone_SaysSoAndKeepsTheRows)
{
    Open();
    GoTo(7, phone);
    const QString text = Sheet().TextMatrix(7, phone);
    std::filesystem::remove(Database());
    AnswerNextBox(Qt::Key_Return);
    Press(Qt::Key_F5);
    EXPECT_EQ(Boxes, 1);
    EXPECT_EQ(Orders(), 40);
    EXPECT_EQ(Edited(), Edit(7, phone, text));
}

TEST_F(Clerk, SlipOfARow_IsCopiedByEnter_WhichGoesOnToTheNextRow)
{
    constexpr int slip = 11;
    Open();
    const char* const texts[] = {"Ada", "Bergen", "2024-01-01", "12.5", "NOK"};
    for (int col = 2; const char* const text : texts)
        Sheet().TextMatrix(5, col++, QString::fromLatin1(text));
    GoTo(5, slip);
    Press(Qt::Key_Return);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "Order 10005 of 2024-01-01\nAda, Bergen\n12.5 NOK\n");
    EXPECT_EQ(Edited(), Edit(6, customer, Sheet().TextMatrix(6, customer)));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Message() == "The slip of row 5 is on the clipboard."; }));
}

TEST_F(Clerk, Database_IsNeverWritten)
{
    const auto bytes = [this] {
        std::ifstream file(Database(), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    Open();
    std::filesystem::permissions(Database(), std::filesystem::perms::owner_read);
    const std::string before = bytes();
    GoTo(5, phone);
    Type(QStringLiteral("X"));
    Press(Qt::Key_N, Qt::ControlModifier);
    Type(QStringLiteral("Ada"));
    AnswerNextBox(Qt::Key_D, Qt::AltModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Orders(), 40);
    EXPECT_EQ(bytes(), before);
    AnswerNextBox(Qt::Key_R, Qt::AltModifier);
    Press(Qt::Key_F5);
    EXPECT_EQ(Boxes, 2);
    EXPECT_FALSE(Window().isWindowModified());
}

TEST_F(Clerk, PanelOfEvents_GoesAndComes_WhileTheEditorKeepsTheFocus)
{
    Open();
    GoTo(5, phone);
    const std::string before = Edited();
    const auto* const panel = Window().findChild<EventsPanel*>();
    Press(Qt::Key_F9);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(Edited(), before);
    Press(Qt::Key_F9);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(Edited(), before);
}

TEST_F(Clerk, EachCommand_HasAKeyOfItsOwn_WhichTheMenusAndTheHelpShow)
{
    Open();
    QSet<QString> keys;
    for (const QAction* const menu : Window().menuBar()->actions()) {
        for (const QAction* const command : menu->menu()->actions()) {
            if (command->isSeparator())
                continue;
            const QString shortcut = command->shortcut().toString();
            EXPECT_FALSE(shortcut.isEmpty() || keys.contains(shortcut)) << command->text().toStdString();
            keys.insert(shortcut);
        }
    }
    EXPECT_EQ(keys.size(), 10);
    GoTo(5, phone);
    const std::string before = Edited();
    QString help;
    InNextBox([&](QWidget& box) {
        help = box.property("text").toString();
        QMetaObject::invokeMethod(&box, "reject");
    });
    Press(Qt::Key_F1);
    for (const QString& key : keys)
        EXPECT_TRUE(help.contains(key)) << key.toStdString();
    EXPECT_EQ(Edited(), before);
}

} // namespace

} // namespace Orders
