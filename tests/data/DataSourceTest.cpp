#include "data/LoadFixture.h"
#include "support/SheetThatMeasuresCapitals.h"

namespace Tessellon {
namespace {

std::string Color(std::int32_t color)
{
    return "MSFlexGrid1.CellBackColor=" + std::to_string(color);
}

TEST_F(Load, GoesStepByStep)
{
    Columns({fcTextBox, fcTextBox});
    Lines calls = CallsOf(Texts({u"a", u"b"}));
    std::erase(calls, "MSFlexGrid1.Refresh()");
    const Lines marker(calls.begin() + std::min<std::ptrdiff_t>(37, std::ssize(calls)), calls.end());
    calls.resize(std::min<std::size_t>(37, calls.size()));
    EXPECT_EQ(calls,
              (Lines{"Screen.MousePointer=11", "Recordset.MoveFirst()",
                     // The count.
                     "Recordset.MoveFirst()", "Recordset.MoveNext()", "Recordset.MoveNext()", "Recordset.MoveFirst()",
                     "MSFlexGrid1.Rows=1", "MSFlexGrid1.Rows=3", "MSFlexGrid1.TextMatrix(1,1)=\"a\"",
                     "MSFlexGrid1.TextMatrix(1,2)=\"\"", "MSFlexGrid1.RowHeight(1)=240", "MSFlexGrid1.Redraw=True",
                     "MSFlexGrid1.Row=1", "MSFlexGrid1.FillStyle=1", "MSFlexGrid1.Col=1", "MSFlexGrid1.ColSel=2",
                     Color(Members.SectionColors[1]), "MSFlexGrid1.FillStyle=0", "Recordset.MoveNext()",
                     "MSFlexGrid1.TextMatrix(2,1)=\"b\"", "MSFlexGrid1.TextMatrix(2,2)=\"\"",
                     "MSFlexGrid1.RowHeight(2)=240", "MSFlexGrid1.Redraw=True", "MSFlexGrid1.Row=2",
                     "MSFlexGrid1.FillStyle=1", "MSFlexGrid1.Col=1", "MSFlexGrid1.ColSel=2",
                     Color(Members.SectionColors[0]), "MSFlexGrid1.FillStyle=0", "Recordset.MoveNext()",
                     "MSFlexGrid1.LeftCol=1", "MSFlexGrid1.Col=1", "MSFlexGrid1.ColSel=1", "MSFlexGrid1.Row=1",
                     // The first cell is entered: its editor comes up.
                     "Text1.Move(960,240,960,238)", "Text1.MaxLength=40", "Text1.Text=\"a\""}));
    const std::size_t top = PlaceOf(marker, "MSFlexGrid1.TopRow=1");
    ASSERT_LT(top, marker.size());
    EXPECT_EQ(Lines(marker.begin() + static_cast<std::ptrdiff_t>(top), marker.end()),
              (Lines{"MSFlexGrid1.TopRow=1", "Recordset.MoveFirst()", "MSFlexGrid1.Redraw=False", "MSFlexGrid1.Row=1",
                     "MSFlexGrid1.Col=0", "MSFlexGrid1.RowSel=1", "MSFlexGrid1.ColSel=0",
                     "MSFlexGrid1.CellPictureAlignment=4", "MSFlexGrid1.CellPicture=none",
                     "MSFlexGrid1.CellPicture=arrow", "MSFlexGrid1.Row=1", "MSFlexGrid1.Col=1", "MSFlexGrid1.RowSel=1",
                     "MSFlexGrid1.ColSel=1", "MSFlexGrid1.Redraw=True", "Screen.MousePointer=0"}));
}

TEST_F(Load, LeavesTheSheetReadyOnItsFirstRow)
{
    Columns({fcTextBox, fcTextBox});
    const auto records = Texts({u"a", u"b", u"c"});
    Sheet->DataSource(records, Link);
    EXPECT_EQ(Sheet->Rows(), 4);
    EXPECT_EQ(Sheet->Row(), 1);
    EXPECT_EQ(Sheet->Col(), 1);
    EXPECT_EQ(Members.RowCount, 4);
    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_TRUE(Members.GridReady);
    EXPECT_TRUE(Members.ColumnsDeclared);
    EXPECT_FALSE(Members.LoadingRecordset);
    EXPECT_FALSE(records->AtEnd());
    EXPECT_EQ(records->FirstMoves, 4);
    EXPECT_EQ(records->NextMoves, 6);
    EXPECT_NE(Members.BoundRecordset, nullptr);
    EXPECT_EQ(Sheet.Toolkit->Pointer, 0);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"a\""});
}

TEST_F(Load, WithoutARecordset_OnlyBlinksThePointer)
{
    Columns({fcTextBox});
    Sheet->DataSource(Texts({u"a"}), Link);
    const auto bound = Members.BoundRecordset;
    EXPECT_EQ(CallsOf(nullptr), (Lines{"Screen.MousePointer=11", "Screen.MousePointer=0"}));
    EXPECT_EQ(Members.BoundRecordset, bound);
    EXPECT_EQ(Text(1, 1), u"a");
    EXPECT_FALSE(Members.LoadingRecordset);
}

TEST_F(Load, WithoutColumns_OnlyBlinksThePointer)
{
    EXPECT_EQ(CallsOf(Texts({u"a"})), (Lines{"Screen.MousePointer=11", "Screen.MousePointer=0"}));
    EXPECT_EQ(Members.BoundRecordset, nullptr);
    EXPECT_FALSE(Members.LoadingRecordset);

    Columns({fcTextBox});
    Sheet->DataSource(Texts({u"a"}), Link);
    const auto bound = Members.BoundRecordset;
    Sheet->Cols(1);
    EXPECT_EQ(CallsOf(Texts({u"b"})), (Lines{"Screen.MousePointer=11", "Screen.MousePointer=0"}));
    EXPECT_EQ(Members.BoundRecordset, bound);
}

TEST_F(Load, OfNoRecords_KeepsTheOldRowsAndTakesTheRecordset)
{
    Columns({fcTextBox});
    Sheet->DataSource(Texts({u"a", u"b"}), Link);
    const auto bound = Members.BoundRecordset;
    Members.MarkerRow = 2;
    const Lines calls = CallsOf(Texts({}));
    EXPECT_EQ(Only(calls, {"Recordset", "MSFlexGrid1.Rows", "MSFlexGrid1.TextMatrix"}), Lines());
    EXPECT_NE(Members.BoundRecordset, bound);
    EXPECT_EQ(Text(2, 1), u"b");
    EXPECT_TRUE(Members.ColumnsDeclared);
    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_FALSE(Members.LoadingRecordset);
}

TEST_F(Load, OfNoRecordsIntoNoRows_ShowsNoMarker)
{
    Columns({fcTextBox});
    Sheet->DataSource(Texts({}), Link);
    EXPECT_EQ(Members.MarkerRow, -1);
    EXPECT_EQ(Sheet->Rows(), 1);
}

TEST_F(Load, Again_ReplacesAllRows)
{
    Columns({fcTextBox});
    Sheet->DataSource(Texts({u"a", u"b", u"c"}), Link);
    Sheet->DataSource(Texts({u"x"}), Link);
    EXPECT_EQ(Sheet->Rows(), 2);
    EXPECT_EQ(Text(1, 1), u"x");
    Sheet->DataSource(Records({adGUID}, {{OfText(u"y")}, {OfText(u"y")}}), Link);
    EXPECT_EQ(Text(1, 1), u"") << "nothing of the rows before is left";
}

TEST_F(Load, IntoColumnsThatWereNotBuilt_LetsTheMarkerFollowTheRowsAndEndsUndeclared)
{
    Sheet->Cols(2);
    Sheet.Column(1, fcTextBox);
    Sheet->DataSource(Texts({u"a"}), Link);
    EXPECT_EQ(Members.MarkerRow, 1) << "put there by the change of the selection, inside the load";
    EXPECT_FALSE(Members.ColumnsDeclared);
    EXPECT_EQ(Text(1, 1), u"a");
    EXPECT_TRUE(Members.GridReady);
}

TEST_F(Load, ShowsTheHostEachRowButLaysNoEditorAndMovesNoMarkerMeanwhile)
{
    Columns({fcTextBox});
    int entered = 0;
    Sheet->EnterCell += [&] {
        if (Members.GridReady)
            return;
        ++entered;
        EXPECT_TRUE(Members.LoadingRecordset);
        EXPECT_FALSE(Members.ColumnsDeclared);
        EXPECT_EQ(Sheet.EditorsUp(), Lines());
        EXPECT_EQ(Members.MarkerRow, -1);
    };
    Sheet->DataSource(Texts({u"a", u"b", u"c"}), Link);
    EXPECT_EQ(entered, 3);
}

TEST_F(Load, BringsTheFirstVisibleColumnIntoView)
{
    Sheet->Cols(4);
    Sheet.Column(1, fcTextBox, u"", true);
    Sheet.Column(2, fcTextBox);
    Sheet.Column(3, fcTextBox);
    Sheet->BuildGridColumns();
    Sheet->DataSource(Texts({u"a", u"b"}), Link);
    for (const std::int32_t col : {2, 3})
        Sheet->ColWidth(col, 9000);
    Sheet.Hand.Scroll(1, 3);
    ASSERT_EQ(Sheet.Platform->MSFlexGrid1().LeftCol(), 3);
    EXPECT_EQ(Only(CallsOf(Texts({u"a", u"b"})), {"MSFlexGrid1.LeftCol"}), Lines{"MSFlexGrid1.LeftCol=2"});
    EXPECT_EQ(Sheet.Platform->MSFlexGrid1().LeftCol(), 2);
    EXPECT_EQ(Sheet->Col(), 2);
}

TEST_F(Load, WithAllColumnsHidden_LeavesTheColumnAlone)
{
    Sheet->Cols(2);
    Sheet.Column(1, fcTextBox, u"", true);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Only(CallsOf(Texts({u"a", u"b"})), {"MSFlexGrid1.LeftCol"}), Lines());
    EXPECT_EQ(Sheet->Row(), 1);
}

TEST_F(Load, FewerFieldsThanColumns_GiveEmptyCells)
{
    Columns({fcTextBox, fcTextBox, fcTextBox});
    const Lines calls = CallsOf(Records({adVarWChar, adInteger}, {{OfText(u"a"), OfNull()}}));
    EXPECT_EQ(UpTo(Only(calls, {"MSFlexGrid1.TextMatrix"}), "MSFlexGrid1.TextMatrix(1,3)=\"\""),
              (Lines{"MSFlexGrid1.TextMatrix(1,1)=\"a\"", "MSFlexGrid1.TextMatrix(1,2)=\"0\"",
                     "MSFlexGrid1.TextMatrix(1,3)=\"\""}));
}

TEST_F(Load, MoreFieldsThanColumns_AreIgnored)
{
    Columns({fcTextBox});
    Sheet->DataSource(Records({adVarWChar, adInteger}, {{OfText(u"a"), OfInteger(5)}}), Link);
    EXPECT_EQ(Sheet->Cols(), 2);
    EXPECT_EQ(Text(1, 1), u"a");
    EXPECT_EQ(Sheet->ColumnHeader(1), u"C1");
}

TEST_F(Load, RowHeight_IsTheDefaultRounded)
{
    Columns({fcTextBox});
    Members.DefaultRowHeight = 300.5F;
    EXPECT_EQ(Only(CallsOf(Texts({u"a"})), {"MSFlexGrid1.RowHeight"}), Lines{"MSFlexGrid1.RowHeight(1)=300"});
}

// ---- Width ----------------------------------------------------------------------------------------------------------

class LoadThatFitsWidths : public Load {
protected:
    void Column(FieldAutoAdjustType adjust, bool hidden = false)
    {
        Sheet->Cols(2);
        Sheet->CreateColumnDataType(1, u"C", fcTextBox, u"", hidden, fcLeft, 40, adjust, false);
        Sheet->BuildGridColumns();
    }
    Lines Widths(const std::vector<std::u16string>& texts)
    {
        return Only(CallsOf(Texts(texts)), {"MSFlexGrid1.ColWidth"});
    }
};

TEST_F(LoadThatFitsWidths, ContentColumn_GrowsToItsWidestTextAndNeverShrinks)
{
    Column(faContent);
    // 120 a unit and 210 more; the column is 960 wide.
    EXPECT_EQ(Widths({u"abcdef", u"abcdefgh", u"abcdefg", u"abcdefghi"}),
              (Lines{"MSFlexGrid1.ColWidth(1)=1170", "MSFlexGrid1.ColWidth(1)=1290"}));
    EXPECT_EQ(Widths({u"a", u"abcdefghi"}), Lines()) << "as wide is wide enough";
}

TEST_F(LoadThatFitsWidths, ContentColumnThatGrows_IsPaintedAtOnce)
{
    Column(faContent);
    const Lines calls = CallsOf(Texts({u"abcdefgh"}));
    const std::size_t place = PlaceOf(calls, "MSFlexGrid1.ColWidth(1)=1170");
    ASSERT_LT(place + 3, calls.size());
    EXPECT_EQ(calls[place + 1], "MSFlexGrid1.Redraw=True");
    EXPECT_EQ(calls[place + 2], "MSFlexGrid1.Refresh()");
    EXPECT_EQ(calls[place + 3], "MSFlexGrid1.RowHeight(1)=240");
}

TEST_F(LoadThatFitsWidths, ColumnsOfOtherAdjustmentsOrOfWidthNought_KeepTheirWidth)
{
    Column(faNil);
    EXPECT_EQ(Widths({u"abcdefghij"}), Lines());
    Column(faHeader);
    EXPECT_EQ(Widths({u"abcdefghij"}), Lines());
    Column(faContent);
    Sheet->ColWidth(1, 0);
    EXPECT_EQ(Widths({u"abcdefghij"}), Lines());
}

TEST_F(LoadThatFitsWidths, HiddenContentColumn_KeepsWidthNought)
{
    Column(faContent, true);
    EXPECT_EQ(Widths({u"abcdefghij"}), Lines());
    EXPECT_EQ(Sheet.Platform->MSFlexGrid1().ColWidth(1), 0);
    Sheet.Platform->MSFlexGrid1().ColWidth(1, 500);
    EXPECT_EQ(Widths({u"abcdefghij"}), Lines()) << "hidden, whatever its width";
}

TEST(LoadedText, IsMeasuredInCapitals)
{
    SheetThatMeasuresCapitals sheet;
    sheet.Build(u"", faContent);
    sheet->DataSource(Texts({u" abc ", u"d"}), std::make_shared<TestConnection>());
    EXPECT_EQ(sheet.WidthOfFirst(), 1710);
}

} // namespace
} // namespace Tessellon
