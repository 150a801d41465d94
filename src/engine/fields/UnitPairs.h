#pragma once

#include <cstddef>
#include <string_view>

namespace Tessellon {

inline bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

inline bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Two units that a caret passes, and a key removes, as one: a pair of surrogates, a carriage return with its line
/// feed.
inline bool IsUnitPair(char16_t first, char16_t second)
{
    return (IsHighSurrogate(first) && IsLowSurrogate(second)) || (first == u'\r' && second == u'\n');
}

/// A character that no key types into a field: what such a key does is the key's business.
inline bool IsControlCharacter(char16_t unit)
{
    return unit < u' ' || unit == 0x7F;
}

/// The place before or behind a caret, a pair being one step, also for a caret that stands inside a pair.
inline std::size_t StepBack(std::u16string_view text, std::size_t caret)
{
    if (caret == 0)
        return 0;
    const std::size_t unit = caret - 1;
    return unit > 0 && IsUnitPair(text[unit - 1], text[unit]) ? unit - 1 : unit;
}

inline std::size_t StepOn(std::u16string_view text, std::size_t caret)
{
    if (caret >= text.size())
        return text.size();
    return caret + 1 < text.size() && IsUnitPair(text[caret], text[caret + 1]) ? caret + 2 : caret + 1;
}

/// Whether the caret stands between the two halves of a pair.
inline bool IsInsidePair(std::u16string_view text, std::size_t caret)
{
    return caret > 0 && caret < text.size() && IsUnitPair(text[caret - 1], text[caret]);
}

} // namespace Tessellon
