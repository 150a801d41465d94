#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Tessellon {

/// Whether a field has lines of its own.
enum class Lines : std::uint8_t { One, Many };

/// What of a text that comes whole, as from the clipboard, goes into a field that has room for so many units yet. In a
/// field of one line breaks and other control characters are blanks. In one of many, each break is a carriage return
/// with its line feed, and tabs stay. No pair of units is cut in two.
[[nodiscard]] std::u16string PastedText(std::u16string_view text, Lines lines, std::size_t room);

/// The room in a field that holds so many units, under a limit of which 0 and below is none.
[[nodiscard]] std::size_t RoomUnder(std::int32_t limit, std::size_t held);

} // namespace Tessellon
