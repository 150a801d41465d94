#include "qt/CellPainter.h"

#include "qt/Colors.h"

#include <algorithm>
#include <cmath>

namespace Tessellon {

namespace {

constexpr qreal textMargin = 3;

QColor Mixed(const QColor& one, const QColor& other, qreal share)
{
    const auto mix = [&](qreal from, qreal to) { return static_cast<float>(from + (to - from) * share); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

/// Where something of a size begins in a room: `third` 0 at its start, 1 in its middle, 2 at its end.
qreal Placed(qreal begin, qreal room, qreal size, int third)
{
    return begin + (room - size) * third / 2;
}

} // namespace

CellPainter::CellPainter(QPainter& painter, CellTexts& texts, const QPalette& palette, const DevicePixels& pixels)
    : painter_(painter)
    , texts_(texts)
    , palette_(palette)
    , pixels_(pixels)
    , line_(std::max(1.0, std::floor(pixels.Scale())) / pixels.Scale())
    , lineColor_(Mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.2))
    , fixedLineColor_(Mixed(palette.color(QPalette::Button), palette.color(QPalette::ButtonText), 0.35))
{
}

void CellPainter::PaintEmpty(const QRectF& place)
{
    painter_.fillRect(place, palette_.color(QPalette::Window));
}

void CellPainter::Paint(const CellLook& cell)
{
    const QRectF inner = cell.Place.adjusted(0, 0, -line_, -line_);
    const bool highlighted = cell.IsSelected && !cell.IsCurrent && !cell.IsFixed;
    QColor background = palette_.color(cell.IsFixed ? QPalette::Button : QPalette::Base);
    QColor foreground = palette_.color(cell.IsFixed ? QPalette::ButtonText : QPalette::Text);
    if (highlighted) {
        background = palette_.color(QPalette::Highlight);
        foreground = palette_.color(QPalette::HighlightedText);
    } else if (cell.Color) {
        background = ColorFrom(*cell.Color, palette_);
    }
    if (background != lastBackground_ || foreground != lastWanted_) {
        lastBackground_ = background;
        lastWanted_ = foreground;
        lastReadable_ = ReadableOn(background, foreground);
    }
    foreground = lastReadable_;

    // The lines first, as what the inner part leaves of the whole.
    painter_.fillRect(cell.Place, cell.IsFixed ? fixedLineColor_ : lineColor_);
    painter_.fillRect(inner, background);
    if (cell.ShowsArrow)
        PaintArrow(cell, inner, foreground);
    if (!cell.Text.empty())
        PaintText(cell, inner, foreground);
    if (cell.IsCurrent)
        PaintFrame(inner);
}

void CellPainter::PaintText(const CellLook& cell, const QRectF& inner, const QColor& color)
{
    constexpr int lastAlignment = 8;
    const qreal room = inner.width() - 2 * textMargin;
    if (room < 1)
        return;
    const QSizeF size = texts_.LayOut(cell.Text, room);
    const int alignment = cell.Alignment >= 0 && cell.Alignment <= lastAlignment ? cell.Alignment : 1;
    const QPointF at(pixels_.Across(Placed(inner.left() + textMargin, room, size.width(), alignment / 3)),
                     pixels_.Down(Placed(inner.top(), inner.height(), size.height(), alignment % 3)));
    painter_.setPen(color);
    if (size.height() <= inner.height()) {
        texts_.Draw(painter_, at);
        return;
    }
    painter_.save();
    painter_.setClipRect(inner, Qt::IntersectClip);
    texts_.Draw(painter_, at);
    painter_.restore();
}

void CellPainter::PaintArrow(const CellLook& cell, const QRectF& inner, const QColor& color)
{
    const qreal height = std::min(std::round(inner.height() * 0.55), inner.width());
    const qreal width = height * 0.6;
    const int alignment = std::clamp<int>(cell.PictureAlignment, 0, 8);
    const qreal left = pixels_.Across(Placed(inner.left(), inner.width(), width, alignment / 3));
    const qreal top = pixels_.Down(Placed(inner.top(), inner.height(), height, alignment % 3));
    const QPointF corners[] = {{left, top}, {left + width, top + height / 2}, {left, top + height}};
    painter_.setRenderHint(QPainter::Antialiasing, true);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(color);
    painter_.drawConvexPolygon(corners, 3);
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

void CellPainter::PaintFrame(const QRectF& inner)
{
    const QColor color = palette_.color(QPalette::Highlight);
    const qreal width = std::min(2 * line_, inner.height());
    painter_.fillRect(QRectF(inner.left(), inner.top(), inner.width(), width), color);
    painter_.fillRect(QRectF(inner.left(), inner.bottom() - width, inner.width(), width), color);
    painter_.fillRect(QRectF(inner.left(), inner.top(), width, inner.height()), color);
    painter_.fillRect(QRectF(inner.right() - width, inner.top(), width, inner.height()), color);
}

} // namespace Tessellon
