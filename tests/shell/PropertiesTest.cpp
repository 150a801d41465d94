#include "shell/PropertiesFixture.h"
#include "support/SheetThatMeasuresCapitals.h"

#include <functional>
#include <limits>
#include <ostream>
#include <utility>
#include <vector>

namespace Tessellon {
namespace {

constexpr std::int32_t longMaximum = std::numeric_limits<std::int32_t>::max();

} // namespace

// ---- Row and Col ---------------------------------------------------------------------------------------------------

TEST_F(Properties, RowOutsideTheDataRows_IsIgnored)
{
    for (const std::int32_t row : {0, -1, 4, longMaximum}) {
        EXPECT_EQ(CallsOf([&] { Sheet->Row(row); }), Lines{}) << row;
        EXPECT_EQ(Sheet->Row(), 1) << row;
    }
}

TEST_F(Properties, DateFormatThatThePickerRefuses_HoldsForTheTextsAllTheSame)
{
    constexpr double thirdOfFebruary2024 = 45325;
    Members.ColumnData.at(0).cdControlType = fcDatePicker;
    Grid().TextMatrix(1, 1, u"02/03/2024");
    Sheet.Calls->FailAtMember(u"DTPicker1.Format", 7);
    Sheet->DateFormat(u"MM/dd/yyyy");
    Probe.EnterCell();
    EXPECT_EQ(Sheet.Platform->ThePicker()->Value(), thirdOfFebruary2024);
}

TEST_F(Properties, LastRow_IsOneBelowTheNumberOfRows)
{
    Sheet->Row(Sheet->Rows() - 1);
    EXPECT_EQ(Sheet->Row(), 3);
    EXPECT_EQ(Grid().Row(), 3);
}

TEST_F(Properties, RowBehindAWrite_IsWhereTheGridsOwnEventFoundTheCursor)
{
    int moves = 0;
    Sheet->RowColChange += [&] {
        if (++moves == 1)
            Grid().Row(2);
    };
    Sheet->Row(3);
    EXPECT_EQ(Grid().Row(), 2);
    EXPECT_EQ(Sheet->Row(), 2);
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

TEST_F(Properties, Heading_IsNoTextOfACellButReadByColumnHeader)
{
    EXPECT_EQ(Sheet->TextMatrix(0, 1), u"");
    Sheet->TextMatrix(0, 1, u"other");
    EXPECT_EQ(Grid().TextMatrix(0, 1), u"C1");
    EXPECT_EQ(Sheet->ColumnHeader(1), u"C1");
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

TEST_F(Properties, TextThatWidensTheCurrentColumn_HidesTheEditorUntilTheNextCellEntry)
{
    Declare(u"C2", false, faContent);
    Sheet.Hand.Click(1, 2);
    ASSERT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    Sheet->TextMatrix(1, 2, u"0123456789");
    EXPECT_EQ(Sheet.EditorsUp(), Lines{});
    Sheet->TextMatrix(1, 2, u"x");
    Sheet->TextMatrix(2, 1, u"0123456789");
    EXPECT_EQ(Sheet.EditorsUp(), Lines{});
    Sheet.Hand.Click(2, 2);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
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

TEST(TextOfACell, IsMeasuredInCapitals)
{
    SheetThatMeasuresCapitals sheet;
    sheet.Build(u"", faContent);
    sheet->AllowAddNew(true);
    sheet->Add(0, 1);
    sheet->TextMatrix(1, 1, u" ab ");
    EXPECT_EQ(sheet.WidthOfFirst(), 1210);
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
