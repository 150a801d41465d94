#include "recordset/odbc/FieldShape.h"
#include "recordset/odbc/OdbcTest.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

namespace Tessellon::Odbc {

namespace {

struct NamedType {
    int SqlType;
    std::int32_t Type;
    std::int32_t UnsignedType;
};

TEST(FieldShapes, EverySqlType_HasItsNumber)
{
    constexpr NamedType types[] = {
        {SQL_BIT, 11, 11},
        {SQL_TINYINT, 16, 17},
        {SQL_SMALLINT, 2, 18},
        {SQL_INTEGER, 3, 19},
        {SQL_BIGINT, 20, 21},
        {SQL_REAL, 4, 4},
        {SQL_FLOAT, 5, 5},
        {SQL_DOUBLE, 5, 5},
        {SQL_DECIMAL, 14, 14},
        {SQL_NUMERIC, 131, 131},
        {SQL_TYPE_DATE, 133, 133},
        {SQL_TYPE_TIME, 134, 134},
        {SQL_TYPE_TIMESTAMP, 135, 135},
        {SQL_DATE, 133, 133},
        {SQL_TIME, 134, 134},
        {SQL_TIMESTAMP, 135, 135},
        {SQL_CHAR, 129, 129},
        {SQL_WCHAR, 130, 130},
        {SQL_VARCHAR, 200, 200},
        {SQL_LONGVARCHAR, 201, 201},
        {SQL_WVARCHAR, 202, 202},
        {SQL_WLONGVARCHAR, 203, 203},
        {SQL_BINARY, 128, 128},
        {SQL_VARBINARY, 204, 204},
        {SQL_LONGVARBINARY, 205, 205},
        {SQL_GUID, 72, 72},
    };
    for (const NamedType& type : types) {
        EXPECT_EQ(ShapeOf(type.SqlType, false, u"").Type, type.Type) << type.SqlType;
        EXPECT_EQ(ShapeOf(type.SqlType, true, u"").Type, type.UnsignedType) << type.SqlType;
    }
}

TEST(FieldShapes, TypesWithoutANumber_AreOfNoClass)
{
    for (const int type : {SQL_UNKNOWN_TYPE, SQL_INTERVAL_DAY, -154, 12345, 20}) {
        EXPECT_EQ(ShapeOf(type, false, u"").Type, 132) << type;
        EXPECT_EQ(ShapeOf(type, false, u"").As, Reading::Text) << type;
    }
}

TEST(FieldShapes, TextsNamedBool_AreBooleans)
{
    EXPECT_EQ(ShapeOf(SQL_WVARCHAR, true, u"bool").Type, 11);
    EXPECT_EQ(ShapeOf(SQL_VARCHAR, true, u"bool").As, Reading::Boolean);
    EXPECT_EQ(ShapeOf(SQL_INTEGER, false, u"bool").Type, 3);
}

struct Characters {
    const char16_t* Text;
    Reading As;
    const char* Value;
};

TEST(CharactersOfADriver, AreReadByTheirField)
{
    constexpr Characters given[] = {
        {u"0", Reading::Whole, "integer 0"},
        {u"+7", Reading::Whole, "integer 7"},
        {u" -12 ", Reading::Whole, "integer -12"},
        {u"007", Reading::Whole, "integer 7"},
        {u"9223372036854775807", Reading::Whole, "integer 9223372036854775807"},
        {u"9223372036854775808", Reading::Whole, "unsigned 9223372036854775808"},
        {u"18446744073709551615", Reading::Whole, "unsigned 18446744073709551615"},
        {u"18446744073709551616", Reading::Whole, "decimal 18446744073709551616"},
        {u"-9223372036854775808", Reading::Whole, "integer -9223372036854775808"},
        {u"-9223372036854775809", Reading::Whole, "decimal -9223372036854775809"},
        {u"1.5", Reading::Whole, "decimal 1.5"},
        {u"1.5e3", Reading::Whole, "double 1500"},
        {u"1e999", Reading::Whole, "text 1e999"},
        {u"e", Reading::Whole, "text e"},
        {u"-", Reading::Whole, "text -"},
        {u"", Reading::Whole, "text "},
        {u"12x", Reading::Whole, "text 12x"},
        {u"1200", Reading::Decimal, "decimal 1200"},
        {u" -0.50 ", Reading::Decimal, "decimal -0.50"},
        {u"1E+5", Reading::Decimal, "double 1e+05"},
        {u"$1.00", Reading::Decimal, "text $1.00"},
        {u"1", Reading::Boolean, "true"},
        {u"f", Reading::Boolean, "false"},
        {u"2", Reading::Boolean, "text 2"},
        {u"2024-03-15", Reading::DateTime, "date 45366"},
        {u"2024-02-30", Reading::DateTime, "text 2024-02-30"},
        {u"infinity", Reading::DateTime, "text infinity"},
    };
    for (const Characters& characters : given)
        EXPECT_EQ(Told(ReadCharacters(characters.Text, characters.As)), characters.Value);
}

} // namespace

} // namespace Tessellon::Odbc
