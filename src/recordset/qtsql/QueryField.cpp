#include "recordset/qtsql/QueryField.h"

#include "recordset/common/Digits.h"
#include "recordset/common/Moment.h"
#include "recordset/common/Words.h"

#include <QDateTime>
#include <QSqlField>

#include <limits>
#include <optional>
#include <string_view>

namespace Tessellon::QtSql {

namespace {

constexpr std::int32_t Variant = 12; // A number that no class of the sheet names: its cells stay empty.

constexpr auto MostSigned = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());

struct NumberedShape {
    int Number;
    FieldShape Shape;
};

/// Of PostgreSQL, what Qt gives as a wider type, as a double or as text.
constexpr NumberedShape PostgresTypes[] = {
    {21, {2, Reading::AsItIs}}, // int2
    {25, {203, Reading::AsItIs}}, // text
    {26, {19, Reading::Decimal}}, // oid
    {700, {4, Reading::Single}}, // float4
    {1042, {130, Reading::AsItIs}}, // char
    {1700, {131, Reading::Decimal}}, // numeric
    {2950, {72, Reading::AsItIs}}, // uuid
};

/// Of SQLite: the storage class of the field in the first record.
constexpr NumberedShape SqliteTypes[] = {
    {1, {20, Reading::AsItIs}},
    {2, {5, Reading::AsItIs}},
    {3, {203, Reading::AsItIs}},
    {4, {205, Reading::AsItIs}},
};

template <std::size_t Count>
std::optional<FieldShape> Find(const NumberedShape (&shapes)[Count], int number)
{
    for (const NumberedShape& numbered : shapes)
        if (numbered.Number == number)
            return numbered.Shape;
    return std::nullopt;
}

std::optional<FieldShape> ShapeOfDriver(const QSqlField& field, Numbering numbering)
{
    if (numbering == Numbering::Postgres)
        return Find(PostgresTypes, field.typeID());
    // Qt knows few of the names by which SQLite's columns are declared, and takes the others for text.
    const int type = field.metaType().id();
    if (numbering == Numbering::Sqlite && (type == QMetaType::QString || type == QMetaType::UnknownType))
        return Find(SqliteTypes, field.typeID());
    return std::nullopt;
}

constexpr std::int32_t TypeOfWhole(std::size_t bytes, bool isSigned)
{
    switch (bytes) {
    case 1: return isSigned ? 16 : 17;
    case 2: return isSigned ? 2 : 18;
    case 4: return isSigned ? 3 : 19;
    default: return isSigned ? 20 : 21;
    }
}

std::u16string_view UnitsOf(const QString& text)
{
    return {QStringView(text).utf16(), static_cast<std::size_t>(text.size())};
}

template <class Held>
const Held& Get(const QVariant& variant)
{
    return *static_cast<const Held*>(variant.constData());
}

Value OfWhole(std::int64_t number, Reading reading)
{
    return reading == Reading::Boolean ? Value::OfBoolean(number != 0) : Value::OfInteger(number);
}

Value OfReal(double number, Reading reading)
{
    if (reading == Reading::Boolean)
        return Value::OfBoolean(number != 0);
    return reading == Reading::Single ? Value::OfSingle(static_cast<float>(number)) : Value::OfDouble(number);
}

Value OfText(const QString& text, Reading reading)
{
    const std::u16string_view units = UnitsOf(text);
    if (reading == Reading::Decimal && Common::IsDecimal(units))
        return Value::OfDecimal(units);
    if (reading == Reading::Boolean)
        if (const std::optional<bool> truth = Common::TruthOf(Common::WithoutBlanks(units)))
            return Value::OfBoolean(*truth);
    return Value::OfText(units);
}

std::optional<double> SerialOf(const QDate& day, std::int64_t milliseconds)
{
    return Common::SerialOfDate(day.year(), day.month(), day.day(), milliseconds * 1000);
}

std::optional<double> SerialOf(const QVariant& variant)
{
    switch (variant.typeId()) {
    case QMetaType::QDate: return SerialOf(Get<QDate>(variant), 0);
    case QMetaType::QTime: {
        const auto& time = Get<QTime>(variant);
        return time.isValid() ? SerialOf(QDate(1899, 12, 30), time.msecsSinceStartOfDay()) : std::nullopt;
    }
    case QMetaType::QDateTime: {
        // By day and time of day: the zone that Qt takes a moment for may leave that hour out.
        const auto& moment = Get<QDateTime>(variant);
        return SerialOf(moment.date(), moment.time().msecsSinceStartOfDay());
    }
    default: return std::nullopt;
    }
}

} // namespace

FieldShape ShapeOf(const QSqlField& field, Numbering numbering)
{
    if (const std::optional<FieldShape> shape = ShapeOfDriver(field, numbering))
        return *shape;
    const bool hasLength = field.length() > 0;
    switch (field.metaType().id()) {
    case QMetaType::Bool: return {11, Reading::Boolean};
    case QMetaType::Char:
    case QMetaType::SChar: return {TypeOfWhole(1, true)};
    case QMetaType::UChar: return {TypeOfWhole(1, false)};
    case QMetaType::Short: return {TypeOfWhole(2, true)};
    case QMetaType::UShort: return {TypeOfWhole(2, false)};
    case QMetaType::Int: return {TypeOfWhole(4, true)};
    case QMetaType::UInt: return {TypeOfWhole(4, false)};
    case QMetaType::Long: return {TypeOfWhole(sizeof(long), true)};
    case QMetaType::ULong: return {TypeOfWhole(sizeof(long), false)};
    case QMetaType::LongLong: return {TypeOfWhole(8, true)};
    case QMetaType::ULongLong: return {TypeOfWhole(8, false)};
    case QMetaType::Float: return {4, Reading::Single};
    case QMetaType::Double: return {5, Reading::Decimal};
    case QMetaType::QDate: return {133};
    case QMetaType::QTime: return {134};
    case QMetaType::QDateTime: return {135};
    case QMetaType::QChar: return {130};
    case QMetaType::QString: return {hasLength ? 202 : 203};
    case QMetaType::QByteArray: return {hasLength ? 204 : 205};
    case QMetaType::QUuid: return {72};
    case QMetaType::UnknownType: return {203};
    default: return {Variant};
    }
}

Value ValueOf(QVariant& variant, Reading reading, std::u16string& buffer)
{
    if (variant.isNull())
        return Value::Null();
    switch (variant.typeId()) {
    case QMetaType::Bool: return Value::OfBoolean(Get<bool>(variant));
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong: return OfWhole(variant.toLongLong(), reading);
    case QMetaType::UChar:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong: {
        const std::uint64_t number = variant.toULongLong();
        return number > MostSigned ? Value::OfUnsigned(number) : OfWhole(static_cast<std::int64_t>(number), reading);
    }
    case QMetaType::Float: return Value::OfSingle(Get<float>(variant));
    case QMetaType::Double: return OfReal(Get<double>(variant), reading);
    case QMetaType::QString: return OfText(Get<QString>(variant), reading);
    case QMetaType::QByteArray: {
        const auto& bytes = Get<QByteArray>(variant);
        const auto count = static_cast<std::size_t>(bytes.size());
        return Value::OfText(Common::HexadecimalDigits(bytes.constData(), count, buffer));
    }
    default: break;
    }
    if (const std::optional<double> serial = SerialOf(variant))
        return Value::OfDate(*serial);
    variant = variant.toString();
    return Value::OfText(UnitsOf(Get<QString>(variant)));
}

} // namespace Tessellon::QtSql
