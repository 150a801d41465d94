#include "orders/EventsPanel.h"

#include "orders/EventLog.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace Orders {

namespace {

class EventsPanelTest : public testing::Test {
protected:
    EventsPanelTest() { panel_.show(); }

    QListView& List() { return *panel_.findChild<QListView*>(); }
    QLineEdit& Words() { return *panel_.findChild<QLineEdit*>(); }
    int Shown() { return List().model()->rowCount(); }
    QString Line(int row) { return List().model()->index(row, 0).data().toString(); }
    void AddMany(int count)
    {
        for (int number = 1; number <= count; ++number)
            log_.Add(QStringLiteral("KeyDown"), QString::number(number));
    }

    EventLog log_;
    EventsPanel panel_{log_};
};

TEST_F(EventsPanelTest, Events_AreShownInTheirOrderAMomentLater)
{
    log_.Add(QStringLiteral("KeyDown"), QStringLiteral("13"));
    log_.Add(QStringLiteral("Scroll"), {});
    EXPECT_EQ(Shown(), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == 2; }));
    EXPECT_EQ(Line(0), QStringLiteral("KeyDown 13"));
    EXPECT_EQ(Line(1), QStringLiteral("Scroll"));
}

TEST_F(EventsPanelTest, Filter_LeavesLinesWithAllItsWords)
{
    log_.Add(QStringLiteral("KeyDown"), QStringLiteral("13"));
    log_.Add(QStringLiteral("KeyUp"), QStringLiteral("13"));
    log_.Add(QStringLiteral("KeyUp"), QStringLiteral("27"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == 3; }));
    QTest::keyClicks(&Words(), QStringLiteral("13 keyup"));
    ASSERT_EQ(Shown(), 1);
    EXPECT_EQ(Line(0), QStringLiteral("KeyUp 13"));
    log_.Add(QStringLiteral("KeyUp"), QStringLiteral("130"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == 2; }));
    Words().clear();
    EXPECT_EQ(Shown(), 4);
}

TEST_F(EventsPanelTest, OnlyTheLatestThousand_AreKept)
{
    AddMany(700);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == 700; }));
    AddMany(700);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == EventLog::MostLines; }));
    EXPECT_EQ(Line(0), QStringLiteral("KeyDown 401"));
    EXPECT_EQ(Line(999), QStringLiteral("KeyDown 700"));
    AddMany(5000);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Line(999) == QStringLiteral("KeyDown 5000"); }));
    EXPECT_EQ(Shown(), EventLog::MostLines);
    EXPECT_EQ(Line(0), QStringLiteral("KeyDown 4001"));
}

TEST_F(EventsPanelTest, Swarms_AreCountedInOneLine)
{
    for (int x = 0; x < 3; ++x)
        log_.AddOrCount(QStringLiteral("MouseDown"), QStringLiteral("x %1").arg(x));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == 1; }));
    EXPECT_EQ(Line(0), QStringLiteral("MouseDown x 2 (3 times)"));
    log_.AddOrCount(QStringLiteral("MouseDown"), QStringLiteral("x 9"));
    EXPECT_EQ(Line(0), QStringLiteral("MouseDown x 9 (4 times)"));
    log_.Add(QStringLiteral("Scroll"), {});
    log_.AddOrCount(QStringLiteral("MouseDown"), QStringLiteral("x 5"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == 3; }));
    EXPECT_EQ(Line(2), QStringLiteral("MouseDown x 5"));
}

TEST_F(EventsPanelTest, List_FollowsTheLatestUntilTheUserScrollsUp)
{
    AddMany(300);
    QScrollBar& bar = *List().verticalScrollBar();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.maximum() > 0 && bar.value() == bar.maximum(); }));
    bar.setValue(bar.maximum() / 2);
    const int there = bar.value();
    AddMany(10);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == 310; }));
    QTest::qWait(50);
    EXPECT_EQ(bar.value(), there);
    bar.setValue(bar.maximum());
    AddMany(10);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == 320 && bar.value() == bar.maximum(); }));
}

TEST_F(EventsPanelTest, Clear_EmptiesTheList)
{
    AddMany(20);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == 20; }));
    AddMany(20);
    QTest::mouseClick(panel_.findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_EQ(Shown(), 0);
    QTest::qWait(50);
    EXPECT_EQ(Shown(), 0);
}

TEST_F(EventsPanelTest, AMillionEvents_CostLittle)
{
    QElapsedTimer timer;
    timer.start();
    AddMany(1'000'000);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown() == EventLog::MostLines; }));
    EXPECT_LT(timer.elapsed(), 5'000);
}

} // namespace

} // namespace Orders

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
