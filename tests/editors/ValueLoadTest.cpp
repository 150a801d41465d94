#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon {
namespace {

/// A sheet of one column and row, its cell holding a text, and all editors down.
class LoadingAnEditor : public testing::Test {
protected:
    void BuildOne(FieldControlType kind, std::u16string_view text, std::u16string_view setting = u"One|Two|Three",
                  bool useMask = false, std::int32_t length = 40, FieldControlAlign alignment = fcLeft)
    {
        Sheet->Cols(2);
        Sheet->CreateColumnDataType(1, u"C", kind, setting, false, alignment, length, faNil, useMask);
        Sheet->BuildGridColumns();
        Sheet->AllowAddNew(true);
        Sheet->Add(0, 1);
        Probe.SetAllDisable();
        Write(text);
    }
    /// Behind the sheet's back: no trimming, no event.
    void Write(std::u16string_view text)
    {
        Sheet.Platform->MSFlexGrid1().TextMatrix(1, 1, text);
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    /// What is up when the cell that holds the text has been entered.
    Lines Loaded(std::u16string_view text)
    {
        Write(text);
        Probe.EnterCell();
        return Sheet.EditorsUp();
    }
    Lines Entered(const std::vector<std::string_view>& words)
    {
        Probe.EnterCell();
        return Only(Sheet.TakeCalls(), words);
    }
    std::u16string Cell() { return Sheet->TextMatrix(1, 1); }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

TEST_F(LoadingAnEditor, CheckBox_TicksForTheWordTrueInAnyCaseAndKeepsTheTrimmedWord)
{
    BuildOne(fcCheckBox, u"");
    EXPECT_EQ(Loaded(u"  tRuE "), Lines{"Check1 \"1\""});
    EXPECT_EQ(Cell(), u"tRuE");
    EXPECT_EQ(Loaded(u" yes "), Lines{"Check1 \"0\""});
    EXPECT_EQ(Cell(), u"yes");
    EXPECT_EQ(Loaded(u"true x"), Lines{"Check1 \"0\""});
    EXPECT_EQ(Loaded(u""), Lines{"Check1 \"0\""});
    EXPECT_EQ(Cell(), u"");
}

TEST_F(LoadingAnEditor, CheckBox_WritesTheKeptTextBehindTheClickThatTheLoadCaused)
{
    BuildOne(fcCheckBox, u" true ");
    const Lines writes{"Check1.Value=1", "MSFlexGrid1.TextMatrix(1,1)=\"True\"", "MSFlexGrid1.TextMatrix(1,1)=\"true\"",
                       "Check1.Tag=\"true\""};
    EXPECT_EQ(Entered({"Check1.Value", "MSFlexGrid1.TextMatrix", "Check1.Tag"}), writes);
}

struct AlignmentCase {
    FieldControlAlign Column;
    const char* Text;
    const char* Check;
};

TEST_F(LoadingAnEditor, Alignment_FollowsTheColumnsAndTheCheckBoxHasNoMiddle)
{
    for (const AlignmentCase& align : {AlignmentCase{fcLeft, "0", "0"}, {fcCenter, "2", "0"}, {fcRight, "1", "1"}}) {
        for (const FieldControlType kind : {fcTextBox, fcCheckBox}) {
            BuildOne(kind, u"", u"", false, 40, align.Column);
            const std::string name = kind == fcTextBox ? "Text1" : "Check1";
            const std::string value = kind == fcTextBox ? align.Text : align.Check;
            EXPECT_EQ(Entered({name + ".Alignment"}), Lines{name + ".Alignment=" + value});
        }
    }
}

TEST_F(LoadingAnEditor, AlignmentThatTheSheetDoesNotKnow_LeavesTheEditorsAlone)
{
    for (const FieldControlType kind : {fcTextBox, fcCheckBox}) {
        BuildOne(kind, u"");
        Sheet.Platform->MSFlexGrid1().ColAlignment(1, 2);
        EXPECT_EQ(Entered({"Text1.Alignment", "Check1.Alignment"}), Lines());
    }
}

TEST_F(LoadingAnEditor, TextBox_ShowsTheTextAsItStandsAndTheCellComesOutTrimmed)
{
    BuildOne(fcTextBox, u"  a b ");
    Probe.EnterCell();
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"  a b \""});
    EXPECT_EQ(Cell(), u"a b");
    EXPECT_EQ(Sheet.Calls->Text1()->Tag(), u"a b");
    EXPECT_EQ(Sheet.TakeEventNames(), (Lines{"EditorChange", "EnterCell"}));
}

TEST_F(LoadingAnEditor, TextBox_LimitsTypingAndNotWhatIsLoaded)
{
    BuildOne(fcTextBox, u"abcdef", u"", false, 3);
    EXPECT_EQ(Entered({"Text1.MaxLength", "Text1.Text"}), (Lines{"Text1.MaxLength=3", "Text1.Text=\"abcdef\""}));
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"abcdef\""});
}

TEST_F(LoadingAnEditor, SameTextAgain_ChangesNothingAndWritesNoCell)
{
    BuildOne(fcTextBox, u"ab");
    Probe.EnterCell();
    Sheet.Heard.clear();
    static_cast<void>(Sheet.TakeCalls());
    EXPECT_EQ(Entered({"MSFlexGrid1.TextMatrix"}), Lines());
    Lines heard = Sheet.TakeEventNames();
    EXPECT_EQ(heard, Lines{"EnterCell"});
}

TEST_F(LoadingAnEditor, Picker_ShowsTheCellsDateOrToday)
{
    BuildOne(fcDatePicker, u"");
    EXPECT_EQ(Loaded(u"05/02/2020"), Lines{"DTPicker1 \"05/02/2020\""});
    EXPECT_EQ(Loaded(u"no date"), Lines{"DTPicker1 \"15/03/2024\""});
    EXPECT_EQ(Loaded(u" 31/12/1999 "), Lines{"DTPicker1 \"31/12/1999\""});
    EXPECT_EQ(Loaded(u""), Lines{"DTPicker1 \"15/03/2024\""});
    EXPECT_EQ(Loaded(u"   "), Lines{"DTPicker1 \"15/03/2024\""});
}

TEST_F(LoadingAnEditor, Picker_WritesNoCellByItsLoad)
{
    BuildOne(fcDatePicker, u"2020-02-05");
    EXPECT_EQ(Entered({"MSFlexGrid1.TextMatrix", "DTPicker1.Tag"}), Lines{"DTPicker1.Tag=\"2020-02-05\""});
}

TEST_F(LoadingAnEditor, RichTextBox_PutsTheCaretToTheFront)
{
    BuildOne(fcRichTextBox, u" ab ", u"", false, 7);
    EXPECT_EQ(Entered({"RichTextBox1.Text", "RichTextBox1.MaxLength", "RichTextBox1.SelStart"}),
              (Lines{"RichTextBox1.Text=\" ab \"", "RichTextBox1.MaxLength=7", "RichTextBox1.SelStart=0"}));
    EXPECT_EQ(Cell(), u"ab");
}

TEST_F(LoadingAnEditor, ListBox_SelectsAllItemsThatEqualTheCellButForCaseAndBlanks)
{
    BuildOne(fcListBox, u" tWO ", u"One|Two| two |TWO x");
    EXPECT_EQ(Entered({"List1(0).Selected"}), (Lines{"List1(0).Selected(0)=False", "List1(0).Selected(1)=True",
                                                     "List1(0).Selected(2)=True", "List1(0).Selected(3)=False"}));
    EXPECT_EQ(Cell(), u" tWO ");
}

TEST_F(LoadingAnEditor, EmptyListBox_GetsAnEmptyTextAndSelectsNothing)
{
    BuildOne(fcListBox, u"Two", u"");
    EXPECT_EQ(Entered({"List1(0).Selected", "List1(0).Text"}), Lines{"List1(0).Text=\"\""});
}

TEST_F(LoadingAnEditor, ComboBox_ShowsTheTextUntrimmedAndTheCellComesOutTrimmed)
{
    BuildOne(fcComboBox, u" Four ");
    EXPECT_EQ(Entered({"Combo1(0).Text", "Combo1(0).Tag"}),
              (Lines{"Combo1(0).Text=\" Four \"", "Combo1(0).Tag=\"Four\""}));
}

TEST_F(LoadingAnEditor, Button_KeepsTheColumnsCaptionAndTagsTheCellsText)
{
    BuildOne(fcCommandButton, u" raw ", u"Go");
    EXPECT_EQ(Loaded(u" raw "), Lines{"Command1(0) \"Go\""});
    EXPECT_EQ(Sheet.Calls->Command1().Item(0)->Tag(), u" raw ");
    EXPECT_EQ(Cell(), u" raw ");
}

TEST_F(LoadingAnEditor, MaskedBoxWithAMask_TakesTheTextAheadOfTheMask)
{
    BuildOne(fcMaskedEditBox, u" 12/05/2002 ", u"##/##/####", true);
    const Lines steps{"MaskEdBox1(0).PromptInclude=False", "MaskEdBox1(0).Mask=\"\"",
                      "MaskEdBox1(0).Format=\"\"",         "MaskEdBox1(0).Text=\"\"",
                      "MaskEdBox1(0).Text=\"12052002\"",   "MaskEdBox1(0).Mask=\"##/##/####\"",
                      "MaskEdBox1(0).PromptInclude=True",  "MSFlexGrid1.TextMatrix(1,1)=\"12/05/2002\""};
    EXPECT_EQ(Entered({"MaskEdBox1(0).PromptInclude", "MaskEdBox1(0).Mask", "MaskEdBox1(0).Format",
                       "MaskEdBox1(0).Text", "MSFlexGrid1.TextMatrix"}),
              steps);
    EXPECT_TRUE(Members.MaskCellHadText);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"MaskEdBox1(0) \"12/05/2002\""});
    EXPECT_EQ(Sheet.Calls->MaskEdBox1().Item(0)->SelStart(), 0);
}

TEST_F(LoadingAnEditor, MaskedBoxWithAFormat_TakesTheFormatAheadOfTheText)
{
    BuildOne(fcMaskedEditBox, u" 5 ", u"0.00");
    const Lines steps{"MaskEdBox1(0).Mask=\"\"", "MaskEdBox1(0).Format=\"\"", "MaskEdBox1(0).Text=\"\"",
                      "MaskEdBox1(0).Format=\"0.00\"", "MaskEdBox1(0).Text=\"5\""};
    EXPECT_EQ(Entered({"MaskEdBox1(0).Mask", "MaskEdBox1(0).Format", "MaskEdBox1(0).Text"}), steps);
    EXPECT_EQ(Cell(), u"5");
    EXPECT_TRUE(Members.MaskCellHadText);
}

TEST_F(LoadingAnEditor, MaskedBoxOnAnEmptyCell_KnowsThatThereWasNoText)
{
    BuildOne(fcMaskedEditBox, u"", u"##/##", true);
    Members.MaskCellHadText = true;
    Loaded(u"  ");
    EXPECT_FALSE(Members.MaskCellHadText);
    Loaded(u"12/34");
    EXPECT_TRUE(Members.MaskCellHadText);
    Loaded(u"/");
    EXPECT_FALSE(Members.MaskCellHadText) << "nothing but literals is no text";

    BuildOne(fcMaskedEditBox, u"", u"0.00");
    Loaded(u"1");
    EXPECT_TRUE(Members.MaskCellHadText);
    Loaded(u" ");
    EXPECT_FALSE(Members.MaskCellHadText);
}

TEST_F(LoadingAnEditor, MaskedBoxWithALengthPast16Bits_FailsBehindTheFontAndLeavesTheRestUndone)
{
    BuildOne(fcMaskedEditBox, u" 5 ", u"0.00", false, 32768);
    const Lines steps = Entered({"MaskEdBox1(0).FontSize", "MaskEdBox1(0).MaxLength", "MaskEdBox1(0).BackColor",
                                 "MSFlexGrid1.TextMatrix", "MaskEdBox1(0).Visible"});
    EXPECT_EQ(steps, Lines{"MaskEdBox1(0).FontSize=7.25"});
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"MSFlexGrid1_EnterCell"});

    BuildOne(fcMaskedEditBox, u"5", u"0.00", false, 32767);
    EXPECT_EQ(Entered({"MaskEdBox1(0).MaxLength"}), Lines{"MaskEdBox1(0).MaxLength=32767"});

    Members.ColumnData.at(0).cdMaxLength = -32769;
    EXPECT_EQ(Entered({"MaskEdBox1(0).MaxLength"}), Lines());
}

TEST_F(LoadingAnEditor, CellThatTheMaskRefuses_IsAFailureOfTheEntry)
{
    BuildOne(fcMaskedEditBox, u"5", u"##", true);
    Sheet.Calls->FailAtMember(u"MaskEdBox1(0).Text", 380);
    Probe.EnterCell();
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"MSFlexGrid1_EnterCell"});
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Cell(), u"5");
}

} // namespace
} // namespace Tessellon
