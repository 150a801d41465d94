#include "data/LoadFixture.h"

namespace Tessellon {
namespace {

/// Three rows of two text columns whose first cells hold 1, 2, 3; the editor is up in the first cell.
class AddingRows : public testing::Test {
protected:
    AddingRows()
    {
        Sheet.Build({fcTextBox, fcTextBox}, 3);
        for (std::int32_t row = 1; row <= 3; ++row)
            Sheet->TextMatrix(row, 1, Utf16(std::to_string(row)));
        Forget();
    }
    void Forget()
    {
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    std::string Column()
    {
        std::string all;
        for (std::int32_t row = 1; row < Sheet->Rows(); ++row)
            all += Utf8(Sheet->TextMatrix(row, 1)) + '|';
        return all;
    }

    Grid& TheGrid() { return Sheet.Platform->MSFlexGrid1(); }
    void ExpectRefused(std::int32_t row, std::int32_t count)
    {
        Sheet.Hand.Click(1, 1);
        ASSERT_EQ(Sheet.EditorsUp().size(), 1U);
        Forget();
        Sheet->Add(row, count);
        EXPECT_EQ(Sheet.EditorsUp(), Lines());
        EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.AddItem"}), Lines());
        EXPECT_EQ(Sheet->Rows(), 4);
        EXPECT_TRUE(Members.GridReady);
        EXPECT_EQ(Only(Sheet.TakeEvents(), {"ErrInfo"}), Lines());
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

TEST_F(AddingRows, Refused_AsksNothingOfTheGrid)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Rows", 7);
    Sheet->Add(-1);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines());
    Sheet->Add(1);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Add"});
}

TEST_F(AddingRows, WhereTheMarkerCannotBeShown_KeepItsRow)
{
    Members.ColumnsDeclared = false;
    Members.MarkerRow = -1;
    Sheet->Add(1);
    EXPECT_EQ(Members.MarkerRow, -1);
}

TEST_F(AddingRows, CountAsAClickOnARowBehindTheEntryOfTheCell)
{
    Sheet->EnterCell += [&] { Members.GridRowClickPending = false; };
    Sheet->Add(1);
    EXPECT_TRUE(Members.GridRowClickPending);
}

TEST_F(AddingRows, BehindARow_PutsItOnTopOfTheViewStepByStep)
{
    Members.ColumnsDeclared = false; // No marker walks among the calls.
    Probe.SetAllDisable();
    Forget();
    Sheet->Add(1);
    const Lines calls = Sheet.TakeCalls();
    const std::string odd = "MSFlexGrid1.CellBackColor=" + std::to_string(Members.SectionColors[1]);
    const std::string even = "MSFlexGrid1.CellBackColor=" + std::to_string(Members.SectionColors[0]);
    Lines expected{"MSFlexGrid1.AddItem(\"\",2)", "MSFlexGrid1.RowHeight(2)=240"};
    for (const auto& [row, color] : {std::pair{2, even}, {3, odd}, {4, even}}) {
        for (const std::string& line :
             {std::string("FillStyle=1"), "Row=" + std::to_string(row), std::string("Col=1"), std::string("ColSel=2")})
            expected.push_back("MSFlexGrid1." + line);
        expected.push_back(color);
        expected.push_back("MSFlexGrid1.FillStyle=0");
    }
    expected.insert(expected.end(), {"MSFlexGrid1.Row=2", "MSFlexGrid1.Refresh()", "MSFlexGrid1.Col=1"});
    const auto begin = calls.begin() + static_cast<std::ptrdiff_t>(PlaceOf(calls, expected.front()));
    ASSERT_GE(calls.end() - begin, std::ssize(expected));
    EXPECT_EQ(Lines(begin, begin + std::ssize(expected)), expected);
    const Lines tail{"MSFlexGrid1.Redraw=True", "MSFlexGrid1.Refresh()", "MSFlexGrid1.LeftCol=1",
                     "MSFlexGrid1.Col=1",       "MSFlexGrid1.TopRow=2",  "MSFlexGrid1.Row=2",
                     "MSFlexGrid1.Col=1",       "MSFlexGrid1.ColSel=1",  "MSFlexGrid1.RowSel=2",
                     "MSFlexGrid1.Row=2",       "MSFlexGrid1.Refresh()"};
    const auto end = calls.begin() + static_cast<std::ptrdiff_t>(PlaceOf(calls, "MSFlexGrid1.Redraw=True"));
    ASSERT_GE(calls.end() - end, std::ssize(tail));
    EXPECT_EQ(Lines(end, end + std::ssize(tail)), tail);
}

TEST_F(AddingRows, BehindARow_LeavesTheEditorUpOnTheNewOne)
{
    Sheet->Add(1);
    EXPECT_EQ(Column(), "1||2|3|");
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_EQ(Sheet->Col(), 1);
    EXPECT_EQ(Members.CurrentRow, 2);
    EXPECT_EQ(Members.RowCount, 5);
    EXPECT_EQ(Members.MarkerRow, 2);
    EXPECT_TRUE(Members.GridReady);
    EXPECT_TRUE(Members.GridRowClickPending);
    EXPECT_FALSE(Members.AddingRows);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    EXPECT_EQ(Sheet.Focus(), "Text1");
}

TEST_F(AddingRows, BehindRow0_MakesANewFirstRow)
{
    Sheet->Add(0);
    EXPECT_EQ(Column(), "|1|2|3|");
    EXPECT_EQ(Sheet->Row(), 1);
}

TEST_F(AddingRows, PastTheEnd_Appends)
{
    Sheet->Add(99);
    EXPECT_EQ(Column(), "1|2|3||");
    EXPECT_EQ(Sheet->Row(), 4);
    Sheet->Add(5);
    EXPECT_EQ(Column(), "1|2|3|||") << "a row that is the count of rows is past the end";
}

TEST_F(AddingRows, ManyAtOnce_StandOneUnderTheOtherAndTheFirstIsGoneTo)
{
    Sheet->Add(1, 3);
    EXPECT_EQ(Column(), "1||||2|3|");
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.AddItem"}),
              (Lines{"MSFlexGrid1.AddItem(\"\",2)", "MSFlexGrid1.AddItem(\"\",3)", "MSFlexGrid1.AddItem(\"\",4)"}));
    EXPECT_EQ(Members.RowCount, 7);
}

TEST_F(AddingRows, ThreeAtOnce_SelectTheFirstAndPutItOnTopOfTheView)
{
    Sheet->Add(3, 60);
    Sheet.Hand.Click(2, 2);
    ASSERT_EQ(TheGrid().TopRow(), 2);
    Sheet->Add(30, 3);
    EXPECT_EQ(TheGrid().TopRow(), 31);
    EXPECT_EQ(TheGrid().Row(), 31);
    EXPECT_EQ(TheGrid().RowSel(), 31);
    EXPECT_EQ(TheGrid().Col(), 1);
    EXPECT_EQ(TheGrid().ColSel(), 1);
    EXPECT_EQ(Members.MarkerRow, 31);
}

TEST_F(AddingRows, ManyAtTheEnd_MoveTheFirstOfThemToTheTopOfTheView)
{
    Sheet->Add(3, 40);
    EXPECT_EQ(Sheet->Row(), 4);
    EXPECT_EQ(TheGrid().TopRow(), 4);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
}

TEST_F(AddingRows, OneAtTheEnd_KeepsTheTopRow)
{
    Sheet->Add(3);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.TopRow"}), Lines());
    EXPECT_EQ(Sheet->Row(), 4);
}

TEST_F(AddingRows, OneAtTheEndThatMovesTheView_AsksTheEditorBack)
{
    Members.VisibleRows = 3; // The last but two of the rows, heading included, goes to the top.
    Sheet->Add(3);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.TopRow"}).back(), "MSFlexGrid1.TopRow=3");
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});

    Members.SkipEnterCell = true; // The cell entry asks for no editor itself.
    Sheet->Add(4);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_TRUE(Members.ShowEditorRequest);
}

TEST_F(AddingRows, WithoutLeave_AddNothingAndCloseTheEditor)
{
    ASSERT_EQ(Sheet.EditorsUp().size(), 1U);
    Sheet->AllowAddNew(false);
    ExpectRefused(1, 1);
}

TEST_F(AddingRows, BehindANegativeRow_AreRefused)
{
    ExpectRefused(-1, 1);
}

TEST_F(AddingRows, FewerThanOne_AreRefused)
{
    ExpectRefused(1, 0);
    ExpectRefused(1, -1);
}

TEST_F(AddingRows, WithoutColumns_AreRefused)
{
    SheetUnderTest bare;
    bare->AllowAddNew(true);
    bare->Add(0);
    EXPECT_EQ(bare->Rows(), 1);
}

TEST_F(AddingRows, Marker_GoesFromItsRowToTheNewOne)
{
    Sheet.Hand.Click(3, 1);
    EXPECT_EQ(Members.MarkerRow, 3);
    Sheet->Add(1);
    EXPECT_EQ(Members.MarkerRow, 2);
}

TEST_F(AddingRows, RowHeight_IsTheDefaultRounded)
{
    Members.DefaultRowHeight = 301.5F;
    Sheet->Add(1);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.RowHeight"}), Lines{"MSFlexGrid1.RowHeight(2)=302"});
}

TEST_F(AddingRows, HostInTheEntry_FindsTheFlagOfAddingSet)
{
    bool adding = false;
    Sheet->EnterCell += [&] { adding = Members.AddingRows; };
    Sheet->Add(1);
    EXPECT_TRUE(adding) << "at the last entry";
    EXPECT_FALSE(Members.AddingRows);
}

TEST_F(AddingRows, ThatFail_LeaveTheGridNotReadyUnderTheirLabel)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.AddItem", 7);
    Sheet->Add(1);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Add"});
    EXPECT_FALSE(Members.GridReady);
    EXPECT_EQ(Members.RowCount, 4);
    EXPECT_FALSE(Members.AddingRows);
}

} // namespace
} // namespace Tessellon
