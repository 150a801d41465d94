#include "engine/runtime/DateTokens.h"

#include "engine/runtime/CaseMap.h"

#include <array>

namespace Tessellon {

namespace {

/// What one, two, three... of a letter mean; `Literal` where that number means nothing.
using RunSigns = std::array<DateSign, 6>;

constexpr DateSign none = DateSign::Literal;

constexpr std::array<RunSigns, 26> RunsByLetter()
{
    std::array<RunSigns, 26> runs{};
    runs['C' - 'A'] = {DateSign::General};
    runs['D' - 'A'] = {DateSign::Day,     DateSign::DayTwo,    DateSign::DayNameShort,
                       DateSign::DayName, DateSign::ShortDate, DateSign::LongDate};
    runs['W' - 'A'] = {DateSign::Weekday, DateSign::Week};
    runs['M' - 'A'] = {DateSign::Month, DateSign::MonthTwo, DateSign::MonthNameShort, DateSign::MonthName};
    runs['Q' - 'A'] = {DateSign::Quarter};
    runs['Y' - 'A'] = {DateSign::DayOfYear, DateSign::YearTwo, none, DateSign::Year};
    runs['H' - 'A'] = {DateSign::Hour, DateSign::HourTwo};
    runs['N' - 'A'] = {DateSign::Minute, DateSign::MinuteTwo};
    runs['S' - 'A'] = {DateSign::Second, DateSign::SecondTwo};
    runs['T' - 'A'] = {none, none, none, none, DateSign::LongTime};
    runs['A' - 'A'] = {none, none, none, DateSign::DayName};
    runs['O' - 'A'] = {none, none, none, DateSign::MonthName};
    return runs;
}

constexpr auto runsByLetter = RunsByLetter();

struct Half {
    std::u16string_view Text;
    DateSign Upper;
    DateSign Lower;
};

constexpr std::array halves{
    Half{u"AM/PM", DateSign::HalfUpper, DateSign::HalfLower},
    Half{u"A/P", DateSign::HalfUpperShort, DateSign::HalfLowerShort},
    Half{u"AMPM", DateSign::HalfOfLocale, DateSign::HalfOfLocale},
};

} // namespace

bool DateTokens::Next(DateToken& token)
{
    while (position_ < format_.size()) {
        const char16_t unit = format_[position_];
        if (unit == u'"') {
            quoted_ = !quoted_;
            ++position_;
            continue;
        }
        if (quoted_) {
            Take(token, DateSign::Literal, 1);
            return true;
        }
        if (unit == u'\\') {
            if (++position_ == format_.size())
                return false;
            Take(token, DateSign::Literal, 1);
            return true;
        }
        if (NextHalf(token) || NextRun(token))
            return true;
        if (unit == u'/')
            Take(token, DateSign::DateSeparator, 1);
        else
            Take(token, unit == u':' ? DateSign::TimeSeparator : DateSign::Literal, 1);
        return true;
    }
    return false;
}

void DateTokens::Take(DateToken& token, DateSign kind, std::size_t length)
{
    token = {kind, format_.substr(position_, length)};
    position_ += length;
    if (kind > DateSign::TimeSeparator)
        behindHour_ = kind == DateSign::Hour || kind == DateSign::HourTwo;
}

bool DateTokens::NextHalf(DateToken& token)
{
    const std::u16string_view rest = format_.substr(position_);
    if (UpperCase(rest.front()) != u'A')
        return false;
    for (const Half& half : halves) {
        if (!StartsWithIgnoringCase(rest, half.Text))
            continue;
        Take(token, rest.front() == u'A' ? half.Upper : half.Lower, half.Text.size());
        return true;
    }
    return false;
}

bool DateTokens::NextRun(DateToken& token)
{
    const char16_t letter = UpperCase(format_[position_]);
    if (letter < u'A' || letter > u'Z')
        return false;
    const RunSigns& signs = runsByLetter[letter - u'A'];
    std::size_t length = 1;
    while (length < signs.size() && position_ + length < format_.size() &&
           UpperCase(format_[position_ + length]) == letter)
        ++length;
    while (length > 0 && signs[length - 1] == none)
        --length;
    if (length == 0)
        return false;
    DateSign kind = signs[length - 1];
    if (behindHour_ && kind == DateSign::Month)
        kind = DateSign::Minute;
    else if (behindHour_ && kind == DateSign::MonthTwo)
        kind = DateSign::MinuteTwo;
    Take(token, kind, length);
    return true;
}

} // namespace Tessellon
