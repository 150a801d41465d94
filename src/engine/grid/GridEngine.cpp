#include "engine/grid/GridEngine.h"

#include "engine/Failures.h"

#include <algorithm>
#include <utility>

namespace Tessellon {

namespace {

constexpr std::u16string_view source = u"MSFlexGrid1";
constexpr std::int16_t leftAligned = 1;
constexpr std::int16_t lastAlignment = 9;
constexpr std::int32_t windowBackground = static_cast<std::int32_t>(0x80000005U);

} // namespace

GridEngine::GridEngine(GridSurroundings& surroundings)
    : surroundings_(surroundings)
    , cells_(fixedRows + 1, fixedCols + 1)
    , rows_(fixedRows + 1, surroundings.DefaultRowHeight(font_))
    , cols_(fixedCols + 1, surroundings.DefaultColWidth(font_))
    , alignments_(fixedCols + 1, leftAligned)
    , colWidths_(fixedCols + 1, cols_.Size(0))
{
}

void GridEngine::NeedRow(std::int32_t row) const
{
    if (row < 0 || row >= rows_.Count())
        Fail(30009, source);
}

void GridEngine::NeedCol(std::int32_t col) const
{
    if (col < 0 || col >= cols_.Count())
        Fail(30010, source);
}

void GridEngine::NeedCell(std::int32_t row, std::int32_t col) const
{
    if (row < 0 || row >= rows_.Count() || col < 0 || col >= cols_.Count())
        Fail(381, source);
}

bool GridEngine::IsThere(GridCell cell) const
{
    return cell.Row >= 0 && cell.Row < rows_.Count() && cell.Col >= 0 && cell.Col < cols_.Count();
}

GridCell GridEngine::Pulled(GridCell cell) const
{
    return {std::min(cell.Row, rows_.Count() - 1), std::min(cell.Col, cols_.Count() - 1)};
}

GridSelection GridEngine::Pulled(const GridSelection& selection) const
{
    return {Pulled(selection.Current), Pulled(selection.Corner)};
}

void GridEngine::PullCursor()
{
    selection_ = Pulled(selection_);
    toldCell_ = Pulled(toldCell_);
    toldSelection_ = Pulled(toldSelection_);
}

void GridEngine::Rows(std::int32_t rows)
{
    if (rows < fixedRows)
        Fail(30016, source);
    const std::int32_t before = rows_.Count();
    if (rows == before)
        return;
    cells_.SetRows(rows);
    rows_.SetCount(rows);
    ShapeChanged();
    InvalidateFromRow(std::min(rows, before));
    PullCursor();
    surroundings_.ScrollBarsChanged();
    if (rows < before)
        TopRow(topRow_);
}

void GridEngine::Cols(std::int32_t cols)
{
    if (cols < fixedCols)
        Fail(30017, source);
    const std::int32_t before = cols_.Count();
    if (cols == before)
        return;
    cells_.SetCols(cols);
    cols_.SetCount(cols);
    MeasureCols();
    alignments_.resize(static_cast<std::size_t>(cols), leftAligned);
    InvalidateFromCol(std::min(cols, before));
    PullCursor();
    surroundings_.ScrollBarsChanged();
    if (cols < before)
        LeftCol(leftCol_);
}

void GridEngine::AddItem(std::u16string_view text, std::int32_t index)
{
    if (index == -1)
        index = rows_.Count();
    if (index < -1 || index > rows_.Count())
        Fail(30009, source);
    if (index < fixedRows)
        Fail(30002, source);
    cells_.InsertRow(index);
    rows_.Insert(index);
    for (std::int32_t col = 0; col < cols_.Count() && !text.empty(); ++col) {
        const std::size_t tab = text.find(u'\t');
        cells_.SetText(index, col, text.substr(0, tab));
        text = tab == std::u16string_view::npos ? std::u16string_view() : text.substr(tab + 1);
    }
    if (index <= RowsInReach().Last + 1)
        ShapeChanged();
    InvalidateFromRow(index);
    surroundings_.ScrollBarsChanged();
}

void GridEngine::RemoveItem(std::int32_t index)
{
    NeedRow(index);
    if (index < fixedRows)
        Fail(30000, source);
    if (rows_.Count() == fixedRows + 1)
        Fail(30015, source);
    InvalidateFromRow(index);
    cells_.RemoveRow(index);
    rows_.Remove(index);
    ShapeChanged();
    PullCursor();
    surroundings_.ScrollBarsChanged();
    TopRow(topRow_);
}

std::int32_t GridEngine::ColWidth(std::int32_t col)
{
    NeedCol(col);
    return colWidths_[static_cast<std::size_t>(col)];
}

void GridEngine::MeasureCols()
{
    colWidths_.resize(static_cast<std::size_t>(cols_.Count()));
    for (std::int32_t col = 0; col < cols_.Count(); ++col)
        colWidths_[static_cast<std::size_t>(col)] = cols_.Size(col);
}

void GridEngine::ColWidth(std::int32_t col, std::int32_t width)
{
    NeedCol(col);
    if (width < Axis::defaultOwn)
        Fail(380, source);
    if (cols_.Own(col) == width)
        return;
    const std::int32_t before = cols_.Size(col);
    cols_.SetOwn(col, width);
    colWidths_[static_cast<std::size_t>(col)] = cols_.Size(col);
    if (cols_.Size(col) == before)
        return;
    InvalidateFromCol(col);
    surroundings_.ScrollBarsChanged();
}

std::int32_t GridEngine::RowHeight(std::int32_t row)
{
    NeedRow(row);
    return rows_.Size(row);
}

void GridEngine::RowHeight(std::int32_t row, std::int32_t height)
{
    NeedRow(row);
    if (height < Axis::defaultOwn)
        Fail(380, source);
    if (rows_.Own(row) == height)
        return;
    const std::int32_t before = rows_.Size(row);
    rows_.SetOwn(row, height);
    if (rows_.Size(row) == before)
        return;
    if (row <= RowsInReach().Last)
        ShapeChanged();
    InvalidateFromRow(row);
    surroundings_.ScrollBarsChanged();
}

void GridEngine::RowHeightMin(std::int32_t height)
{
    if (height < 0)
        Fail(380, source);
    rows_.SetMinimumSize(height);
    InvalidateAll();
    surroundings_.ScrollBarsChanged();
}

std::int16_t GridEngine::ColAlignment(std::int32_t col)
{
    NeedCol(col);
    return alignments_[static_cast<std::size_t>(col)];
}

void GridEngine::ColAlignment(std::int32_t col, std::int16_t alignment)
{
    NeedCol(col);
    if (alignment < 0 || alignment > lastAlignment)
        Fail(380, source);
    if (std::exchange(alignments_[static_cast<std::size_t>(col)], alignment) != alignment)
        InvalidateCells({{0, col}, {rows_.Count() - 1, col}});
}

std::u16string_view GridEngine::TextMatrix(std::int32_t row, std::int32_t col)
{
    NeedCell(row, col);
    return cells_.Text(row, col);
}

void GridEngine::TextMatrix(std::int32_t row, std::int32_t col, std::u16string_view text)
{
    NeedCell(row, col);
    if (cells_.SetText(row, col, text) && IsRowInView(row))
        InvalidateCells({{row, col}, {row, col}});
}

template <typename Change>
void GridEngine::ChangeCells(Change change)
{
    const GridSelection cells = fillStyle_ == 1 ? selection_ : GridSelection{selection_.Current, selection_.Current};
    for (std::int32_t row = cells.FirstRow(); row <= cells.LastRow(); ++row)
        if (change(row, cells.FirstCol(), cells.LastCol()) && IsRowInView(row))
            InvalidateCells({{row, cells.FirstCol()}, {row, cells.LastCol()}});
}

void GridEngine::CellBackColor(std::int32_t color)
{
    ChangeCells([&](std::int32_t row, std::int32_t firstCol, std::int32_t lastCol) {
        return cells_.SetColor(row, firstCol, lastCol, color);
    });
}

void GridEngine::CellPicture(Picture picture)
{
    ChangeCells([&](std::int32_t row, std::int32_t firstCol, std::int32_t lastCol) {
        bool isOther = false;
        for (std::int32_t col = firstCol; col <= lastCol; ++col)
            isOther = cells_.SetPicture(row, col, picture) || isOther;
        return isOther;
    });
}

void GridEngine::CellPictureAlignment(std::int16_t alignment)
{
    if (alignment < 0 || alignment > lastAlignment)
        Fail(380, source);
    ChangeCells([&](std::int32_t row, std::int32_t firstCol, std::int32_t lastCol) {
        bool isOther = false;
        for (std::int32_t col = firstCol; col <= lastCol; ++col)
            isOther =
                (cells_.SetPictureAlignment(row, col, alignment) && cells_.PictureOf(row, col) != Picture::None) ||
                isOther;
        return isOther;
    });
}

void GridEngine::FillStyle(std::int16_t style)
{
    if (style != 0 && style != 1)
        Fail(380, source);
    fillStyle_ = style;
    if (!IsDrawing())
        ShowCursor();
}

std::int32_t GridEngine::BackColor()
{
    return windowBackground;
}

void GridEngine::SetFont(const Font& font)
{
    if (!(font.Size > 0))
        Fail(380, source);
    if (font_ == font)
        return;
    font_ = font;
    FontMetricsChanged();
}

void GridEngine::FontSize(double points)
{
    SetFont({font_.Name, points});
}

void GridEngine::FontMetricsChanged()
{
    rows_.SetDefaultSize(surroundings_.DefaultRowHeight(font_));
    cols_.SetDefaultSize(surroundings_.DefaultColWidth(font_));
    MeasureCols();
    InvalidateAll();
    surroundings_.ScrollBarsChanged();
}

void GridEngine::Enabled(bool enabled)
{
    if (isEnabled_ == enabled)
        return;
    isEnabled_ = enabled;
    InvalidateAll();
    surroundings_.EnabledChanged();
}

void GridEngine::AllowUserResizing(std::int16_t mode)
{
    if (mode != 0 && mode != 1)
        Fail(380, source);
    userResizing_ = mode;
}

void GridEngine::Move(float /*left*/, float /*top*/, float width, float height)
{
    if (!(width >= 0) || !(height >= 0))
        Fail(380, source);
    if (width == width_ && height == height_)
        return;
    width_ = width;
    height_ = height;
    InvalidateAll();
    surroundings_.ScrollBarsChanged();
}

} // namespace Tessellon
