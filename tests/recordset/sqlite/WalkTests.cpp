#include "recordset/sqlite/TemporaryDatabase.h"
#include "support/AllocationCount.h"

namespace Tessellon {

namespace {

/// Each with a rollback journal and with a write-ahead log.
class Walks : public SqliteTest, public testing::WithParamInterface<const char*> {
protected:
    Walks()
    {
        Make(std::string("PRAGMA journal_mode = ") + GetParam() +
             "; CREATE TABLE t (n INTEGER); INSERT INTO t VALUES (1), (2), (3)");
    }
    static constexpr std::u16string_view All = u"SELECT n FROM t ORDER BY n";
    static bool IsWal() { return GetParam() == std::string("WAL"); }

    int WriteNow() { return writer_.Try("INSERT INTO t VALUES (4)"); }
    /// A journal keeps others from writing meanwhile; a log lets them, but cannot be emptied.
    void ExpectSnapshotHeld()
    {
        EXPECT_EQ(WriteNow(), IsWal() ? SQLITE_OK : SQLITE_BUSY);
        if (IsWal()) {
            EXPECT_EQ(writer_.Ask("PRAGMA wal_checkpoint(TRUNCATE)"), 1);
        }
    }
    void ExpectNothingLocked(const std::shared_ptr<SqliteConnection>& connection)
    {
        EXPECT_EQ(writer_.Try("INSERT INTO t VALUES (9); DELETE FROM t WHERE n = 9"), SQLITE_OK);
        if (IsWal()) {
            EXPECT_EQ(writer_.Ask("PRAGMA wal_checkpoint(TRUNCATE)"), 0);
        }
        EXPECT_TRUE(connection->Errors().empty());
    }

    static std::int64_t Sum(Recordset& records)
    {
        std::int64_t sum = 0;
        for (; !records.AtEnd(); records.MoveNext())
            sum += records.FieldValue(0).Integer;
        return sum;
    }

    Writer writer_{Path()};
};

INSTANTIATE_TEST_SUITE_P(Journals, Walks, testing::Values("DELETE", "WAL"),
                         [](const auto& journal) { return std::string(journal.param); });

TEST_P(Walks, NewRecordset_StandsOnItsFirst)
{
    const auto records = Query(All);
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
    EXPECT_FALSE(records->AtEnd());
}

TEST_P(Walks, MoveFirst_ServesAsOftenAsWanted)
{
    const auto records = Query(All);
    for (int walk = 0; walk < 5; ++walk) {
        records->MoveFirst();
        EXPECT_EQ(Sum(*records), 6);
    }
    records->MoveFirst();
    records->MoveNext();
    records->MoveFirst();
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
}

TEST_P(Walks, BehindTheLast_EveryReadFails)
{
    const auto records = Query(All);
    CountOnwards(*records);
    EXPECT_TRUE(records->AtEnd());
    const Failure failure = FailureOf([&] { records->MoveNext(); });
    EXPECT_EQ(failure.Number, 3021);
    EXPECT_EQ(failure.Source, u"Recordset");
    EXPECT_EQ(failure.Description, u"Either BOF or EOF is True");
    EXPECT_EQ(FailureOf([&] { records->FieldValue(0); }).Number, 3021);
    EXPECT_TRUE(records->AtEnd());
}

TEST_P(Walks, EmptyRecordset_IsAtItsEndAndHasNoFirst)
{
    const auto connection = Open();
    const auto records = connection->Query(u"SELECT n FROM t WHERE n > 100");
    EXPECT_TRUE(records->AtEnd());
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Number, 3021);
    EXPECT_EQ(FailureOf([&] { records->MoveNext(); }).Number, 3021);
    EXPECT_TRUE(records->AtEnd());
    EXPECT_EQ(records->FieldCount(), 1);
    ExpectNothingLocked(connection);
}

TEST_P(Walks, MoveFirstOfANewEmptyRecordset_Fails)
{
    const auto connection = Open();
    const auto records = connection->Query(u"SELECT n FROM t WHERE n > 100");
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Number, 3021);
    ExpectNothingLocked(connection);
}

TEST_P(Walks, RecordsThatComeLater_AreFoundByMoveFirst)
{
    const auto records = Query(u"SELECT n FROM t WHERE n > 3");
    EXPECT_TRUE(records->AtEnd());
    EXPECT_EQ(WriteNow(), SQLITE_OK);
    EXPECT_TRUE(records->AtEnd());
    records->MoveFirst();
    EXPECT_EQ(records->FieldValue(0).Integer, 4);
}

TEST_P(Walks, NewRecordset_LocksNothingUntilItIsAsked)
{
    const auto connection = Open();
    const auto records = connection->Query(All);
    EXPECT_EQ(records->FieldCount(), 1);
    EXPECT_EQ(records->FieldType(0), 20);
    ExpectNothingLocked(connection);
}

TEST_P(Walks, Load_SeesOneStateInBothWalks_AndLeavesNothingLocked)
{
    const auto connection = Open();
    const auto records = connection->Query(All);
    ASSERT_FALSE(records->AtEnd());
    ExpectSnapshotHeld();
    records->MoveFirst();
    EXPECT_EQ(CountOnwards(*records), 3);
    ExpectSnapshotHeld();
    records->MoveFirst();
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
    ExpectSnapshotHeld();
    EXPECT_EQ(Sum(*records), 6);
    records->MoveFirst();
    ExpectNothingLocked(connection);
    EXPECT_EQ(records->FieldType(0), 20);
    ExpectNothingLocked(connection);
}

TEST_P(Walks, BehindALoad_TheRecordsAreThoseOfThatMoment)
{
    const auto records = Query(All);
    for (int walk = 0; walk < 2; ++walk) {
        records->MoveFirst();
        EXPECT_EQ(CountOnwards(*records), 3);
    }
    records->MoveFirst();
    ASSERT_EQ(WriteNow(), SQLITE_OK);
    EXPECT_EQ(CountOnwards(*records), 4);
    records->MoveFirst();
    ExpectSnapshotHeld();
    EXPECT_EQ(CountOnwards(*records), 4);
}

TEST_P(Walks, LoadThatFindsItsRecordsGone_IsAtTheEnd)
{
    const auto records = Query(All);
    for (int walk = 0; walk < 2; ++walk) {
        records->MoveFirst();
        CountOnwards(*records);
    }
    records->MoveFirst();
    writer_.Do("DELETE FROM t");
    EXPECT_TRUE(records->AtEnd());
    EXPECT_EQ(FailureOf([&] { records->MoveFirst(); }).Number, 3021);
}

TEST_P(Walks, Close_LetsGoInTheMiddle)
{
    const auto connection = Open();
    const auto records = connection->Query(All);
    records->MoveNext();
    ExpectSnapshotHeld();
    records->Close();
    ExpectNothingLocked(connection);
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
}

TEST_P(Walks, RecordsetThatGoes_LetsGo)
{
    const auto connection = Open();
    auto records = connection->Query(All);
    records->MoveNext();
    ExpectSnapshotHeld();
    records.reset();
    ExpectNothingLocked(connection);
}

TEST_P(Walks, RecordsetOutlivesTheConnectionsHandle)
{
    auto connection = Open();
    const auto records = connection->Query(All);
    records->MoveNext();
    connection.reset();
    EXPECT_EQ(Sum(*records), 5);
}

TEST_P(Walks, TwoRecordsetsOfAConnection_ShareASnapshotUntilBothAreDone)
{
    const auto connection = Open();
    const auto one = connection->Query(All);
    const auto other = connection->Query(All);
    EXPECT_FALSE(one->AtEnd());
    ExpectSnapshotHeld();
    for (int walk = 0; walk < 2; ++walk) {
        other->MoveFirst();
        EXPECT_EQ(CountOnwards(*other), 3);
    }
    ExpectSnapshotHeld();
    for (int walk = 0; walk < 2; ++walk) {
        one->MoveFirst();
        EXPECT_EQ(CountOnwards(*one), 3);
    }
    ExpectNothingLocked(connection);
}

TEST_P(Walks, TableThatGrewAColumn_IsReadWithIt)
{
    const auto records = Query(u"SELECT * FROM t");
    for (int walk = 0; walk < 2; ++walk) {
        records->MoveFirst();
        CountOnwards(*records);
    }
    records->MoveFirst();
    writer_.Do("ALTER TABLE t ADD COLUMN extra TEXT DEFAULT 'more'");
    EXPECT_FALSE(records->AtEnd());
    EXPECT_EQ(records->FieldCount(), 2);
    EXPECT_EQ(records->FieldType(1), 203);
    EXPECT_EQ(records->FieldValue(1).Characters, u"more");
}

TEST_P(Walks, ManyRecords_CostNoAllocationEach)
{
    const auto records = Query(u"WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < 10000) "
                               u"SELECT n, n / 7.0, 'customer ' || n, '2024-03-15' FROM c");
    std::size_t characters = 0;
    const auto walk = [&] {
        for (records->MoveFirst(); !records->AtEnd(); records->MoveNext())
            for (std::int32_t field = 0; field < 4; ++field)
                characters += records->FieldValue(field).Characters.size();
    };
    walk();
    const long before = AllocationCount();
    walk();
    EXPECT_EQ(AllocationCount() - before, 0);
    EXPECT_GT(characters, 400'000U);
}

} // namespace

} // namespace Tessellon
