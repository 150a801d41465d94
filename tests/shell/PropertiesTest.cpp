#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <ostream>

namespace Tessellon {
namespace {

/// Three text columns and three rows, the first cell entered.
class Properties : public testing::Test {
protected:
    Properties() { Sheet.Build({fcTextBox, fcTextBox, fcTextBox}, 3); }

    template <class Call>
    Lines CallsOf(const Call& call)
    {
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
        call();
        return Sheet.TakeCalls();
    }
    /// The second column again, with a heading and another way of following its text.
    void Declare(std::u16string_view heading, bool hidden, FieldAutoAdjustType adjust)
    {
        Sheet->CreateColumnDataType(2, heading, fcTextBox, u"", hidden, fcLeft, 40, adjust, false);
    }
    GridEngine& Grid() { return Sheet.Platform->TheGrid(); }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

constexpr std::int32_t longMaximum = std::numeric_limits<std::int32_t>::max();

} // namespace

// ---- Row and Col ---------------------------------------------------------------------------------------------------

TEST_F(Properties, RowOutsideTheDataRows_IsIgnored)
{
    for (const std::int32_t row : {0, -1, 4, longMaximum}) {
        EXPECT_EQ(CallsOf([&] { Sheet->Row(row); }), Lines{}) << row;
        EXPECT_EQ(Sheet->Row(), 1) << row;
    }
    Sheet->Row(Sheet->Rows() - 1);
    EXPECT_EQ(Sheet->Row(), 3);
    EXPECT_EQ(Grid().Row(), 3);
}

TEST_F(Properties, RowMovesTheMarkerFromItsRowToTheNewOne)
{
    ASSERT_EQ(Members.MarkerRow, 1);
    Sheet->Row(3);
    EXPECT_EQ(Members.MarkerRow, 3);
    EXPECT_EQ(Grid().PictureOf({1, 0}), Picture::None);
    EXPECT_EQ(Grid().PictureOf({3, 0}), Picture::Arrow);
}

TEST_F(Properties, RowThatBearsTheMarker_DrawsNoMarker)
{
    Members.MarkerRow = 2;
    Sheet->Row(2);
    const Lines calls = CallsOf([&] { Sheet->Row(2); });
    EXPECT_EQ(calls, Lines{"MSFlexGrid1.Row=2"});
}

TEST_F(Properties, RowWithoutAMarker_ShowsOneAndClearsNone)
{
    Sheet->Row(2);
    Members.MarkerRow = -1;
    const Lines calls = CallsOf([&] { Sheet->Row(2); });
    EXPECT_EQ(CountOf(calls, "MSFlexGrid1.CellPicture=none"), 1);
    EXPECT_EQ(CountOf(calls, "MSFlexGrid1.CellPicture=arrow"), 1);
    EXPECT_EQ(Members.MarkerRow, 2);
}

TEST_F(Properties, MarkerThatCannotBeShown_StaysWhereItWas)
{
    Members.ColumnsDeclared = false;
    Sheet->Row(2);
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_EQ(Members.MarkerRow, 1);
}

// A host that hears of the failure may go elsewhere: the marker goes to the row that is current by then.
TEST_F(Properties, RowWhoseOldMarkerFails_MarksTheRowThatIsCurrentBehindTheReport)
{
    Sheet->ShowErrMessage(false);
    Members.MarkerRow = 2;
    Sheet->ErrInfo += [&](auto&&...) { Members.CurrentRow = 1; };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.CellPictureAlignment", 7);

    Sheet->Row(3);

    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_EQ(Grid().PictureOf({1, 0}), Picture::Arrow);
}

TEST_F(Properties, ColOutsideTheDataColumns_IsIgnored)
{
    for (const std::int32_t col : {0, -1, 4, longMaximum}) {
        EXPECT_EQ(CallsOf([&] { Sheet->Col(col); }), Lines{}) << col;
        EXPECT_EQ(Sheet->Col(), 1) << col;
    }
    Sheet->Col(3);
    EXPECT_EQ(Sheet->Col(), 3);
}

TEST_F(Properties, ColWritesTheGridsColumnAlone)
{
    Members.MarkerRow = 2;
    const Lines calls = CallsOf([&] { Sheet->Col(2); });
    EXPECT_EQ(calls.front(), "MSFlexGrid1.Col=2");
    EXPECT_EQ(Sheet->Row(), 1);
    EXPECT_EQ(Members.CurrentCol, 2);
}

TEST_F(Properties, RowsAndCols_CountTheFixedOnes)
{
    EXPECT_EQ(Sheet->Rows(), 4);
    EXPECT_EQ(Sheet->Cols(), 4);
}

TEST_F(Properties, ColsReadsTheGridAndRowsTheMember)
{
    Members.ColCount = 9;
    Members.RowCount = 8;
    EXPECT_EQ(Sheet->Cols(), 4);
    EXPECT_EQ(Sheet->Rows(), 8);
}

TEST(NewSheetsProperties, ColsIsOneAndRowIsNought)
{
    SheetUnderTest sheet;
    EXPECT_EQ(sheet->Cols(), 1);
    EXPECT_EQ(sheet->Rows(), 1);
    EXPECT_EQ(sheet->Row(), 0);
    EXPECT_EQ(sheet->Col(), 0);
    EXPECT_EQ(sheet->hWnd(), 0);
    EXPECT_FALSE(sheet->AllowAddNew());
}

// ---- TextMatrix ----------------------------------------------------------------------------------------------------

TEST_F(Properties, TextOutsideTheDataCells_ReadsEmptyAndIsNotWritten)
{
    for (const auto& [row, col] :
         std::vector<std::pair<std::int32_t, std::int32_t>>{{0, 1}, {1, 0}, {-1, 1}, {1, -1}, {4, 1}, {1, 4}}) {
        EXPECT_EQ(Sheet->TextMatrix(row, col), u"");
        EXPECT_EQ(CallsOf([&, r = row, c = col] { Sheet->TextMatrix(r, c, u"x"); }), Lines{});
    }
    EXPECT_EQ(Grid().TextMatrix(0, 1), u"C1");
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Properties, TextIsWrittenToTheGridAlone)
{
    const Lines calls = CallsOf([&] { Sheet->TextMatrix(3, 2, u" two "); });
    EXPECT_EQ(calls, Lines{"MSFlexGrid1.TextMatrix(3,2)=\" two \""});
    EXPECT_EQ(Sheet->TextMatrix(3, 2), u" two ");
    EXPECT_EQ(Sheet->Row(), 1);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Properties, TextOfTheCellBeingEdited_DoesNotReachTheEditor)
{
    ASSERT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    Sheet->TextMatrix(1, 1, u"new");
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
}

TEST_F(Properties, TextThatIsTooWide_WidensItsColumnAndTakesTheEditorDown)
{
    Declare(u"C2", false, faContent);
    const Lines calls = CallsOf([&] { Sheet->TextMatrix(1, 2, u"  0123456789 "); });
    EXPECT_EQ(Only(calls, {"MSFlexGrid1."}),
              (Lines{"MSFlexGrid1.TextMatrix(1,2)=\"  0123456789 \"", "MSFlexGrid1.ColWidth(2)=1410",
                     "MSFlexGrid1.Redraw=True", "MSFlexGrid1.Refresh()"}));
    const Lines editor = Only(calls, {"Text1.Enabled", "Text1.Visible", "Text1.ZOrder"});
    ASSERT_GE(editor.size(), 3U);
    EXPECT_EQ(editor.front(), "Text1.Enabled=False");
    EXPECT_EQ(editor.back(), "Text1.ZOrder(1)");
    EXPECT_EQ(Sheet.EditorsUp(), Lines{});
    EXPECT_NE(Members.ActiveEditor, nullptr);
}

TEST_F(Properties, TextThatWidensWithoutAnEditorEverLaid_TouchesNone)
{
    Declare(u"C2", false, faContent);
    Members.ActiveEditor = nullptr;
    const Lines calls = CallsOf([&] { Sheet->TextMatrix(1, 2, u"0123456789"); });
    EXPECT_EQ(calls.back(), "MSFlexGrid1.Refresh()");
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Properties, TextThatJustFits_LeavesWidthAndEditor)
{
    Declare(u"C2", false, faContent);
    constexpr float exact = 10 * 120 + 210;
    Sheet->ColWidth(2, exact);
    EXPECT_EQ(CallsOf([&] { Sheet->TextMatrix(1, 2, u"0123456789"); }).size(), 1U);
    EXPECT_EQ(Grid().ColWidth(2), 1410);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    Sheet->ColWidth(2, exact - 1);
    Sheet->TextMatrix(1, 2, u"0123456789");
    EXPECT_EQ(Grid().ColWidth(2), 1410);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{});
}

TEST_F(Properties, TextOfAColumnThatDoesNotFollowIt_WidensNothing)
{
    for (const auto adjust : {faNil, faHeader}) {
        Declare(u"C2", false, adjust);
        EXPECT_EQ(CallsOf([&] { Sheet->TextMatrix(1, 2, u"0123456789"); }).size(), 1U);
    }
    Declare(u"C2", true, faContent);
    EXPECT_EQ(CallsOf([&] { Sheet->TextMatrix(1, 2, u"0123456789"); }).size(), 1U);
    Declare(u"C2", false, faContent);
    Sheet->ColWidth(2, 0);
    EXPECT_EQ(CallsOf([&] { Sheet->TextMatrix(1, 2, u"0123456789"); }).size(), 1U);
    EXPECT_EQ(Grid().ColWidth(2), 0);
}

TEST_F(Properties, TextIsMeasuredInCapitals)
{
    class CapitalToolkit : public HeadlessToolkit {
    public:
        float TextWidth(std::u16string_view text, const Font&) override { return text == u"AB" ? 5000.4F : 1; }
    };
    const auto platform = std::make_shared<EnginePlatform>(std::make_shared<CapitalToolkit>(), Locale::English());
    const SheetPointer sheet = TessellonSheet::Create(platform);
    TestBag bag;
    sheet->UserControl_ReadProperties(bag);
    sheet->Cols(2);
    sheet->CreateColumnDataType(1, u"", fcTextBox, u"", false, fcLeft, 40, faContent, false);
    sheet->BuildGridColumns();
    sheet->AllowAddNew(true);
    sheet->Add(0, 1);

    sheet->TextMatrix(1, 1, u" ab ");

    EXPECT_EQ(platform->TheGrid().ColWidth(1), 5210);
}

// ---- Heights -------------------------------------------------------------------------------------------------------

TEST_F(Properties, RowHeightNotAboveNought_ChangesNothing)
{
    Members.VisibleRows = 77;
    for (const float height : {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_EQ(CallsOf([&] { Sheet->RowHeight(height, true, true); }), Lines{});
    EXPECT_EQ(Members.DefaultRowHeight, 240.0F);
    EXPECT_EQ(Members.VisibleRows, 77);
}

TEST_F(Properties, RowHeight_RaisesTheLeastHeightAndCountsTheRowsInView)
{
    const Lines calls = CallsOf([&] { Sheet->RowHeight(300.5F, false, false); });
    EXPECT_EQ(calls, Lines{"MSFlexGrid1.RowHeightMin=300"});
    EXPECT_EQ(Members.DefaultRowHeight, 300.5F);
    EXPECT_EQ(Members.HeaderRowHeight, 240.0F);
    EXPECT_EQ(Grid().RowHeight(1), 300);
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

// ---- Labels --------------------------------------------------------------------------------------------------------

namespace {

struct LabelCase {
    std::string Label;
    std::u16string Member;
    std::function<void(TessellonSheet&)> Call;
};

void PrintTo(const LabelCase& label, std::ostream* out)
{
    *out << label.Label;
}

class PropertyLabels : public Properties, public testing::WithParamInterface<LabelCase> {};

} // namespace

TEST_P(PropertyLabels, StandInTheReport)
{
    Sheet.Calls->FailAtMember(GetParam().Member, 7);
    EXPECT_NO_THROW(GetParam().Call(*Sheet));
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{GetParam().Label});
}

INSTANTIATE_TEST_SUITE_P(
    Each, PropertyLabels,
    testing::Values(
        LabelCase{"RowProperty", u"MSFlexGrid1.Row", [](TessellonSheet& s) { s.Row(2); }},
        LabelCase{"ColProperty", u"MSFlexGrid1.Col", [](TessellonSheet& s) { s.Col(2); }},
        LabelCase{"hWndProperty", u"UserControl.hWnd", [](TessellonSheet& s) { EXPECT_EQ(s.hWnd(), 0); }},
        LabelCase{"TextMatrixProperty", u"MSFlexGrid1.TextMatrix", [](TessellonSheet& s) { s.TextMatrix(1, 1, u"x"); }},
        LabelCase{"RowHeightProperty", u"MSFlexGrid1.RowHeightMin",
                  [](TessellonSheet& s) { s.RowHeight(300, false, false); }},
        LabelCase{"DateFormatProperty", u"DTPicker1.Format", [](TessellonSheet& s) { s.DateFormat(u"d"); }},
        LabelCase{"ColsProperty", u"MSFlexGrid1.Cols", [](TessellonSheet& s) { EXPECT_EQ(s.Cols(), 0); }},
        LabelCase{"ColWidthProperty", u"MSFlexGrid1.ColWidth", [](TessellonSheet& s) { s.ColWidth(1, 500); }}),
    [](const auto& label) { return label.param.Label; });

} // namespace Tessellon
