#include "qt/GridView.h"

#include "qt/CellPainter.h"
#include "qt/SheetFrame.h"

#include <QPaintEvent>

#include <cmath>

namespace Tessellon {

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

qreal GridView::Pixels(std::int64_t twips) const
{
    return static_cast<qreal>(twips) / static_cast<qreal>(frame_.TheMetrics().TwipsAPixel());
}

QRect GridView::PixelsAround(const GridRectangle& part) const
{
    const qreal scale = devicePixelRatioF();
    const DevicePixels pixels(scale, QPointF(mapTo(window(), QPoint(0, 0))) * scale);
    const auto low = [](qreal edge) { return static_cast<int>(std::floor(edge)); };
    const auto high = [](qreal edge) { return static_cast<int>(std::ceil(edge)); };
    const int left = low(pixels.Across(Pixels(part.Left)));
    const int top = low(pixels.Down(Pixels(part.Top)));
    return {left, top, high(pixels.Across(Pixels(std::int64_t{part.Left} + part.Width))) - left,
            high(pixels.Down(Pixels(std::int64_t{part.Top} + part.Height))) - top};
}

std::vector<GridView::Strip> GridView::RowsInView(const DevicePixels& pixels) const
{
    const GridEngine& grid = frame_.Platform()->TheGrid();
    std::vector<Strip> strips;
    const auto add = [&](std::int32_t row) {
        const GridRectangle place = grid.RectangleOf({row, 0});
        if (place.Height > 0)
            strips.push_back({row, place.Top == 0 ? pixels.Top() : pixels.Down(Pixels(place.Top)),
                              pixels.Down(Pixels(std::int64_t{place.Top} + place.Height))});
    };
    add(0);
    const GridSpan visible = grid.VisibleRows();
    for (std::int32_t row = visible.First; row <= visible.Last; ++row)
        add(row);
    return strips;
}

std::vector<GridView::Strip> GridView::ColsInView(const DevicePixels& pixels) const
{
    const GridEngine& grid = frame_.Platform()->TheGrid();
    std::vector<Strip> strips;
    const auto add = [&](std::int32_t col) {
        const GridRectangle place = grid.RectangleOf({0, col});
        if (place.Width > 0)
            strips.push_back({col, place.Left == 0 ? pixels.Left() : pixels.Across(Pixels(place.Left)),
                              pixels.Across(Pixels(std::int64_t{place.Left} + place.Width))});
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
}

void GridView::paintEvent(QPaintEvent* event)
{
    FollowScreen();
    GridEngine& grid = frame_.Platform()->TheGrid();

    QPainter painter(this);
    const DevicePixels pixels = DevicePixels::Of(painter.deviceTransform());
    texts_.Use(QFont(QtFontOf(grid.GetFont()), this), pixels.Scale());
    painter.setFont(texts_.Font());
    CellPainter cells(painter, texts_, palette(), pixels);
    const std::vector<Strip> rows = RowsInView(pixels);
    const std::vector<Strip> cols = ColsInView(pixels);
    const QRegion& due = event->region();
    for (const Strip& row : rows) {
        for (const Strip& col : cols) {
            const QRectF place(col.Begin, row.Begin, col.End - col.Begin, row.End - row.Begin);
            if (due.intersects(place.toAlignedRect()))
                PaintCell(cells, {row.Index, col.Index}, place);
        }
    }
    const qreal right = cols.empty() ? 0 : cols.back().End;
    const qreal bottom = rows.empty() ? 0 : rows.back().End;
    if (right < width())
        cells.PaintEmpty({right, 0, width() - right, static_cast<qreal>(height())});
    if (bottom < height())
        cells.PaintEmpty({0, bottom, right, height() - bottom});
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
