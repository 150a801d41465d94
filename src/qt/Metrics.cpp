#include "qt/Metrics.h"

#include "headless/HeadlessToolkit.h"
#include "qt/Texts.h"

#include <QFontMetricsF>
#include <QStyle>
#include <QWidget>

#include <cmath>

namespace Tessellon {

namespace {

constexpr float twipsAnInch = 1440;
constexpr double pointsAnInch = 72;

} // namespace

QFont QtFontOf(const Font& font)
{
    QFont made(OwnText(font.Name));
    made.setPointSizeF(font.Size);
    return made;
}

Font FontOf(const QFont& font, const QWidget& widget)
{
    const double points =
        font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * pointsAnInch / widget.logicalDpiY();
    return {font.family().toStdU16String(), points};
}

ScreenMetrics::ScreenMetrics(const QWidget& widget)
    : widget_(widget)
{
    FollowScreen();
}

void ScreenMetrics::FollowScreen()
{
    const float twipsAPixel = twipsAnInch / static_cast<float>(widget_.logicalDpiY());
    const qreal scale = widget_.devicePixelRatioF();
    if (twipsAPixel == twipsAPixel_ && scale == scale_)
        return;
    twipsAPixel_ = twipsAPixel;
    scale_ = scale;
    measured_.reset();
}

float ScreenMetrics::TextWidth(std::u16string_view text, const Font& font)
{
    if (measured_ != font) {
        widths_.Use(QtFontOf(font), widget_);
        measured_ = font;
    }
    return static_cast<float>(widths_.WidthOf(text)) * twipsAPixel_;
}

std::int32_t ScreenMetrics::DefaultRowHeight(const Font& font)
{
    constexpr double roomAround = 3;
    const QFontMetricsF metrics(QtFontOf(font), &widget_);
    return static_cast<std::int32_t>((std::ceil(metrics.height()) + roomAround) * TwipsAPixel());
}

std::int32_t ScreenMetrics::DefaultColWidth(const Font& font)
{
    constexpr double roomAround = 4;
    const QFontMetricsF metrics(QtFontOf(font), &widget_);
    const double nineFigures = metrics.horizontalAdvance(QStringLiteral("000000000"));
    return static_cast<std::int32_t>((std::ceil(nineFigures) + roomAround) * TwipsAPixel());
}

float ScreenMetrics::ComboBoxHeight(const Font& font)
{
    constexpr double roomAround = 8;
    const QFontMetricsF metrics(QtFontOf(font), &widget_);
    return static_cast<float>(std::ceil(metrics.height()) + roomAround) * TwipsAPixel();
}

int ScreenMetrics::ScrollBarPixels()
{
    return widget_.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget_);
}

float FixedMetrics::TextWidth(std::u16string_view text, const Font& /*font*/)
{
    return static_cast<float>(text.size()) * HeadlessToolkit::TwipsAUnit;
}

std::int32_t FixedMetrics::DefaultRowHeight(const Font& /*font*/)
{
    return HeadlessToolkit::RowHeight;
}

std::int32_t FixedMetrics::DefaultColWidth(const Font& /*font*/)
{
    return HeadlessToolkit::ColWidth;
}

float FixedMetrics::ComboBoxHeight(const Font& /*font*/)
{
    return HeadlessToolkit::ComboHeight;
}

float FixedMetrics::TwipsAPixel()
{
    return HeadlessToolkit::TwipsAPixel;
}

} // namespace Tessellon
