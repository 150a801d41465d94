#include "engine/fields/PickerFormat.h"

#include <algorithm>

namespace Tessellon {

namespace {

PickerPart PartOf(char16_t sign, std::size_t length)
{
    switch (sign) {
    case u'd': return length <= 2 ? PickerPart::Day : length == 3 ? PickerPart::ShortWeekday : PickerPart::LongWeekday;
    case u'M': return PickerPart::Month;
    case u'y': return PickerPart::Year;
    case u'h': return PickerPart::Hour12;
    case u'H': return PickerPart::Hour24;
    case u'm': return PickerPart::Minute;
    case u's': return PickerPart::Second;
    case u't': return PickerPart::Half;
    case u'X': return PickerPart::Callback;
    default: return PickerPart::Literal;
    }
}

} // namespace

std::vector<PickerPiece> ReadPickerFormat(std::u16string_view format)
{
    std::vector<PickerPiece> pieces;
    const auto addLiteral = [&pieces](char16_t unit) {
        if (pieces.empty() || pieces.back().Part != PickerPart::Literal)
            pieces.push_back({PickerPart::Literal, {}});
        pieces.back().Text += unit;
    };

    bool quoted = false;
    for (std::size_t at = 0; at < format.size();) {
        const char16_t sign = format[at];
        if (quoted && format.substr(at, 2) == u"''") {
            addLiteral(u'\'');
            at += 2;
            continue;
        }
        if (sign == u'\'') {
            quoted = !quoted;
            ++at;
            continue;
        }
        const std::size_t end = std::min(format.find_first_not_of(sign, at), format.size());
        const PickerPart part = quoted ? PickerPart::Literal : PartOf(sign, end - at);
        if (part == PickerPart::Literal) {
            addLiteral(sign);
            ++at;
            continue;
        }
        pieces.push_back({part, std::u16string(format.substr(at, end - at))});
        at = end;
    }
    return pieces;
}

} // namespace Tessellon
