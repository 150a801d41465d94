#include "recordset/sqlite/DeclaredType.h"

#include "recordset/sqlite/TemporaryDatabase.h"

namespace Tessellon::Sqlite {

namespace {

struct Declaration {
    const char* Text;
    std::int32_t Type;
    Reading As;
};

class DeclaredType : public testing::TestWithParam<Declaration> {};

TEST_P(DeclaredType, NamesTheFieldsType)
{
    const FieldShape shape = ShapeOfDeclaration(GetParam().Text);
    EXPECT_EQ(shape.Type, GetParam().Type);
    EXPECT_EQ(shape.As, GetParam().As);
}

INSTANTIATE_TEST_SUITE_P(
    WholeNumbers, DeclaredType,
    testing::Values(Declaration{"TINYINT", 16, Reading::Number}, Declaration{"tinyint unsigned", 17, Reading::Number},
                    Declaration{"smallint(6)", 2, Reading::Number}, Declaration{"INT2", 2, Reading::Number},
                    Declaration{"SMALLINT(5) UNSIGNED", 18, Reading::Number},
                    Declaration{"SMALLINT UNSIGNED", 18, Reading::Number}, Declaration{"int", 3, Reading::Number},
                    Declaration{"MEDIUMINT", 3, Reading::Number}, Declaration{"UNSIGNED INT", 19, Reading::Number},
                    Declaration{"INTEGER", 20, Reading::Number}, Declaration{"BigInt", 20, Reading::Number},
                    Declaration{"UNSIGNED BIG INT", 21, Reading::Number}, Declaration{"INT8", 20, Reading::Number}));

INSTANTIATE_TEST_SUITE_P(
    OtherNumbers, DeclaredType,
    testing::Values(Declaration{"REAL", 5, Reading::Number}, Declaration{"DOUBLE PRECISION", 5, Reading::Number},
                    Declaration{"float", 5, Reading::Number}, Declaration{"FLOAT4", 4, Reading::Single},
                    Declaration{"Single", 4, Reading::Single}, Declaration{"DECIMAL(10, 2)", 14, Reading::Decimal},
                    Declaration{"DECIMAL TEXT", 14, Reading::Decimal},
                    Declaration{"decimal_text(38,10)", 14, Reading::Decimal},
                    Declaration{"NUMERIC(18,4)", 131, Reading::Decimal}, Declaration{"MONEY", 6, Reading::Decimal}));

INSTANTIATE_TEST_SUITE_P(
    Texts, DeclaredType,
    testing::Values(Declaration{"TEXT", 203, Reading::Text}, Declaration{"CLOB", 203, Reading::Text},
                    Declaration{"VARCHAR(40)", 202, Reading::Text}, Declaration{"NVARCHAR(40)", 202, Reading::Text},
                    Declaration{"CHARACTER VARYING(40)", 202, Reading::Text},
                    Declaration{"VARYING CHARACTER", 202, Reading::Text}, Declaration{"CHAR(3)", 130, Reading::Text},
                    Declaration{"NATIVE CHARACTER(70)", 130, Reading::Text}));

INSTANTIATE_TEST_SUITE_P(
    Others, DeclaredType,
    testing::Values(Declaration{"BOOLEAN", 11, Reading::Boolean}, Declaration{"bit", 11, Reading::Boolean},
                    Declaration{"DATE", 133, Reading::DateTime}, Declaration{"TIME", 134, Reading::Time},
                    Declaration{"DATETIME", 135, Reading::DateTime},
                    Declaration{"timestamp with time zone", 135, Reading::DateTime},
                    Declaration{"BLOB", 205, Reading::Bytes}, Declaration{"VARBINARY(16)", 204, Reading::Bytes},
                    Declaration{"UUID", 72, Reading::Bytes}, Declaration{"GUID", 72, Reading::Bytes}));

INSTANTIATE_TEST_SUITE_P(ByTheirLetters, DeclaredType,
                         testing::Values(Declaration{"HUGEINT", 20, Reading::Number},
                                         Declaration{"MYTEXT", 203, Reading::Text},
                                         Declaration{"BIGBLOB", 205, Reading::Bytes},
                                         Declaration{"DOUBLED", 5, Reading::Number}, Declaration{"", 0, Reading::Text},
                                         Declaration{"ANY", 0, Reading::Text}, Declaration{"(3)", 0, Reading::Text}));

using FieldTypes = SqliteTest;

TEST_F(FieldTypes, OfColumns_FollowTheDeclaration)
{
    Make("CREATE TABLE t (a INTEGER, b BOOLEAN, c DECIMAL(10,2), d DATE, e TEXT); INSERT INTO t VALUES (1,2,3,4,5)");
    const auto records = Query(u"SELECT a, b, c, d, e FROM t");
    ASSERT_EQ(records->FieldCount(), 5);
    const std::int32_t expected[] = {20, 11, 14, 133, 203};
    for (std::int32_t field = 0; field < 5; ++field)
        EXPECT_EQ(records->FieldType(field), expected[field]);
}

TEST_F(FieldTypes, OfColumnsBehindAView_FollowTheTable)
{
    Make("CREATE TABLE t (d DATE); CREATE VIEW v AS SELECT d AS day FROM t");
    EXPECT_EQ(Query(u"SELECT day FROM v")->FieldType(0), 133);
}

TEST_F(FieldTypes, OfExpressions_FollowTheFirstRecord)
{
    Make("CREATE TABLE t (n)");
    const auto records = Query(u"SELECT 1 + 1, 0.5, 'a', x'00', NULL UNION ALL SELECT 'b', 'b', 'b', 'b', 'b'");
    const std::int32_t expected[] = {20, 5, 203, 205, 203};
    for (std::int32_t field = 0; field < 5; ++field)
        EXPECT_EQ(records->FieldType(field), expected[field]);
    records->MoveNext();
    EXPECT_EQ(records->FieldType(0), 20);
    EXPECT_EQ(records->FieldValue(0).Characters, u"b");
}

TEST_F(FieldTypes, OfExpressionsWithoutRecords_AreText)
{
    Make("CREATE TABLE t (n)");
    EXPECT_EQ(Query(u"SELECT n, n + 1 FROM t")->FieldType(1), 203);
}

TEST_F(FieldTypes, OfAFieldThatIsNone_AreSubscriptFailures)
{
    Make("CREATE TABLE t (n INTEGER)");
    const auto records = Query(u"SELECT n FROM t");
    EXPECT_EQ(FailureOf([&] { records->FieldType(1); }).Number, 9);
    EXPECT_EQ(FailureOf([&] { records->FieldType(-1); }).Number, 9);
    EXPECT_EQ(FailureOf([&] { static_cast<void>(records->FieldName(1)); }).Number, 9);
}

TEST_F(FieldTypes, Names_AreTheQuerysHeadings)
{
    Make("CREATE TABLE t (n INTEGER)");
    const auto records = Query(u"SELECT n, n AS \"Größe\" FROM t");
    EXPECT_EQ(records->FieldName(0), u"n");
    EXPECT_EQ(records->FieldName(1), u"Größe");
}

} // namespace

} // namespace Tessellon::Sqlite
