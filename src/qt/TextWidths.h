#pragma once

#include <QFont>
#include <QFontMetricsF>

#include <optional>
#include <string_view>
#include <vector>

class QWidget;

namespace Tessellon {

/// Widths of texts in one font, as of a million cells in a load. Each pair of common characters is measured once, with
/// what kerning does to it, and texts are put together from that; what could be shaped otherwise is measured whole.
class TextWidths {
public:
    /// From now on in this font on the screen of that widget.
    void Use(const QFont& font, const QWidget& widget);

    [[nodiscard]] qreal WidthOf(std::u16string_view text); ///< In pixels.

private:
    [[nodiscard]] qreal Measured(std::u16string_view text) const;
    [[nodiscard]] float Alone(char16_t unit);
    [[nodiscard]] float Joined(char16_t first, char16_t second);

    std::optional<QFontMetricsF> metrics_;
    std::vector<float> alone_; ///< By the unit; not a number where not yet measured, as in those of pairs.
    std::vector<float> joined_; ///< How much wider a pair is than its first unit.
};

} // namespace Tessellon
