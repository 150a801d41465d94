#include "engine/runtime/DateFormat.h"

#include "engine/runtime/Calendar.h"
#include "engine/runtime/CaseMap.h"
#include "engine/runtime/DateTokens.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace Tessellon {

namespace {

bool CountsTwelveHours(std::u16string_view format)
{
    if (std::ranges::none_of(format, [](char16_t unit) { return UpperCase(unit) == u'A'; }))
        return false;
    DateTokens tokens(format);
    for (DateToken token; tokens.Next(token);) {
        if (token.Kind >= DateSign::HalfUpper)
            return true;
    }
    return false;
}

/// Writes one date. The locale's own formats are written inside it, and in them no other is looked up again.
class DateWriter {
public:
    DateWriter(std::u16string& out, const Locale& locale, const CivilTime& fields)
        : out_(out)
        , locale_(locale)
        , fields_(fields)
    {
    }

    void Write(std::u16string_view format, bool inner = false)
    {
        const bool twelveHours = CountsTwelveHours(format);
        DateTokens tokens(format);
        for (DateToken token; tokens.Next(token);)
            Write(token, twelveHours, inner);
    }
    void Write(const DateToken& token, bool twelveHours, bool inner);
    void Finish()
    {
        out_.append(near_.data(), size_);
        size_ = 0;
    }

    void WriteGeneral()
    {
        const bool date = fields_.Year != 1899 || fields_.Month != 12 || fields_.Day != 30;
        const bool time = fields_.Hour != 0 || fields_.Minute != 0 || fields_.Second != 0;
        if (date)
            Write(locale_.ShortDate, true);
        if (date && time)
            Put(u' ');
        if (time || !date)
            Write(locale_.LongTime, true);
    }

private:
    void WriteWhole(const DateToken& token, std::u16string_view format, bool inner)
    {
        if (inner)
            Put(token.Text);
        else
            Write(format, true);
    }
    void Put(char16_t unit)
    {
        if (size_ == near_.size())
            Finish();
        near_[size_++] = unit;
    }
    void Put(std::u16string_view text)
    {
        for (const char16_t unit : text)
            Put(unit);
    }
    void PutFigure(int figure) { Put(static_cast<char16_t>(u'0' + figure % 10)); }
    void WriteNumber(int number, int figures)
    {
        if (number >= 1000 || figures > 3)
            PutFigure(number / 1000);
        if (number >= 100 || figures > 2)
            PutFigure(number / 100);
        if (number >= 10 || figures > 1)
            PutFigure(number / 10);
        PutFigure(number);
    }
    void WriteHour(bool twelveHours, int figures)
    {
        const int hour = twelveHours ? (fields_.Hour + 11) % 12 + 1 : fields_.Hour;
        WriteNumber(hour, figures);
    }
    [[nodiscard]] const std::u16string& OfMonth(const std::array<std::u16string, 12>& names) const
    {
        return names[static_cast<std::size_t>(fields_.Month - 1)];
    }
    [[nodiscard]] const std::u16string& OfWeekday(const std::array<std::u16string, 7>& names) const
    {
        return names[static_cast<std::size_t>(WeekdayOf(fields_) - 1)];
    }
    [[nodiscard]] int Week() const
    {
        const CivilTime newYear{fields_.Year, 1, 1, 0, 0, 0};
        return (DayOfYear(fields_) + WeekdayOf(newYear) - 2) / 7 + 1;
    }

    std::u16string& out_;
    const Locale& locale_;
    const CivilTime fields_;
    std::array<char16_t, 64> near_; ///< What goes to the end of the text together.
    std::size_t size_ = 0;
};

void DateWriter::Write(const DateToken& token, bool twelveHours, bool inner)
{
    const bool morning = fields_.Hour < 12;
    switch (token.Kind) {
    case DateSign::Literal: Put(token.Text); break;
    case DateSign::DateSeparator: Put(locale_.DateSeparator); break;
    case DateSign::TimeSeparator: Put(locale_.TimeSeparator); break;
    case DateSign::General:
        if (inner)
            Put(token.Text);
        else
            WriteGeneral();
        break;
    case DateSign::Day: WriteNumber(fields_.Day, 1); break;
    case DateSign::DayTwo: WriteNumber(fields_.Day, 2); break;
    case DateSign::DayNameShort: Put(OfWeekday(locale_.DayAbbreviations)); break;
    case DateSign::DayName: Put(OfWeekday(locale_.DayNames)); break;
    case DateSign::ShortDate: WriteWhole(token, locale_.ShortDate, inner); break;
    case DateSign::LongDate: WriteWhole(token, locale_.LongDate, inner); break;
    case DateSign::Weekday: WriteNumber(WeekdayOf(fields_), 1); break;
    case DateSign::Week: WriteNumber(Week(), 1); break;
    case DateSign::Month: WriteNumber(fields_.Month, 1); break;
    case DateSign::MonthTwo: WriteNumber(fields_.Month, 2); break;
    case DateSign::MonthNameShort: Put(OfMonth(locale_.MonthAbbreviations)); break;
    case DateSign::MonthName: Put(OfMonth(locale_.MonthNames)); break;
    case DateSign::Quarter: WriteNumber((fields_.Month + 2) / 3, 1); break;
    case DateSign::DayOfYear: WriteNumber(DayOfYear(fields_), 1); break;
    case DateSign::YearTwo: WriteNumber(fields_.Year % 100, 2); break;
    case DateSign::Year: WriteNumber(fields_.Year, 4); break;
    case DateSign::Hour: WriteHour(twelveHours, 1); break;
    case DateSign::HourTwo: WriteHour(twelveHours, 2); break;
    case DateSign::Minute: WriteNumber(fields_.Minute, 1); break;
    case DateSign::MinuteTwo: WriteNumber(fields_.Minute, 2); break;
    case DateSign::Second: WriteNumber(fields_.Second, 1); break;
    case DateSign::SecondTwo: WriteNumber(fields_.Second, 2); break;
    case DateSign::LongTime: WriteWhole(token, locale_.LongTime, inner); break;
    case DateSign::HalfUpper: Put(morning ? u"AM" : u"PM"); break;
    case DateSign::HalfLower: Put(morning ? u"am" : u"pm"); break;
    case DateSign::HalfUpperShort: Put(morning ? u'A' : u'P'); break;
    case DateSign::HalfLowerShort: Put(morning ? u'a' : u'p'); break;
    case DateSign::HalfOfLocale: Put(morning ? locale_.Am : locale_.Pm); break;
    }
}

} // namespace

DatePattern::DatePattern(std::u16string_view format)
    : format_(format)
    , hasDateSigns_(NamedFormatOf(format) == NamedFormat::None && Tessellon::HasDateSigns(format))
    , twelveHours_(CountsTwelveHours(format))
{
    DateTokens tokens(format);
    for (DateToken token; tokens.Next(token);)
        pieces_.push_back({token.Kind, static_cast<std::size_t>(token.Text.data() - format.data()), token.Text.size()});
}

void DatePattern::Append(std::u16string& out, double serial, const Locale& locale) const
{
    DateWriter writer(out, locale, FieldsOf(serial));
    for (const Piece& piece : pieces_)
        writer.Write({piece.Kind, Format().substr(piece.Begin, piece.Size)}, twelveHours_, false);
    writer.Finish();
}

void AppendNamedDate(std::u16string& out, double serial, NamedFormat format, const Locale& locale)
{
    DateWriter writer(out, locale, FieldsOf(serial));
    switch (format) {
    case NamedFormat::LongDate: writer.Write(locale.LongDate, true); break;
    case NamedFormat::MediumDate: writer.Write(u"dd-mmm-yy"); break;
    case NamedFormat::ShortDate: writer.Write(locale.ShortDate, true); break;
    case NamedFormat::LongTime: writer.Write(locale.LongTime, true); break;
    case NamedFormat::MediumTime: writer.Write(u"hh:nn AMPM"); break;
    case NamedFormat::ShortTime: writer.Write(locale.ShortTime, true); break;
    default: writer.WriteGeneral(); break;
    }
    writer.Finish();
}

void AppendGeneralDate(std::u16string& out, double serial, const Locale& locale)
{
    DateWriter writer(out, locale, FieldsOf(serial));
    writer.WriteGeneral();
    writer.Finish();
}

} // namespace Tessellon
