#include "recordset/odbc/OdbcTest.h"

#include <charconv>

namespace Tessellon {

namespace {

std::string Digits(auto number)
{
    char digits[64];
    return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}

} // namespace

std::string Told(const Value& value)
{
    switch (value.Type) {
    case Value::Kind::Null: return "null";
    case Value::Kind::Boolean: return value.Boolean ? "true" : "false";
    case Value::Kind::Integer: return "integer " + Digits(value.Integer);
    case Value::Kind::Unsigned: return "unsigned " + Digits(value.Unsigned);
    case Value::Kind::Single: return "single " + Digits(static_cast<float>(value.Real));
    case Value::Kind::Double: return "double " + Digits(value.Real);
    case Value::Kind::Decimal: return "decimal " + Common::ToUtf8(value.Characters);
    case Value::Kind::Date: return "date " + Digits(value.Real);
    case Value::Kind::Text: return "text " + Common::ToUtf8(value.Characters);
    }
    return "unknown";
}

std::vector<std::string> TellAll(Recordset& records, std::int32_t field)
{
    std::vector<std::string> told;
    for (records.MoveFirst(); !records.AtEnd(); records.MoveNext())
        told.push_back(Told(records.FieldValue(field)));
    return told;
}

std::u16string OdbcTest::GuardedText(std::string_view password)
{
    std::string text = PostgresServer::Shared().OdbcText();
    const std::string user = std::string("UID=") + PostgresServer::User;
    text.replace(text.find(user), user.size(), std::string("UID=") + PostgresServer::GuardedUser);
    return Common::ToUtf16(text + "PWD=" + std::string(password));
}

} // namespace Tessellon
