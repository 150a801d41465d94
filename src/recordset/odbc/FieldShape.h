#pragma once

#include "platform/Value.h"

#include <cstdint>
#include <string_view>

namespace Tessellon::Odbc {

/// How the values of a field are asked for and read.
enum class Reading : std::uint8_t { Whole, Decimal, Boolean, DateTime, Single, Double, Text, Bytes };

/// A field as the driver describes it.
struct FieldShape {
    std::int32_t Type = 0; ///< A number of DataTypeEnum.
    Reading As = Reading::Text;
};

/// The shape of a column with this SQL type and with the name that the data source has for it. A type that ODBC does
/// not name gives 132, a number of no class.
FieldShape ShapeOf(std::int32_t sqlType, bool isUnsigned, std::u16string_view typeName);

/// The value of characters that a driver gave: a number, a truth or a date serial where the reading finds one in them,
/// else the text itself.
Value ReadCharacters(std::u16string_view text, Reading reading);

} // namespace Tessellon::Odbc
