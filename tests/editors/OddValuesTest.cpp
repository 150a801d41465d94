#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tessellon {
namespace {

/// Values and settings that no careful host or user would give.
class OddValues : public EditorTest {
protected:
    /// Three rows of a column with the setting, and of text.
    void BuildOne(FieldControlType kind, std::u16string_view setting = u"", bool useMask = false,
                  std::int32_t fieldLength = 40)
    {
        Sheet->Cols(3);
        Sheet->CreateColumnDataType(1, u"Odd", kind, setting, false, fcLeft, fieldLength, faNil, useMask);
        Sheet.Column(2, fcTextBox);
        Sheet->BuildGridColumns();
        Sheet->AllowAddNew(true);
        Sheet->Add(0, 3);
        Sheet.Calls->Notes(false);
        Sheet.Heard.clear();
    }
    /// The user goes into the second row of the odd column.
    void Enter(std::u16string_view text)
    {
        Sheet.Hand.Click(3, 2);
        SetCell(2, 1, text);
        Sheet.Hand.Click(2, 1);
        Sheet.Heard.clear();
    }
    std::u16string Cell() { return EditorTest::Cell(2, 1); }
    std::string UpFront()
    {
        const auto up = Sheet.EditorsUp();
        return up.size() == 1 ? up.front() : std::to_string(up.size()) + " editors";
    }
    std::int32_t Bells() const { return Sheet.Toolkit->Bells; }
};

// ---- Dates ----------------------------------------------------------------------------------------------------------

TEST_F(OddValues, TextThatIsNoDate_StaysUntilEnterTakesToday)
{
    BuildOne(fcDatePicker);
    const std::u16string texts[] = {u"01/01/0001",  u"31/12/99999", u"31/12/10000", u"29/02/2023", u"32/01/2024",
                                    u"01/13/99999", u"//",          u"1//2",        u"00/00/0000", u"0",
                                    u"-1",          u"99999",       u"9999999",     u"1E400",      u"1.2.3.4"};
    for (const std::u16string& text : texts) {
        Enter(text);
        EXPECT_EQ(UpFront(), "DTPicker1 \"15/03/2024\"") << Utf8(text);
        EXPECT_EQ(Cell(), text);
        Sheet.Press(Key::Enter);
        EXPECT_EQ(Cell(), u"15/03/2024") << Utf8(text);
        EXPECT_EQ(Cursor(), Place(2, 2));
        EXPECT_EQ(LabelsHeard(), Lines());
    }
}

TEST_F(OddValues, EscapeOnATextThatIsNoDate_BringsItBack_AndANumberAsTheDayItCounts)
{
    BuildOne(fcDatePicker);
    const std::pair<std::u16string, std::u16string> cases[] = {
        {u"01/01/0001", u"01/01/0001"},
        {u"31/12/99999", u"31/12/99999"},
        {u"29/02/2023", u"29/02/2023"},
        {u"//", u"//"},
        {u"soon", u"soon"},
        {u"99999", u"13/10/2173"},
        {u"0", u"30/12/1899"},
        {u"-1", u"29/12/1899"},
        {u"2958465", u"31/12/9999"},
    };
    for (const auto& [text, cell] : cases) {
        Enter(text);
        Sheet.Type(u"1");
        Sheet.Press(Key::Escape);
        EXPECT_EQ(Cell(), cell) << Utf8(text);
        EXPECT_EQ(Sheet.EditorsUp(), Lines());
        EXPECT_EQ(LabelsHeard(), Lines());
    }
}

TEST_F(OddValues, EscapeOnANumberThatIsNoDay_IsReportedAndLeavesTheCell)
{
    BuildOne(fcDatePicker);
    for (const std::u16string text : {u"2958466", u"9999999", u"-999999", u"1E300"}) {
        Enter(text);
        Sheet.Press(Key::Escape);
        EXPECT_EQ(LabelsHeard(), Lines{"DTPicker1_KeyDown"}) << Utf8(text);
        EXPECT_EQ(Cell(), text);
        EXPECT_EQ(Cursor(), Place(2, 1));
    }
}

TEST_F(OddValues, FirstAndLastDay_AreShownAndKept)
{
    BuildOne(fcDatePicker);
    for (const std::u16string text : {u"01/01/0100", u"31/12/9999"}) {
        Enter(text);
        EXPECT_EQ(UpFront(), "DTPicker1 \"" + Utf8(text) + '"');
        Sheet.Press(Key::End); // The year, which goes no further.
        Sheet.Press(text.starts_with(u"01") ? Key::Down : Key::Up);
        EXPECT_EQ(Bells(), 1) << Utf8(text);
        Sheet.Toolkit->Bells = 0;
        Sheet.Press(Key::Enter);
        EXPECT_EQ(Cell(), text);
    }
}

TEST_F(OddValues, YearTypedOutOfRange_IsDroppedWithTheBell)
{
    BuildOne(fcDatePicker);
    Enter(u"05/05/2002");
    Sheet.Press(Key::End);
    Sheet.Type(u"0001");
    EXPECT_EQ(Bells(), 1);
    EXPECT_EQ(Cell(), u"05/05/2002");
    Sheet.Type(u"99999"); // Four digits are a year, and the fifth begins another.
    EXPECT_EQ(Cell(), u"05/05/9999");
    Sheet.Press(Key::Enter);
    EXPECT_EQ(Cell(), u"05/05/9999");
    EXPECT_EQ(Bells(), 2);
}

TEST_F(OddValues, ColumnOfNoDates_HasNoExtremeDay)
{
    BuildOne(fcDatePicker);
    SetCell(1, 1, u"01/01/0001");
    SetCell(2, 1, u"31/12/99999");
    SetCell(3, 1, u"99999");
    bool success = false;
    EXPECT_EQ(Sheet->Minimum(1, mtDate, success), u"31/12/1899");
    EXPECT_TRUE(success);
    EXPECT_EQ(Sheet->Maximum(1, mtDate, success), u"31/12/1899");
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

// ---- Numbers --------------------------------------------------------------------------------------------------------

TEST_F(OddValues, NumberWithTwoPoints_StaysAsItIsTyped_AndCountsForNothing)
{
    BuildOne(fcMaskedEditBox, u"0.00");
    for (const std::u16string text : {u"1.2.3", u"..", u"1..", u"--1", u"1-2", u"1e5e5"}) {
        Enter(u"");
        Sheet.Type(text);
        EXPECT_EQ(Cell(), text);
        Sheet.Press(Key::Enter);
        EXPECT_EQ(Cell(), text);
        Sheet.Hand.Click(2, 1);
        Sheet.Press(Key::Enter);
        EXPECT_EQ(Cell(), text);
        EXPECT_EQ(LabelsHeard(), Lines());
        bool success = false;
        EXPECT_EQ(Sheet->Summation(1, success), 0.0);
        EXPECT_TRUE(success);
        EXPECT_EQ(Sheet->Minimum(1, mtNumeric, success), u"0");
        EXPECT_EQ(Sheet->Maximum(1, mtNumeric, success), u"0");
        EXPECT_EQ(Sheet->Minimum(1, mtString, success), text);
    }
}

TEST_F(OddValues, NumbersAmongOthers_AreCountedAlone)
{
    BuildOne(fcMaskedEditBox, u"0.00");
    SetCell(1, 1, u"1.2.3");
    SetCell(2, 1, u"1.5");
    SetCell(3, 1, u"-2");
    bool success = false;
    EXPECT_EQ(Sheet->Summation(1, success), -0.5);
    EXPECT_EQ(Sheet->Minimum(1, mtNumeric, success), u"-2");
    EXPECT_EQ(Sheet->Maximum(1, mtNumeric, success), u"1.5");
}

TEST_F(OddValues, SecondPointTypedIntoAMask_IsRefused)
{
    BuildOne(fcMaskedEditBox, u"##.##", true);
    Enter(u"");
    Sheet.Type(u"12.3.");
    EXPECT_EQ(Cell(), u"12.3");
    EXPECT_EQ(Bells(), 1);
    Sheet.Type(u"4");
    EXPECT_EQ(Cell(), u"12.34");
}

// ---- Masks ----------------------------------------------------------------------------------------------------------

TEST_F(OddValues, MaskWithoutPlaces_TakesNoCharacter_AndLeavesAnEmptyCellEmpty)
{
    for (const std::u16string mask : {u"---", u"\\#\\9", u"(-)", u"/", u"<>", u"é…"}) {
        BuildOne(fcMaskedEditBox, mask, true);
        Enter(u"");
        Sheet.Toolkit->Bells = 0;
        Sheet.Type(u"x7 ");
        EXPECT_EQ(Bells(), 3) << Utf8(mask);
        Sheet.Press(Key::Backspace);
        Sheet.Press(Key::Delete);
        EXPECT_EQ(Cell(), u"") << Utf8(mask);
        Sheet.Press(Key::Enter);
        EXPECT_EQ(Cell(), u"") << Utf8(mask);
        EXPECT_EQ(Cursor(), Place(2, 2));
        EXPECT_EQ(LabelsHeard(), Lines()) << Utf8(mask);
    }
}

TEST_F(OddValues, TextUnderAMaskWithoutPlaces_IsThereUntilTyped_AndBackByEscape)
{
    BuildOne(fcMaskedEditBox, u"---", true);
    Enter(u"abc");
    EXPECT_EQ(UpFront(), "MaskEdBox1(0) \"---\"");
    EXPECT_EQ(Cell(), u"abc");
    Sheet.Type(u"x");
    EXPECT_EQ(Cell(), u""); // What the box shows is the bare mask.
    Sheet.Press(Key::Escape);
    EXPECT_EQ(Cell(), u"abc");
}

TEST_F(OddValues, LiteralsTypedInAMaskOfNothingElse_ArePassedOneByOne)
{
    BuildOne(fcMaskedEditBox, u"-+", true);
    Enter(u"");
    Sheet.Type(u"-+");
    EXPECT_EQ(Bells(), 0);
    Sheet.Press(Key::Right);
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Cell(), u"");
}

TEST_F(OddValues, MaskThatCannotBeRead_IsReportedAtTheBuild_AndTheBoxTakesText)
{
    Sheet->Cols(2);
    Sheet.Column(1, fcMaskedEditBox, u"##\\", false, true);
    Sheet->BuildGridColumns();
    EXPECT_EQ(LabelsHeard(), Lines{"LoadMaskState"});
    Sheet->AllowAddNew(true);
    Sheet->Add(0, 2);
    Sheet.Calls->Notes(false);
    Sheet.Hand.Click(2, 1);
    Sheet.Type(u"abc");
    EXPECT_EQ(Cell(), u"abc");
    EXPECT_EQ(LabelsHeard(), Lines());
}

// ---- Lengths --------------------------------------------------------------------------------------------------------

TEST_F(OddValues, LengthThatIsNone_OrBeyondAllText_LimitsNothing)
{
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    for (const FieldControlType kind : {fcTextBox, fcRichTextBox}) {
        for (const std::int32_t length : {-1, -5, least, 0, most}) {
            BuildOne(kind, u"", false, length);
            Enter(u"");
            Sheet.Type(u"abcdef");
            EXPECT_EQ(Cell(), u"abcdef") << length;
            EXPECT_EQ(LabelsHeard(), Lines());
        }
    }
    for (const std::int32_t length : {-5, least, 0, 32767}) {
        BuildOne(fcMaskedEditBox, u"", false, length);
        Enter(u"");
        Sheet.Type(u"abcdef");
        EXPECT_EQ(Cell(), u"abcdef") << length;
        EXPECT_EQ(LabelsHeard(), Lines());
    }
}

TEST_F(OddValues, LengthBeyondSixteenBits_FailsTheEntryOfAMaskedCell_AndLeavesTheCell)
{
    for (const std::int32_t length : {32768, std::numeric_limits<std::int32_t>::max()}) {
        BuildOne(fcMaskedEditBox, u"##", true, length);
        Sheet.Hand.Click(3, 2);
        SetCell(2, 1, u"12");
        Sheet.Heard.clear();
        Sheet->Row(2);
        Sheet->Col(1);
        EXPECT_EQ(LabelsHeard(), Lines{"MSFlexGrid1_EnterCell"});
        EXPECT_EQ(Cell(), u"12");
        Sheet.Hand.Click(2, 2);
        Sheet.Type(u"x");
        EXPECT_EQ(EditorTest::Cell(2, 2), u"x");
        EXPECT_EQ(Cell(), u"12");
    }
}

// ---- Kinds ----------------------------------------------------------------------------------------------------------

TEST_F(OddValues, KindThatIsNone_FailsTheEntryOfItsCells_AndNothingElse)
{
    for (const std::int32_t number : {9, 100, -1, std::numeric_limits<std::int32_t>::max()}) {
        BuildOne(static_cast<FieldControlType>(number), u"a|b", true);
        Sheet->TextMatrix(2, 1, u"kept");
        Sheet.Hand.Click(1, 2);
        Sheet.Type(u"x");
        Sheet.Heard.clear();
        Sheet.Press(Key::Enter); // Into the odd column's cell of the next row.
        EXPECT_EQ(Cursor(), Place(2, 1)) << number;
        const Lines heard = Sheet.TakeEvents();
        EXPECT_EQ(Labels(heard), Lines{"MSFlexGrid1_EnterCell"}) << number;
        EXPECT_EQ(CountOf(heard, "EnterCell"), 3); // For the row, for the column, and for the entry that fails.
        EXPECT_EQ(Sheet.EditorsUp(), Lines());
        EXPECT_EQ(Cell(), u"kept");
        EXPECT_EQ(EditorTest::Cell(1, 2), u"x");
        Sheet.Hand.Click(2, 2);
        Sheet.Type(u"y");
        EXPECT_EQ(EditorTest::Cell(2, 2), u"y");
        EXPECT_EQ(Cell(), u"kept");
    }
}

// ---- Everything hidden ----------------------------------------------------------------------------------------------

TEST_F(OddValues, SheetOfHiddenColumns_ReportsThatItCannotGoToANewRow_KeepsItsTexts_AndShowsNoEditor)
{
    Sheet->Cols(9);
    for (std::int32_t kind = fcTextBox; kind <= fcCommandButton; ++kind)
        Sheet.Column(kind, static_cast<FieldControlType>(kind), u"a|b", true);
    Sheet->BuildGridColumns();
    Sheet->AllowAddNew(true);
    Sheet->Add(0, 3); // There is no column to go to in the new rows.
    EXPECT_EQ(LabelsHeard(), Lines{"Add"});
    EXPECT_EQ(Sheet->Rows(), 4);
    for (std::int32_t col = 1; col <= 8; ++col)
        Sheet->TextMatrix(2, col, u"kept");
    for (std::int32_t col = 1; col <= 8; ++col) {
        Sheet->Row(2);
        Sheet->Col(col);
        for (const std::int16_t code : {Key::F2, Key::Enter, Key::Down, Key::Right, Key::End, Key::Home, Key::Tab})
            Sheet.Press(code);
        Sheet.Type(u"x1");
        EXPECT_EQ(Sheet.EditorsUp(), Lines()) << col;
    }
    for (std::int32_t col = 1; col <= 8; ++col)
        EXPECT_EQ(EditorTest::Cell(2, col), u"kept");
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(OddValues, ColumnsHiddenUnderTheEditor_LetTheAdvanceEnd)
{
    for (const FieldControlType kind : {fcTextBox, fcRichTextBox, fcComboBox, fcMaskedEditBox}) {
        BuildOne(kind);
        Enter(u"");
        Sheet.Type(u"x");
        for (const std::int32_t col : {1, 2})
            Sheet.Column(col, kind, u"", true);
        Sheet.Press(Key::Enter);
        EXPECT_EQ(Cell(), u"x") << kind;
        EXPECT_EQ(Sheet.EditorsUp(), Lines()) << kind;
        EXPECT_EQ(LabelsHeard(), Lines()) << kind;
    }
}

} // namespace
} // namespace Tessellon
