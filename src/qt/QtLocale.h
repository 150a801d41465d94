#pragma once

#include "engine/runtime/Locale.h"

#include <QLocale>

namespace Tessellon {

/// What the run-time functions need to know of a country, as Qt knows it.
[[nodiscard]] Locale LocaleFrom(const QLocale& locale);

} // namespace Tessellon
