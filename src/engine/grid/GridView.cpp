#include "engine/grid/GridEngine.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Tessellon {

namespace {

constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
constexpr std::size_t mostHeldParts = 64;

std::int32_t Whole(std::int64_t twips)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(twips, -most, most));
}

std::int32_t WithoutBar(float size, std::int32_t bar)
{
    return static_cast<std::int32_t>(std::clamp(static_cast<double>(size) - bar, 0.0, static_cast<double>(most)));
}

bool Covers(const GridRectangle& outer, const GridRectangle& inner)
{
    return inner.Left >= outer.Left && inner.Top >= outer.Top && inner.Left + inner.Width <= outer.Left + outer.Width &&
           inner.Top + inner.Height <= outer.Top + outer.Height;
}

} // namespace

Sight GridEngine::RowSight() const
{
    return {rows_, fixedRows, topRow_, WithoutBar(height_, surroundings_.HorizontalScrollBarHeight())};
}

Sight GridEngine::ColSight() const
{
    return {cols_, fixedCols, leftCol_, WithoutBar(width_, surroundings_.VerticalScrollBarWidth())};
}

GridRectangle GridEngine::View() const
{
    return {0, 0, WithoutBar(width_, surroundings_.VerticalScrollBarWidth()),
            WithoutBar(height_, surroundings_.HorizontalScrollBarHeight())};
}

// ---- Scrolling ------------------------------------------------------------------------------------------------------

void GridEngine::TopRow(std::int32_t row)
{
    SetTopRow(RowSight().Clamped(row));
}

void GridEngine::LeftCol(std::int32_t col)
{
    SetLeftCol(ColSight().Clamped(col));
}

void GridEngine::SetTopRow(std::int32_t row)
{
    if (topRow_ == row)
        return;
    topRow_ = row;
    InvalidateAll();
    surroundings_.ScrollBarsChanged();
    Raise(ChildEvent::Scroll);
}

void GridEngine::SetLeftCol(std::int32_t col)
{
    if (leftCol_ == col)
        return;
    leftCol_ = col;
    InvalidateAll();
    surroundings_.ScrollBarsChanged();
    Raise(ChildEvent::Scroll);
}

void GridEngine::BringIntoView(GridCell cell)
{
    SetTopRow(RowSight().Showing(cell.Row));
    if (IsThere(cell))
        SetLeftCol(ColSight().Showing(cell.Col));
}

void GridEngine::ScrollIntoView(GridCell cell)
{
    if (isEnabled_ && IsThere(cell))
        BringIntoView(cell);
}

void GridEngine::ScrollTo(std::int32_t topRow, std::int32_t leftCol)
{
    if (!isEnabled_)
        return;
    TopRow(topRow);
    LeftCol(leftCol);
}

GridRectangle GridEngine::ShownCurrentCell()
{
    BringIntoView(selection_.Current);
    return RectangleOf(selection_.Current);
}

// ---- What there is to paint -----------------------------------------------------------------------------------------

GridSpan GridEngine::VisibleRows() const
{
    const std::int32_t height = WithoutBar(height_, surroundings_.HorizontalScrollBarHeight());
    if (!visibleRows_ || visibleIn_ != height) {
        visibleRows_ = RowSight().Visible();
        visibleIn_ = height;
    }
    return *visibleRows_;
}

GridSpan GridEngine::RowsInReach() const
{
    if (!rowsInReach_)
        rowsInReach_ = Sight(rows_, fixedRows, topRow_, WithoutBar(height_, 0)).Visible();
    return *rowsInReach_;
}

GridSpan GridEngine::VisibleCols() const
{
    return ColSight().Visible();
}

GridRectangle GridEngine::RectangleOf(GridCell cell) const
{
    if (!IsThere(cell))
        return {};
    return {Whole(ColSight().Begin(cell.Col)), Whole(RowSight().Begin(cell.Row)), cols_.Size(cell.Col),
            rows_.Size(cell.Row)};
}

std::u16string_view GridEngine::TextOf(GridCell cell)
{
    return IsThere(cell) ? cells_.Text(cell.Row, cell.Col) : std::u16string_view();
}

std::optional<std::int32_t> GridEngine::ColorOf(GridCell cell) const
{
    return IsThere(cell) ? cells_.Color(cell.Row, cell.Col) : std::nullopt;
}

Picture GridEngine::PictureOf(GridCell cell) const
{
    return IsThere(cell) ? cells_.PictureOf(cell.Row, cell.Col) : Picture::None;
}

std::int16_t GridEngine::PictureAlignmentOf(GridCell cell) const
{
    return IsThere(cell) ? cells_.PictureAlignment(cell.Row, cell.Col) : std::int16_t{0};
}

std::int16_t GridEngine::AlignmentOf(std::int32_t col) const
{
    return alignments_[static_cast<std::size_t>(col)];
}

GridScrollRange GridEngine::RowScroll() const
{
    return RowSight().Range();
}

GridScrollRange GridEngine::ColScroll() const
{
    return ColSight().Range();
}

std::optional<GridCell> GridEngine::CellAt(float x, float y) const
{
    const GridCell cell{RowSight().At(y), ColSight().At(x)};
    return IsThere(cell) ? std::optional(cell) : std::nullopt;
}

// ---- What has changed -----------------------------------------------------------------------------------------------

void GridEngine::Invalidate(const GridRectangle& part)
{
    if (part.IsEmpty())
        return;
    isPaintDue_ = true;
    if (redraw_) {
        surroundings_.Invalidate(part);
        return;
    }
    if (std::ranges::any_of(heldParts_, [&](const GridRectangle& held) { return Covers(held, part); }))
        return;
    if (heldParts_.size() < mostHeldParts)
        heldParts_.push_back(part);
    else
        heldParts_.assign(1, View());
}

void GridEngine::InvalidateCells(const GridSelection& cells)
{
    const auto areOutside = [&](const GridSpan& rows) {
        return cells.FirstRow() >= fixedRows && (cells.FirstRow() > rows.Last || cells.LastRow() < rows.First);
    };
    if (areOutside(RowsInReach()) || areOutside(VisibleRows()))
        return;
    const SightCut across = ColSight().Cut(cells.FirstCol(), cells.LastCol());
    const SightCut down = RowSight().Cut(cells.FirstRow(), cells.LastRow());
    Invalidate({across.Begin, down.Begin, across.End - across.Begin, down.End - down.Begin});
}

void GridEngine::InvalidateFromRow(std::int32_t row)
{
    if (row >= fixedRows && (row > RowsInReach().Last + 1 || row > VisibleRows().Last + 1))
        return;
    const GridRectangle view = View();
    const std::int32_t top = RowSight().Cut(row, row).Begin;
    Invalidate({0, top, view.Width, view.Height - top});
}

void GridEngine::InvalidateFromCol(std::int32_t col)
{
    const GridRectangle view = View();
    const std::int32_t left = ColSight().Cut(col, col).Begin;
    Invalidate({left, 0, view.Width - left, view.Height});
}

void GridEngine::InvalidateAll()
{
    ShapeChanged();
    Invalidate(View());
}

void GridEngine::ShowCursor()
{
    if (shown_ == selection_)
        return;
    const GridSelection before = shown_;
    shown_ = selection_;
    InvalidateCells(before);
    InvalidateCells(selection_);
}

void GridEngine::Refresh()
{
    if (redraw_)
        PaintDue();
}

void GridEngine::Redraw(bool redraw)
{
    redraw_ = redraw;
    if (!redraw)
        return;
    if (!heldParts_.empty())
        for (const GridRectangle& part : std::exchange(heldParts_, {}))
            surroundings_.Invalidate(part);
    PaintDue();
}

void GridEngine::PaintDue()
{
    ShowCursor();
    if (std::exchange(isPaintDue_, false))
        surroundings_.PaintNow();
}

} // namespace Tessellon
