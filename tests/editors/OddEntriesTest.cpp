#include "support/EditorTest.h"

#include <gtest/gtest.h>

#include <vector>

namespace Tessellon {
namespace {

using Entries = std::vector<std::u16string>;

/// Settings of combo and list columns with empty entries, many, or one very long one; the user is in the second row.
class OddEntries : public EditorTest {
protected:
    void BuildOne(FieldControlType kind, std::u16string_view setting)
    {
        Sheet->Cols(3);
        Sheet.Column(1, kind, setting);
        Sheet.Column(2, fcTextBox);
        Sheet->BuildGridColumns();
        Sheet->AllowAddNew(true);
        Sheet->Add(0, 3);
        Sheet.Calls->Notes(false);
        Enter(u"");
    }
    void Enter(std::u16string_view text)
    {
        Sheet.Hand.Click(3, 2);
        SetCell(2, 1, text);
        Sheet.Hand.Click(2, 1);
        Sheet.Heard.clear();
    }
    std::u16string Cell() { return EditorTest::Cell(2, 1); }
    ListBox& List() { return *Sheet.Platform->List1().Item(0); }
    Entries EntriesOfList()
    {
        Entries entries;
        for (std::int32_t i = 0; i < List().ListCount(); ++i)
            entries.emplace_back(List().List(i));
        return entries;
    }
    std::vector<std::int32_t> Selected()
    {
        std::vector<std::int32_t> selected;
        for (std::int32_t i = 0; i < List().ListCount(); ++i)
            if (List().Selected(i))
                selected.push_back(i);
        return selected;
    }
    static std::u16string Thousand()
    {
        std::u16string setting;
        for (int i = 0; i < 1000; ++i)
            setting += (i > 0 ? u"|entry " : u"entry ") + Utf16(std::to_string(i));
        return setting;
    }
};

TEST_F(OddEntries, Setting_GivesAnEntryForEachPieceBetweenSeparators_EmptyOnesToo)
{
    const std::pair<std::u16string, Entries> cases[] = {
        {u"", {}},
        {u"    ", {}},
        {u"a", {u"a"}},
        {u"|", {u"", u""}},
        {u"||", {u"", u"", u""}},
        {u"a||b", {u"a", u"", u"b"}},
        {u"a|", {u"a", u""}},
        {u"|a", {u"", u"a"}},
        {u" a | | b ", {u"a ", u" ", u" b"}},
        {u"a|a|A", {u"a", u"a", u"A"}},
        {u"\\|a", {u"\\", u"a"}},
    };
    for (const auto& [setting, entries] : cases) {
        BuildOne(fcListBox, setting);
        EXPECT_EQ(EntriesOfList(), entries) << Utf8(setting);
        EXPECT_EQ(LabelsHeard(), Lines()) << Utf8(setting);
    }
}

// ---- List -----------------------------------------------------------------------------------------------------------

TEST_F(OddEntries, ListWithAnEmptyEntry_GoesThroughItByKeyAndMouse)
{
    BuildOne(fcListBox, u"a||b");
    EXPECT_EQ(Selected(), std::vector<std::int32_t>{1}); // It equals the empty cell.
    Sheet.Press(Key::End);
    EXPECT_EQ(Cell(), u"b");
    Sheet.Press(Key::Up);
    EXPECT_EQ(Cell(), u"");
    EXPECT_EQ(Selected(), std::vector<std::int32_t>{1});
    Sheet.Press(Key::Up);
    EXPECT_EQ(Cell(), u"a");
    Sheet.Hand.Select(1);
    EXPECT_EQ(Cell(), u"");
    Sheet.Type(u"b");
    EXPECT_EQ(Cell(), u"b");
    Sheet.Type(u"x|");
    EXPECT_EQ(Cell(), u"b");
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(OddEntries, ListOfEmptyEntries_SelectsAllForAnEmptyCell_AndGivesNoText)
{
    BuildOne(fcListBox, u"||");
    EXPECT_EQ(Selected(), (std::vector<std::int32_t>{0, 1, 2}));
    for (const std::int16_t code : {Key::Up, Key::Down, Key::End, Key::Home, Key::Down}) {
        Sheet.Press(code);
        EXPECT_EQ(Cell(), u"");
        EXPECT_EQ(Selected().size(), 1U);
    }
    Enter(u"text");
    EXPECT_EQ(Selected(), std::vector<std::int32_t>());
    EXPECT_EQ(Cell(), u"text");
    Sheet.Hand.Select(2);
    EXPECT_EQ(Cell(), u"");
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(OddEntries, ListWithoutEntries_LeavesTheCell)
{
    BuildOne(fcListBox, u"");
    Enter(u"text");
    for (const std::int16_t code : {Key::Up, Key::Down, Key::End, Key::Home, Key::Space})
        Sheet.Press(code);
    Sheet.Type(u"a|");
    EXPECT_EQ(Cell(), u"text");
    Sheet.Press(Key::Enter);
    EXPECT_EQ(Cell(), u"text");
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(OddEntries, ListOfAThousand_IsGoneThroughByKeyLetterAndMouse)
{
    BuildOne(fcListBox, Thousand());
    EXPECT_EQ(List().ListCount(), 1000);
    Sheet.Press(Key::End);
    EXPECT_EQ(Cell(), u"entry 999");
    Sheet.Press(Key::Down);
    EXPECT_EQ(Cell(), u"entry 999");
    Sheet.Type(u"E"); // Round to the first.
    EXPECT_EQ(Cell(), u"entry 0");
    Sheet.Hand.Select(500);
    EXPECT_EQ(Cell(), u"entry 500");
    Sheet.Press(Key::Up);
    EXPECT_EQ(Cell(), u"entry 499");
    Enter(u" ENTRY 998 ");
    EXPECT_EQ(Selected(), std::vector<std::int32_t>{998});
    EXPECT_EQ(LabelsHeard(), Lines());
}

// ---- Combo box ------------------------------------------------------------------------------------------------------

TEST_F(OddEntries, ComboWithAnEmptyEntry_GoesThroughItByKeyAndMouse)
{
    BuildOne(fcComboBox, u"a||b");
    Sheet.Press(Key::Down); // From the entry that equals the empty text.
    EXPECT_EQ(Cell(), u"b");
    Sheet.Press(Key::Up);
    EXPECT_EQ(Cell(), u"");
    Sheet.Press(Key::Up);
    EXPECT_EQ(Cell(), u"a");
    Sheet.Hand.Select(1);
    EXPECT_EQ(Cell(), u"");
    Sheet.Type(u"|");
    EXPECT_EQ(Cell(), u"|");
    Sheet.Press(Key::Down); // No entry equals it: the first.
    EXPECT_EQ(Cell(), u"a");
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(OddEntries, ComboOfEmptyEntries_EmptiesTheTextByChoiceOnly)
{
    for (const std::u16string setting : {u"|", u"||"}) {
        BuildOne(fcComboBox, setting);
        Enter(u"text");
        Sheet.Press(Key::Up);
        EXPECT_EQ(Cell(), u"text") << Utf8(setting);
        Sheet.Press(Key::Down);
        EXPECT_EQ(Cell(), u"") << Utf8(setting);
        for (const std::int16_t code : {Key::Down, Key::Down, Key::Down, Key::Up, Key::Up})
            Sheet.Press(code);
        EXPECT_EQ(Cell(), u"");
        Sheet.Type(u"x");
        EXPECT_EQ(Cell(), u"x");
        Sheet.Hand.Select(1);
        EXPECT_EQ(Cell(), u"");
        EXPECT_EQ(LabelsHeard(), Lines());
    }
}

TEST_F(OddEntries, ComboWithoutEntries_IsATextBox)
{
    BuildOne(fcComboBox, u"");
    Enter(u"text");
    Sheet.Press(Key::Down);
    Sheet.Press(Key::Up);
    EXPECT_EQ(Cell(), u"text");
    Sheet.Type(u"a ");
    EXPECT_EQ(Cell(), u"a text");
    EXPECT_EQ(LabelsHeard(), Lines());
}

TEST_F(OddEntries, ComboOfAThousand_IsGoneThroughByKeyAndMouse)
{
    BuildOne(fcComboBox, Thousand());
    Sheet.Hand.Select(999);
    EXPECT_EQ(Cell(), u"entry 999");
    Sheet.Press(Key::Down);
    EXPECT_EQ(Cell(), u"entry 999");
    Sheet.Press(Key::Up);
    EXPECT_EQ(Cell(), u"entry 998");
    Enter(u"entry 500");
    Sheet.Press(Key::Down);
    EXPECT_EQ(Cell(), u"entry 501");
    EXPECT_EQ(LabelsHeard(), Lines());
}

// ---- Very long texts ------------------------------------------------------------------------------------------------

struct LongCase {
    FieldControlType Kind;
    std::u16string Setting;
    bool UseMask;
    char16_t Unit;
    std::u16string CellBehindEnter; ///< Empty: the long text.
    bool Empties = false;
};

constexpr std::size_t veryLong = 100'000;
constexpr std::size_t longestMask = 32'767;

TEST_F(OddEntries, VeryLongText_IsEnteredAndLeftInEveryKind)
{
    const LongCase cases[] = {
        {fcTextBox, u"", false, u'x', u""},
        {fcRichTextBox, u"", false, u'x', u""},
        {fcCheckBox, u"", false, u'x', u"False"},
        {fcComboBox, u"a|b", false, u'x', u""},
        {fcListBox, Thousand(), false, u'x', u""},
        {fcDatePicker, u"", false, u'1', u"15/03/2024"},
        {fcMaskedEditBox, u"##/##", true, u'7', u"77/77"},
        {fcMaskedEditBox, u"##/##", true, u'x', u"", true}, // Nothing of it fits: the bare mask.
        {fcMaskedEditBox, u"0.00", false, u'x', u""},
        {fcMaskedEditBox, u"0.00", false, u'9', u""}, // Beyond any number.
        {fcMaskedEditBox, std::u16string(longestMask, u'&'), true, u'x', std::u16string(longestMask, u'x')},
        {fcMaskedEditBox, std::u16string(longestMask, u'-'), true, u'-', u""}, // Nothing is loaded, nothing written.
        {fcMaskedEditBox, std::u16string(longestMask, u'-'), true, u'x', u"", true},
        {fcCommandButton, u"More", false, u'x', u""},
    };
    for (const LongCase& given : cases) {
        const std::string name = "kind " + std::to_string(given.Kind) + ' ' + Utf8(given.Setting).substr(0, 8);
        const std::u16string text(veryLong, given.Unit);
        Sheet->Cols(3);
        Sheet->CreateColumnDataType(1, u"Long", given.Kind, given.Setting, false, fcLeft, 40, faNil, given.UseMask);
        Sheet.Column(2, fcTextBox);
        Sheet->BuildGridColumns();
        Sheet->AllowAddNew(true);
        Sheet->Add(0, 3);
        Sheet.Calls->Notes(false);
        Enter(text);
        EXPECT_TRUE(Cell() == text) << name;
        Sheet.Press(Key::Escape);
        EXPECT_TRUE(Cell() == text) << name << " behind Esc";
        Sheet.Hand.Click(2, 1);
        Sheet.Press(Key::Enter);
        if (given.Empties || !given.CellBehindEnter.empty())
            EXPECT_EQ(Cell(), given.CellBehindEnter) << name;
        else
            EXPECT_TRUE(Cell() == text) << name << " behind Enter";
        EXPECT_EQ(LabelsHeard(), Lines()) << name;
    }
}

TEST_F(OddEntries, TypingInAVeryLongText_ReachesTheCellAtOnce)
{
    const std::u16string text(veryLong, u'x');
    for (const FieldControlType kind : {fcTextBox, fcRichTextBox, fcComboBox}) {
        Sheet->Cols(2);
        Sheet->CreateColumnDataType(1, u"Long", kind, u"", false, fcLeft, 0, faNil, false);
        Sheet->BuildGridColumns();
        Sheet->AllowAddNew(true);
        Sheet->Add(0, 3);
        Sheet.Calls->Notes(false);
        SetCell(2, 1, text);
        Sheet.Hand.Click(2, 1);
        Sheet.Heard.clear();
        std::u16string typed;
        for (char16_t unit = u'a'; unit <= u'z'; ++unit) {
            typed += unit;
            Sheet.Type({&unit, 1});
            EXPECT_TRUE(Cell() == typed + text) << kind;
        }
        EXPECT_EQ(LabelsHeard(), Lines());
    }
}

TEST_F(OddEntries, ManyCharactersTyped_ReachTheCellOfWhatTakesThem_AndRingForTheRest)
{
    constexpr std::size_t many = 3000;
    const std::pair<LongCase, std::int32_t> cases[] = {
        {{fcTextBox, u"", false, u'7', std::u16string(many, u'7')}, 0},
        {{fcRichTextBox, u"", false, u'7', std::u16string(many, u'7')}, 0},
        {{fcComboBox, u"", false, u'7', std::u16string(many, u'7')}, 0},
        {{fcMaskedEditBox, u"", false, u'7', std::u16string(many, u'7')}, 0},
        {{fcMaskedEditBox, u"##/##", true, u'7', u"77/77"}, 2996},
        {{fcListBox, u"a|b", false, u'b', u"b"}, 0},
        {{fcCheckBox, u"", false, u'7', u""}, 0},
        {{fcCommandButton, u"7", false, u'7', u""}, 0},
    };
    for (const auto& [given, bells] : cases) {
        Sheet->Cols(2);
        Sheet->CreateColumnDataType(1, u"Long", given.Kind, given.Setting, false, fcLeft, 0, faNil, given.UseMask);
        Sheet->BuildGridColumns();
        Sheet->AllowAddNew(true);
        Sheet->Add(0, 3);
        Sheet.Calls->Notes(false);
        Sheet.Hand.Click(2, 1);
        Sheet.Heard.clear();
        Sheet.Toolkit->Bells = 0;
        Sheet.Type(std::u16string(many, given.Unit));
        EXPECT_TRUE(Cell() == given.CellBehindEnter) << given.Kind;
        EXPECT_EQ(Sheet.Toolkit->Bells, bells) << given.Kind;
        EXPECT_EQ(LabelsHeard(), Lines());
    }
}

} // namespace
} // namespace Tessellon
