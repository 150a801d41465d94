#include "DateFixture.h"

#include <rapidcheck/gtest.h>

#include <vector>

namespace Tessellon {
namespace {

std::u16string Assembled(std::u16string_view format, double value)
{
    Picker picker(format, value);
    EXPECT_TRUE(picker.Fields.Assemble([](std::u16string_view run) { return u"<" + std::u16string(run) + u">"; }));
    return std::u16string(picker.Fields.DisplayText());
}

TEST(DatePickerCalendar, DayThatIsPicked_KeepsTheTimeOfDay)
{
    Picker picker(u"d", Moment(2024, 3, 1, 10, 30));
    EXPECT_TRUE(picker.Fields.PickDay(Moment(2024, 3, 20)).Changed);
    EXPECT_EQ(picker.Shown(), u"2024-03-20 10:30:00");
    EXPECT_FALSE(picker.Fields.PickDay(Moment(2024, 3, 20, 23)).Changed);
    EXPECT_FALSE(picker.Fields.PickDay(Moment(2024, 3, 21) - 0.1 / 86400).Changed);
    EXPECT_TRUE(picker.Fields.PickDay(Moment(1800, 3, 20, 23)).Changed);
    EXPECT_EQ(picker.Shown(), u"1800-03-20 10:30:00");
}

TEST(DatePickerCalendar, DayThatIsPicked_ComesBackInALongerMonth)
{
    Picker picker(u"M", Moment(2024, 3, 1));
    picker.Fields.PickDay(Moment(2024, 3, 31));
    picker.Pressing(DateKey::Up);
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Day(), u"2024-05-31");
}

TEST(DatePickerCalendar, DateThatIsPicked_BringsItsTimeOfDay)
{
    Picker picker(u"d", Moment(2024, 3, 1, 10, 30));
    EXPECT_TRUE(picker.Fields.PickDate(Moment(2024, 3, 20, 8, 15)).Changed);
    EXPECT_EQ(picker.Shown(), u"2024-03-20 08:15:00");
    EXPECT_FALSE(picker.Fields.PickDate(Moment(2024, 3, 20, 8, 15)).Changed);
}

TEST(DatePickerCalendar, DateOutsideTheYears_IsNotTaken)
{
    Picker picker(u"d", Moment(2024, 3, 1));
    for (const double date : {Moment(100, 1, 1) - 1, Moment(9999, 12, 31) + 1}) {
        EXPECT_TRUE(picker.Fields.PickDate(date).Bell);
        EXPECT_TRUE(picker.Fields.PickDay(date).Bell);
    }
    EXPECT_EQ(picker.Day(), u"2024-03-01");
}

TEST(DatePickerCalendar, KeysGoByDayWeekMonthAndToTheMonthsEnds)
{
    struct {
        CalendarMove Move;
        std::u16string_view Day;
    } const rows[] = {{CalendarMove::PreviousDay, u"2024-02-29"},   {CalendarMove::NextDay, u"2024-03-02"},
                      {CalendarMove::PreviousWeek, u"2024-02-23"},  {CalendarMove::NextWeek, u"2024-03-08"},
                      {CalendarMove::PreviousMonth, u"2024-02-01"}, {CalendarMove::NextMonth, u"2024-04-01"},
                      {CalendarMove::LastOfMonth, u"2024-03-31"}};
    for (const auto& row : rows) {
        Picker picker(u"d", Moment(2024, 3, 1, 10, 30));
        const auto result = picker.Fields.Move(row.Move);
        EXPECT_TRUE(result.Changed);
        EXPECT_FALSE(result.Bell);
        EXPECT_EQ(picker.Day(), row.Day);
        EXPECT_EQ(picker.Time(), u"10:30:00");
    }
    Picker picker(u"d", Moment(2024, 3, 15));
    EXPECT_TRUE(picker.Fields.Move(CalendarMove::FirstOfMonth).Changed);
    EXPECT_EQ(picker.Day(), u"2024-03-01");
    EXPECT_FALSE(picker.Fields.Move(CalendarMove::FirstOfMonth).Changed);
}

TEST(DatePickerCalendar, MonthsRollTheYear_AndKeepTheDayThatWasChosen)
{
    Picker picker(u"d", Moment(2023, 12, 31));
    picker.Fields.Move(CalendarMove::NextMonth);
    EXPECT_EQ(picker.Day(), u"2024-01-31");
    picker.Fields.Move(CalendarMove::NextMonth);
    EXPECT_EQ(picker.Day(), u"2024-02-29");
    picker.Fields.Move(CalendarMove::NextMonth);
    EXPECT_EQ(picker.Day(), u"2024-03-31");
    for (int count = 0; count < 3; ++count)
        picker.Fields.Move(CalendarMove::PreviousMonth);
    EXPECT_EQ(picker.Day(), u"2023-12-31");
}

TEST(DatePickerCalendar, StopsAtTheEndsOfTheYearsWithTheBell)
{
    Picker late(u"d", Moment(9999, 12, 31, 10, 30));
    for (const auto move : {CalendarMove::NextDay, CalendarMove::NextWeek, CalendarMove::NextMonth})
        EXPECT_TRUE(late.Fields.Move(move).Bell);
    EXPECT_EQ(late.Shown(), u"9999-12-31 10:30:00");
    Picker early(u"d", Moment(100, 1, 1, 10, 30));
    for (const auto move : {CalendarMove::PreviousDay, CalendarMove::PreviousWeek, CalendarMove::PreviousMonth})
        EXPECT_TRUE(early.Fields.Move(move).Bell);
    EXPECT_EQ(early.Shown(), u"0100-01-01 10:30:00");
}

TEST(DatePickerCalendar, DigitsTakenOnTheWay_AreAChange_EvenIfTheMoveLeadsBack)
{
    Picker picker(u"d", Moment(2024, 3, 8));
    picker.Typing(u"1");
    EXPECT_TRUE(picker.Fields.Move(CalendarMove::NextWeek).Changed);
    EXPECT_EQ(picker.Day(), u"2024-03-08");
}

TEST(DatePickerCalendar, DigitsThatWait_AreTakenFirst)
{
    Picker picker(u"d", Moment(2024, 3, 15));
    picker.Typing(u"1");
    EXPECT_TRUE(picker.Fields.Move(CalendarMove::NextWeek).Changed);
    EXPECT_EQ(picker.Day(), u"2024-03-08");
}

TEST(DatePickerText, IsPutTogetherFromEveryField)
{
    const double moment = Moment(2024, 3, 5, 14, 7, 9);
    EXPECT_EQ(Assembled(u"d dd M MM MMM MMMM", moment), u"5 05 3 03 Mar March");
    EXPECT_EQ(Assembled(u"ddd dddd", moment), u"Tue Tuesday");
    EXPECT_EQ(Assembled(u"y yy yyy yyyy yyyyy", moment), u"24 24 2024 2024 2024");
    EXPECT_EQ(Assembled(u"h hh H HH m mm s ss", moment), u"2 02 14 14 7 07 9 09");
    EXPECT_EQ(Assembled(u"t tt", moment), u"P PM");
    EXPECT_EQ(Assembled(u"t tt", Moment(2024, 3, 5, 11, 59, 59)), u"A AM");
}

TEST(DatePickerText, HourOfTwelve_IsTwelveAtMidnightAndNoon)
{
    EXPECT_EQ(Assembled(u"h tt H", Moment(2024, 3, 5, 0)), u"12 AM 0");
    EXPECT_EQ(Assembled(u"hh tt HH", Moment(2024, 3, 5, 12)), u"12 PM 12");
}

TEST(DatePickerText, YearsKeepTheirFigures)
{
    EXPECT_EQ(Assembled(u"yy/yyyy", Moment(105, 3, 5)), u"05/0105");
}

TEST(DatePickerText, TextAndQuotedText_StandAsTheyAre)
{
    EXPECT_EQ(Assembled(u"d 'de' M 'o''clock' nn", Moment(2024, 3, 5)), u"5 de 3 o'clock nn");
}

TEST(DatePickerText, NamesAreTheLocales)
{
    const Locale german = Locale::German();
    DateFields fields(german);
    fields.CustomFormat(u"dddd, d. MMMM");
    EXPECT_EQ(fields.Value(Moment(2024, 3, 5)), DateWrite::Changed);
    EXPECT_TRUE(fields.Assemble([](std::u16string_view) { return std::u16string(); }));
    EXPECT_EQ(fields.DisplayText(), u"Dienstag, 5. März");
}

TEST(DatePickerText, AsksForEachCallbackFieldOnceFromTheLeft)
{
    Picker picker(u"XX d X", Moment(2024, 3, 5));
    std::vector<std::u16string> asked;
    EXPECT_TRUE(picker.Fields.Assemble([&](std::u16string_view run) {
        asked.emplace_back(run);
        return std::u16string(u"Q") + static_cast<char16_t>(u'0' + asked.size());
    }));
    EXPECT_EQ(asked, (std::vector<std::u16string>{u"XX", u"X"}));
    EXPECT_EQ(picker.Fields.DisplayText(), u"Q1 5 Q2");
}

TEST(DatePickerText, IsPutTogetherOnlyWhenTold)
{
    Picker picker(u"d", Moment(2024, 3, 5));
    EXPECT_EQ(picker.Fields.DisplayText(), u"");
    EXPECT_TRUE(picker.Fields.Assemble(nullptr));
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Fields.DisplayText(), u"5");
}

TEST(DatePickerText, TellsWhereEachFieldStands)
{
    Picker picker(u"ddd d/X", Moment(2024, 3, 15));
    EXPECT_EQ(picker.Fields.FieldSpan(0).Length, 0u);
    EXPECT_TRUE(picker.Fields.Assemble([](std::u16string_view) { return std::u16string(u"text"); }));
    EXPECT_EQ(picker.Fields.FieldSpan(0).Start, 4u);
    EXPECT_EQ(picker.Fields.FieldSpan(0).Length, 2u);
    EXPECT_EQ(picker.Fields.FieldSpan(1).Start, 7u);
    EXPECT_EQ(picker.Fields.FieldSpan(1).Length, 4u);
    EXPECT_EQ(picker.Fields.FieldSpan(2).Length, 0u);
    EXPECT_EQ(picker.Fields.FieldSpan(-1).Length, 0u);
}

TEST(DatePickerText, CallbackThatWritesTheFormat_HasItsOwnTextStand)
{
    Picker picker(u"X d X", Moment(2024, 3, 5));
    int asked = 0;
    const bool whole = picker.Fields.Assemble([&](std::u16string_view) {
        ++asked;
        picker.Fields.CustomFormat(u"XXX/yyyy");
        EXPECT_TRUE(picker.Fields.Assemble([](std::u16string_view) { return std::u16string(u"inner"); }));
        return std::u16string(u"outer");
    });
    EXPECT_FALSE(whole);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(picker.Fields.DisplayText(), u"inner/2024");
}

TEST(DatePickerText, FailureOfACallback_LeavesTheOldText)
{
    Picker picker(u"d X", Moment(2024, 3, 5));
    EXPECT_TRUE(picker.Fields.Assemble([](std::u16string_view) { return std::u16string(u"a"); }));
    EXPECT_THROW(picker.Fields.Assemble([](std::u16string_view) -> std::u16string { throw 1; }), int);
    EXPECT_EQ(picker.Fields.DisplayText(), u"5 a");
}

RC_GTEST_PROP(DatePickerProperties, ValueIsLegalWhateverTheUserDoes_AndChangedTellsTheTruth, ())
{
    Picker picker(*rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"ddMMyyyyhHmstX'/.: "))),
                  *rc::gen::map(rc::gen::inRange(-657434, 2958466), [](int day) { return static_cast<double>(day); }));
    for (int count = *rc::gen::inRange(0, 30); count > 0; --count) {
        // What waits is a change of its own: taken and told ahead, as the picker does it.
        const int action = *rc::gen::inRange(0, 6);
        const char16_t unit = *rc::gen::element(u'0', u'1', u'2', u'3', u'5', u'9', u'a', u'p', u'/', u'.');
        double before = picker.Fields.Value();
        if (action <= 2 || !picker.Fields.Gathers(unit)) {
            const DateResult taken = picker.Fields.TakePending();
            RC_ASSERT(taken.Changed == (picker.Fields.Value() != before));
            before = picker.Fields.Value();
        }
        DateResult result;
        switch (action) {
        case 0:
            result = picker.Pressing(*rc::gen::element(DateKey::Left, DateKey::Right, DateKey::Up, DateKey::Down,
                                                       DateKey::Home, DateKey::End));
            break;
        case 1: result = picker.Fields.Move(static_cast<CalendarMove>(*rc::gen::inRange(0, 8))); break;
        case 2:
            result = picker.Fields.PickDate(*rc::gen::map(rc::gen::inRange(-66000000, 300000000),
                                                          [](int hundredths) { return hundredths / 100.0; }));
            break;
        default: result = picker.Fields.Type(unit); break;
        }
        const double value = picker.Fields.Value();
        RC_ASSERT(IsLegalSerial(value));
        RC_ASSERT(FieldsOf(value).Year >= 100 && FieldsOf(value).Year <= 9999);
        RC_ASSERT(result.Changed == (value != before));
        RC_ASSERT(picker.Fields.CurrentField() >= -1 &&
                  picker.Fields.CurrentField() < std::max(picker.Fields.FieldCount(), 1));
        RC_ASSERT(picker.Fields.Pending().size() < 4);
    }
}

RC_GTEST_PROP(DatePickerProperties, WhatIsTypedIntoEveryFieldIsTheDateShown, ())
{
    const int year = *rc::gen::inRange(1000, 10000);
    const int month = *rc::gen::inRange(1, 13);
    const int day = *rc::gen::inRange(1, DaysInMonth(year, month) + 1);
    const double typed = Moment(year, month, day, *rc::gen::inRange(0, 24), *rc::gen::inRange(0, 60));
    const auto text = Assembled(u"dd/MM/yyyy HH:mm", typed);
    Picker picker(u"dd/MM/yyyy HH:mm", Moment(2023, 2, 28));
    RC_ASSERT(!picker.Typing(text).Bell);
    picker.Fields.TakePending();
    RC_ASSERT(picker.Fields.Value() == typed);
}

RC_GTEST_PROP(DatePickerProperties, FormatIsReadWithoutLoss, ())
{
    const auto format = *rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"ddddMMyhHmstX'/ n")));
    std::u16string text;
    for (const auto& piece : ReadPickerFormat(format)) {
        RC_ASSERT(!piece.Text.empty());
        text += piece.Text;
    }
    RC_ASSERT(text.size() <= format.size());
    if (format.find(u'\'') == std::u16string::npos)
        RC_ASSERT(text == format);
}

} // namespace
} // namespace Tessellon
