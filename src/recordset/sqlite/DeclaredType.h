#pragma once

#include <cstdint>
#include <string_view>

namespace Tessellon::Sqlite {

/// How the values of a field are read, whatever storage class each has.
enum class Reading : std::uint8_t { Number, Single, Decimal, Text, Boolean, DateTime, Time, Bytes };

/// A field as its column was declared.
struct FieldShape {
    std::int32_t Type = 0; ///< A number of DataTypeEnum; 0 where the declaration tells nothing.
    Reading As = Reading::Text;
};

/// Reads a declared type as "DECIMAL(10, 2)" or "unsigned big int": the first word that names a type decides, then the
/// affinity that SQLite takes from the letters. Empty text and names that tell nothing give type 0.
FieldShape ShapeOfDeclaration(std::string_view declared);

} // namespace Tessellon::Sqlite
