#pragma once

#include "support/SheetUnderTest.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// What a journal noted or a host heard, a line each.
using Lines = std::vector<std::string>;

/// The lines that begin with one of the words.
inline Lines Only(const Lines& lines, const std::vector<std::string_view>& words)
{
    Lines found;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(found), [&](const std::string& line) {
        return std::any_of(words.begin(), words.end(), [&](std::string_view word) { return line.starts_with(word); });
    });
    return found;
}

/// The lines up to the first that is `last`, with it; all of them where it is missing.
inline Lines UpTo(Lines lines, std::string_view last)
{
    const auto found = std::find(lines.begin(), lines.end(), last);
    if (found != lines.end())
        lines.erase(found + 1, lines.end());
    return lines;
}

/// Where the line stands; the number of lines where it is missing.
inline std::size_t PlaceOf(const Lines& lines, std::string_view line)
{
    return static_cast<std::size_t>(std::find(lines.begin(), lines.end(), line) - lines.begin());
}

inline std::ptrdiff_t CountOf(const Lines& lines, std::string_view line)
{
    return std::count(lines.begin(), lines.end(), line);
}

/// The procedures that the message boxes among the lines name, in their order.
inline Lines Labels(const Lines& heard)
{
    constexpr std::string_view before = " in function ";
    constexpr std::string_view behind = " of module TessellonSheet";
    Lines labels;
    for (const std::string& line : heard) {
        const auto begin = line.find(before);
        const auto end = line.find(behind);
        if (line.starts_with("box ") && begin != std::string::npos && end != std::string::npos)
            labels.push_back(line.substr(begin + before.size(), end - begin - before.size()));
    }
    return labels;
}

} // namespace Tessellon
