#pragma once

#include <optional>
#include <string_view>

namespace Tessellon::Common {

/// The text without the blanks at its ends.
std::u16string_view WithoutBlanks(std::u16string_view text);

/// The truth that a text tells: of 1 and 0, and of the words true, yes, on, false, no, off and their first letters,
/// with letters of either case. None for any other.
std::optional<bool> TruthOf(std::u16string_view text);

} // namespace Tessellon::Common
