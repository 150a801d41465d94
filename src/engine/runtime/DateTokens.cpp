#include "engine/runtime/DateTokens.h"

#include "engine/runtime/CaseMap.h"

#include <algorithm>
#include <array>

namespace Tessellon {

namespace {

/// What one, two, three... of a letter mean; `Literal` where that number means nothing.
struct Run {
    char16_t Letter;
    std::array<DateSign, 6> Signs;
};

constexpr DateSign none = DateSign::Literal;

constexpr Run runs[] = {
    {u'C', {DateSign::General, none, none, none, none, none}},
    {u'D',
     {DateSign::Day, DateSign::DayTwo, DateSign::DayNameShort, DateSign::DayName, DateSign::ShortDate,
      DateSign::LongDate}},
    {u'W', {DateSign::Weekday, DateSign::Week, none, none, none, none}},
    {u'M', {DateSign::Month, DateSign::MonthTwo, DateSign::MonthNameShort, DateSign::MonthName, none, none}},
    {u'Q', {DateSign::Quarter, none, none, none, none, none}},
    {u'Y', {DateSign::DayOfYear, DateSign::YearTwo, none, DateSign::Year, none, none}},
    {u'H', {DateSign::Hour, DateSign::HourTwo, none, none, none, none}},
    {u'N', {DateSign::Minute, DateSign::MinuteTwo, none, none, none, none}},
    {u'S', {DateSign::Second, DateSign::SecondTwo, none, none, none, none}},
    {u'T', {none, none, none, none, DateSign::LongTime, none}},
    {u'A', {none, none, none, DateSign::DayName, none, none}},
    {u'O', {none, none, none, DateSign::MonthName, none, none}},
};

struct Half {
    std::u16string_view Text;
    DateSign Upper;
    DateSign Lower;
};

constexpr Half halves[] = {
    {u"AM/PM", DateSign::HalfUpper, DateSign::HalfLower},
    {u"A/P", DateSign::HalfUpperShort, DateSign::HalfLowerShort},
    {u"AMPM", DateSign::HalfOfLocale, DateSign::HalfOfLocale},
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
    const auto* run = std::ranges::find(runs, letter, &Run::Letter);
    if (run == std::end(runs))
        return false;
    std::size_t length = 1;
    while (length < run->Signs.size() && position_ + length < format_.size() &&
           UpperCase(format_[position_ + length]) == letter)
        ++length;
    while (length > 0 && run->Signs[length - 1] == none)
        --length;
    if (length == 0)
        return false;
    DateSign kind = run->Signs[length - 1];
    if (behindHour_ && kind == DateSign::Month)
        kind = DateSign::Minute;
    else if (behindHour_ && kind == DateSign::MonthTwo)
        kind = DateSign::MinuteTwo;
    Take(token, kind, length);
    return true;
}

} // namespace Tessellon
