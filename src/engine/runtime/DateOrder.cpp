#include "engine/runtime/DateOrder.h"

#include "engine/runtime/CaseMap.h"
#include "engine/runtime/DateTokens.h"
#include "engine/runtime/FormatSigns.h"

#include <algorithm>
#include <utility>

namespace Tessellon {

namespace {

using Order = std::array<DatePart, 3>;

std::u16string_view FormatBehindName(std::u16string_view format, const Locale& locale)
{
    switch (NamedFormatOf(format)) {
    case NamedFormat::GeneralDate:
    case NamedFormat::ShortDate: return locale.ShortDate;
    case NamedFormat::LongDate: return locale.LongDate;
    case NamedFormat::MediumDate: return u"dd-mmm-yy";
    case NamedFormat::None: return format;
    default: return {};
    }
}

/// The date picker, which has the same format, takes what stands in single quotes for text: no part is in it.
std::u16string WithoutPickerTexts(std::u16string_view format)
{
    std::u16string out;
    while (true) {
        const std::size_t open = format.find(u'\'');
        const std::size_t close = open == std::u16string_view::npos ? open : format.find(u'\'', open + 1);
        out.append(format.substr(0, close == std::u16string_view::npos ? close : open));
        if (close == std::u16string_view::npos)
            return out;
        format.remove_prefix(close + 1);
    }
}

void AddParts(DateParts& parts, std::u16string_view format, const Locale& locale, bool inner)
{
    DateTokens tokens(format);
    for (DateToken token; tokens.Next(token);) {
        switch (token.Kind) {
        case DateSign::Day:
        case DateSign::DayTwo: parts.Add(DatePart::Day); break;
        case DateSign::Month:
        case DateSign::MonthTwo:
        case DateSign::MonthNameShort:
        case DateSign::MonthName: parts.Add(DatePart::Month); break;
        case DateSign::YearTwo:
        case DateSign::Year: parts.Add(DatePart::Year); break;
        case DateSign::General:
        case DateSign::ShortDate:
            if (!inner)
                AddParts(parts, locale.ShortDate, locale, true);
            break;
        case DateSign::LongDate:
            if (!inner)
                AddParts(parts, locale.LongDate, locale, true);
            break;
        default: break;
        }
    }
}

} // namespace

void DateParts::Add(DatePart part)
{
    if (!Has(part))
        Parts[Count++] = part;
}

std::size_t DateParts::PositionOf(DatePart part) const
{
    const auto end = Parts.begin() + static_cast<std::ptrdiff_t>(Count);
    return static_cast<std::size_t>(std::find(Parts.begin(), end, part) - Parts.begin());
}

DateParts DatePartsOf(std::u16string_view format, const Locale& locale)
{
    DateParts parts;
    AddParts(parts, FormatBehindName(format, locale), locale, false);
    return parts;
}

DateOrdering::DateOrdering(std::u16string_view format, const Locale& locale)
{
    const DateParts parts = DatePartsOf(WithoutPickerTexts(format), locale);
    const bool day = parts.Has(DatePart::Day);
    const bool month = parts.Has(DatePart::Month);
    const bool year = parts.Has(DatePart::Year);
    if (day && month) {
        Order order = year ? parts.Parts : locale.DateOrder;
        const auto dayPlace = std::ranges::find(order, DatePart::Day);
        const auto monthPlace = std::ranges::find(order, DatePart::Month);
        if (parts.Precedes(DatePart::Day, DatePart::Month) != (dayPlace < monthPlace))
            std::swap(*dayPlace, *monthPlace);
        AddOrder(order);
    }
    twoAreMonthAndYear_ = month && year && !day;
    monthBeforeYear_ = parts.Precedes(DatePart::Month, DatePart::Year);
    AddOrder(locale.DateOrder);
    AddOrder({DatePart::Year, DatePart::Month, DatePart::Day});
    AddOrder({DatePart::Day, DatePart::Month, DatePart::Year});
    AddOrder({DatePart::Month, DatePart::Day, DatePart::Year});
    AddOrder({DatePart::Year, DatePart::Day, DatePart::Month});
    AddWords(format);
    AddWords(locale.LongDate);
    std::ranges::stable_sort(words_, std::ranges::greater(), &std::u16string::size);
}

void DateOrdering::AddOrder(Order order)
{
    if (std::ranges::find(orders_, order) == orders_.end())
        orders_.push_back(order);
}

void DateOrdering::AddWords(std::u16string_view format)
{
    std::u16string word;
    DateTokens tokens(format);
    const auto end = [&] {
        if (!word.empty())
            words_.push_back(std::exchange(word, {}));
    };
    for (DateToken token; tokens.Next(token);) {
        if (token.Kind == DateSign::Literal && IsLetter(token.Text.front()))
            word.append(token.Text);
        else
            end();
    }
    end();
}

} // namespace Tessellon
