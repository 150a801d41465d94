#include "engine/runtime/MaskFormat.h"

#include "engine/runtime/CaseMap.h"
#include "engine/runtime/FormatSigns.h"

#include <cstddef>

namespace Tessellon {

namespace {

bool IsPlace(FormatSign sign)
{
    return !sign.Literal && std::u16string_view(u"#9?AaC@&").find(sign.Unit) != std::u16string_view::npos;
}

bool IsCase(FormatSign sign)
{
    return !sign.Literal && (sign.Unit == u'<' || sign.Unit == u'>');
}

struct MaskPlan {
    std::size_t Places = 0;
    bool FromLeft = false;
    char16_t FirstCase = 0; ///< '<', '>' or 0

    explicit MaskPlan(std::u16string_view mask)
    {
        FormatScanner scanner(mask);
        for (FormatSign sign; scanner.Next(sign);) {
            if (IsPlace(sign))
                ++Places;
            else if (IsCase(sign) && FirstCase == 0)
                FirstCase = sign.Unit;
            else if (!sign.Literal && sign.Unit == u'!')
                FromLeft = true;
        }
    }
};

char16_t LiteralOf(FormatSign sign, const Locale& locale)
{
    if (sign.Literal)
        return sign.Unit;
    switch (sign.Unit) {
    case u'.': return locale.DecimalSeparator;
    case u',': return locale.GroupSeparator;
    case u':': return locale.TimeSeparator;
    case u'/': return locale.DateSeparator;
    default: return sign.Unit;
    }
}

char16_t InCase(char16_t unit, char16_t caseSign)
{
    if (caseSign == u'>')
        return UpperCase(unit);
    return caseSign == u'<' ? LowerCase(unit) : unit;
}

} // namespace

bool IsBlank(std::u16string_view text)
{
    return !text.empty() && text.find_first_not_of(u' ') == std::u16string_view::npos;
}

void AppendMasked(std::u16string& out, std::u16string_view text, std::u16string_view mask, const Locale& locale)
{
    const MaskPlan plan(mask);
    char16_t caseSign = plan.FirstCase;
    const auto append = [&](std::u16string_view units) {
        for (const char16_t unit : units)
            out.push_back(InCase(unit, caseSign));
    };
    if (plan.Places == 0 && !text.empty() && !IsBlank(text)) {
        append(text);
        return;
    }
    std::size_t empty = 0; // Places that nothing is left for, from the left
    if (!plan.FromLeft && text.size() > plan.Places) {
        append(text.substr(0, text.size() - plan.Places));
        text.remove_prefix(text.size() - plan.Places);
    } else if (!plan.FromLeft) {
        empty = plan.Places - text.size();
    }
    FormatScanner scanner(mask);
    for (FormatSign sign; scanner.Next(sign);) {
        if (IsPlace(sign)) {
            if (empty == 0 && !text.empty()) {
                append(text.substr(0, 1));
                text.remove_prefix(1);
                continue;
            }
            empty -= empty > 0 ? 1 : 0;
            if (sign.Unit == u'@')
                out.push_back(u' ');
        } else if (IsCase(sign)) {
            caseSign = sign.Unit;
        } else if (sign.Literal || sign.Unit != u'!') {
            out.push_back(LiteralOf(sign, locale));
        }
    }
    append(text);
}

} // namespace Tessellon
