#include "examples/window/Clerk.h"

#include "orders/LoadBar.h"
#include "orders/QuerySource.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QTest>

#include <stdexcept>

namespace Orders {

namespace {

using namespace Tessellon;

std::vector<Roads::Field> Fields(const std::vector<std::int32_t>& types)
{
    std::vector<Roads::Field> fields;
    for (const std::int32_t type : types)
        fields.push_back({u"field", type});
    return fields;
}

class QueryRows : public Clerk {
protected:
    [[nodiscard]] std::string Text(int row, int col) const { return Sheet().TextMatrix(row, col).toStdString(); }
    [[nodiscard]] std::string Heading(int col) const { return Sheet().ColumnHeader(col).toStdString(); }
    [[nodiscard]] std::string RefusalOf(const std::string& query) const
    {
        try {
            OpenQuery("sqlite:" + Database().string(), query);
            return {};
        } catch (const std::runtime_error& refusal) {
            return refusal.what();
        }
    }
    /// What the cell holds when this is typed in place of what it held.
    std::string Typed(int row, int col, const QString& text)
    {
        GoTo(row, col);
        EXPECT_TRUE(QTest::qWaitFor([this] { return Sheet().isAncestorOf(QApplication::focusWidget()); }));
        Press(Qt::Key_A, Qt::ControlModifier);
        Clerk::Type(text);
        Press(Qt::Key_Return);
        return Text(row, col);
    }
};

} // namespace

TEST(ColumnsOfFields, HaveTheEditorOfTheirType)
{
    const Columns columns = ColumnsOf(Fields({11, 133, 3, 131, 5, 202, 203, 205, 72}));
    const auto kind = [&](int col) { return columns.At(col)->Kind; };
    EXPECT_EQ(kind(1), fcCheckBox);
    EXPECT_EQ(kind(2), fcDatePicker);
    for (int col = 3; col <= 5; ++col) {
        EXPECT_EQ(kind(col), fcMaskedEditBox) << col;
        EXPECT_EQ(columns.At(col)->Setting, QString()) << "without a mask, which would have no place for a sign";
        EXPECT_EQ(columns.At(col)->Alignment, fcRight) << col;
    }
    for (int col = 6; col <= 9; ++col)
        EXPECT_EQ(kind(col), fcTextBox) << col;
    EXPECT_EQ(columns.At(6)->Alignment, fcLeft);
    EXPECT_EQ(columns.At(10), nullptr);
    EXPECT_EQ(columns.Key, 0);
}

TEST(ColumnsOfFields, WriteDatesWithAsMuchAsTheirTypesHave)
{
    const auto format = [](const std::vector<std::int32_t>& types) { return ColumnsOf(Fields(types)).DateFormat; };
    EXPECT_EQ(format({133, 202}), QStringLiteral("yyyy-MM-dd"));
    EXPECT_EQ(format({202}), QStringLiteral("yyyy-MM-dd"));
    EXPECT_EQ(format({133, 135}), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    EXPECT_EQ(format({7}), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    EXPECT_EQ(format({134, 134}), QStringLiteral("HH:mm:ss"));
    EXPECT_EQ(format({134, 133}), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

TEST(ColumnsOfFields, CutLongNames_AndKeepThemOnOneLine)
{
    const std::u16string name(5'000, u'x');
    const Columns columns = ColumnsOf({{name, 202}, {u"two\nlines", 202}, {u"", 202}});
    EXPECT_EQ(columns.At(1)->Name, QString(80, u'x') + u'…');
    EXPECT_EQ(columns.At(2)->Name, QStringLiteral("two lines"));
    EXPECT_EQ(columns.At(3)->Name, QString());
}

TEST_F(QueryRows, AreShownByType)
{
    OpenRows("CREATE TABLE t(b BOOLEAN, d DATE, n INTEGER, p DECIMAL(10, 2), r REAL, s TEXT, x BLOB);"
             "INSERT INTO t VALUES (1, '2024-03-15', -12, '-12345.05', 0.1, '  Ada ', x'00ff'),"
             "(NULL, NULL, NULL, NULL, NULL, NULL, NULL)",
             "SELECT * FROM t");
    const char* const first[] = {"True", "2024-03-15", "-12", "-12345.05", "0.1", "Ada", "00FF"};
    const char* const second[] = {"False", "", "0", "0", "0", "", ""};
    const char* const names[] = {"b", "d", "n", "p", "r", "s", "x"};
    for (int col = 1; col <= 7; ++col) {
        EXPECT_EQ(Text(1, col), first[col - 1]) << col;
        EXPECT_EQ(Text(2, col), second[col - 1]) << col;
        EXPECT_EQ(Heading(col), names[col - 1]);
    }
    EXPECT_EQ(Orders(), 2);
    EXPECT_EQ(Window().windowTitle().toStdString(), "2 rows, orders.db[*]");
}

TEST_F(QueryRows, TakeNumbersWithSignAndDecimals)
{
    OpenRows("CREATE TABLE t(n INTEGER, p DECIMAL(10, 2), r REAL); INSERT INTO t VALUES (1, 2.5, 3), (4, 5, 6)",
             "SELECT * FROM t");
    for (int col = 1; col <= 3; ++col) {
        for (const char* const number : {"-12.345", "+7", "0.000001", "-98765432109876543210.5", "1E-5"})
            EXPECT_EQ(Typed(1, col, number), number) << col;
    }
    EXPECT_TRUE(Window().isWindowModified());
}

TEST_F(QueryRows, AreEditedByEachEditor_AndWrittenNowhere)
{
    OpenRows("CREATE TABLE t(b BOOLEAN, d DATE, s TEXT); INSERT INTO t VALUES (1, '2024-03-15', 'Ada')",
             "SELECT * FROM t");
    GoTo(1, 1);
    Press(Qt::Key_Space);
    EXPECT_EQ(Text(1, 1), "False");
    EXPECT_EQ(Typed(1, 3, "Ben"), "Ben");
    AnswerNextBox(Qt::Key_R, Qt::AltModifier);
    Press(Qt::Key_F5);
    EXPECT_EQ(Boxes, 1);
    EXPECT_EQ(Text(1, 1), "True");
    EXPECT_EQ(Text(1, 3), "Ada");
}

TEST_F(QueryRows, OfOneColumn_AreEnteredBehindACommand)
{
    OpenRows("CREATE TABLE t(s TEXT); INSERT INTO t VALUES ('Ada'), ('Ben')", "SELECT s FROM t");
    GoTo(2, 1);
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Edited(), "3, 1: ");
    AnswerNextBox(Qt::Key_R, Qt::AltModifier);
    Press(Qt::Key_F5);
    EXPECT_EQ(Orders(), 2);
    EXPECT_EQ(Edited(), "2, 1: Ben");
}

TEST_F(QueryRows, OfOneCell_AreReloadedIntoIt)
{
    OpenRows("CREATE TABLE t(s TEXT); INSERT INTO t VALUES ('Ada')", "SELECT s FROM t");
    Press(Qt::Key_F5);
    EXPECT_EQ(Boxes, 0);
    EXPECT_EQ(Text(1, 1), "Ada");
}

TEST_F(QueryRows, HaveNoCommandsOfTheOrders)
{
    OpenRows("CREATE TABLE t(s TEXT); INSERT INTO t VALUES ('Ada')", "SELECT s FROM t");
    EXPECT_EQ(Window().menuBar()->actions().front()->text(), QStringLiteral("&Rows"));
    AnswerNextBox(Qt::Key_D, Qt::AltModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Message(), "Row 1 is deleted: Ada.");
    EXPECT_EQ(Summary(), "No rows. Ctrl+N makes one.");
}

TEST_F(QueryRows, AreSummedUpByType)
{
    OpenRows("CREATE TABLE t(b BOOLEAN, d DATE, r REAL, s TEXT);"
             "INSERT INTO t VALUES (1, '2024-03-15', 0.25, 'Ada'), (0, '2023-01-01', -1.5, 'Ben')",
             "SELECT * FROM t");
    GoTo(1, 1);
    EXPECT_EQ(Summary(), "b: nothing to add up");
    GoTo(1, 2);
    EXPECT_EQ(Summary(), "d: dates, minimum 2023-01-01, maximum 2024-03-15");
    GoTo(1, 3);
    EXPECT_EQ(Summary(), "r: sum -1.25, minimum -1.5, maximum 0.25");
    GoTo(1, 4);
    EXPECT_EQ(Summary(), "s: text, minimum “Ada”, maximum “Ben”");
}

TEST_F(QueryRows, WithOtherFieldsByNow_AreReloadedIntoOtherColumns)
{
    OpenRows("CREATE TABLE t(s TEXT); INSERT INTO t VALUES ('Ada')", "SELECT * FROM t");
    InDatabase("ALTER TABLE t ADD COLUMN b BOOLEAN");
    Press(Qt::Key_F5);
    EXPECT_EQ(Sheet().Cols(), 3);
    EXPECT_EQ(Heading(2), "b");
    EXPECT_EQ(Text(1, 1), "Ada");
    EXPECT_EQ(Text(1, 2), "False");
}

TEST_F(QueryRows, OfAQueryThatFailsByNow_StayOnTheScreen)
{
    OpenRows("CREATE TABLE t(s TEXT); INSERT INTO t VALUES ('Ada')", "SELECT * FROM t");
    InDatabase("ALTER TABLE t RENAME TO u");
    std::string words;
    InNextBox([&](QWidget& box) {
        words = box.property("text").toString().toStdString();
        QTest::keyClick(&box, Qt::Key_Return);
    });
    Press(Qt::Key_F5);
    EXPECT_EQ(Boxes, 1);
    EXPECT_EQ(words, "cannot read orders.db: no such table: t");
    EXPECT_EQ(Text(1, 1), "Ada");
    EXPECT_EQ(Orders(), 1);
}

TEST_F(QueryRows, WithSameAndEmptyNames_AreShown)
{
    OpenRows("CREATE TABLE t(s TEXT)", "SELECT 1 AS a, 2 AS a, 3 AS '', 4 AS '  '");
    EXPECT_EQ(Heading(1), "a");
    EXPECT_EQ(Heading(2), "a");
    EXPECT_EQ(Heading(3), "");
    EXPECT_EQ(Text(1, 3), "3");
    EXPECT_EQ(Text(1, 4), "4");
}

TEST_F(QueryRows, WithoutARecord_ShowTheirHeadings)
{
    OpenRows("CREATE TABLE t(s TEXT, n INTEGER)", "SELECT * FROM t");
    EXPECT_EQ(Orders(), 0);
    EXPECT_EQ(Heading(2), "n");
    EXPECT_EQ(Window().windowTitle().toStdString(), "0 rows, orders.db[*]");
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Orders(), 1);
}

TEST_F(QueryRows, WithALongTextInTheFirst_LeaveRoomForTheOtherColumns)
{
    const std::string query = "SELECT s, l FROM t";
    OpenRows("CREATE TABLE t(s TEXT, l TEXT); INSERT INTO t VALUES ('a text of some length', hex(zeroblob(10000000)))",
             query);
    const Columns columns = OpenQuery("sqlite:" + Database().string(), query).Layout;
    EXPECT_EQ(columns.At(1)->Width, faContent);
    EXPECT_EQ(columns.At(2)->Width, faHeader);
    EXPECT_EQ(columns.At(2)->FirstWidth, 420);
    EXPECT_EQ(Boxes, 0);
    EXPECT_EQ(Text(1, 2).size(), 20'000'000U);
}

TEST_F(QueryRows, LeaveTheDatabaseToOthers_OnceTheyAreLoaded)
{
    OpenRows("CREATE TABLE t(s TEXT); INSERT INTO t VALUES ('Ada')", "SELECT * FROM t");
    InDatabase("UPDATE t SET s = 'Ben'");
    Press(Qt::Key_F5);
    EXPECT_EQ(Text(1, 1), "Ben");
    InDatabase("UPDATE t SET s = 'Cid'");
}

TEST_F(QueryRows, OfTwoThousandColumns_AreShown_AndOfMoreRefusedInSqlitesWords)
{
    std::string query = "SELECT 0";
    for (int field = 1; field < 2'000; ++field)
        query += "," + std::to_string(field);
    OpenRows("CREATE TABLE t(s)", query);
    EXPECT_EQ(Sheet().Cols(), 2'001);
    EXPECT_EQ(Text(1, 2'000), "1999");
    for (int field = 2'000; field < 5'000; ++field)
        query += "," + std::to_string(field);
    EXPECT_EQ(RefusalOf(query), "cannot read orders.db: too many columns in result set");
}

TEST_F(QueryRows, WithOddValues_AreShownAsFarAsTheyCanBe)
{
    OpenRows("CREATE TABLE t(n DOUBLE, d DATE, s TEXT, g UNIQUEIDENTIFIER);"
             "INSERT INTO t VALUES (1e999, '12024-01-01', CAST(x'41ff42' AS TEXT), 'abc'),"
             "(-1e999, '0099-12-31', CAST(x'c3' AS TEXT), 'abc'), ('many', 'soon', 'Ada', 'abc')",
             "SELECT * FROM t");
    EXPECT_EQ(Boxes, 0);
    EXPECT_EQ(Text(1, 3), "A\uFFFDB");
    EXPECT_EQ(Text(2, 3), "\uFFFD");
    EXPECT_EQ(Text(1, 2), "12024-01-01");
    EXPECT_EQ(Text(2, 2), "0099-12-31");
    EXPECT_EQ(Text(3, 1), "many");
    EXPECT_EQ(Text(3, 2), "soon");
    EXPECT_EQ(Orders(), 3);
}

TEST_F(QueryRows, ThatCannotBeRead_AreRefusedInSqlitesWords)
{
    InDatabase("CREATE TABLE t(s TEXT)");
    EXPECT_EQ(RefusalOf("SELEC 1"), "cannot read orders.db: near \"SELEC\": syntax error");
    EXPECT_EQ(RefusalOf("SELECT * FROM u"), "cannot read orders.db: no such table: u");
    EXPECT_EQ(RefusalOf("SELECT 1; SELECT 2"), "cannot read orders.db: the query is more than one statement");
    EXPECT_EQ(RefusalOf("DELETE FROM t"), "cannot read orders.db: the query gives no records");
    EXPECT_EQ(RefusalOf(" "), "cannot read orders.db: the query is empty");
}

TEST_F(QueryRows, OfAShortLoad_ShowNoBar)
{
    OpenRows("CREATE TABLE t(s TEXT); INSERT INTO t VALUES ('Ada')", "SELECT * FROM t");
    const auto* const bar = Window().findChild<LoadBar*>();
    ASSERT_NE(bar, nullptr);
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(QueryRows, OfALongLoad_AreCountedInABarUntilItsEnd)
{
    Open(1);
    auto* const bar = Window().findChild<LoadBar*>();
    emit Sheet().loadProgress(0, 1'234'567);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_GT(bar->width(), 100);
    EXPECT_EQ(bar->text().toStdString(), "1,234,567 rows counted");
    emit Sheet().loadProgress(312'000, 1'234'567);
    EXPECT_EQ(bar->text().toStdString(), "312,000 of 1,234,567 rows");
    EXPECT_EQ(bar->value(), 312'000);
    Press(Qt::Key_F5);
    EXPECT_FALSE(bar->isVisible());
}

} // namespace Orders
