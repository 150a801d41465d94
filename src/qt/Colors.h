#pragma once

#include <QColor>
#include <QPalette>

#include <cstdint>

namespace Tessellon {

/// A colour of the sheet: blue, green, red from the high byte down, or with the high bit set one of the desktop, which
/// the palette gives.
[[nodiscard]] QColor ColorFrom(std::int32_t color, const QPalette& palette);

/// `wanted`, if it can be read on `background`; else black or white, whichever can be read better.
[[nodiscard]] QColor ReadableOn(const QColor& background, const QColor& wanted);

/// A text colour on `background` as it looks where nothing can be done: between the two, and still to be read.
[[nodiscard]] QColor Faded(const QColor& text, const QColor& background);

} // namespace Tessellon
