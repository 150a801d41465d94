#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <ostream>

namespace Tessellon {
namespace {

struct LosingCase {
    Child Editor;
    std::string Name;
    bool Reports; ///< Under the label of its own; else a failure is passed over.
};

void PrintTo(const LosingCase& losing, std::ostream* out)
{
    *out << losing.Name;
}

class LosingTheFocus : public testing::TestWithParam<LosingCase> {
protected:
    LosingTheFocus()
    {
        Sheet.Build({fcTextBox, fcComboBox, fcComboBox, fcCheckBox, fcNil}, 1);
        Probe.SetAllDisable();
        Sheet.Calls->Notes(true);
        Forget();
    }
    void Forget()
    {
        Sheet.Heard.clear();
        static_cast<void>(Sheet.TakeCalls());
    }
    void Lose(std::int32_t currentCol, bool show)
    {
        Members.CurrentCol = currentCol;
        Members.ShowEditorRequest = show;
        Members.HideEditorRequest = false;
        // A button that was pressed leaves the requests alone.
        Members.CommandActivated = true;
        Forget();
        Probe.Raise(GetParam().Editor, ChildEvent::LostFocus);
    }
    [[nodiscard]] bool IsButton() const { return GetParam().Editor == Child::Command1; }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

TEST_P(LosingTheFocus, SweepsForTheInstanceOfTheCurrentColumnAndNotForTheLoser)
{
    Lose(3, true);
    if (IsButton()) {
        EXPECT_EQ(Sheet.EditorsUp(), Lines()) << "the button asks to hide for a column that is not its own";
        return;
    }
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Combo1(1) \"\""});
    EXPECT_FALSE(Members.ShowEditorRequest);
}

TEST_P(LosingTheFocus, SweepsWithInstance0ForASingleKind)
{
    Members.ColumnData.at(3).cdControlIndex = 1;
    Lose(4, true);
    EXPECT_EQ(Sheet.EditorsUp(), IsButton() ? Lines() : Lines{"Check1 \"0\""});
}

TEST_P(LosingTheFocus, ForAColumnWithoutAnEditor_PutsEverythingAway)
{
    Probe.GetColControl(1)->Visible(true);
    Lose(5, true);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(CountOf(Sheet.TakeCalls(), "Combo1(1).ZOrder(1)"), 1);
}

TEST_P(LosingTheFocus, WithoutRows_SweepsWithInstance0)
{
    Members.RowCount = 1;
    Lose(3, true);
    EXPECT_EQ(Sheet.EditorsUp(), IsButton() ? Lines() : Lines{"Combo1(0) \"\""});
}

TEST_P(LosingTheFocus, ForNoColumn_ReportsOrPassesItOver)
{
    Lose(0, true);
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), GetParam().Reports ? Lines{GetParam().Name + "_LostFocus"} : Lines());
    EXPECT_EQ(heard.empty(), !GetParam().Reports);
    EXPECT_EQ(Sheet.TakeCalls().empty(), GetParam().Reports) << "in the silent ones the sweep still runs";
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

INSTANTIATE_TEST_SUITE_P(
    OfEachKind, LosingTheFocus,
    testing::Values(LosingCase{Child::Text1, "Text1", false}, LosingCase{Child::Check1, "Check1", true},
                    LosingCase{Child::Combo1, "Combo1", true}, LosingCase{Child::List1, "List1", true},
                    LosingCase{Child::DTPicker1, "DTPicker1", false}, LosingCase{Child::MaskEdBox1, "MaskEdBox1", true},
                    LosingCase{Child::RichTextBox1, "RichTextBox1", false},
                    LosingCase{Child::Command1, "Command1", true}),
    [](const auto& losing) { return losing.param.Name; });

/// A user who leaves an editor in one way or another.
class LeavingAnEditor : public testing::Test {
protected:
    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

TEST_F(LeavingAnEditor, ComboThatLosesTheFocus_ForgetsItsCountAheadOfAFailingSweep)
{
    Sheet.Build({fcComboBox}, 1);
    Members.ComboPreviousIndex = 3;
    Members.CurrentCol = 0;
    Probe.Raise(Child::Combo1, ChildEvent::LostFocus);
    EXPECT_EQ(Members.ComboPreviousIndex, 0);
}

TEST_F(LeavingAnEditor, FromComboToCombo_TheOldInstanceIsPutAway)
{
    Sheet.Build({fcComboBox, fcComboBox}, 1);
    Sheet.Hand.Click(1, 2);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Combo1(1) \"\""});
    EXPECT_EQ(Sheet.Focus(), "Combo1(1)");
}

TEST_F(LeavingAnEditor, PressThatALossOfFocusAnswersWithTheEditor_CountsAllTheSame)
{
    for (const FieldControlType kind : {fcComboBox, fcListBox, fcMaskedEditBox, fcRichTextBox, fcDatePicker}) {
        SheetUnderTest sheet;
        sheet.Build({kind, fcTextBox}, 2);
        SheetProbe(*sheet).Members().ShowEditorRequest = true;
        sheet.Hand.Click(2, 2);
        EXPECT_EQ(sheet->Row(), 2);
        EXPECT_EQ(sheet.EditorsUp(), Lines{"Text1 \"\""});
        EXPECT_EQ(sheet.Focus(), "Text1");
    }
}

TEST_F(LeavingAnEditor, FromTextToText_TheOneBoxMovesAndIsNotTakenDown)
{
    Sheet.Build({fcTextBox, fcTextBox}, 1);
    Sheet.Calls->Notes(true);
    Sheet.Hand.Click(1, 2);
    const Lines calls = Sheet.TakeCalls();
    EXPECT_EQ(CountOf(calls, "Text1.Visible=False"), 0);
    EXPECT_GE(CountOf(calls, "Text1.Move(1920,240,960,238)"), 1);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
}

TEST_F(LeavingAnEditor, ToAColumnWithoutAnEditor_NothingIsUpAndTheGridHasTheFocus)
{
    Sheet.Build({fcTextBox, fcNil}, 1);
    Sheet.Hand.Click(1, 2);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Sheet.Focus(), "MSFlexGrid1");
    EXPECT_EQ(Members.ActiveEditor, Sheet.Calls->Text1());
}

TEST_F(LeavingAnEditor, WhatWasTyped_StandsInTheCellTrimmedWhateverWayTheUserLeaves)
{
    Sheet.Build({fcTextBox, fcTextBox}, 2);
    const auto typed = [&](auto&& leave) {
        Sheet.Hand.Click(1, 1);
        Sheet->TextMatrix(1, 1, u"");
        Sheet.Hand.Click(1, 1);
        Sheet.Type(u" a b ");
        leave();
        return Sheet->TextMatrix(1, 1);
    };
    EXPECT_EQ(typed([&] { Sheet.Hand.Click(2, 2); }), u"a b");
    EXPECT_EQ(typed([&] { Sheet.Press(13); }), u"a b");
    EXPECT_EQ(typed([&] { Sheet.Hand.Scroll(2, 1); }), u"a b");
    EXPECT_EQ(typed([&] { Sheet.Hand.FocusOut(); }), u"a b");
}

TEST_F(LeavingAnEditor, ButtonColumn_NeverChangesItsCell)
{
    Sheet.Build({fcCommandButton, fcTextBox}, 1);
    Sheet->TextMatrix(1, 1, u" raw ");
    Sheet.Hand.Click(1, 1);
    Sheet.Hand.Push();
    Sheet.Hand.Click(1, 2);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), u" raw ");
}

TEST_F(LeavingAnEditor, ForAnotherWindow_ARequestThatStandsBringsItUpAgain)
{
    Sheet.Build({fcTextBox}, 1);
    Members.ShowEditorRequest = true;
    Members.HideEditorRequest = false;
    Sheet.Hand.WindowOut();
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    EXPECT_FALSE(Members.ShowEditorRequest);
    Sheet.Hand.WindowIn();
    EXPECT_EQ(Sheet.Focus(), "Text1");

    Members.HideEditorRequest = true;
    Members.ShowEditorRequest = false;
    Sheet.Hand.WindowOut();
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(LeavingAnEditor, SetGridFocus_GoesColumnFirstAndSetsTheMirrors)
{
    Sheet.Build({fcTextBox, fcTextBox}, 2);
    Sheet.Calls->Notes(true);
    Probe.SetGridFocus(2, 2);
    const Lines moves = Only(Sheet.TakeCalls(), {"MSFlexGrid1.Col=", "MSFlexGrid1.Row="});
    ASSERT_GE(moves.size(), 2U);
    EXPECT_EQ(moves[0], "MSFlexGrid1.Col=2");
    EXPECT_EQ(moves[1], "MSFlexGrid1.Row=2");
    EXPECT_EQ(Members.CurrentRow, 2);
    EXPECT_EQ(Members.CurrentCol, 2);
}

TEST_F(LeavingAnEditor, SetGridFocus_WithoutColumnsOrRowsDoesNothing)
{
    Sheet.Build({fcTextBox, fcTextBox}, 2);
    Sheet.Calls->Notes(true);
    for (std::int32_t SheetMembers::*count :
         {&SheetMembers::ColumnBound, &SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = Members.*count;
        Members.*count = count == &SheetMembers::ColumnBound ? 0 : 1;
        Probe.SetGridFocus(2, 2);
        Members.*count = kept;
    }
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
}

TEST_F(LeavingAnEditor, SetGridFocusThatFails_ReportsUnderItsLabelAndKeepsTheMirrors)
{
    Sheet.Build({fcTextBox, fcTextBox}, 2);
    Probe.SetGridFocus(99, 1);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"SetGridFocus"});
    EXPECT_EQ(Members.CurrentRow, 1);
}

} // namespace
} // namespace Tessellon
