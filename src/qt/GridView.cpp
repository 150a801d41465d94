#include "qt/GridView.h"

#include "qt/CellPainter.h"
#include "qt/SheetFrame.h"

#include <QPaintEvent>

#include <algorithm>
#include <cmath>

namespace Tessellon {

namespace {

/// What lies between the corner of `view` and the whole device pixel ahead of it: on a scaled screen a widget may begin
/// in the middle of one.
QPointF BehindDevicePixel(const QWidget& view, qreal scale)
{
    constexpr qreal inexact = 1e-6;
    const QPoint corner = view.mapTo(view.window(), QPoint(0, 0));
    const auto rest = [&](int at) {
        const qreal device = at * scale;
        return std::max(device - std::floor(device + inexact), 0.0) / scale;
    };
    return {rest(corner.x()), rest(corner.y())};
}

} // namespace

GridView::GridView(SheetFrame& frame)
    : QWidget(&frame)
    , frame_(frame)
{
    constexpr int dragStep = 50;
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    dragging_.setInterval(dragStep);
    connect(&dragging_, &QTimer::timeout, this,
            [this] { frame_.Do([&] { frame_.Platform()->TheGrid().StepDrag(dragged_.X, dragged_.Y); }); });
}

qreal GridView::Snapped(std::int64_t twips) const
{
    const qreal scale = devicePixelRatioF();
    const auto pixel = static_cast<qreal>(frame_.TheMetrics().TwipsAPixel());
    return std::round(static_cast<qreal>(twips) / pixel * scale) / scale;
}

QRect GridView::PixelsAround(const GridRectangle& part) const
{
    const auto low = [&](std::int64_t twips) { return static_cast<int>(std::floor(Snapped(twips))); };
    const auto high = [&](std::int64_t twips) { return static_cast<int>(std::ceil(Snapped(twips))); };
    const int left = low(part.Left);
    const int top = low(part.Top);
    return {left, top, high(std::int64_t{part.Left} + part.Width) - left,
            high(std::int64_t{part.Top} + part.Height) - top};
}

std::vector<GridView::Strip> GridView::RowsInView() const
{
    const GridEngine& grid = frame_.Platform()->TheGrid();
    std::vector<Strip> strips;
    const auto add = [&](std::int32_t row) {
        const GridRectangle place = grid.RectangleOf({row, 0});
        if (place.Height > 0)
            strips.push_back({row, Snapped(place.Top), Snapped(std::int64_t{place.Top} + place.Height)});
    };
    add(0);
    const GridSpan visible = grid.VisibleRows();
    for (std::int32_t row = visible.First; row <= visible.Last; ++row)
        add(row);
    return strips;
}

std::vector<GridView::Strip> GridView::ColsInView() const
{
    const GridEngine& grid = frame_.Platform()->TheGrid();
    std::vector<Strip> strips;
    const auto add = [&](std::int32_t col) {
        const GridRectangle place = grid.RectangleOf({0, col});
        if (place.Width > 0)
            strips.push_back({col, Snapped(place.Left), Snapped(std::int64_t{place.Left} + place.Width)});
    };
    add(0);
    const GridSpan visible = grid.VisibleCols();
    for (std::int32_t col = visible.First; col <= visible.Last; ++col)
        add(col);
    return strips;
}

void GridView::FollowScreen()
{
    frame_.TheMetrics().FollowScreen();
    const float pixel = frame_.TheMetrics().TwipsAPixel();
    if (pixel_ != 0 && pixel != pixel_)
        QMetaObject::invokeMethod(
            this, [this] { frame_.ScreenChanged(); }, Qt::QueuedConnection);
    pixel_ = pixel;
    scale_ = devicePixelRatioF();
}

void GridView::paintEvent(QPaintEvent* event)
{
    FollowScreen();
    GridEngine& grid = frame_.Platform()->TheGrid();
    texts_.Use(QFont(QtFontOf(grid.GetFont()), this), scale_);

    QPainter painter(this);
    painter.setFont(texts_.Font());
    const QPointF behind = BehindDevicePixel(*this, scale_);
    painter.translate(-behind);
    CellPainter cells(painter, texts_, palette(), scale_);
    const std::vector<Strip> rows = RowsInView();
    const std::vector<Strip> cols = ColsInView();
    const QRegion& due = event->region();
    for (const Strip& row : rows) {
        for (const Strip& col : cols) {
            const QRectF place(col.Begin, row.Begin, col.End - col.Begin, row.End - row.Begin);
            if (due.intersects(place.translated(-behind).toAlignedRect()))
                PaintCell(cells, {row.Index, col.Index}, place);
        }
    }
    const qreal right = cols.empty() ? 0 : cols.back().End;
    const qreal bottom = rows.empty() ? 0 : rows.back().End;
    const qreal viewRight = width() + behind.x();
    const qreal viewBottom = height() + behind.y();
    if (right < viewRight)
        cells.PaintEmpty({right, 0, viewRight - right, viewBottom});
    if (bottom < viewBottom)
        cells.PaintEmpty({0, bottom, right, viewBottom - bottom});
    if (due.contains(rect()))
        grid.Painted();
    frame_.Painted(due);
}

void GridView::PaintCell(CellPainter& painter, GridCell cell, const QRectF& place)
{
    GridEngine& grid = frame_.Platform()->TheGrid();
    const GridSelection& selection = grid.Selection();
    CellLook look;
    look.Place = place;
    look.Color = grid.ColorOf(cell);
    look.Alignment = grid.AlignmentOf(cell.Col);
    look.PictureAlignment = grid.PictureAlignmentOf(cell);
    look.ShowsArrow = grid.PictureOf(cell) == Picture::Arrow;
    look.IsFixed = cell.Row < grid.FixedRows() || cell.Col < grid.FixedCols();
    look.IsSelected = selection.Contains(cell);
    look.IsCurrent = cell == selection.Current && !look.IsFixed;
    look.Text = grid.TextOf(cell);
    painter.Paint(look);
}

} // namespace Tessellon
