#include "recordset/sqlite/DeclaredType.h"

#include <string>

namespace Tessellon::Sqlite {

namespace {

struct NamedShape {
    std::string_view Name;
    FieldShape Shape;
    std::int32_t UnsignedType = 0; ///< The type beside the word UNSIGNED, where that makes another.
};

constexpr NamedShape Names[] = {
    {"TINYINT", {16, Reading::Number}, 17},
    {"INT1", {16, Reading::Number}, 17},
    {"BYTE", {17, Reading::Number}},
    {"UINT8", {17, Reading::Number}},
    {"SMALLINT", {2, Reading::Number}, 18},
    {"INT2", {2, Reading::Number}, 18},
    {"INT16", {2, Reading::Number}, 18},
    {"UINT16", {18, Reading::Number}},
    {"INT", {3, Reading::Number}, 19},
    {"INT3", {3, Reading::Number}, 19},
    {"INT4", {3, Reading::Number}, 19},
    {"INT32", {3, Reading::Number}, 19},
    {"MEDIUMINT", {3, Reading::Number}, 19},
    {"SERIAL", {3, Reading::Number}},
    {"UINT", {19, Reading::Number}},
    {"UINT32", {19, Reading::Number}},
    // SQLite's own INTEGER holds 64 bits.
    {"INTEGER", {20, Reading::Number}, 21},
    {"INT8", {20, Reading::Number}, 21},
    {"INT64", {20, Reading::Number}, 21},
    {"BIGINT", {20, Reading::Number}, 21},
    {"BIG", {20, Reading::Number}, 21},
    {"BIGSERIAL", {20, Reading::Number}},
    {"UINT64", {21, Reading::Number}},
    {"FLOAT4", {4, Reading::Single}},
    {"SINGLE", {4, Reading::Single}},
    {"REAL", {5, Reading::Number}},
    {"FLOAT", {5, Reading::Number}},
    {"FLOAT8", {5, Reading::Number}},
    {"DOUBLE", {5, Reading::Number}},
    {"CURRENCY", {6, Reading::Decimal}},
    {"MONEY", {6, Reading::Decimal}},
    {"SMALLMONEY", {6, Reading::Decimal}},
    {"DECIMAL", {14, Reading::Decimal}},
    {"DEC", {14, Reading::Decimal}},
    {"NUMERIC", {131, Reading::Decimal}},
    {"NUMBER", {131, Reading::Decimal}},
    {"BOOLEAN", {11, Reading::Boolean}},
    {"BOOL", {11, Reading::Boolean}},
    {"BIT", {11, Reading::Boolean}},
    {"LOGICAL", {11, Reading::Boolean}},
    {"YESNO", {11, Reading::Boolean}},
    {"DATE", {133, Reading::DateTime}},
    {"TIME", {134, Reading::Time}},
    {"DATETIME", {135, Reading::DateTime}},
    {"DATETIME2", {135, Reading::DateTime}},
    {"SMALLDATETIME", {135, Reading::DateTime}},
    {"TIMESTAMP", {135, Reading::DateTime}},
    {"TIMESTAMPTZ", {135, Reading::DateTime}},
    {"CHAR", {130, Reading::Text}},
    {"NCHAR", {130, Reading::Text}},
    {"CHARACTER", {130, Reading::Text}},
    {"VARYING", {202, Reading::Text}},
    {"VARCHAR", {202, Reading::Text}},
    {"VARCHAR2", {202, Reading::Text}},
    {"NVARCHAR", {202, Reading::Text}},
    {"NVARCHAR2", {202, Reading::Text}},
    {"STRING", {202, Reading::Text}},
    {"TEXT", {203, Reading::Text}},
    {"NTEXT", {203, Reading::Text}},
    {"TINYTEXT", {203, Reading::Text}},
    {"MEDIUMTEXT", {203, Reading::Text}},
    {"LONGTEXT", {203, Reading::Text}},
    {"CLOB", {203, Reading::Text}},
    {"NCLOB", {203, Reading::Text}},
    {"MEMO", {203, Reading::Text}},
    {"JSON", {203, Reading::Text}},
    {"XML", {203, Reading::Text}},
    {"BINARY", {128, Reading::Bytes}},
    {"VARBINARY", {204, Reading::Bytes}},
    {"BLOB", {205, Reading::Bytes}},
    {"TINYBLOB", {205, Reading::Bytes}},
    {"MEDIUMBLOB", {205, Reading::Bytes}},
    {"LONGBLOB", {205, Reading::Bytes}},
    {"BYTEA", {205, Reading::Bytes}},
    {"IMAGE", {205, Reading::Bytes}},
    {"UUID", {72, Reading::Bytes}},
    {"GUID", {72, Reading::Bytes}},
    {"UNIQUEIDENTIFIER", {72, Reading::Bytes}},
};

bool IsWordCharacter(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9');
}

/// "INT(10) UNSIGNED" without what stands in parentheses.
std::string WithoutSizes(std::string_view declared)
{
    std::string text(declared.substr(0, declared.find('(')));
    if (const std::size_t close = declared.rfind(')'); close != std::string_view::npos)
        text += declared.substr(close);
    return text;
}

const NamedShape* FindName(std::string_view word)
{
    for (const NamedShape& name : Names)
        if (name.Name == word)
            return &name;
    return nullptr;
}

} // namespace

FieldShape ShapeOfDeclaration(std::string_view declared)
{
    std::string text;
    for (const char character : WithoutSizes(declared))
        text += static_cast<char>(character >= 'a' && character <= 'z' ? character - 'a' + 'A' : character);

    const NamedShape* found = nullptr;
    bool isUnsigned = false;
    bool isVarying = false;
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = start;
        while (end < text.size() && IsWordCharacter(text[end]))
            ++end;
        const std::string_view word = std::string_view(text).substr(start, end - start);
        isUnsigned = isUnsigned || word == "UNSIGNED";
        isVarying = isVarying || word == "VARYING";
        if (found == nullptr)
            found = FindName(word);
        start = end + 1;
    }

    if (found != nullptr) {
        FieldShape shape = found->Shape;
        if (isUnsigned && found->UnsignedType != 0)
            shape.Type = found->UnsignedType;
        if (isVarying && shape.Type == 130)
            shape.Type = 202;
        return shape;
    }

    const auto has = [&](std::string_view letters) { return text.find(letters) != std::string::npos; };
    if (has("INT"))
        return {20, Reading::Number};
    if (has("CHAR") || has("CLOB") || has("TEXT"))
        return {203, Reading::Text};
    if (has("BLOB"))
        return {205, Reading::Bytes};
    if (has("REAL") || has("FLOA") || has("DOUB"))
        return {5, Reading::Number};
    return {};
}

} // namespace Tessellon::Sqlite
