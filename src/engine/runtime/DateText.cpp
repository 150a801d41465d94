#include "engine/runtime/DateText.h"

#include "engine/runtime/Calendar.h"
#include "engine/runtime/CaseMap.h"
#include "platform/RunTime.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <utility>

namespace Tessellon {

namespace {

struct ReadFigures {
    int Value = 0;
    int Figures = 0;
};

constexpr int noYear = 0;

int YearOf(ReadFigures number)
{
    if (number.Figures > 2)
        return number.Value;
    return number.Value + (number.Value < 30 ? 2000 : 1900);
}

/// Kana, ideographs and what else is written without blanks between words.
bool NeedsNoGap(char16_t unit)
{
    return unit >= 0x2E80;
}

/// What parts two parts of a text.
struct Gap {
    char16_t Mark = 0;
    bool Blank = false;
    bool Word = false;
    bool TimeFollows = false;
};

/// The parts of a text, before it is known which number is what.
struct ReadParts {
    std::array<ReadFigures, 3> Numbers;
    std::size_t Count = 0;
    int Month = 0; ///< By its name; 0 without.
    bool MonthFirst = false; ///< The name stands ahead of all numbers.
    bool Weekday = false;
    bool PointOrComma = false; ///< Between two numbers
    bool Time = false;
    bool TimeBehind = false;
    int Seconds = 0;

    [[nodiscard]] bool HasDate() const { return Count > 0 || Month > 0; }
};

/// The quick way for what most texts are: three numbers with marks between them and nothing else.
bool ReadThreeNumbers(std::u16string_view text, ReadParts& parts)
{
    constexpr int mostFigures = 4;
    ReadFigures number;
    for (const char16_t unit : text) {
        if (IsDigit(unit) && number.Figures < mostFigures) {
            number = {number.Value * 10 + (unit - u'0'), number.Figures + 1};
        } else if ((unit == u'/' || unit == u'-' || unit == u'.') && number.Figures > 0 && parts.Count < 2) {
            parts.Numbers[parts.Count++] = number;
            number = {};
        } else {
            return false;
        }
    }
    parts.Numbers[2] = number;
    return parts.Count++ == 2 && number.Figures > 0;
}

/// Cuts a text into its parts.
class PartReader {
public:
    PartReader(std::u16string_view text, const Locale& locale, const DateOrdering& ordering)
        : rest_(Trim(text))
        , locale_(locale)
        , ordering_(ordering)
        , monthsBeginWithDigits_(IsDigit(locale.MonthNames.front().empty() ? u' ' : locale.MonthNames.front().front()))
    {
    }

    bool Read(ReadParts& parts);

private:
    struct Name {
        std::size_t Length = 0;
        int Month = 0; ///< 0 for a weekday
    };

    bool ReadPart(ReadParts& parts, const Gap& gap);
    bool ReadTime(int& seconds);
    bool ReadFiguresUpTo(std::size_t most, ReadFigures& number);
    bool ReadHalf(int& hour);
    Gap ReadGap(bool behindDigit);
    [[nodiscard]] Name NameAhead() const;
    [[nodiscard]] std::size_t WordAhead() const;
    [[nodiscard]] bool IsAhead(std::u16string_view word) const;
    void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(u' '), rest_.size())); }
    [[nodiscard]] bool DigitAhead(std::size_t at = 0) const { return at < rest_.size() && IsDigit(rest_[at]); }
    [[nodiscard]] bool IsDateMark(char16_t unit) const
    {
        return unit == u'/' || unit == u'-' || unit == u'.' || unit == u',' ||
               (unit == locale_.DateSeparator && unit != u':' && !IsDigit(unit) && !IsLetter(unit));
    }
    [[nodiscard]] bool IsTimeMark(char16_t unit) const
    {
        return unit == u':' || (unit == locale_.TimeSeparator && !IsDateMark(unit));
    }

    std::u16string_view rest_;
    const Locale& locale_;
    const DateOrdering& ordering_;
    bool monthsBeginWithDigits_;
};

bool PartReader::Read(ReadParts& parts)
{
    Gap gap = ReadGap(false);
    if (gap.Mark != 0)
        return false;
    gap.Blank = true;
    while (!rest_.empty()) {
        const bool hadTime = parts.Time;
        if (!ReadPart(parts, gap))
            return false;
        const bool wasTime = parts.Time && !hadTime;
        const bool wasDigit = IsDigit(*(rest_.data() - 1));
        gap = ReadGap(wasDigit && !wasTime);
        if (rest_.empty())
            return gap.Mark == 0;
        if (wasTime && (!gap.Blank || gap.Mark != 0))
            return false;
    }
    return false;
}

bool PartReader::ReadPart(ReadParts& parts, const Gap& gap)
{
    int seconds = 0;
    if (DigitAhead() && ReadTime(seconds)) {
        if (parts.Time || gap.Mark != 0 || !(gap.Blank || gap.TimeFollows))
            return false;
        parts.Time = true;
        parts.TimeBehind = parts.HasDate();
        parts.Seconds = seconds;
        return true;
    }
    if (gap.TimeFollows)
        return false;
    const Name name = NameAhead();
    if (name.Length > 0) {
        if (name.Month > 0 && (parts.Month > 0 || parts.TimeBehind))
            return false;
        if (name.Month > 0)
            parts.MonthFirst = parts.Count == 0;
        parts.Month = std::max(parts.Month, name.Month);
        parts.Weekday = parts.Weekday || name.Month == 0;
        rest_.remove_prefix(name.Length);
        return true;
    }
    constexpr std::size_t mostFigures = 4;
    if (parts.Count == parts.Numbers.size() || parts.TimeBehind ||
        !ReadFiguresUpTo(mostFigures, parts.Numbers[parts.Count]))
        return false;
    parts.PointOrComma = parts.PointOrComma || (parts.Count > 0 && (gap.Mark == u'.' || gap.Mark == u','));
    ++parts.Count;
    return true;
}

/// Leaves all as it is where more digits stand there.
bool PartReader::ReadFiguresUpTo(std::size_t most, ReadFigures& number)
{
    ReadFigures read;
    std::size_t size = 0;
    for (; DigitAhead(size) && size <= most; ++size)
        read.Value = read.Value * 10 + (rest_[size] - u'0');
    if (size == 0 || size > most)
        return false;
    rest_.remove_prefix(size);
    read.Figures = static_cast<int>(size);
    number = read;
    return true;
}

/// Leaves all as it is where no time of day stands there.
bool PartReader::ReadTime(int& seconds)
{
    const std::u16string_view start = rest_;
    std::array<ReadFigures, 3> figures;
    std::size_t count = 0;
    bool read = ReadFiguresUpTo(2, figures[count++]);
    while (read && count < 3 && !rest_.empty() && IsTimeMark(rest_.front())) {
        rest_.remove_prefix(1);
        read = ReadFiguresUpTo(2, figures[count++]);
    }
    int hour = figures[0].Value;
    const bool half = read && ReadHalf(hour);
    if (read && (half || count > 1) && hour >= 0 && hour < 24 && figures[1].Value < 60 && figures[2].Value < 60) {
        seconds = (hour * 60 + figures[1].Value) * 60 + figures[2].Value;
        return true;
    }
    rest_ = start;
    return false;
}

/// The half of the day behind an hour; an hour past 12 does not go with it and becomes none.
bool PartReader::ReadHalf(int& hour)
{
    const std::u16string_view start = rest_;
    SkipBlanks();
    if (rest_.empty() || !IsLetter(rest_.front())) {
        rest_ = start;
        return false;
    }
    const std::array<std::u16string_view, 3> mornings{u"AM", u"A", locale_.Am};
    const std::array<std::u16string_view, 3> afternoons{u"PM", u"P", locale_.Pm};
    for (const auto& [words, hours] : {std::pair(mornings, 0), std::pair(afternoons, 12)}) {
        for (const std::u16string_view word : words) {
            if (!IsAhead(word))
                continue;
            rest_.remove_prefix(word.size());
            hour = hour > 12 ? -1 : hour % 12 + hours;
            return true;
        }
    }
    rest_ = start;
    return false;
}

Gap PartReader::ReadGap(bool behindDigit)
{
    Gap gap;
    if (behindDigit && DigitAhead(1) && rest_.front() == u'T') {
        rest_.remove_prefix(1);
        gap.TimeFollows = true;
        return gap;
    }
    while (!rest_.empty()) {
        const char16_t unit = rest_.front();
        std::size_t length = 1;
        if (unit == u' ') {
            gap.Blank = true;
        } else if (gap.Mark == 0 && IsDateMark(unit)) {
            gap.Mark = unit;
        } else {
            length = IsDigit(unit) ? 0 : WordAhead();
            if (length == 0 || NameAhead().Length > length)
                break;
            gap.Word = true;
        }
        rest_.remove_prefix(length);
    }
    return gap;
}

bool PartReader::IsAhead(std::u16string_view word) const
{
    if (word.empty() || rest_.empty() || UpperCase(rest_.front()) != UpperCase(word.front()) ||
        !StartsWithIgnoringCase(rest_, word))
        return false;
    return NeedsNoGap(word.back()) || rest_.size() == word.size() || !IsLetter(rest_[word.size()]);
}

PartReader::Name PartReader::NameAhead() const
{
    Name best;
    if (rest_.empty() || (IsDigit(rest_.front()) && !monthsBeginWithDigits_))
        return best;
    const auto take = [&](std::u16string_view name, int month) {
        if (name.size() > best.Length && IsAhead(name))
            best = {name.size(), month};
    };
    for (std::size_t i = 0; i < locale_.MonthNames.size(); ++i) {
        take(locale_.MonthNames[i], static_cast<int>(i) + 1);
        take(locale_.MonthAbbreviations[i], static_cast<int>(i) + 1);
    }
    for (std::size_t i = 0; i < locale_.DayNames.size(); ++i) {
        take(locale_.DayNames[i], 0);
        take(locale_.DayAbbreviations[i], 0);
    }
    return best;
}

std::size_t PartReader::WordAhead() const
{
    for (const std::u16string& word : ordering_.Words()) {
        if (IsAhead(word))
            return word.size();
    }
    return 0;
}

/// Finds out which number is which.
class DateResolver {
public:
    DateResolver(const ReadParts& parts, const DateOrdering& ordering, int thisYear)
        : parts_(parts)
        , ordering_(ordering)
        , thisYear_(thisYear)
    {
    }

    bool Resolve()
    {
        if (parts_.Month == 0 && parts_.Count == 3)
            return ByOrder({DatePart::Day, DatePart::Month, DatePart::Year}, true);
        if (parts_.Month == 0 && parts_.Count == 2)
            return !parts_.PointOrComma && TwoNumbers();
        if (parts_.Month > 0 && parts_.Count == 2)
            return ByOrder({DatePart::Day, DatePart::Year}, true);
        return parts_.Month > 0 && parts_.Count == 1 && NameAndNumber();
    }

    [[nodiscard]] const CivilTime& Date() const { return date_; }

private:
    bool TwoNumbers()
    {
        if (ordering_.TwoAreMonthAndYear() && MonthAndYear(ordering_.MonthBeforeYear()))
            return true;
        return ByOrder({DatePart::Day, DatePart::Month}, false) || MonthAndYear(true) || MonthAndYear(false);
    }

    bool NameAndNumber()
    {
        const ReadFigures number = parts_.Numbers[0];
        const bool inItsOrder = ordering_.MonthBeforeYear() == parts_.MonthFirst;
        if (ordering_.TwoAreMonthAndYear() && inItsOrder && number.Figures > 1 && Take(YearOf(number), parts_.Month, 1))
            return true;
        if (number.Figures <= 2 && Take(thisYear_, parts_.Month, number.Value))
            return true;
        return number.Figures > 1 && Take(YearOf(number), parts_.Month, 1);
    }

    bool MonthAndYear(bool monthFirst)
    {
        const ReadFigures month = parts_.Numbers[monthFirst ? 0 : 1];
        const ReadFigures year = parts_.Numbers[monthFirst ? 1 : 0];
        return month.Figures <= 2 && year.Figures > 1 && Take(YearOf(year), month.Value, 1);
    }

    /// Gives the numbers to the wanted parts in each of the orders until a date comes of it.
    bool ByOrder(std::initializer_list<DatePart> wanted, bool withYear)
    {
        return std::ranges::any_of(ordering_.Orders(), [&](const std::array<DatePart, 3>& order) {
            ReadFigures day{1, 1};
            ReadFigures month{parts_.Month, 1};
            ReadFigures year;
            std::size_t next = 0;
            for (const DatePart part : order) {
                if (std::ranges::find(wanted, part) == wanted.end())
                    continue;
                const ReadFigures number = parts_.Numbers[next++];
                (part == DatePart::Day ? day : part == DatePart::Month ? month : year) = number;
            }
            return day.Figures <= 2 && month.Figures <= 2 &&
                   Take(withYear ? YearOf(year) : thisYear_, month.Value, day.Value);
        });
    }

    bool Take(int year, int month, int day)
    {
        date_ = {year, month, day, 0, 0, 0};
        return IsLegalDate(year, month, day);
    }

    const ReadParts& parts_;
    const DateOrdering& ordering_;
    int thisYear_;
    CivilTime date_;
};

} // namespace

bool ReadDate(std::u16string_view text, const Locale& locale, const DateOrdering& ordering,
              const std::function<double()>& now, double& serial)
{
    ReadParts parts;
    if (!ReadThreeNumbers(text, parts)) {
        parts = {};
        if (!PartReader(text, locale, ordering).Read(parts))
            return false;
    }
    double day = 0.0;
    if (parts.HasDate()) {
        const bool needsYear = parts.Count + (parts.Month > 0 ? 1 : 0) < 3;
        DateResolver resolver(parts, ordering, needsYear ? FieldsOf(now()).Year : noYear);
        if (!resolver.Resolve())
            return false;
        day = SerialOf(resolver.Date());
    } else if (!parts.Time || parts.Weekday) {
        return false;
    }
    serial = SerialWithTime(day, parts.Seconds / 86400.0);
    return true;
}

} // namespace Tessellon
