#include "engine/grid/GridEngine.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace Tessellon {

/// Asks the host whether `row` goes behind `other`, which stands behind it.
bool GridEngine::GoesBehind(std::int32_t row, std::int32_t other)
{
    EventArguments arguments;
    arguments.Row1 = row;
    arguments.Row2 = other;
    surroundings_.Raise(ChildEvent::Compare, arguments);
    return arguments.Cmp > 0;
}

/// A merge sort of row numbers: it ends whatever a host answers that contradicts itself, and moves no row before the
/// last answer is there.
void GridEngine::SortByCompare()
{
    const std::int32_t rows = rows_.Count();
    const std::int32_t cols = cols_.Count();
    std::vector<std::int32_t> order(static_cast<std::size_t>(rows - fixedRows));
    std::iota(order.begin(), order.end(), fixedRows);
    std::vector<std::int32_t> merged;
    merged.reserve(order.size());
    for (std::size_t width = 1; width < order.size(); width *= 2) {
        merged.clear();
        for (std::size_t begin = 0; begin < order.size(); begin += 2 * width) {
            const std::size_t middle = std::min(begin + width, order.size());
            const std::size_t end = std::min(middle + width, order.size());
            std::size_t left = begin;
            std::size_t right = middle;
            while (left < middle && right < end) {
                const bool takesRight = GoesBehind(order[left], order[right]);
                if (rows_.Count() != rows || cols_.Count() != cols)
                    return;
                merged.push_back(takesRight ? order[right++] : order[left++]);
            }
            const auto at = [&](std::size_t place) { return order.begin() + static_cast<std::ptrdiff_t>(place); };
            merged.insert(merged.end(), at(left), at(middle));
            merged.insert(merged.end(), at(right), at(end));
        }
        order.swap(merged);
    }
    if (!std::ranges::is_sorted(order))
        PutRows(order);
}

/// Row `fixedRows` + i becomes what `order[i]` is now.
void GridEngine::PutRows(const std::vector<std::int32_t>& order)
{
    const std::int32_t cols = cols_.Count();
    CellStore cells(rows_.Count(), cols);
    Axis heights = rows_;
    const auto putRow = [&](std::int32_t from, std::int32_t row) {
        heights.SetOwn(row, rows_.Own(from));
        for (std::int32_t col = 0; col < cols; ++col) {
            cells.SetText(row, col, cells_.Text(from, col));
            if (const Picture picture = cells_.PictureOf(from, col); picture != Picture::None)
                cells.SetPicture(row, col, picture);
            if (const std::int16_t alignment = cells_.PictureAlignment(from, col); alignment != 0)
                cells.SetPictureAlignment(row, col, alignment);
        }
        for (std::int32_t first = 0; first < cols;) {
            const std::optional<std::int32_t> color = cells_.Color(from, first);
            std::int32_t end = first + 1;
            while (end < cols && cells_.Color(from, end) == color)
                ++end;
            if (color)
                cells.SetColor(row, first, end - 1, *color);
            first = end;
        }
    };
    for (std::int32_t row = 0; row < fixedRows; ++row)
        putRow(row, row);
    std::int32_t row = fixedRows;
    for (const std::int32_t from : order)
        putRow(from, row++);
    cells_ = std::move(cells);
    rows_ = std::move(heights);
    InvalidateAll();
    surroundings_.ScrollBarsChanged();
}

} // namespace Tessellon
