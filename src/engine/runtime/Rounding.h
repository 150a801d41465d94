#pragma once

#include <cstdint>

namespace Tessellon {

/// To the nearest whole number, halves to the even one. Past 32 bits, and for what is no number: failure 6.
std::int32_t RoundToLong(double number);

} // namespace Tessellon
