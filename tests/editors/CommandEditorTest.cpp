#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace Tessellon {
namespace {

constexpr std::int32_t rows = 3;

/// Three rows of text and two buttons; the user is in the second row's first button, whose cell holds "paid".
class CommandEditor : public EditorTest {
protected:
    CommandEditor()
    {
        Sheet.Build({fcTextBox, fcCommandButton, fcCommandButton, fcTextBox}, rows);
        GoTo(2, 2, u"paid");
    }
    CommandButton& Button(std::int16_t index = 0) { return *Sheet.Platform->Command1().Item(index); }
    void LoseFocus() { TellOf(Child::Command1, 0, ChildEvent::LostFocus); }
};

// ---- The press ------------------------------------------------------------------------------------------------------

TEST_F(CommandEditor, Push_TellsTheClickAndThenAsksForTheAdvance)
{
    Sheet.Hand.Push();
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"ButtonClick ButtonIndex=0", "UseAdvanceToNextCell Use=False"}));
    EXPECT_EQ(Writes(), Lines());
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Sheet.EditorsUp().size(), 1U);
    Sheet.Hand.Click(2, 3);
    Forget();
    Sheet.Hand.Push();
    EXPECT_EQ(Sheet.TakeEvents().front(), "ButtonClick ButtonIndex=1");
}

TEST_F(CommandEditor, Push_SettlesTheRequestsAheadOfTheHost)
{
    Members.ShowEditorRequest = true;
    Members.HideEditorRequest = false;
    Members.CommandActivated = false;
    bool settled = false;
    Sheet->ButtonClick += [&](std::int16_t) {
        settled = Members.CommandActivated && Members.HideEditorRequest && !Members.ShowEditorRequest;
    };
    TellOf(Child::Command1, 0, ChildEvent::Click);
    EXPECT_TRUE(settled);
}

TEST_F(CommandEditor, AdvanceThatTheHostAsksFor_StandsTheButtonDownOnlyBehindHisLeave)
{
    Sheet->UseAdvanceToNextCell += [](bool& use) { use = true; };
    bool wasUp = false;
    Sheet->AdvanceToNextCell += [&](bool&) { wasUp = Button().Visible(); };
    TellOf(Child::Command1, 0, ChildEvent::Click);
    EXPECT_TRUE(wasUp);
    EXPECT_EQ(Cursor(), Place(2, 3));
    EXPECT_EQ(Only(Sheet.TakeEvents(), {"ButtonClick", "UseAdvanceToNextCell", "AdvanceToNextCell"}),
              (Lines{"ButtonClick ButtonIndex=0", "UseAdvanceToNextCell Use=False", "AdvanceToNextCell Cancel=False"}));
}

TEST_F(CommandEditor, HostThatFailsInButtonClick_IsReportedUnderTheLabelOfTheClick)
{
    Sheet->ButtonClick += [](std::int16_t) { throw Failure(7, u"", u""); };
    TellOf(Child::Command1, 0, ChildEvent::Click);
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"Command1_Click"});
    EXPECT_EQ(Only(heard, {"UseAdvanceToNextCell"}), Lines());
}

// ---- Keys -----------------------------------------------------------------------------------------------------------

TEST_F(CommandEditor, Enter_TellsTheClickAsksForTheAdvanceAndLeavesTheButtonUp)
{
    Sheet.Press(Key::Enter);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"ButtonClick ButtonIndex=0", "UseAdvanceToNextCell Use=False"}));
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Sheet.EditorsUp().size(), 1U);
    EXPECT_EQ(TellKey(Child::Command1, Key::Enter, 1).KeyCode, 0);
    EXPECT_EQ(Sheet.TakeEvents().front(), "ButtonClick ButtonIndex=1");
}

TEST_F(CommandEditor, Space_DoesWhatEnterDoesAndIsEaten)
{
    EXPECT_EQ(TellKey(Child::Command1, Key::Space).KeyCode, 0);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"ButtonClick ButtonIndex=0", "UseAdvanceToNextCell Use=False"}));
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Sheet.EditorsUp().size(), 1U);
}

TEST_F(CommandEditor, EnterWhoseClickFails_IsEatenAllTheSame)
{
    Sheet->ButtonClick += [](std::int16_t) { throw Failure(7, u"", u""); };
    EXPECT_EQ(TellKey(Child::Command1, Key::Enter).KeyCode, 0);
    EXPECT_EQ(LabelsHeard(), Lines{"Command1_Click"});
}

TEST_F(CommandEditor, Escape_WritesTheTrimmedTagIfThereAreRowsAndStandsDownInSilence)
{
    for (const bool anyRow : {true, false}) {
        GoTo(2, 2, u"paid");
        Button().Tag(u" before ");
        const std::int32_t kept = Members.RowCount;
        Members.RowCount = anyRow ? kept : 0;
        EXPECT_EQ(TellKey(Child::Command1, Key::Escape).KeyCode, Key::Escape);
        const Lines calls = CallsOn("Command1(0)");
        Members.RowCount = kept;
        EXPECT_EQ(calls.front(), anyRow ? "MSFlexGrid1.TextMatrix(2,2)=\"before\"" : "Command1(0).Visible=False");
        EXPECT_EQ(calls.back(), "Command1(0).ZOrder(1)");
        EXPECT_EQ(Cell(2, 2), anyRow ? u"before" : u"paid");
        EXPECT_EQ(Sheet.EditorsUp(), Lines());
        EXPECT_EQ(Sheet.TakeEvents(), Lines());
    }
}

TEST_F(CommandEditor, AnyKey_CountsAsAPressForTheLossOfFocus)
{
    for (const std::int16_t code :
         {Key::Left, Key::Up, Key::Right, Key::Down, Key::Tab, Key::F2, std::int16_t{u'A'}, Key::Escape, Key::Enter}) {
        Members.CommandActivated = false;
        Members.HideEditorRequest = false;
        Members.ShowEditorRequest = true;
        TellKey(Child::Command1, code);
        EXPECT_TRUE(Members.CommandActivated);
        EXPECT_FALSE(Members.ShowEditorRequest);
        // The loss of focus of its stand-down has spent the request.
        EXPECT_EQ(Members.HideEditorRequest, code != Key::Escape);
    }
}

TEST_F(CommandEditor, Arrows_DoNothingElse)
{
    for (const std::int16_t code : {Key::Left, Key::Up, Key::Right, Key::Down, Key::Tab, Key::Home})
        EXPECT_EQ(TellKey(Child::Command1, code).KeyCode, code);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(CommandEditor, KeyThatFails_IsReportedUnderItsLabel)
{
    Sheet.Calls->FailAtMember(u"Command1(0).Tag", 7);
    TellKey(Child::Command1, Key::Escape);
    EXPECT_EQ(LabelsHeard(), Lines{"Command1_KeyDown"});
    EXPECT_EQ(Sheet.EditorsUp().size(), 1U);
}

// ---- Gain of focus and mouse ----------------------------------------------------------------------------------------

TEST_F(CommandEditor, Focus_ForgetsWhatTheGridDidOnlyWhileTheRowLeftLastIsZero)
{
    constexpr bool SheetMembers::*cleared[] = {&SheetMembers::GridScrolled,        &SheetMembers::GridClicked,
                                               &SheetMembers::ShowEditorRequest,   &SheetMembers::GridClickPending,
                                               &SheetMembers::GridRowClickPending, &SheetMembers::AdvancePending,
                                               &SheetMembers::RefreshingColors};
    for (const std::int32_t lastRow : {-1, 0, 1}) {
        for (bool SheetMembers::*flag : cleared)
            Members.*flag = true;
        Members.HideEditorRequest = false;
        Members.LastRow = lastRow;
        TellOf(Child::Command1, 0, ChildEvent::GotFocus);
        for (bool SheetMembers::*flag : cleared)
            EXPECT_EQ(Members.*flag, lastRow != 0);
        EXPECT_EQ(Members.HideEditorRequest, lastRow == 0);
    }
}

TEST_F(CommandEditor, PressMoveAndRelease_ReachTheHostAsWhatTheyAre)
{
    const std::pair<ChildEvent, std::string> events[] = {
        {ChildEvent::MouseDown, "MouseDown"}, {ChildEvent::MouseMove, "MouseMove"}, {ChildEvent::MouseUp, "MouseUp"}};
    for (const auto& [event, name] : events) {
        EventArguments arguments;
        arguments.Index = 1;
        arguments.Button = 1;
        arguments.Shift = 3;
        arguments.X = 15;
        arguments.Y = 30;
        Tell(Child::Command1, event, arguments);
        EXPECT_EQ(Sheet.TakeEvents(), Lines{name + " Button=1 Shift=3 x=15 y=30"});
    }
}

// ---- Loss of focus --------------------------------------------------------------------------------------------------

/// What the grid did, as the members tell it.
struct Doings {
    bool RefreshingColors = false;
    bool GridScrolled = false;
    bool GridClicked = false;
    bool GridClickPending = false;
    bool GridRowClickPending = false;
    bool AdvancePending = false;
    std::int32_t PreviousMarkerRow = 9;

    bool operator==(const Doings&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Doings& d)
    {
        return out << "colours " << d.RefreshingColors << " scrolled " << d.GridScrolled << " clicked " << d.GridClicked
                   << " click pending " << d.GridClickPending << " row click pending " << d.GridRowClickPending
                   << " advance pending " << d.AdvancePending << " previous marker " << d.PreviousMarkerRow;
    }
};

enum class Wish : std::uint8_t { Both, Hide, KeepShowAndHide, KeepShowAndNotHide, Keep };

struct Loss {
    const char* Name;
    Doings Before;
    bool ColumnDiffers; ///< The column left last is not the current one.
    Wish Expected;
    Doings After;
    bool Reenters = false;
};

/// The tables of the decision. The sheet is marked as not ready, so that the sweep puts everything away and leaves the
/// requests as they were decided.
class ButtonLosesFocus : public CommandEditor {
protected:
    void Play(std::int32_t row, bool bothScroll, const Loss& loss)
    {
        for (const bool show : {false, true}) {
            for (const bool hide : {false, true}) {
                SCOPED_TRACE(loss.Name);
                Members.GridReady = true;
                GoTo(row, 2, u"paid");
                Members.GridReady = false;
                Button().Visible(false); // So that the sweep itself takes the focus from nobody.
                Members.CommandActivated = false;
                Members.LastCol = loss.ColumnDiffers ? 1 : 2;
                Members.ControlWidth = Members.ControlHeight = bothScroll ? 0 : 1e6F;
                Members.ShowEditorRequest = show;
                Members.HideEditorRequest = hide;
                Set(loss.Before);
                Forget();
                LoseFocus();
                EXPECT_EQ(Get(), loss.After);
                const bool wasKept = loss.Expected != Wish::Both && loss.Expected != Wish::Hide;
                // The cell that is entered anew asks for its editor.
                EXPECT_EQ(Members.ShowEditorRequest, loss.Reenters || loss.Expected == Wish::Both || (wasKept && show));
                EXPECT_EQ(Members.HideEditorRequest,
                          loss.Expected == Wish::Keep ? hide : loss.Expected != Wish::KeepShowAndNotHide);
                EXPECT_EQ(Sheet.TakeEvents(), loss.Reenters ? Lines{"EnterCell"} : Lines());
                EXPECT_EQ(First(Sheet.TakeCalls(), 1), Lines{"Text1.ZOrder(1)"}) << "the sweep";
            }
        }
    }
    void Set(const Doings& doings)
    {
        Members.RefreshingColors = doings.RefreshingColors;
        Members.GridScrolled = doings.GridScrolled;
        Members.GridClicked = doings.GridClicked;
        Members.GridClickPending = doings.GridClickPending;
        Members.GridRowClickPending = doings.GridRowClickPending;
        Members.AdvancePending = doings.AdvancePending;
        Members.PreviousMarkerRow = doings.PreviousMarkerRow;
    }
    Doings Get()
    {
        return {Members.RefreshingColors,    Members.GridScrolled,   Members.GridClicked,      Members.GridClickPending,
                Members.GridRowClickPending, Members.AdvancePending, Members.PreviousMarkerRow};
    }
};

// Doings in the tables: colours, scrolled, clicked, click pending, row click pending, advance pending, previous marker.

TEST_F(ButtonLosesFocus, InARowAboveTheLast_TheFirstRowOfTheTableThatAppliesDecides)
{
    const Loss table[] = {
        {"colours repainted",
         {true, true, true, true, true, true},
         true,
         Wish::Both,
         {false, true, true, false, true, true}},
        {"scrolled and clicked, click pending",
         {false, true, true, true, true, true},
         true,
         Wish::Both,
         {false, true, true, false, true, true}},
        {"scrolled and clicked",
         {false, true, true, false, true, true},
         true,
         Wish::Both,
         {false, false, false, false, true, true}},
        {"advance pending",
         {false, false, false, false, true, true},
         true,
         Wish::Both,
         {false, false, false, false, true, false}},
        {"advance pending, scrolled",
         {false, true, false, true, true, true},
         true,
         Wish::Both,
         {false, true, false, false, true, false}},
        {"advance pending, clicked",
         {false, false, true, true, true, true},
         true,
         Wish::Both,
         {false, false, true, false, true, false}},
        {"otherwise", {}, false, Wish::Hide, {}},
        {"otherwise, scrolled",
         {false, true, false, true, true, false},
         true,
         Wish::Hide,
         {false, true, false, false, true, false}},
        {"otherwise, clicked",
         {false, false, true, true, true, false, 0},
         true,
         Wish::Hide,
         {false, false, true, false, true, false, 0}},
    };
    for (const Loss& loss : table) {
        Play(rows - 1, true, loss);
        Play(rows - 1, false, loss);
    }
}

TEST_F(ButtonLosesFocus, InTheLastRowWithoutBothScrolls_OnlyAPendingAdvanceBringsTheButtonBack)
{
    const Loss table[] = {
        {"advance pending",
         {true, true, true, true, true, true, 0},
         true,
         Wish::Both,
         {true, true, true, false, true, false, 0}},
        {"otherwise",
         {true, true, true, true, true, false, 0},
         true,
         Wish::Hide,
         {true, true, true, false, true, false, 0}},
    };
    for (const Loss& loss : table)
        Play(rows, false, loss);
}

TEST_F(ButtonLosesFocus, InTheLastRowWithBothScrolls_TheFirstRowOfTheTableThatAppliesDecides)
{
    const Loss table[] = {
        {"click pending",
         {true, true, true, true, true, true, 0},
         true,
         Wish::Both,
         {true, true, true, false, true, true, 0},
         true},
        {"click pending, marker above",
         {false, false, false, true, false, false, rows - 1},
         false,
         Wish::Both,
         {false, false, false, false, true, false, rows - 1},
         true},
        {"click pending, marker here",
         {false, false, false, true, false, false, rows},
         false,
         Wish::Both,
         {false, false, false, false, false, false, rows},
         true},
        {"row click pending",
         {true, true, true, false, true, true, 0},
         true,
         Wish::Both,
         {true, true, true, false, false, true, 0}},
        {"another column, advance pending",
         {true, true, true, false, false, true, 0},
         true,
         Wish::Both,
         {true, true, true, false, false, false, 0}},
        {"another column",
         {true, true, true, false, false, false, 0},
         true,
         Wish::Hide,
         {true, true, true, false, false, false, 0}},
        {"marker above, advance pending",
         {true, true, true, false, false, true, rows - 1},
         false,
         Wish::Both,
         {true, true, true, false, false, true, rows}},
        {"marker above",
         {true, true, true, false, false, false, rows - 1},
         false,
         Wish::KeepShowAndNotHide,
         {true, true, true, false, false, false, rows}},
        {"otherwise",
         {true, true, true, false, false, true, rows},
         false,
         Wish::KeepShowAndHide,
         {true, true, true, false, false, true, rows}},
        {"otherwise, marker below",
         {false, false, false, false, false, false, rows + 1},
         false,
         Wish::KeepShowAndHide,
         {false, false, false, false, false, false, rows + 1}},
    };
    for (const Loss& loss : table)
        Play(rows, true, loss);
}

TEST_F(ButtonLosesFocus, BehindAPress_TheRequestsStayAsThePressLeftThem)
{
    const Doings all{true, true, true, true, true, true, 0};
    Button().Visible(false);
    for (const std::int32_t row : {rows - 1, rows}) {
        for (const bool show : {false, true}) {
            Members.GridReady = false;
            Members.CommandActivated = true;
            Members.CurrentRow = row;
            Members.ControlWidth = Members.ControlHeight = 0;
            Members.ShowEditorRequest = show;
            Members.HideEditorRequest = !show;
            Set(all);
            LoseFocus();
            EXPECT_EQ(Members.ShowEditorRequest, show);
            EXPECT_EQ(Members.HideEditorRequest, !show);
            EXPECT_EQ(Get(), all);
            EXPECT_TRUE(Members.CommandActivated);
        }
    }
}

TEST_F(ButtonLosesFocus, ToAColumnOfAnotherKind_AsksToHideAndLeavesTheRest)
{
    const Doings all{true, true, true, true, true, true, 0};
    Button().Visible(false);
    Members.GridReady = false;
    Members.CurrentCol = 1;
    Members.CurrentRow = rows;
    Members.ControlWidth = Members.ControlHeight = 0;
    Members.ShowEditorRequest = true;
    Members.HideEditorRequest = false;
    Members.CommandActivated = false;
    Set(all);
    LoseFocus();
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
    EXPECT_EQ(Get(), all);
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(ButtonLosesFocus, SweepThatBringsTheButtonUp_LeavesTheRequestToHide)
{
    Members.CommandActivated = false;
    Members.CurrentRow = 2;
    Set({.AdvancePending = true});
    Button().Visible(false);
    Members.AdvancePending = true;
    LoseFocus();
    EXPECT_TRUE(Button().Visible());
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
}

TEST_F(ButtonLosesFocus, OnTheLastRowWithBothScrollsByAClickOnTheGrid_ComesBackByEnteringTheCellAnew)
{
    GoTo(rows, 2, u"paid");
    Sheet.Hand.FocusOut();
    Members.CommandActivated = false;
    Members.ControlWidth = Members.ControlHeight = 0;
    Set({.GridClickPending = true, .PreviousMarkerRow = rows - 1});
    Forget();
    LoseFocus();
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"EnterCell"});
    EXPECT_TRUE(Button().Visible());
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.GridRowClickPending);
    EXPECT_FALSE(Members.GridClickPending);
}

TEST_F(ButtonLosesFocus, CellThatIsEnteredAnewWithoutItsEditor_IsAskedForAllTheSame)
{
    GoTo(rows, 2, u"paid");
    Sheet.Hand.FocusOut();
    Members.CommandActivated = false;
    Members.ControlWidth = Members.ControlHeight = 0;
    Members.SkipEnterCell = true;
    Set({.GridClickPending = true, .PreviousMarkerRow = rows});
    LoseFocus();
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_FALSE(Members.GridRowClickPending);
}

TEST_F(ButtonLosesFocus, WithoutAColumn_IsReportedUnderItsLabel)
{
    Members.CurrentCol = 0;
    LoseFocus();
    EXPECT_EQ(LabelsHeard(), Lines{"Command1_LostFocus"});
}

} // namespace
} // namespace Tessellon
