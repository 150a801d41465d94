#pragma once

#include "platform/Failure.h"

#include <cstdint>
#include <string_view>

namespace Tessellon {

/// The platform's text for a failure number; "Application-defined error" for a number it has none for.
[[nodiscard]] std::u16string_view FailureText(std::int32_t number);

/// The failure of a number, with its text and `source`; help file empty, context 0.
[[nodiscard]] Failure FailureOf(std::int32_t number, std::u16string_view source);

/// Fails with a number, its text, and `source` as the one that failed; help file empty, context 0.
[[noreturn]] void Fail(std::int32_t number, std::u16string_view source);

} // namespace Tessellon
