#pragma once

#include <cstdint>

namespace Tessellon {

/// The codes of the keys, as the platform numbers them.
namespace Key {
inline constexpr std::int16_t Backspace = 8;
inline constexpr std::int16_t Tab = 9;
inline constexpr std::int16_t Enter = 13;
inline constexpr std::int16_t Escape = 27;
inline constexpr std::int16_t Space = 32;
inline constexpr std::int16_t PageUp = 33;
inline constexpr std::int16_t PageDown = 34;
inline constexpr std::int16_t End = 35;
inline constexpr std::int16_t Home = 36;
inline constexpr std::int16_t Left = 37;
inline constexpr std::int16_t Up = 38;
inline constexpr std::int16_t Right = 39;
inline constexpr std::int16_t Down = 40;
inline constexpr std::int16_t Delete = 46;
inline constexpr std::int16_t F2 = 113;
} // namespace Key

} // namespace Tessellon
