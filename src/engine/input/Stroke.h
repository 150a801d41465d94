#pragma once

#include <cstdint>

namespace Tessellon {

/// One key as the user pressed it.
struct Stroke {
    std::int16_t Code = 0; ///< Virtual key code; 0 for a character that no key of its own has.
    std::int16_t Shift = 0; ///< 1 Shift, 2 Ctrl, 4 Alt, added up.
    bool HasCharacter = false;
    char16_t Character = 0; ///< The UTF-16 unit that the key types, where it has one.
};

} // namespace Tessellon
