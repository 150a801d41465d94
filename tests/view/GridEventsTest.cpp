#include "view/GridEventsUnderTest.h"

#include <ostream>
#include <utility>

namespace Tessellon {
namespace {

constexpr Child grid = Child::MSFlexGrid1;

// ---- What reaches the host ------------------------------------------------------------------------------------------

struct ForwardCase {
    ChildEvent Told;
    std::string Label; ///< Of its frame; empty for one without.
    const char16_t* Fails; ///< A member that it uses; none for one that uses none.
    std::string Heard;
};

void PrintTo(const ForwardCase& forward, std::ostream* out)
{
    *out << forward.Label << ' ' << forward.Heard;
}

class GridEventThatIsForwarded : public GridEvents, public testing::WithParamInterface<ForwardCase> {};

TEST_P(GridEventThatIsForwarded, ReachesTheHostWhetherItsBodyFailsOrNot)
{
    EventArguments arguments;
    arguments.Button = 1;
    arguments.X = 1440;
    arguments.Y = 100;
    arguments.KeyCode = 113;
    arguments.KeyAscii = 65;
    arguments.Row1 = 4;
    arguments.Row2 = 5;
    arguments.Cmp = -1;
    const auto tell = [&] {
        Forget();
        EventArguments copy = arguments;
        Probe.Raise(grid, GetParam().Told, copy);
        return Sheet.TakeEvents();
    };
    const Lines heard = tell();
    EXPECT_EQ(heard.empty() ? "" : heard.back(), GetParam().Heard);
    EXPECT_EQ(Labels(heard), Lines());
    if (GetParam().Fails == nullptr)
        return;
    Sheet.Calls->FailAtMember(GetParam().Fails, 7);
    const Lines afterFailure = tell();
    EXPECT_EQ(Labels(afterFailure), Lines{GetParam().Label});
    EXPECT_EQ(Only(afterFailure, {GetParam().Heard.empty() ? "nothing" : GetParam().Heard}).empty(),
              GetParam().Heard.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Each, GridEventThatIsForwarded,
    testing::Values(ForwardCase{ChildEvent::Compare, "", nullptr, "Compare Row1=4 Row2=5 Cmp=-1"},
                    ForwardCase{ChildEvent::DblClick, "", nullptr, "DblClick"},
                    ForwardCase{ChildEvent::KeyDown, "", nullptr, "KeyDown KeyCode=113 Shift=0"},
                    ForwardCase{ChildEvent::KeyPress, "", nullptr, "KeyPress KeyAscii=65"},
                    ForwardCase{ChildEvent::KeyUp, "", nullptr, "KeyUp KeyCode=113 Shift=0"},
                    ForwardCase{ChildEvent::LeaveCell, "", nullptr, "LeaveCell"},
                    ForwardCase{ChildEvent::LostFocus, "", nullptr, ""},
                    ForwardCase{ChildEvent::GotFocus, "", nullptr, ""},
                    ForwardCase{ChildEvent::MouseDown, "MSFlexGrid1_MouseDown", u"MSFlexGrid1.ColWidth",
                                "MouseDown Button=1 Shift=0 x=1440 y=100"},
                    ForwardCase{ChildEvent::MouseMove, "", nullptr, "MouseDown Button=1 Shift=0 x=1440 y=100"},
                    ForwardCase{ChildEvent::MouseUp, "", nullptr, "MouseDown Button=1 Shift=0 x=1440 y=100"},
                    ForwardCase{ChildEvent::RowColChange, "MSFlexGrid1_RowColChange", u"MSFlexGrid1.Refresh",
                                "RowColChange"},
                    ForwardCase{ChildEvent::Scroll, "MSFlexGrid1_Scroll", u"Text1.ZOrder", "Scroll"},
                    ForwardCase{ChildEvent::SelChange, "MSFlexGrid1_SelChange", u"MSFlexGrid1.Row", "SelChange"},
                    ForwardCase{ChildEvent::EnterCell, "MSFlexGrid1_EnterCell", u"MSFlexGrid1.Row", "EnterCell"}));

TEST_F(GridEvents, CompareAndKeys_ComeBackAsTheHostLeftThem)
{
    Sheet->Compare += [](std::int32_t, std::int32_t, std::int16_t& cmp) { cmp = 1; };
    Sheet->KeyDown += [](std::int16_t& code, std::int16_t& shift) { code = shift = 9; };
    Sheet->KeyPress += [](std::int16_t& ascii) { ascii = 7; };
    EventArguments arguments;
    Probe.Raise(grid, ChildEvent::Compare, arguments);
    Probe.Raise(grid, ChildEvent::KeyDown, arguments);
    Probe.Raise(grid, ChildEvent::KeyPress, arguments);
    EXPECT_EQ(arguments.Cmp, 1);
    EXPECT_EQ(arguments.KeyCode, 9);
    EXPECT_EQ(arguments.Shift, 9);
    EXPECT_EQ(arguments.KeyAscii, 7);
}

TEST_F(GridEvents, KeyDownThatFails_IsReportedByTheEntryThatFailedAndStillTold)
{
    // The entry under F2 has its own frame: nothing is left to fail in the key's.
    Sheet.Calls->FailAtMember(u"Text1.Move", 7);
    EventArguments arguments;
    arguments.KeyCode = 113;
    Probe.Raise(grid, ChildEvent::KeyDown, arguments);
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"MSFlexGrid1_EnterCell"});
    EXPECT_EQ(heard.back(), "KeyDown KeyCode=113 Shift=0");
}

TEST_F(GridEvents, HostThatFailsInsideAnEntryUnderAKey_IsReportedUnderTheKeysLabel)
{
    Sheet->EnterCell += [] { throw Failure(7, u"", u""); };
    EventArguments arguments;
    arguments.KeyCode = 113;
    Probe.Raise(grid, ChildEvent::KeyDown, arguments);
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"MSFlexGrid1_KeyDown"});
    EXPECT_EQ(heard.back(), "KeyDown KeyCode=113 Shift=0");
    Tell(ChildEvent::Click);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"MSFlexGrid1_Click"});
}

// ---- Focus, keys, leaving a cell ------------------------------------------------------------------------------------

TEST_F(GridEvents, FocusOfTheGrid_ForgetsWhatScrollingAndRepaintingWereExpected)
{
    Members.ScrollRightPending = Members.ScrollDownPending = Members.RefreshingColors = true;
    Tell(ChildEvent::GotFocus);
    EXPECT_FALSE(Members.ScrollRightPending || Members.ScrollDownPending || Members.RefreshingColors);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
}

TEST_F(GridEvents, F2_EntersTheCellAnewAndTakesTheRequestToHideBack)
{
    Sheet.Press(27);
    Forget();
    Sheet.Press(113);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"EnterCell", "KeyDown KeyCode=113 Shift=0", "KeyUp KeyCode=113 Shift=0"}));
    EXPECT_TRUE(IsUp());
    EXPECT_FALSE(Members.HideEditorRequest);
}

TEST_F(GridEvents, F2OnACellWithoutAnEditor_TakesTheRequestToHideBackToo)
{
    Members.ColumnData.at(0).cdControlType = fcNil;
    Request(false, true);
    EventArguments arguments;
    arguments.KeyCode = 113;
    Probe.Raise(grid, ChildEvent::KeyDown, arguments);
    ExpectRequests(false, false);
}

TEST_F(GridEvents, OtherKeys_AreOnlyTold)
{
    EventArguments arguments;
    arguments.KeyCode = 112;
    Probe.Raise(grid, ChildEvent::KeyDown, arguments);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"KeyDown KeyCode=112 Shift=0"});
}

TEST_F(GridEvents, LeavingACell_RemembersItsDataRowAndColumn)
{
    Members.CurrentRow = 2;
    Members.CurrentCol = 3;
    Tell(ChildEvent::LeaveCell);
    EXPECT_EQ(Members.LastLeaveCol, 3);
    EXPECT_EQ(Members.LastCol, 3);
    EXPECT_EQ(Members.LastRow, 2);
    Members.CurrentRow = Members.CurrentCol = 0;
    Tell(ChildEvent::LeaveCell);
    EXPECT_EQ(Members.LastLeaveCol, 0);
    EXPECT_EQ(Members.LastCol, 3);
    EXPECT_EQ(Members.LastRow, 2);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
}

// ---- The mouse ------------------------------------------------------------------------------------------------------

TEST_F(GridEvents, PressOnTheHeaderBand_TakesTheEditorDownAndSkipsTheNextEntry)
{
    for (const auto& [x, y] : {std::pair{1440.0F, 100.0F}, {0.0F, 0.0F}, {9600.0F, 240.0F}, {100.0F, 240.0F}}) {
        Members.SkipEnterCell = false;
        Probe.EnterCell();
        Request(true, false);
        ASSERT_TRUE(IsUp());
        Forget();
        TellMouse(ChildEvent::MouseDown, x, y);
        EXPECT_FALSE(IsUp()) << x << ' ' << y;
        EXPECT_TRUE(Members.SkipEnterCell);
        EXPECT_FALSE(Members.ShowEditorRequest);
        EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.Col"}), Lines()) << "on the band no column is selected";
    }
}

TEST_F(GridEvents, PressOnTheLowerEdgeOfTheHeaderBand_IsOnTheBandAlsoInTheMarkerColumn)
{
    Members.FirstVisibleCol = 2;
    TellMouse(ChildEvent::MouseDown, 100, Members.InitialRowHeight);
    EXPECT_FALSE(IsUp());
    EXPECT_TRUE(Members.SkipEnterCell);
    EXPECT_EQ(TheGrid().Col(), 1);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1."}), Lines());
}

TEST_F(GridEvents, PressOffTheHeaderBand_LeavesTheEditorUp)
{
    for (const auto& [x, y] : {std::pair{1440.0F, 241.0F}, {9601.0F, 100.0F}, {-1.0F, 100.0F}, {1440.0F, -1.0F}}) {
        Members.SkipEnterCell = true;
        Request(true, false);
        Forget();
        TellMouse(ChildEvent::MouseDown, x, y);
        EXPECT_TRUE(IsUp()) << x << ' ' << y;
        EXPECT_FALSE(Members.SkipEnterCell);
        EXPECT_EQ(Sheet.TakeCalls(), Lines());
        ExpectRequests(true, false);
    }
}

TEST_F(GridEvents, PressOnTheMarkerColumn_SelectsFromTheFirstVisibleColumn)
{
    Members.FirstVisibleCol = 2;
    for (const float x : {0.0F, 960.0F}) {
        Forget();
        TellMouse(ChildEvent::MouseDown, x, 241);
        const Lines calls = Only(Sheet.TakeCalls(), {"MSFlexGrid1.Col"});
        ASSERT_FALSE(calls.empty());
        EXPECT_EQ(calls.front(), "MSFlexGrid1.Col=2");
        EXPECT_EQ(calls.back(), "MSFlexGrid1.ColSel=2");
    }
    Forget();
    TellMouse(ChildEvent::MouseDown, 961, 241);
    TellMouse(ChildEvent::MouseDown, 500, 240);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.Col"}), Lines());
}

TEST_F(GridEvents, Press_ForgetsClickSkipAndExpectedScrolling)
{
    Members.SkipEnterCell = Members.ScrollRightPending = Members.ScrollDownPending = Members.GridClicked = true;
    TellMouse(ChildEvent::MouseDown, 1440, 500);
    EXPECT_FALSE(Members.SkipEnterCell || Members.ScrollRightPending || Members.ScrollDownPending ||
                 Members.GridClicked);
}

TEST_F(GridEvents, PressWithoutAnyEditorEver_OnlyForgetsAndIsTold)
{
    Members.ActiveEditor = nullptr;
    Members.SkipEnterCell = true;
    TellMouse(ChildEvent::MouseDown, 500, 100);
    TellMouse(ChildEvent::MouseDown, 500, 500);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_FALSE(Members.SkipEnterCell);
    EXPECT_EQ(Sheet.TakeEventNames(), (Lines{"MouseDown", "MouseDown"}));
    EXPECT_TRUE(IsUp());
}

TEST_F(GridEvents, MouseOverTheHeaderBand_TakesTheEditorDownWithoutAButton)
{
    Members.SkipEnterCell = false;
    Request(true, false);
    Members.ScrollRightPending = Members.ScrollDownPending = true;
    Sheet.Hand.Hover(1440, 240);
    EXPECT_FALSE(IsUp());
    EXPECT_FALSE(Members.SkipEnterCell);
    ExpectRequests(false, false); // The editor's loss of the focus has carried the request to hide out.
    EXPECT_FALSE(Members.ScrollRightPending || Members.ScrollDownPending);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"MouseDown Button=0 Shift=0 x=1440 y=240"});
}

TEST_F(GridEvents, MouseOverTheRows_LeavesTheEditorUp)
{
    Members.ScrollRightPending = true;
    Sheet.Hand.Hover(1440, 241);
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_FALSE(Members.ScrollRightPending);
}

TEST_F(GridEvents, MouseOverTheHeaderBandWithoutAnyEditorEver_TakesNothingDown)
{
    Members.ActiveEditor = nullptr;
    Sheet.Hand.Hover(1440, 100);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
}

TEST_F(GridEvents, MouseMoveWhoseWalkFails_IsReportedByTheWalkAndToldAllTheSame)
{
    Probe.SetAllDisable();
    Sheet.Calls->FailAtMember(u"Check1.Visible", 7);
    Sheet.Hand.Hover(1440, 100);
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"SetAllDisable"});
    EXPECT_EQ(heard.back(), "MouseDown Button=0 Shift=0 x=1440 y=100");
}

TEST_F(GridEvents, PressOnAHeadingByTheUser_KeepsTheEditorDownThroughTheMove)
{
    Sheet.Hand.Click(0, 2);
    EXPECT_FALSE(IsUp());
    EXPECT_EQ(Sheet->Col(), 2);
    EXPECT_FALSE(Members.SkipEnterCell) << "spent by the change of the cell";
}

// ---- A click --------------------------------------------------------------------------------------------------------

TEST_F(GridEvents, Click_IsNotToldAsOneAndEntersTheCell)
{
    Members.GridClicked = Members.GridClickPending = Members.GridRowClickPending = false;
    Tell(ChildEvent::Click);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"EnterCell"});
    EXPECT_TRUE(Members.GridClicked && Members.GridClickPending && Members.GridRowClickPending);
    EXPECT_FALSE(Members.HideEditorRequest);
}

TEST_F(GridEvents, ClickOnAnotherCell_TellsItsEntryTwice)
{
    Sheet.Hand.Click(2, 2);
    EXPECT_EQ(CountOf(Sheet.TakeEvents(), "EnterCell"), 2);
    Sheet.Hand.Click(2, 2);
    EXPECT_EQ(CountOf(Sheet.TakeEvents(), "EnterCell"), 1) << "the cell was current already";
}

TEST_F(GridEvents, ClickOnACellWithoutAnEditor_LeavesTheRequestToHide)
{
    Members.ColumnData.at(0).cdControlType = fcNil;
    Request(true, false);
    Tell(ChildEvent::Click);
    ExpectRequests(false, true);
}

TEST_F(GridEvents, Click_MovesTheMarkerFromItsRowToTheCurrentOne)
{
    Members.MarkerRow = 3;
    Tell(ChildEvent::Click);
    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.CellPicture="}),
              (Lines{"MSFlexGrid1.CellPicture=none", "MSFlexGrid1.CellPicture=none", "MSFlexGrid1.CellPicture=arrow"}));
    Tell(ChildEvent::Click);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.CellPicture="}), Lines()) << "it is there";
}

TEST_F(GridEvents, Click_IsNotedBehindTheEntryOfTheCell)
{
    Members.GridClicked = Members.GridClickPending = Members.GridRowClickPending = false;
    bool notedInside = true;
    Sheet->EnterCell +=
        [&] { notedInside = Members.GridClicked || Members.GridClickPending || Members.GridRowClickPending; };
    Tell(ChildEvent::Click);
    EXPECT_FALSE(notedInside);
}

TEST_F(GridEvents, ClickOutsideTheData_LeavesTheMarkerWhereItIs)
{
    const auto clickAt = [&](std::int32_t row, std::int32_t col, std::int32_t columns) {
        Members.MarkerRow = 3;
        Members.CurrentRow = row;
        Members.CurrentCol = col;
        Members.ColCount = columns;
        Forget();
        Tell(ChildEvent::Click);
        return Only(Sheet.TakeCalls(), {"MSFlexGrid1.CellPicture="});
    };
    EXPECT_EQ(clickAt(0, 1, 3), Lines());
    EXPECT_EQ(clickAt(1, 0, 3), Lines());
    EXPECT_EQ(clickAt(1, 1, 1), Lines());
    EXPECT_EQ(clickAt(1, 1, 3).size(), 3U);
}

TEST_F(GridEvents, ClickWithoutAMarker_ShowsItWithoutTakingOneAway)
{
    Members.MarkerRow = -1;
    Tell(ChildEvent::Click);
    EXPECT_EQ(Members.MarkerRow, 1);
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.CellPicture="}),
              (Lines{"MSFlexGrid1.CellPicture=none", "MSFlexGrid1.CellPicture=arrow"}));
}

TEST_F(GridEvents, ClickWhereTheMarkerCannotBeShown_KeepsItsRow)
{
    Members.MarkerRow = 3;
    Members.ColumnsDeclared = false;
    Tell(ChildEvent::Click);
    EXPECT_EQ(Members.MarkerRow, 3);
}

TEST_F(GridEvents, ClickOnTheLastRow_MovesTheViewAheadOfTheEditor)
{
    Sheet.Build({fcTextBox, fcTextBox}, 40);
    Sheet.Hand.Click(43, 1);
    Members.VisibleRows = 17;
    TheGrid().TopRow(21);
    Forget();
    Tell(ChildEvent::Click);
    const Lines calls = Sheet.TakeCalls();
    EXPECT_LT(PlaceOf(calls, "MSFlexGrid1.TopRow=28"), PlaceOf(calls, "Text1.Visible=True"));
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Sheet.Platform->Text1()->Top(), static_cast<float>(TheGrid().CellTop()));
}

} // namespace
} // namespace Tessellon
