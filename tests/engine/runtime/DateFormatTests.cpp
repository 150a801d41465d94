#include "Texts.h"

#include "engine/runtime/Calendar.h"
#include "platform/Failure.h"

#include <gtest/gtest.h>

namespace Tessellon {
namespace {

// 3 February 2024, 09:05:07, a Saturday.
const double february = SerialOf({2024, 2, 3, 9, 5, 7});
const double evening = SerialOf({2024, 12, 31, 23, 59, 58});
const double midnight = SerialOf({2024, 3, 15, 0, 0, 0});
const double noon = SerialOf({2024, 3, 15, 12, 0, 0});

struct DateCase {
    double Date;
    std::u16string_view Format;
    std::u16string_view Text;
};

void ExpectDates(const RunTimeFunctions& functions, std::initializer_list<DateCase> cases)
{
    for (const auto& [date, format, text] : cases)
        EXPECT_EQ(Shown(functions.Format(Value::OfDate(date), format)), Shown(text)) << Shown(format);
}

TEST(DateFormat, EachSign_ShowsItsPart)
{
    ExpectDates(At2024(), {{february, u"d", u"3"},
                           {february, u"dd", u"03"},
                           {february, u"ddd", u"Sat"},
                           {february, u"dddd", u"Saturday"},
                           {february, u"ddddd", u"03/02/2024"},
                           {february, u"dddddd", u"Saturday, 3 February 2024"},
                           {february, u"w", u"7"},
                           {february, u"ww", u"5"},
                           {february, u"m", u"2"},
                           {february, u"mm", u"02"},
                           {february, u"mmm", u"Feb"},
                           {february, u"mmmm", u"February"},
                           {february, u"M", u"2"},
                           {february, u"MM", u"02"},
                           {february, u"MMM", u"Feb"},
                           {february, u"MMMM", u"February"},
                           {february, u"oooo", u"February"},
                           {february, u"aaaa dd", u"Saturday 03"},
                           {february, u"q", u"1"},
                           {evening, u"q", u"4"},
                           {february, u"y", u"34"},
                           {evening, u"y", u"366"},
                           {february, u"yy", u"24"},
                           {february, u"yyyy", u"2024"},
                           {february, u"h", u"9"},
                           {february, u"hh", u"09"},
                           {february, u"n", u"5"},
                           {february, u"nn", u"05"},
                           {february, u"s", u"7"},
                           {february, u"ss", u"07"},
                           {february, u"ttttt", u"09:05:07"},
                           {february, u"c", u"03/02/2024 09:05:07"}});
}

TEST(DateFormat, CaseOfTheSigns_DoesNotCount)
{
    ExpectDates(At2024(), {{february, u"DD/MM/YYYY", u"03/02/2024"},
                           {evening, u"HH:NN:SS", u"23:59:58"},
                           {february, u"DDDD", u"Saturday"},
                           {february, u"C", u"03/02/2024 09:05:07"},
                           {february, u"TTTTT", u"09:05:07"},
                           {february, u"Q W WW Y", u"1 7 5 34"}});
}

TEST(DateFormat, MonthSignDirectlyBehindAnHour_IsTheMinute)
{
    ExpectDates(At2024(), {{evening, u"hh:mm", u"23:59"},
                           {february, u"h:m", u"9:5"},
                           {february, u"HH:MM:ss", u"09:05:07"},
                           {february, u"hh \"o'clock\" mm", u"09 o'clock 05"},
                           {february, u"hhmm", u"0905"},
                           {february, u"hh:mm mm", u"09:05 02"},
                           {february, u"hh dd mm", u"09 03 02"},
                           {february, u"mm:ss", u"02:07"},
                           {february, u"hh:mmm", u"09:Feb"},
                           {february, u"hh:nn mm", u"09:05 02"},
                           {february, u"dd/mm/yyyy hh:mm", u"03/02/2024 09:05"}});
}

TEST(DateFormat, HalfOfTheDay_CountsTwelveHoursWhereverItStands)
{
    ExpectDates(At2024(), {{evening, u"hh:nn AM/PM", u"11:59 PM"},
                           {evening, u"HH:nn am/pm", u"11:59 pm"},
                           {evening, u"h A/P", u"11 P"},
                           {evening, u"h a/p", u"11 p"},
                           {evening, u"AMPM h", u"PM 11"},
                           {february, u"h:nn AM/PM", u"9:05 AM"},
                           {midnight, u"h AM/PM", u"12 AM"},
                           {noon, u"h AM/PM", u"12 PM"},
                           {evening, u"h \"AM/PM\"", u"23 AM/PM"},
                           {evening, u"h \\A\\M", u"23 AM"}});
}

TEST(DateFormat, LongRuns_AreReadFromTheLongestSign)
{
    ExpectDates(At2024(), {{february, u"ddddddd", u"Saturday, 3 February 20243"},
                           {february, u"mmmmm", u"February2"},
                           {february, u"yyy", u"2434"},
                           {february, u"hhh", u"099"},
                           {february, u"www", u"57"},
                           {february, u"tttt s", u"tttt 7"},
                           {february, u"tttttt", u"09:05:07t"}});
}

TEST(DateFormat, LiteralsQuotesAndBackslashes_StandAsTheyAre)
{
    ExpectDates(At2024(), {{february, u"dd-mm.yy", u"03-02.24"},
                           {february, u"\"day\" d", u"day 3"},
                           {february, u"\\d d", u"d 3"},
                           {february, u"d\\", u"3"},
                           {february, u"d\"", u"3"},
                           {february, u"d\"dd", u"3dd"},
                           {february, u"d. \u3042\xD800", u"3. \u3042\xD800"},
                           {february, u"yyyy-MM-ddTHH:nn", u"2024-02-03T09:05"},
                           {february, u"d;m", u"3;2"},
                           {february, u"d 0#%", u"3 0#%"}});
    EXPECT_EQ(At2024().Format(Value::OfDate(february), std::u16string_view(u"d\0d", 3)), std::u16string_view(u"3\0"
                                                                                                             "3",
                                                                                                             3));
}

TEST(DateFormat, NamedFormats_HaveTheirPublishedMeaning)
{
    ExpectDates(At2024(), {{february, u"General Date", u"03/02/2024 09:05:07"},
                           {midnight, u"General Date", u"15/03/2024"},
                           {0.5, u"General Date", u"12:00:00"},
                           {0.0, u"General Date", u"00:00:00"},
                           {february, u"Long Date", u"Saturday, 3 February 2024"},
                           {february, u"Medium Date", u"03-Feb-24"},
                           {february, u"Short Date", u"03/02/2024"},
                           {february, u"Long Time", u"09:05:07"},
                           {evening, u"Medium Time", u"11:59 PM"},
                           {evening, u"short time", u"23:59"},
                           {midnight, u"General Number", u"45366"},
                           {midnight, u"Fixed", u"45366.00"}});
}

TEST(DateFormat, OtherLocales_HaveTheirNamesSeparatorsAndOrder)
{
    ExpectDates(At2024(Locale::German()), {{february, u"Long Date", u"Samstag, 3. Februar 2024"},
                                           {february, u"Short Date", u"03.02.2024"},
                                           {february, u"dd/mm/yy", u"03.02.24"},
                                           {midnight, u"ddd d mmm", u"Fr 15 Mrz"},
                                           {midnight, u"mmmm", u"März"},
                                           {february, u"c", u"03.02.2024 09:05:07"}});
    ExpectDates(At2024(Locale::Japanese()), {{february, u"Long Date", u"2024年2月3日"},
                                             {february, u"Short Date", u"2024/02/03"},
                                             {february, u"dddd", u"土曜日"},
                                             {february, u"ddd mmm", u"土 2月"},
                                             {february, u"AMPM h:nn", u"午前 9:05"},
                                             {evening, u"h:nn AM/PM", u"11:59 PM"},
                                             {february, u"ttttt", u"9:05:07"}});
}

TEST(DateFormat, LocaleThatNamesItsOwnFormats_IsNotFollowedForEver)
{
    Locale locale = Locale::English();
    locale.ShortDate = u"ddddd c";
    locale.LongTime = u"ttttt";
    locale.DayNames.fill(u"\xD800ß");
    ExpectDates(
        At2024(locale),
        {{february, u"Short Date", u"ddddd c"}, {february, u"ttttt", u"ttttt"}, {february, u"dddd", u"\xD800ß"}});
}

TEST(DateFormat, Weeks_BeginOnSundayWithTheWeekOfTheFirstOfJanuary)
{
    ExpectDates(At2024(), {{SerialOf({2024, 1, 1, 0, 0, 0}), u"ww", u"1"},
                           {SerialOf({2024, 1, 6, 0, 0, 0}), u"ww", u"1"},
                           {SerialOf({2024, 1, 7, 0, 0, 0}), u"ww", u"2"},
                           {SerialOf({2000, 12, 31, 0, 0, 0}), u"ww", u"54"},
                           {SerialOf({2023, 1, 1, 0, 0, 0}), u"ww w", u"1 1"}});
}

TEST(DateFormat, NumbersInADateFormat_AreSerials)
{
    const RunTimeFunctions functions = At2024();
    EXPECT_EQ(functions.Format(Value::OfInteger(45366), u"dd/MM/yyyy"), u"15/03/2024");
    EXPECT_EQ(functions.Format(Value::OfDouble(0.75), u"hh:nn"), u"18:00");
    EXPECT_EQ(functions.Format(Value::OfDecimal(u"45366.5"), u"c"), u"15/03/2024 12:00:00");
    EXPECT_EQ(functions.Format(Value::OfInteger(1), u"Short Date"), u"31/12/1899");
    EXPECT_EQ(functions.Format(Value::OfDate(45366), u"0.0"), u"45366.0");
}

TEST(DateFormat, YearsOfThreeFigures_AreShownWithFour)
{
    ExpectDates(At2024(), {{-657434, u"dd/MM/yyyy yy", u"01/01/0100 00"}, {2958465, u"yyyy", u"9999"}});
}

TEST(DateFormat, SerialOutsideTheYears_IsFailure5)
{
    const RunTimeFunctions functions = At2024();
    const auto expectFailure = [&](const Value& value, std::u16string_view format) {
        try {
            static_cast<void>(functions.Format(value, format));
            ADD_FAILURE() << Shown(format);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, 5);
            EXPECT_EQ(failure.Source, u"TessellonSheet");
        }
    };
    expectFailure(Value::OfDate(2958466), u"dd/MM/yyyy");
    expectFailure(Value::OfDate(-657435), u"Short Date");
    expectFailure(Value::OfDouble(1e300), u"dd/MM/yyyy");
    expectFailure(Value::OfText(u"20240315"), u"dd/MM/yyyy");
    expectFailure(Value::OfDecimal(std::u16string(1000, u'9')), u"yyyy");
    expectFailure(Value::OfDate(2958466), u"");
}

TEST(DateFormat, ExtremeFormats_AreDone)
{
    const RunTimeFunctions functions = At2024();
    EXPECT_EQ(functions.Format(Value::OfDate(february), std::u16string(100'000, u's')).size(), 100'000U);
    EXPECT_EQ(functions.Format(Value::OfDate(february), u"s" + std::u16string(100'000, u'\\')).size(), 50'001U);
    EXPECT_EQ(functions.Format(Value::OfDate(february), u"s" + std::u16string(100'000, u'"')), u"7");
}

} // namespace
} // namespace Tessellon
