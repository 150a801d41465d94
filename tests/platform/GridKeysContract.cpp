#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

class GridKeysContract : public PlatformContract, public ::testing::WithParamInterface<PlatformFactory> {
protected:
    GridKeysContract()
    {
        Cells().SetFocus();
        Told();
    }
    Names From(std::int32_t row, std::int32_t col, std::int16_t key, std::int16_t shift = 0)
    {
        Cells().Row(row);
        Cells().Col(col);
        Told();
        Key(key, shift);
        return Cell();
    }
    static Names At(const std::string& row, const std::string& col) { return {row, col, row, col}; }
};

INSTANTIATE_TEST_SUITE_P(On, GridKeysContract, ::testing::Values(TheFactory()), PlatformName);

TEST_P(GridKeysContract, Arrows_MoveByOneCell_BehindKeyDown)
{
    EXPECT_EQ(From(3, 3, KeyCode::Down), At("4", "3"));
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.KeyDown(40,0)", "MSFlexGrid1.LeaveCell", "MSFlexGrid1.EnterCell",
                             "MSFlexGrid1.RowColChange", "MSFlexGrid1.SelChange", "MSFlexGrid1.KeyUp(40,0)"}));
    EXPECT_EQ(From(3, 3, KeyCode::Up), At("2", "3"));
    EXPECT_EQ(From(3, 3, KeyCode::Left), At("3", "2"));
    EXPECT_EQ(From(3, 3, KeyCode::Right), At("3", "4"));
}

TEST_P(GridKeysContract, AtTheEdges_TheyStay)
{
    EXPECT_EQ(From(1, 1, KeyCode::Up), At("1", "1"));
    EXPECT_EQ(From(1, 1, KeyCode::Left), At("1", "1"));
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.KeyDown(37,0)", "MSFlexGrid1.KeyUp(37,0)"}));
    EXPECT_EQ(From(20, 5, KeyCode::Down), At("20", "5"));
    EXPECT_EQ(From(20, 5, KeyCode::Right), At("20", "5"));
}

TEST_P(GridKeysContract, KeyCode0_StopsTheMove)
{
    Recorder.Once("MSFlexGrid1.KeyDown", [](EventArguments& arguments) { arguments.KeyCode = 0; });
    EXPECT_EQ(From(3, 3, KeyCode::Down), At("3", "3"));
}

TEST_P(GridKeysContract, HomeAndEnd_GoWithinTheRow_WithCtrlToTheEndsOfTheSheet)
{
    EXPECT_EQ(From(3, 3, KeyCode::Home), At("3", "1"));
    EXPECT_EQ(From(3, 3, KeyCode::End), At("3", "5"));
    EXPECT_EQ(From(3, 3, KeyCode::Home, Modifier::Ctrl), At("1", "1"));
    EXPECT_EQ(From(3, 3, KeyCode::End, Modifier::Ctrl), At("20", "5"));
}

TEST_P(GridKeysContract, PageKeys_GoByTheRowsThatAreWholeInView)
{
    Cells().Rows(101);
    EXPECT_EQ(From(30, 2, KeyCode::PageDown), At("49", "2"));
    EXPECT_EQ(From(30, 2, KeyCode::PageUp), At("11", "2"));
    EXPECT_EQ(From(95, 2, KeyCode::PageDown), At("100", "2"));
    EXPECT_EQ(From(5, 2, KeyCode::PageUp), At("1", "2"));
    Cells().Move(0, 0, 9600, 300);
    EXPECT_EQ(From(30, 2, KeyCode::PageDown), At("31", "2"));
}

TEST_P(GridKeysContract, CtrlWithAnArrowOrPageKey_AndAltWithAny_AreAsIfNotPressed)
{
    EXPECT_EQ(From(3, 3, KeyCode::Down, Modifier::Ctrl), At("4", "3"));
    EXPECT_EQ(From(3, 3, KeyCode::PageUp, Modifier::Ctrl), At("1", "3"));
    EXPECT_EQ(From(3, 3, KeyCode::Right, Modifier::Alt), At("3", "4"));
    EXPECT_EQ(From(3, 3, KeyCode::Home, Modifier::Alt), At("3", "1"));
}

TEST_P(GridKeysContract, WithShift_TheyExtendTheSelection_WithSelChangeAlone)
{
    EXPECT_EQ(From(3, 3, KeyCode::Down, Modifier::Shift), (Names{"3", "3", "4", "3"}));
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.KeyDown(40,1)", "MSFlexGrid1.SelChange", "MSFlexGrid1.KeyUp(40,1)"}));
    Key(KeyCode::End, Modifier::Shift);
    EXPECT_EQ(Cell(), (Names{"3", "3", "4", "5"}));
    Key(KeyCode::Left);
    EXPECT_EQ(Cell(), At("3", "2"));
}

TEST_P(GridKeysContract, ColumnsOfWidth0_ArePassedOver)
{
    Cells().ColWidth(1, 0);
    Cells().ColWidth(3, 0);
    Cells().ColWidth(5, 0);
    EXPECT_EQ(From(2, 2, KeyCode::Right), At("2", "4"));
    EXPECT_EQ(From(2, 4, KeyCode::Left), At("2", "2"));
    EXPECT_EQ(From(2, 2, KeyCode::Left), At("2", "2"));
    EXPECT_EQ(From(2, 4, KeyCode::Right), At("2", "4"));
    EXPECT_EQ(From(2, 4, KeyCode::Home), At("2", "2"));
    EXPECT_EQ(From(2, 2, KeyCode::End), At("2", "4"));
}

TEST_P(GridKeysContract, TargetInTheHeadingOrMarkerColumn_IsDrawnToTheFirstDataRowAndShownColumn)
{
    Cells().ColWidth(1, 0);
    EXPECT_EQ(From(0, 0, KeyCode::Up), At("1", "2"));
    EXPECT_EQ(From(0, 0, KeyCode::Left), At("1", "2"));
    EXPECT_EQ(From(0, 3, KeyCode::Down), At("1", "3"));
}

TEST_P(GridKeysContract, WithoutDataRowsOrShownColumns_TheKeysMoveNothing)
{
    Cells().Rows(1);
    EXPECT_EQ(From(0, 1, KeyCode::Down), At("0", "1"));
    Cells().Rows(5);
    for (std::int32_t col = 1; col < 6; ++col)
        Cells().ColWidth(col, 0);
    EXPECT_EQ(From(2, 1, KeyCode::Right), At("2", "1"));
    EXPECT_EQ(From(2, 1, KeyCode::Down), At("2", "1"));
}

TEST_P(GridKeysContract, CellToWhichTheUserGoes_IsBroughtIntoViewBeforeTheMoveIsAnnounced)
{
    Cells().Rows(101);
    EXPECT_EQ(From(19, 1, KeyCode::Down), At("20", "1"));
    EXPECT_EQ(Told(), (Names{"MSFlexGrid1.KeyDown(40,0)", "MSFlexGrid1.Scroll", "MSFlexGrid1.LeaveCell",
                             "MSFlexGrid1.EnterCell", "MSFlexGrid1.RowColChange", "MSFlexGrid1.SelChange",
                             "MSFlexGrid1.KeyUp(40,0)"}));
    EXPECT_EQ(Cells().TopRow(), 2);
}

TEST_P(GridKeysContract, CtrlC_PutsTheSelectionOnTheClipboard)
{
    Cells().TextMatrix(1, 1, u"a");
    Cells().TextMatrix(1, 2, u"hidden");
    Cells().TextMatrix(1, 3, u"b\"c");
    Cells().TextMatrix(2, 1, u"two\r\nlines");
    Cells().TextMatrix(2, 3, u"t\tt");
    Cells().ColWidth(2, 0);
    Cells().RowSel(2);
    Cells().ColSel(3);
    Told();
    Key(67, 3, Modifier::Ctrl);
    EXPECT_EQ(Under->Clipboard(), u"a\t\"b\"\"c\"\r\n\"two\r\nlines\"\t\"t\tt\"\r\n");
    EXPECT_EQ(Under->Bells(), 0);
    EXPECT_EQ(Cell(), (Names{"1", "1", "2", "3"}));
}

TEST_P(GridKeysContract, CtrlV_IsNotOffered)
{
    Cells().TextMatrix(1, 1, u"a");
    Key(67, 3, Modifier::Ctrl);
    Cells().Row(2);
    Key(86, 22, Modifier::Ctrl);
    EXPECT_EQ(TextAt(2, 1), "");
}

TEST_P(GridKeysContract, PrintableCharacter_SoundsTheBell)
{
    Type(u"a");
    EXPECT_EQ(Told(), Stroked("MSFlexGrid1", 65, 97));
    EXPECT_EQ(Under->Bells(), 1);
    Key(KeyCode::Escape, u'\x1B');
    EXPECT_EQ(Under->Bells(), 1);
    EXPECT_EQ(TextAt(1, 1), "");
}

TEST_P(GridKeysContract, TheWheelTakesNoKey_AndPassesHiddenColumns)
{
    Cells().Cols(31);
    Cells().ColWidth(2, 0);
    Act([&] { Cells().TurnWheel(-1, Modifier::Shift); });
    EXPECT_EQ(Cells().LeftCol(), 3);
    Act([&] { Cells().TurnWheel(1, Modifier::Shift); });
    EXPECT_EQ(Cells().LeftCol(), 1);
}

} // namespace Tessellon::Contract
