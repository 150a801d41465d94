#include "qt/QtLocale.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace Tessellon {

namespace {

char16_t UnitOf(const QString& text, char16_t otherwise)
{
    return text.isEmpty() ? otherwise : text.front().unicode();
}

/// What stands between the parts of a date or time, outside of quotes.
char16_t SeparatorOf(const QString& format, char16_t otherwise)
{
    static const QRegularExpression parts(QStringLiteral("[A-Za-z]+\\s*([^A-Za-z'\\s])"));
    const QRegularExpressionMatch match = parts.match(format);
    return match.hasMatch() ? UnitOf(match.captured(1), otherwise) : otherwise;
}

std::array<DatePart, 3> OrderOf(const QString& format)
{
    struct Place {
        qsizetype At;
        DatePart Part;
    };
    std::array<Place, 3> places{Place{format.indexOf(u'd'), DatePart::Day},
                                Place{format.indexOf(u'M'), DatePart::Month},
                                Place{format.indexOf(u'y'), DatePart::Year}};
    std::ranges::sort(places, {}, &Place::At);
    return {places[0].Part, places[1].Part, places[2].Part};
}

/// A format of Qt in the language of `Format`: minutes are n, the half of the day AM/PM, quotes double, and a time zone
/// it does not know.
std::u16string FormatFrom(const QString& format, bool isTime)
{
    std::u16string made;
    bool quoted = false;
    for (qsizetype at = 0; at < format.size(); ++at) {
        const char16_t sign = format[at].unicode();
        if (sign == u'\'') {
            quoted = !quoted;
            made += u'"';
        } else if (quoted || !isTime) {
            made += sign;
        } else if (sign == u'm') {
            made += u'n';
        } else if (sign == u'a' || sign == u'A') {
            made += u"AM/PM";
            at += at + 1 < format.size() && format[at + 1].toLower() == u'p' ? 1 : 0;
        } else if (sign != u't') {
            // Qt parts the half of the day by a blank that does not break.
            made += sign == u'\u202F' || sign == u'\u00A0' ? u' ' : sign;
        }
    }
    while (!made.empty() && made.back() == u' ')
        made.pop_back();
    return made;
}

} // namespace

Locale LocaleFrom(const QLocale& locale)
{
    constexpr int sunday = 7;
    Locale made;
    const QString shortDate = locale.dateFormat(QLocale::ShortFormat);
    const QString shortTime = locale.timeFormat(QLocale::ShortFormat);
    made.DecimalSeparator = UnitOf(locale.decimalPoint(), u'.');
    made.GroupSeparator = UnitOf(locale.groupSeparator(), u',');
    made.DateSeparator = SeparatorOf(shortDate, u'/');
    made.TimeSeparator = SeparatorOf(shortTime, u':');
    made.DateOrder = OrderOf(shortDate);
    for (std::size_t month = 0; month < made.MonthNames.size(); ++month) {
        const int number = static_cast<int>(month) + 1;
        made.MonthNames[month] = locale.standaloneMonthName(number, QLocale::LongFormat).toStdU16String();
        made.MonthAbbreviations[month] = locale.standaloneMonthName(number, QLocale::ShortFormat).toStdU16String();
    }
    for (std::size_t day = 0; day < made.DayNames.size(); ++day) {
        const int number = day == 0 ? sunday : static_cast<int>(day);
        made.DayNames[day] = locale.standaloneDayName(number, QLocale::LongFormat).toStdU16String();
        made.DayAbbreviations[day] = locale.standaloneDayName(number, QLocale::ShortFormat).toStdU16String();
    }
    made.FirstDayOfWeek = locale.firstDayOfWeek() % sunday + 1;
    made.Am = locale.amText().toStdU16String();
    made.Pm = locale.pmText().toStdU16String();
    made.CurrencySign = locale.currencySymbol().toStdU16String();
    made.CurrencyInFront = locale.toCurrencyString(1).indexOf(u'1') > 0;
    made.ShortDate = FormatFrom(shortDate, false);
    made.LongDate = FormatFrom(locale.dateFormat(QLocale::LongFormat), false);
    made.ShortTime = FormatFrom(shortTime, true);
    made.LongTime = FormatFrom(locale.timeFormat(QLocale::LongFormat), true);
    return made;
}

} // namespace Tessellon
