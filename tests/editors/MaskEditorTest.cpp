#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tessellon {
namespace {

constexpr std::int16_t maskCol = 2;
constexpr std::int16_t formatCol = 3;

/// Three rows; column 2 has the mask ##/##, column 3 a format without mask, the others hold text.
class MaskEditor : public EditorTest {
protected:
    MaskEditor()
    {
        Sheet->Cols(5);
        Sheet.Column(1, fcTextBox);
        Sheet.Column(maskCol, fcMaskedEditBox, u"##/##", false, true);
        Sheet.Column(formatCol, fcMaskedEditBox, u"0.00");
        Sheet.Column(4, fcTextBox);
        Sheet->BuildGridColumns();
        Sheet->AllowAddNew(true);
        Sheet->Add(0, 3);
        GoTo(2, maskCol, u"12/34");
    }
    MaskEdBox& Box(std::int16_t index = 0) { return *Sheet.Platform->MaskEdBox1().Item(index); }
    ColDataType& Descriptor() { return Members.ColumnData.at(static_cast<std::size_t>(Members.CurrentCol - 1)); }
    void Release(std::int16_t code, std::int16_t index = 0)
    {
        EventArguments arguments;
        arguments.Index = index;
        arguments.KeyCode = code;
        Tell(Child::MaskEdBox1, ChildEvent::KeyUp, arguments);
    }
};

// ---- Focus ----------------------------------------------------------------------------------------------------------

TEST_F(MaskEditor, Focus_KeepsWhatTheEmptyMaskShowsWithoutOuterBlanks)
{
    const std::pair<std::u16string, std::u16string> masks[] = {
        {u"##/##", u"/"}, {u"(##) ##", u"(  )"}, {u" ##-## ", u"-"}, {u"##", u""}};
    for (const auto& [mask, skeleton] : masks) {
        Box().Mask(mask);
        Members.MaskBuffer = u"old";
        TellOf(Child::MaskEdBox1, 0, ChildEvent::GotFocus);
        EXPECT_EQ(Members.MaskBuffer, skeleton) << Utf8(mask);
    }
}

TEST_F(MaskEditor, FocusInAColumnWithoutMask_KeepsTheTrimmedFormat)
{
    GoTo(2, formatCol, u"1");
    EXPECT_EQ(Members.MaskBuffer, u"0.00");
    Box(1).Format(u"  0.0 ");
    TellOf(Child::MaskEdBox1, 1, ChildEvent::GotFocus);
    EXPECT_EQ(Members.MaskBuffer, u"0.0");
}

TEST_F(MaskEditor, Focus_PutsTheCaretToTheFrontOnlyIfItIsElsewhereAndLeavesTheRequest)
{
    Members.ShowEditorRequest = true;
    TellOf(Child::MaskEdBox1, 0, ChildEvent::GotFocus);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    Sheet.Hand.Caret(3);
    TellOf(Child::MaskEdBox1, 0, ChildEvent::GotFocus);
    EXPECT_EQ(Sheet.TakeCalls(), Lines{"MaskEdBox1(0).SelStart=0"});
    EXPECT_TRUE(Members.ShowEditorRequest);
}

TEST_F(MaskEditor, FocusThatFails_IsReportedUnderItsLabelWithTheSkeletonForgotten)
{
    Sheet.Calls->FailAtMember(u"MaskEdBox1(0).SelStart", 7);
    TellOf(Child::MaskEdBox1, 0, ChildEvent::GotFocus);
    EXPECT_EQ(LabelsHeard(), Lines{"MaskEdBox1_GotFocus"});
    EXPECT_EQ(Members.MaskBuffer, u"");
}

// ---- What the cell gets ---------------------------------------------------------------------------------------------

TEST_F(MaskEditor, Cell_GetsWhatTheBoxShowsUnlessThatIsTheBareMask)
{
    struct Case {
        std::u16string Skeleton;
        bool UseMask;
        std::u16string BoxText;
        std::u16string Cell;
    };
    const Case cases[] = {
        {u"", true, u"", u"/"}, // Without a skeleton nothing is compared.
        {u"", false, u"", u"/"},         {u"/", true, u"", u""}, // Nothing but the bare mask.
        {u"/", true, u"12", u"12/"}, // Partly filled: as shown, literals included.
        {u"/", true, u"1234", u"12/34"}, {u"/", false, u"", u"/"}, // A format is no skeleton, even where it matches.
        {u"#", true, u"", u"/"},
    };
    for (const Case& given : cases) {
        Box().PromptInclude(false);
        Box().Text(given.BoxText);
        Box().PromptInclude(true);
        Members.MaskBuffer = given.Skeleton;
        Descriptor().cdUseMask = given.UseMask;
        SetCell(2, maskCol, u"kept");
        Release(u'1');
        EXPECT_EQ(Cell(2, maskCol), given.Cell) << Utf8(given.Skeleton) << ' ' << Utf8(given.BoxText);
    }
}

TEST_F(MaskEditor, TypedDigit_ReachesTheCellAtTheReleaseOfTheKeyAndTheHostHearsNothing)
{
    GoTo(2, maskCol, u"");
    Sheet.Hand.Press({.Code = u'5', .Shift = 0, .HasCharacter = true, .Character = u'5'});
    EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"5 /\""});
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(MaskEditor, DigitTypedAndDeletedAgain_LeavesTheCellEmpty)
{
    GoTo(2, maskCol, u"");
    Sheet.Type(u"5");
    EXPECT_EQ(Cell(2, maskCol), u"5 /");
    Sheet.Press(Key::Backspace);
    EXPECT_EQ(Cell(2, maskCol), u"");
}

TEST_F(MaskEditor, UntouchedCell_KeepsWhatItHadThroughTabAndAClickElsewhere)
{
    SetCell(2, maskCol, u"left alone");
    Sheet.Press(Key::Tab);
    EXPECT_EQ(Writes(), Lines());
    Sheet.Hand.Click(3, 1);
    EXPECT_EQ(Cell(2, maskCol), u"left alone");
}

TEST_F(MaskEditor, UntouchedMask_LeavesTheCellEmptyWhateverItsLiterals)
{
    const std::u16string masks[] = {u"##/##/####", u"(###) ###-####", u"\\A-##",   u">AA<aa",    u"99:99",
                                    u"&&-CC?",     u"\\##\\\\#",      u">&&<##-x", u"$#,###.##", u" ## - ## "};
    for (const std::u16string& mask : masks) {
        Sheet->CreateColumnDataType(maskCol, u"m", fcMaskedEditBox, mask, false, fcLeft, 40, faNil, true);
        Sheet->BuildGridColumns();
        GoTo(2, maskCol, u"");
        SetCell(2, maskCol, u"x");
        Sheet.Press(Key::Delete);
        EXPECT_EQ(Writes(), Lines{"MSFlexGrid1.TextMatrix(2,2)=\"\""}) << Utf8(mask);
    }
}

TEST_F(MaskEditor, ColumnWithoutMask_GetsTheFormattedTextAtEveryReleaseOfATypingKey)
{
    GoTo(2, formatCol, u"7");
    SetCell(2, formatCol, u"x");
    Release(Key::Delete, 1);
    EXPECT_EQ(Cell(2, formatCol), u"7.00");
}

TEST_F(MaskEditor, ColumnWithoutMask_GetsTheShownTextEvenWhereItIsTheFormatItself)
{
    Sheet.Column(formatCol, fcMaskedEditBox, u"0");
    Sheet->BuildGridColumns();
    GoTo(2, formatCol, u"0");
    ASSERT_EQ(Members.MaskBuffer, Box(1).FormattedText());
    SetCell(2, formatCol, u"x");
    Sheet.Type(u"0");
    EXPECT_EQ(Cell(2, formatCol), u"0");
}

// ---- Release of a key -----------------------------------------------------------------------------------------------

TEST_F(MaskEditor, Release_WritesForAllKeysButThoseThatChangeNoText)
{
    const auto changesNoText = [](int code) {
        switch (code) {
        case 9:
        case 12:
        case 13:
        case 16:
        case 17:
        case 18:
        case 19:
        case 20:
        case 27:
        case 33:
        case 34:
        case 35:
        case 36:
        case 37:
        case 38:
        case 39:
        case 40:
        case 41:
        case 42:
        case 43:
        case 44:
        case 45:
        case 47:
        case 144: return true;
        default: return code >= 112 && code <= 127;
        }
    };
    int silent = 0;
    for (int code = 0; code < 256; ++code) {
        static_cast<void>(Sheet.TakeCalls());
        Release(static_cast<std::int16_t>(code));
        EXPECT_EQ(Writes(), changesNoText(code) ? Lines() : Lines{"MSFlexGrid1.TextMatrix(2,2)=\"12/34\""}) << code;
        silent += changesNoText(code) ? 1 : 0;
    }
    EXPECT_EQ(silent, 40);
}

TEST_F(MaskEditor, ReleaseOverACellOfAnotherBox_WritesNothing)
{
    Release(u'1', 1);
    EXPECT_EQ(Writes(), Lines());
    Descriptor().cdControlType = fcComboBox;
    Release(u'1', 0);
    EXPECT_EQ(Writes(), Lines());
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(MaskEditor, ReleaseOutsideTheDataCells_WritesNothingAndIsNoFailure)
{
    for (std::int32_t SheetMembers::*place : {&SheetMembers::CurrentRow, &SheetMembers::CurrentCol}) {
        const std::int32_t kept = std::exchange(Members.*place, 0);
        Release(u'1');
        Members.*place = kept;
        EXPECT_EQ(Writes(), Lines());
        EXPECT_EQ(LabelsHeard(), Lines());
    }
}

TEST_F(MaskEditor, ReleaseThatFails_IsReportedUnderItsLabel)
{
    Sheet.Calls->FailAtMember(u"MaskEdBox1(0).FormattedText", 7);
    Release(u'1');
    EXPECT_EQ(LabelsHeard(), Lines{"MaskEdBox1_KeyUp"});
    EXPECT_EQ(Cell(2, maskCol), u"12/34");
}

// ---- Enter ----------------------------------------------------------------------------------------------------------

TEST_F(MaskEditor, Enter_HidesAndDisablesThenWritesThenSendsToTheBackThenAdvances)
{
    SetCell(2, maskCol, u"old");
    const EventArguments after = TellKey(Child::MaskEdBox1, Key::Enter);
    EXPECT_EQ(First(CallsOn("MaskEdBox1(0)"), 4),
              (Lines{"MaskEdBox1(0).Visible=False", "MaskEdBox1(0).Enabled=False",
                     "MSFlexGrid1.TextMatrix(2,2)=\"12/34\"", "MaskEdBox1(0).ZOrder(1)"}));
    EXPECT_EQ(Cursor(), Place(2, formatCol));
    EXPECT_EQ(after.KeyCode, 0);
}

TEST_F(MaskEditor, EnterInACellThatWasEmptyOnEntry_WritesNothingAdvancesAndIsEaten)
{
    GoTo(2, maskCol, u"");
    ASSERT_FALSE(Members.MaskCellHadText);
    SetCell(2, maskCol, u"kept");
    const EventArguments after = TellKey(Child::MaskEdBox1, Key::Enter);
    EXPECT_EQ(Cell(2, maskCol), u"kept");
    EXPECT_EQ(Cursor(), Place(2, formatCol));
    EXPECT_EQ(after.KeyCode, 0);
}

TEST_F(MaskEditor, EnterOverACellOfAnotherBox_WritesNothingAndAdvances)
{
    SetCell(2, maskCol, u"kept");
    const EventArguments after = TellKey(Child::MaskEdBox1, Key::Enter, 1);
    EXPECT_EQ(Cell(2, maskCol), u"kept");
    EXPECT_EQ(after.KeyCode, 0);
    EXPECT_EQ(Cursor(), Place(2, formatCol));
    GoTo(3, maskCol, u"kept");
    Descriptor().cdControlType = fcNil;
    TellKey(Child::MaskEdBox1, Key::Enter);
    EXPECT_EQ(Cell(3, maskCol), u"kept");
    EXPECT_EQ(Cursor(), Place(3, formatCol));
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(MaskEditor, EnterOutsideTheDataCells_WritesNothingAndIsNoFailure)
{
    for (std::int32_t SheetMembers::*place : {&SheetMembers::CurrentRow, &SheetMembers::CurrentCol}) {
        GoTo(2, maskCol, u"12/34");
        Members.*place = 0;
        EXPECT_EQ(TellKey(Child::MaskEdBox1, Key::Enter).KeyCode, 0);
        const Lines calls = UpTo(CallsOn("MaskEdBox1(0)"), "MaskEdBox1(0).ZOrder(1)");
        EXPECT_EQ(Only(calls, {"MSFlexGrid1"}), Lines());
        EXPECT_EQ(calls.back(), "MaskEdBox1(0).ZOrder(1)");
        EXPECT_EQ(CountOf(LabelsHeard(), "MaskEdBox1_KeyDown"), 0);
    }
}

TEST_F(MaskEditor, EnterThatFailsBehindTheWrite_IsReportedAndNeitherAdvancesNorEatsTheKey)
{
    SetCell(2, maskCol, u"old");
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
    EventArguments after = TellKey(Child::MaskEdBox1, Key::Enter);
    EXPECT_EQ(LabelsHeard(), Lines{"MaskEdBox1_KeyDown"});
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MaskEdBox1(0)"}),
              (Lines{"MaskEdBox1(0).Visible=False", "MaskEdBox1(0).Enabled=False"}));
    EXPECT_EQ(Cursor(), Place(2, maskCol));
    EXPECT_EQ(after.KeyCode, Key::Enter);
}

// ---- The other keys -------------------------------------------------------------------------------------------------

TEST_F(MaskEditor, Escape_WritesTheTrimmedTagAndStandsDownWithoutAdvance)
{
    Box().Tag(u"  before ");
    Members.HideEditorRequest = false;
    TellKey(Child::MaskEdBox1, Key::Escape);
    const Lines calls = CallsOn("MaskEdBox1(0)");
    EXPECT_EQ(calls, (Lines{"MSFlexGrid1.TextMatrix(2,2)=\"before\"", "MaskEdBox1(0).Visible=False",
                            "MaskEdBox1(0).Enabled=False", "MaskEdBox1(0).ZOrder(1)"}));
    EXPECT_TRUE(Members.HideEditorRequest);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(MaskEditor, EscapeBehindTyping_BringsBackWhatTheCellHadOnEntry)
{
    Sheet.Type(u"98");
    ASSERT_EQ(Cell(2, maskCol), u"98/34");
    Sheet.Press(Key::Escape);
    EXPECT_EQ(Cell(2, maskCol), u"12/34");
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Cursor(), Place(2, maskCol));
}

TEST_F(MaskEditor, EscapeWithoutRows_WritesNothingAndStandsDown)
{
    Members.RowCount = 0;
    TellKey(Child::MaskEdBox1, Key::Escape);
    EXPECT_EQ(CallsOn("MaskEdBox1(0)"), StandDownOf("MaskEdBox1(0)"));
}

TEST_F(MaskEditor, LeftArrow_LeavesTheCellOnlyAtTheFront)
{
    Sheet.Hand.Caret(1);
    TellKey(Child::MaskEdBox1, Key::Left);
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    Sheet.Hand.Caret(0);
    const EventArguments after = TellKey(Child::MaskEdBox1, Key::Left);
    EXPECT_EQ(First(CallsOn("MaskEdBox1(0)"), 3), StandDownOf("MaskEdBox1(0)"));
    EXPECT_EQ(Cursor(), Place(2, 1));
    EXPECT_EQ(after.KeyCode, Key::Left);
}

TEST_F(MaskEditor, RightArrow_LeavesTheCellOnlyBehindTheTrimmedText)
{
    GoTo(2, maskCol, u"");
    Sheet.Hand.Caret(0);
    Sheet.Type(u"123 "); // The last place holds a typed blank: four units count.
    ASSERT_EQ(Box().Text(), u"12/3 ");
    for (const std::int32_t caret : {0, 3, 5}) {
        Sheet.Hand.Caret(caret);
        TellKey(Child::MaskEdBox1, Key::Right);
        EXPECT_EQ(Cursor(), Place(2, maskCol)) << caret;
    }
    Sheet.Hand.Caret(4);
    Forget();
    const EventArguments after = TellKey(Child::MaskEdBox1, Key::Right);
    EXPECT_EQ(First(CallsOn("MaskEdBox1(0)"), 3), StandDownOf("MaskEdBox1(0)"));
    EXPECT_EQ(Cursor(), Place(2, formatCol));
    EXPECT_EQ(after.KeyCode, Key::Right);
}

TEST_F(MaskEditor, RightArrowInAPartlyFilledMask_CountsThePrompts)
{
    GoTo(2, maskCol, u"");
    ASSERT_EQ(Box().Text(), u"__/__");
    Sheet.Hand.Caret(2);
    TellKey(Child::MaskEdBox1, Key::Right);
    EXPECT_EQ(Cursor(), Place(2, maskCol));
    Sheet.Hand.Caret(5);
    TellKey(Child::MaskEdBox1, Key::Right);
    EXPECT_EQ(Cursor(), Place(2, formatCol));
}

TEST_F(MaskEditor, UpAndDownArrows_LeaveTheCellWhereverTheCaretStands)
{
    Sheet.Hand.Caret(2);
    TellKey(Child::MaskEdBox1, Key::Up);
    EXPECT_EQ(First(CallsOn("MaskEdBox1(0)"), 3), StandDownOf("MaskEdBox1(0)"));
    EXPECT_EQ(Cursor(), Place(1, maskCol));
    GoTo(2, maskCol, u"12/34");
    Sheet.Hand.Caret(2);
    TellKey(Child::MaskEdBox1, Key::Down);
    EXPECT_EQ(First(CallsOn("MaskEdBox1(0)"), 3), StandDownOf("MaskEdBox1(0)"));
    EXPECT_EQ(Cursor(), Place(3, maskCol));
}

TEST_F(MaskEditor, AnyKey_SpendsTheShowRequestAndLeavesTheOther)
{
    for (const bool hide : {false, true}) {
        Members.ShowEditorRequest = true;
        Members.HideEditorRequest = hide;
        TellKey(Child::MaskEdBox1, Key::Home);
        EXPECT_FALSE(Members.ShowEditorRequest);
        EXPECT_EQ(Members.HideEditorRequest, hide);
    }
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
}

TEST_F(MaskEditor, CharacterOfEnter_IsDroppedAndNoOtherOne)
{
    for (const std::int16_t character : {std::int16_t{27}, std::int16_t{32}, std::int16_t{53}, std::int16_t{13}}) {
        EventArguments arguments;
        arguments.KeyAscii = character;
        EXPECT_EQ(Tell(Child::MaskEdBox1, ChildEvent::KeyPress, arguments).KeyAscii, character == 13 ? 0 : character);
    }
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(MaskEditor, LossOfFocus_SweepsForTheColumnThatIsCurrentByNow)
{
    Members.ShowEditorRequest = false;
    Members.HideEditorRequest = true;
    TellOf(Child::MaskEdBox1, 1, ChildEvent::LostFocus);
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(MaskEditor, LossOfFocusWithoutAColumn_IsReportedUnderItsLabel)
{
    Members.CurrentCol = 0;
    TellOf(Child::MaskEdBox1, 0, ChildEvent::LostFocus);
    EXPECT_EQ(LabelsHeard(), Lines{"MaskEdBox1_LostFocus"});
}

} // namespace
} // namespace Tessellon
