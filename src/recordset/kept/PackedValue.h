#pragma once

#include "platform/Value.h"

#include <cstddef>
#include <string>

namespace Tessellon::Kept {

/// A byte with which no packed value begins.
inline constexpr unsigned char NoValue = 0x0F;

/// How many known bytes must stand behind a packed value where it is read: it is read by whole blocks.
inline constexpr std::size_t Block = 32;

/// At most so many bytes Pack writes for a value.
[[nodiscard]] std::size_t MostBytes(const Value& value);

/// Writes a value: a byte, and what it needs besides. Returns where it ends.
unsigned char* Pack(const Value& value, unsigned char* to);

/// Where the packed value ends that begins here.
[[nodiscard]] const unsigned char* Behind(const unsigned char* packed);

/// Reads the packed value that begins here. Its text stands in buffer, which grows where it must and never shrinks.
/// Returns where it ends.
const unsigned char* Unpack(const unsigned char* packed, Value& value, std::u16string& buffer);

} // namespace Tessellon::Kept
