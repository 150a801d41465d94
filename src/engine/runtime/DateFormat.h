#pragma once

#include "engine/runtime/FormatSigns.h"
#include "engine/runtime/Locale.h"

#include <string>
#include <string_view>

namespace Tessellon {

/// Appends a date in a format of date signs; weeks begin on Sunday, the first has the 1st of January.
/// A serial outside the years 100 to 9999: failure 5.
void AppendDate(std::u16string& out, double serial, std::u16string_view format, const Locale& locale);
/// The same in a format that has a name.
void AppendNamedDate(std::u16string& out, double serial, NamedFormat format, const Locale& locale);
/// The text that a date has of itself: short date and long time, without whichever is zero.
void AppendGeneralDate(std::u16string& out, double serial, const Locale& locale);

} // namespace Tessellon
