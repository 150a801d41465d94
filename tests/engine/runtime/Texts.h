#pragma once

#include "engine/runtime/Locale.h"
#include "engine/runtime/RunTimeFunctions.h"

#include <ostream>
#include <string>
#include <string_view>

namespace Tessellon {

/// For messages of the tests: ASCII as it stands, all else as \u{HEX}.
inline std::string Shown(std::u16string_view text)
{
    constexpr char figures[] = "0123456789ABCDEF";
    std::string shown;
    for (const char16_t unit : text) {
        if (unit >= 0x20 && unit < 0x7F) {
            shown.push_back(static_cast<char>(unit));
            continue;
        }
        shown += "\\u{";
        for (int shift = 12; shift >= 0; shift -= 4)
            shown.push_back(figures[(unit >> shift) & 0xF]);
        shown += "}";
    }
    return shown;
}

/// Functions of a locale whose clock stands at 15 March 2024, 10:30.
inline RunTimeFunctions At2024(Locale locale = Locale::English())
{
    RunTimeFunctions functions(std::move(locale));
    functions.Clock([] { return 45366.4375; });
    return functions;
}

inline std::u16string FormatText(std::u16string_view text, std::u16string_view format,
                                 const RunTimeFunctions& functions = At2024())
{
    return functions.Format(Value::OfText(text), format);
}

} // namespace Tessellon
