#include "recordset/sqlite/TemporaryDatabase.h"

#include <chrono>
#include <fstream>

namespace Tessellon {

namespace {

using Errors = SqliteTest;

TEST_F(Errors, OfAMissingFile_NameIt)
{
    SqliteConnection connection;
    const Failure failure = FailureOf([&] { connection.Connect(PathText("missing.db")); });
    EXPECT_EQ(failure.Source, u"Recordset");
    EXPECT_EQ(failure.Description, u"unable to open database file: " + PathText("missing.db"));
    ASSERT_EQ(connection.Errors().size(), 1U);
    const ProviderError& error = connection.Errors().front();
    EXPECT_EQ(error.Number, failure.Number);
    EXPECT_EQ(error.Description, failure.Description);
    EXPECT_EQ(error.Source, u"SQLite");
    EXPECT_EQ(error.NativeError & 0xFF, SQLITE_CANTOPEN);
    EXPECT_EQ(error.SQLState, u"08001");
    EXPECT_EQ(error.HelpFile, u"");
    EXPECT_EQ(error.HelpContext, 0);
    EXPECT_FALSE(std::filesystem::exists(Path("missing.db")));
}

TEST_F(Errors, OfAMissingFile_AreTheSameForAConnectionThatMayWrite)
{
    EXPECT_THROW(SqliteConnection::Open(PathText("missing.db"), {false, 50}), Failure);
    EXPECT_FALSE(std::filesystem::exists(Path("missing.db")));
}

TEST_F(Errors, OfPathsThatAreNone)
{
    Make("CREATE TABLE t (n)");
    for (const std::u16string& path : {std::u16string(), PathText("."), PathText() + std::u16string(1, u'\0') + u"x"})
        EXPECT_EQ(FailureOf([&] { SqliteConnection::Open(path); }).Source, u"Recordset");
}

TEST_F(Errors, OfAFileThatIsNoDatabase_ComeWithTheOpening)
{
    std::ofstream(Path()) << std::string(5000, 'x');
    SqliteConnection connection;
    const Failure failure = FailureOf([&] { connection.Connect(PathText()); });
    EXPECT_EQ(failure.Description, u"file is not a database: " + PathText());
    EXPECT_EQ(connection.Errors().at(0).NativeError, SQLITE_NOTADB);
}

TEST_F(Errors, OfALockedDatabase_ComeBehindABoundedWait)
{
    Make("CREATE TABLE t (n)");
    Writer writer(Path());
    writer.Do("BEGIN EXCLUSIVE");
    SqliteConnection connection;
    const auto start = std::chrono::steady_clock::now();
    const Failure failure = FailureOf([&] { connection.Connect(PathText(), {true, 100}); });
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GE(waited, std::chrono::milliseconds(80));
    EXPECT_LT(waited, std::chrono::seconds(10));
    EXPECT_EQ(failure.Description, u"database is locked (waited 100 milliseconds): " + PathText());
    EXPECT_EQ(connection.Errors().at(0).SQLState, u"HYT00");
    EXPECT_EQ(connection.Errors().at(0).NativeError & 0xFF, SQLITE_BUSY);
}

TEST_F(Errors, OfADatabaseLockedBehindTheOpening_ComeWithTheFirstRead_AndPass)
{
    Make("CREATE TABLE t (n); INSERT INTO t VALUES (1)");
    Writer writer(Path());
    const auto connection = Open();
    const auto records = connection->Query(u"SELECT n FROM t");
    writer.Do("BEGIN EXCLUSIVE");
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Description, u"database is locked (waited 50 milliseconds)");
    EXPECT_EQ(connection->Errors().size(), 1U);
    writer.Do("COMMIT");
    records->MoveFirst();
    EXPECT_EQ(CountOnwards(*records), 1);
    EXPECT_TRUE(connection->Errors().empty());
}

struct WrongQuery {
    const char16_t* Statement;
    const char16_t* Description;
    const char16_t* State;
};

class WrongQueries : public SqliteTest, public testing::WithParamInterface<WrongQuery> {};

TEST_P(WrongQueries, FillErrorsAndFail)
{
    Make("CREATE TABLE t (n); INSERT INTO t VALUES (1)");
    const auto connection = SqliteConnection::Open(PathText(), {false, 50});
    const Failure failure = FailureOf([&] { connection->Query(GetParam().Statement); });
    EXPECT_EQ(failure.Source, u"Recordset");
    EXPECT_EQ(failure.Description, GetParam().Description);
    ASSERT_EQ(connection->Errors().size(), 1U);
    EXPECT_EQ(connection->Errors().front().Description, GetParam().Description);
    EXPECT_EQ(connection->Errors().front().SQLState, GetParam().State);
    EXPECT_EQ(connection->Errors().front().Number, failure.Number);
    EXPECT_EQ(CountOnwards(*connection->Query(u"SELECT n FROM t")), 1) << "the query was run";
    EXPECT_TRUE(connection->Errors().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Errors, WrongQueries,
    testing::Values(WrongQuery{u"SELEC n", u"near \"SELEC\": syntax error", u"42000"},
                    WrongQuery{u"SELECT * FROM missing", u"no such table: missing", u"42S02"},
                    WrongQuery{u"SELECT missing FROM t", u"no such column: missing", u"42S22"},
                    WrongQuery{u"", u"the query is empty", u"42000"},
                    WrongQuery{u" -- nothing", u"the query is empty", u"42000"},
                    WrongQuery{u"SELECT n FROM t; DELETE FROM t", u"the query is more than one statement", u"42000"},
                    WrongQuery{u"SELECT n FROM t; nonsense", u"near \"nonsense\": syntax error", u"42000"},
                    WrongQuery{u"DELETE FROM t", u"the query gives no records", u"42000"},
                    WrongQuery{u"DELETE FROM t RETURNING n", u"the query would change the database", u"42000"}));

TEST_F(Errors, OfAZeroInTheQuery)
{
    Make("CREATE TABLE t (n)");
    const auto connection = Open();
    EXPECT_THROW(connection->Query(std::u16string_view(u"SELECT n FROM t\0WHERE", 21)), Failure);
}

TEST_F(Errors, OfAQueryWithBlanksAndACommentBehindIt_AreNone)
{
    Make("CREATE TABLE t (n)");
    EXPECT_TRUE(Open()->Query(u"SELECT n FROM t;  -- all\n /* of them */ ")->AtEnd());
}

TEST_F(Errors, OfAConnectionThatIsNotOpen)
{
    SqliteConnection connection;
    EXPECT_TRUE(connection.Errors().empty());
    EXPECT_EQ(FailureOf([&] { connection.Query(u"SELECT 1"); }).Description, u"the connection is not open");
    EXPECT_EQ(connection.Errors().size(), 1U);
    EXPECT_THROW(connection.Connect(PathText("missing.db")), Failure);
    EXPECT_EQ(FailureOf([&] { connection.Query(u"SELECT 1"); }).Description, u"the connection is not open");
}

TEST_F(Errors, InTheMiddleOfAWalk_FillErrorsAndLetGo)
{
    Make("CREATE TABLE t (n INTEGER, j TEXT); INSERT INTO t VALUES (1, '[]'), (2, '{}'), (3, 'broken'), (4, '[]')");
    const auto connection = Open();
    const auto records = connection->Query(u"SELECT n, json(j) FROM t");
    records->MoveFirst();
    records->MoveNext();
    EXPECT_EQ(records->FieldValue(0).Integer, 2);
    const Failure failure = FailureOf([&] { records->MoveNext(); });
    EXPECT_EQ(failure.Source, u"Recordset");
    EXPECT_EQ(failure.Description, u"malformed JSON");
    ASSERT_EQ(connection->Errors().size(), 1U);
    EXPECT_EQ(connection->Errors().front().Description, u"malformed JSON");
    EXPECT_EQ(connection->Errors().front().SQLState, u"HY000");
    EXPECT_EQ(connection->Errors().front().NativeError, SQLITE_ERROR);
    EXPECT_TRUE(records->AtEnd());

    Writer writer(Path());
    writer.Do("UPDATE t SET j = '[3]' WHERE n = 3");
    records->MoveFirst();
    EXPECT_EQ(CountOnwards(*records), 4);
    EXPECT_TRUE(connection->Errors().empty());
}

TEST_F(Errors, InTheFirstRecord_ComeWithTheFirstQuestion)
{
    Make("CREATE TABLE t (n)");
    const auto connection = Open();
    const auto records = connection->Query(u"SELECT abs(-9223372036854775807 - 1)");
    EXPECT_EQ(FailureOf([&] { records->AtEnd(); }).Description, u"integer overflow");
    EXPECT_EQ(connection->Errors().at(0).SQLState, u"22003");
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Description, u"integer overflow");
}

TEST_F(Errors, OfADatabaseCutShort_AreAFailure)
{
    Make("CREATE TABLE t (n INTEGER, a TEXT); WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < "
         "20000) INSERT INTO t SELECT n, hex(randomblob(20)) FROM c");
    const auto connection = Open();
    const auto records = connection->Query(u"SELECT n, a FROM t");
    records->MoveFirst();
    std::filesystem::resize_file(Path(), std::filesystem::file_size(Path()) / 2);
    EXPECT_EQ(FailureOf([&] { CountOnwards(*records); }).Source, u"Recordset");
    EXPECT_EQ(connection->Errors().size(), 1U);
    EXPECT_TRUE(records->AtEnd());
}

TEST_F(Errors, AHundredFold_LeaveNothingOpen)
{
    Make("CREATE TABLE t (n)");
    const auto openFiles = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    const auto before = openFiles();
    for (int i = 0; i < 100; ++i) {
        EXPECT_THROW(SqliteConnection::Open(PathText("missing.db")), Failure);
        EXPECT_THROW(Open()->Query(u"SELECT"), Failure);
        EXPECT_THROW(Query(u"SELECT abs(-9223372036854775807 - 1)")->AtEnd(), Failure);
    }
    EXPECT_EQ(openFiles(), before);
}

TEST_F(Errors, WritingThroughAConnectionThatReads_IsNotPossible)
{
    Make("CREATE TABLE t (n)");
    EXPECT_EQ(FailureOf([&] { Open()->Query(u"INSERT INTO t VALUES (1) RETURNING n"); }).Description,
              u"the query would change the database");
}

TEST_F(Errors, OfAReadOnlyConnection_DoNotComeFromAFileNameThatLooksLikeAUri)
{
    EXPECT_THROW(SqliteConnection::Open(u"file:" + PathText() + u"?mode=rwc"), Failure);
    EXPECT_FALSE(std::filesystem::exists(Path()));
}

TEST_F(Errors, PathsWithBlanksAndLetters_Open)
{
    const std::string name = "Bestellungen für März.db";
    Writer(Path(name)).Do("CREATE TABLE t (n)");
    EXPECT_TRUE(SqliteConnection::Open(PathText(name))->Query(u"SELECT n FROM t")->AtEnd());
}

} // namespace

} // namespace Tessellon
