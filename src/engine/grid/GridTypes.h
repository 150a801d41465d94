#pragma once

#include <algorithm>
#include <cstdint>

namespace Tessellon {

/// A cell by its place; row 0 is the heading, column 0 the marker column.
struct GridCell {
    std::int32_t Row = 0;
    std::int32_t Col = 0;
    bool operator==(const GridCell&) const = default;
};

/// The current cell and the opposite corner of what is selected.
struct GridSelection {
    GridCell Current;
    GridCell Corner;
    bool operator==(const GridSelection&) const = default;

    [[nodiscard]] std::int32_t FirstRow() const { return std::min(Current.Row, Corner.Row); }
    [[nodiscard]] std::int32_t LastRow() const { return std::max(Current.Row, Corner.Row); }
    [[nodiscard]] std::int32_t FirstCol() const { return std::min(Current.Col, Corner.Col); }
    [[nodiscard]] std::int32_t LastCol() const { return std::max(Current.Col, Corner.Col); }
    [[nodiscard]] bool IsSingleCell() const { return Current == Corner; }
    [[nodiscard]] bool Contains(GridCell cell) const
    {
        return cell.Row >= FirstRow() && cell.Row <= LastRow() && cell.Col >= FirstCol() && cell.Col <= LastCol();
    }
};

/// Twips from the grid's own upper left corner.
struct GridRectangle {
    std::int32_t Left = 0;
    std::int32_t Top = 0;
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    bool operator==(const GridRectangle&) const = default;

    [[nodiscard]] bool IsEmpty() const { return Width <= 0 || Height <= 0; }
};

/// Rows or columns from First to Last, both included; none where Last is below First.
struct GridSpan {
    std::int32_t First = 0;
    std::int32_t Last = -1;
    bool operator==(const GridSpan&) const = default;

    [[nodiscard]] bool IsEmpty() const { return Last < First; }
    [[nodiscard]] bool Contains(std::int32_t index) const { return index >= First && index <= Last; }
};

/// What a scroll bar shows of TopRow or LeftCol.
struct GridScrollRange {
    std::int32_t Minimum = 0; ///< The first row or column that is not fixed.
    std::int32_t Maximum = 0; ///< The last full page; never below Minimum.
    std::int32_t Page = 1; ///< Rows or columns that are whole in view, at least 1.
    std::int32_t Value = 0; ///< May lie beyond Maximum: a bringing into view does not heed the last full page.
    bool operator==(const GridScrollRange&) const = default;
};

} // namespace Tessellon
