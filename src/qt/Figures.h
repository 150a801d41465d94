#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QPointF>
#include <QSizeF>

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace Tessellon {

/// Numbers, dates and times, set figure by figure. They are most of what a sheet shows and seldom the same twice, and
/// to shape a text takes longer than to paint it.
///
/// A font may draw a figure otherwise, or nearer, for what stands beside it. So every three of them are shaped side by
/// side, once a font; one that looks further than to the next figure is left to the shaper.
class Figures {
public:
    /// Learns the figures of a font; costs nothing if it is the same as before.
    void Use(const QFont& font);

    /// Sets a text on one line. False if there are other characters in it, a blank at an end, or if the font needs a
    /// shaper.
    bool Set(std::u16string_view text);

    // Of the text that was set last.
    [[nodiscard]] const QGlyphRun& Glyphs() const { return run_; }
    [[nodiscard]] QSizeF Size() const { return size_; }

private:
    static constexpr std::u16string_view signs = u"0123456789-./:, ";

    [[nodiscard]] static std::size_t SignOf(char16_t unit) { return signs.find(unit); }
    [[nodiscard]] bool Learn(const QFont& font);
    [[nodiscard]] bool LearnBehind(std::size_t first, const QFont& font);

    QFont font_;
    bool isAsked_ = false;
    bool isSimple_ = false;
    std::array<quint32, signs.size()> glyphs_{};
    std::array<qreal, signs.size()> widths_{}; ///< Of one that ends the text.
    std::array<std::array<qreal, signs.size()>, signs.size()> advances_{}; ///< From each to what stands behind it.
    qreal base_ = 0;
    std::vector<quint32> set_;
    std::vector<QPointF> places_;
    QGlyphRun run_;
    QSizeF size_;
};

} // namespace Tessellon
