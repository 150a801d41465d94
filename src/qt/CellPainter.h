#pragma once

#include "qt/CellTexts.h"
#include "qt/DevicePixels.h"

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QRectF>

#include <cstdint>
#include <optional>
#include <string_view>

namespace Tessellon {

/// What there is to paint of one cell. Its rectangle lies on device pixels and holds the grid lines at its right and
/// lower edge.
struct CellLook {
    QRectF Place;
    std::u16string_view Text;
    std::optional<std::int32_t> Color; ///< None: the grid's.
    std::int16_t Alignment = 0; ///< 0 to 8: left, centre, right by threes; in each top, middle, bottom.
    std::int16_t PictureAlignment = 0;
    bool ShowsArrow = false;
    bool IsFixed = false;
    bool IsSelected = false;
    bool IsCurrent = false;
};

/// Paints cells in one pass of painting. Each is painted whole, so that nothing under it shines through.
class CellPainter {
public:
    CellPainter(QPainter& painter, CellTexts& texts, const QPalette& palette, const DevicePixels& pixels);

    void Paint(const CellLook& cell);
    void PaintEmpty(const QRectF& place); ///< Where no cells are.

private:
    void PaintText(const CellLook& cell, const QRectF& inner, const QColor& color);
    void PaintArrow(const CellLook& cell, const QRectF& inner, const QColor& color);
    void PaintFrame(const QRectF& inner);

    QPainter& painter_;
    CellTexts& texts_;
    const QPalette& palette_;
    DevicePixels pixels_;
    qreal line_; ///< Width of a line: whole device pixels, about one logical.
    QColor lineColor_;
    QColor fixedLineColor_;
    // Bands repeat, and contrast takes long to reckon.
    QColor lastBackground_;
    QColor lastWanted_;
    QColor lastReadable_;
};

} // namespace Tessellon
