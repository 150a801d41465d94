#include "qt/Colors.h"

#include <array>
#include <cmath>

namespace Tessellon {

namespace {

constexpr std::uint32_t ofDesktop = 0x80000000;

// In the order of their numbers.
constexpr std::array desktopRoles{
    QPalette::Button, // scroll bars
    QPalette::Window, // desktop
    QPalette::Highlight, // title bar of the active window
    QPalette::Mid, // and of the others
    QPalette::Button, // menu bar
    QPalette::Base, // window background
    QPalette::Shadow, // window frame
    QPalette::ButtonText, // menu text
    QPalette::Text, // window text
    QPalette::HighlightedText, // title bar text
    QPalette::Button, // border of the active window
    QPalette::Button, // and of the others
    QPalette::Dark, // application workspace
    QPalette::Highlight,
    QPalette::HighlightedText,
    QPalette::Button, // face of a button
    QPalette::Dark, // its shadow
    QPalette::PlaceholderText, // grey text
    QPalette::ButtonText,
    QPalette::WindowText, // title bar text of windows that are not active
    QPalette::Light, // bright edge
    QPalette::Shadow, // darkest edge
    QPalette::Midlight, // light edge
    QPalette::ToolTipText,
    QPalette::ToolTipBase,
};

/// How bright the eye sees it, from 0 to 1.
double Luminance(const QColor& color)
{
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

} // namespace

QColor ColorFrom(std::int32_t color, const QPalette& palette)
{
    const auto bits = static_cast<std::uint32_t>(color);
    if ((bits & ofDesktop) == 0) {
        const auto share = [&](unsigned shift) { return static_cast<int>(bits >> shift & 0xFF); };
        return {share(0), share(8), share(16)};
    }
    const std::size_t index = bits & 0xFF;
    return palette.color(index < desktopRoles.size() ? desktopRoles[index] : QPalette::Base);
}

QColor ReadableOn(const QColor& background, const QColor& wanted)
{
    constexpr double enough = 4.5;
    if (Contrast(background, wanted) >= enough)
        return wanted;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return Contrast(background, black) >= Contrast(background, white) ? black : white;
}

QColor Faded(const QColor& text, const QColor& background)
{
    constexpr float left = 0.55F;
    const auto mixed = [](float one, float other) { return one * left + other * (1 - left); };
    return QColor::fromRgbF(mixed(text.redF(), background.redF()), mixed(text.greenF(), background.greenF()),
                            mixed(text.blueF(), background.blueF()));
}

} // namespace Tessellon
