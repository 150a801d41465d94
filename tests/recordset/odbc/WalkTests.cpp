#include "recordset/odbc/OdbcTest.h"

namespace Tessellon {

namespace {

/// Each on both data sources, over a table of the numbers 1, 2, 3. PostgreSQL gives its records in pieces of two.
class OdbcWalks : public OdbcTest, public testing::WithParamInterface<const char*> {
protected:
    OdbcWalks()
    {
        Do("DROP TABLE IF EXISTS walked; CREATE TABLE walked (n INTEGER); INSERT INTO walked VALUES (1), (2), (3)");
    }
    ~OdbcWalks() override { Do("DROP TABLE walked"); }

    static bool IsPostgres() { return GetParam() == std::string("Postgres"); }
    /// By another connection.
    void Do(const std::string& statements)
    {
        if (IsPostgres())
            PostgresServer::Shared().Run("SET client_min_messages = error; " + statements);
        else
            Make(statements);
    }
    std::shared_ptr<OdbcConnection> Connect() const
    {
        return OdbcConnection::Open(IsPostgres() ? PostgresText("UseDeclareFetch=1;Fetch=2;") : SqliteText());
    }
    std::shared_ptr<OdbcRecordset> Ask(std::u16string_view query) const { return Connect()->Query(query); }

    static constexpr std::u16string_view All = u"SELECT n FROM walked ORDER BY n";
    const std::vector<std::string> One23{"integer 1", "integer 2", "integer 3"};
};

INSTANTIATE_TEST_SUITE_P(Sources, OdbcWalks, testing::Values("Postgres", "Sqlite"),
                         [](const auto& source) { return std::string(source.param); });

TEST_P(OdbcWalks, NewRecordset_StandsOnItsFirst)
{
    const auto records = Ask(All);
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
    EXPECT_FALSE(records->AtEnd());
}

TEST_P(OdbcWalks, MoveFirst_ServesAsOftenAsWanted_AndInTheMiddle)
{
    const auto records = Ask(All);
    records->MoveNext();
    records->MoveFirst();
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
    for (int walk = 0; walk < 4; ++walk)
        EXPECT_EQ(TellAll(*records), One23);
    records->MoveFirst();
    EXPECT_EQ(CountOnwards(*records), 3);
}

TEST_P(OdbcWalks, BehindTheLast_EveryReadFails)
{
    const auto connection = Connect();
    const auto records = connection->Query(All);
    CountOnwards(*records);
    EXPECT_TRUE(records->AtEnd());
    const Failure failure = FailureOf([&] { records->MoveNext(); });
    EXPECT_EQ(failure.Number, 3021);
    EXPECT_EQ(failure.Source, u"Recordset");
    EXPECT_EQ(failure.Description, u"Either BOF or EOF is True");
    EXPECT_EQ(FailureOf([&] { records->FieldValue(0); }).Number, 3021);
    EXPECT_TRUE(records->AtEnd());
    EXPECT_TRUE(connection->Errors().empty());
    EXPECT_EQ(TellAll(*records), One23);
}

TEST_P(OdbcWalks, EmptyRecordset_IsAtItsEndAndHasNoFirst)
{
    const auto records = Ask(u"SELECT n, n AS m FROM walked WHERE n > 100");
    EXPECT_TRUE(records->AtEnd());
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Number, 3021);
        EXPECT_EQ(FailureOf([&] { records->MoveNext(); }).Number, 3021);
        EXPECT_EQ(FailureOf([&] { records->FieldValue(0); }).Number, 3021);
        EXPECT_TRUE(records->AtEnd());
    }
    EXPECT_EQ(records->FieldCount(), 2);
    EXPECT_EQ(records->FieldType(0), 3);
    EXPECT_EQ(records->FieldName(1), u"m");
}

TEST_P(OdbcWalks, MoveFirstOfANewEmptyRecordset_Fails)
{
    EXPECT_EQ(FailureOf([&] { Ask(u"SELECT n FROM walked WHERE n > 100")->MoveFirst(); }).Number, 3021);
}

TEST_P(OdbcWalks, FieldsThatAreNone_AreSubscriptFailures)
{
    const auto records = Ask(All);
    for (const std::int32_t field : {-1, 1, 1000}) {
        EXPECT_EQ(FailureOf([&] { records->FieldValue(field); }).Number, 9);
        EXPECT_EQ(FailureOf([&] { records->FieldType(field); }).Number, 9);
        EXPECT_EQ(FailureOf([&] { records->FieldName(field); }).Source, u"Recordset");
    }
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
}

TEST_P(OdbcWalks, OneField_MayBeReadTwice_AndInAnyOrder)
{
    const auto records = Ask(u"SELECT 'one', 'two', 'three'");
    for (const std::int32_t field : {2, 0, 0, 1, 2, 2})
        EXPECT_EQ(Told(records->FieldValue(field)),
                  (std::vector<std::string>{"text one", "text two", "text three"}).at(static_cast<std::size_t>(field)));
}

TEST_P(OdbcWalks, TableChangedBetweenTheWalks_IsSeenAsItWas)
{
    const auto records = Ask(All);
    EXPECT_EQ(CountOnwards(*records), 3);
    Do("DELETE FROM walked WHERE n = 2; UPDATE walked SET n = 30 WHERE n = 3; INSERT INTO walked VALUES (4), (5)");
    EXPECT_EQ(TellAll(*records), One23);
    EXPECT_EQ(TellAll(*Ask(All)), (std::vector<std::string>{"integer 1", "integer 4", "integer 5", "integer 30"}));
}

TEST_P(OdbcWalks, RecordsetOutlivesItsConnection_InTheMiddleOfAWalk)
{
    auto connection = Connect();
    const auto records = connection->Query(All);
    records->MoveNext();
    connection.reset();
    EXPECT_EQ(CountOnwards(*records), 2);
    EXPECT_EQ(TellAll(*records), One23);
}

TEST_P(OdbcWalks, ConnectionConnectedAnew_LeavesItsRecordsetsAsTheyAre)
{
    const auto connection = Connect();
    const auto records = connection->Query(All);
    records->MoveNext();
    connection->Connect(SqliteText({}, "other.db"));
    EXPECT_EQ(TellAll(*connection->Query(u"SELECT 'other'")), std::vector<std::string>{"text other"});
    EXPECT_EQ(TellAll(*records), One23);
}

TEST_P(OdbcWalks, TwoRecordsetsOfAConnection_AreWalkedSideBySide)
{
    const auto connection = Connect();
    const auto one = connection->Query(All);
    const auto other = connection->Query(u"SELECT -n FROM walked ORDER BY n");
    for (std::int64_t i = 1; i <= 3; ++i) {
        EXPECT_EQ(one->FieldValue(0).Integer, i);
        EXPECT_EQ(other->FieldValue(0).Integer, -i);
        one->MoveNext();
        other->MoveNext();
    }
    EXPECT_TRUE(one->AtEnd());
    EXPECT_TRUE(other->AtEnd());
}

TEST_P(OdbcWalks, RecordsetLeftInTheMiddle_LeavesNothingLocked)
{
    const auto connection = Connect();
    connection->Query(All)->MoveNext();
    Do("DELETE FROM walked WHERE n > 1; ALTER TABLE walked ADD COLUMN extra INTEGER");
    EXPECT_EQ(CountOnwards(*connection->Query(All)), 1);
}

TEST_P(OdbcWalks, QueryThatGivesNoRecords_FailsAndChangesNothing)
{
    const auto connection = Connect();
    for (const char16_t* query : {u"DELETE FROM walked", u"INSERT INTO walked VALUES (4)", u"DROP TABLE walked"}) {
        const Failure failure = FailureOf([&] { connection->Query(query); });
        EXPECT_EQ(failure.Description, u"the query gives no records");
        EXPECT_EQ(failure.Source, u"Recordset");
        ASSERT_EQ(connection->Errors().size(), 1U);
        EXPECT_EQ(connection->Errors().front().Number, failure.Number);
    }
    EXPECT_EQ(TellAll(*connection->Query(All)), One23);
    EXPECT_EQ(TellAll(*Ask(All)), One23);
    Do("INSERT INTO walked VALUES (9)");
}

struct Source {
    const char* Name;
    bool IsPostgres;
    const char* Options;
};

class OtherQueries : public OdbcTest, public testing::WithParamInterface<Source> {
protected:
    /// SQLite's driver gives an expression no type until it has read a record.
    static std::string Number(Recordset& records)
    {
        const std::string told = Told(records.FieldValue(0));
        return told.substr(told.find(' ') + 1);
    }
};

INSTANTIATE_TEST_SUITE_P(Sources, OtherQueries,
                         testing::Values(Source{"Postgres", true, ""},
                                         Source{"PostgresInPieces", true, "UseDeclareFetch=1;Fetch=10;"},
                                         Source{"Sqlite", false, ""}, Source{"SqliteInPieces", false, "StepAPI=1;"}),
                         [](const auto& source) { return std::string(source.param.Name); });

TEST_P(OtherQueries, InTheMiddleOfAWalk_CostItNoRecord)
{
    const Source& source = GetParam();
    const auto connection =
        OdbcConnection::Open(source.IsPostgres ? PostgresText(source.Options) : SqliteText(source.Options));
    constexpr std::u16string_view numbers =
        u"WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < 5000) "
        u"SELECT n FROM c";
    for (const char16_t* other : {u"SELECT 7", u"SELEC", u"SELECT n FROM nowhere", u"CREATE TABLE made (n INTEGER)"}) {
        const auto records = connection->Query(numbers);
        const auto second = connection->Query(numbers);
        for (int i = 0; i < 10; ++i)
            records->MoveNext();
        try {
            EXPECT_EQ(Number(*connection->Query(other)), "7");
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Source, u"Recordset");
        }
        EXPECT_EQ(Number(*records), "11");
        EXPECT_EQ(CountOnwards(*records), 4990);
        EXPECT_EQ(CountOnwards(*second), 5000);
    }
}

TEST_F(OdbcTest, ChangeThatGivesTheRecordsItChanged_FailsWhereItChangesNone)
{
    PostgresServer::Shared().Run("CREATE TABLE changed (n INTEGER)");
    const auto connection = OdbcConnection::Open(PostgresText());
    EXPECT_EQ(FailureOf([&] { connection->Query(u"UPDATE changed SET n = 0 RETURNING n"); }).Description,
              u"the query gives no records");
    EXPECT_EQ(TellAll(*connection->Query(u"INSERT INTO changed VALUES (5) RETURNING n")),
              std::vector<std::string>{"integer 5"});
    PostgresServer::Shared().Run("DROP TABLE changed");
}

} // namespace

} // namespace Tessellon
