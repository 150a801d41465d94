#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace Tessellon {
namespace {

/// A sheet of one row, its first column of a kind and with a text, and all editors down.
class EnteringACell : public testing::Test {
protected:
    void BuildOne(FieldControlType kind, std::u16string_view text)
    {
        Sheet.Build({kind, fcTextBox}, 1);
        Sheet->TextMatrix(1, 1, text);
        Probe.SetAllDisable();
        Forget();
    }
    void Forget()
    {
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    Lines CallsOfEntry()
    {
        Probe.EnterCell();
        return Sheet.TakeCalls();
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

struct LayingCase {
    FieldControlType Kind;
    std::string Name;
    Lines PlacedAndLoaded;
};

void PrintTo(const LayingCase& laying, std::ostream* out)
{
    *out << laying.Name;
}

class LayingAnEditor : public EnteringACell, public testing::WithParamInterface<LayingCase> {};

// Each kind is placed, loaded and finished by its own steps in their own order.
TEST_P(LayingAnEditor, GoesStepByStep)
{
    const LayingCase& laying = GetParam();
    BuildOne(laying.Kind, u"ab");
    const std::string color = std::to_string(Sheet.Platform->MSFlexGrid1().BackColor());
    Lines expected{"MSFlexGrid1.Refresh()"};
    for (const std::string& line : laying.PlacedAndLoaded)
        expected.push_back(line.ends_with("BackColor=") ? line + color : line);
    for (const char* line : {".Tag=\"ab\"", ".Enabled=True", ".Visible=True", ".ZOrder(0)", ".SetFocus()"})
        expected.push_back(laying.Name + line);
    EXPECT_EQ(UpTo(CallsOfEntry(), laying.Name + ".SetFocus()"), expected);
    EXPECT_EQ(Sheet.Focus(), laying.Name);
}

const std::string cellWritten = "MSFlexGrid1.TextMatrix(1,1)=\"ab\"";

INSTANTIATE_TEST_SUITE_P(
    OfEachKind, LayingAnEditor,
    testing::Values(
        LayingCase{fcTextBox,
                   "Text1",
                   {"Text1.Move(960,240,960,238)", "Text1.MaxLength=40", "Text1.Text=\"ab\"", cellWritten,
                    "Text1.FontName=\"Sans\"", "Text1.FontSize=7.25", "Text1.Alignment=0", "Text1.BackColor="}},
        LayingCase{fcCheckBox,
                   "Check1",
                   {"Check1.Move(960,240,960,238)", "Check1.Value=0", "Check1.FontName=\"Sans\"",
                    "Check1.FontSize=7.25", "Check1.BackColor=", "Check1.Alignment=0", cellWritten}},
        LayingCase{fcComboBox,
                   "Combo1(0)",
                   {"Combo1(0).FontName=\"Sans\"", "Combo1(0).FontSize=7", "Combo1(0).Top=240", "Combo1(0).Left=960",
                    "Combo1(0).Width=960", "Combo1(0).BackColor=", "Combo1(0).Text=\"ab\"", cellWritten}},
        LayingCase{fcListBox,
                   "List1(0)",
                   {"List1(0).FontName=\"Sans\"", "List1(0).FontSize=8.75", "List1(0).Top=240", "List1(0).Left=960",
                    "List1(0).Width=960", "List1(0).BackColor=", "List1(0).Selected(0)=False",
                    "List1(0).Selected(1)=False", "List1(0).Selected(2)=False"}},
        LayingCase{fcDatePicker,
                   "DTPicker1",
                   {"DTPicker1.FontName=\"Sans\"", "DTPicker1.Top=240", "DTPicker1.Left=960", "DTPicker1.Width=960",
                    "DTPicker1.FontSize=7.25", "DTPicker1.CalendarBackColor=", "DTPicker1.Format=3",
                    "DTPicker1.CustomFormat=\"dd/MM/yyyy\"", "DTPicker1.DataFormat=\"dd/MM/yyyy\"",
                    "DTPicker1.Value=2024-03-15"}},
        LayingCase{fcMaskedEditBox,
                   "MaskEdBox1(0)",
                   {"MaskEdBox1(0).Move(960,240,960,238)", "MaskEdBox1(0).PromptInclude=False",
                    "MaskEdBox1(0).Mask=\"\"", "MaskEdBox1(0).Format=\"\"", "MaskEdBox1(0).Text=\"\"",
                    "MaskEdBox1(0).Format=\"\"", "MaskEdBox1(0).Text=\"ab\"", "MaskEdBox1(0).PromptInclude=True",
                    "MaskEdBox1(0).FontName=\"Sans\"", "MaskEdBox1(0).FontSize=7.25", "MaskEdBox1(0).MaxLength=40",
                    "MaskEdBox1(0).BackColor=", "MaskEdBox1(0).SelStart=0", cellWritten}},
        LayingCase{fcRichTextBox,
                   "RichTextBox1",
                   {"RichTextBox1.Move(960,240,960,238)", "RichTextBox1.Text=\"ab\"", cellWritten,
                    "RichTextBox1.FontName=\"Sans\"", "RichTextBox1.FontSize=7.25", "RichTextBox1.MaxLength=40",
                    "RichTextBox1.SelStart=0", "RichTextBox1.BackColor="}},
        LayingCase{
            fcCommandButton,
            "Command1(0)",
            {"Command1(0).Move(960,240,960,238)", "Command1(0).FontName=\"Sans\"", "Command1(0).FontSize=7.25"}}),
    [](const auto& laid) { return laid.param.Name.substr(0, laid.param.Name.find('(')); });

TEST_F(EnteringACell, WithAnEditor_SetsTheRequestsAndForgetsTheButton)
{
    BuildOne(fcCommandButton, u"");
    Members.ShowEditorRequest = false;
    Members.HideEditorRequest = true;
    Members.CommandActivated = true;
    Probe.EnterCell();
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_FALSE(Members.CommandActivated);
    EXPECT_EQ(Members.ActiveEditor, Sheet.Calls->Command1().Item(0));
    EXPECT_FALSE(Members.EditorLoading);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"EnterCell"});
}

TEST_F(EnteringACell, MirrorsTheCursorBeforeItsGuards)
{
    BuildOne(fcTextBox, u"");
    Members.CurrentRow = 7;
    Members.CurrentCol = 8;
    Members.SkipEnterCell = true;
    Probe.EnterCell();
    EXPECT_EQ(Members.CurrentRow, 1);
    EXPECT_EQ(Members.CurrentCol, 1);
}

TEST_F(EnteringACell, TopRowToRestore_IsSetAheadOfAllGuardsOnTheLastButOneRowsLastCell)
{
    Sheet.Build({fcTextBox, fcTextBox}, 40);
    Sheet->Row(39);
    Sheet->Col(2);
    Probe.SetAllDisable();
    Forget();
    Members.GridReady = false;
    Members.PendingTopRow = 5;
    EXPECT_EQ(Only(CallsOfEntry(), {"MSFlexGrid1."}), Lines{"MSFlexGrid1.TopRow=5"});
    EXPECT_EQ(Members.PendingTopRow, 0);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"Scroll", "EnterCell"}));
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

struct PendingCase {
    std::int32_t Row;
    std::int32_t Col;
    std::int32_t Pending;
};

TEST_F(EnteringACell, TopRowToRestore_IsKeptInAnyOtherCell)
{
    Sheet.Build({fcTextBox, fcTextBox}, 4);
    for (const PendingCase& at :
         {PendingCase{4, 2, 2}, PendingCase{2, 2, 2}, PendingCase{3, 1, 2}, PendingCase{3, 2, -1}}) {
        Sheet->Row(at.Row);
        Sheet->Col(at.Col);
        Forget();
        Members.GridReady = false;
        Members.PendingTopRow = at.Pending;
        EXPECT_EQ(CallsOfEntry(), Lines());
        EXPECT_EQ(Members.PendingTopRow, at.Pending);
        Members.PendingTopRow = 0;
        Members.GridReady = true;
    }
}

/// The cell of a text box column, another editor laid last, and requests that nothing may touch.
class EnteringABarredCell : public EnteringACell {
protected:
    EnteringABarredCell()
    {
        BuildOne(fcTextBox, u"ab");
        Members.ActiveEditor = Sheet.Calls->Check1();
        Members.ShowEditorRequest = false;
        Members.HideEditorRequest = true;
    }
    void GoInSilence(std::int32_t row, std::int32_t col)
    {
        Sheet.Platform->MSFlexGrid1().Redraw(false);
        Sheet.Platform->MSFlexGrid1().Row(row);
        Sheet.Platform->MSFlexGrid1().Col(col);
    }
    void ExpectNothingLaid(const Lines& calls)
    {
        Forget();
        EXPECT_EQ(CallsOfEntry(), calls);
        EXPECT_EQ(Sheet.TakeEvents(), Lines{"EnterCell"});
        EXPECT_EQ(Members.ActiveEditor, Sheet.Calls->Check1());
        EXPECT_FALSE(Members.ShowEditorRequest);
        EXPECT_TRUE(Members.HideEditorRequest);
    }

    const Lines refreshed{"MSFlexGrid1.Refresh()"};
};

TEST_F(EnteringABarredCell, InAHiddenColumn_LaysNothingAndKeepsTheEditorLaidLast)
{
    Members.ColumnData.at(0).cdHidden = true;
    ExpectNothingLaid(refreshed);
    EXPECT_TRUE(Members.EditorLoading);
}

TEST_F(EnteringABarredCell, InAColumnOfNoWidth_LaysNothingAndKeepsTheEditorLaidLast)
{
    Sheet.Platform->MSFlexGrid1().ColWidth(1, 0);
    ExpectNothingLaid(refreshed);
    EXPECT_TRUE(Members.EditorLoading);
}

TEST_F(EnteringABarredCell, InAColumnWithoutAnEditor_LaysNothingAndKeepsTheEditorLaidLast)
{
    Members.ColumnData.at(0).cdControlType = fcNil;
    ExpectNothingLaid(refreshed);
    EXPECT_FALSE(Members.EditorLoading);
}

TEST_F(EnteringABarredCell, WithoutRowsOrColumns_RefreshesAndLaysNothing)
{
    for (std::int32_t SheetMembers::*count :
         {&SheetMembers::RowCount, &SheetMembers::ColCount, &SheetMembers::ColumnBound}) {
        const std::int32_t kept = std::exchange(Members.*count, 0);
        ExpectNothingLaid(refreshed);
        EXPECT_FALSE(Members.EditorLoading);
        Members.*count = kept;
    }
}

TEST_F(EnteringABarredCell, InTheHeadingOrTheMarkerColumn_RefreshesAndLaysNothing)
{
    GoInSilence(0, 1);
    ExpectNothingLaid(refreshed);
    GoInSilence(1, 0);
    ExpectNothingLaid(refreshed);
}

TEST_F(EnteringABarredCell, BehindAPressOnTheHeading_LaysNothingWithoutARefresh)
{
    Members.SkipEnterCell = true;
    ExpectNothingLaid(Lines());
    EXPECT_FALSE(Members.EditorLoading);
}

TEST_F(EnteringABarredCell, WhileTheGridIsNotReady_LaysNothingWithoutARefresh)
{
    Members.GridReady = false;
    ExpectNothingLaid(Lines());
    EXPECT_FALSE(Members.EditorLoading);
}

TEST_F(EnteringACell, HiddenColumnOfNoKind_IsLeftByTheHiddenGuard)
{
    BuildOne(fcTextBox, u"");
    Members.ColumnData.at(0).cdControlType = fcNil;
    Members.ColumnData.at(0).cdHidden = true;
    Probe.EnterCell();
    EXPECT_TRUE(Members.EditorLoading);
}

TEST_F(EnteringACell, PreviousEditor_IsNotTakenDownByIt)
{
    Sheet.Build({fcTextBox, fcNil}, 1);
    Forget();
    Members.CurrentCol = 1;
    Sheet.Platform->MSFlexGrid1().Redraw(false);
    Sheet.Platform->MSFlexGrid1().Col(2);
    Probe.EnterCell();
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    EXPECT_EQ(Members.ActiveEditor, Sheet.Calls->Text1());
}

TEST_F(EnteringACell, FontSize_FollowsTheRowInWholePixels)
{
    BuildOne(fcComboBox, u"");
    const auto sizeFor = [&](float height) {
        Members.DefaultRowHeight = height;
        return Only(CallsOfEntry(), {"Combo1(0).FontSize"});
    };
    EXPECT_EQ(sizeFor(300), Lines{"Combo1(0).FontSize=9"});
    EXPECT_EQ(sizeFor(254), Lines{"Combo1(0).FontSize=7"});
    EXPECT_EQ(sizeFor(254.5F), Lines{"Combo1(0).FontSize=7"});
    EXPECT_EQ(sizeFor(255.5F), Lines{"Combo1(0).FontSize=7.5"});
}

TEST_F(EnteringACell, FontName_IsTheGridsOwn)
{
    BuildOne(fcListBox, u"");
    Sheet->Font({u"Serif", 12});
    EXPECT_EQ(Only(CallsOfEntry(), {"List1(0).FontName"}), Lines{"List1(0).FontName=\"Serif\""});
}

TEST_F(EnteringACell, EditorOfNoKind_FailsWith91BehindTheRequests)
{
    BuildOne(static_cast<FieldControlType>(9), u"");
    Sheet->ShowErrMessage(false);
    Members.ShowEditorRequest = false;
    Probe.EnterCell();
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"ErrInfo ErrNum=91 ErrSource=\"Object variable not set\" "
                                         "ErrDesc=\"TessellonSheet\" ErrHelpFile=\"\" ErrHelpContext=\"0\"",
                                         "EnterCell"}));
    EXPECT_EQ(Members.ActiveEditor, nullptr);
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.EditorLoading);
}

TEST_F(EnteringACell, Failure_IsReportedUnderItsOwnLabelAndTheHostStillHearsEnterCell)
{
    BuildOne(fcTextBox, u"ab");
    Sheet.Calls->FailAtMember(u"Text1.ZOrder", 7);
    Probe.EnterCell();
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"MSFlexGrid1_EnterCell"});
    EXPECT_EQ(heard.back(), "EnterCell");
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_NE(Sheet.Focus(), "Text1");
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"ab\""});
}

TEST_F(EnteringACell, FailureInThePlacing_LeavesTheEditorUnshown)
{
    BuildOne(fcTextBox, u"ab");
    Sheet.Calls->FailAtMember(u"Text1.Move", 7);
    Probe.EnterCell();
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Members.ActiveEditor, Sheet.Calls->Text1());
}

TEST_F(EnteringACell, EditorThatTheHostTakesDownAsItIsShown_IsNotAskedForTheFocus)
{
    BuildOne(fcDatePicker, u"");
    Sheet->DateFormat(u"dd/MM/yyyy XX");
    Sheet->Format += [&](std::u16string&, std::u16string&) { Probe.SetAllDisable(); };
    Forget();
    const Lines calls = CallsOfEntry();
    EXPECT_EQ(CountOf(calls, "DTPicker1.Visible=True"), 1);
    EXPECT_EQ(CountOf(calls, "DTPicker1.SetFocus()"), 0);
    EXPECT_EQ(Sheet.TakeEventNames(), (Lines{"Format", "EnterCell"}));
}

TEST_F(EnteringACell, HostThatMovesOnInTheLoad_FailsTheNextStepWith438)
{
    Sheet.Build({fcTextBox, fcCheckBox}, 1);
    Sheet->TextMatrix(1, 1, u"ab");
    Probe.SetAllDisable();
    Sheet->ShowErrMessage(false);
    Forget();
    bool moved = false;
    Sheet->EditorChange += [&] {
        if (!std::exchange(moved, true))
            Sheet->Col(2);
    };
    Probe.EnterCell();
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Only(heard, {"ErrInfo"}),
              Lines{"ErrInfo ErrNum=438 ErrSource=\"Object doesn't support this property or method\" "
                    "ErrDesc=\"Check1\" ErrHelpFile=\"\" ErrHelpContext=\"0\""});
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Check1 \"0\""});
}

TEST_F(EnteringACell, ClickOnTheCurrentCell_ReloadsTheEditorAndTellsOnce)
{
    Sheet.Build({fcTextBox}, 1);
    Sheet.Platform->MSFlexGrid1().TextMatrix(1, 1, u"new");
    Sheet.Hand.Click(1, 1);
    EXPECT_EQ(CountOf(Sheet.TakeEventNames(), "EnterCell"), 1);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"new\""});
}

TEST_F(EnteringACell, ClickOnAnotherCell_TellsTwice)
{
    Sheet.Build({fcTextBox, fcTextBox}, 2);
    Sheet.Hand.Click(2, 2);
    EXPECT_EQ(CountOf(Sheet.TakeEventNames(), "EnterCell"), 2);
}

} // namespace
} // namespace Tessellon
