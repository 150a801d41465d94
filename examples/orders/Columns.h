#pragma once

#include "columns/ColDataType.h"

#include <cstdint>
#include <span>

namespace Tessellon {
class SheetWidget;
} // namespace Tessellon

namespace Orders {

/// What can be told of a whole column.
enum class Totals : std::uint8_t { None, Numbers, Dates, Texts };

struct Column {
    const char* Name;
    Tessellon::FieldControlType Kind;
    const char* Setting; ///< Of the editor: its choices, mask or caption.
    bool IsHidden;
    Tessellon::FieldControlAlign Alignment;
    int Length; ///< Of what may be typed; 0 for any.
    Tessellon::FieldAutoAdjustType Width;
    int FirstWidth; ///< In pixels at 96 dots an inch; 0 leaves the usual one.
    Totals Total;
    int Decimals; ///< Of its numbers, where they are told.
};

/// Numbers of columns in the sheet.
inline constexpr int NumberCol = 1;
inline constexpr int CustomerCol = 2;
inline constexpr int CityCol = 3;
inline constexpr int OrderedCol = 4;
inline constexpr int AmountCol = 5;
inline constexpr int CurrencyCol = 6;

/// The data columns in the order of the query's fields, the sheet's column 1 first.
std::span<const Column> Columns();

/// The column that holds the key of the record, by which whoever would write back finds it. It is hidden.
int KeyCol();

/// Declares the columns and builds the grid of them; the cells are empty behind that.
void DeclareColumns(Tessellon::SheetWidget& sheet);

} // namespace Orders
