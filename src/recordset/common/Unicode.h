#pragma once

#include <string>
#include <string_view>

namespace Tessellon::Common {

/// Turns bytes of UTF-8 into UTF-16 and writes them over the start of buffer, which grows where it must and never
/// shrinks. What is no UTF-8 becomes U+FFFD, once for each broken sequence; a surrogate coded by itself is kept as that
/// unit. Returns the text, valid until buffer changes.
std::u16string_view ToUtf16(std::string_view bytes, std::u16string& buffer);

/// The same for texts that are owned.
std::u16string ToUtf16(std::string_view bytes);

/// UTF-8 of a text; a lone surrogate becomes the three bytes that ToUtf16 reads back.
std::string ToUtf8(std::u16string_view text);

} // namespace Tessellon::Common
