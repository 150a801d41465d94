#pragma once

#include "engine/runtime/DateOrder.h"
#include "engine/runtime/Locale.h"

#include <functional>
#include <string_view>

namespace Tessellon {

/// Reads a date, a time of day or both. A date without a year is of the clock's; a time alone belongs to the serial 0.
/// False where the text is neither.
bool ReadDate(std::u16string_view text, const Locale& locale, const DateOrdering& ordering,
              const std::function<double()>& now, double& serial);

} // namespace Tessellon
