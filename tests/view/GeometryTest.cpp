#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <ostream>

namespace Tessellon {
namespace {

/// Nine rows of 240 twips and a heading, two columns of 960 and the marker column, lines of one pixel.
class Geometry : public testing::Test {
protected:
    Geometry()
    {
        Sheet.Build({fcTextBox, fcTextBox}, 9);
        Probe.SetAllDisable();
        Sheet.Heard.clear();
    }
    template <class Call>
    Lines CallsOf(const Call& call)
    {
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
        call();
        return Sheet.TakeCalls();
    }
    GridEngine& Grid() { return Sheet.Platform->TheGrid(); }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

struct RowsInView {
    float Height;
    float RowHeight;
    float InitialHeight;
    std::int32_t Rows;
};

void PrintTo(const RowsInView& rows, std::ostream* out)
{
    *out << rows.Height << " by " << rows.RowHeight;
}

class VisibleRows : public Geometry, public testing::WithParamInterface<RowsInView> {};

} // namespace

// (height - heading at start - heading now) / (2 + row), to the nearest, ties to even, less one.
TEST_P(VisibleRows, CountTheHeadingTwiceAndDropOne)
{
    Sheet.Platform->Resize(9600, GetParam().Height);
    Members.DefaultRowHeight = GetParam().RowHeight;
    Members.InitialRowHeight = GetParam().InitialHeight;
    Probe.GetVisibleRows();
    EXPECT_EQ(Members.VisibleRows, GetParam().Rows);
}

INSTANTIATE_TEST_SUITE_P(Of, VisibleRows,
                         testing::Values(RowsInView{4800, 240, 240, 17}, // 17.85
                                         RowsInView{4800, 300, 240, 13}, // 14.30
                                         RowsInView{730, 98, 240, 1}, // 2.5, to the even one
                                         RowsInView{830, 98, 240, 3}, // 3.5, to the even one
                                         RowsInView{100, 98, 240, -5}, // -3.8
                                         RowsInView{4800, 240, 482, 16} // 16.85
                                         ));

TEST_F(Geometry, RowsInViewOfRowsWithoutHeight_FailAndStay)
{
    Sheet->ShowErrMessage(false);
    Members.DefaultRowHeight = -2;
    Members.VisibleRows = 5;
    Probe.GetVisibleRows();
    EXPECT_TRUE(Sheet.TakeEvents().front().starts_with("ErrInfo ErrNum=11 "));
    EXPECT_EQ(Members.VisibleRows, 5);
}

TEST_F(Geometry, Resize_LeavesTheRowsInViewAsTheyWereCounted)
{
    Sheet->RowHeight(240, false, false);
    ASSERT_EQ(Members.VisibleRows, 17);
    Sheet.Platform->Resize(9600, 1200);
    EXPECT_EQ(Members.ControlHeight, 1200);
    EXPECT_EQ(Members.VisibleRows, 17);
}

// ---- Keeping the last row in view ----------------------------------------------------------------------------------

TEST_F(Geometry, ViewBeforeTheFirstRowHeight_IsNeverMoved)
{
    ASSERT_EQ(Members.VisibleRows, 0);
    EXPECT_EQ(CallsOf([&] { EXPECT_FALSE(Probe.VisibleArea()); }), Lines{});
    EXPECT_EQ(Members.PendingTopRow, 0);
}

TEST_F(Geometry, ViewThatIsTooShort_IsMovedToTheEndAndPainted)
{
    Members.VisibleRows = 4;
    const Lines calls = CallsOf([&] { EXPECT_TRUE(Probe.VisibleArea()); });
    // Ten rows, heading included: 10 - 4 + 1.
    EXPECT_EQ(calls.front(), "MSFlexGrid1.TopRow=7");
    EXPECT_EQ(calls.back(), "MSFlexGrid1.Refresh()");
    EXPECT_EQ(Members.PendingTopRow, 0);
}

TEST_F(Geometry, ViewThatHoldsAllRowsAndTwoMore_IsNotMoved)
{
    // 10 - 1 + 2 rows are fewer than 12; 11 are not fewer than 11, and the new top would be the heading.
    for (const std::int32_t visible : {12, 11}) {
        Members.VisibleRows = visible;
        EXPECT_EQ(CallsOf([&] { EXPECT_FALSE(Probe.VisibleArea()); }), Lines{}) << visible;
    }
    Members.VisibleRows = 10;
    EXPECT_TRUE(Probe.VisibleArea());
}

TEST_F(Geometry, ViewOfOneRowOrLess_IsNotMovedBehindTheLast)
{
    Members.VisibleRows = 1;
    EXPECT_FALSE(Probe.VisibleArea());
    Members.VisibleRows = -3;
    EXPECT_FALSE(Probe.VisibleArea());
    Members.VisibleRows = 2;
    EXPECT_TRUE(Probe.VisibleArea());
}

namespace {

struct PendingCase {
    std::int32_t Visible;
    std::int32_t Before;
    std::int32_t TopRow;
    std::int32_t After;
};

void PrintTo(const PendingCase& pending, std::ostream* out)
{
    *out << pending.Visible << " rows in view, " << pending.Before << " noted, from row " << pending.TopRow;
}

class PendingTopRow : public Geometry, public testing::WithParamInterface<PendingCase> {};

} // namespace

TEST_P(PendingTopRow, IsTheRowToGoBackTo)
{
    Sheet.Platform->Resize(9600, 1000);
    Grid().TopRow(GetParam().TopRow);
    ASSERT_EQ(Grid().TopRow(), GetParam().TopRow);
    Members.VisibleRows = GetParam().Visible;
    Members.PendingTopRow = GetParam().Before;
    EXPECT_TRUE(Probe.VisibleArea());
    EXPECT_EQ(Members.PendingTopRow, GetParam().After);
}

// The new top row is 7 where four rows are visible, 2 where nine are.
INSTANTIATE_TEST_SUITE_P(Cases, PendingTopRow,
                         testing::Values(PendingCase{4, 0, 3, 2}, // none noted yet
                                         PendingCase{4, 8, 3, 2}, // noted behind the new top
                                         PendingCase{4, 7, 3, 7}, // noted at it: stays
                                         PendingCase{4, 5, 3, 5}, // noted above it: stays
                                         PendingCase{4, -1, 3, -1}, // not nought and not greater: stays
                                         PendingCase{9, 4, 3, 2}));

TEST_F(Geometry, ViewMuchLargerThanTheSheet_IsNotMovedAndNotesNoRow)
{
    Members.RowCount = 4;
    Members.VisibleRows = 7;
    EXPECT_EQ(CallsOf([&] { EXPECT_FALSE(Probe.VisibleArea()); }), Lines{});
    EXPECT_EQ(Members.PendingTopRow, 0);
}

TEST_F(Geometry, ViewThatCannotBeMoved_IsReportedAsNotMoved)
{
    Members.VisibleRows = 4;
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Refresh", 7);
    EXPECT_FALSE(Probe.VisibleArea());
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"VisibleArea"});
}

// ---- Will it scroll? -----------------------------------------------------------------------------------------------

TEST_F(Geometry, VerticalScroll_BeginsWhereTheRowsReachTheEdge)
{
    // Heading 240, four lines, two rows of 240; then each row with a line.
    constexpr float first = 240 + 4 + 480;
    for (const auto& [rows, height] : std::vector<std::pair<std::int32_t, float>>{{1, 241}, {3, 723}}) {
        Members.ControlHeight = first + height;
        EXPECT_TRUE(Probe.IsVerticalScroll(1, rows));
        EXPECT_TRUE(Probe.IsVerticalScroll(2, rows + 1));
        Members.ControlHeight = first + height + 1;
        EXPECT_FALSE(Probe.IsVerticalScroll(1, rows));
    }
}

TEST_F(Geometry, VerticalScroll_CountsTheRowsOwnHeights)
{
    Grid().RowHeight(2, 500);
    Grid().RowHeight(0, 300);
    Members.ControlHeight = 300 + 4 + 480 + 501;
    EXPECT_TRUE(Probe.IsVerticalScroll(2, 2));
    Members.ControlHeight += 1;
    EXPECT_FALSE(Probe.IsVerticalScroll(2, 2));
}

TEST_F(Geometry, VerticalScroll_CountsTheDefaultHeightWithItsFraction)
{
    Members.DefaultRowHeight = 240.25F;
    Members.ControlHeight = 240 + 4 + 480.5F + 241;
    EXPECT_TRUE(Probe.IsVerticalScroll(1, 1));
    Members.ControlHeight += 0.25F;
    EXPECT_FALSE(Probe.IsVerticalScroll(1, 1));
}

TEST_F(Geometry, HorizontalScroll_AddsAShareOfTheLastColumn)
{
    Grid().ColWidth(1, 840);
    Grid().ColWidth(0, 300);
    Members.ControlWidth = 300 + 2 + 840 + 1 + 100 + 1;
    EXPECT_TRUE(Probe.IsHorizontalScroll(1, 1));
    Members.ControlWidth += 1;
    EXPECT_FALSE(Probe.IsHorizontalScroll(1, 1));
}

TEST_F(Geometry, HorizontalScroll_SumsTheColumnsBetween)
{
    Grid().ColWidth(1, 1000);
    Grid().ColWidth(2, 420);
    Members.ControlWidth = 960 + 2 + 1001 + 421 + 50 + 1;
    EXPECT_TRUE(Probe.IsHorizontalScroll(1, 2));
    EXPECT_FALSE(Probe.IsHorizontalScroll(2, 2));
    Members.ControlWidth += 1;
    EXPECT_FALSE(Probe.IsHorizontalScroll(1, 2));
}

TEST_F(Geometry, ScrollTests_RefuseRangesThatAreNone)
{
    Members.ControlHeight = 0;
    Members.ControlWidth = 0;
    ASSERT_TRUE(Probe.IsVerticalScroll(1, 9));
    ASSERT_TRUE(Probe.IsHorizontalScroll(1, 2));
    EXPECT_FALSE(Probe.IsVerticalScroll(0, 1));
    EXPECT_FALSE(Probe.IsVerticalScroll(1, 0));
    EXPECT_FALSE(Probe.IsVerticalScroll(10, 9));
    EXPECT_FALSE(Probe.IsVerticalScroll(1, 10));
    EXPECT_FALSE(Probe.IsVerticalScroll(3, 2));
    EXPECT_TRUE(Probe.IsVerticalScroll(2, 2));
    EXPECT_FALSE(Probe.IsHorizontalScroll(0, 1));
    EXPECT_FALSE(Probe.IsHorizontalScroll(1, 0));
    EXPECT_FALSE(Probe.IsHorizontalScroll(3, 2));
    EXPECT_FALSE(Probe.IsHorizontalScroll(1, 3));
    EXPECT_FALSE(Probe.IsHorizontalScroll(2, 1));
    EXPECT_TRUE(Probe.IsHorizontalScroll(2, 2));
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Geometry, ScrollTests_TakeAGridOfOneCell)
{
    Members.ControlHeight = 0;
    Members.ControlWidth = 0;
    Members.RowCount = 2;
    Members.ColCount = 2;
    EXPECT_TRUE(Probe.IsVerticalScroll(1, 1));
    EXPECT_TRUE(Probe.IsHorizontalScroll(1, 1));
}

TEST_F(Geometry, ScrollTests_RefuseAGridOfFixedRowsOrColumnsAlone)
{
    Members.ControlHeight = 0;
    Members.ControlWidth = 0;
    Members.RowCount = 1;
    EXPECT_FALSE(Probe.IsHorizontalScroll(1, 1));
    EXPECT_FALSE(Probe.IsVerticalScroll(1, 1));
    Members.RowCount = 10;
    Members.ColCount = 1;
    EXPECT_FALSE(Probe.IsVerticalScroll(1, 1));
    EXPECT_FALSE(Probe.IsHorizontalScroll(1, 1));
}

TEST_F(Geometry, BothScroll_NeedsBothSumsToReachTheEdge)
{
    // Ten rows of a line and 240, the heading, two lines; two lines, three columns of 960 with a line each.
    constexpr float height = 241 * 10 + 240 + 2;
    constexpr float width = 2 + 3 * 961;
    for (const float more : {0.0F, 1.0F}) {
        for (const float wider : {0.0F, 1.0F}) {
            Members.ControlHeight = height + more;
            Members.ControlWidth = width + wider;
            EXPECT_EQ(Probe.IsBothScroll(), more == 0 && wider == 0);
        }
    }
}

TEST_F(Geometry, BothScroll_TakesAllRowsAsTheDefault)
{
    Grid().RowHeight(3, 5000);
    Members.DefaultRowHeight = 100.5F;
    Members.ControlWidth = 0;
    Members.ControlHeight = 101.5F * 10 + 240 + 2;
    EXPECT_TRUE(Probe.IsBothScroll());
    Members.ControlHeight += 0.5F;
    EXPECT_FALSE(Probe.IsBothScroll());
}

TEST_F(Geometry, BothScroll_CountsTheMarkerColumn)
{
    Members.ControlHeight = 0;
    Grid().ColWidth(0, 100);
    Members.ControlWidth = 2 + 101 + 2 * 961;
    EXPECT_TRUE(Probe.IsBothScroll());
    Members.ControlWidth += 1;
    EXPECT_FALSE(Probe.IsBothScroll());
}

TEST_F(Geometry, BeforeTheFirstSize_EverythingScrolls)
{
    Members.ControlHeight = 0;
    Members.ControlWidth = 0;
    EXPECT_TRUE(Probe.IsVerticalScroll(1, 1));
    EXPECT_TRUE(Probe.IsHorizontalScroll(1, 1));
    EXPECT_TRUE(Probe.IsBothScroll());
}

TEST_F(Geometry, SumsAreKeptInTheWidthOfAFloat)
{
    // Beyond 2^24 a float passes over odd numbers: 16777216 + 961 + 1 ends on the even one below.
    Grid().ColWidth(0, 16777214);
    Members.ControlHeight = 0;
    Members.ControlWidth = 16777216 + 961 + 961;
    EXPECT_FALSE(Probe.IsHorizontalScroll(1, 1));
    Grid().ColWidth(1, 0);
    Grid().ColWidth(2, 0);
    // Each line of one pixel is lost, so the sum stays where it began.
    Members.ControlWidth = 16777218;
    EXPECT_FALSE(Probe.IsBothScroll());
    Members.ControlWidth = 16777216;
    EXPECT_TRUE(Probe.IsBothScroll());
}

TEST_F(Geometry, FailuresBearTheNameOfTheirProcedureAndGiveFalse)
{
    Members.ControlHeight = 0;
    Members.ControlWidth = 0;
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Height", 7);
    Probe.GetVisibleRows();
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.TopRow", 7);
    EXPECT_FALSE(Probe.VisibleArea());
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.RowHeight", 7);
    EXPECT_FALSE(Probe.IsVerticalScroll(1, 1));
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.ColWidth", 7);
    EXPECT_FALSE(Probe.IsHorizontalScroll(1, 1));
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.ColWidth", 7);
    EXPECT_FALSE(Probe.IsBothScroll());
    EXPECT_EQ(Labels(Sheet.TakeEvents()),
              (Lines{"GetVisibleRows", "VisibleArea", "IsVerticalScroll", "IsHorizontalScroll", "IsBothScroll"}));
}

} // namespace Tessellon
