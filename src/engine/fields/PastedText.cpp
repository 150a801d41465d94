#include "engine/fields/PastedText.h"

#include "engine/fields/UnitPairs.h"

#include <limits>

namespace Tessellon {

std::u16string PastedText(std::u16string_view text, Lines lines, std::size_t room)
{
    const bool hasLines = lines == Lines::Many;
    std::u16string pasted;
    for (std::size_t unit = 0; unit < text.size() && pasted.size() < room; ++unit) {
        const char16_t character = text[unit];
        const bool isBreak = character == u'\r' || character == u'\n';
        if (isBreak && character == u'\r' && unit + 1 < text.size() && text[unit + 1] == u'\n')
            ++unit;
        if (isBreak && hasLines)
            pasted += u"\r\n";
        else if (IsControlCharacter(character) && !(hasLines && character == u'\t'))
            pasted += u' ';
        else
            pasted += character;
    }
    if (pasted.size() > room)
        pasted.resize(room - 1);
    else if (pasted.size() == room && !pasted.empty() && IsHighSurrogate(pasted.back()))
        pasted.pop_back();
    return pasted;
}

std::size_t RoomUnder(std::int32_t limit, std::size_t held)
{
    if (limit <= 0)
        return std::numeric_limits<std::size_t>::max();
    const auto most = static_cast<std::size_t>(limit);
    return held < most ? most - held : 0;
}

} // namespace Tessellon
