#include "recordset/qtsql/Databases.h"

namespace Tessellon {

namespace {

struct Course {
    const char* Driver;
    bool IsForwardOnly;
};

/// Each with a query that goes forward only and with one that can go back, of both drivers.
class QueryWalks : public testing::TestWithParam<Course> {
protected:
    QueryWalks()
    {
        Connect(database_);
        Connect(other_);
        if (GetParam().Driver == std::string("QPSQL"))
            other_.Do("SET client_min_messages TO warning");
        other_.Do("DROP TABLE IF EXISTS walked");
        other_.Do("CREATE TABLE walked (n INTEGER)");
        other_.Do("INSERT INTO walked VALUES (1), (2), (3)");
    }
    void Connect(Database& database)
    {
        if (GetParam().Driver == std::string("QPSQL")) {
            Reach(database, PostgresServer::Shared());
        } else {
            database.qt.setDatabaseName(folder_.filePath(QStringLiteral("test.db")));
            database.qt.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
            ASSERT_TRUE(database.qt.open());
        }
    }
    QSqlQuery All() { return database_.Executed("SELECT n FROM walked ORDER BY n", GetParam().IsForwardOnly); }
    std::shared_ptr<QtSqlRecordset> Records(QSqlQuery query) { return QtSqlConnection().Records(std::move(query)); }

    static std::int64_t Sum(Recordset& records)
    {
        std::int64_t sum = 0;
        for (; !records.AtEnd(); records.MoveNext())
            sum += records.FieldValue(0).Integer;
        return sum;
    }

    QTemporaryDir folder_;
    Database database_{GetParam().Driver};
    Database other_{GetParam().Driver};
};

INSTANTIATE_TEST_SUITE_P(Drivers, QueryWalks,
                         testing::Values(Course{"QSQLITE", true}, Course{"QSQLITE", false}, Course{"QPSQL", true},
                                         Course{"QPSQL", false}),
                         [](const auto& course) {
                             return std::string(course.param.Driver) +
                                    (course.param.IsForwardOnly ? "ForwardOnly" : "Scrollable");
                         });

TEST_P(QueryWalks, NewRecordset_StandsOnItsFirst)
{
    const auto records = Records(All());
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
    EXPECT_FALSE(records->AtEnd());
}

TEST_P(QueryWalks, MoveFirst_ServesAsOftenAsWanted)
{
    const auto records = Records(All());
    for (int walk = 0; walk < 5; ++walk) {
        records->MoveFirst();
        EXPECT_EQ(Sum(*records), 6);
        EXPECT_TRUE(records->AtEnd());
    }
    records->MoveFirst();
    records->MoveNext();
    records->MoveFirst();
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
}

TEST_P(QueryWalks, MoveFirstInTheMiddle_LosesNothing)
{
    const auto records = Records(All());
    for (int moves = 0; moves < 5; ++moves) {
        records->MoveFirst();
        EXPECT_EQ(records->FieldValue(0).Integer, 1);
        for (int move = 0; move < moves && !records->AtEnd(); ++move)
            records->MoveNext();
    }
    records->MoveFirst();
    EXPECT_EQ(Sum(*records), 6);
}

TEST_P(QueryWalks, BehindTheLast_EveryReadFails)
{
    const auto records = Records(All());
    EXPECT_EQ(CountOnwards(*records), 3);
    const Failure failure = FailureOf([&] { records->MoveNext(); });
    EXPECT_EQ(failure.Number, 3021);
    EXPECT_EQ(failure.Source, u"Recordset");
    EXPECT_EQ(FailureOf([&] { records->FieldValue(0); }).Number, 3021);
    EXPECT_TRUE(records->AtEnd());
}

TEST_P(QueryWalks, FieldThatIsNone_IsASubscriptFailure)
{
    const auto records = Records(All());
    for (const std::int32_t field : {-1, 1}) {
        EXPECT_EQ(FailureOf([&] { records->FieldValue(field); }).Number, 9);
        EXPECT_EQ(FailureOf([&] { records->FieldType(field); }).Number, 9);
    }
}

TEST_P(QueryWalks, EmptyRecordset_IsAtItsEndAndHasNoFirst)
{
    const auto records = Records(database_.Executed("SELECT n FROM walked WHERE n > 9", GetParam().IsForwardOnly));
    EXPECT_TRUE(records->AtEnd());
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Number, 3021);
    EXPECT_EQ(FailureOf([&] { records->MoveNext(); }).Number, 3021);
    EXPECT_TRUE(records->AtEnd());
    EXPECT_EQ(records->FieldCount(), 1);
}

TEST_P(QueryWalks, QueryThatWasMoved_BeginsWhereItCan)
{
    QSqlQuery query = All();
    ASSERT_TRUE(query.next());
    ASSERT_TRUE(query.next());
    const auto records = Records(std::move(query));
    for (int walk = 0; walk < 2; ++walk) {
        records->MoveFirst();
        EXPECT_EQ(Sum(*records), GetParam().IsForwardOnly ? 5 : 6);
    }
}

TEST_P(QueryWalks, QueryThatWasReadToItsEnd_BeginsWhereItCan)
{
    QSqlQuery query = All();
    while (query.next())
        continue;
    EXPECT_EQ(CountOnwards(*Records(std::move(query))), GetParam().IsForwardOnly ? 0 : 3);
}

TEST_P(QueryWalks, TableThatAnotherConnectionChanges_IsSeenAsItWasInEachWalk)
{
    // SQLite lets nobody write while a query is being read.
    other_.Do("INSERT INTO walked SELECT 0 FROM (SELECT 1 UNION ALL SELECT 2) AS two");
    const auto records = Records(All());
    EXPECT_EQ(CountOnwards(*records), 5);
    other_.Do("DELETE FROM walked WHERE n < 3");
    records->MoveFirst();
    EXPECT_EQ(CountOnwards(*records), 5);
    other_.Do("DROP TABLE walked");
    records->MoveFirst();
    EXPECT_EQ(Sum(*records), 6);
}

TEST_P(QueryWalks, PreparedQuery_IsReadWithItsValues)
{
    QSqlQuery query(database_.qt);
    query.setForwardOnly(GetParam().IsForwardOnly);
    query.prepare("SELECT n FROM walked WHERE n > ?");
    query.addBindValue(1);
    ASSERT_TRUE(query.exec());
    EXPECT_EQ(Sum(*Records(std::move(query))), 5);
}

TEST_P(QueryWalks, TenThousandRecords_AreWalkedTwiceTheSame)
{
    const auto records =
        Records(database_.Executed("WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < 10000) "
                                   "SELECT n, 'customer ' || n FROM c",
                                   GetParam().IsForwardOnly));
    for (int walk = 0; walk < 2; ++walk) {
        std::int64_t expected = 0;
        for (records->MoveFirst(); !records->AtEnd(); records->MoveNext()) {
            ++expected;
            ASSERT_EQ(records->FieldValue(1).Characters, u"customer " + QString::number(expected).toStdU16String());
            ASSERT_EQ(records->FieldValue(0).Integer, expected);
        }
        EXPECT_EQ(expected, 10'000);
    }
}

TEST_P(QueryWalks, RecordsetOutlivesItsConnectionOfRecords)
{
    auto connection = std::make_shared<QtSqlConnection>();
    const auto records = connection->Records(All());
    connection.reset();
    EXPECT_EQ(Sum(*records), 6);
}

TEST_P(QueryWalks, ReadToTheEnd_LockNothing)
{
    const auto records = Records(All());
    EXPECT_EQ(CountOnwards(*records), 3);
    other_.Do("DROP TABLE walked");
}

TEST_P(QueryWalks, TwoRecordsetsOfAConnection_AreReadOneBehindTheOther)
{
    const auto first = Records(All());
    EXPECT_EQ(CountOnwards(*first), 3);
    const auto second = Records(All());
    EXPECT_EQ(Sum(*second), 6);
    first->MoveFirst();
    EXPECT_EQ(Sum(*first), 6);
}

TEST(KeptQuery, NeedsNoDatabaseAnyMore)
{
    std::shared_ptr<QtSqlRecordset> records;
    {
        Database database("QSQLITE");
        database.qt.setDatabaseName(":memory:");
        ASSERT_TRUE(database.qt.open());
        records = QtSqlConnection().Records(database.Executed("SELECT 1 UNION SELECT 2", true));
        EXPECT_EQ(CountOnwards(*records), 2);
    }
    for (int walk = 0; walk < 2; ++walk) {
        records->MoveFirst();
        EXPECT_EQ(CountOnwards(*records), 2);
    }
}

} // namespace

} // namespace Tessellon
