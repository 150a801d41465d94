#include "engine/fields/PickerFormat.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace Tessellon {
namespace {

using Pieces = std::vector<std::pair<PickerPart, std::u16string>>;

Pieces Read(std::u16string_view format)
{
    Pieces pieces;
    for (const auto& piece : ReadPickerFormat(format))
        pieces.emplace_back(piece.Part, piece.Text);
    return pieces;
}

TEST(PickerFormat, RunsOfItsSignsAreFields)
{
    EXPECT_EQ(Read(u"d/MM/yyyy"), (Pieces{{PickerPart::Day, u"d"},
                                          {PickerPart::Literal, u"/"},
                                          {PickerPart::Month, u"MM"},
                                          {PickerPart::Literal, u"/"},
                                          {PickerPart::Year, u"yyyy"}}));
    EXPECT_EQ(Read(u"hhHHmmssttXX"), (Pieces{{PickerPart::Hour12, u"hh"},
                                             {PickerPart::Hour24, u"HH"},
                                             {PickerPart::Minute, u"mm"},
                                             {PickerPart::Second, u"ss"},
                                             {PickerPart::Half, u"tt"},
                                             {PickerPart::Callback, u"XX"}}));
}

TEST(PickerFormat, BigMIsTheMonth_AndSmallMTheMinute)
{
    EXPECT_EQ(Read(u"Mm"), (Pieces{{PickerPart::Month, u"M"}, {PickerPart::Minute, u"m"}}));
}

TEST(PickerFormat, WeekdaysAreNoFields)
{
    const auto pieces = ReadPickerFormat(u"ddd dddd ddddd dd");
    ASSERT_EQ(pieces.size(), 7u);
    EXPECT_EQ(pieces[0].Part, PickerPart::ShortWeekday);
    EXPECT_EQ(pieces[2].Part, PickerPart::LongWeekday);
    EXPECT_EQ(pieces[4].Part, PickerPart::LongWeekday);
    EXPECT_FALSE(pieces[0].IsField());
    EXPECT_FALSE(pieces[1].IsField());
    EXPECT_FALSE(pieces[2].IsField());
    EXPECT_TRUE(pieces[6].IsField());
}

TEST(PickerFormat, RunsOfX_AreFieldsOfTheHost)
{
    EXPECT_EQ(Read(u"X-XXX"),
              (Pieces{{PickerPart::Callback, u"X"}, {PickerPart::Literal, u"-"}, {PickerPart::Callback, u"XXX"}}));
}

TEST(PickerFormat, AllElse_IsText)
{
    EXPECT_EQ(Read(u"D n Y x"), (Pieces{{PickerPart::Literal, u"D n Y x"}}));
    EXPECT_EQ(Read(u""), Pieces{});
}

TEST(PickerFormat, WhatStandsInSingleQuotes_IsText)
{
    EXPECT_EQ(Read(u"d' de 'M"),
              (Pieces{{PickerPart::Day, u"d"}, {PickerPart::Literal, u" de "}, {PickerPart::Month, u"M"}}));
    EXPECT_EQ(Read(u"d' the 'd"),
              (Pieces{{PickerPart::Day, u"d"}, {PickerPart::Literal, u" the "}, {PickerPart::Day, u"d"}}));
}

TEST(PickerFormat, TwoQuotesInsideQuotes_AreOneQuote)
{
    EXPECT_EQ(Read(u"'o''clock'"), (Pieces{{PickerPart::Literal, u"o'clock"}}));
    EXPECT_EQ(Read(u"''''"), (Pieces{{PickerPart::Literal, u"'"}}));
}

TEST(PickerFormat, TwoQuotesOutsideQuotes_AreAnEmptyText)
{
    EXPECT_EQ(Read(u"''"), Pieces{});
    EXPECT_EQ(Read(u"d''d"), (Pieces{{PickerPart::Day, u"d"}, {PickerPart::Day, u"d"}}));
}

TEST(PickerFormat, QuoteThatIsNotClosed_ReachesToTheEnd)
{
    EXPECT_EQ(Read(u"d'dM"), (Pieces{{PickerPart::Day, u"d"}, {PickerPart::Literal, u"dM"}}));
}

} // namespace
} // namespace Tessellon
