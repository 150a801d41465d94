#pragma once

#include "columns/ColDataType.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace Tessellon {
class SheetWidget;
} // namespace Tessellon

namespace Orders {

/// What can be told of a whole column.
enum class Totals : std::uint8_t { None, Numbers, Dates, Texts };

inline constexpr int AnyDecimals = -1;

struct Column {
    QString Name;
    Tessellon::FieldControlType Kind = Tessellon::fcTextBox;
    QString Setting; ///< Of the editor: its choices, mask or caption.
    bool IsHidden = false;
    Tessellon::FieldControlAlign Alignment = Tessellon::fcLeft;
    int Length = 0; ///< Of what may be typed; 0 for any.
    Tessellon::FieldAutoAdjustType Width = Tessellon::faContent;
    int FirstWidth = 0; ///< In pixels at 96 dots an inch; 0 leaves the usual one.
    Totals Total = Totals::Texts;
    int Decimals = 0; ///< Of its numbers, where they are told.

    bool operator==(const Column&) const = default;
};

/// The data columns in the order of the query's fields, the sheet's column 1 first.
struct Columns {
    std::vector<Column> List;
    QString DateFormat = QStringLiteral("yyyy-MM-dd");
    /// The column that holds the key of the record, by which whoever would write back finds it; 0 where none does.
    int Key = 0;

    [[nodiscard]] const Column* At(int col) const; ///< Null for a column that is none.

    bool operator==(const Columns&) const = default;
};

/// Declares the columns and builds the grid of them; the cells are empty behind that.
void DeclareColumns(Tessellon::SheetWidget& sheet, const Columns& columns);

} // namespace Orders
