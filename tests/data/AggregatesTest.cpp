#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

namespace Tessellon {
namespace {

constexpr std::int32_t col = 2;

/// Two columns of text; the second holds what a test puts there, in rows from 1 on.
class Aggregates : public testing::Test {
protected:
    Aggregates() { Sheet.Build({fcTextBox, fcTextBox}, 4); }

    void Fill(std::initializer_list<std::u16string_view> texts)
    {
        for (std::int32_t row = 1; row < Sheet->Rows(); ++row)
            Sheet.Platform->MSFlexGrid1().TextMatrix(row, col, u"");
        std::int32_t row = 0;
        for (const std::u16string_view text : texts)
            Sheet.Platform->MSFlexGrid1().TextMatrix(++row, col, text);
    }
    std::u16string Minimum(ManipulateType type)
    {
        Success = false;
        return Sheet->Minimum(col, type, Success);
    }
    std::u16string Maximum(ManipulateType type)
    {
        Success = false;
        return Sheet->Maximum(col, type, Success);
    }
    double Sum()
    {
        Success = false;
        return Sheet->Summation(col, Success);
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
    bool Success = false;
};

TEST_F(Aggregates, ColumnThatIsNone_GivesNothingAndNoSuccess)
{
    Fill({u"1", u"2"});
    for (const std::int32_t bad : {-1, 0, 3, 4}) {
        bool success = true;
        EXPECT_EQ(Sheet->Minimum(bad, mtNumeric, success), u"");
        EXPECT_FALSE(std::exchange(success, true));
        EXPECT_EQ(Sheet->Maximum(bad, mtDate, success), u"");
        EXPECT_FALSE(std::exchange(success, true));
        EXPECT_EQ(Sheet->Summation(bad, success), 0);
        EXPECT_FALSE(success) << bad;
    }
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(Aggregates, SheetWithNothingButAHeading_GivesNothingAndNoSuccess)
{
    Fill({u"1", u"2"});
    for (std::int32_t SheetMembers::*count : {&SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = std::exchange(Members.*count, 1);
        bool success = true;
        EXPECT_EQ(Sheet->Minimum(1, mtString, success), u"");
        EXPECT_FALSE(std::exchange(success, true));
        EXPECT_EQ(Sheet->Maximum(1, mtNumeric, success), u"");
        EXPECT_FALSE(std::exchange(success, true));
        EXPECT_EQ(Sheet->Summation(1, success), 0);
        EXPECT_FALSE(success);
        Members.*count = kept;
    }
}

TEST(AggregatesOfASingleCell, AreItsValue)
{
    SheetUnderTest sheet;
    sheet.Build({fcTextBox}, 1);
    sheet->TextMatrix(1, 1, u"7");
    bool success = false;
    EXPECT_EQ(sheet->Summation(1, success), 7);
    EXPECT_TRUE(success);
    EXPECT_EQ(sheet->Minimum(1, mtString, success), u"7");
}

TEST_F(Aggregates, ColumnOfBlanks_SucceedsWithTheStartingValues)
{
    Fill({u" ", u"", u"   "});
    EXPECT_EQ(Minimum(mtString), u"");
    EXPECT_TRUE(Success);
    EXPECT_EQ(Maximum(mtString), u"");
    EXPECT_TRUE(Success);
    EXPECT_EQ(Minimum(mtNumeric), u"0");
    EXPECT_TRUE(Success);
    EXPECT_EQ(Maximum(mtNumeric), u"0");
    EXPECT_TRUE(Success);
    EXPECT_EQ(Minimum(mtDate), u"31/12/1899");
    EXPECT_TRUE(Success);
    EXPECT_EQ(Maximum(mtDate), u"31/12/1899");
    EXPECT_TRUE(Success);
    EXPECT_EQ(Sum(), 0);
    EXPECT_TRUE(Success);
}

TEST_F(Aggregates, Texts_AreTrimmedAndComparedByCharacterCode)
{
    Fill({u" b ", u"B", u"10", u"9"});
    EXPECT_EQ(Minimum(mtString), u"10");
    EXPECT_EQ(Maximum(mtString), u"b");
    Fill({u" ", u"b", u"\x00e4"});
    EXPECT_EQ(Minimum(mtString), u"b");
    EXPECT_EQ(Maximum(mtString), u"\x00e4");
}

TEST_F(Aggregates, Numbers_AreComparedAsNumbersAndOtherTextsPassedOver)
{
    Fill({u"10", u"x", u"9"});
    EXPECT_EQ(Minimum(mtNumeric), u"9");
    EXPECT_EQ(Maximum(mtNumeric), u"10");
    EXPECT_EQ(Minimum(mtString), u"10");
    EXPECT_EQ(Maximum(mtString), u"x");
}

TEST_F(Aggregates, NegativeNumbers_CountFromTheFirstCellOn)
{
    Fill({u"x", u"-5", u" -2.50 ", u"-7"});
    EXPECT_EQ(Maximum(mtNumeric), u"-2.5");
    EXPECT_EQ(Minimum(mtNumeric), u"-7");
    Fill({u"3", u"8"});
    EXPECT_EQ(Minimum(mtNumeric), u"3");
}

TEST_F(Aggregates, Dates_AreComparedAsDatesAndOtherTextsPassedOver)
{
    Fill({u"15/03/2024", u"soon", u"16/02/2024", u"01/12/2023"});
    EXPECT_EQ(Minimum(mtDate), u"01/12/2023");
    EXPECT_EQ(Maximum(mtDate), u"15/03/2024");
    EXPECT_TRUE(Success);
    Fill({u"15/03/1850", u"16/02/1860"}); // Ahead of the starting date.
    EXPECT_EQ(Maximum(mtDate), u"16/02/1860");
}

TEST_F(Aggregates, FarApartDates_AreComparedAllTheSame)
{
    Fill({u"01/01/0200", u"01/01/9000"});
    EXPECT_EQ(Minimum(mtDate), u"01/01/0200");
    EXPECT_EQ(Maximum(mtDate), u"01/01/9000");
}

TEST_F(Aggregates, WhatTheDateFormatDrops_IsLostAheadOfTheComparison)
{
    Fill({u"15/03/2024 18:00", u"15/03/2024 06:00"});
    EXPECT_EQ(Minimum(mtDate), u"15/03/2024");
    Sheet->DateFormat(u"dd/MM/yyyy hh:mm:ss");
    EXPECT_EQ(Minimum(mtDate), u"15/03/2024 06:00:00");
    EXPECT_EQ(Maximum(mtDate), u"15/03/2024 18:00:00");
}

TEST_F(Aggregates, FormatThatKeepsNoDate_FailsTheWalk)
{
    Sheet->DateFormat(u"dddd");
    Fill({u"15/03/2024"});
    EXPECT_EQ(Minimum(mtDate), u"");
    EXPECT_FALSE(Success);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Minimum"});
}

TEST_F(Aggregates, OfEqualCells_TheFirstStands)
{
    // With a month for the whole date the days tie: the first day that the format keeps is what stands.
    Sheet->DateFormat(u"MM/yyyy");
    Fill({u"15/03/2024", u"03/2024"});
    EXPECT_EQ(Minimum(mtDate), u"03/2024");
    EXPECT_EQ(Maximum(mtDate), u"03/2024");
    Fill({u"1.0", u"1"});
    EXPECT_EQ(Minimum(mtNumeric), u"1");
}

TEST_F(Aggregates, KindThatIsNone_ReadsNoRowAndSucceedsWithNothing)
{
    Fill({u"1", u"2"});
    for (const int kind : {0, 4, -1}) {
        Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
        EXPECT_EQ(Minimum(static_cast<ManipulateType>(kind)), u"");
        EXPECT_TRUE(Success);
        EXPECT_EQ(Maximum(static_cast<ManipulateType>(kind)), u"");
        EXPECT_TRUE(Success);
    }
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(Aggregates, Kinds_HaveTheirNumbers)
{
    EXPECT_EQ(static_cast<int>(mtString), 1);
    EXPECT_EQ(static_cast<int>(mtNumeric), 2);
    EXPECT_EQ(static_cast<int>(mtDate), 3);
}

TEST_F(Aggregates, Sum_AddsNumbersAndPassesOverTheRest)
{
    Fill({u"1.5", u"x", u" 2 ", u"-1"});
    EXPECT_EQ(Sum(), 2.5);
    EXPECT_TRUE(Success);
    Fill({u"1.5", u"2"});
    EXPECT_EQ(Sum(), 3.5);
}

TEST_F(Aggregates, SumThatOverflows_IsReportedUnderItsLabelAsZeroWithoutSuccess)
{
    Fill({u"1E308", u"1E308"});
    EXPECT_EQ(Sum(), 0);
    EXPECT_FALSE(Success);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Summation"});
    Sheet->ShowErrMessage(false);
    Sum();
    EXPECT_EQ(Only(Sheet.TakeEvents(), {"ErrInfo ErrNum=6 "}).size(), 1U);
}

TEST_F(Aggregates, WalkThatFails_IsReportedUnderItsLabelWithoutSuccess)
{
    Fill({u"7", u"8"});
    const ManipulateType kinds[] = {mtString, mtNumeric, mtDate};
    for (const ManipulateType kind : kinds) {
        Success = true;
        Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
        EXPECT_EQ(Sheet->Minimum(col, kind, Success), u"");
        EXPECT_FALSE(Success);
        EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Minimum"});
        Success = true;
        Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
        EXPECT_EQ(Sheet->Maximum(col, kind, Success), u"");
        EXPECT_FALSE(Success);
        EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Maximum"});
    }
    Success = true;
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
    EXPECT_EQ(Sheet->Summation(col, Success), 0);
    EXPECT_FALSE(Success);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Summation"});
}

TEST_F(Aggregates, WalkThatFailsOnTheWay_KeepsWhatATextHadReachedAndNothingElse)
{
    Fill({u"5", u"3", u"4", u"1"});
    Members.RowCount = 6; // One row more than the grid has: reading it fails behind the four.
    EXPECT_EQ(Minimum(mtString), u"1");
    EXPECT_FALSE(Success);
    EXPECT_EQ(Maximum(mtString), u"5");
    EXPECT_FALSE(Success);
    EXPECT_EQ(Minimum(mtNumeric), u"");
    EXPECT_FALSE(Success);
    EXPECT_EQ(Maximum(mtDate), u"");
    EXPECT_FALSE(Success);
    EXPECT_EQ(Sum(), 0);
    EXPECT_FALSE(Success);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), (Lines{"Minimum", "Maximum", "Minimum", "Maximum", "Summation"}));
}

} // namespace
} // namespace Tessellon
