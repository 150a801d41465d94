#include "engine/runtime/CaseMap.h"

#include "engine/runtime/CaseTable.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>

namespace Tessellon {

namespace {

template <typename Range>
const Range* RangeOf(std::span<const Range> ranges, char16_t unit)
{
    const auto behind = std::ranges::upper_bound(ranges, unit, {}, &Range::First);
    if (behind == ranges.begin())
        return nullptr;
    const Range& range = *std::prev(behind);
    return unit <= range.Last ? &range : nullptr;
}

char16_t Mapped(std::span<const CaseRange> ranges, char16_t unit)
{
    const CaseRange* range = RangeOf(ranges, unit);
    if (range == nullptr || (unit - range->First) % range->Step != 0)
        return unit;
    return static_cast<char16_t>(unit + range->Distance);
}

/// Of the letters with which most texts are written, without a search.
constexpr auto upperCaseOfLatin = [] {
    std::array<char16_t, 0x180> units{};
    for (char16_t unit = 0; unit < units.size(); ++unit)
        units.at(unit) = unit;
    for (const CaseRange& range : upperCaseRanges)
        for (std::uint32_t unit = range.First; unit <= range.Last && unit < units.size(); unit += range.Step)
            units.at(unit) = static_cast<char16_t>(static_cast<std::int32_t>(unit) + range.Distance);
    return units;
}();

} // namespace

char16_t UpperCaseByTable(char16_t unit)
{
    return unit < upperCaseOfLatin.size() ? upperCaseOfLatin[unit] : Mapped(upperCaseRanges, unit);
}

char16_t LowerCaseByTable(char16_t unit)
{
    return Mapped(lowerCaseRanges, unit);
}

bool IsLetterByTable(char16_t unit)
{
    return RangeOf<LetterRange>(letterRanges, unit) != nullptr;
}

std::u16string UpperCase(std::u16string_view text)
{
    std::u16string out;
    UpperCaseTo(out, text);
    return out;
}

void UpperCaseTo(std::u16string& out, std::u16string_view text)
{
    const std::size_t start = out.size();
    out.append(text);
    char16_t* const units = out.data() + start;
    // Of ASCII alone, without a question for each unit.
    std::uint32_t all = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = units[i];
        all |= unit;
        units[i] = static_cast<char16_t>(unit - (static_cast<char16_t>(unit - u'a') < 26 ? 0x20 : 0));
    }
    if (all >= 0x80)
        std::transform(text.begin(), text.end(), units, UpperCaseByTable);
}

bool EqualIgnoringCase(std::u16string_view left, std::u16string_view right)
{
    return left.size() == right.size() && StartsWithIgnoringCase(left, right);
}

bool StartsWithIgnoringCase(std::u16string_view text, std::u16string_view start)
{
    if (text.size() < start.size())
        return false;
    for (std::size_t i = 0; i < start.size(); ++i) {
        if (text[i] != start[i] && UpperCase(text[i]) != UpperCase(start[i]))
            return false;
    }
    return true;
}

} // namespace Tessellon
