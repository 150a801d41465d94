#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetThatMeasuresCapitals.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tessellon {
namespace {

class BuildGridColumns : public testing::Test {
protected:
    template <class Call>
    Lines CallsOf(const Call& call)
    {
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
        call();
        return Sheet.TakeCalls();
    }
    Lines CallsOfBuild()
    {
        return CallsOf([&] { Sheet->BuildGridColumns(); });
    }
    void Declare(std::int32_t col, std::u16string_view heading, FieldControlType kind, std::u16string_view setting,
                 bool hidden, FieldControlAlign align, FieldAutoAdjustType adjust)
    {
        Sheet->CreateColumnDataType(col, heading, kind, setting, hidden, align, 40, adjust, false);
    }
    void DeclareText(std::int32_t col, bool hidden = false, FieldAutoAdjustType adjust = faNil)
    {
        Declare(col, u"0123456789", fcTextBox, u"", hidden, fcLeft, adjust);
    }
    GridEngine& Grid() { return Sheet.Platform->TheGrid(); }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

Lines Joined(const std::vector<Lines>& parts)
{
    Lines all;
    for (const Lines& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

Lines StandDowns(const Lines& editors)
{
    Lines calls;
    for (const std::string& editor : editors)
        calls.insert(calls.end(), {editor + ".Visible=False", editor + ".Enabled=False", editor + ".ZOrder(1)"});
    return calls;
}

/// The painting of one row's band, from the first data column to `last`.
Lines Band(int row, int last, const std::string& color)
{
    return {"MSFlexGrid1.FillStyle=1",
            "MSFlexGrid1.Row=" + std::to_string(row),
            "MSFlexGrid1.Col=1",
            "MSFlexGrid1.ColSel=" + std::to_string(last),
            "MSFlexGrid1.CellBackColor=" + color,
            "MSFlexGrid1.FillStyle=0"};
}

} // namespace

TEST_F(BuildGridColumns, GoesStepByStep)
{
    Sheet->Cols(4);
    Declare(1, u" Name ", fcComboBox, u"a|b", false, fcRight, faNil);
    Declare(2, u"Gone", fcTextBox, u"", true, fcCenter, faHeader);
    Declare(3, u"0123456789", fcComboBox, u"c", false, fcLeft, faHeader);
    Sheet->BuildGridColumns();
    Sheet->AllowAddNew(true);
    Sheet->Add(0, 2);
    Sheet->ColWidth(0, 300);
    Sheet->ColWidth(1, 1200);
    Probe.SetAllDisable();
    Members.MarkerRow = -1;
    const std::string odd = std::to_string(Members.SectionColors[1]);
    const std::string even = std::to_string(Members.SectionColors[0]);
    const Lines editors{"Text1",     "Check1",        "Combo1(0)",    "Combo1(1)",  "List1(0)",
                        "DTPicker1", "MaskEdBox1(0)", "RichTextBox1", "Command1(0)"};
    const Lines all = StandDowns(editors);

    const Lines calls = CallsOfBuild();

    const Lines instances{"MaskEdBox1(0).Mask=\"\"", "Combo1.Unload(1)", "Combo1(0).Clear()", "List1(0).Clear()",
                          "Command1(0).Caption=\"\""};
    const Lines shape{"MSFlexGrid1.Cols=1", "MSFlexGrid1.Rows=1", "MSFlexGrid1.Rows=3", "MSFlexGrid1.Cols=4"};
    const Lines first{
        "MSFlexGrid1.ColWidth(0)=300",  "MSFlexGrid1.TextMatrix(0,1)=\" Name \"", "MSFlexGrid1.Col=1",
        "MSFlexGrid1.ColWidth(1)=1200", "MSFlexGrid1.ColAlignment(1)=7",          "Combo1(0).AddItem(\"a\")",
        "Combo1(0).AddItem(\"b\")"};
    const Lines second{"MSFlexGrid1.TextMatrix(0,2)=\"Gone\"", "MSFlexGrid1.Col=2", "MSFlexGrid1.ColWidth(2)=0",
                       "MSFlexGrid1.ColAlignment(2)=4", "MSFlexGrid1.ColWidth(2)=0"};
    const Lines third{"MSFlexGrid1.TextMatrix(0,3)=\"0123456789\"",
                      "MSFlexGrid1.Col=3",
                      "MSFlexGrid1.ColWidth(3)=1410",
                      "MSFlexGrid1.ColAlignment(3)=1",
                      "Combo1.Load(1)",
                      "Combo1(1).AddItem(\"c\")"};
    const Lines last{"MSFlexGrid1.Row=1",    "MSFlexGrid1.Col=1",     "MSFlexGrid1.RowSel=1", "MSFlexGrid1.ColSel=1",
                     "MSFlexGrid1.TopRow=1", "MSFlexGrid1.LeftCol=1", "MSFlexGrid1.Refresh()"};
    const Lines head = Joined({instances,
                               shape,
                               first,
                               second,
                               third,
                               {"MSFlexGrid1.RowHeight(0)=240"},
                               Band(1, 3, odd),
                               Band(2, 3, even),
                               {"MSFlexGrid1.Row=1"}});
    const Lines tail = Joined({all, all, last});
    ASSERT_GE(calls.size(), head.size() + tail.size());
    // The grid tells of its moves to the headings on the way, which paints it.
    Lines begin = calls;
    std::erase(begin, "MSFlexGrid1.Refresh()");
    begin.resize(head.size());
    EXPECT_EQ(begin, head);
    EXPECT_EQ(Lines(calls.end() - static_cast<std::ptrdiff_t>(tail.size()), calls.end()), tail);
}

// The marker follows the cursor, which the colours leave on the first row; only if that fails is it put there itself.
TEST_F(BuildGridColumns, MarkerThatCouldNotFollowTheCursor_IsShownBehindTheColours)
{
    Sheet.Build({fcTextBox}, 2);
    Members.MarkerRow = -1;
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.CellPictureAlignment", 7);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"RefreshPicture"});
    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_EQ(Grid().PictureOf({1, 0}), Picture::Arrow);
}

TEST_F(BuildGridColumns, HeadingThatIsTooWide_WidensItsColumnAndPaints)
{
    Sheet->Cols(2);
    DeclareText(1, false, faHeader);
    const Lines calls = Only(CallsOfBuild(), {"MSFlexGrid1.ColWidth(1)", "MSFlexGrid1.Redraw=True"});
    ASSERT_GE(calls.size(), 3U);
    EXPECT_EQ((Lines{calls[0], calls[1], calls[2]}),
              (Lines{"MSFlexGrid1.ColWidth(1)=960", "MSFlexGrid1.ColWidth(1)=1410", "MSFlexGrid1.Redraw=True"}));
}

TEST_F(BuildGridColumns, HeadingOfAColumnThatDoesNotFollowIt_LeavesTheWidth)
{
    Sheet->Cols(3);
    DeclareText(1, false, faNil);
    DeclareText(2, false, faContent);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Grid().ColWidth(1), 960);
    EXPECT_EQ(Grid().ColWidth(2), 960);
}

TEST_F(BuildGridColumns, HiddenColumn_KeepsWidthNoughtThoughItFollowsItsHeading)
{
    Sheet->Cols(2);
    DeclareText(1, true, faHeader);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Grid().ColWidth(1), 0);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Grid().ColWidth(1), 0);
}

TEST_F(BuildGridColumns, ColumnOfWidthNought_StaysThereThoughItFollowsItsHeading)
{
    Sheet->Cols(2);
    DeclareText(1, false, faHeader);
    Sheet->ColWidth(1, 0);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Grid().ColWidth(1), 0);
}

TEST_F(BuildGridColumns, ColumnWiderThanItsHeading_KeepsItsWidth)
{
    constexpr float exact = 10 * 120 + 210;
    Sheet->Cols(2);
    DeclareText(1, false, faHeader);
    for (const auto& [width, built] : {std::pair{exact + 1, 1411}, {exact, 1410}, {exact - 1, 1410}}) {
        Sheet->ColWidth(1, width);
        Sheet->BuildGridColumns();
        EXPECT_EQ(Grid().ColWidth(1), built);
    }
}

TEST(HeadingOfAColumn, IsMeasuredInCapitals)
{
    SheetThatMeasuresCapitals sheet;
    sheet.Build(u"name", faHeader);
    EXPECT_EQ(sheet.WidthOfFirst(), 2210);
}

TEST_F(BuildGridColumns, HeadingWithBlanks_GoesToTheGridWithThemAndIsReadWithout)
{
    Sheet->Cols(2);
    Declare(1, u"  two words ", fcTextBox, u"", false, fcLeft, faNil);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Grid().TextMatrix(0, 1), u"  two words ");
    EXPECT_EQ(Sheet->ColumnHeader(1), u"two words");
}

TEST_F(BuildGridColumns, AlignmentThatIsNone_SetsNothing)
{
    Sheet->Cols(5);
    Declare(1, u"A", fcTextBox, u"", false, fcLeft, faNil);
    Declare(2, u"B", fcTextBox, u"", false, fcCenter, faNil);
    Declare(3, u"C", fcTextBox, u"", false, fcRight, faNil);
    Declare(4, u"D", fcTextBox, u"", false, static_cast<FieldControlAlign>(0), faNil);
    EXPECT_EQ(
        Only(CallsOfBuild(), {"MSFlexGrid1.ColAlignment"}),
        (Lines{"MSFlexGrid1.ColAlignment(1)=1", "MSFlexGrid1.ColAlignment(2)=4", "MSFlexGrid1.ColAlignment(3)=7"}));
}

TEST_F(BuildGridColumns, EachKindCountsItsInstancesFromTheLeft)
{
    Sheet->Cols(10);
    const std::vector<FieldControlType> kinds{fcComboBox,      fcTextBox,       fcComboBox,
                                              fcListBox,       fcMaskedEditBox, fcCommandButton,
                                              fcMaskedEditBox, fcCommandButton, fcComboBox};
    for (std::size_t i = 0; i < kinds.size(); ++i)
        Declare(static_cast<std::int32_t>(i) + 1, u"A", kinds[i], u"", false, fcLeft, faNil);
    Sheet->BuildGridColumns();
    const std::vector<std::int16_t> indexes{0, 0, 1, 0, 0, 0, 1, 1, 2};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        EXPECT_EQ(Members.ColumnData[i].cdControlIndex, indexes[i]) << i;
        EXPECT_EQ(Members.ColumnData[i].cdObjectIndex, static_cast<std::int32_t>(i) + 1);
    }
    EXPECT_EQ(Members.NextComboIndex, 4);
    EXPECT_EQ(Members.NextListIndex, 2);
    EXPECT_EQ(Members.NextMaskIndex, 3);
    EXPECT_EQ(Members.NextCommandIndex, 3);
}

TEST_F(BuildGridColumns, Twice_LeavesEachComboItsItemsOnce)
{
    Sheet->Cols(2);
    Declare(1, u"A", fcComboBox, u"a|b", false, fcLeft, faNil);
    Sheet->BuildGridColumns();
    Sheet->BuildGridColumns();
    Sheet->AllowAddNew(true);
    Sheet->Add(0);
    // Down goes to the item behind the first that equals the text: were the items there twice, b would be no end.
    constexpr std::int16_t down = 40;
    for (const std::u16string_view chosen : {u"a", u"b", u"b"}) {
        Sheet.Press(down);
        EXPECT_EQ(Sheet->TextMatrix(1, 1), chosen);
    }
}

TEST_F(BuildGridColumns, FirstColumns_AreTheFirstThatMayBeEnteredAndTheFirstThatShows)
{
    Sheet->Cols(5);
    Declare(1, u"A", fcTextBox, u"", true, fcLeft, faNil);
    Declare(2, u"B", fcNil, u"", false, fcLeft, faNil);
    Declare(3, u"C", fcTextBox, u"", false, fcLeft, faNil);
    Declare(4, u"D", fcTextBox, u"", false, fcLeft, faNil);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Members.FirstEditableCol, 3);
    EXPECT_EQ(Members.FirstVisibleCol, 2);
}

TEST_F(BuildGridColumns, FirstColumns_StayThroughALaterBuildUntilCleared)
{
    Sheet->Cols(3);
    DeclareText(1);
    DeclareText(2);
    Sheet->BuildGridColumns();
    DeclareText(1, true);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Members.FirstEditableCol, 1);
    EXPECT_EQ(Members.FirstVisibleCol, 1);
    Sheet->Clear();
    EXPECT_EQ(Members.FirstEditableCol, -1);
    EXPECT_EQ(Members.FirstVisibleCol, -1);
}

TEST_F(BuildGridColumns, WithoutColumns_LeavesOneCellAndIsReady)
{
    Members.ColumnData.at(0).cdObjectIndex = 5;
    const Lines calls = CallsOfBuild();
    EXPECT_EQ(Only(calls, {"MSFlexGrid1."}), (Lines{"MSFlexGrid1.Cols=1", "MSFlexGrid1.Rows=1", "MSFlexGrid1.Rows=1",
                                                    "MSFlexGrid1.Cols=1", "MSFlexGrid1.RowHeight(0)=240"}));
    EXPECT_EQ(Grid().Rows(), 1);
    EXPECT_EQ(Grid().Cols(), 1);
    EXPECT_EQ(Members.ColumnData.at(0).cdObjectIndex, 1);
    EXPECT_TRUE(Members.GridReady);
    EXPECT_FALSE(Members.ColumnsDeclared);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(BuildGridColumns, WithoutDataRows_LeavesTheCursorWhereItIs)
{
    Sheet->Cols(3);
    DeclareText(1);
    DeclareText(2);
    const Lines calls = CallsOfBuild();
    EXPECT_EQ(CountOf(calls, "MSFlexGrid1.TopRow=1"), 0);
    EXPECT_EQ(Grid().Row(), 0);
    EXPECT_EQ(Grid().Col(), 2) << "the last column whose heading was written";
    EXPECT_TRUE(Members.ColumnsDeclared);
    EXPECT_EQ(Members.MarkerRow, -1);
    EXPECT_TRUE(Members.GridReady);
}

TEST_F(BuildGridColumns, WithAllColumnsHidden_GoesToTheFirstRowAlone)
{
    Sheet.Build({fcTextBox}, 2);
    Sheet->Clear();
    Sheet->Cols(3);
    DeclareText(1, true);
    DeclareText(2, true);
    Sheet.Platform->MSFlexGrid1().Rows(3);
    const Lines calls = CallsOfBuild();
    EXPECT_EQ(Members.FirstVisibleCol, -1);
    Lines last(calls.end() - 4, calls.end());
    EXPECT_EQ(calls.back(), "MSFlexGrid1.Refresh()");
    std::erase(last, "MSFlexGrid1.Refresh()");
    EXPECT_EQ(last, (Lines{"MSFlexGrid1.TopRow=1", "MSFlexGrid1.Row=1", "MSFlexGrid1.RowSel=1"}));
    EXPECT_EQ(PlaceOf(calls, "MSFlexGrid1.LeftCol=1"), calls.size());
}

TEST_F(BuildGridColumns, WithAllColumnsTakenAway_GoesToTheFirstRowAlone)
{
    Sheet.Build({fcTextBox}, 2);
    Sheet->Cols(1);
    const Lines calls = CallsOfBuild();
    ASSERT_EQ(Members.FirstVisibleCol, 1);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{});
    EXPECT_EQ(CountOf(calls, "MSFlexGrid1.Col=1"), 0);
    EXPECT_EQ(CountOf(calls, "MSFlexGrid1.LeftCol=1"), 0);
    EXPECT_EQ(CountOf(calls, "MSFlexGrid1.TopRow=1"), 1);
}

TEST_F(BuildGridColumns, ColumnsThatTheGridRefuses_AreNotCounted)
{
    Sheet.Build({fcTextBox, fcTextBox}, 2);
    const auto last = static_cast<std::int32_t>(PlaceOf(CallsOfBuild(), "MSFlexGrid1.Cols=3"));
    Members.ColCount = 7;
    Sheet.Calls->FailAtCall(last + 1, 7);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"BuildGridColumns"});
    EXPECT_EQ(Grid().Cols(), 1);
    EXPECT_EQ(Members.ColCount, 7);
}

TEST_F(BuildGridColumns, EmptiesTheCellsAndKeepsTheRowsAndTheWidths)
{
    Sheet.Build({fcTextBox, fcTextBox}, 3);
    Sheet->TextMatrix(2, 2, u"x");
    Sheet->ColWidth(0, 111);
    Sheet->ColWidth(2, 2222);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Sheet->Rows(), 4);
    EXPECT_EQ(Sheet->TextMatrix(2, 2), u"");
    EXPECT_EQ(Grid().ColWidth(0), 111);
    EXPECT_EQ(Grid().ColWidth(2), 2222);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{});
}

TEST_F(BuildGridColumns, MarkerIsShownOnlyWhereThereWasNone)
{
    Sheet.Build({fcTextBox}, 3);
    Sheet->Row(3);
    ASSERT_EQ(Members.MarkerRow, 3);
    EXPECT_EQ(CountOf(CallsOfBuild(), "MSFlexGrid1.CellPicture=arrow"), 1);
    // The cursor's own move to the first row carries it there.
    EXPECT_EQ(Members.MarkerRow, 1);
}

TEST_F(BuildGridColumns, ClearsTheRequestsOfTheEditors)
{
    Sheet.Build({fcTextBox}, 1);
    for (bool* flag :
         {&Members.GridScrolled, &Members.GridClicked, &Members.ShowEditorRequest, &Members.GridClickPending,
          &Members.GridRowClickPending, &Members.AdvancePending, &Members.RefreshingColors}) {
        *flag = true;
    }
    Members.HideEditorRequest = false;
    Sheet->BuildGridColumns();
    for (const bool flag :
         {Members.GridScrolled, Members.GridClicked, Members.ShowEditorRequest, Members.GridClickPending,
          Members.GridRowClickPending, Members.AdvancePending, Members.RefreshingColors}) {
        EXPECT_FALSE(flag);
    }
    EXPECT_TRUE(Members.HideEditorRequest);
}

TEST_F(BuildGridColumns, ClearsTheRequestsAheadOfItsLastMoveAndBehindIt)
{
    Sheet.Build({fcTextBox, fcTextBox}, 2);
    Members.FirstVisibleCol = 2;
    Members.GridScrolled = true;
    bool scrolledAtLast = true;
    Sheet->LeaveCell += [&] {
        scrolledAtLast = Members.GridScrolled;
        Members.GridScrolled = true;
    };
    int told = 0;
    Sheet->SelChange += [&] { told += Members.CurrentCol == 2 && Members.CurrentRow == 1 ? 1 : 0; };

    Sheet->BuildGridColumns();

    EXPECT_GE(told, 1);
    EXPECT_FALSE(scrolledAtLast);
    EXPECT_FALSE(Members.GridScrolled);
}

TEST_F(BuildGridColumns, LaysNoEditorOnItsWay)
{
    Sheet.Build({fcTextBox, fcTextBox}, 2);
    Lines upDuring;
    Sheet->EnterCell += [&] {
        const Lines up = Sheet.EditorsUp();
        upDuring.insert(upDuring.end(), up.begin(), up.end());
        EXPECT_FALSE(Members.GridReady);
    };
    Sheet->Cols(3);
    Members.MarkerRow = 0;
    Probe.SetAllDisable();
    Sheet.Heard.clear();
    Sheet->BuildGridColumns();
    EXPECT_GE(CountOf(Sheet.TakeEventNames(), "EnterCell"), 1);
    EXPECT_EQ(upDuring, Lines{});
    EXPECT_EQ(Sheet.EditorsUp(), Lines{});
}

TEST_F(BuildGridColumns, HeadingHeight_IsThatOfTheMember)
{
    Sheet->Cols(2);
    Members.HeaderRowHeight = 400.5F;
    EXPECT_EQ(CountOf(CallsOfBuild(), "MSFlexGrid1.RowHeight(0)=400"), 1);
}

TEST_F(BuildGridColumns, FailureLeavesTheGridUnreadyUntilTheNextBuild)
{
    Sheet.Build({fcTextBox}, 1);
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Cols", 7);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"BuildGridColumns"});
    EXPECT_FALSE(Members.GridReady);
    Sheet->BuildGridColumns();
    EXPECT_TRUE(Members.GridReady);
}

} // namespace Tessellon
