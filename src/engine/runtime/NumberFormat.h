#pragma once

#include "engine/runtime/DecimalDigits.h"
#include "engine/runtime/FormatSigns.h"
#include "engine/runtime/Locale.h"

#include <string>
#include <string_view>

namespace Tessellon {

/// Appends a number in a format of up to three sections (of four: the last is for what is missing), rounded from its
/// own digits, halves away from zero.
void AppendNumber(std::u16string& out, const DecimalDigits& number, std::u16string_view format, const Locale& locale);
/// The same in a format that has a name; the general one gives the digits in full.
void AppendNamedNumber(std::u16string& out, const DecimalDigits& number, NamedFormat format, const Locale& locale);
/// Appends what a format has in its fourth section for a value that is missing.
void AppendMissing(std::u16string& out, std::u16string_view format, const Locale& locale);

} // namespace Tessellon
