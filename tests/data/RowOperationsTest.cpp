#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tessellon {
namespace {

/// Four rows of two columns, the user in the first cell.
class RowOperations : public testing::Test {
protected:
    RowOperations()
    {
        Sheet.Build({fcTextBox, fcTextBox}, 4);
        Forget();
    }
    void Forget()
    {
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    Grid& TheGrid() { return Sheet.Platform->MSFlexGrid1(); }
    void SetCell(std::int32_t row, std::int32_t column, std::u16string_view text)
    {
        TheGrid().TextMatrix(row, column, text);
    }
    bool HasArrow(std::int32_t row) { return Sheet.Platform->TheGrid().PictureOf({row, 0}) == Picture::Arrow; }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

using SearchColumn = RowOperations;
using DeleteRow = RowOperations;
using ClearSheet = RowOperations;

// ---- SearchCol ------------------------------------------------------------------------------------------------------

TEST_F(SearchColumn, FoundRow_BecomesCurrentAndBearsTheMarker)
{
    SetCell(3, 2, u"Ada");
    ASSERT_EQ(Members.MarkerRow, 1);
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 3);
    EXPECT_EQ(Sheet->Row(), 3);
    EXPECT_EQ(Members.CurrentRow, 3);
    EXPECT_EQ(Members.MarkerRow, 3);
    EXPECT_TRUE(HasArrow(3));
    EXPECT_FALSE(HasArrow(1));
    EXPECT_TRUE(Members.ShowEditorRequest);
}

TEST_F(SearchColumn, Marker_GoesFromTheOldRowAheadOfTheCursorAndToTheNewBehindIt)
{
    SetCell(1, 2, u"Ada");
    Members.MarkerRow = 2; // The cursor stands on the found row already: no event moves the marker.
    Sheet->SearchCol(2, u"Ada");
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.Row=", "MSFlexGrid1.CellPicture=", "MSFlexGrid1.TopRow"}),
              (Lines{"MSFlexGrid1.Row=2", "MSFlexGrid1.CellPicture=none", "MSFlexGrid1.Row=1", "MSFlexGrid1.Row=1",
                     "MSFlexGrid1.Row=1", "MSFlexGrid1.CellPicture=none", "MSFlexGrid1.CellPicture=arrow",
                     "MSFlexGrid1.Row=1"}));
    EXPECT_EQ(Members.MarkerRow, 1);
}

TEST_F(SearchColumn, MarkerThatTheMovesOwnEventsBroughtAlong_IsNotShownTwice)
{
    SetCell(3, 2, u"Ada");
    Sheet->SearchCol(2, u"Ada");
    EXPECT_EQ(CountOf(Sheet.TakeCalls(), "MSFlexGrid1.CellPicture=arrow"), 1);
    EXPECT_EQ(Members.PreviousMarkerRow, 1);
}

TEST_F(SearchColumn, FoundRowThatBearsTheMarker_IsNotMarkedAgain)
{
    SetCell(1, 2, u"Ada");
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 1);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1."}), Lines{"MSFlexGrid1.Row=1"});
    EXPECT_TRUE(Members.ShowEditorRequest);
}

TEST_F(SearchColumn, WithoutAMarker_NoneIsTakenAway)
{
    SetCell(1, 2, u"Ada");
    Members.MarkerRow = -1;
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 1);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.CellPicture="}),
              (Lines{"MSFlexGrid1.CellPicture=none", "MSFlexGrid1.CellPicture=arrow"}));
    EXPECT_EQ(Members.MarkerRow, 1);
}

TEST_F(SearchColumn, MarkerThatCannotBeShown_KeepsItsRow)
{
    SetCell(3, 2, u"Ada");
    Members.ColumnsDeclared = false;
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 3);
    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_TRUE(Members.ShowEditorRequest);
}

TEST_F(SearchColumn, TextAndCell_AreBothTrimmedAndTheUpperRowIsFound)
{
    SetCell(2, 1, u"   Ada ");
    SetCell(4, 1, u"Ada");
    EXPECT_EQ(Sheet->SearchCol(1, u" Ada  "), 2);
}

TEST_F(SearchColumn, LastRow_IsSearchedToo)
{
    SetCell(4, 2, u"Ada");
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 4);
}

TEST(SearchOfASheetOfOneRow, FindsIt)
{
    SheetUnderTest sheet;
    sheet.Build({fcTextBox}, 1);
    sheet->TextMatrix(1, 1, u"a");
    EXPECT_EQ(sheet->SearchCol(1, u"a"), 1);
}

TEST_F(SearchColumn, HeadingAndOtherColumns_AreNotSearched)
{
    SetCell(2, 1, u"Ada");
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 0);
    EXPECT_EQ(Sheet->SearchCol(2, u"C2"), 0);
}

TEST_F(SearchColumn, Case_Counts)
{
    SetCell(2, 2, u"ada");
    SetCell(3, 2, u"Ada");
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 3);
    EXPECT_EQ(Sheet->SearchCol(2, u"ADA"), 0);
}

TEST_F(SearchColumn, NothingFound_ChangesNothing)
{
    SetCell(2, 2, u"Ada");
    const bool request = Members.ShowEditorRequest;
    for (const std::u16string_view text : {u"ada", u"Ad", u"Adam"})
        EXPECT_EQ(Sheet->SearchCol(2, text), 0);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
    EXPECT_EQ(Members.ShowEditorRequest, request);
    EXPECT_EQ(Members.MarkerRow, 1);
}

TEST_F(SearchColumn, BlankText_FindsNothingEvenInBlankCells)
{
    SetCell(2, 2, u"   ");
    EXPECT_EQ(Sheet->SearchCol(2, u"   "), 0);
    EXPECT_EQ(Sheet->SearchCol(2, u""), 0);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(SearchColumn, ColumnThatIsNone_FindsNothing)
{
    SetCell(2, 0, u"Ada");
    for (const std::int32_t bad : {-1, 0, 3})
        EXPECT_EQ(Sheet->SearchCol(bad, u"Ada"), 0);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(SearchColumn, SheetWithNothingButAHeading_FindsNothing)
{
    SetCell(1, 2, u"Ada");
    Members.RowCount = 1;
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 0);
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(SearchColumn, RowOutOfView_StaysThere)
{
    Sheet->Add(4, 60);
    Sheet->Row(1);
    TheGrid().TopRow(1);
    SetCell(60, 2, u"Ada");
    Forget();
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 60);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.TopRow"}), Lines());
}

TEST_F(SearchColumn, SearchThatFails_IsReportedUnderItsLabelAndFindsNothing)
{
    SetCell(3, 2, u"Ada");
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
    EXPECT_EQ(Sheet->SearchCol(2, u"Ada"), 0);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"SearchCol"});
    EXPECT_EQ(Sheet->Row(), 1);
}

// ---- Delete ---------------------------------------------------------------------------------------------------------

TEST_F(DeleteRow, RowsBelow_MoveUpAndTheEditorGoes)
{
    for (std::int32_t row = 1; row <= 4; ++row)
        SetCell(row, 1, std::u16string(1, static_cast<char16_t>(u'0' + row)));
    Sheet->Delete(2);
    EXPECT_EQ(Sheet->Rows(), 4);
    EXPECT_EQ(Members.RowCount, 4);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), u"1");
    EXPECT_EQ(Sheet->TextMatrix(2, 1), u"3");
    EXPECT_EQ(Sheet->TextMatrix(3, 1), u"4");
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(DeleteRow, Steps_ComeInTheirOrder)
{
    Sheet.Hand.Click(2, 1);
    Forget();
    Sheet->Delete(3);
    const Lines calls =
        Only(Sheet.TakeCalls(), {"Text1.Visible", "MSFlexGrid1.RemoveItem", "MSFlexGrid1.CellBackColor",
                                 "MSFlexGrid1.CellPicture=", "MSFlexGrid1.TopRow", "MSFlexGrid1.LeftCol"});
    // Down, removed, two rows painted from the current one on (which takes the editors down), marked, down, scrolled.
    EXPECT_EQ(calls.front(), "Text1.Visible=False");
    EXPECT_EQ(CountOf(calls, "MSFlexGrid1.RemoveItem(3)"), 1);
    const Lines behind(calls.begin() + static_cast<std::ptrdiff_t>(PlaceOf(calls, "MSFlexGrid1.RemoveItem(3)")),
                       calls.end());
    EXPECT_EQ(Only(behind, {"MSFlexGrid1.CellBackColor"}).size(), 2U);
    EXPECT_EQ(Only(behind, {"MSFlexGrid1.RemoveItem", "MSFlexGrid1.CellPicture=", "Text1", "MSFlexGrid1.LeftCol"}),
              (Lines{"MSFlexGrid1.RemoveItem(3)", "Text1.Visible=False", "MSFlexGrid1.CellPicture=none",
                     "MSFlexGrid1.CellPicture=arrow", "Text1.Visible=False", "MSFlexGrid1.LeftCol=1"}));
    EXPECT_EQ(Members.CurrentRow, 2);
    EXPECT_EQ(Members.MarkerRow, 2);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
}

TEST_F(DeleteRow, CurrentRow_IsReadBackFromTheGrid)
{
    Sheet.Hand.Click(4, 1);
    Sheet->Delete(4);
    EXPECT_EQ(Members.CurrentRow, 3);
    EXPECT_EQ(TheGrid().Row(), 3);
    EXPECT_EQ(Members.MarkerRow, 3);
}

TEST_F(DeleteRow, OldMarkerOnARowThatSurvives_StaysThereAsWell)
{
    Sheet.Hand.Click(2, 1);
    Probe.RefreshPicture(ptArrow, 4);
    Members.MarkerRow = 4;
    Sheet->Delete(3);
    EXPECT_EQ(Members.MarkerRow, 2);
    EXPECT_TRUE(HasArrow(2));
    EXPECT_TRUE(HasArrow(3));
}

TEST_F(DeleteRow, MarkerThatCannotBeShown_KeepsItsRow)
{
    Sheet.Hand.Click(2, 1);
    Members.ColumnsDeclared = false;
    Members.MarkerRow = 1;
    Sheet->Delete(4);
    EXPECT_EQ(Members.MarkerRow, 1);
}

TEST_F(DeleteRow, OnlyTheLastRow_AsksForTheVisibleArea)
{
    Sheet->Add(4, 60);
    for (const std::int32_t current : {30, 63}) {
        Members.VisibleRows = 10;
        Sheet.Hand.Click(current, 1);
        TheGrid().TopRow(1);
        Forget();
        Sheet->Delete(2); // The cursor keeps its row, but that it is drawn back from 63 to 62, the last one.
        EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.TopRow"}).empty(), current == 30) << current;
    }
}

TEST_F(DeleteRow, LastDataRow_LeavesTheHeadingAloneAndTheMembersAsTheyWere)
{
    Sheet->Delete(4);
    Sheet->Delete(3);
    Sheet->Delete(2);
    ASSERT_EQ(Members.RowCount, 2);
    Members.CurrentRow = 1;
    Members.MarkerRow = 1;
    Members.ShowEditorRequest = true;
    Members.HideEditorRequest = false;
    Forget();
    Sheet->Delete(1);
    EXPECT_EQ(Sheet->Rows(), 1);
    EXPECT_EQ(Members.RowCount, 1);
    EXPECT_EQ(Members.CurrentRow, 1);
    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1."}), (Lines{"MSFlexGrid1.Rows=1", "MSFlexGrid1.LeftCol=1"}));
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines());
}

TEST_F(DeleteRow, RowThatIsNone_IsRefusedWithTheEditorDown)
{
    for (const std::int32_t bad : {-1, 0, 5, 99}) {
        Sheet.Hand.Click(2, 1);
        ASSERT_EQ(Sheet.EditorsUp().size(), 1U);
        Forget();
        Sheet->Delete(bad);
        EXPECT_EQ(Sheet.EditorsUp(), Lines());
        EXPECT_EQ(Sheet->Rows(), 5);
        EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1."}), Lines());
        EXPECT_EQ(Sheet.TakeEvents(), Lines());
    }
}

TEST_F(DeleteRow, SheetWithNothingButAHeading_RefusesAll)
{
    Members.RowCount = 1;
    Sheet->Delete(1);
    Sheet->Delete(0);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1."}), Lines());
}

TEST_F(DeleteRow, LeaveToAddRows_HasNoBearing)
{
    Sheet->AllowAddNew(false);
    Sheet->Delete(1);
    EXPECT_EQ(Sheet->Rows(), 4);
}

TEST_F(DeleteRow, SheetWithoutDataColumns_IsNotScrolled)
{
    Members.ColCount = 1;
    Sheet->Delete(2);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.LeftCol"}), Lines());
    EXPECT_EQ(Sheet->Rows(), 4);
}

TEST_F(DeleteRow, DeletionThatFails_IsReportedUnderItsLabelAndGoesNoFurther)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.RemoveItem", 7);
    Sheet->Delete(2);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Delete"});
    EXPECT_EQ(Members.RowCount, 5);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1."}), Lines{"MSFlexGrid1.RemoveItem(2)"});
}

// ---- Clear ----------------------------------------------------------------------------------------------------------

TEST_F(ClearSheet, EverythingIsEmptyAgain)
{
    SetCell(0, 0, u"corner");
    Sheet->Clear();
    EXPECT_EQ(Sheet->Rows(), 1);
    EXPECT_EQ(Sheet->Cols(), 1);
    EXPECT_EQ(TheGrid().TextMatrix(0, 0), u"");
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Members.RowCount, 1);
    EXPECT_EQ(Members.ColCount, 1);
    EXPECT_EQ(Members.CurrentRow, 0);
    EXPECT_EQ(Members.CurrentCol, 0);
    EXPECT_EQ(Members.MarkerRow, -1);
    EXPECT_EQ(Members.FirstEditableCol, -1);
    EXPECT_EQ(Members.FirstVisibleCol, -1);
    EXPECT_EQ(Members.ColumnBound, 0);
    ASSERT_EQ(Members.ColumnData.size(), 1U);
    EXPECT_EQ(Members.ColumnData.front().cdColName, u"");
    EXPECT_EQ(Members.ColumnData.front().cdControlType, fcNil);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines());
}

TEST_F(ClearSheet, Sizes_GoBackToThoseOfTheStart)
{
    Members.HeaderRowHeight = 500;
    Members.DefaultRowHeight = 600;
    Members.DefaultColWidth = 700;
    Members.InitialRowHeight = 250.5F;
    Members.InitialColWidth = 961.5F;
    Sheet->Clear();
    EXPECT_EQ(Members.HeaderRowHeight, 250.5F);
    EXPECT_EQ(Members.DefaultRowHeight, 250.5F);
    EXPECT_EQ(Members.DefaultColWidth, 961.5F);
    EXPECT_EQ(TheGrid().RowHeight(0), 250); // To the nearest, ties to even.
    EXPECT_EQ(TheGrid().ColWidth(0), 962);
}

TEST_F(ClearSheet, Steps_ComeInTheirOrder)
{
    Forget();
    Sheet->Clear();
    const Lines calls = Sheet.TakeCalls();
    EXPECT_EQ(calls.front(), "Text1.Visible=False");
    EXPECT_EQ(Only(calls, {"MSFlexGrid1.Rows", "MSFlexGrid1.Cols", "MSFlexGrid1.TextMatrix", "MSFlexGrid1.ColWidth",
                           "MSFlexGrid1.RowHeight", "MaskEdBox1(0).Mask", "Combo1(0).Clear", "List1(0).Clear",
                           "Command1(0).Caption"}),
              (Lines{"MSFlexGrid1.Rows=1", "MSFlexGrid1.Cols=1", "MSFlexGrid1.TextMatrix(0,0)=\"\"",
                     "MSFlexGrid1.ColWidth(0)=960", "MSFlexGrid1.RowHeight(0)=240", "MaskEdBox1(0).Mask=\"\"",
                     "Combo1(0).Clear()", "List1(0).Clear()", "Command1(0).Caption=\"\"", "MSFlexGrid1.Rows=1"}));
}

TEST_F(ClearSheet, InstancesOfTheColumns_AreUnloaded)
{
    Sheet->Clear();
    Sheet.Build({fcComboBox, fcComboBox, fcListBox, fcListBox}, 2);
    ASSERT_EQ(Sheet.Platform->Combo1().Count(), 2);
    Sheet->Clear();
    EXPECT_EQ(Sheet.Platform->Combo1().Count(), 1);
    EXPECT_EQ(Sheet.Platform->List1().Count(), 1);
    EXPECT_EQ(Members.NextComboIndex, 1);
}

TEST_F(ClearSheet, Recordset_IsLetGo)
{
    const auto records = std::make_shared<TestRecordset>();
    records->Types = {200};
    Sheet->DataSource(records, std::make_shared<TestConnection>());
    ASSERT_NE(Members.BoundRecordset, nullptr);
    Sheet->Clear();
    EXPECT_EQ(Members.BoundRecordset, nullptr);
    EXPECT_EQ(records.use_count(), 1);
}

TEST_F(ClearSheet, DeclarationAndReadiness_KeepTheirValues)
{
    for (const bool value : {true, false}) {
        Members.ColumnsDeclared = value;
        Members.GridReady = value;
        Sheet->Clear();
        EXPECT_EQ(Members.ColumnsDeclared, value);
        EXPECT_EQ(Members.GridReady, value);
    }
}

TEST_F(ClearSheet, ClearingThatFails_IsReportedUnderItsLabelAndGoesNoFurther)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.RowHeight", 7);
    Sheet->Clear();
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Clear"});
    EXPECT_EQ(Members.ColumnBound, 2);
    EXPECT_EQ(Members.MarkerRow, 1);
}

TEST_F(ClearSheet, SheetThatIsBuiltAgain_Works)
{
    Sheet->Clear();
    Sheet.Build({fcTextBox}, 1);
    Sheet.Type(u"new");
    EXPECT_EQ(Sheet->TextMatrix(1, 1), u"new");
}

} // namespace
} // namespace Tessellon
