#include "engine/runtime/Locale.h"

namespace Tessellon {

Locale Locale::English()
{
    Locale locale;
    locale.MonthNames = {u"January", u"February", u"March",     u"April",   u"May",      u"June",
                         u"July",    u"August",   u"September", u"October", u"November", u"December"};
    locale.MonthAbbreviations = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                 u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
    locale.DayNames = {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
    locale.DayAbbreviations = {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
    locale.Am = u"AM";
    locale.Pm = u"PM";
    locale.CurrencySign = u"$";
    locale.ShortDate = u"dd/MM/yyyy";
    locale.LongDate = u"dddd, d MMMM yyyy";
    locale.ShortTime = u"HH:nn";
    locale.LongTime = u"HH:nn:ss";
    return locale;
}

Locale Locale::German()
{
    Locale locale;
    locale.DecimalSeparator = u',';
    locale.GroupSeparator = u'.';
    locale.DateSeparator = u'.';
    locale.MonthNames = {u"Januar", u"Februar", u"März",      u"April",   u"Mai",      u"Juni",
                         u"Juli",   u"August",  u"September", u"Oktober", u"November", u"Dezember"};
    locale.MonthAbbreviations = {u"Jan", u"Feb", u"Mrz", u"Apr", u"Mai", u"Jun",
                                 u"Jul", u"Aug", u"Sep", u"Okt", u"Nov", u"Dez"};
    locale.DayNames = {u"Sonntag", u"Montag", u"Dienstag", u"Mittwoch", u"Donnerstag", u"Freitag", u"Samstag"};
    locale.DayAbbreviations = {u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"};
    locale.FirstDayOfWeek = 2;
    locale.Am = u"AM";
    locale.Pm = u"PM";
    locale.CurrencySign = u"€";
    locale.CurrencyInFront = false;
    locale.ShortDate = u"dd/MM/yyyy";
    locale.LongDate = u"dddd, d. MMMM yyyy";
    locale.ShortTime = u"HH:nn";
    locale.LongTime = u"HH:nn:ss";
    return locale;
}

Locale Locale::Japanese()
{
    Locale locale;
    locale.DateOrder = {DatePart::Year, DatePart::Month, DatePart::Day};
    locale.MonthNames = {u"1月", u"2月", u"3月", u"4月",  u"5月",  u"6月",
                         u"7月", u"8月", u"9月", u"10月", u"11月", u"12月"};
    locale.MonthAbbreviations = locale.MonthNames;
    locale.DayNames = {u"日曜日", u"月曜日", u"火曜日", u"水曜日", u"木曜日", u"金曜日", u"土曜日"};
    locale.DayAbbreviations = {u"日", u"月", u"火", u"水", u"木", u"金", u"土"};
    locale.Am = u"午前";
    locale.Pm = u"午後";
    locale.CurrencySign = u"¥";
    locale.ShortDate = u"yyyy/MM/dd";
    locale.LongDate = uR"(yyyy"年"M"月"d"日")";
    locale.ShortTime = u"H:nn";
    locale.LongTime = u"H:nn:ss";
    return locale;
}

} // namespace Tessellon
