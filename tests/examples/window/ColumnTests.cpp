#include "examples/window/Clerk.h"

#include "orders/BandColors.h"
#include "orders/FindBar.h"

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QLineEdit>
#include <QTest>

namespace Orders {

namespace {

constexpr int number = 1;
constexpr int customer = 2;
constexpr int ordered = 4;
constexpr int amount = 5;
constexpr int paid = 7;

class FindInColumn : public Clerk {
protected:
    void Fill(const QStringList& names)
    {
        Open(static_cast<int>(names.size()));
        for (int row = 1; row <= names.size(); ++row)
            Sheet().TextMatrix(row, customer, names[row - 1]);
        GoTo(1, customer);
        Press(Qt::Key_F, Qt::ControlModifier);
    }
    int Find(const QString& text)
    {
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(text);
        Press(Qt::Key_Return);
        return Sheet().Row();
    }
};

TEST_F(FindInColumn, TakesTheCellThatIsTheText_AheadOfThoseThatContainIt)
{
    Fill({"Porto", "Portland", "land", "Lyon"});
    EXPECT_EQ(Find("land"), 3);
    EXPECT_EQ(Message(), "“land” is in row 3.");
    EXPECT_TRUE(IsInFindBar());
}

TEST_F(FindInColumn, GoesOnDownwardAndRound_InWhateverCase)
{
    Fill({"Porto", "Lyon", "Portland", "Porto"});
    EXPECT_EQ(Find("PORT"), 1);
    Press(Qt::Key_Return);
    EXPECT_EQ(Sheet().Row(), 3);
    Press(Qt::Key_Return);
    EXPECT_EQ(Sheet().Row(), 4);
    Press(Qt::Key_Return);
    EXPECT_EQ(Sheet().Row(), 1);
    EXPECT_EQ(Find("lyon"), 2);
    Press(Qt::Key_Return);
    EXPECT_EQ(Sheet().Row(), 2);
}

TEST_F(FindInColumn, NothingFound_IsSaidAndMovesNothing)
{
    Fill({"Porto", "Lyon"});
    EXPECT_EQ(Find("lyon"), 2);
    EXPECT_EQ(Find("Bergen %2"), 2);
    EXPECT_EQ(Message(), "“Bergen %2” is not in Customer.");
    EXPECT_TRUE(IsInFindBar());
    EXPECT_EQ(Find("  "), 2);
    EXPECT_EQ(Message(), "Type what is to be found.");
}

TEST_F(FindInColumn, Esc_GoesToTheEditorOfTheCellThatWasFound)
{
    Fill({"Porto", "Lyon", "Bergen"});
    Find("berg");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Edited(), "3, 2: Bergen");
    EXPECT_FALSE(Window().findChild<FindBar*>()->isVisible());
    Type(QStringLiteral("X"));
    EXPECT_EQ(Sheet().TextMatrix(3, customer), QStringLiteral("XBergen"));
}

TEST_F(FindInColumn, F3_GoesOnFromTheSheet)
{
    Fill({"Porto", "Lyon", "Portland"});
    Find("port");
    Press(Qt::Key_Escape);
    Press(Qt::Key_F3);
    EXPECT_EQ(Edited(), "3, 2: Portland");
    Press(Qt::Key_F3);
    EXPECT_EQ(Edited(), "1, 2: Porto");
}

TEST_F(FindInColumn, RowOutOfView_IsEnteredToo)
{
    Open(300);
    Sheet().TextMatrix(150, customer, QStringLiteral("Zoe"));
    Sheet().TextMatrix(290, customer, QStringLiteral("Zoe"));
    GoTo(1, customer);
    Press(Qt::Key_F, Qt::ControlModifier);
    Type(QStringLiteral("Zoe"));
    Press(Qt::Key_Return);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Edited(), "150, 2: Zoe");
    Press(Qt::Key_F3);
    EXPECT_EQ(Edited(), "290, 2: Zoe");
    Press(Qt::Key_F3);
    EXPECT_EQ(Edited(), "150, 2: Zoe");
}

TEST_F(FindInColumn, F3_WithNothingToFind_OpensTheField)
{
    Open();
    GoTo(1, customer);
    Press(Qt::Key_F3);
    EXPECT_TRUE(IsInFindBar());
}

TEST_F(FindInColumn, InASheetWithoutRows_FindsNothing)
{
    Open(0);
    Press(Qt::Key_F, Qt::ControlModifier);
    Type(QStringLiteral("Ada"));
    Press(Qt::Key_Return);
    EXPECT_TRUE(Message().starts_with("“Ada” is not in "));
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsInFindBar());
}

class Summaries : public Clerk {
protected:
    void Fill(const QStringList& amounts)
    {
        Open(static_cast<int>(amounts.size()));
        for (int row = 1; row <= amounts.size(); ++row)
            Sheet().TextMatrix(row, amount, amounts[row - 1]);
        GoTo(1, amount);
    }
};

TEST_F(Summaries, TellSumMinimumAndMaximumOfNumbers)
{
    Fill({"10.5", "-2", "", "none", "3"});
    EXPECT_EQ(Summary(), "Amount: sum 11.50, minimum -2.00, maximum 10.50");
}

TEST_F(Summaries, FollowWhatIsTyped)
{
    Fill({"10", "5"});
    Type(QStringLiteral("1"));
    EXPECT_EQ(Summary(), "Amount: sum 115.00, minimum 5.00, maximum 110.00");
    AnswerNextBox(Qt::Key_D, Qt::AltModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Summary(), "Amount: sum 5.00, minimum 5.00, maximum 5.00");
}

TEST_F(Summaries, FollowTheColumn)
{
    Open(3);
    for (int row = 1; row <= 3; ++row) {
        Sheet().TextMatrix(row, customer, QStringLiteral("C%1").arg(row));
        Sheet().TextMatrix(row, ordered, QStringLiteral("2024-01-0%1").arg(row));
    }
    GoTo(2, customer);
    EXPECT_EQ(Summary(), "Customer: text, minimum “C1”, maximum “C3”");
    GoTo(2, ordered);
    EXPECT_EQ(Summary(), "Ordered: dates, minimum 2024-01-01, maximum 2024-01-03");
    GoTo(2, paid);
    EXPECT_EQ(Summary(), "Paid: nothing to add up");
    GoTo(2, number);
    EXPECT_EQ(Summary(), "Number: sum 30,006, minimum 10001, maximum 10003");
}

TEST_F(Summaries, ColumnOfBlanks_IsEmpty)
{
    Fill({"", " "});
    EXPECT_EQ(Summary(), "Amount: empty");
}

TEST_F(Summaries, SumPastAllNumbers_IsToldWithoutABox)
{
    Fill({"1E308", "1E308"});
    EXPECT_TRUE(Summary().starts_with("Amount: sum past all numbers, minimum 1"));
    EXPECT_TRUE(Sheet().ShowErrMessage());
}

class BandsOfRows : public Clerk {
protected:
    QColor ColorOf(int row) const
    {
        constexpr QSize cell(21, 21);
        const QImage picture = Sheet().grab().toImage();
        return picture.pixelColor(3 * cell.width(), row * cell.height() + 3);
    }
};

TEST_F(BandsOfRows, AreChosenWithTheKeys_AndGoBackToTheDesktops)
{
    Open();
    GoTo(5, customer);
    const std::string before = Edited();
    const QColor odd = ColorOf(3);
    const QColor even = ColorOf(4);
    InNextBox([this](QWidget& box) {
        InNextBox([](QWidget& colors) {
            QTest::keyClick(&colors, Qt::Key_H, Qt::AltModifier);
            auto* const html = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            ASSERT_NE(html, nullptr);
            QTest::keyClick(html, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(html, QStringLiteral("#ffeecc"));
            QTest::keyClick(html, Qt::Key_Return);
        });
        QTest::keyClick(box.focusWidget(), Qt::Key_Space);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    Press(Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Edited(), before);
    EXPECT_EQ(ColorOf(3), QColor(0xff, 0xee, 0xcc));
    EXPECT_EQ(ColorOf(4), even);
    AnswerNextBox(Qt::Key_Escape);
    Press(Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(ColorOf(3), QColor(0xff, 0xee, 0xcc));
    InNextBox([](QWidget& box) {
        QTest::keyClick(&box, Qt::Key_K, Qt::AltModifier);
        // A button that is pressed by its letter is seen going down and up.
        auto& colors = dynamic_cast<BandColorsBox&>(box);
        EXPECT_TRUE(QTest::qWaitFor([&] { return colors.Colors().Odd != QColor(0xff, 0xee, 0xcc); }));
        QTest::keyClick(&box, Qt::Key_Return);
    });
    Press(Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Edited(), before);
    EXPECT_EQ(ColorOf(3), odd);
    EXPECT_EQ(Boxes, 4);
}

TEST_F(BandsOfRows, StayAsChosenBehindALoad)
{
    Open();
    Sheet().BackColor(1, Tessellon::Yellow);
    Press(Qt::Key_F5);
    EXPECT_EQ(ColorOf(3), QColor(Qt::yellow));
}

} // namespace

} // namespace Orders
