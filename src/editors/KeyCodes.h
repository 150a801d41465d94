#pragma once

#include <cstdint>

namespace Tessellon {

inline constexpr std::int16_t keyEnter = 13;
inline constexpr std::int16_t keyEscape = 27;
inline constexpr std::int16_t keySpace = 32;
inline constexpr std::int16_t keyLeft = 37;
inline constexpr std::int16_t keyUp = 38;
inline constexpr std::int16_t keyRight = 39;
inline constexpr std::int16_t keyDown = 40;
inline constexpr std::int16_t keyF2 = 113;

inline constexpr std::int16_t shiftCtrl = 2; ///< Ctrl alone.

} // namespace Tessellon
