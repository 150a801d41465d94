#include "engine/grid/RecordingGrid.h"

namespace Tessellon::GridTests {

/// What the sheet does with the cursor when it draws, statement by statement.
class Walk : public GridTest {
protected:
    void PaintRow(std::int32_t row, std::int32_t colSel, std::int32_t color)
    {
        Grid.FillStyle(1);
        Grid.Row(row);
        Grid.Col(Grid.FixedCols());
        Grid.ColSel(colSel);
        Grid.CellBackColor(color);
        Grid.FillStyle(0);
    }

    void RefreshGridColor(std::int32_t fromRow, std::int32_t keepCol)
    {
        if (Grid.Rows() < 2 || Grid.Cols() < 2)
            return;
        for (std::int32_t row = fromRow; row < Grid.Rows(); ++row)
            PaintRow(row, Grid.Cols() - Grid.FixedCols(), Bands[row % 2]);
        Grid.Row(fromRow);
        Grid.Col(keepCol);
    }

    /// The host repaints one parity; the sheet knows row and column as it heard them last.
    void BackColor(int index, std::int32_t color, std::int32_t currentRow, std::int32_t currentCol)
    {
        const std::int32_t top = Grid.TopRow();
        const std::int32_t left = Grid.LeftCol();
        Bands[index] = color;
        for (std::int32_t row = 1; row < Grid.Rows(); ++row)
            if (row % 2 == index)
                PaintRow(row, Grid.Cols() - Grid.FixedCols(), color);
        Grid.ColSel(1);
        if (top != Grid.TopRow())
            Grid.TopRow(top);
        if (left != Grid.LeftCol())
            Grid.LeftCol(left);
        Grid.Row(currentRow);
        Grid.Col(currentCol);
    }

    void RefreshPicture(Picture picture, std::int32_t row)
    {
        Grid.Redraw(false);
        const Numbers saved = Cursor();
        Grid.Row(row);
        Grid.Col(0);
        Grid.RowSel(row);
        Grid.ColSel(0);
        Grid.CellPictureAlignment(4);
        Grid.CellPicture(Picture::None);
        if (picture != Picture::None)
            Grid.CellPicture(picture);
        Grid.Row(saved[0]);
        Grid.Col(saved[1]);
        Grid.RowSel(saved[2]);
        Grid.ColSel(saved[3]);
        Grid.Redraw(true);
    }

    std::int32_t Bands[2] = {1, 2};
};

TEST_F(Walk, WhileRedrawIsFalse_TheCursorGoesInSilence)
{
    Build(10, 5);
    Grid.Redraw(false);
    Select(4, 2, 6, 3);
    EXPECT_EQ(Cursor(), (Numbers{4, 2, 6, 3}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Walk, WhileFillStyleIsOne_TheCursorGoesInSilence)
{
    Build(10, 5);
    Grid.FillStyle(1);
    Select(4, 2, 6, 3);
    EXPECT_EQ(Cursor(), (Numbers{4, 2, 6, 3}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Walk, ThatPutsTheCursorBack_IsNeverHeardOf)
{
    Build(10, 5);
    Select(3, 2, 5, 4);
    Forget();
    RefreshPicture(Picture::Arrow, 7);
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Cursor(), (Numbers{3, 2, 5, 4}));
    EXPECT_EQ(Grid.PictureOf({7, 0}), Picture::Arrow);
    Grid.Row(3);
    EXPECT_EQ(Told(), Names{"SelChange"});
}

TEST_F(Walk, BehindIt_TheNextWriteIsComparedWithTheToldCell)
{
    Build(10, 5);
    Grid.Redraw(false);
    Grid.Row(4);
    Grid.Redraw(true);
    EXPECT_EQ(Told(), Names{});
    Grid.Col(2);
    EXPECT_EQ(Told(), wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{4, 2, 4, 2}));
}

TEST_F(Walk, BehindIt_EvenAWriteOfTheRowWhereTheCursorStandsIsTold)
{
    Build(10, 5);
    Grid.Redraw(false);
    Grid.Row(4);
    Grid.Redraw(true);
    Grid.Row(4);
    EXPECT_EQ(Told(), wholeMove);
}

TEST_F(Walk, BehindIt_TheToldRowBringsTheWholeCursorBack)
{
    Build(10, 5);
    Grid.Row(2);
    Grid.Col(3);
    Forget();
    Grid.Redraw(false);
    Grid.Row(7);
    Grid.Col(1);
    Grid.Redraw(true);
    Grid.Row(2);
    EXPECT_EQ(Cursor(), (Numbers{2, 3, 2, 3}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Walk, BehindIt_TheToldColumnBringsTheWholeCursorBack)
{
    Build(10, 5);
    Grid.Row(2);
    Grid.Col(3);
    Forget();
    Grid.Redraw(false);
    Grid.Row(7);
    Grid.Col(1);
    Grid.Redraw(true);
    Grid.Col(3);
    EXPECT_EQ(Cursor(), (Numbers{2, 3, 2, 3}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Walk, BehindItAndElsewhere_TheSelectionIsWrittenInSilence)
{
    Build(10, 5);
    Grid.Redraw(false);
    Grid.Row(7);
    Grid.Redraw(true);
    Grid.RowSel(9);
    Grid.ColSel(4);
    EXPECT_EQ(Cursor(), (Numbers{7, 1, 9, 4}));
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Walk, BehindItAndBack_TheSelectionIsComparedWithTheToldOne)
{
    Build(10, 5);
    Grid.Redraw(false);
    Grid.RowSel(5);
    Grid.Redraw(true);
    EXPECT_EQ(Told(), Names{});
    Grid.RowSel(5);
    EXPECT_EQ(Told(), Names{"SelChange"});
    Grid.RowSel(5);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Walk, WhileDrawing_TheToldRowBringsNothingBack)
{
    Build(10, 5);
    Grid.Row(2);
    Grid.Col(3);
    Forget();
    Grid.Redraw(false);
    Grid.Row(7);
    Grid.Col(1);
    Grid.Row(2);
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 2, 1}));
    Grid.Redraw(true);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Walk, ColoursOfOneParity_AreNotHeardAndEndOnTheCurrentCell)
{
    Build(31, 4);
    Grid.Row(2);
    Forget();
    BackColor(0, 65535, 2, 1);
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 2, 1}));
    BackColor(1, 255, 2, 1);
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Grid.ColorOf({1, 1}), 255);
    EXPECT_EQ(Grid.ColorOf({2, 3}), 65535);
    EXPECT_EQ(Grid.ColorOf({2, 0}), std::nullopt);
    EXPECT_EQ(Grid.ColorOf({0, 1}), std::nullopt);
}

TEST_F(Walk, ColoursOfOneParityInAnotherColumn_AreNotHeardEither)
{
    Build(4, 4);
    Grid.Row(2);
    Grid.Col(3);
    Forget();
    BackColor(0, 255, 2, 3);
    BackColor(1, 255, 2, 3);
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Cursor(), (Numbers{2, 3, 2, 3}));
}

TEST_F(Walk, ColoursThatEndOnTheCurrentRow_AreNotHeardEither)
{
    Build(4, 4);
    Grid.Row(3);
    Forget();
    BackColor(1, 255, 3, 1);
    EXPECT_EQ(Told(), Names{});
    EXPECT_EQ(Cursor(), (Numbers{3, 1, 3, 1}));
}

TEST_F(Walk, ColoursOverARange_TellThatItIsGone)
{
    Build(10, 4);
    Select(2, 1, 4, 3);
    Forget();
    BackColor(0, 255, 2, 1);
    EXPECT_EQ(Told(), Names{"SelChange"});
    EXPECT_EQ(Cursor(), (Numbers{2, 1, 2, 1}));
}

TEST_F(Walk, AllColours_TellTheMoveToTheFirstPaintedRow)
{
    Build(10, 4);
    Grid.Row(6);
    Forget();
    RefreshGridColor(3, 1);
    EXPECT_EQ(Told(), wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{3, 1, 3, 1}));
    RefreshGridColor(3, 1);
    EXPECT_EQ(Told(), Names{});
}

TEST_F(Walk, AllColoursFromTheToldRow_MoveOnlyToTheKeptColumn)
{
    Build(10, 4);
    Grid.Row(3);
    Grid.Col(3);
    Forget();
    RefreshGridColor(3, 1);
    EXPECT_EQ(Told(), wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{3, 1, 3, 1}));
}

TEST_F(Walk, CreationAndFirstRows_AreHeardAsTheSheetIsBuilt)
{
    // The smallest form at creation.
    Grid.Col(0);
    Grid.Row(0);
    Grid.Rows(1);
    Grid.Cols(1);
    Grid.Rows(1);
    EXPECT_EQ(Told(), Names{});
    // Two columns are built: the cursor goes along the heading.
    Grid.Cols(1);
    Grid.Rows(1);
    Grid.Cols(3);
    for (std::int32_t col = 1; col < 3; ++col) {
        Grid.TextMatrix(0, col, u"Name");
        Grid.Col(col);
    }
    Grid.RowHeight(0, 240);
    RefreshGridColor(1, 1);
    EXPECT_EQ(Told(), wholeMove + wholeMove);
    // Two rows are added ahead of none.
    for (std::int32_t index = 1; index < 3; ++index) {
        Grid.AddItem(u"", index);
        Grid.RowHeight(index, 240);
    }
    RefreshGridColor(1, 1);
    RefreshPicture(Picture::Arrow, 1);
    Grid.Redraw(true);
    Grid.Refresh();
    Grid.LeftCol(1);
    Grid.Col(1);
    Grid.TopRow(1);
    Grid.Row(1);
    Grid.Col(1);
    Grid.ColSel(1);
    Grid.RowSel(1);
    Grid.Row(1);
    EXPECT_EQ(Told(), wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
}

TEST_F(Walk, AdvanceByEnter_TellsOneMoveBehindTwoSilentWalks)
{
    Build(5, 4);
    RefreshPicture(Picture::None, 1);
    RefreshPicture(Picture::Arrow, 2);
    Grid.Row(2);
    Grid.Col(1);
    Grid.RowSel(2);
    Grid.ColSel(1);
    EXPECT_EQ(Told(), wholeMove);
}

TEST_F(Walk, RowsOfALoad_AreToldOneMoveEach)
{
    Build(5, 4);
    for (std::int32_t row = 1; row < 5; ++row) {
        Grid.Redraw(true);
        Grid.Row(row);
        Grid.FillStyle(1);
        Grid.Col(1);
        Grid.ColSel(3);
        Grid.CellBackColor(Bands[row % 2]);
        Grid.FillStyle(0);
    }
    EXPECT_EQ(Told(), wholeMove + wholeMove + wholeMove);
    Grid.LeftCol(1);
    Grid.Col(1);
    EXPECT_EQ(Told(), Names{});
    Grid.Row(1);
    EXPECT_EQ(Told(), wholeMove);
}

TEST_F(Walk, MovesOfTheUser_AreToldEvenWhileCodeDraws)
{
    Build(10, 4);
    Grid.Redraw(false);
    Grid.PressKey(40, 0);
    EXPECT_EQ(Told(), wholeMove);
    Grid.FillStyle(1);
    Grid.PressKey(39, 1);
    EXPECT_EQ(Told(), Names{"SelChange"});
}

TEST_F(Walk, UserWhoGoesBackToTheToldCell_IsNotToldAgain)
{
    Build(10, 4);
    Grid.Redraw(false);
    Grid.Row(2);
    Grid.Redraw(true);
    Grid.PressKey(38, 0);
    EXPECT_EQ(Cursor(), (Numbers{1, 1, 1, 1}));
    EXPECT_EQ(Told(), Names{});
}

} // namespace Tessellon::GridTests
