#include "shell/PropertiesFixture.h"

#include <limits>

namespace Tessellon {

// ---- Heights -------------------------------------------------------------------------------------------------------

TEST_F(Properties, RowHeightNotAboveNought_ChangesNothing)
{
    Members.VisibleRows = 77;
    for (const float height : {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_EQ(CallsOf([&] { Sheet->RowHeight(height, true, true); }), Lines{});
    EXPECT_EQ(Members.DefaultRowHeight, 240.0F);
    EXPECT_EQ(Members.VisibleRows, 77);
}

TEST_F(Properties, RowHeightWithoutTheFont_RaisesTheLeastHeightAlone)
{
    const Lines calls = CallsOf([&] { Sheet->RowHeight(300.5F, false, false); });
    EXPECT_EQ(calls, Lines{"MSFlexGrid1.RowHeightMin=300"});
    EXPECT_EQ(Sheet->Font().Size, 8);
    EXPECT_EQ(Members.DefaultRowHeight, 300.5F);
    EXPECT_EQ(Members.HeaderRowHeight, 240.0F);
    EXPECT_EQ(Grid().RowHeight(1), 300);
}

TEST_F(Properties, RowHeight_CountsTheRowsInViewBehindTheHeights)
{
    Sheet->RowHeight(300.5F, false, false);
    // (4800 - 240 - 300) / (2 + 300.5) = 14.08
    EXPECT_EQ(Members.VisibleRows, 13);
}

TEST_F(Properties, RowHeightWithTheFont_SizesTheGridsFontThenTheComponents)
{
    const Lines calls = CallsOf([&] { Sheet->RowHeight(299.6F, true, false); });
    // 300 twips are 20 pixels of 15: (20 - 1.3) / 2
    EXPECT_EQ(calls, (Lines{"MSFlexGrid1.FontSize=9.35", "UserControl.FontSize=9.35", "MSFlexGrid1.Refresh()",
                            "MSFlexGrid1.RowHeightMin=300"}));
}

TEST_F(Properties, RowHeightWithTheFont_DividesWholePixels)
{
    // 314 twips are 20 whole pixels.
    const Lines calls = CallsOf([&] { Sheet->RowHeight(314, true, false); });
    EXPECT_EQ(calls.front(), "MSFlexGrid1.FontSize=9.35");
}

TEST_F(Properties, RowHeightWithTheHeading_SetsAndKeepsItsHeight)
{
    const Lines calls = CallsOf([&] { Sheet->RowHeight(300.5F, false, true); });
    EXPECT_EQ(calls, (Lines{"MSFlexGrid1.RowHeight(0)=300", "MSFlexGrid1.RowHeightMin=300"}));
    EXPECT_EQ(Members.HeaderRowHeight, 300.5F);
}

TEST_F(Properties, RowHeight_WidensTheColumnsThatFollowTheirHeading)
{
    Declare(u" 0123456789", false, faHeader);
    const Lines calls = CallsOf([&] { Sheet->RowHeight(300, false, false); });
    EXPECT_EQ(calls, (Lines{"MSFlexGrid1.RowHeightMin=300", "MSFlexGrid1.ColWidth(2)=1530", "MSFlexGrid1.Redraw=True",
                            "MSFlexGrid1.Refresh()"}));
}

TEST_F(Properties, RowHeight_LeavesHiddenAndOtherColumnsTheirWidth)
{
    Declare(u"0123456789", true, faHeader);
    EXPECT_EQ(CallsOf([&] { Sheet->RowHeight(300, false, false); }).size(), 1U);
    Declare(u"0123456789", false, faContent);
    EXPECT_EQ(CallsOf([&] { Sheet->RowHeight(300, false, false); }).size(), 1U);
    Declare(u"0123456789", false, faHeader);
    Sheet->ColWidth(2, 0);
    EXPECT_EQ(CallsOf([&] { Sheet->RowHeight(300, false, false); }).size(), 1U);
}

TEST_F(Properties, RowHeightThatIsTooLarge_OverflowsBehindTheMember)
{
    Sheet->ShowErrMessage(false);
    Sheet->RowHeight(3e9F, false, false);
    EXPECT_TRUE(Sheet.TakeEvents().front().starts_with("ErrInfo ErrNum=6 "));
    EXPECT_EQ(Members.DefaultRowHeight, 3e9F);
}

TEST_F(Properties, GetRowHeight_TellsWhatDataRowsAreMadeWith)
{
    Sheet->RowHeight(300.5F, false, true);
    EXPECT_EQ(Sheet->GetRowHeight(1), 300.5F);
    EXPECT_EQ(Sheet->GetRowHeight(3), 300.5F);
    EXPECT_EQ(Sheet->GetRowHeight(0), 0.0F);
    EXPECT_EQ(Sheet->GetRowHeight(-1), 0.0F);
    EXPECT_EQ(Sheet->GetRowHeight(4), 0.0F);
}

// ---- Widths, dates, flags ------------------------------------------------------------------------------------------

TEST_F(Properties, ColWidth_IsRoundedAndPainted)
{
    EXPECT_EQ(CallsOf([&] { Sheet->ColWidth(2, 1500.5F); }),
              (Lines{"MSFlexGrid1.ColWidth(2)=1500", "MSFlexGrid1.Refresh()"}));
    EXPECT_EQ(CallsOf([&] { Sheet->ColWidth(0, 301.5F); }),
              (Lines{"MSFlexGrid1.ColWidth(0)=302", "MSFlexGrid1.Refresh()"}));
}

TEST_F(Properties, ColumnOfTheMarker_TakesAWidthButNotTheCursor)
{
    Sheet->ColWidth(0, 333);
    Sheet->Col(0);
    EXPECT_EQ(Grid().ColWidth(0), 333);
    EXPECT_EQ(Sheet->Col(), 1);
}

TEST_F(Properties, ColWidthOfNought_TakesTheColumnOutOfWidthFitting)
{
    Declare(u"0123456789", false, faContent);
    Sheet->ColWidth(2, 0);
    Sheet->TextMatrix(1, 2, u"0123456789");
    EXPECT_EQ(Grid().ColWidth(2), 0);
    Declare(u"0123456789", false, faHeader);
    Sheet->RowHeight(300, false, false);
    EXPECT_EQ(Grid().ColWidth(2), 0);
    Sheet->ColWidth(2, 1);
    Sheet->RowHeight(300, false, false);
    EXPECT_EQ(Grid().ColWidth(2), 1410);
}

TEST_F(Properties, ColWidthOutsideItsRange_IsIgnored)
{
    EXPECT_EQ(CallsOf([&] {
                  Sheet->ColWidth(2, -1);
                  Sheet->ColWidth(-1, 500);
                  Sheet->ColWidth(4, 500);
                  Sheet->ColWidth(2, std::numeric_limits<float>::quiet_NaN());
              }),
              Lines{});
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Properties, ColWidthOfAHiddenColumn_IsIgnored)
{
    Declare(u"C2", true, faNil);
    EXPECT_EQ(CallsOf([&] { Sheet->ColWidth(2, 500); }), Lines{});
}

TEST_F(Properties, DateFormat_IsTrimmedAndGoesToThePicker)
{
    EXPECT_EQ(
        CallsOf([&] { Sheet->DateFormat(u"  yyyy-MM-dd "); }),
        (Lines{"DTPicker1.Format=3", "DTPicker1.CustomFormat=\"yyyy-MM-dd\"", "DTPicker1.DataFormat=\"yyyy-MM-dd\""}));
    EXPECT_EQ(Members.DateFormatText, u"yyyy-MM-dd");
}

TEST_F(Properties, DateFormatOfBlanks_IsIgnored)
{
    EXPECT_EQ(CallsOf([&] {
                  Sheet->DateFormat(u"   ");
                  Sheet->DateFormat(u"");
                  Sheet->DateFormat({});
              }),
              Lines{});
    EXPECT_EQ(Members.DateFormatText, u"dd/MM/yyyy");
}

TEST_F(Properties, DateFormat_LeavesTheCellsAsTheyAre)
{
    Sheet->TextMatrix(1, 1, u"15/03/2024");
    Sheet->DateFormat(u"yyyy-MM-dd");
    EXPECT_EQ(Sheet->TextMatrix(1, 1), u"15/03/2024");
}

TEST_F(Properties, FlagsReadAsTheyWereWritten)
{
    for (const bool flag : {false, true, false}) {
        Sheet->AllowAddNew(flag);
        Sheet->RaiseError(flag);
        Sheet->ShowErrMessage(!flag);
        EXPECT_EQ(Sheet->AllowAddNew(), flag);
        EXPECT_EQ(Sheet->RaiseError(), flag);
        EXPECT_EQ(Sheet->ShowErrMessage(), !flag);
    }
}

} // namespace Tessellon
