#include "recordset/odbc/FieldShape.h"

#include "recordset/common/Digits.h"
#include "recordset/common/Moment.h"
#include "recordset/common/Words.h"

#include <charconv>
#include <cstddef>
#include <limits>
#include <optional>
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>
#include <string>

namespace Tessellon::Odbc {

namespace {

constexpr std::int32_t OfNoClass = 132;

struct NamedShape {
    std::int32_t SqlType;
    FieldShape Shape;
    std::int32_t UnsignedType = 0; ///< Where that is another.
};

constexpr NamedShape Shapes[] = {
    {SQL_BIT, {11, Reading::Boolean}},
    {SQL_TINYINT, {16, Reading::Whole}, 17},
    {SQL_SMALLINT, {2, Reading::Whole}, 18},
    {SQL_INTEGER, {3, Reading::Whole}, 19},
    {SQL_BIGINT, {20, Reading::Whole}, 21},
    {SQL_REAL, {4, Reading::Single}},
    {SQL_FLOAT, {5, Reading::Double}},
    {SQL_DOUBLE, {5, Reading::Double}},
    {SQL_DECIMAL, {14, Reading::Decimal}},
    {SQL_NUMERIC, {131, Reading::Decimal}},
    {SQL_TYPE_DATE, {133, Reading::DateTime}},
    {SQL_TYPE_TIME, {134, Reading::DateTime}},
    {SQL_TYPE_TIMESTAMP, {135, Reading::DateTime}},
    // As drivers of the second version of ODBC number them.
    {SQL_DATE, {133, Reading::DateTime}},
    {SQL_TIME, {134, Reading::DateTime}},
    {SQL_TIMESTAMP, {135, Reading::DateTime}},
    {SQL_CHAR, {129, Reading::Text}},
    {SQL_VARCHAR, {200, Reading::Text}},
    {SQL_LONGVARCHAR, {201, Reading::Text}},
    {SQL_WCHAR, {130, Reading::Text}},
    {SQL_WVARCHAR, {202, Reading::Text}},
    {SQL_WLONGVARCHAR, {203, Reading::Text}},
    {SQL_BINARY, {128, Reading::Bytes}},
    {SQL_VARBINARY, {204, Reading::Bytes}},
    {SQL_LONGVARBINARY, {205, Reading::Bytes}},
    {SQL_GUID, {72, Reading::Text}},
};

/// Sign and digits that fit 64 bits.
std::optional<Value> WholeNumber(std::u16string_view text)
{
    const bool isNegative = text.starts_with(u'-');
    if (isNegative || text.starts_with(u'+'))
        text.remove_prefix(1);
    if (text.empty())
        return std::nullopt;
    std::uint64_t number = 0;
    for (const char16_t character : text) {
        if (character < u'0' || character > u'9')
            return std::nullopt;
        const auto digit = static_cast<std::uint64_t>(character - u'0');
        if (number > (std::numeric_limits<std::uint64_t>::max() - digit) / 10)
            return std::nullopt;
        number = number * 10 + digit;
    }
    constexpr auto last = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (isNegative && number <= last + 1)
        return Value::OfInteger(static_cast<std::int64_t>(~number + 1));
    if (isNegative)
        return std::nullopt;
    return number <= last ? Value::OfInteger(static_cast<std::int64_t>(number)) : Value::OfUnsigned(number);
}

/// A number with an exponent, as "1.8e+19".
std::optional<Value> ScaledNumber(std::u16string_view text)
{
    std::string digits;
    for (const char16_t character : text) {
        if (std::u16string_view(u"0123456789+-.eE").find(character) == std::u16string_view::npos)
            return std::nullopt;
        digits += static_cast<char>(character);
    }
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return Value::OfDouble(number);
}

std::optional<Value> Number(std::u16string_view text, Reading reading)
{
    if (reading == Reading::Whole)
        if (const std::optional<Value> whole = WholeNumber(text))
            return whole;
    if (Common::IsDecimal(text))
        return Value::OfDecimal(text);
    return ScaledNumber(text);
}

} // namespace

FieldShape ShapeOf(std::int32_t sqlType, bool isUnsigned, std::u16string_view typeName)
{
    for (const NamedShape& named : Shapes) {
        if (named.SqlType != sqlType)
            continue;
        FieldShape shape = named.Shape;
        if (isUnsigned && named.UnsignedType != 0)
            shape.Type = named.UnsignedType;
        // PostgreSQL's driver tells of booleans as texts of 0 and 1, unless its option BoolsAsChar says otherwise.
        if (shape.As == Reading::Text && typeName == u"bool")
            shape = {11, Reading::Boolean};
        return shape;
    }
    return {OfNoClass, Reading::Text};
}

Value ReadCharacters(std::u16string_view text, Reading reading)
{
    const std::u16string_view characters = Common::WithoutBlanks(text);
    std::optional<Value> value;
    switch (reading) {
    case Reading::Whole:
    case Reading::Decimal: value = Number(characters, reading); break;
    case Reading::Boolean:
        if (const std::optional<bool> truth = Common::TruthOf(characters))
            value = Value::OfBoolean(*truth);
        break;
    case Reading::DateTime:
        if (const std::optional<double> serial = Common::SerialOfText(characters))
            value = Value::OfDate(*serial);
        break;
    default: break;
    }
    return value.value_or(Value::OfText(text));
}

} // namespace Tessellon::Odbc
