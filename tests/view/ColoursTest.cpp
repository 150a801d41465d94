#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <optional>
#include <tuple>

namespace Tessellon {
namespace {

/// Two columns, three rows, the first cell entered.
class Colours : public testing::Test {
protected:
    Colours() { Sheet.Build({fcTextBox, fcTextBox}, 3); }

    template <class Call>
    Lines CallsOf(const Call& call)
    {
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
        call();
        return Sheet.TakeCalls();
    }
    GridEngine& Grid() { return Sheet.Platform->TheGrid(); }
    [[nodiscard]] std::string Color(std::size_t index) const
    {
        return std::to_string(Sheet.Members().SectionColors[index]);
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

/// The painting of one row's band of a sheet of two data columns.
Lines Band(int row, const std::string& color)
{
    return {"MSFlexGrid1.FillStyle=1", "MSFlexGrid1.Row=" + std::to_string(row), "MSFlexGrid1.Col=1",
            "MSFlexGrid1.ColSel=2",    "MSFlexGrid1.CellBackColor=" + color,     "MSFlexGrid1.FillStyle=0"};
}

Lines Joined(const std::vector<Lines>& parts)
{
    Lines all;
    for (const Lines& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

const Lines markerWalk{"MSFlexGrid1.Redraw=False",    "MSFlexGrid1.Row=2",    "MSFlexGrid1.Col=0",
                       "MSFlexGrid1.RowSel=2",        "MSFlexGrid1.ColSel=0", "MSFlexGrid1.CellPictureAlignment=4",
                       "MSFlexGrid1.CellPicture=none"};
const Lines markerWayBack{"MSFlexGrid1.Row=1", "MSFlexGrid1.Col=1", "MSFlexGrid1.RowSel=1", "MSFlexGrid1.ColSel=1",
                          "MSFlexGrid1.Redraw=True"};

} // namespace

TEST(ColorType, HasItsNumbers)
{
    const std::vector<std::pair<ColorType, std::uint32_t>> numbers{{Black, 0x00000000},
                                                                   {Red, 0x000000FF},
                                                                   {Green, 0x0000FF00},
                                                                   {Yellow, 0x0000FFFF},
                                                                   {Blue, 0x00FF0000},
                                                                   {Magenta, 0x00FF00FF},
                                                                   {Cyan, 0x00FFFF00},
                                                                   {White, 0x00FFFFFF},
                                                                   {ScrollBars, 0x80000000},
                                                                   {Desktop, 0x80000001},
                                                                   {ActiveTitleBar, 0x80000002},
                                                                   {InactiveTitleBar, 0x80000003},
                                                                   {MenuBar, 0x80000004},
                                                                   {WindowBackground, 0x80000005},
                                                                   {WindowFrame, 0x80000006},
                                                                   {MenuText, 0x80000007},
                                                                   {WindowText, 0x80000008},
                                                                   {TitleBarText, 0x80000009},
                                                                   {ActiveBorder, 0x8000000A},
                                                                   {InactiveBorder, 0x8000000B},
                                                                   {ApplicationWorkspace, 0x8000000C},
                                                                   {HighLight, 0x8000000D},
                                                                   {HighlightText, 0x8000000E},
                                                                   {ButtonFace, 0x8000000F},
                                                                   {ButtonShadow, 0x80000010},
                                                                   {GrayText, 0x80000011},
                                                                   {ButtonText, 0x80000012},
                                                                   {InactiveCaptionText, 0x80000013},
                                                                   {ThreeDHighlight, 0x80000014},
                                                                   {ThreeDDKShadow, 0x80000015},
                                                                   {ThreeDLight, 0x80000016},
                                                                   {ThreeDFace, 0x8000000F},
                                                                   {ThreeDShadow, 0x80000010},
                                                                   {InfoText, 0x80000017},
                                                                   {InfoBackground, 0x80000018}};
    for (const auto& [color, number] : numbers)
        EXPECT_EQ(static_cast<std::uint32_t>(color), number);
    EXPECT_EQ(static_cast<int>(ptNone), 0);
    EXPECT_EQ(static_cast<int>(ptArrow), 1);
}

// ---- The colours of the host ---------------------------------------------------------------------------------------

TEST_F(Colours, IndexThatIsNone_ChangesNothing)
{
    for (const std::int16_t index : {std::int16_t{2}, std::int16_t{-1}, std::int16_t{256}})
        EXPECT_EQ(CallsOf([&] { EXPECT_NO_THROW(Sheet->BackColor(index, Yellow)); }), Lines{});
    EXPECT_EQ(Members.SectionColors[0], static_cast<std::int32_t>(Cyan));
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Colours, EvenRows_ArePaintedAndTheCursorIsPutBack)
{
    const Lines calls = CallsOf([&] { Sheet->BackColor(0, Yellow); });
    EXPECT_EQ(Members.SectionColors[0], 0xFFFF);
    EXPECT_EQ(calls, Joined({Band(2, "65535"), {"MSFlexGrid1.ColSel=1", "MSFlexGrid1.Row=1", "MSFlexGrid1.Col=1"}}));
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Colours, OddRows_ArePaintedOneByOne)
{
    const Lines calls = CallsOf([&] { Sheet->BackColor(1, ButtonFace); });
    const std::string color = std::to_string(static_cast<std::int32_t>(ButtonFace));
    EXPECT_EQ(
        calls,
        Joined({Band(1, color), Band(3, color), {"MSFlexGrid1.ColSel=1", "MSFlexGrid1.Row=1", "MSFlexGrid1.Col=1"}}));
    EXPECT_EQ(Members.SectionColors[0], static_cast<std::int32_t>(Cyan));
}

TEST_F(Colours, ViewThatMoved_IsPutBack)
{
    Sheet->Add(3, 60);
    Grid().TopRow(20);
    Sheet.Calls->Notes(true);
    static_cast<void>(Sheet.TakeCalls());
    // Whoever hears of a failure in the painting may scroll.
    Sheet->ErrInfo += [&](auto&&...) { Grid().TopRow(3); };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.CellBackColor", 7);
    Sheet->BackColor(0, Yellow);
    const Lines calls = Sheet.TakeCalls();
    EXPECT_EQ(Grid().TopRow(), 20);
    EXPECT_LT(PlaceOf(calls, "MSFlexGrid1.TopRow=20"), PlaceOf(calls, "MSFlexGrid1.Row=4"));
    EXPECT_EQ(Only(calls, {"MSFlexGrid1.LeftCol"}), Lines{});
}

TEST_F(Colours, BackColor_KeepsViewAndCursorAndLetsTheSelectionGo)
{
    Sheet->Add(3, 60);
    Sheet.Hand.Scroll(10, 1);
    Sheet.Hand.Drag(12, 2, 14, 1);
    ASSERT_EQ(Grid().RowSel(), 14);
    Sheet->BackColor(1, Yellow);
    EXPECT_EQ(Grid().TopRow(), 10);
    EXPECT_EQ(Grid().LeftCol(), 1);
    EXPECT_EQ(Grid().Row(), 12);
    EXPECT_EQ(Grid().Col(), 2);
    EXPECT_EQ(Sheet->Row(), 12);
    EXPECT_EQ(Sheet->Col(), 2);
    EXPECT_EQ(Grid().RowSel(), 12);
    EXPECT_EQ(Grid().ColSel(), 2);
}

TEST_F(Colours, ViewThatStoodOnTheFirstRow_IsPutBackThere)
{
    Sheet->Add(3, 60);
    Grid().TopRow(1);
    Sheet->ErrInfo += [&](auto&&...) { Grid().TopRow(5); };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.CellBackColor", 7);
    EXPECT_EQ(CountOf(CallsOf([&] { Sheet->BackColor(0, Yellow); }), "MSFlexGrid1.TopRow=1"), 1);
}

TEST_F(Colours, CursorAsTheSheetKnowsIt_IsPutBackToo)
{
    Sheet->ErrInfo += [&](auto&&...) { Members.CurrentRow = Members.CurrentCol = 2; };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.CellBackColor", 7);
    Sheet->BackColor(0, Yellow);
    EXPECT_EQ(Sheet->Row(), 1);
    EXPECT_EQ(Sheet->Col(), 1);
}

TEST_F(Colours, CursorThatIsNone_IsNotPutBack)
{
    Members.CurrentRow = 0;
    Members.CurrentCol = -1;
    EXPECT_EQ(CallsOf([&] { Sheet->BackColor(0, Yellow); }).back(), "MSFlexGrid1.ColSel=1");
    EXPECT_EQ(Members.CurrentRow, 0);
    EXPECT_EQ(Members.CurrentCol, -1);
}

TEST_F(Colours, FailureInBackColor_ReachesTheHost)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.LeftCol", 7);
    try {
        Sheet->BackColor(0, Yellow);
        ADD_FAILURE() << "nothing came";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, 7);
        EXPECT_EQ(failure.Source, u"MSFlexGrid1");
    }
    EXPECT_EQ(Members.SectionColors[0], static_cast<std::int32_t>(Cyan));
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Colours, FailureInThePainting_IsReportedThereAndTheCursorIsPutBack)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.CellBackColor", 7);
    const Lines calls = CallsOf([&] { EXPECT_NO_THROW(Sheet->BackColor(0, Yellow)); });
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"RefreshSectionColor"});
    EXPECT_EQ(Lines(calls.end() - 2, calls.end()), (Lines{"MSFlexGrid1.Row=1", "MSFlexGrid1.Col=1"}));
}

// ---- Bands ---------------------------------------------------------------------------------------------------------

TEST_F(Colours, Bands_AreByTheParityOfTheRow)
{
    EXPECT_EQ(Grid().ColorOf({1, 1}), Members.SectionColors[1]);
    EXPECT_EQ(Grid().ColorOf({2, 2}), Members.SectionColors[0]);
    EXPECT_EQ(Grid().ColorOf({3, 1}), Members.SectionColors[1]);
    EXPECT_NE(Grid().ColorOf({1, 0}), Members.SectionColors[1]);
}

TEST_F(Colours, GridColor_PaintsFromItsRowDownAndLeavesTheCursorThere)
{
    Members.RefreshingColors = false;
    const Lines calls = CallsOf([&] { Probe.RefreshGridColor(2, 2); });
    const Lines head = Joined({Band(2, Color(0)), Band(3, Color(1)), {"MSFlexGrid1.Row=2"}});
    ASSERT_GE(calls.size(), head.size());
    EXPECT_EQ(Lines(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(head.size())), head);
    EXPECT_LT(PlaceOf(calls, "MSFlexGrid1.Row=2"), PlaceOf(calls, "MSFlexGrid1.Col=2"));
    EXPECT_EQ(calls.back(), "Command1(0).ZOrder(1)");
    EXPECT_EQ(Grid().Row(), 2);
    EXPECT_EQ(Grid().Col(), 2);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{});
}

TEST_F(Colours, GridColorOfNothing_StopsAtOnce)
{
    Members.RefreshingColors = true;
    Members.ColCount = 1;
    EXPECT_EQ(CallsOf([&] { Probe.RefreshGridColor(1, 1); }), Lines{});
    Members.ColCount = 3;
    Members.RowCount = 1;
    EXPECT_EQ(CallsOf([&] { Probe.RefreshGridColor(1, 1); }), Lines{});
    EXPECT_TRUE(Members.RefreshingColors);
}

TEST_F(Colours, RefreshingColors_TellsWhetherMoreWasPaintedThanShows)
{
    // An editor that goes down gives the grid the focus, and that clears the flag.
    Probe.SetAllDisable();
    Members.VisibleRows = 3;
    Probe.RefreshGridColor(1, 1);
    EXPECT_FALSE(Members.RefreshingColors);
    Members.VisibleRows = 2;
    Probe.RefreshGridColor(1, 1);
    EXPECT_TRUE(Members.RefreshingColors);
}

TEST_F(Colours, RefreshingColors_CountsTheRowsThatAreInViewBehindTheMoveOfTheCursor)
{
    Probe.SetAllDisable();
    Sheet->RowColChange += [&] { Members.VisibleRows = Members.CurrentCol == 2 && Members.CurrentRow == 1 ? 3 : 2; };
    Probe.RefreshGridColor(1, 2);
    EXPECT_FALSE(Members.RefreshingColors);
}

TEST_F(Colours, SectionColor_PaintsOneParityAndLeavesTheCursorThere)
{
    EXPECT_EQ(CallsOf([&] { Probe.RefreshSectionColor(false); }),
              Joined({Band(1, Color(1)), Band(3, Color(1)), {"MSFlexGrid1.ColSel=1"}}));
    EXPECT_EQ(Grid().Row(), 3);
    EXPECT_EQ(CallsOf([&] { Probe.RefreshSectionColor(true); }), Joined({Band(2, Color(0)), {"MSFlexGrid1.ColSel=1"}}));
}

TEST(ColoursOfASingleCell, ArePainted)
{
    SheetUnderTest sheet;
    sheet.Build({fcTextBox}, 1);
    sheet->BackColor(1, Yellow);
    EXPECT_EQ(sheet.Platform->TheGrid().ColorOf({1, 1}), static_cast<std::int32_t>(Yellow));
}

TEST_F(Colours, SectionColorOfNothing_StopsAtOnce)
{
    Members.ColumnBound = 0;
    EXPECT_EQ(CallsOf([&] { Probe.RefreshSectionColor(true); }), Lines{});
    Members.ColumnBound = 2;
    Members.RowCount = 1;
    EXPECT_EQ(CallsOf([&] { Probe.RefreshSectionColor(false); }), Lines{});
}

// ---- The marker ----------------------------------------------------------------------------------------------------

TEST_F(Colours, Marker_IsShownByAWalkThatComesBack)
{
    bool done = false;
    const Lines calls = CallsOf([&] { done = Probe.RefreshPicture(ptArrow, 2); });
    EXPECT_TRUE(done);
    EXPECT_EQ(calls, Joined({markerWalk, {"MSFlexGrid1.CellPicture=arrow"}, markerWayBack}));
    EXPECT_EQ(Grid().PictureOf({2, 0}), Picture::Arrow);
    EXPECT_EQ(Grid().PictureAlignmentOf({2, 0}), 4);
    EXPECT_EQ(Grid().PictureOf({2, 1}), Picture::None);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Colours, Marker_TouchesNoDataCell)
{
    const auto dataCells = [&] {
        std::vector<std::tuple<std::u16string, std::optional<std::int32_t>, Picture, std::int16_t>> cells;
        for (std::int32_t row = 1; row < Grid().Rows(); ++row) {
            for (std::int32_t col = 1; col < Grid().Cols(); ++col) {
                const GridCell cell{row, col};
                cells.emplace_back(Grid().TextMatrix(row, col), Grid().ColorOf(cell), Grid().PictureOf(cell),
                                   Grid().PictureAlignmentOf(cell));
            }
        }
        return cells;
    };
    Sheet->TextMatrix(2, 1, u"kept");
    const auto before = dataCells();
    ASSERT_EQ(before.size(), 6U);
    for (std::int32_t row = 1; row <= 3; ++row) {
        EXPECT_TRUE(Probe.RefreshPicture(ptArrow, row));
        EXPECT_EQ(Grid().PictureOf({row, 0}), Picture::Arrow);
        EXPECT_EQ(dataCells(), before);
        EXPECT_TRUE(Probe.RefreshPicture(ptNone, row));
        EXPECT_EQ(dataCells(), before);
    }
}

TEST_F(Colours, MarkerTakenAway_LeavesNoPicture)
{
    Probe.RefreshPicture(ptArrow, 2);
    EXPECT_EQ(CallsOf([&] { EXPECT_TRUE(Probe.RefreshPicture(ptNone, 2)); }), Joined({markerWalk, markerWayBack}));
    EXPECT_EQ(Grid().PictureOf({2, 0}), Picture::None);
}

TEST_F(Colours, Marker_LeavesTheSelectionOfTheUser)
{
    Sheet.Hand.Drag(1, 1, 3, 2);
    Probe.RefreshPicture(ptArrow, 2);
    EXPECT_EQ(Grid().Row(), 1);
    EXPECT_EQ(Grid().Col(), 1);
    EXPECT_EQ(Grid().RowSel(), 3);
    EXPECT_EQ(Grid().ColSel(), 2);
}

TEST_F(Colours, MarkerOfARowThatIsNone_TouchesNothing)
{
    Members.GridReady = false;
    for (const std::int32_t row : {-1, 0, 4})
        EXPECT_EQ(CallsOf([&] { EXPECT_FALSE(Probe.RefreshPicture(ptArrow, row)); }), Lines{}) << row;
    EXPECT_FALSE(Members.GridReady);
    EXPECT_TRUE(Probe.RefreshPicture(ptArrow, 3));
}

TEST_F(Colours, MarkerBeforeTheFirstBuild_TouchesNothing)
{
    Members.ColumnsDeclared = false;
    EXPECT_EQ(CallsOf([&] { EXPECT_FALSE(Probe.RefreshPicture(ptArrow, 1)); }), Lines{});
}

TEST_F(Colours, Marker_LeavesTheGridReadyAndTheRequestAsItWas)
{
    for (const bool request : {true, false}) {
        Members.GridReady = false;
        Members.ShowEditorRequest = request;
        Probe.RefreshPicture(ptArrow, 2);
        EXPECT_TRUE(Members.GridReady);
        EXPECT_EQ(Members.ShowEditorRequest, request);
    }
}

TEST_F(Colours, Marker_HoldsTheGridUnreadyAndTheRequestDownOnItsWalk)
{
    Members.ShowEditorRequest = true;
    bool readyInside = true;
    bool requestInside = true;
    Sheet->ErrInfo += [&](auto&&...) {
        readyInside = Members.GridReady;
        requestInside = Members.ShowEditorRequest;
    };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.CellPicture", 7);
    EXPECT_FALSE(Probe.RefreshPicture(ptArrow, 2));
    EXPECT_FALSE(readyInside);
    EXPECT_FALSE(requestInside);
    EXPECT_EQ(Grid().Row(), 2);
    EXPECT_EQ(Grid().Col(), 0);
}

TEST_F(Colours, MarkersPicture_IsTheImageWithTheIndexOne)
{
    Sheet.Calls->FailAtMember(u"ImgAction(1).Picture", 7);
    EXPECT_FALSE(Probe.RefreshPicture(ptArrow, 2));
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"RefreshPicture"});
}

TEST_F(Colours, FailuresBearTheNameOfTheirProcedure)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.FillStyle", 7);
    Probe.RefreshGridColor(1, 1);
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.FillStyle", 7);
    Probe.RefreshSectionColor(true);
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Redraw", 7);
    EXPECT_FALSE(Probe.RefreshPicture(ptArrow, 1));
    EXPECT_TRUE(Members.GridReady);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), (Lines{"RefreshGridColor", "RefreshSectionColor", "RefreshPicture"}));
}

} // namespace Tessellon
