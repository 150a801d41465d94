#include "recordset/odbc/DriverCalls.h"
#include "recordset/odbc/OdbcTest.h"
#include "support/AllocationCount.h"

namespace Tessellon {

namespace {

using Blocks = OdbcTest;

TEST_F(Blocks, AHundredThousandRecordsFromAServer_TakeAFewHundredFetches)
{
    const auto records = FromPostgres(u"SELECT i, 'customer ' || i, i / 7.0 FROM generate_series(1, 100000) i");
    EXPECT_EQ(Calls().Fetches, 0);
    EXPECT_EQ(CountOnwards(*records), 100'000);
    EXPECT_LE(Calls().Fetches, 400);
    EXPECT_EQ(Calls().Asked, 0);
    const long fetched = Calls().Fetches;
    records->MoveFirst();
    EXPECT_EQ(CountOnwards(*records), 100'000);
    EXPECT_EQ(Calls().Fetches, fetched) << "the second walk asked the driver";
}

TEST_F(Blocks, AreAsSmallAsTheirMemoryAllows)
{
    std::u16string query = u"SELECT i::text";
    for (int i = 1; i < 600; ++i)
        query += u", i::text";
    const auto records = FromPostgres(query + u" FROM generate_series(1, 30) i");
    EXPECT_EQ(CountOnwards(*records), 30);
    EXPECT_GE(Calls().Fetches, 10) << "a block took more than a megabyte";
}

TEST_F(Blocks, ManyRecords_CostNoAllocationEach)
{
    const auto records = FromPostgres(u"SELECT i, 'customer ' || i, i / 7.0, date '2024-03-15' + i % 100 "
                                      u"FROM generate_series(1, 20000) i");
    const long before = AllocationCount();
    EXPECT_EQ(CountOnwards(*records), 20'000);
    EXPECT_LE(AllocationCount() - before, 100);
}

struct Manner {
    const char* Name;
    bool GivesNoBlocks;
    bool GivesEachOnce;
    bool CountsIn32Bits;
    bool TellsNoLengths;
};

constexpr Manner Manners[] = {
    {"AsItIs", false, false, false, false},
    {"NoBlocks", true, false, false, false},
    {"EachOnce", false, true, false, false},
    {"In32Bits", false, false, true, false},
    {"NoLengths", false, false, false, true},
    {"NoBlocksNoLengths", true, false, false, true},
    {"EachOnceIn32BitsNoLengths", false, true, true, true},
};

/// The same records from drivers of every manner.
class Drivers : public OdbcTest, public testing::WithParamInterface<std::tuple<const char*, Manner>> {
protected:
    Drivers()
    {
        const Manner& manner = std::get<Manner>(GetParam());
        Calls().GivesNoBlocks = manner.GivesNoBlocks;
        Calls().GivesEachOnce = manner.GivesEachOnce;
        Calls().CountsIn32Bits = manner.CountsIn32Bits;
        Calls().TellsNoLengths = manner.TellsNoLengths;
    }
    std::shared_ptr<OdbcRecordset> Ask(std::u16string_view postgres, std::u16string_view sqlite)
    {
        return std::get<0>(GetParam()) == std::string("Postgres") ? FromPostgres(postgres) : FromSqlite(sqlite);
    }
};

INSTANTIATE_TEST_SUITE_P(Manners, Drivers,
                         testing::Combine(testing::Values("Postgres", "Sqlite"), testing::ValuesIn(Manners)),
                         [](const auto& manner) {
                             return std::string(std::get<0>(manner.param)) + std::get<Manner>(manner.param).Name;
                         });

TEST_P(Drivers, GiveTextsOfEveryLengthWhole)
{
    // Around the room in the block, around the room that is first made, and far beyond; letters of one unit and of two.
    constexpr std::u16string_view lengths = u"(VALUES (0), (1), (254), (255), (256), (257), (1023), (1024), (2046), "
                                            u"(2047), (2048), (2049), (70000), (1048576)) ";
    const auto records =
        Ask(u"SELECT n, repeat('x', n), repeat('Ж', n), repeat('😀', n), 'end' FROM " + std::u16string(lengths) +
                u"v(n) ORDER BY n",
            u"WITH v(n) AS " + std::u16string(lengths) +
                u"SELECT n, replace(hex(zeroblob(n)), '00', 'x'), replace(hex(zeroblob(n)), '00', 'Ж'), "
                u"replace(hex(zeroblob(n)), '00', '😀'), 'end' FROM v ORDER BY n");
    int count = 0;
    for (records->MoveFirst(); !records->AtEnd(); records->MoveNext()) {
        const auto length = static_cast<std::size_t>(records->FieldValue(0).Integer);
        ASSERT_TRUE(records->FieldValue(1).Characters == std::u16string(length, u'x')) << length;
        ASSERT_TRUE(records->FieldValue(2).Characters == std::u16string(length, u'Ж')) << length;
        const std::u16string pairs(records->FieldValue(3).Characters);
        ASSERT_EQ(pairs.size(), 2 * length);
        for (std::size_t i = 0; i < length; ++i)
            ASSERT_EQ(pairs.substr(2 * i, 2), u"😀") << length;
        ASSERT_EQ(records->FieldValue(4).Characters, u"end");
        ++count;
    }
    EXPECT_EQ(count, 14);
}

TEST_P(Drivers, GiveBytesOfEveryLengthWhole)
{
    const auto records = Ask(
        u"SELECT decode(repeat('a50f', n), 'hex') FROM (VALUES (0), (127), (128), (200), (5000)) v(n) ORDER BY n",
        u"SELECT x'' UNION ALL SELECT CAST(replace(hex(zeroblob(n)), '00', char(165) || 'Z') AS BLOB) FROM (SELECT 127 "
        u"AS n UNION ALL SELECT 128 UNION ALL SELECT 200 UNION ALL SELECT 5000)");
    const bool isPostgres = std::get<0>(GetParam()) == std::string("Postgres");
    const std::u16string pattern = isPostgres ? u"A50F" : u"C2A55A";
    std::size_t lengths[] = {0, 127, 128, 200, 5000};
    for (const std::size_t length : lengths) {
        ASSERT_FALSE(records->AtEnd());
        std::u16string expected;
        for (std::size_t i = 0; i < length; ++i)
            expected += pattern;
        ASSERT_TRUE(records->FieldValue(0).Characters == expected) << length;
        records->MoveNext();
    }
    EXPECT_TRUE(records->AtEnd());
}

TEST_P(Drivers, GiveEveryKindOfValueAndNull)
{
    Make("CREATE TABLE t (n INTEGER, i INT, r REAL, d DATE, b BOOLEAN, a TEXT, y BLOB); WITH RECURSIVE c(n) AS (SELECT "
         "1 "
         "UNION ALL SELECT n + 1 FROM c WHERE n < 700) INSERT INTO t SELECT n, -n, n / 8.0, '2024-03-15', 1, 'text', "
         "x'0A' FROM c; UPDATE t SET i = NULL, r = NULL, d = NULL, b = NULL, a = NULL, y = NULL WHERE n % 3 = 0");
    const auto records = Ask(
        u"SELECT n, CASE WHEN n % 3 > 0 THEN -n END, CASE WHEN n % 3 > 0 THEN n / 8.0::float8 END, CASE WHEN n % 3 > 0 "
        u"THEN date '2024-03-15' END, CASE WHEN n % 3 > 0 THEN true END, CASE WHEN n % 3 > 0 THEN 'text' END, CASE "
        u"WHEN "
        u"n % 3 > 0 THEN '\\x0a'::bytea END FROM generate_series(1, 700) n ORDER BY n",
        u"SELECT * FROM t ORDER BY n");
    int n = 0;
    for (records->MoveFirst(); !records->AtEnd(); records->MoveNext()) {
        ++n;
        ASSERT_EQ(records->FieldValue(0).Integer, n);
        if (n % 3 == 0) {
            for (std::int32_t field = 1; field < 7; ++field)
                ASSERT_TRUE(records->FieldValue(field).IsNull()) << n << ' ' << field;
            continue;
        }
        ASSERT_EQ(records->FieldValue(1).Integer, -n);
        ASSERT_EQ(records->FieldValue(2).Real, n / 8.0);
        ASSERT_EQ(Told(records->FieldValue(3)), "date 45366");
        ASSERT_EQ(Told(records->FieldValue(4)), "true");
        ASSERT_EQ(Told(records->FieldValue(5)), "text text");
        ASSERT_EQ(Told(records->FieldValue(6)), "text 0A");
    }
    EXPECT_EQ(n, 700);
}

TEST_F(Blocks, AFetchThatFailsWithoutAReason_IsAFailureAllTheSame)
{
    Calls().FailsAtFetch = 2;
    const auto connection = OdbcConnection::Open(PostgresText());
    const auto records = connection->Query(u"SELECT i FROM generate_series(1, 5000) i");
    const Failure failure = FailureOf([&] { CountOnwards(*records); });
    EXPECT_EQ(failure.Source, u"Recordset");
    EXPECT_EQ(failure.Description, u"the driver gives no reason");
    ASSERT_EQ(connection->Errors().size(), 1U);
    EXPECT_EQ(connection->Errors().front().SQLState, u"HY000");
}

} // namespace

} // namespace Tessellon
