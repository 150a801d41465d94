#include "recordset/sqlite/TemporaryDatabase.h"

#include <cmath>
#include <limits>

namespace Tessellon {

namespace {

using Values = SqliteTest;

TEST_F(Values, WholeNumbers_KeepAllTheirDigits)
{
    const Value value = Stored("BIGINT", "9223372036854775807")->FieldValue(0);
    EXPECT_EQ(value.Type, Value::Kind::Integer);
    EXPECT_EQ(value.Integer, std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(Stored("TINYINT", "-300")->FieldValue(0).Integer, -300);
}

TEST_F(Values, Reals_AreDoubles_ButSinglesWhereDeclared)
{
    EXPECT_EQ(Stored("REAL", "0.1")->FieldValue(0).Type, Value::Kind::Double);
    EXPECT_EQ(Stored("REAL", "0.1")->FieldValue(0).Real, 0.1);
    EXPECT_EQ(Stored("FLOAT4", "0.1")->FieldValue(0).Type, Value::Kind::Single);
    EXPECT_EQ(Stored("FLOAT4", "0.1")->FieldValue(0).Real, static_cast<double>(0.1F));
    EXPECT_EQ(Stored("FLOAT4", "1e300")->FieldValue(0).Type, Value::Kind::Double);
    EXPECT_TRUE(std::isinf(Stored("REAL", "9e999")->FieldValue(0).Real));
}

TEST_F(Values, DecimalsStoredAsText_KeepTheirDigits)
{
    const std::string digits = "-12345678901234567890123456789.1000";
    EXPECT_EQ(Stored("DECIMAL TEXT", "'" + digits + "'")->FieldValue(0).Type, Value::Kind::Decimal);
    EXPECT_EQ(Stored("DECIMAL TEXT", "'" + digits + "'")->FieldValue(0).Characters, Common::ToUtf16(digits));
    EXPECT_EQ(Stored("NUMERIC TEXT", "' 0.50 '")->FieldValue(0).Characters, u"0.50");
    EXPECT_EQ(Stored("MONEY TEXT", "'+.5'")->FieldValue(0).Type, Value::Kind::Decimal);
}

TEST_F(Values, DecimalsStoredAsNumbers_AreThoseNumbers)
{
    EXPECT_EQ(Stored("DECIMAL(10,2)", "'12.50'")->FieldValue(0).Type, Value::Kind::Double);
    EXPECT_EQ(Stored("DECIMAL(10,2)", "'12.50'")->FieldValue(0).Real, 12.5);
    EXPECT_EQ(Stored("DECIMAL(10,2)", "1200")->FieldValue(0).Integer, 1200);
}

TEST_F(Values, TextThatIsNoDecimal_StaysText)
{
    for (const std::string text : {"n/a", "", "1.2.3", "-", "1e5", "."}) {
        const auto records = Stored("DECIMAL TEXT", "'" + text + "'");
        const Value value = records->FieldValue(0);
        EXPECT_EQ(value.Type, Value::Kind::Text);
        EXPECT_EQ(value.Characters, Common::ToUtf16(text));
    }
}

TEST_F(Values, Booleans_AreNumbersAndWords)
{
    for (const char* yes : {"1", "2", "0.5", "'true'", "'T'", "' Yes '", "'on'", "TRUE"}) {
        const Value value = Stored("BOOLEAN", yes)->FieldValue(0);
        EXPECT_EQ(value.Type, Value::Kind::Boolean) << yes;
        EXPECT_TRUE(value.Boolean) << yes;
    }
    for (const char* no : {"0", "0.0", "'False'", "'n'", "'off'", "FALSE"}) {
        const Value value = Stored("BOOLEAN", no)->FieldValue(0);
        EXPECT_EQ(value.Type, Value::Kind::Boolean) << no;
        EXPECT_FALSE(value.Boolean) << no;
    }
    EXPECT_EQ(Stored("BOOLEAN", "'perhaps'")->FieldValue(0).Type, Value::Kind::Text);
}

TEST_F(Values, Dates_AreSerials)
{
    for (const char* day : {"'2024-03-15'", "julianday('2024-03-15')", "unixepoch('2024-03-15')"}) {
        const Value value = Stored("DATE", day)->FieldValue(0);
        EXPECT_EQ(value.Type, Value::Kind::Date) << day;
        EXPECT_EQ(value.Real, 45366) << day;
    }
    for (const char* noon : {"'2024-03-15 12:00:00'", "julianday('2024-03-15 12:00')"})
        EXPECT_EQ(Stored("DATETIME", noon)->FieldValue(0).Real, 45366.5) << noon;
    EXPECT_EQ(Stored("TIME", "'06:00'")->FieldValue(0).Real, 0.25);
    EXPECT_EQ(Stored("TIME", "0.25")->FieldValue(0).Real, 0.25);
    EXPECT_EQ(Stored("TIME", "julianday('06:00')")->FieldValue(0).Real, 0.25);
}

TEST_F(Values, WhatIsNoDate_ComesAsItIsStored)
{
    EXPECT_EQ(Stored("DATE", "'someday'")->FieldValue(0).Type, Value::Kind::Text);
    EXPECT_EQ(Stored("DATE", "2024")->FieldValue(0).Integer, 2024);
    EXPECT_EQ(Stored("DATE", "2024.25")->FieldValue(0).Real, 2024.25);
    EXPECT_EQ(Stored("DATE", "2024.25")->FieldValue(0).Type, Value::Kind::Double);
}

TEST_F(Values, Null_IsNullInEveryType)
{
    for (const char* type : {"INTEGER", "FLOAT4", "DECIMAL", "BOOLEAN", "DATE", "TIME", "TEXT", "BLOB", "UUID", ""})
        EXPECT_TRUE(Stored(type, "NULL")->FieldValue(0).IsNull()) << type;
}

TEST_F(Values, Bytes_AreHexadecimalDigits_ButTextInAColumnOfText)
{
    EXPECT_EQ(Stored("BLOB", "x'00FFa5'")->FieldValue(0).Characters, u"00FFA5");
    EXPECT_EQ(Stored("BLOB", "x''")->FieldValue(0).Characters, u"");
    EXPECT_EQ(Stored("BLOB", "'text'")->FieldValue(0).Characters, u"text");
    EXPECT_EQ(Stored("INTEGER", "x'01'")->FieldValue(0).Characters, u"01");
    EXPECT_EQ(Stored("TEXT", "x'C3A4'")->FieldValue(0).Characters, u"ä");
    EXPECT_EQ(Stored("TEXT", "x''")->FieldValue(0).Characters, u"");
    EXPECT_EQ(Stored("UUID", "'0b5c'")->FieldValue(0).Characters, u"0b5c");
}

TEST_F(Values, Text_IsKeptWhateverItHolds)
{
    Make("CREATE TABLE t (n INTEGER PRIMARY KEY, a TEXT)");
    const std::string arabic = "\xD8\xA7\xD9\x84\xD8\xB9\xD8\xB1";
    const std::string texts[] = {"",
                                 " blank ",
                                 "two\r\nlines\ttab",
                                 arabic,
                                 std::string("a\0b", 3),
                                 std::string(100'000, 'x') + "\xE2\x82\xAC",
                                 "\xED\xA0\x80",
                                 "\xF0\x9F\x98\x80"};
    {
        Writer writer(Path());
        for (const std::string& text : texts)
            writer.DoWithText("INSERT INTO t (a) VALUES (?)", text);
    }
    const auto records = Query(u"SELECT a FROM t ORDER BY n");
    for (const std::string& text : texts) {
        ASSERT_FALSE(records->AtEnd());
        EXPECT_EQ(Common::ToUtf8(records->FieldValue(0).Characters), text);
        records->MoveNext();
    }
    EXPECT_TRUE(records->AtEnd());
}

TEST_F(Values, TextThatIsNoUtf8_IsReplaced)
{
    Make("CREATE TABLE t (a TEXT)");
    Writer(Path()).DoWithText("INSERT INTO t VALUES (?)", std::string("a\xFF\xC3(z"));
    EXPECT_EQ(Query(u"SELECT a FROM t")->FieldValue(0).Characters, u"a\xFFFD\xFFFD(z");
}

TEST_F(Values, DatabaseOfUtf16_KeepsEveryUnit)
{
    for (const char* encoding : {"UTF-16le", "UTF-16be"}) {
        std::filesystem::remove(Path());
        const std::u16string text = std::u16string(u"ä\0\xD800 z😀", 7) + std::u16string(50'000, u'€');
        {
            Writer writer(Path());
            writer.Do(std::string("PRAGMA encoding = '") + encoding + "'; CREATE TABLE t (a TEXT, b DECIMAL TEXT)");
            writer.DoWithText("INSERT INTO t VALUES (?1, '1.50')", text);
        }
        const auto records = Query(u"SELECT a, b, x'C3A4' FROM t");
        EXPECT_EQ(records->FieldValue(0).Characters, text) << encoding;
        EXPECT_EQ(records->FieldValue(1).Characters, u"1.50") << encoding;
        EXPECT_EQ(records->FieldValue(2).Characters, u"C3A4") << encoding;
    }
}

TEST_F(Values, OneField_MayBeReadTwice)
{
    const auto records = Stored("TEXT", "'twice'");
    EXPECT_EQ(records->FieldValue(0).Characters, u"twice");
    EXPECT_EQ(records->FieldValue(0).Characters, u"twice");
}

TEST_F(Values, OfAFieldThatIsNone_AreSubscriptFailures)
{
    const auto records = Stored("TEXT", "'a'");
    EXPECT_EQ(FailureOf([&] { records->FieldValue(1); }).Number, 9);
    EXPECT_EQ(FailureOf([&] { records->FieldValue(-1); }).Source, u"Recordset");
}

TEST_F(Values, OfTwoThousandFields_AreRead)
{
    std::u16string statement = u"SELECT 0";
    for (int i = 1; i < 2000; ++i)
        statement += u", " + Common::ToUtf16(std::to_string(i));
    Make("CREATE TABLE t (n)");
    const auto records = Query(statement);
    EXPECT_EQ(records->FieldCount(), 2000);
    EXPECT_EQ(records->FieldValue(1999).Integer, 1999);
}

} // namespace

} // namespace Tessellon
