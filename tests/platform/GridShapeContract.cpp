#include "platform/PlatformContract.h"

#include <algorithm>

namespace Tessellon::Contract {

CONTRACT_SUITE(GridShapeContract);

TEST_P(GridShapeContract, NewGrid_IsTwoByTwo_WithTheCursorOnItsCorner_AndAnnouncedNoMove)
{
    const std::unique_ptr<PlatformUnderTest> fresh = TheFactory().Make();
    Grid& grid = fresh->Get()->MSFlexGrid1();
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Cols(), 2);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 1);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.Col(), 0);
    EventRecorder recorder;
    fresh->Get()->Listen(&recorder);
    grid.Row(0);
    grid.Col(0);
    EXPECT_EQ(recorder.Take(), Names{});
    fresh->Get()->Listen(nullptr);
}

TEST_P(GridShapeContract, RowsAndColsGoDownToTheFixedOnes_BelowIsFailure30016And30017)
{
    Cells().Rows(1);
    Cells().Cols(1);
    EXPECT_EQ(NumberOf([&] { Cells().Rows(0); }), 30016);
    EXPECT_EQ(NumberOf([&] { Cells().Cols(0); }), 30017);
    EXPECT_EQ(SourceOf([&] { Cells().Cols(0); }), "MSFlexGrid1");
}

TEST_P(GridShapeContract, Shrinking_PullsCursorAndSelectionBack_WithoutACellEvent)
{
    Cells().Row(20);
    Cells().Col(5);
    Told();
    Cells().Rows(11);
    Cells().Cols(3);
    EXPECT_EQ(Cell(), (Names{"10", "2", "10", "2"}));
    EXPECT_EQ(Told(), Names{});
    // What was announced last is pulled back in the same way: to write the cell where it stands is no move.
    Cells().Row(10);
    Cells().Col(2);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridShapeContract, Shrinking_PullsTopRowAndLeftColBack_AndTellsScrollForEachThatChanged)
{
    Cells().Rows(101);
    Cells().Cols(31);
    Cells().TopRow(60);
    Cells().LeftCol(15);
    Told();
    Cells().Rows(21);
    EXPECT_EQ(Cells().TopRow(), 2);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.Scroll"});
    Cells().Cols(6);
    EXPECT_EQ(Cells().LeftCol(), 1);
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.Scroll"});
}

TEST_P(GridShapeContract, Growing_GivesEmptyCellsOfTheDefaultSize_NeverWhatADroppedOneHeld)
{
    Cells().Row(20);
    Cells().Col(5);
    Cells().TextMatrix(20, 5, u"x");
    Cells().CellBackColor(255);
    Cells().CellPicture(Picture::Arrow);
    Cells().RowHeight(20, 600);
    Cells().ColWidth(5, 0);
    Cells().ColAlignment(5, 7);
    Cells().Rows(20);
    Cells().Cols(5);
    Cells().Rows(21);
    Cells().Cols(6);
    EXPECT_EQ(TextAt(20, 5), "");
    EXPECT_EQ(Cells().ColorOf({20, 5}), std::nullopt);
    EXPECT_EQ(Cells().PictureOf({20, 5}), Picture::None);
    EXPECT_EQ(Cells().RowHeight(20), 240);
    EXPECT_EQ(Cells().ColWidth(5), 960);
    EXPECT_EQ(Cells().ColAlignment(5), Cells().ColAlignment(4));
}

TEST_P(GridShapeContract, AddItem_SplitsTheTextAtTabs_FromColumn0_WithoutAnIndexAtTheEnd)
{
    Cells().AddItem(u"m\ta\t\tc", -1);
    EXPECT_EQ(Cells().Rows(), 22);
    EXPECT_EQ(TextAt(21, 0), "m");
    EXPECT_EQ(TextAt(21, 1), "a");
    EXPECT_EQ(TextAt(21, 2), "");
    EXPECT_EQ(TextAt(21, 3), "c");
    EXPECT_EQ(TextAt(21, 4), "");
}

TEST_P(GridShapeContract, AddItemAndRemoveItem_MoveRowsWithAllThatTheyHave_TheCursorKeepsItsRowNumber)
{
    Cells().TextMatrix(3, 1, u"three");
    Cells().RowHeight(3, 500);
    Cells().Row(3);
    Cells().CellBackColor(255);
    Cells().CellPicture(Picture::Arrow);
    Told();
    Cells().AddItem(u"", 2);
    EXPECT_EQ(Cells().Row(), 3);
    EXPECT_EQ(TextAt(4, 1), "three");
    EXPECT_EQ(Cells().RowHeight(4), 500);
    EXPECT_EQ(Cells().ColorOf({4, 1}), 255);
    EXPECT_EQ(Cells().PictureOf({4, 1}), Picture::Arrow);
    EXPECT_EQ(Cells().PictureOf({3, 1}), Picture::None);
    Cells().RemoveItem(1);
    Cells().RemoveItem(1);
    EXPECT_EQ(TextAt(2, 1), "three");
    EXPECT_EQ(Cells().RowHeight(2), 500);
    EXPECT_EQ(Cells().ColorOf({2, 1}), 255);
    EXPECT_EQ(Cells().Row(), 3);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridShapeContract, RemoveItem_OfTheCursorsLastRow_PullsItToTheLast)
{
    Cells().Row(20);
    Told();
    Cells().RemoveItem(20);
    EXPECT_EQ(Cell(), (Names{"19", "1", "19", "1"}));
    EXPECT_EQ(Told(), Names{});
}

TEST_P(GridShapeContract, FixedRowsAndTheLastDataRow_AreNeitherAddedNorRemoved)
{
    EXPECT_EQ(NumberOf([&] { Cells().AddItem(u"", 0); }), 30002);
    EXPECT_EQ(NumberOf([&] { Cells().RemoveItem(0); }), 30000);
    Cells().Rows(2);
    EXPECT_EQ(NumberOf([&] { Cells().RemoveItem(1); }), 30015);
    EXPECT_EQ(NumberOf([&] { Cells().RemoveItem(2); }), 30009);
}

TEST_P(GridShapeContract, RowHeight_ReadsTheLargerOfItsOwnAndTheLeast)
{
    Cells().RowHeight(2, 100);
    EXPECT_EQ(Cells().RowHeight(2), 100);
    Cells().RowHeightMin(300);
    EXPECT_EQ(Cells().RowHeight(2), 300);
    EXPECT_EQ(Cells().RowHeight(3), 300);
    Cells().RowHeight(2, 400);
    EXPECT_EQ(Cells().RowHeight(2), 400);
}

TEST_P(GridShapeContract, ColWidth_MinusOneRestoresTheDefault)
{
    Cells().ColWidth(2, 0);
    EXPECT_EQ(Cells().ColWidth(2), 0);
    Cells().ColWidth(2, -1);
    EXPECT_EQ(Cells().ColWidth(2), 960);
}

TEST_P(GridShapeContract, BadSubscriptsAndValues)
{
    EXPECT_EQ(NumberOf([&] { Cells().Row(21); }), 30009);
    EXPECT_EQ(NumberOf([&] { Cells().RowSel(-1); }), 30009);
    EXPECT_EQ(NumberOf([&] { Cells().Col(6); }), 30010);
    EXPECT_EQ(NumberOf([&] { Cells().ColSel(-1); }), 30010);
    EXPECT_EQ(NumberOf([&] { static_cast<void>(Cells().TextMatrix(21, 1)); }), 381);
    EXPECT_EQ(NumberOf([&] { Cells().TextMatrix(1, 6, u""); }), 381);
    EXPECT_EQ(NumberOf([&] { Cells().FillStyle(2); }), 380);
    EXPECT_EQ(NumberOf([&] { Cells().ColWidth(1, -2); }), 380);
}

TEST_P(GridShapeContract, FillStyle1_SetsTheWholeSelection_0TheCurrentCell)
{
    Cells().RowSel(2);
    Cells().ColSel(2);
    Cells().CellBackColor(7);
    EXPECT_EQ(Cells().ColorOf({2, 2}), std::nullopt);
    Cells().FillStyle(1);
    Cells().CellBackColor(255);
    Cells().FillStyle(0);
    EXPECT_EQ(Cells().ColorOf({1, 1}), 255);
    EXPECT_EQ(Cells().ColorOf({2, 2}), 255);
    EXPECT_EQ(Cells().ColorOf({3, 2}), std::nullopt);
}

// ---- The custom sort ------------------------------------------------------------------------------------------------

class SortContract : public GridShapeContract {
protected:
    SortContract()
    {
        Cells().Rows(7);
        int row = 1;
        for (const auto* text : {u"c", u"a", u"b", u"a", u"c", u"b"})
            Cells().TextMatrix(row++, 1, text);
        // The number tells rows of one text apart.
        for (row = 1; row < 7; ++row)
            Cells().TextMatrix(row, 2, std::u16string(1, static_cast<char16_t>(u'0' + row)));
    }

    void ByText()
    {
        Recorder.Always("MSFlexGrid1.Compare", [this](EventArguments& arguments) {
            const std::string first = TextAt(arguments.Row1, 1);
            const std::string second = TextAt(arguments.Row2, 1);
            arguments.Cmp = static_cast<std::int16_t>(first < second ? -1 : first > second ? 1 : 0);
        });
    }
    std::string Order()
    {
        std::string order;
        for (std::int32_t row = 1; row < Cells().Rows(); ++row)
            order += TextAt(row, 1) + TextAt(row, 2);
        return order;
    }
};

INSTANTIATE_TEST_SUITE_P(On, SortContract, ::testing::Values(TheFactory()), PlatformName);

TEST_P(SortContract, PutsRowsIntoTheHostsOrder_RowsThatAreEqualKeepTheirs)
{
    ByText();
    Cells().SortByCompare();
    EXPECT_EQ(Order(), "a2a4b3b6c1c5");
}

TEST_P(SortContract, Compare_IsRaisedOnceForEachPair_AndNoCellEventBeside)
{
    ByText();
    Cells().SortByCompare();
    Names told = Told();
    EXPECT_FALSE(told.empty());
    std::ranges::sort(told);
    EXPECT_EQ(std::ranges::adjacent_find(told), told.end());
    for (const std::string& event : told)
        EXPECT_EQ(event.rfind("MSFlexGrid1.Compare(", 0), 0U) << event;
}

TEST_P(SortContract, RowsGoWithHeightsColoursAndPictures_TheCursorKeepsItsRowNumber)
{
    Cells().RowHeight(2, 500);
    Cells().Row(2);
    Cells().Col(3);
    Cells().CellBackColor(255);
    Cells().CellPicture(Picture::Arrow);
    Cells().CellPictureAlignment(4);
    Cells().Row(5);
    Cells().CellBackColor(128);
    Told();
    ByText();
    Cells().SortByCompare();
    EXPECT_EQ(Cells().RowHeight(1), 500);
    EXPECT_EQ(Cells().RowHeight(2), 240);
    EXPECT_EQ(Cells().ColorOf({1, 3}), 255);
    EXPECT_EQ(Cells().PictureOf({1, 3}), Picture::Arrow);
    EXPECT_EQ(Cells().PictureAlignmentOf({1, 3}), 4);
    EXPECT_EQ(Cells().ColorOf({2, 3}), std::nullopt);
    EXPECT_EQ(Cells().ColorOf({6, 3}), 128);
    EXPECT_EQ(Cell(), (Names{"5", "3", "5", "3"}));
}

TEST_P(SortContract, SignOfCmpDecides_TheHeadingStays)
{
    Cells().TextMatrix(0, 1, u"zz");
    Recorder.Always("MSFlexGrid1.Compare", [](EventArguments& arguments) {
        EXPECT_GE(arguments.Row1, 1);
        EXPECT_LT(arguments.Row1, arguments.Row2 + 100);
        arguments.Cmp = arguments.Row1 < arguments.Row2 ? 1 : -1;
    });
    Cells().SortByCompare();
    EXPECT_EQ(Order(), "b6c5a4b3a2c1");
    EXPECT_EQ(TextAt(0, 1), "zz");
}

TEST_P(SortContract, WithoutAnAnswer_NothingMoves)
{
    Cells().SortByCompare();
    EXPECT_EQ(Order(), "c1a2b3a4c5b6");
}

TEST_P(SortContract, FailureInCompare_GoesThrough_AndMovesNothing)
{
    ByText();
    int count = 0;
    Recorder.AtEach([&](const std::string&) {
        if (++count == 5)
            throw Failure(13, u"Host", u"");
    });
    EXPECT_EQ(NumberOf([&] { Cells().SortByCompare(); }), 13);
    EXPECT_EQ(Order(), "c1a2b3a4c5b6");
}

TEST_P(SortContract, RowsAddedOrRemovedInCompare_EndTheSort)
{
    ByText();
    Recorder.Once("MSFlexGrid1.Compare", [&](EventArguments&) { Cells().RemoveItem(1); });
    Cells().SortByCompare();
    EXPECT_EQ(Told(), Names{"MSFlexGrid1.Compare(1,2)"});
    EXPECT_EQ(Order(), "a2b3a4c5b6");
}

TEST_P(SortContract, AnswersThatContradictThemselves_EndInSomeOrderOfAllRows)
{
    int count = 0;
    Recorder.Always("MSFlexGrid1.Compare",
                    [&](EventArguments& arguments) { arguments.Cmp = ++count % 2 == 0 ? 1 : -1; });
    Cells().SortByCompare();
    std::string rows;
    for (std::int32_t row = 1; row < 7; ++row)
        rows += TextAt(row, 2);
    std::ranges::sort(rows);
    EXPECT_EQ(rows, "123456");
}

TEST_P(SortContract, NothingElseRaisesCompare)
{
    Cells().TextMatrix(1, 1, u"z");
    Cells().AddItem(u"", 1);
    Cells().RemoveItem(1);
    Cells().Rows(20);
    Cells().Row(3);
    User().Click(0, 1);
    User().Click(2, 2);
    for (const std::string& event : Told())
        EXPECT_EQ(event.find("Compare"), std::string::npos);
}

TEST_P(SortContract, GridWithoutOrWithOneDataRow_ComparesNothing)
{
    Cells().Rows(2);
    Cells().SortByCompare();
    Cells().Rows(1);
    Told();
    Cells().SortByCompare();
    EXPECT_EQ(Told(), Names{});
}

} // namespace Tessellon::Contract
