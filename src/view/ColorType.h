#pragma once

#include <cstdint>

namespace Tessellon {

/// Colours as the sheet takes them: blue, green, red from the high byte down. With the high bit set they are colours of
/// the desktop, so that a dark desktop gives a dark sheet.
enum ColorType : std::uint32_t {
    Black = 0x00000000,
    Red = 0x000000FF,
    Green = 0x0000FF00,
    Yellow = 0x0000FFFF,
    Blue = 0x00FF0000,
    Magenta = 0x00FF00FF,
    Cyan = 0x00FFFF00,
    White = 0x00FFFFFF,
    ScrollBars = 0x80000000,
    Desktop = 0x80000001,
    ActiveTitleBar = 0x80000002,
    InactiveTitleBar = 0x80000003,
    MenuBar = 0x80000004,
    WindowBackground = 0x80000005,
    WindowFrame = 0x80000006,
    MenuText = 0x80000007,
    WindowText = 0x80000008,
    TitleBarText = 0x80000009,
    ActiveBorder = 0x8000000A,
    InactiveBorder = 0x8000000B,
    ApplicationWorkspace = 0x8000000C,
    HighLight = 0x8000000D,
    HighlightText = 0x8000000E,
    ButtonFace = 0x8000000F,
    ButtonShadow = 0x80000010,
    GrayText = 0x80000011,
    ButtonText = 0x80000012,
    InactiveCaptionText = 0x80000013,
    ThreeDHighlight = 0x80000014,
    ThreeDDKShadow = 0x80000015,
    ThreeDLight = 0x80000016,
    ThreeDFace = 0x8000000F,
    ThreeDShadow = 0x80000010,
    InfoText = 0x80000017,
    InfoBackground = 0x80000018,
};

/// What the marker column of a row shows.
enum PictureType : std::int32_t { ptNone = 0, ptArrow = 1 };

/// A point in whole units.
struct POINTAPI {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

} // namespace Tessellon
