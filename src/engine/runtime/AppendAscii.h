#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace Tessellon {

/// Appends ASCII. The string's own `append` would make a string of it first.
inline void AppendAscii(std::u16string& out, std::string_view text)
{
    const std::size_t start = out.size();
    out.resize(start + text.size());
    std::ranges::copy(text, out.begin() + static_cast<std::ptrdiff_t>(start));
}

} // namespace Tessellon
