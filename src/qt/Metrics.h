#pragma once

#include "platform/Font.h"
#include "qt/TextWidths.h"

#include <QFont>

#include <cstdint>
#include <optional>
#include <string_view>

class QWidget;

namespace Tessellon {

/// The font of the sheet as Qt has it.
[[nodiscard]] QFont QtFontOf(const Font& font);
/// A font of Qt as the sheet takes it; one that is sized in pixels is told in points of `widget`'s screen.
[[nodiscard]] Font FontOf(const QFont& font, const QWidget& widget);

/// Sizes of texts, of what follows from them, and of the screen. All but pixels are twips.
class Metrics {
public:
    virtual ~Metrics() = default;

    virtual float TextWidth(std::u16string_view text, const Font& font) = 0;
    virtual std::int32_t DefaultRowHeight(const Font& font) = 0;
    virtual std::int32_t DefaultColWidth(const Font& font) = 0;
    virtual float ComboBoxHeight(const Font& font) = 0;
    virtual float TwipsAPixel() = 0; ///< Of a logical pixel.
    virtual int ScrollBarPixels() = 0; ///< Room that a scroll bar takes; 0 for none at all.
    virtual void FollowScreen() {} ///< The widget may be on another screen by now.
};

/// Measured from the fonts and the screen on which `widget` is, which must outlive this.
class ScreenMetrics : public Metrics {
public:
    explicit ScreenMetrics(const QWidget& widget);

    float TextWidth(std::u16string_view text, const Font& font) override;
    std::int32_t DefaultRowHeight(const Font& font) override;
    std::int32_t DefaultColWidth(const Font& font) override;
    float ComboBoxHeight(const Font& font) override;
    float TwipsAPixel() override { return twipsAPixel_; }
    int ScrollBarPixels() override;
    void FollowScreen() override;

private:
    const QWidget& widget_;
    float twipsAPixel_ = 0;
    qreal scale_ = 0;
    TextWidths widths_;
    std::optional<Font> measured_; ///< The font of the widths.
};

/// The figures of the platform without a screen, so that records of both can be compared byte for byte.
class FixedMetrics : public Metrics {
public:
    float TextWidth(std::u16string_view text, const Font& font) override;
    std::int32_t DefaultRowHeight(const Font& font) override;
    std::int32_t DefaultColWidth(const Font& font) override;
    float ComboBoxHeight(const Font& font) override;
    float TwipsAPixel() override;
    int ScrollBarPixels() override { return 0; }
};

} // namespace Tessellon
