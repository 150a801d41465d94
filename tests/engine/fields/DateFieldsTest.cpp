#include "DateFixture.h"

#include <cmath>
#include <limits>

namespace Tessellon {
namespace {

TEST(DatePicker, ValueByCode_IsRefusedOutsideTheYears100To9999)
{
    Picker picker(u"d", Moment(2024, 2, 15));
    picker.Typing(u"1");
    for (const double date :
         {Moment(100, 1, 1) - 1, Moment(9999, 12, 31) + 1, std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_EQ(picker.Fields.Value(date), DateWrite::OutOfRange);
    EXPECT_EQ(picker.Day(), u"2024-02-15");
    EXPECT_EQ(picker.Fields.Value(Moment(100, 1, 1)), DateWrite::Changed);
    EXPECT_EQ(picker.Fields.Value(Moment(9999, 12, 31)), DateWrite::Changed);
    EXPECT_EQ(picker.Fields.Value(Moment(9999, 12, 31)), DateWrite::Same);
}

TEST(DatePicker, ValueByCode_IsKeptExactly)
{
    Picker picker(u"d", 45000.123456789);
    EXPECT_EQ(picker.Fields.Value(), 45000.123456789);
}

TEST(DatePicker, FirstFieldIsCurrentWhenItGetsTheFocus)
{
    Picker picker(u"ddd d/M/y", Moment(2024, 2, 15));
    picker.Pressing(DateKey::End);
    EXPECT_EQ(picker.Fields.CurrentField(), 2);
    picker.Fields.TakeFocus();
    EXPECT_EQ(picker.Fields.CurrentField(), 0);
    EXPECT_EQ(picker.Fields.FieldRun(0), u"d");
}

TEST(DatePicker, LeftRightHomeAndEnd_GoFromFieldToFieldWithoutWrapping)
{
    Picker picker(u"d/M/y", Moment(2024, 2, 15));
    for (const auto& [key, field] : {std::pair{DateKey::Left, 0},
                                     {DateKey::Right, 1},
                                     {DateKey::Right, 2},
                                     {DateKey::Right, 2},
                                     {DateKey::Left, 1},
                                     {DateKey::Home, 0},
                                     {DateKey::End, 2}}) {
        const auto result = picker.Pressing(key);
        EXPECT_FALSE(result.Changed || result.Bell || result.ForCallback);
        EXPECT_EQ(picker.Fields.CurrentField(), field);
    }
    EXPECT_EQ(picker.Day(), u"2024-02-15");
}

TEST(DatePicker, FormatWithoutFields_HasNoCurrentField)
{
    Picker picker(u"dddd", Moment(2024, 2, 15));
    EXPECT_EQ(picker.Fields.FieldCount(), 0);
    EXPECT_EQ(picker.Fields.CurrentField(), DateFields::None);
    for (const auto key : {DateKey::Left, DateKey::Right, DateKey::Up, DateKey::Down, DateKey::Home, DateKey::End})
        EXPECT_FALSE(picker.Pressing(key).Changed);
    EXPECT_EQ(picker.Fields.CurrentField(), DateFields::None);
    EXPECT_TRUE(picker.Typing(u"1").Bell);
    EXPECT_EQ(picker.Fields.FieldRun(0), u"");
    EXPECT_TRUE(picker.Fields.CustomFormat(u"d"));
    EXPECT_EQ(picker.Fields.CurrentField(), 0);
}

TEST(DatePicker, CustomFormatWritten_LeavesTheNumberOfTheCurrentField_DrawnBackToTheLast)
{
    Picker picker(u"d/M/y", Moment(2024, 2, 15));
    picker.Pressing(DateKey::Right);
    EXPECT_TRUE(picker.Fields.CustomFormat(u"y/d/M"));
    EXPECT_EQ(picker.Fields.CurrentField(), 1);
    picker.Pressing(DateKey::End);
    EXPECT_TRUE(picker.Fields.CustomFormat(u"d/M"));
    EXPECT_EQ(picker.Fields.CurrentField(), 1);
    EXPECT_FALSE(picker.Fields.CustomFormat(u"d/M"));
}

TEST(DatePicker, FieldIsMadeCurrentByAPress_AndWhatWaitsIsTaken)
{
    Picker picker(u"d/M/y", Moment(2024, 2, 15));
    picker.Typing(u"1");
    EXPECT_TRUE(picker.Fields.CurrentField(2).Changed);
    EXPECT_EQ(picker.Fields.CurrentField(), 2);
    EXPECT_EQ(picker.Day(), u"2024-02-01");
    picker.Fields.CurrentField(9);
    EXPECT_EQ(picker.Fields.CurrentField(), 2);
}

TEST(DatePickerArrows, DayRollsOverWithinItsMonth)
{
    Picker picker(u"d", Moment(2024, 2, 29));
    EXPECT_TRUE(picker.Pressing(DateKey::Up).Changed);
    EXPECT_EQ(picker.Day(), u"2024-02-01");
    picker.Pressing(DateKey::Down);
    EXPECT_EQ(picker.Day(), u"2024-02-29");
    picker.Pressing(DateKey::Down);
    EXPECT_EQ(picker.Day(), u"2024-02-28");
}

TEST(DatePickerArrows, MonthRollsOverAndTheYearStays)
{
    Picker picker(u"M", Moment(2024, 12, 14));
    EXPECT_TRUE(picker.Pressing(DateKey::Up).Changed);
    EXPECT_EQ(picker.Day(), u"2024-01-14");
    picker.Pressing(DateKey::Down);
    EXPECT_EQ(picker.Day(), u"2024-12-14");
}

TEST(DatePickerArrows, YearStopsAt100And9999WithTheBell)
{
    Picker late(u"yyyy", Moment(9998, 1, 1));
    EXPECT_TRUE(late.Pressing(DateKey::Up).Changed);
    const auto stopped = late.Pressing(DateKey::Up);
    EXPECT_TRUE(stopped.Bell);
    EXPECT_FALSE(stopped.Changed);
    EXPECT_EQ(late.Day(), u"9999-01-01");

    Picker early(u"yy", Moment(101, 1, 1));
    EXPECT_TRUE(early.Pressing(DateKey::Down).Changed);
    EXPECT_TRUE(early.Pressing(DateKey::Down).Bell);
    EXPECT_EQ(early.Day(), u"0100-01-01");
}

TEST(DatePickerArrows, HoursMinutesAndSecondsRollOver_AndTheOthersStay)
{
    Picker picker(u"H:m:s", Moment(2024, 2, 29, 23, 59, 59));
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Shown(), u"2024-02-29 00:59:59");
    picker.Pressing(DateKey::Right);
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Shown(), u"2024-02-29 00:00:59");
    picker.Pressing(DateKey::Right);
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Shown(), u"2024-02-29 00:00:00");
    for (const auto key : {DateKey::Down, DateKey::Left, DateKey::Down, DateKey::Left, DateKey::Down})
        picker.Pressing(key);
    EXPECT_EQ(picker.Shown(), u"2024-02-29 23:59:59");
}

TEST(DatePickerArrows, HourOfTwelveRollsOverWithinItsHalfOfTheDay)
{
    Picker picker(u"h", Moment(2024, 2, 29, 11));
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Time(), u"00:00:00");
    picker.Pressing(DateKey::Down);
    EXPECT_EQ(picker.Time(), u"11:00:00");
    Picker afternoon(u"h", Moment(2024, 2, 29, 12));
    afternoon.Pressing(DateKey::Down);
    EXPECT_EQ(afternoon.Time(), u"23:00:00");
}

TEST(DatePickerArrows, HalfOfTheDayGoesToTheOther)
{
    Picker picker(u"t", Moment(2024, 2, 29, 0, 30));
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Time(), u"12:30:00");
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Time(), u"00:30:00");
    picker.Pressing(DateKey::Down);
    EXPECT_EQ(picker.Time(), u"12:30:00");
}

TEST(DatePickerArrows, DatesAheadOfTheZeroSerialKeepTheirTimeOfDay)
{
    Picker picker(u"d", Moment(1899, 12, 29, 18));
    picker.Pressing(DateKey::Down);
    EXPECT_EQ(picker.Shown(), u"1899-12-28 18:00:00");
    picker.Pressing(DateKey::Up);
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Shown(), u"1899-12-30 18:00:00");
}

TEST(DatePickerArrows, InAFieldOfTheHost_TheKeyIsTheHosts)
{
    Picker picker(u"X d", Moment(2024, 2, 15));
    EXPECT_TRUE(picker.Fields.IsCallbackField());
    EXPECT_TRUE(picker.Pressing(DateKey::Up).ForCallback);
    EXPECT_TRUE(picker.Pressing(DateKey::Down).ForCallback);
    EXPECT_FALSE(picker.Pressing(DateKey::Right).ForCallback);
    EXPECT_FALSE(picker.Fields.IsCallbackField());
    EXPECT_EQ(picker.Day(), u"2024-02-15");
}

TEST(DatePickerDay, DayChosenComesBackInALongerMonth)
{
    Picker picker(u"d/M", Moment(2024, 1, 30));
    picker.Pressing(DateKey::Up);
    picker.Pressing(DateKey::Right);
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Day(), u"2024-02-29");
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Day(), u"2024-03-31");
}

TEST(DatePickerDay, DayLoadedComesBackInALongerMonth_AndInALeapYear)
{
    Picker picker(u"M/yyyy", Moment(2024, 2, 29));
    picker.Pressing(DateKey::Right);
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Day(), u"2025-02-28");
    picker.Pressing(DateKey::Down);
    EXPECT_EQ(picker.Day(), u"2024-02-29");

    EXPECT_EQ(picker.Fields.Value(Moment(2024, 1, 31)), DateWrite::Changed);
    picker.Pressing(DateKey::Home);
    picker.Pressing(DateKey::Up);
    picker.Pressing(DateKey::Up);
    EXPECT_EQ(picker.Day(), u"2024-03-31");
}

TEST(DatePickerDay, DayTypedWaitsForItsMonth)
{
    Picker picker(u"dd/MM/yyyy", Moment(2024, 2, 15));
    EXPECT_TRUE(picker.Typing(u"31").Changed);
    EXPECT_EQ(picker.Day(), u"2024-02-29");
    picker.Typing(u"/03");
    EXPECT_EQ(picker.Day(), u"2024-03-31");
    picker.Typing(u"/23");
    EXPECT_EQ(picker.Day(), u"2024-03-31");
    EXPECT_TRUE(picker.Fields.TakePending().Changed);
    EXPECT_EQ(picker.Day(), u"2023-03-31");
}

TEST(DatePickerDay, DayTypedThatTheMonthLacks_IsRememberedEvenIfTheValueStays)
{
    Picker picker(u"dd/MM", Moment(2024, 2, 29));
    EXPECT_FALSE(picker.Typing(u"31").Changed);
    picker.Typing(u"/03");
    EXPECT_EQ(picker.Day(), u"2024-03-31");
}

TEST(DatePickerDay, DayLoadedAnew_TakesThePlaceOfTheTypedOne)
{
    Picker picker(u"dd/MM", Moment(2024, 2, 29));
    picker.Typing(u"31");
    EXPECT_EQ(picker.Fields.Value(Moment(2024, 2, 29)), DateWrite::Same);
    picker.Typing(u"/03");
    EXPECT_EQ(picker.Day(), u"2024-03-29");
}

TEST(DatePickerDigits, DigitWaits_WhereAnotherCouldFit)
{
    struct {
        std::u16string_view Format;
        std::u16string_view Waits;
        std::u16string_view Taken;
    } const rows[] = {{u"d", u"0123", u"456789"},    {u"MM", u"01", u"23456789"}, {u"h", u"01", u"23456789"},
                      {u"HH", u"012", u"3456789"},   {u"m", u"012345", u"6789"},  {u"ss", u"012345", u"6789"},
                      {u"yyyy", u"0123456789", u""}, {u"yy", u"0123456789", u""}};
    for (const auto& row : rows) {
        for (const char16_t digit : row.Waits) {
            Picker picker(row.Format, Moment(2024, 12, 31, 23, 59, 59));
            EXPECT_FALSE(picker.Typing({&digit, 1}).Changed);
            EXPECT_EQ(picker.Fields.Pending(), std::u16string_view(&digit, 1));
        }
        for (const char16_t digit : row.Taken) {
            Picker picker(row.Format, Moment(2024, 1, 1, 13, 1, 1));
            EXPECT_TRUE(picker.Typing({&digit, 1}).Changed) << static_cast<int>(digit);
            EXPECT_EQ(picker.Fields.Pending(), u"");
        }
    }
}

TEST(DatePickerDigits, SecondDigitIsTakenAtOnce_AndTheFieldStaysCurrent)
{
    Picker picker(u"dd/MM", Moment(2024, 3, 15));
    EXPECT_TRUE(picker.Typing(u"07").Changed);
    EXPECT_EQ(picker.Day(), u"2024-03-07");
    EXPECT_EQ(picker.Fields.CurrentField(), 0);
    EXPECT_TRUE(picker.Typing(u"21").Changed);
    EXPECT_EQ(picker.Day(), u"2024-03-21");
}

TEST(DatePickerDigits, NumberThatIsTheFieldsAlready_ChangesNothing)
{
    Picker picker(u"dd", Moment(2024, 3, 15, 10, 30) + 0.3 / 86400);
    const double before = picker.Fields.Value();
    const auto result = picker.Typing(u"15");
    EXPECT_FALSE(result.Changed || result.Bell);
    EXPECT_EQ(picker.Fields.Value(), before);
}

TEST(DatePickerDigits, AreTakenAheadOfEveryOtherKey)
{
    for (const auto key : {DateKey::Left, DateKey::Right, DateKey::Home, DateKey::End}) {
        Picker picker(u"d/M", Moment(2024, 3, 15));
        picker.Typing(u"1");
        EXPECT_EQ(picker.Day(), u"2024-03-15");
        EXPECT_TRUE(picker.Pressing(key).Changed);
        EXPECT_EQ(picker.Day(), u"2024-03-01");
    }
    Picker picker(u"d/M", Moment(2024, 3, 15));
    picker.Typing(u"1");
    EXPECT_TRUE(picker.Pressing(DateKey::Up).Changed);
    EXPECT_EQ(picker.Day(), u"2024-03-02");
}

TEST(DatePickerDigits, TakePendingWithoutDigits_DoesNothing)
{
    Picker picker(u"d", Moment(2024, 3, 15));
    const auto result = picker.Fields.TakePending();
    EXPECT_FALSE(result.Changed || result.Bell);
}

TEST(DatePickerDigits, IllegalNumber_IsDroppedWithTheBell)
{
    struct {
        std::u16string_view Format;
        std::u16string_view Digits;
    } const rows[] = {{u"d", u"32"},   {u"d", u"0"},      {u"d", u"00"}, {u"M", u"13"},
                      {u"M", u"00"},   {u"h", u"13"},     {u"h", u"00"}, {u"H", u"24"},
                      {u"yyyy", u"2"}, {u"yyyy", u"202"}, {u"yy", u"5"}, {u"yyyy", u"0099"}};
    for (const auto& row : rows) {
        Picker picker(row.Format, Moment(2024, 3, 15, 10, 20, 30));
        const auto typed = picker.Typing(row.Digits);
        const auto taken = picker.Fields.TakePending();
        EXPECT_TRUE(typed.Bell || taken.Bell);
        EXPECT_FALSE(typed.Changed || taken.Changed);
        EXPECT_EQ(picker.Fields.Pending(), u"");
        EXPECT_EQ(picker.Shown(), u"2024-03-15 10:20:30");
    }
}

TEST(DatePickerDigits, YearOfTwoDigits_IsOf2000Below30_ElseOf1900)
{
    for (const auto& [digits, year] :
         {std::pair{u"29", u"2029"}, {u"30", u"1930"}, {u"00", u"2000"}, {u"99", u"1999"}}) {
        Picker wide(u"yyyy", Moment(1980, 1, 1));
        EXPECT_FALSE(wide.Typing(digits).Changed);
        EXPECT_TRUE(wide.Fields.TakePending().Changed);
        EXPECT_EQ(wide.Shown().substr(0, 4), year);
        Picker narrow(u"yy", Moment(1980, 1, 1));
        EXPECT_TRUE(narrow.Typing(digits).Changed);
        EXPECT_EQ(narrow.Shown().substr(0, 4), year);
    }
}

TEST(DatePickerDigits, YearOfFourDigits_IsTakenAtOnce)
{
    Picker picker(u"yyyy", Moment(1980, 1, 1));
    EXPECT_FALSE(picker.Typing(u"012").Changed);
    EXPECT_TRUE(picker.Typing(u"3").Changed);
    EXPECT_EQ(picker.Day(), u"0123-01-01");
}

TEST(DatePickerDigits, HourOfTwelveTyped_StaysInItsHalfOfTheDay)
{
    Picker morning(u"h", Moment(2024, 3, 15, 10));
    morning.Typing(u"12");
    EXPECT_EQ(morning.Time(), u"00:00:00");
    Picker evening(u"h", Moment(2024, 3, 15, 22));
    evening.Typing(u"12");
    EXPECT_EQ(evening.Time(), u"12:00:00");
    evening.Typing(u"9");
    EXPECT_EQ(evening.Time(), u"21:00:00");
}

TEST(DatePickerDigits, AreDropped_WhenValueOrCustomFormatIsWritten_OrThePickerSaysSo)
{
    Picker picker(u"d/M", Moment(2024, 3, 15));
    picker.Typing(u"1");
    EXPECT_EQ(picker.Fields.Value(Moment(2024, 3, 15)), DateWrite::Same);
    EXPECT_EQ(picker.Fields.Pending(), u"");
    picker.Typing(u"1");
    EXPECT_FALSE(picker.Fields.CustomFormat(u"d/M"));
    EXPECT_EQ(picker.Fields.Pending(), u"");
    picker.Typing(u"1");
    picker.Fields.DropPending();
    EXPECT_FALSE(picker.Fields.TakePending().Changed);
    EXPECT_EQ(picker.Day(), u"2024-03-15");
}

TEST(DatePickerDigits, OfOtherScripts_AreNone)
{
    Picker picker(u"d", Moment(2024, 3, 15));
    EXPECT_TRUE(picker.Typing(u"３").Bell);
    EXPECT_FALSE(picker.Fields.Gathers(u'٣'));
    EXPECT_TRUE(picker.Fields.Gathers(u'3'));
}

TEST(DatePickerCharacters, TheOneBehindTheField_GoesOnToTheNext)
{
    Picker picker(u"d. M/yyyy", Moment(2024, 3, 15));
    EXPECT_TRUE(picker.Typing(u"/").Bell);
    EXPECT_EQ(picker.Fields.CurrentField(), 0);
    EXPECT_FALSE(picker.Typing(u".").Bell);
    EXPECT_EQ(picker.Fields.CurrentField(), 1);
    EXPECT_TRUE(picker.Typing(u".").Bell);
    EXPECT_FALSE(picker.Typing(u"/").Bell);
    EXPECT_EQ(picker.Fields.CurrentField(), 2);
    EXPECT_TRUE(picker.Typing(u"/").Bell);
}

TEST(DatePickerCharacters, TheOneBehindTheField_MayStandInQuotes)
{
    Picker picker(u"d'm'M", Moment(2024, 3, 15));
    EXPECT_FALSE(picker.Typing(u"m").Bell);
    EXPECT_EQ(picker.Fields.CurrentField(), 1);
}

TEST(DatePickerCharacters, BehindTheLastField_ThereIsNoNext)
{
    Picker picker(u"d. M.", Moment(2024, 3, 15));
    picker.Pressing(DateKey::End);
    EXPECT_FALSE(picker.Typing(u".").Bell);
    EXPECT_EQ(picker.Fields.CurrentField(), 1);
}

TEST(DatePickerCharacters, WhereAFieldOrAWeekdayStandsBehind_NoneGoesOn)
{
    Picker picker(u"ddMMM", Moment(2024, 3, 15));
    EXPECT_TRUE(picker.Typing(u"M").Bell);
    Picker weekday(u"yyyydddM", Moment(2024, 3, 15));
    EXPECT_TRUE(weekday.Typing(u"d").Bell);
    EXPECT_TRUE(weekday.Typing(u"F").Bell);
    EXPECT_EQ(weekday.Fields.CurrentField(), 0);
}

TEST(DatePickerCharacters, DigitsAreTakenAheadOfTheOneThatGoesOn)
{
    Picker picker(u"d/M", Moment(2024, 3, 15));
    picker.Typing(u"2");
    const auto result = picker.Typing(u"/");
    EXPECT_TRUE(result.Changed);
    EXPECT_FALSE(result.Bell);
    EXPECT_EQ(picker.Day(), u"2024-03-02");
    EXPECT_EQ(picker.Fields.CurrentField(), 1);
}

TEST(DatePickerCharacters, AAndPSetTheHalfOfTheDay)
{
    Picker picker(u"tt", Moment(2024, 3, 15, 0, 30));
    for (const auto& [letter, time] :
         {std::pair{u"p", u"12:30:00"}, {u"a", u"00:30:00"}, {u"P", u"12:30:00"}, {u"A", u"00:30:00"}}) {
        EXPECT_TRUE(picker.Typing(letter).Changed);
        EXPECT_EQ(picker.Time(), time);
    }
    const auto again = picker.Typing(u"a");
    EXPECT_FALSE(again.Changed || again.Bell);
}

TEST(DatePickerCharacters, AAndPSetTheHalf_AheadOfTheLiteralBehindIt)
{
    Picker picker(u"t'p'd", Moment(2024, 3, 15, 1));
    EXPECT_TRUE(picker.Typing(u"p").Changed);
    EXPECT_EQ(picker.Fields.CurrentField(), 0);
    EXPECT_EQ(picker.Time(), u"13:00:00");
}

TEST(DatePickerCharacters, LettersOfTheHalfElsewhere_AndDigitsInTheHalf_SoundTheBell)
{
    Picker day(u"d", Moment(2024, 3, 15, 1));
    EXPECT_TRUE(day.Typing(u"p").Bell);
    Picker half(u"t", Moment(2024, 3, 15, 1));
    EXPECT_TRUE(half.Typing(u"1").Bell);
    EXPECT_TRUE(half.Typing(u"x").Bell);
    EXPECT_EQ(half.Time(), u"01:00:00");
}

TEST(DatePickerCharacters, InAFieldOfTheHost_AreTheHosts)
{
    Picker picker(u"X/d", Moment(2024, 3, 15));
    for (const std::u16string_view typed : {u"1", u"/", u"x"}) {
        const auto result = picker.Typing(typed);
        EXPECT_TRUE(result.ForCallback);
        EXPECT_FALSE(result.Bell || result.Changed);
    }
    EXPECT_EQ(picker.Fields.CurrentField(), 0);
    EXPECT_EQ(picker.Fields.Pending(), u"");
}

} // namespace
} // namespace Tessellon
