#pragma once

#include <string_view>

namespace Tessellon {

// Texts whose units are all below 256 take a byte a unit.

/// Whether all units of a text are below 256.
bool FitsBytes(std::u16string_view text);

/// Writes the low bytes of a text's units. False if those are not all of the text.
bool Narrow(char* to, std::u16string_view text);

/// Writes bytes as units. False if one of them is above 127, and so means something else in UTF-8.
bool Widen(char16_t* to, std::string_view bytes);

} // namespace Tessellon
