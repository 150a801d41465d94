#include "recordset/odbc/OdbcTest.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace Tessellon {

namespace {

constexpr std::int32_t Unspecified = -2147467259;
constexpr std::int32_t WrongCommand = -2147217900;
constexpr std::int32_t NoSuchTable = -2147217865;

using OdbcErrors = OdbcTest;

void ExpectFirst(OdbcConnection& connection, const Failure& failure, std::int32_t number, std::u16string_view state)
{
    EXPECT_EQ(failure.Source, u"Recordset");
    EXPECT_EQ(failure.Number, number);
    ASSERT_FALSE(connection.Errors().empty());
    const ProviderError& error = connection.Errors().front();
    EXPECT_EQ(error.Number, number);
    EXPECT_EQ(error.Description, failure.Description);
    EXPECT_EQ(error.SQLState, state);
    EXPECT_EQ(error.Source, u"ODBC");
    EXPECT_EQ(error.HelpFile, u"");
    EXPECT_EQ(error.HelpContext, 0);
}

TEST_F(OdbcErrors, OfADataSourceThatIsNotThere)
{
    OdbcConnection connection;
    const Failure failure = FailureOf([&] { connection.Connect(u"DSN=nowhere;UID=ada;PWD=hunter2"); });
    ExpectFirst(connection, failure, Unspecified, u"IM002");
    EXPECT_EQ(failure.Description,
              u"[unixODBC][Driver Manager]Data source name not found and no default driver specified");
}

TEST_F(OdbcErrors, OfADataSourceThatIsThere_AreNone)
{
    Make("CREATE TABLE t (n INTEGER); INSERT INTO t VALUES (5)");
    std::ofstream(Path("odbc.ini")) << "[orders of this test]\nDriver = SQLite3\nDatabase = " << Path().string()
                                    << '\n';
    setenv("ODBCINI", Path("odbc.ini").c_str(), 1);
    const auto connection = OdbcConnection::Open(u"DSN=orders of this test");
    unsetenv("ODBCINI");
    EXPECT_TRUE(connection->Errors().empty());
    EXPECT_EQ(TellAll(*connection->Query(u"SELECT n FROM t")), std::vector<std::string>{"integer 5"});
}

TEST_F(OdbcErrors, OfADriverThatIsNotThere_NameIt)
{
    OdbcConnection connection;
    const Failure failure = FailureOf([&] { connection.Connect(u"Driver=/nowhere/driver.so"); });
    ExpectFirst(connection, failure, Unspecified, u"01000");
    EXPECT_NE(failure.Description.find(u"/nowhere/driver.so"), std::u16string::npos);
}

TEST_F(OdbcErrors, OfConnectionTextsThatAreNone)
{
    for (const std::u16string& text : {std::u16string(), std::u16string(u"nonsense"), std::u16string(u"=;=;"),
                                       std::u16string(u"DSN=a\0b", 7), std::u16string(40'000, u'x')})
        EXPECT_EQ(FailureOf([&] { OdbcConnection::Open(text); }).Source, u"Recordset");
}

TEST_F(OdbcErrors, OfAWrongPassword_AreTheServersWords)
{
    OdbcConnection connection;
    const Failure failure = FailureOf([&] { connection.Connect(GuardedText("hunter2")); });
    ExpectFirst(connection, failure, Unspecified, u"08001");
    EXPECT_NE(failure.Description.find(u"password authentication failed for user \"guarded\""), std::u16string::npos);
    EXPECT_EQ(failure.Description.find(u"hunter2"), std::u16string::npos);
    EXPECT_EQ(connection.Errors().front().NativeError, 101);
    connection.Connect(GuardedText(PostgresServer::Password));
    EXPECT_TRUE(connection.Errors().empty());
    EXPECT_EQ(TellAll(*connection.Query(u"SELECT current_user::text")), std::vector<std::string>{"text guarded"});
}

TEST_F(OdbcErrors, WithTheSecretInTheProvidersWords_ShowAsterisks)
{
    // The server names a user and a database that are not there.
    std::u16string text = PostgresText();
    text.replace(text.find(u"UID=tester"), 10, u"UID=hunter2");
    OdbcConnection connection;
    const Failure failure = FailureOf([&] { connection.Connect(text + u"PWD=hunter2"); });
    EXPECT_NE(failure.Description.find(u"role \"***\" does not exist"), std::u16string::npos)
        << Common::ToUtf8(failure.Description);
    for (const ProviderError& error : connection.Errors())
        EXPECT_EQ(error.Description.find(u"hunter2"), std::u16string::npos);

    connection.Connect(PostgresText("PWD=hunter2;"));
    EXPECT_NE(FailureOf([&] { connection.Query(u"SELECT hunter2"); }).Description.find(u"column \"***\""),
              std::u16string::npos);
}

// The driver cuts what the server says into records of some five hundred letters.
TEST_F(OdbcErrors, InSeveralRecords_AreAllThereInTheirOrder_AndShowNoSecretBetweenThem)
{
    const auto connection = OdbcConnection::Open(PostgresText("PWD=hunter2;"));
    for (int lead = 440; lead < 480; ++lead) {
        const std::u16string wrong =
            std::u16string(static_cast<std::size_t>(lead), u'x') + u"hunter2" + std::u16string(700, u'y') + u"zz";
        const Failure failure = FailureOf([&] { connection->Query(u"SELECT '" + wrong + u"'::integer"); });
        ASSERT_GE(connection->Errors().size(), 3U);
        EXPECT_EQ(failure.Description, connection->Errors().front().Description);
        std::u16string words;
        for (const ProviderError& error : connection->Errors()) {
            EXPECT_EQ(error.SQLState, u"22P02");
            EXPECT_EQ(error.Source, u"ODBC");
            words += error.Description;
        }
        EXPECT_TRUE(words.starts_with(u"ERROR: invalid input syntax for type integer: \"xxx"));
        EXPECT_NE(words.find(u"x***"), std::u16string::npos);
        EXPECT_NE(words.find(u"yyzz\";"), std::u16string::npos);
        for (const char16_t* part : {u"h", u"un2", u"ter2", u"r2"})
            EXPECT_EQ(words.find(std::u16string(part) + u"y"), std::u16string::npos) << lead;
        EXPECT_EQ(words.find(u"xh"), std::u16string::npos) << lead;
    }
}

TEST_F(OdbcErrors, OfAServerThatNeverAnswers_ComeWhenTheWaitIsOver)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = Path(".s.PGSQL.5432").string();
    ASSERT_LT(path.size(), sizeof address.sun_path);
    std::copy(path.begin(), path.end(), address.sun_path);
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(listener, 1), 0);
    const std::u16string text =
        u"Driver={PostgreSQL Unicode};Server=" + Path(".").parent_path().u16string() + u";Database=x;UID=x";
    const Failure failure = FailureOf([&] { OdbcConnection::Open(text, {2}); });
    EXPECT_NE(failure.Description.find(u"timeout expired"), std::u16string::npos)
        << Common::ToUtf8(failure.Description);
    close(listener);
}

TEST_F(OdbcErrors, OfAServerThatIsNotThere)
{
    OdbcConnection connection;
    const Failure failure = FailureOf(
        [&] { connection.Connect(u"Driver={PostgreSQL Unicode};Server=" + PathText("none") + u";Database=x;UID=x"); });
    ExpectFirst(connection, failure, Unspecified, u"08001");
    EXPECT_NE(failure.Description.find(u"No such file or directory"), std::u16string::npos);
}

struct WrongOdbcQuery {
    const char16_t* Statement;
    const char16_t* Words;
    std::int32_t Number;
    const char16_t* State;
};

class WrongPostgresQueries : public OdbcTest, public testing::WithParamInterface<WrongOdbcQuery> {};

TEST_P(WrongPostgresQueries, FillErrorsAndFail)
{
    const auto connection = OdbcConnection::Open(PostgresText());
    const Failure failure = FailureOf([&] { connection->Query(GetParam().Statement); });
    ExpectFirst(*connection, failure, GetParam().Number, GetParam().State);
    EXPECT_NE(failure.Description.find(GetParam().Words), std::u16string::npos) << Common::ToUtf8(failure.Description);
    EXPECT_EQ(CountOnwards(*connection->Query(u"SELECT 1")), 1);
    EXPECT_TRUE(connection->Errors().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Errors, WrongPostgresQueries,
    testing::Values(WrongOdbcQuery{u"SELEC 1", u"syntax error at or near \"SELEC\"", WrongCommand, u"42601"},
                    WrongOdbcQuery{u"SELECT * FROM größe", u"relation \"größe\" does not exist", NoSuchTable, u"42P01"},
                    WrongOdbcQuery{u"SELECT missing", u"column \"missing\" does not exist", WrongCommand, u"42703"},
                    WrongOdbcQuery{u"SELECT 1 / 0", u"division by zero", Unspecified, u"22012"},
                    WrongOdbcQuery{u"", u"the query is empty", WrongCommand, u"42000"},
                    WrongOdbcQuery{u"  ", u"the query is empty", WrongCommand, u"42000"},
                    WrongOdbcQuery{u" -- nothing", u"the query gives no records", WrongCommand, u"42000"}));

class WrongSqliteQueries : public OdbcTest, public testing::WithParamInterface<WrongOdbcQuery> {};

TEST_P(WrongSqliteQueries, FillErrorsAndFail)
{
    const auto connection = OdbcConnection::Open(SqliteText());
    const Failure failure = FailureOf([&] { connection->Query(GetParam().Statement); });
    ExpectFirst(*connection, failure, GetParam().Number, GetParam().State);
    EXPECT_EQ(failure.Description, GetParam().Words);
    EXPECT_EQ(CountOnwards(*connection->Query(u"SELECT 1")), 1);
    EXPECT_TRUE(connection->Errors().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Errors, WrongSqliteQueries,
    testing::Values(WrongOdbcQuery{u"SELEC 1", u"[SQLite]near \"SELEC\": syntax error (1)", Unspecified, u"HY000"},
                    WrongOdbcQuery{u"SELECT * FROM größe", u"[SQLite]no such table: größe (1)", Unspecified, u"HY000"},
                    WrongOdbcQuery{u"", u"the query is empty", WrongCommand, u"42000"},
                    WrongOdbcQuery{u"  ", u"the query is empty", WrongCommand, u"42000"}));

TEST_F(OdbcErrors, OfAQueryWithAZero)
{
    const auto connection = OdbcConnection::Open(SqliteText());
    const Failure failure = FailureOf([&] { connection->Query(std::u16string_view(u"SELECT 1\0x", 10)); });
    ExpectFirst(*connection, failure, WrongCommand, u"42000");
}

TEST_F(OdbcErrors, OfAConnectionThatIsNotOpen)
{
    OdbcConnection connection;
    EXPECT_TRUE(connection.Errors().empty());
    EXPECT_EQ(FailureOf([&] { connection.Query(u"SELECT 1"); }).Description, u"the connection is not open");
    EXPECT_EQ(connection.Errors().size(), 1U);
    EXPECT_THROW(connection.Connect(u"DSN=nowhere"), Failure);
    EXPECT_EQ(FailureOf([&] { connection.Query(u"SELECT 1"); }).Description, u"the connection is not open");
    EXPECT_EQ(connection.Errors().front().SQLState, u"08003");
}

TEST_F(OdbcErrors, InTheMiddleOfAWalk_EndItForGood)
{
    const auto connection = OdbcConnection::Open(PostgresText("UseDeclareFetch=1;Fetch=10;"));
    const auto records = connection->Query(u"SELECT 1000 / (50 - i) FROM generate_series(1, 100) i");
    int count = 0;
    const Failure failure = FailureOf([&] {
        for (records->MoveFirst(); !records->AtEnd(); records->MoveNext())
            ++count;
    });
    EXPECT_LT(count, 50);
    ExpectFirst(*connection, failure, Unspecified, u"22012");
    EXPECT_NE(failure.Description.find(u"division by zero"), std::u16string::npos);
    const std::vector<ProviderError> told = connection->Errors();

    // The connection serves on, and the recordset tells the same again.
    EXPECT_EQ(TellAll(*connection->Query(u"SELECT 1")), std::vector<std::string>{"integer 1"});
    EXPECT_TRUE(connection->Errors().empty());
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Description, failure.Description);
    EXPECT_EQ(FailureOf([&] { records->AtEnd(); }).Description, failure.Description);
    EXPECT_EQ(FailureOf([&] { records->MoveNext(); }).Description, failure.Description);
    EXPECT_EQ(FailureOf([&] { records->FieldValue(0); }).Number, failure.Number);
    ASSERT_EQ(connection->Errors().size(), told.size());
    EXPECT_EQ(connection->Errors().front().Description, told.front().Description);
    EXPECT_EQ(records->FieldCount(), 1);
}

TEST_F(OdbcErrors, OfAServerStoppedInTheMiddleOfAWalk_AndReconnected)
{
    PostgresServer server;
    const std::u16string text = Common::ToUtf16(server.OdbcText("UseDeclareFetch=1;Fetch=100;"));
    const auto connection = OdbcConnection::Open(text);
    const auto records = connection->Query(u"SELECT i, repeat('x', 200) FROM generate_series(1, 100000) i");
    for (int i = 0; i < 1000; ++i)
        records->MoveNext();
    server.StopNow();
    int more = 0;
    const Failure failure = FailureOf([&] {
        for (; !records->AtEnd(); records->MoveNext())
            ++more;
    });
    EXPECT_LT(more, 10'000);
    EXPECT_EQ(failure.Source, u"Recordset");
    EXPECT_FALSE(connection->Errors().empty());
    EXPECT_EQ(FailureOf([&] { connection->Query(u"SELECT 1"); }).Source, u"Recordset");
    EXPECT_EQ(FailureOf([&] { connection->Connect(text); }).Source, u"Recordset");
    server.Start();
    connection->Connect(text);
    EXPECT_EQ(TellAll(*connection->Query(u"SELECT 1")), std::vector<std::string>{"integer 1"});
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Description, failure.Description);
}

TEST_F(OdbcErrors, OfARecordThatCannotBeRead_InADriverWithoutASnapshot)
{
    Make("CREATE TABLE t (j TEXT); INSERT INTO t VALUES ('[]'), ('{}'), ('broken'), ('[]')");
    const auto connection = OdbcConnection::Open(SqliteText("StepAPI=1;"));
    const auto records = connection->Query(u"SELECT json(j) FROM t");
    const Failure failure = FailureOf([&] { CountOnwards(*records); });
    EXPECT_NE(failure.Description.find(u"malformed JSON"), std::u16string::npos) << Common::ToUtf8(failure.Description);
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Description, failure.Description);
}

TEST_F(OdbcErrors, AHundredFold_LeaveNoFileOpen_AndNoMemoryTaken)
{
    Make("CREATE TABLE t (j TEXT); INSERT INTO t VALUES ('[]'), ('broken')");
    const auto openFiles = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    const auto server = OdbcConnection::Open(PostgresText("UseDeclareFetch=1;Fetch=2;"));
    const auto file = OdbcConnection::Open(SqliteText("StepAPI=1;"));
    const auto fail = [&] {
        EXPECT_THROW(OdbcConnection::Open(u"DSN=nowhere"), Failure);
        EXPECT_THROW(OdbcConnection::Open(GuardedText("hunter2")), Failure);
        EXPECT_THROW(OdbcConnection::Open(SqliteText({}, "no/folder.db")), Failure);
        EXPECT_THROW(FromSqlite(u"SELEC"), Failure);
        EXPECT_THROW(FromPostgres(u"SELEC"), Failure);
        EXPECT_THROW(server->Query(u"SELECT * FROM nowhere"), Failure);
        EXPECT_THROW(server->Query(u"DELETE FROM pg_class WHERE false"), Failure);
        EXPECT_THROW(CountOnwards(*server->Query(u"SELECT 9 / (5 - i) FROM generate_series(1, 9) i")), Failure);
        EXPECT_THROW(CountOnwards(*file->Query(u"SELECT json(j) FROM t")), Failure);
        server->Query(u"SELECT i FROM generate_series(1, 1000) i")->MoveNext();
        file->Query(u"SELECT j FROM t")->MoveNext();
    };
    for (int i = 0; i < 10; ++i)
        fail();
    const auto filesBefore = openFiles();
    const std::size_t before = mallinfo2().uordblks;
    for (int i = 0; i < 100; ++i)
        fail();
    EXPECT_EQ(openFiles(), filesBefore);
    // A handle that stays is more than a hundred bytes, a thousand times.
    EXPECT_LT(mallinfo2().uordblks, before + 100'000);
}

} // namespace

} // namespace Tessellon
