#include "qt/TextWidths.h"

#include "qt/Texts.h"

#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace Tessellon {

namespace {

/// Latin letters, figures and signs, each drawn by itself.
constexpr std::size_t units = 0x180;
constexpr char16_t firstPrintable = u' ';
constexpr char16_t softHyphen = u'\u00AD';

/// Small letters, whose pairs may become one sign with a third.
constexpr bool MayBeJoined(char16_t unit)
{
    return unit == u'f' || unit == u'i' || unit == u'j' || unit == u'l' || unit == u't';
}

constexpr auto plainUnits = [] {
    constexpr char16_t firstControl = 0x7F;
    constexpr char16_t lastControl = 0x9F;
    std::array<bool, units> plain{};
    for (char16_t unit = firstPrintable; unit < units; ++unit)
        plain[unit] = !(unit >= firstControl && unit <= lastControl) && unit != softHyphen && !MayBeJoined(unit);
    return plain;
}();

bool IsPlain(char16_t unit)
{
    return unit < units && plainUnits[unit];
}

} // namespace

void TextWidths::Use(const QFont& font, const QWidget& widget)
{
    metrics_.emplace(font, &widget);
    alone_.assign(units, std::numeric_limits<float>::quiet_NaN());
    joined_.clear();
}

qreal TextWidths::Measured(std::u16string_view text) const
{
    return metrics_->horizontalAdvance(SharedText(text));
}

float TextWidths::Alone(char16_t unit)
{
    float& width = alone_[unit];
    if (std::isnan(width))
        width = static_cast<float>(Measured({&unit, 1}));
    return width;
}

float TextWidths::Joined(char16_t first, char16_t second)
{
    float& width = joined_[first * units + second];
    if (std::isnan(width)) {
        const char16_t both[] = {first, second};
        width = static_cast<float>(Measured({both, 2})) - Alone(first);
    }
    return width;
}

qreal TextWidths::WidthOf(std::u16string_view text)
{
    if (text.empty())
        return 0;
    if (!std::ranges::all_of(text, IsPlain))
        return Measured(text);
    if (joined_.empty())
        joined_.assign(units * units, std::numeric_limits<float>::quiet_NaN());
    float width = Alone(text.front());
    for (std::size_t at = 1; at < text.size(); ++at)
        width += Joined(text[at - 1], text[at]);
    return width;
}

} // namespace Tessellon
