#include "engine/grid/RecordingGrid.h"

namespace Tessellon::GridTests {

using Shape = GridTest;

TEST_F(Shape, NewGrid_IsTwoByTwoWithTheCornerCurrent)
{
    EXPECT_EQ(Grid.Rows(), 2);
    EXPECT_EQ(Grid.Cols(), 2);
    EXPECT_EQ(Grid.FixedRows(), 1);
    EXPECT_EQ(Grid.FixedCols(), 1);
    EXPECT_EQ(Cursor(), (Numbers{0, 0, 0, 0}));
    EXPECT_EQ(Scrolled(), (Numbers{1, 1}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Shape, RowsAndCols_GoDownToTheFixedOnes)
{
    Grid.Rows(1);
    Grid.Cols(1);
    EXPECT_EQ(NumberOf([&] { Grid.Rows(0); }), 30016);
    EXPECT_EQ(NumberOf([&] { Grid.Cols(0); }), 30017);
    EXPECT_EQ(NumberOf([&] { Grid.Rows(-5); }), 30016);
    EXPECT_EQ(Grid.Rows(), 1);
    EXPECT_EQ(Grid.Cols(), 1);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Shape, Failure_CarriesTheTextOfItsNumberAndTheNameOfTheGrid)
{
    try {
        Grid.Rows(0);
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Description, u"Invalid Rows value");
        EXPECT_EQ(failure.Source, u"MSFlexGrid1");
        EXPECT_EQ(failure.HelpFile, u"");
        EXPECT_EQ(failure.HelpContext, 0);
    }
}

TEST_F(Shape, ShrinkingRows_PullsTheCursorAndTheSelectionWithoutACellEvent)
{
    Build(10, 5);
    Select(7, 2, 9, 4);
    Forget();
    Grid.Rows(6);
    EXPECT_EQ(Cursor(), (Numbers{5, 2, 5, 4}));
    EXPECT_EQ(Told(), Names{});
    Grid.Cols(3);
    EXPECT_EQ(Cursor(), (Numbers{5, 2, 5, 2}));
    Grid.Rows(1);
    Grid.Cols(1);
    EXPECT_EQ(Cursor(), (Numbers{0, 0, 0, 0}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Shape, ShrinkingRows_PullsTheToldCellAlong)
{
    Build(10, 3);
    Grid.Row(8);
    Forget();
    Grid.Rows(6);
    Grid.Row(5);
    EXPECT_EQ(Told(), Names{});
    Grid.Rows(10);
    Grid.Row(8);
    EXPECT_EQ(Told(), wholeMove);
}

TEST_F(Shape, ShrinkingRows_PullsTheToldSelectionAlong)
{
    Build(10, 3);
    Select(4, 1, 9, 2);
    Forget();
    Grid.Rows(6);
    Grid.RowSel(5);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Shape, ShrinkingBelowTheView_TellsScrollOnceAndOnlyThen)
{
    Build(101, 3);
    Grid.TopRow(50);
    Forget();
    Grid.Rows(70);
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Grid.TopRow(), 50);
    Grid.Rows(40);
    EXPECT_EQ(Told(), Names{"Scroll"});
    EXPECT_EQ(Grid.TopRow(), 21);
    Grid.Rows(1);
    EXPECT_EQ(Told(), Names{"Scroll"});
    EXPECT_EQ(Grid.TopRow(), 1);
    Grid.Rows(100);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Shape, ShrinkingCols_PullsLeftColWithScroll)
{
    Build(3, 31);
    Grid.LeftCol(20);
    Forget();
    Grid.Cols(12);
    EXPECT_EQ(Told(), Names{"Scroll"});
    EXPECT_EQ(Scrolled(), (Numbers{1, 3}));
}

TEST_F(Shape, NewRows_TakeOverNothingOfDroppedOnes)
{
    Build(10, 3);
    Grid.TextMatrix(7, 2, u"old");
    Grid.RowHeight(7, 900);
    Grid.Row(7);
    Grid.Col(2);
    Grid.CellBackColor(255);
    Grid.CellPicture(Picture::Arrow);
    Grid.CellPictureAlignment(4);
    Grid.Rows(5);
    Grid.Rows(10);
    EXPECT_EQ(Grid.TextMatrix(7, 2), u"");
    EXPECT_EQ(Grid.RowHeight(7), 240);
    EXPECT_EQ(Grid.ColorOf({7, 2}), std::nullopt);
    EXPECT_EQ(Grid.PictureOf({7, 2}), Picture::None);
    EXPECT_EQ(Grid.PictureAlignmentOf({7, 2}), 0);
}

TEST_F(Shape, NewCols_TakeOverNothingOfDroppedOnes)
{
    Build(4, 6);
    Grid.TextMatrix(2, 4, u"old");
    Grid.TextMatrix(2, 1, u"kept");
    Grid.ColWidth(4, 50);
    Grid.ColAlignment(4, 7);
    Grid.FillStyle(1);
    Select(2, 1, 2, 5);
    Grid.CellBackColor(255);
    Grid.FillStyle(0);
    Grid.Cols(3);
    Grid.Cols(6);
    EXPECT_EQ(Grid.TextMatrix(2, 4), u"");
    EXPECT_EQ(Grid.TextMatrix(2, 1), u"kept");
    EXPECT_EQ(Grid.ColWidth(4), 960);
    EXPECT_EQ(Grid.ColAlignment(4), 1);
    EXPECT_EQ(Grid.ColorOf({2, 2}), 255);
    EXPECT_EQ(Grid.ColorOf({2, 4}), std::nullopt);
}

TEST_F(Shape, AddItem_SplitsItsTextAtTabsFromTheMarkerColumnOn)
{
    Build(3, 4);
    Grid.AddItem(u"m\ta\t\tc\tlost", -1);
    EXPECT_EQ(Grid.Rows(), 4);
    EXPECT_EQ(Grid.TextMatrix(3, 0), u"m");
    EXPECT_EQ(Grid.TextMatrix(3, 1), u"a");
    EXPECT_EQ(Grid.TextMatrix(3, 2), u"");
    EXPECT_EQ(Grid.TextMatrix(3, 3), u"c");
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Shape, AddItemInTheMiddle_TakesRowsBelowDownWithAllTheirs)
{
    Build(4, 3);
    Grid.TextMatrix(2, 1, u"two");
    Grid.RowHeight(2, 600);
    Grid.Row(2);
    Grid.CellBackColor(7);
    Grid.CellPicture(Picture::Arrow);
    Forget();
    Grid.AddItem(u"", 2);
    EXPECT_EQ(Grid.TextMatrix(2, 1), u"");
    EXPECT_EQ(Grid.TextMatrix(3, 1), u"two");
    EXPECT_EQ(Grid.RowHeight(2), 240);
    EXPECT_EQ(Grid.RowHeight(3), 600);
    EXPECT_EQ(Grid.ColorOf({3, 1}), 7);
    EXPECT_EQ(Grid.ColorOf({2, 1}), std::nullopt);
    EXPECT_EQ(Grid.PictureOf({3, 1}), Picture::Arrow);
    EXPECT_EQ(Grid.PictureOf({2, 1}), Picture::None);
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 2, 1}));
    EXPECT_EQ(Told(), Names{});
    Grid.RemoveItem(2);
    EXPECT_EQ(Grid.TextMatrix(2, 1), u"two");
    EXPECT_EQ(Grid.RowHeight(2), 600);
    EXPECT_EQ(Grid.ColorOf({2, 1}), 7);
    EXPECT_EQ(Grid.PictureOf({2, 1}), Picture::Arrow);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Shape, AddItem_TakesTheHeadingForNoPlaceAndNoRowBehindTheEnd)
{
    Build(3, 3);
    EXPECT_EQ(NumberOf([&] { Grid.AddItem(u"", 0); }), 30002);
    EXPECT_EQ(NumberOf([&] { Grid.AddItem(u"", 4); }), 30009);
    EXPECT_EQ(NumberOf([&] { Grid.AddItem(u"", -2); }), 30009);
    Grid.AddItem(u"\tlast", 3);
    EXPECT_EQ(Grid.TextMatrix(3, 1), u"last");
}

TEST_F(Shape, RemoveItem_KeepsTheRowNumberOfTheCursorOrItsNearestLeft)
{
    Build(5, 3);
    Grid.Row(3);
    Forget();
    Grid.RemoveItem(1);
    EXPECT_EQ(Cursor(), (Numbers{3, 1, 3, 1}));
    Grid.RemoveItem(3);
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 2, 1}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Shape, RemoveItem_RefusesTheHeadingTheLastDataRowAndRowsThatAreNotThere)
{
    Build(3, 3);
    EXPECT_EQ(NumberOf([&] { Grid.RemoveItem(0); }), 30000);
    EXPECT_EQ(NumberOf([&] { Grid.RemoveItem(3); }), 30009);
    EXPECT_EQ(NumberOf([&] { Grid.RemoveItem(-1); }), 30009);
    Grid.RemoveItem(1);
    EXPECT_EQ(NumberOf([&] { Grid.RemoveItem(1); }), 30015);
    EXPECT_EQ(Grid.Rows(), 2);
}

TEST_F(Shape, RemoveItem_PullsTopRowWithScroll)
{
    Build(41, 3);
    Grid.TopRow(22);
    Forget();
    Grid.RemoveItem(40);
    EXPECT_EQ(Grid.TopRow(), 21);
    EXPECT_EQ(Told(), Names{"Scroll"});
}

TEST_F(Shape, RowHeight_ReadsTheMinimumWhereThatIsLarger)
{
    Build(5, 3);
    Grid.RowHeight(2, 500);
    Grid.RowHeight(3, 0);
    EXPECT_EQ(Grid.RowHeight(3), 0);
    Grid.RowHeightMin(300);
    EXPECT_EQ(Grid.RowHeight(0), 300);
    EXPECT_EQ(Grid.RowHeight(1), 300);
    EXPECT_EQ(Grid.RowHeight(2), 500);
    EXPECT_EQ(Grid.RowHeight(3), 300);
    Grid.RowHeightMin(0);
    EXPECT_EQ(Grid.RowHeight(1), 240);
    Grid.RowHeight(2, -1);
    EXPECT_EQ(Grid.RowHeight(2), 240);
}

TEST_F(Shape, ColWidth_GoesBackToTheDefaultAtMinusOneAndHidesAtZero)
{
    Build(3, 4);
    Grid.ColWidth(2, 0);
    EXPECT_EQ(Grid.ColWidth(2), 0);
    Grid.ColWidth(2, -1);
    EXPECT_EQ(Grid.ColWidth(2), 960);
}

TEST_F(Shape, BadPlacesAndValues_FailByTheirNumber)
{
    Build(3, 3);
    EXPECT_EQ(NumberOf([&] { Grid.ColWidth(3); }), 30010);
    EXPECT_EQ(NumberOf([&] { Grid.ColWidth(-1, 5); }), 30010);
    EXPECT_EQ(NumberOf([&] { Grid.RowHeight(3); }), 30009);
    EXPECT_EQ(NumberOf([&] { Grid.RowHeight(-1, 5); }), 30009);
    EXPECT_EQ(NumberOf([&] { Grid.ColAlignment(7, 1); }), 30010);
    EXPECT_EQ(NumberOf([&] { Grid.TextMatrix(3, 0); }), 381);
    EXPECT_EQ(NumberOf([&] { Grid.TextMatrix(0, 3, u""); }), 381);
    EXPECT_EQ(NumberOf([&] { Grid.TextMatrix(-1, 0); }), 381);
    EXPECT_EQ(NumberOf([&] { Grid.ColWidth(1, -2); }), 380);
    EXPECT_EQ(NumberOf([&] { Grid.RowHeight(1, -2); }), 380);
    EXPECT_EQ(NumberOf([&] { Grid.RowHeightMin(-1); }), 380);
    EXPECT_EQ(NumberOf([&] { Grid.ColAlignment(1, 10); }), 380);
    EXPECT_EQ(NumberOf([&] { Grid.FillStyle(2); }), 380);
    EXPECT_EQ(NumberOf([&] { Grid.AllowUserResizing(2); }), 380);
    EXPECT_EQ(NumberOf([&] { Grid.CellPictureAlignment(-1); }), 380);
    EXPECT_EQ(NumberOf([&] { Grid.FontSize(0); }), 380);
    EXPECT_EQ(NumberOf([&] { Grid.FontSize(-3); }), 380);
    EXPECT_EQ(NumberOf([&] { Grid.SetFont({u"Sans", 0}); }), 380);
}

TEST_F(Shape, Font_GivesTheDefaultSizesAndLeavesOwnOnes)
{
    Build(4, 3);
    Grid.RowHeight(2, 240);
    Grid.ColWidth(2, 960);
    Grid.FontSize(16);
    EXPECT_EQ(Grid.RowHeight(1), 480);
    EXPECT_EQ(Grid.RowHeight(2), 240);
    EXPECT_EQ(Grid.ColWidth(1), 1920);
    EXPECT_EQ(Grid.ColWidth(2), 960);
    EXPECT_EQ(Grid.GetFont(), (Font{u"Sans", 16}));
    Grid.SetFont({u"Mono", 9});
    EXPECT_EQ(Grid.FontName(), u"Mono");
    EXPECT_EQ(Grid.RowHeight(1), 270);
}

TEST_F(Shape, TextOfTheGrid_MayBeWrittenBackIntoIt)
{
    Build(3, 3);
    Grid.TextMatrix(1, 1, u"text of some length");
    Grid.TextMatrix(2, 2, Grid.TextMatrix(1, 1));
    EXPECT_EQ(Grid.TextMatrix(2, 2), u"text of some length");
    Grid.TextMatrix(1, 1, Grid.TextMatrix(1, 1).substr(5));
    EXPECT_EQ(Grid.TextMatrix(1, 1), u"of some length");
}

TEST_F(Shape, SetFocusAndEnabled_AskTheSurroundings)
{
    Grid.SetFocus();
    Grid.Enabled(true);
    Grid.Enabled(false);
    EXPECT_FALSE(Grid.Enabled());
    EXPECT_EQ(Told(), (Names{"SetFocus", "EnabledChanged"}));
    EXPECT_FLOAT_EQ(Grid.Height(), 4800);
    EXPECT_EQ(Grid.GridLineWidth(), 1);
}

} // namespace Tessellon::GridTests
