#include "Texts.h"

#include "engine/runtime/Calendar.h"
#include "engine/runtime/FormatSigns.h"
#include "platform/Failure.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace Tessellon {
namespace {

RunTimeFunctions WithOrder(std::u16string_view dateFormat, Locale locale = Locale::English())
{
    RunTimeFunctions functions = At2024(std::move(locale));
    functions.DateOrder(dateFormat);
    return functions;
}

struct ReadCase {
    std::u16string_view Text;
    std::u16string_view Iso; ///< yyyy-mm-dd, with hh:nn:ss where the time is not midnight
};

void ExpectRead(const RunTimeFunctions& functions, std::initializer_list<ReadCase> cases)
{
    for (const auto& [text, iso] : cases) {
        ASSERT_TRUE(functions.IsDate(text)) << Shown(text);
        const double serial = functions.ToDate(text);
        const bool midnight = serial == std::trunc(serial);
        const RunTimeFunctions plain = At2024();
        EXPECT_EQ(Shown(plain.Format(Value::OfDate(serial), midnight ? u"yyyy-mm-dd" : u"yyyy-mm-dd hh:nn:ss")),
                  Shown(iso))
            << Shown(text);
    }
}

void ExpectNoDates(const RunTimeFunctions& functions, std::initializer_list<std::u16string_view> texts)
{
    for (const std::u16string_view text : texts) {
        EXPECT_FALSE(functions.IsDate(text)) << Shown(text);
        try {
            static_cast<void>(functions.ToDate(text));
            ADD_FAILURE() << Shown(text);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, 13);
        }
    }
}

TEST(DateText, ThreeNumbers_AreReadInTheLocalesOrderWhereThatGivesADate)
{
    ExpectRead(At2024(), {{u"15/03/2024", u"2024-03-15"},
                          {u"3/4/2024", u"2024-04-03"},
                          {u"3-4-2024", u"2024-04-03"},
                          {u"3.4.2024", u"2024-04-03"},
                          {u"3,4,2024", u"2024-04-03"},
                          {u"3 4 2024", u"2024-04-03"},
                          {u" 3 / 4 / 2024 ", u"2024-04-03"},
                          {u"01/02/03", u"2003-02-01"},
                          {u"1/2/3", u"2003-02-01"},
                          {u"2024-03-04", u"2024-03-04"},
                          {u"2024/3/4", u"2024-03-04"},
                          {u"12/31/2024", u"2024-12-31"},
                          {u"2024/31/12", u"2024-12-31"},
                          {u"29/02/2024", u"2024-02-29"},
                          {u"01/01/0100", u"0100-01-01"},
                          {u"01/01/100", u"0100-01-01"},
                          {u"31/12/9999", u"9999-12-31"}});
    ExpectRead(At2024(Locale::Japanese()),
               {{u"01/02/03", u"2001-02-03"}, {u"2024/3/4", u"2024-03-04"}, {u"31/12/2024", u"2024-12-31"}});
}

TEST(DateText, SheetsOrder_ComesAheadOfTheLocales)
{
    ExpectRead(WithOrder(u"MM/dd/yyyy"), {{u"03/04/2024", u"2024-03-04"},
                                          {u"13/04/2024", u"2024-04-13"},
                                          {u"03/04", u"2024-03-04"},
                                          {u"2024-03-04", u"2024-03-04"}});
    ExpectRead(WithOrder(u"yy-MM-dd"), {{u"03-04-05", u"2003-04-05"}, {u"03/04/2024", u"2024-04-03"}});
    ExpectRead(WithOrder(u"yyyy/dd/MM"), {{u"2024/03/04", u"2024-04-03"}});
    ExpectRead(WithOrder(u"dd/MM/yyyy", Locale::Japanese()), {{u"03/04/05", u"2005-04-03"}});
    ExpectRead(WithOrder(u"Short Date", Locale::Japanese()), {{u"03/04/05", u"2003-04-05"}});
    ExpectRead(WithOrder(u"c"), {{u"03/04/05", u"2005-04-03"}});
    ExpectRead(WithOrder(u""), {{u"03/04/05", u"2005-04-03"}});
    ExpectRead(WithOrder(u"hh:nn"), {{u"03/04/05", u"2005-04-03"}});
}

TEST(DateText, QuotedLettersWeekdaysAndMinutesOfTheFormat_AreNoDayAndNoMonth)
{
    for (const std::u16string_view format :
         {u"ddd MM/dd/yyyy", u"dddd, MMMM d, yyyy", u"\"d\" MM/dd/yyyy", u"\\d MM/dd/yyyy", u"'day' MM/dd/yyyy",
          u"hh:mm MM/dd/yyyy", u"n MM/dd/yyyy", u"\"dd/\"MM/dd/yyyy"})
        ExpectRead(WithOrder(format), {{u"03/04/2024", u"2024-03-04"}});
    for (const std::u16string_view format : {u"hh:mm dd/MM/yyyy", u"\"M\" dd/MM/yyyy", u"h \"m\" m dd/MM/yyyy"})
        ExpectRead(WithOrder(format, Locale::Japanese()), {{u"03/04/2024", u"2024-04-03"}});
    ExpectRead(WithOrder(u"ddd MM/dd/yyyy"), {{u"Mon 03/04/2024", u"2024-03-04"}});
}

TEST(DateText, FormatWithoutYear_OrdersDayAndMonthAlone)
{
    ExpectRead(WithOrder(u"MM/dd"),
               {{u"03/04", u"2024-03-04"}, {u"03/04/2023", u"2023-03-04"}, {u"2023/03/04", u"2023-03-04"}});
    ExpectRead(WithOrder(u"dd/MM", Locale::Japanese()), {{u"03/04", u"2024-04-03"}, {u"23/03/04", u"2023-04-03"}});
}

TEST(DateText, FormatWithoutDay_MakesTwoPartsMonthAndYear)
{
    ExpectRead(WithOrder(u"MM/yyyy"), {{u"03/2024", u"2024-03-01"},
                                       {u"03/04", u"2004-03-01"},
                                       {u"Mar 15", u"2015-03-01"},
                                       {u"03/04/2024", u"2024-04-03"}});
    ExpectRead(WithOrder(u"yy/MM"), {{u"03/04", u"2003-04-01"}, {u"2024/03", u"2024-03-01"}});
    ExpectRead(WithOrder(u"MMM yy"), {{u"Mar 15", u"2015-03-01"}, {u"15 Mar", u"2024-03-15"}});
    ExpectRead(WithOrder(u"yy MMM"), {{u"15 Mar", u"2015-03-01"}, {u"2015 Mar", u"2015-03-01"}});
}

TEST(DateText, TwoNumbers_AreDayAndMonthOfTheClocksYearElseMonthAndYear)
{
    ExpectRead(At2024(), {{u"3/4", u"2024-04-03"},
                          {u"3-4", u"2024-04-03"},
                          {u"3 4", u"2024-04-03"},
                          {u"12/31", u"2024-12-31"},
                          {u"29/2", u"2024-02-29"},
                          {u"3/2023", u"2023-03-01"},
                          {u"2023/3", u"2023-03-01"},
                          {u"1/45", u"1945-01-01"}});
    RunTimeFunctions in2023 = At2024();
    in2023.Clock([] { return SerialOf({2023, 6, 1, 0, 0, 0}); });
    ExpectRead(in2023, {{u"3/4", u"2023-04-03"}, {u"3 April", u"2023-04-03"}, {u"29 Feb", u"2029-02-01"}});
    ExpectNoDates(in2023, {u"45/46", u"13/13/13/13", u"40/50"});
}

TEST(DateText, PointsAndCommas_PartThreeNumbersNeverTwo)
{
    for (const auto& functions : {At2024(), At2024(Locale::German()), WithOrder(u"dd.MM", Locale::German())})
        ExpectNoDates(functions, {u"3.4", u"3,4", u"3.2024", u"03. 04", u"1,5"});
    ExpectRead(At2024(Locale::German()), {{u"3.4.24", u"2024-04-03"}, {u"15. März", u"2024-03-15"}});
    ExpectRead(At2024(), {{u"March 15, 2024", u"2024-03-15"}, {u"15, March", u"2024-03-15"}});
}

TEST(DateText, MonthNames_MayStandAnywhere)
{
    ExpectRead(At2024(), {{u"15 March 2024", u"2024-03-15"},
                          {u"15 mar 2024", u"2024-03-15"},
                          {u"MARCH 15, 2024", u"2024-03-15"},
                          {u"2024 March 15", u"2024-03-15"},
                          {u"15-Mar-24", u"2024-03-15"},
                          {u"15Mar2024", u"2024-03-15"},
                          {u"15 March", u"2024-03-15"},
                          {u"Mar 15", u"2024-03-15"},
                          {u"March 2023", u"2023-03-01"},
                          {u"March 45", u"1945-03-01"},
                          {u"03 Mar 04", u"2004-03-03"},
                          {u"Friday, 15 March 2024", u"2024-03-15"},
                          {u"Tue 15 May 2024", u"2024-05-15"}});
    ExpectRead(WithOrder(u"yy MMM dd"), {{u"03 Mar 04", u"2003-03-04"}});
    ExpectRead(At2024(Locale::German()), {{u"Freitag, 15. März 2024", u"2024-03-15"},
                                          {u"15. MÄRZ 2024", u"2024-03-15"},
                                          {u"Fr 15 Mrz 2024", u"2024-03-15"}});
    ExpectRead(At2024(Locale::Japanese()), {{u"2024年3月15日", u"2024-03-15"},
                                            {u"2024年12月1日", u"2024-12-01"},
                                            {u"2024年12月1日 日曜日", u"2024-12-01"},
                                            {u"3月15日", u"2024-03-15"}});
    ExpectNoDates(At2024(), {u"March", u"Marc 15", u"Marches 15", u"Mar 15 Apr", u"Friday", u"32 March 2024 1",
                             u"März 15", u"15 Mar 2024 1"});
    ExpectNoDates(At2024(Locale::German()), {u"15 March 2024", u"15 Marz 2024"});
}

TEST(DateText, NamesWithSpecialLetters_AreComparedUnitByUnit)
{
    Locale locale = Locale::English();
    locale.MonthNames[0] = u"Straße";
    locale.MonthNames[1] = u"İlk";
    locale.MonthNames[2] = u"ﬁn";
    locale.MonthNames[3] = u"さくら";
    locale.MonthNames[4] = u"\xD800x";
    locale.MonthNames[5] = u"";
    const RunTimeFunctions functions = At2024(locale);
    ExpectRead(functions, {{u"3 STRAßE 2024", u"2024-01-03"},
                           {u"3 İLK 2024", u"2024-02-03"},
                           {u"3 ﬁN 2024", u"2024-03-03"},
                           {u"3さくら2024", u"2024-04-03"},
                           {u"3 \xD800X 2024", u"2024-05-03"}});
    ExpectNoDates(functions, {u"3 STRASSE 2024", u"3 ilk 2024", u"3 fin 2024", u"3 \xD800 2024"});
}

TEST(DateText, Years_AreOfTwoOrFourFigures)
{
    ExpectRead(At2024(), {{u"1/1/00", u"2000-01-01"},
                          {u"1/1/29", u"2029-01-01"},
                          {u"1/1/30", u"1930-01-01"},
                          {u"1/1/99", u"1999-01-01"},
                          {u"1/1/999", u"0999-01-01"}});
    ExpectNoDates(At2024(), {u"1/1/099", u"1/1/0099", u"1/1/10000", u"001/1/2024", u"1/001/2024"});
}

TEST(DateText, Times_MayStandAloneOrBeforeOrBehindTheDate)
{
    ExpectRead(At2024(), {{u"10:30", u"1899-12-30 10:30:00"},
                          {u"10:30:15", u"1899-12-30 10:30:15"},
                          {u"9:5", u"1899-12-30 09:05:00"},
                          {u"10 PM", u"1899-12-30 22:00:00"},
                          {u"10:30 pm", u"1899-12-30 22:30:00"},
                          {u"10:30p", u"1899-12-30 22:30:00"},
                          {u"10:30 A", u"1899-12-30 10:30:00"},
                          {u"12:15 am", u"1899-12-30 00:15:00"},
                          {u"12:15 PM", u"1899-12-30 12:15:00"},
                          {u"15/03/2024 10:30", u"2024-03-15 10:30:00"},
                          {u"15/03/2024   10:30 PM", u"2024-03-15 22:30:00"},
                          {u"15/03/2024 5 PM", u"2024-03-15 17:00:00"},
                          {u"10:30 15/03/2024", u"2024-03-15 10:30:00"},
                          {u"10:30 PM 15 March 2024", u"2024-03-15 22:30:00"},
                          {u"2024-03-15T10:30:00", u"2024-03-15 10:30:00"},
                          {u"2024-03-15T10:30", u"2024-03-15 10:30:00"},
                          {u"March 15 10:30", u"2024-03-15 10:30:00"},
                          {u"15/03/2024 00:00:00", u"2024-03-15"},
                          {u"29/12/1899 06:00", u"1899-12-29 06:00:00"}});
    ExpectRead(At2024(Locale::Japanese()),
               {{u"2024/03/15 10:30 午後", u"2024-03-15 22:30:00"}, {u"2024年3月15日 10:30", u"2024-03-15 10:30:00"}});
    ExpectNoDates(At2024(), {u"24:00",
                             u"10:60",
                             u"10:30:60",
                             u"10:",
                             u":30",
                             u"10:30:",
                             u"10:30:15:20",
                             u"100:30",
                             u"13:00 PM",
                             u"10:30 XM",
                             u"10:30 10:30",
                             u"15/03/2024,10:30",
                             u"15/03/2024, 10:30",
                             u"15/03/2024-10:30",
                             u"15/03/202410:30",
                             u"15/03/2024T",
                             u"2024-03-15 T10:30",
                             u"15/03 10:30 2024",
                             u"10:30,15/03/2024",
                             u"T10:30",
                             u"10",
                             u"Friday 10:30"});
}

TEST(DateText, SeparatorInFrontBehindOrTwice_IsNoDate)
{
    ExpectNoDates(At2024(), {u"/15/03/2024", u"15/03/2024/", u"15//03/2024", u"15/03/-2024", u"-1/2/2024", u"15/03/",
                             u"15, , March", u"March,", u"1/2/2024.", u"15 / / 3"});
}

TEST(DateText, WhatIsNoDate_IsRefused)
{
    ExpectNoDates(At2024(), {u"",           u" ",          u"x",          u"12",           u"45366",      u"1.5",
                             u"31/04/2024", u"29/02/2023", u"30/02/2024", u"32/01/2024",   u"0/1/2024",   u"1/0/2024",
                             u"13/13/2024", u"1/2/3/4",    u"1/2/2024x",  u"15/03/2024 x", u"\t1/2/2024", u"１/２/2024",
                             u"1/2/\xD800", u"\xD800",     u"20240315",   u"(1/2/2024)",   u"$5",         u"1:2/3"});
    ExpectNoDates(At2024(), {std::u16string_view(u"1/2/2024\0", 9), std::u16string_view(u"\0", 1)});
}

TEST(DateText, WordsOfTheSheetsFormat_MayStandBetweenTheParts)
{
    ExpectRead(WithOrder(u"d \"de\" MMMM \"de\" yyyy"), {{u"15 de March de 2024", u"2024-03-15"}});
    ExpectRead(WithOrder(u"yyyy年MM月dd日"), {{u"2024年03月15日", u"2024-03-15"}});
    ExpectNoDates(At2024(), {u"15 de March de 2024"});
}

TEST(DateText, TextsOfExtremeLength_AreRefusedOrRead)
{
    const RunTimeFunctions functions = At2024();
    const std::u16string blanks(100'000, u' ');
    EXPECT_TRUE(functions.IsDate(blanks + u"15/" + blanks + u"3" + blanks + u"/2024" + blanks));
    for (const char16_t unit : std::u16string_view(u"1/ :aTdß\xD800.\u65E5"))
        EXPECT_FALSE(functions.IsDate(std::u16string(100'000, unit))) << Shown(std::u16string(1, unit));
    EXPECT_FALSE(At2024(Locale::Japanese()).IsDate(std::u16string(100'000, u'日')));
    RunTimeFunctions odd = At2024();
    odd.DateOrder(std::u16string(100'000, u'"'));
    odd.DateOrder(std::u16string(100'000, u'\''));
    odd.DateOrder(std::u16string(100'000, u'\\'));
    odd.DateOrder(std::u16string(100'000, u'x'));
    EXPECT_TRUE(odd.IsDate(u"15/03/2024"));
}

RC_GTEST_PROP(DateText, WhatTheSheetWrites_IsReadBackAsTheSameMoment, ())
{
    const auto format = *rc::gen::elementOf(std::vector<std::u16string>{
        u"dd/MM/yyyy", u"MM/dd/yyyy", u"yyyy-MM-dd", u"yyyy/dd/MM", u"d.M.yyyy", u"d MMM yyyy", u"MMMM d, yyyy",
        u"dddd, d MMMM yyyy", u"ddd MM-dd-yyyy", u"yyyy MMM d", u"Short Date", u"Long Date", u"dddddd",
        u"yyyy\"年\"MM\"月\"dd\"日\"", u"M d yyyy", u"yyyy,M,d"});
    const auto time = *rc::gen::elementOf(
        std::vector<std::u16string>{u"", u" hh:nn:ss", u" h:m:s am/pm", u" HH:mm:ss A/P", u" hh:nn:ss AMPM"});
    const int day = *rc::gen::inRange(-657434, 2958466);
    const int second = time.empty() || IsNamedDate(NamedFormatOf(format)) ? 0 : *rc::gen::inRange(0, 86400);
    const double serial = SerialWithTime(day, second / 86400.0);
    const bool named = IsNamedDate(NamedFormatOf(format));
    for (const Locale& locale : {Locale::English(), Locale::German(), Locale::Japanese()}) {
        const RunTimeFunctions functions = WithOrder(format, locale);
        const std::u16string text = functions.Format(Value::OfDate(serial), named ? format : format + time);
        RC_ASSERT(functions.IsDate(text));
        RC_ASSERT(functions.ToDate(text) == serial);
    }
}

RC_GTEST_PROP(DateText, TwoFigureYears_AreReadBackWithinTheirCentury, ())
{
    const int day = *rc::gen::inRange(static_cast<int>(SerialOf({1930, 1, 1, 0, 0, 0})),
                                      static_cast<int>(SerialOf({2030, 1, 1, 0, 0, 0})));
    for (const std::u16string_view format : {u"dd/MM/yy", u"MM-dd-yy", u"yy.MM.dd", u"dd MMM yy", u"yy MMM dd"}) {
        const RunTimeFunctions functions = WithOrder(format);
        RC_ASSERT(functions.ToDate(functions.Format(Value::OfDate(day), format)) == day);
    }
}

RC_GTEST_PROP(DateText, WhatIsDate_Converts, ())
{
    const int count = *rc::gen::inRange(1, 7);
    const auto pieces = *rc::gen::container<std::vector<std::u16string>>(
        count, rc::gen::elementOf(std::vector<std::u16string>{u"15", u"3", u"24", u"2024", u"/", u"-", u".", u",", u" ",
                                                              u" ", u"March", u"Fri", u"10:30", u"PM", u"T"}));
    std::u16string text;
    for (const std::u16string& piece : pieces)
        text += piece;
    const RunTimeFunctions functions = At2024();
    RC_CLASSIFY(functions.IsDate(text));
    if (functions.IsDate(text))
        RC_ASSERT(IsLegalSerial(functions.ToDate(text)));
    else
        RC_ASSERT_THROWS_AS(static_cast<void>(functions.ToDate(text)), Failure);
}

} // namespace
} // namespace Tessellon
