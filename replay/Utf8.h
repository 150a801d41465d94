#pragma once

#include <string>
#include <string_view>

namespace Tessellon::Replay {

/// The text of UTF-8 bytes; bytes that are none throw ScriptError.
std::u16string FromUtf8(std::string_view bytes);

/// Appends the UTF-8 bytes of a text; a lone surrogate becomes U+FFFD.
void AppendUtf8(std::string& out, std::u16string_view text);
std::string ToUtf8(std::u16string_view text);

/// Appends a code point, also one of a surrogate.
void AppendCodePoint(std::u16string& out, char32_t point);

} // namespace Tessellon::Replay
