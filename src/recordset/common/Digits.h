#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Tessellon::Common {

/// Whether a text is a decimal number: perhaps a sign, digits and at most one point, at least one digit.
bool IsDecimal(std::u16string_view text);

/// Writes bytes as hexadecimal digits, two a byte, over the start of buffer, which grows where it must and never
/// shrinks. Returns the text, valid until buffer changes.
std::u16string_view HexadecimalDigits(const void* bytes, std::size_t count, std::u16string& buffer);

} // namespace Tessellon::Common
