#pragma once

#include "platform/Value.h"

#include <QVariant>

#include <cstdint>
#include <string>

class QSqlField;

namespace Tessellon::QtSql {

/// How the values of a field are read, whatever type each variant has.
enum class Reading : std::uint8_t { AsItIs, Boolean, Single, Decimal };

/// A field as its query tells it.
struct FieldShape {
    std::int32_t Type = 0; ///< A number of DataTypeEnum.
    Reading As = Reading::AsItIs;
};

/// Which database a driver's own numbers of types are those of.
enum class Numbering : std::uint8_t { Unknown, Sqlite, Postgres };

/// The shape of a field: of its metatype, and of its driver's own type where the metatype is too coarse.
FieldShape ShapeOf(const QSqlField& field, Numbering numbering);

/// The value of a variant. Its text stands in the variant, or in buffer, which grows where it must.
Value ValueOf(QVariant& variant, Reading reading, std::u16string& buffer);

} // namespace Tessellon::QtSql
