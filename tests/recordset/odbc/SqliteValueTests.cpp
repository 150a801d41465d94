#include "recordset/odbc/OdbcTest.h"

namespace Tessellon {

namespace {

struct StoredValue {
    const char* Declared;
    const char* Expression;
    std::int32_t Type;
    const char* Value;
};

void PrintTo(const StoredValue& value, std::ostream* stream)
{
    *stream << value.Expression << " in " << value.Declared;
}

class SqliteOdbcValues : public OdbcTest, public testing::WithParamInterface<StoredValue> {};

TEST_P(SqliteOdbcValues, KeepTheirTypeAndAllTheirDigits)
{
    const StoredValue& stored = GetParam();
    Make(std::string("CREATE TABLE t (a ") + stored.Declared + "); INSERT INTO t VALUES (NULL), (" + stored.Expression +
         "), (NULL)");
    const auto records = FromSqlite(u"SELECT a FROM t ORDER BY rowid");
    EXPECT_EQ(records->FieldType(0), stored.Type);
    EXPECT_EQ(TellAll(*records), (std::vector<std::string>{"null", stored.Value, "null"}));
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, SqliteOdbcValues,
    testing::Values(StoredValue{"BOOLEAN", "1", 11, "true"}, StoredValue{"BOOLEAN", "0", 11, "false"},
                    StoredValue{"TINYINT", "-5", 16, "integer -5"},
                    StoredValue{"TINYINT UNSIGNED", "200", 17, "integer 200"},
                    StoredValue{"SMALLINT", "-300", 2, "integer -300"},
                    StoredValue{"SMALLINT UNSIGNED", "65000", 18, "integer 65000"},
                    StoredValue{"INTEGER", "-70000", 3, "integer -70000"},
                    StoredValue{"INT UNSIGNED", "4294967295", 19, "integer 4294967295"},
                    StoredValue{"BIGINT", "-9223372036854775807 - 1", 20, "integer -9223372036854775808"},
                    StoredValue{"BIGINT UNSIGNED", "9223372036854775807", 21, "integer 9223372036854775807"},
                    StoredValue{"DOUBLE", "0.1", 5, "double 0.1"},
                    StoredValue{"REAL", "-2.5e-300", 5, "double -2.5e-300"},
                    StoredValue{"FLOAT", "9e999", 5, "double inf"}));

// SQLite keeps any value in any column; what the column's type cannot read comes as it is stored.
INSTANTIATE_TEST_SUITE_P(
    Misfits, SqliteOdbcValues,
    testing::Values(StoredValue{"BOOLEAN", "'perhaps'", 11, "text perhaps"},
                    StoredValue{"INTEGER", "'n/a'", 3, "text n/a"}, StoredValue{"INTEGER", "''", 3, "text "},
                    StoredValue{"INTEGER", "2.5", 3, "decimal 2.5"},
                    StoredValue{"INTEGER", "'18446744073709551615'", 3, "double 18446744073709600768"},
                    StoredValue{"INTEGER", "'a number told in far more letters than one takes'", 3,
                                "text a number told in far more letters than one takes"},
                    StoredValue{"INTEGER", "'größer als 😀'", 3, "text größer als 😀"},
                    StoredValue{"DATE", "'someday'", 133, "text someday"},
                    StoredValue{"DATE", "'10000-01-01'", 133, "text 10000-01-01"},
                    StoredValue{"TIMESTAMP", "2460000.5", 135, "text 2460000.5"}));

INSTANTIATE_TEST_SUITE_P(Moments, SqliteOdbcValues,
                         testing::Values(StoredValue{"DATE", "'2024-03-15'", 133, "date 45366"},
                                         StoredValue{"TIME", "'06:00:00.25'", 134, "date 0.2500028935185185"},
                                         StoredValue{"TIMESTAMP", "'2024-03-15 12:00:00'", 135, "date 45366.5"},
                                         StoredValue{"DATETIME", "'2024-03-15T12:00Z'", 135, "date 45366.5"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, SqliteOdbcValues,
    testing::Values(StoredValue{"VARCHAR(20)", "'äЖ😀'", 200, "text äЖ😀"},
                    StoredValue{"VARCHAR(3)", "'longer than three'", 200, "text longer than three"},
                    StoredValue{"TEXT", "'a'", 201, "text a"}, StoredValue{"TEXT", "''", 201, "text "},
                    StoredValue{"BLOB", "x'00FFa5'", 128, "text 00FFA5"}, StoredValue{"BLOB", "x''", 128, "text "},
                    StoredValue{"VARBINARY(2)", "x'010203'", 204, "text 010203"}));

using SqliteOdbcRecords = OdbcTest;

TEST_F(SqliteOdbcRecords, BytesThatAreNoUtf8_AreReplaced)
{
    Make("CREATE TABLE t (a TEXT, n INTEGER)");
    Writer(Path()).DoWithText("INSERT INTO t VALUES (?1, ?1)", std::string("a\xFF\xC3(z"));
    const auto records = FromSqlite(u"SELECT a, n FROM t");
    EXPECT_EQ(records->FieldValue(0).Characters, u"a\xFFFD\xFFFD(z");
    EXPECT_EQ(records->FieldValue(1).Characters, u"a\xFFFD\xFFFD(z");
}

TEST_F(SqliteOdbcRecords, QueriesFieldsAndFilesMayHaveAnyLetters)
{
    const std::string name = "Aufträge Ж 😀.db";
    Writer(Path(name)).Do("CREATE TABLE größe (a TEXT); INSERT INTO größe VALUES ('Ж😀'), ('z')");
    const auto records =
        OdbcConnection::Open(SqliteText({}, name))->Query(u"SELECT a AS \"ä 😀\" FROM größe WHERE a = 'Ж😀'");
    EXPECT_EQ(records->FieldName(0), u"ä 😀");
    EXPECT_EQ(TellAll(*records), std::vector<std::string>{"text Ж😀"});
    const std::filesystem::directory_iterator files(Path(".").parent_path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "a file of another name was made";
}

TEST_F(SqliteOdbcRecords, OfTwoThousandFields_AreRead_AndOneMoreIsItsOwnFailure)
{
    Make("CREATE TABLE t (n)");
    const auto fields = [](int count) {
        std::u16string query = u"SELECT 1";
        for (int i = 2; i <= count; ++i)
            query += u", " + Common::ToUtf16(std::to_string(i));
        return query;
    };
    const auto records = FromSqlite(fields(2000));
    EXPECT_EQ(records->FieldCount(), 2000);
    EXPECT_EQ(Told(records->FieldValue(1999)), "integer 2000");
    const Failure failure = FailureOf([&] { FromSqlite(fields(2001)); });
    EXPECT_NE(failure.Description.find(u"too many columns in result set"), std::u16string::npos);
}

} // namespace

} // namespace Tessellon
