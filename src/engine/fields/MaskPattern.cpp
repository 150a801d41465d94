#include "engine/fields/MaskPattern.h"

#include "engine/runtime/CaseMap.h"
#include "engine/runtime/Locale.h"

namespace Tessellon {

namespace {

/// Halves of a pair count as printable: a pair fills two places.
bool IsPrintable(char16_t unit)
{
    return unit >= u' ' && (unit < 0x7F || unit > 0x9F);
}

char16_t LiteralOf(char16_t sign, const Locale& locale)
{
    switch (sign) {
    case u'.': return locale.DecimalSeparator;
    case u',': return locale.GroupSeparator;
    case u':': return locale.TimeSeparator;
    case u'/': return locale.DateSeparator;
    default: return sign;
    }
}

} // namespace

std::optional<MaskPattern> MaskPattern::Read(std::u16string_view mask, const Locale& locale)
{
    MaskPattern pattern;
    Case turns = Case::Kept;
    const auto add = [&](Class takes, char16_t literal = 0) { pattern.positions_.push_back({takes, turns, literal}); };
    for (std::size_t at = 0; at < mask.size(); ++at) {
        switch (mask[at]) {
        case u'#':
        case u'9': add(Class::DigitOrBlank); break;
        case u'A':
        case u'a': add(Class::LetterOrDigit); break;
        case u'?': add(Class::Letter); break;
        case u'C': add(Class::Any); break;
        case u'&': add(Class::Printable); break;
        case u'>': turns = Case::Upper; break;
        case u'<': turns = Case::Lower; break;
        case u'\\':
            if (++at == mask.size())
                return std::nullopt;
            add(Class::Literal, mask[at]);
            break;
        default: add(Class::Literal, LiteralOf(mask[at], locale)); break;
        }
    }
    return pattern;
}

std::size_t MaskPattern::PlaceFrom(std::size_t position) const
{
    while (position < positions_.size() && IsLiteral(position))
        ++position;
    return position;
}

std::optional<char16_t> MaskPattern::Fit(std::size_t position, char16_t character) const
{
    if (position >= positions_.size() || !Takes(positions_[position].Takes, character))
        return std::nullopt;
    switch (positions_[position].Turns) {
    case Case::Upper: return UpperCase(character);
    case Case::Lower: return LowerCase(character);
    default: return character;
    }
}

bool MaskPattern::Takes(Class place, char16_t character)
{
    switch (place) {
    case Class::DigitOrBlank: return IsDigit(character) || character == u' ';
    case Class::LetterOrDigit: return IsLetter(character) || IsDigit(character);
    case Class::Letter: return IsLetter(character);
    case Class::Any: return true;
    case Class::Printable: return IsPrintable(character);
    default: return false;
    }
}

} // namespace Tessellon
