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

TEST_F(Shape, Failure_CarriesTheTextOfItsNumber)
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

} // namespace Tessellon::GridTests
