#include "recordset/qtsql/Databases.h"

#include <cmath>
#include <limits>

namespace Tessellon {

namespace {

/// Each question once of a query that goes forward only and once of one that can go back.
template <class Fixture>
class Stored : public Fixture, public testing::WithParamInterface<bool> {
protected:
    std::shared_ptr<QtSqlRecordset> Ask(const QString& statement) { return this->Query(statement, GetParam()); }
    Value One(const QString& expression)
    {
        records_ = Ask(QStringLiteral("SELECT ") + expression);
        return records_->FieldValue(0);
    }
    std::int32_t TypeOf(const QString& expression) { return Ask(QStringLiteral("SELECT ") + expression)->FieldType(0); }
    void ExpectText(const QString& expression, std::u16string_view text)
    {
        const Value value = One(expression);
        EXPECT_EQ(value.Type, Value::Kind::Text) << expression.toStdString();
        EXPECT_EQ(value.Characters, text) << expression.toStdString();
    }
    void ExpectDecimal(const QString& expression, std::u16string_view digits)
    {
        const Value value = One(expression);
        EXPECT_EQ(value.Type, Value::Kind::Decimal) << expression.toStdString();
        EXPECT_EQ(value.Characters, digits) << expression.toStdString();
    }

    using testing::WithParamInterface<bool>::GetParam;

private:
    std::shared_ptr<QtSqlRecordset> records_; ///< Holds the characters.
};

std::string Direction(const testing::TestParamInfo<bool>& info)
{
    return info.param ? "ForwardOnly" : "Scrollable";
}

using PostgresValues = Stored<PostgresQueries>;
using SqliteValues = Stored<SqliteQueries>;
INSTANTIATE_TEST_SUITE_P(Queries, PostgresValues, testing::Bool(), Direction);
INSTANTIATE_TEST_SUITE_P(Queries, SqliteValues, testing::Bool(), Direction);

TEST_P(PostgresValues, Types_AreThoseOfTheDatabase)
{
    EXPECT_EQ(TypeOf("true"), 11);
    EXPECT_EQ(TypeOf("1::int2"), 2);
    EXPECT_EQ(TypeOf("1::int4"), 3);
    EXPECT_EQ(TypeOf("1::int8"), 20);
    EXPECT_EQ(TypeOf("1::oid"), 19);
    EXPECT_EQ(TypeOf("1::float4"), 4);
    EXPECT_EQ(TypeOf("1::float8"), 5);
    EXPECT_EQ(TypeOf("1::numeric"), 131);
    EXPECT_EQ(TypeOf("1::numeric(10, 2)"), 131);
    EXPECT_EQ(TypeOf("'2024-03-15'::date"), 133);
    EXPECT_EQ(TypeOf("'10:30'::time"), 134);
    EXPECT_EQ(TypeOf("'2024-03-15'::timestamp"), 135);
    EXPECT_EQ(TypeOf("'2024-03-15'::timestamptz"), 135);
    EXPECT_EQ(TypeOf("'a'::char(3)"), 130);
    EXPECT_EQ(TypeOf("'a'::varchar(3)"), 202);
    EXPECT_EQ(TypeOf("'a'::text"), 203);
    EXPECT_EQ(TypeOf("'a'::bytea"), 205);
    EXPECT_EQ(TypeOf("gen_random_uuid()"), 72);
}

TEST_P(PostgresValues, WholeNumbers_KeepAllTheirDigits)
{
    for (const char* number : {"9223372036854775807", "(-9223372036854775807 - 1)", "0::int2", "-7::int4"})
        EXPECT_EQ(One(number).Type, Value::Kind::Integer) << number;
    EXPECT_EQ(One("9223372036854775807").Integer, std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(One("(-9223372036854775807 - 1)").Integer, std::numeric_limits<std::int64_t>::min());
    ExpectDecimal("4294967295::oid", u"4294967295");
}

TEST_P(PostgresValues, Decimals_KeepAllTheirDigits)
{
    const std::u16string sixty = u"-123456789012345678901234567890123456789012345678901234567.890";
    ExpectDecimal(QString::fromStdU16String(sixty) + "::numeric", sixty);
    ExpectDecimal("12.50::numeric(10, 2)", u"12.50");
    ExpectDecimal("0::numeric(10, 2)", u"0.00");
    ExpectText("'NaN'::numeric", u"NaN");
}

TEST_P(PostgresValues, Decimals_KeepAllTheirDigits_WhateverPrecisionTheHostLeft)
{
    for (const QSql::NumericalPrecisionPolicy policy :
         {QSql::LowPrecisionInt32, QSql::LowPrecisionInt64, QSql::LowPrecisionDouble, QSql::HighPrecision}) {
        QSqlQuery query(database_.qt);
        query.setForwardOnly(GetParam());
        query.setNumericalPrecisionPolicy(policy);
        ASSERT_TRUE(query.exec("SELECT 0.12345678901234567890, 0.25::float8"));
        const auto records = connection_->Records(std::move(query));
        EXPECT_EQ(records->FieldValue(0).Characters, u"0.12345678901234567890");
        EXPECT_EQ(records->FieldValue(1).Real, 0.25);
    }
}

TEST_P(PostgresValues, Reals_AreSinglesAndDoubles)
{
    EXPECT_EQ(One("0.1::float4").Type, Value::Kind::Single);
    EXPECT_EQ(One("0.1::float4").Real, static_cast<double>(0.1F));
    EXPECT_EQ(One("0.1::float8").Type, Value::Kind::Double);
    EXPECT_EQ(One("0.1::float8").Real, 0.1);
    EXPECT_EQ(One("1e300::float8").Real, 1e300);
    EXPECT_TRUE(std::isnan(One("'NaN'::float8").Real));
    EXPECT_TRUE(std::isinf(One("'-Infinity'::float8").Real));
}

TEST_P(PostgresValues, Moments_AreSerialsWithTheirMilliseconds)
{
    EXPECT_EQ(One("'2024-03-15'::date").Type, Value::Kind::Date);
    EXPECT_EQ(One("'2024-03-15'::date").Real, 45366);
    EXPECT_EQ(One("'9999-12-31'::date").Real, 2958465);
    EXPECT_EQ(One("'06:00'::time").Real, 0.25);
    EXPECT_DOUBLE_EQ(One("'00:00:00.123456'::time").Real, 0.123 / 86400);
    EXPECT_EQ(One("'2024-03-15 18:00'::timestamp").Real, 45366.75);
    EXPECT_DOUBLE_EQ(One("'2024-03-15 00:00:00.250'::timestamp").Real, 45366 + 0.25 / 86400);
}

TEST_P(PostgresValues, DatesOutsideTheYears_AreText)
{
    ExpectText("'0050-03-15'::date", u"0050-03-15");
    ExpectText("'infinity'::date", u"");
}

TEST_P(PostgresValues, Texts_AreKeptWhateverTheyHold)
{
    ExpectText("''", u"");
    ExpectText("'  blank '", u"  blank ");
    ExpectText("'a😀€ä'", u"a😀€ä");
    ExpectText("repeat('€', 100000)", std::u16string(100'000, u'€'));
    ExpectText("'a'::char(3)", u"a  ");
    ExpectText("'{\"a\": 1}'::json", u"{\"a\": 1}");
    ExpectText("'1 day'::interval", u"1 day");
    ExpectText("ARRAY[1, 2]", u"{1,2}");
}

TEST_P(PostgresValues, BytesAndTruths_AreRead)
{
    ExpectText("'\\x00ffa5'::bytea", u"00FFA5");
    EXPECT_EQ(One("true").Type, Value::Kind::Boolean);
    EXPECT_TRUE(One("true").Boolean);
    EXPECT_FALSE(One("false").Boolean);
}

TEST_P(PostgresValues, Null_IsNullInEveryType)
{
    for (const char* type : {"bool", "int2", "int4", "int8", "float4", "float8", "numeric", "date", "time", "timestamp",
                             "timestamptz", "text", "varchar(9)", "bytea", "uuid", "json"})
        EXPECT_TRUE(One(QStringLiteral("NULL::") + type).IsNull()) << type;
}

TEST_P(PostgresValues, TableWithoutRecords_HasItsTypes)
{
    const auto records = Ask("SELECT 1::int2 AS a, 'x'::text AS b WHERE false");
    EXPECT_TRUE(records->AtEnd());
    EXPECT_EQ(records->FieldCount(), 2);
    EXPECT_EQ(records->FieldType(0), 2);
    EXPECT_EQ(records->FieldType(1), 203);
}

TEST_P(SqliteValues, Types_AreWhatQtKnowsAndElseOfTheFirstRecord)
{
    database_.Do("CREATE TABLE t (a INTEGER, b BOOLEAN, c REAL, d NUMERIC(10, 2), e VARCHAR(20), f BLOB, g BIGINT, "
                 "h DATE)");
    database_.Do("INSERT INTO t VALUES (1, 1, 0.5, 12.5, 'a', x'00', 5, '2024-03-15')");
    const auto records = Ask("SELECT *, 1, 2.5, 'a', x'01', NULL FROM t");
    const std::int32_t types[] = {3, 11, 5, 5, 203, 205, 20, 203, 3, 5, 203, 205, 203};
    ASSERT_EQ(records->FieldCount(), static_cast<std::int32_t>(std::size(types)));
    for (std::int32_t field = 0; field < records->FieldCount(); ++field)
        EXPECT_EQ(records->FieldType(field), types[field]) << field;
}

TEST_P(SqliteValues, Values_KeepTheirOwnType)
{
    EXPECT_EQ(One("9223372036854775807").Integer, std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(One("0.1").Type, Value::Kind::Double);
    EXPECT_EQ(One("0.1").Real, 0.1);
    ExpectText("'a' || char(0) || 'ä😀'", std::u16string(u"a\0ä😀", 5));
    ExpectText("''", u"");
    ExpectText("x'00FFA5'", u"00FFA5");
    ExpectText("x''", u"");
    EXPECT_TRUE(One("NULL").IsNull());
}

TEST_P(SqliteValues, Truths_AreNumbersAndWordsInAColumnOfThem)
{
    database_.Do("CREATE TABLE t (b BOOLEAN)");
    database_.Do("INSERT INTO t VALUES (1), (0), ('true'), ('perhaps'), (NULL)");
    const auto records = Ask("SELECT b FROM t");
    for (const bool truth : {true, false, true}) {
        EXPECT_EQ(records->FieldValue(0).Type, Value::Kind::Boolean);
        EXPECT_EQ(records->FieldValue(0).Boolean, truth);
        records->MoveNext();
    }
    EXPECT_EQ(records->FieldValue(0).Characters, u"perhaps");
    records->MoveNext();
    EXPECT_TRUE(records->FieldValue(0).IsNull());
}

TEST_P(SqliteValues, ColumnOfManyKinds_GivesEachItsOwn)
{
    const auto records = Ask("SELECT 1 UNION ALL SELECT 'a' UNION ALL SELECT 2.5 UNION ALL SELECT NULL");
    EXPECT_EQ(records->FieldValue(0).Type, Value::Kind::Integer);
    records->MoveNext();
    EXPECT_EQ(records->FieldValue(0).Type, Value::Kind::Text);
    records->MoveNext();
    EXPECT_EQ(records->FieldValue(0).Type, Value::Kind::Double);
    records->MoveNext();
    EXPECT_EQ(records->FieldValue(0).Type, Value::Kind::Null);
}

} // namespace

} // namespace Tessellon
