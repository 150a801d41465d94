#include "recordset/qtsql/Databases.h"
#include "recordset/qtsql/InventedDriver.h"

#include <filesystem>

namespace Tessellon {

namespace {

class QueryErrors : public testing::Test {
protected:
    QueryErrors()
    {
        memory_.qt.setDatabaseName(":memory:");
        EXPECT_TRUE(memory_.qt.open());
    }

    /// The failure of a query's records, which Errors tell too, and which stays.
    Failure Broken(QSqlQuery query)
    {
        const auto records = connection_->Records(std::move(query));
        EXPECT_TRUE(connection_->Errors().empty());
        const Failure failure = FailureOf([&] { CountOnwards(*records); });
        EXPECT_EQ(failure.Source, u"Recordset");
        EXPECT_EQ(connection_->Errors().size(), 1U);
        EXPECT_EQ(Error().Number, failure.Number);
        EXPECT_EQ(Error().Description, failure.Description);
        EXPECT_EQ(Error().HelpFile, u"");
        EXPECT_EQ(Error().HelpContext, 0);
        EXPECT_EQ(FailureOf([&] { records->AtEnd(); }).Description, failure.Description);
        EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Description, failure.Description);
        EXPECT_EQ(FailureOf([&] { records->MoveNext(); }).Description, failure.Description);
        EXPECT_EQ(FailureOf([&] { records->FieldCount(); }).Description, failure.Description);
        EXPECT_EQ(FailureOf([&] { records->FieldType(0); }).Description, failure.Description);
        EXPECT_EQ(FailureOf([&] { records->FieldValue(0); }).Description, failure.Description);
        return failure;
    }
    const ProviderError& Error() { return connection_->Errors().at(0); }

    Database memory_{"QSQLITE"};
    std::shared_ptr<QtSqlConnection> connection_ = std::make_shared<QtSqlConnection>();
};

TEST_F(QueryErrors, OfAQueryThatWasNotExecuted)
{
    EXPECT_EQ(Broken(QSqlQuery(memory_.qt)).Description, u"the query was not executed");
    EXPECT_EQ(Error().Source, u"QSQLite");
    QSqlQuery prepared(memory_.qt);
    ASSERT_TRUE(prepared.prepare("SELECT 1"));
    EXPECT_EQ(Broken(std::move(prepared)).Description, u"the query was not executed");
    QSqlQuery finished = memory_.Executed("SELECT 1", true);
    finished.finish();
    EXPECT_EQ(Broken(std::move(finished)).Description, u"the query was not executed");
}

TEST_F(QueryErrors, OfAQueryWithoutRecords)
{
    const Failure failure = Broken(memory_.Executed("CREATE TABLE t (n)", true));
    EXPECT_EQ(failure.Description, u"the query gives no records");
    EXPECT_EQ(Error().SQLState, u"42000");
}

TEST_F(QueryErrors, OfAWrongStatement)
{
    const Failure failure = Broken(memory_.Executed("SELEC", false));
    EXPECT_EQ(failure.Description, u"near \"SELEC\": syntax error Unable to execute statement");
    EXPECT_EQ(failure.Number, -2147217900);
    EXPECT_EQ(Error().NativeError, 1);
    EXPECT_EQ(Error().SQLState, u"");
    EXPECT_EQ(Error().Source, u"QSQLite");
}

TEST_F(QueryErrors, OfAWrongStatementOfPostgres_TellTheirState)
{
    Database postgres("QPSQL");
    Reach(postgres, PostgresServer::Shared());
    for (const bool isForwardOnly : {true, false}) {
        const Failure failure = Broken(postgres.Executed("SELEC", isForwardOnly));
        EXPECT_TRUE(failure.Description.starts_with(u"ERROR:  syntax error at or near \"SELEC\"\n"));
        EXPECT_EQ(failure.Number, -2147217900);
        EXPECT_EQ(Error().SQLState, u"42601");
        EXPECT_EQ(Error().NativeError, 0);
        EXPECT_EQ(Error().Source, u"QPSQL");
        EXPECT_EQ(Broken(postgres.Executed("SELECT * FROM nowhere", isForwardOnly)).Number, -2147217865);
    }
}

TEST_F(QueryErrors, OfADatabaseThatIsClosed)
{
    for (const bool isForwardOnly : {true, false}) {
        QSqlQuery query = memory_.Executed("SELECT 1", isForwardOnly);
        memory_.qt.close();
        EXPECT_EQ(Broken(std::move(query)).Description, u"the database is not open");
        EXPECT_EQ(Error().SQLState, u"08003");
        EXPECT_EQ(Broken(memory_.Executed("SELECT 1", isForwardOnly)).Description, u"the database is not open");
        ASSERT_TRUE(memory_.qt.open());
    }
}

TEST_F(QueryErrors, OfADatabaseThatIsClosed_AreNoEndOfTheRecordsOfPostgres)
{
    for (const bool isForwardOnly : {true, false}) {
        Database postgres("QPSQL");
        Reach(postgres, PostgresServer::Shared());
        QSqlQuery query = postgres.Executed("SELECT generate_series(1, 9)", isForwardOnly);
        ASSERT_TRUE(query.next());
        postgres.qt.close();
        EXPECT_EQ(Broken(std::move(query)).Description, u"the database is not open");
    }
}

TEST_F(QueryErrors, OfADatabaseThatIsClosedInTheMiddle_AreNoEnd)
{
    for (const char* driver : {"QSQLITE", "QPSQL"})
        for (const bool isForwardOnly : {true, false}) {
            Database database(driver);
            if (driver == std::string("QPSQL"))
                Reach(database, PostgresServer::Shared());
            else
                database.qt.setDatabaseName(":memory:");
            ASSERT_TRUE(database.qt.isOpen() || database.qt.open());
            const auto records = connection_->Records(
                database.Executed("SELECT 1 UNION ALL SELECT 2 UNION ALL SELECT 3", isForwardOnly));
            records->MoveNext();
            database.qt.close();
            EXPECT_EQ(FailureOf([&] { CountOnwards(*records); }).Source, u"Recordset") << driver;
            EXPECT_EQ(connection_->Errors().size(), 1U);
        }
}

TEST_F(QueryErrors, OfADatabaseThatIsGone)
{
    QSqlQuery query;
    {
        Database gone("QSQLITE");
        gone.qt.setDatabaseName(":memory:");
        ASSERT_TRUE(gone.qt.open());
        query = gone.Executed("SELECT 1", true);
    }
    EXPECT_EQ(Broken(std::move(query)).Description, u"the database is not open");
}

TEST_F(QueryErrors, OfADatabaseThatWasNeverThere)
{
    Broken(QSqlQuery(QStringLiteral("SELECT 1"), QSqlDatabase::addDatabase("QNONE", "none")));
    QSqlDatabase::removeDatabase("none");
    EXPECT_NE(Error().Description.find(u"Driver not loaded"), std::u16string::npos);
}

TEST_F(QueryErrors, OfAMissingFile_AreThoseOfTheOpening)
{
    Database missing("QSQLITE");
    missing.qt.setDatabaseName("/nowhere/missing.db");
    EXPECT_FALSE(missing.qt.open());
    const Failure failure = Broken(missing.Executed("SELECT 1", true));
    EXPECT_EQ(failure.Description, u"unable to open database file Error opening database");
}

TEST_F(QueryErrors, OfAWrongPassword_AreThoseOfTheOpening)
{
    Database guarded("QPSQL");
    const PostgresServer& server = PostgresServer::Shared();
    guarded.qt.setHostName(QString::fromStdString(server.SocketFolder().string()));
    guarded.qt.setPort(PostgresServer::Port);
    guarded.qt.setDatabaseName(PostgresServer::Database);
    guarded.qt.setUserName(PostgresServer::GuardedUser);
    guarded.qt.setPassword("guess");
    EXPECT_FALSE(guarded.qt.open());
    const Failure failure = Broken(guarded.Executed("SELECT 1", true));
    EXPECT_NE(failure.Description.find(u"password authentication failed for user \"guarded\""), std::u16string::npos);
    EXPECT_EQ(failure.Description.find(u"guess"), std::u16string::npos);
}

TEST_F(QueryErrors, InTheMiddleOfAWalk_AreNoEnd)
{
    const QString statement = "SELECT json(j) FROM (SELECT '[]' AS j UNION ALL SELECT '{}' UNION ALL SELECT 'broken')";
    for (const bool isForwardOnly : {true, false}) {
        const Failure failure = Broken(memory_.Executed(statement, isForwardOnly));
        EXPECT_EQ(failure.Description, u"malformed JSON Unable to fetch row");
        EXPECT_EQ(failure.Number, -2147467259);
    }
}

TEST_F(QueryErrors, InTheMiddleOfAWalkOfPostgres_AreNoEnd)
{
    Database postgres("QPSQL");
    Reach(postgres, PostgresServer::Shared());
    Broken(postgres.Executed("SELECT 1 / (5 - n) FROM generate_series(1, 9) AS n", true));
    EXPECT_EQ(Error().SQLState, u"22012");
    EXPECT_TRUE(Error().Description.starts_with(u"ERROR:  division by zero"));
}

TEST_F(QueryErrors, OfAServerThatStopsInTheMiddle_AreNoEnd)
{
    PostgresServer server;
    Database postgres("QPSQL");
    Reach(postgres, server);
    QSqlQuery query = postgres.Executed("SELECT n, repeat('x', 1000) FROM generate_series(1, 100000) AS n", true);
    ASSERT_TRUE(query.next());
    server.StopNow();
    const Failure failure = Broken(std::move(query));
    EXPECT_NE(failure.Description.find(u"server closed the connection unexpectedly"), std::u16string::npos)
        << QString::fromStdU16String(failure.Description).toStdString();

    server.Start();
    Reach(postgres, server);
    const auto records = connection_->Records(postgres.Executed("SELECT generate_series(1, 9)", true));
    EXPECT_EQ(CountOnwards(*records), 9);
    EXPECT_TRUE(connection_->Errors().empty());
}

TEST_F(QueryErrors, OfAServerThatStops_DoNotTouchRecordsThatAreThere)
{
    PostgresServer server;
    for (const bool isForwardOnly : {true, false}) {
        Database postgres("QPSQL");
        Reach(postgres, server);
        const auto records = connection_->Records(postgres.Executed("SELECT generate_series(1, 9)", isForwardOnly));
        EXPECT_EQ(CountOnwards(*records), 9);
        server.StopNow();
        for (int walk = 0; walk < 2; ++walk) {
            records->MoveFirst();
            EXPECT_EQ(CountOnwards(*records), 9);
        }
        server.Start();
    }
}

TEST_F(QueryErrors, OfAnotherQueryThatTookTheResultAway_AreNoEnd)
{
    Database postgres("QPSQL");
    Reach(postgres, PostgresServer::Shared());
    QSqlQuery query = postgres.Executed("SELECT generate_series(1, 9)", true);
    ASSERT_TRUE(query.next());
    postgres.Do("SELECT 1");
    Broken(std::move(query));
}

TEST_F(QueryErrors, AHundredFold_LeaveNothingOpen)
{
    const auto openFiles = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    Database postgres("QPSQL");
    Reach(postgres, PostgresServer::Shared());
    const auto before = openFiles();
    for (int i = 0; i < 100; ++i) {
        Broken(memory_.Executed("SELECT abs(-9223372036854775807 - 1) FROM (SELECT 1)", true));
        Broken(postgres.Executed("SELECT 1 / (5 - n) FROM generate_series(1, 9) AS n", true));
        EXPECT_EQ(CountOnwards(*connection_->Records(postgres.Executed("SELECT generate_series(1, 9)", true))), 9);
        Database another("QPSQL");
        Reach(another, PostgresServer::Shared());
        Broken(another.Executed("SELEC", false));
    }
    EXPECT_EQ(openFiles(), before);
}

} // namespace

} // namespace Tessellon
