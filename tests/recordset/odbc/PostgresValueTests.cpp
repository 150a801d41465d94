#include "recordset/odbc/OdbcTest.h"

namespace Tessellon {

namespace {

struct TypedValue {
    const char* Expression;
    std::int32_t Type;
    const char* Value;
};

void PrintTo(const TypedValue& value, std::ostream* stream)
{
    *stream << value.Expression;
}

class PostgresValues : public OdbcTest, public testing::WithParamInterface<TypedValue> {};

TEST_P(PostgresValues, KeepTheirTypeAndAllTheirDigits)
{
    const auto records = FromPostgres(u"SELECT " + Common::ToUtf16(GetParam().Expression));
    EXPECT_EQ(records->FieldType(0), GetParam().Type);
    EXPECT_EQ(Told(records->FieldValue(0)), GetParam().Value);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, PostgresValues,
    testing::Values(TypedValue{"true", 11, "true"}, TypedValue{"false", 11, "false"},
                    TypedValue{"(-32768)::smallint", 2, "integer -32768"},
                    TypedValue{"(-2147483648)::integer", 3, "integer -2147483648"},
                    TypedValue{"9223372036854775807", 20, "integer 9223372036854775807"},
                    TypedValue{"(-9223372036854775808)::bigint", 20, "integer -9223372036854775808"},
                    TypedValue{"4294967295::oid", 19, "integer 4294967295"}, TypedValue{"0.1::real", 4, "single 0.1"},
                    TypedValue{"0.1::float8", 5, "double 0.1"},
                    TypedValue{"1.7976931348623157e308::float8", 5, "double 1.7976931348623157e+308"},
                    TypedValue{"'-Infinity'::float8", 5, "double -inf"},
                    TypedValue{"'-1234.50'::money", 5, "double -1234.5"},
                    TypedValue{"1.50::numeric(10,3)", 131, "decimal 1.500"},
                    TypedValue{"1234567890123456789012345678901234567890123456789012345678.00", 131,
                               "decimal 1234567890123456789012345678901234567890123456789012345678.00"},
                    TypedValue{"-1e-40::numeric", 131, "decimal -0.0000000000000000000000000000000000000001"},
                    TypedValue{"'NaN'::numeric", 131, "text NaN"}));

INSTANTIATE_TEST_SUITE_P(
    Moments, PostgresValues,
    testing::Values(
        TypedValue{"date '2024-03-15'", 133, "date 45366"}, TypedValue{"date '0100-01-01'", 133, "date -657434"},
        TypedValue{"date '9999-12-31'", 133, "date 2958465"}, TypedValue{"time '06:00'", 134, "date 0.25"},
        TypedValue{"time '00:00:00.5'", 134, "date 5.787037037037037e-06"},
        TypedValue{"timestamp '2024-03-15 12:00'", 135, "date 45366.5"},
        TypedValue{"timestamp '2024-03-15 18:00:00.000001'", 135, "date 45366.750000000015"},
        TypedValue{"timestamp '1899-12-29 18:00'", 135, "date -1.75"},
        // What no serial can tell comes as the driver writes it.
        TypedValue{"time '24:00'", 134, "text 24:00:00"}, TypedValue{"date '0099-12-31'", 133, "text 0099-12-31"},
        TypedValue{"date '10000-01-01'", 133, "text 1000-00-00"}, TypedValue{"date 'infinity'", 133, "text 0000-00-00"},
        TypedValue{"date '0044-03-15 BC'", 133, "text 0044-03-15"},
        TypedValue{"timestamp '-infinity'", 135, "text 9999-01-01 00:00:00 BC"},
        TypedValue{"timestamp '20000-01-01'", 135, "text 0000-00-00 00:00:00"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, PostgresValues,
    testing::Values(TypedValue{"'ab'::char(4)", 130, "text ab  "}, TypedValue{"'äb'::varchar(5)", 202, "text äb"},
                    TypedValue{"''::varchar(5)", 202, "text "}, TypedValue{"'a'::text", 203, "text a"},
                    TypedValue{"repeat('😀', 10)::varchar(10)", 202, "text 😀😀😀😀😀😀😀😀😀😀"},
                    TypedValue{"E'two\\r\\nlines\\ttab'::text", 203, "text two\r\nlines\ttab"},
                    TypedValue{"'\\x00fFa5'::bytea", 205, "text 00FFA5"}, TypedValue{"''::bytea", 205, "text "},
                    TypedValue{"'a0eebc99-9c0b-4ef8-bb6d-6bb9bd380a11'::uuid", 72,
                               "text A0EEBC99-9C0B-4EF8-BB6D-6BB9BD380A11"},
                    TypedValue{"'{\"a\": 1}'::json", 202, "text {\"a\": 1}"},
                    TypedValue{"ARRAY[1, 2]", 202, "text {1,2}"}, TypedValue{"interval '1 day'", 202, "text 1 day"}));

class PostgresNulls : public OdbcTest, public testing::WithParamInterface<const char*> {};

TEST_P(PostgresNulls, AreNull_AmongOthersAndAlone)
{
    const std::u16string type = Common::ToUtf16(GetParam());
    const auto records = FromPostgres(u"SELECT NULL::" + type + u" FROM generate_series(1, 3)");
    EXPECT_EQ(TellAll(*records), (std::vector<std::string>{"null", "null", "null"}));
    EXPECT_NE(records->FieldType(0), 0);
}

INSTANTIATE_TEST_SUITE_P(Types, PostgresNulls,
                         testing::Values("boolean", "smallint", "integer", "bigint", "oid", "real", "float8", "money",
                                         "numeric", "numeric(10,2)", "date", "time", "timestamp", "timestamptz",
                                         "char(3)", "varchar(3)", "text", "bytea", "uuid", "json", "interval",
                                         "integer[]"));

using PostgresRecords = OdbcTest;

TEST_F(PostgresRecords, NullsAndValuesMixed_StayApart)
{
    const auto records = FromPostgres(u"SELECT CASE WHEN i % 2 = 0 THEN i END, CASE WHEN i % 2 = 1 THEN 'x' || i END, "
                                      u"CASE WHEN i % 2 = 0 THEN ''::bytea "
                                      u"END FROM generate_series(1, 2000) i ORDER BY i");
    int i = 0;
    for (records->MoveFirst(); !records->AtEnd(); records->MoveNext()) {
        ++i;
        ASSERT_EQ(Told(records->FieldValue(0)), i % 2 == 0 ? "integer " + std::to_string(i) : "null");
        ASSERT_EQ(Told(records->FieldValue(1)), i % 2 == 1 ? "text x" + std::to_string(i) : "null");
        ASSERT_EQ(Told(records->FieldValue(2)), i % 2 == 0 ? "text " : "null");
    }
    EXPECT_EQ(i, 2000);
}

TEST_F(PostgresRecords, BooleansByTheDriversOwnOption_AreBooleansToo)
{
    const auto records = FromPostgres(u"SELECT b FROM (VALUES (true), (false), (NULL)) v(b)", "BoolsAsChar=0;");
    EXPECT_EQ(records->FieldType(0), 11);
    EXPECT_EQ(TellAll(*records), (std::vector<std::string>{"true", "false", "null"}));
}

TEST_F(PostgresRecords, NumbersBeyondADouble_KeepTheirDigits)
{
    EXPECT_EQ(Told(FromPostgres(u"SELECT 1e400::numeric")->FieldValue(0)), "decimal 1" + std::string(400, '0'));
}

TEST_F(PostgresRecords, DriverWithoutWideFunctions_GivesTheSameLetters)
{
    std::u16string text = PostgresText();
    text.replace(text.find(u"PostgreSQL Unicode"), 18, u"PostgreSQL ANSI");
    const auto connection = OdbcConnection::Open(text);
    const auto records = connection->Query(u"SELECT 'äЖ😀'::text AS \"größe\", repeat('😀', 3000)::text, 7, 1.50, true");
    EXPECT_EQ(records->FieldName(0), u"größe");
    EXPECT_EQ(Told(records->FieldValue(0)), "text äЖ😀");
    EXPECT_EQ(records->FieldValue(1).Characters.size(), 6000U);
    EXPECT_EQ(Told(records->FieldValue(2)), "integer 7");
    EXPECT_EQ(Told(records->FieldValue(3)), "decimal 1.50");
    EXPECT_EQ(Told(records->FieldValue(4)), "true");
    EXPECT_NE(FailureOf([&] { connection->Query(u"SELECT * FROM größe"); }).Description.find(u"relation \"größe\""),
              std::u16string::npos);
}

TEST_F(PostgresRecords, FieldsHaveTheirNames)
{
    const auto records = FromPostgres(u"SELECT 1 AS \"größe 😀\", 2 AS n");
    EXPECT_EQ(records->FieldCount(), 2);
    EXPECT_EQ(records->FieldName(0), u"größe 😀");
    EXPECT_EQ(records->FieldName(1), u"n");
}

TEST_F(PostgresRecords, OfTheServersMostFields_AreRead_AndOneMoreIsItsOwnFailure)
{
    const auto fields = [](int count) {
        std::u16string query = u"SELECT 1";
        for (int i = 2; i <= count; ++i)
            query += u", " + Common::ToUtf16(std::to_string(i));
        return query;
    };
    const auto records = FromPostgres(fields(1664));
    EXPECT_EQ(records->FieldCount(), 1664);
    EXPECT_EQ(Told(records->FieldValue(1663)), "integer 1664");
    const Failure failure = FailureOf([&] { FromPostgres(fields(1665)); });
    EXPECT_NE(failure.Description.find(u"target lists can have at most 1664 entries"), std::u16string::npos);
}

} // namespace

} // namespace Tessellon
