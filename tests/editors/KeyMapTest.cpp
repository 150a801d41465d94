#include "engine/DefaultProperties.h"
#include "engine/Journal.h"
#include "platform/PlatformUnderTest.h"
#include "support/Keys.h"
#include "support/SheetProbe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tessellon {
namespace {

struct EditorKind {
    const char* Name;
    FieldControlType Kind;
    Child Control;
    const char16_t* Text; ///< Of a cell: three units, where there is a caret.
};

constexpr std::array<EditorKind, 8> editors = {{
    {"Text1", fcTextBox, Child::Text1, u"abc"},
    {"Check1", fcCheckBox, Child::Check1, u"True"},
    {"Combo1", fcComboBox, Child::Combo1, u"Two"},
    {"List1", fcListBox, Child::List1, u"Two"},
    {"MaskEdBox1", fcMaskedEditBox, Child::MaskEdBox1, u"1-2"},
    {"DTPicker1", fcDatePicker, Child::DTPicker1, u"05/05/2002"},
    {"RichTextBox1", fcRichTextBox, Child::RichTextBox1, u"abc"},
    {"Command1", fcCommandButton, Child::Command1, u"paid"},
}};

struct KeyMapRow {
    const char* Key;
    std::array<const char*, 8> Does;
};

constexpr const char* textMoves = "write text; platform moves in the list";
constexpr const char* selectionMoves = "write selection; platform moves in the list";
constexpr const char* whenActedOn = "Enter, Left, Up, Right, Down when acted on";

// Columns: Text1, Check1, Combo1, List1, MaskEdBox1, DTPicker1, RichTextBox1, Command1.
// clang-format off
constexpr KeyMapRow keyMap[] = {
    {"Esc", {"restore, down", "restore, down", "restore, down", "restore, down",
             "restore, down", "restore through the date format, down", "restore, down", "restore, down"}},
    {"Enter", {"next", "write value, next", "next", "next, writing the selection on the last cell only",
               "write text if it had any, next", "write value, next", "Ctrl: new line; else next", "click"}},
    {"Space", {"typed", "platform toggles", "write text; typed", "platform",
               "typed", "platform", "typed", "click"}},
    {"Left", {"previous if caret at 0", "previous", "previous on every second press", "previous",
              "previous if caret at 0", "nothing", "previous if caret at 0", "nothing"}},
    {"Right", {"next if caret at end", "next", "next on every second press", "next",
               "next if caret at end", "nothing", "next if caret at end", "nothing"}},
    {"Up", {"above", "above", textMoves, selectionMoves,
            "above", "nothing", "above", "nothing"}},
    {"Down", {"below", "below", textMoves, selectionMoves,
              "below", "nothing", "below", "nothing"}},
    {"Other", {"nothing", "nothing", "write text", "nothing",
               "nothing", "nothing", "nothing", "nothing"}},
    {"Public KeyDown raised", {"yes", "no", "no", "no",
                               "no", "yes", "no", "no"}},
    {"KeyCode set to 0", {"no", "no", "no", "no",
                          "Enter", "no", whenActedOn, "Enter, Space"}},
};
// clang-format on

constexpr std::int16_t otherKeys[] = {Key::Tab,    Key::PageUp, Key::PageDown, Key::End, Key::Home,
                                      Key::Delete, Key::F2,     112,           127,      u'A'};
constexpr const char16_t* sentinel = u"#";

/// One press, and what the sheet did with it while its handler ran.
struct Seen {
    std::int16_t Code = 0; ///< As it came back.
    std::pair<std::int32_t, std::int32_t> Cursor;
    bool IsUp = false;
    std::u16string Cell; ///< Of the cell where the key was pressed.
    std::size_t Calls = 0; ///< Of the platform, reads not counted.
    int Told = 0; ///< KeyDown at the host.
    int Clicks = 0; ///< ButtonClick at the host.
    bool WasDownAtAdvance = true;
    bool CharacterReachedIt = false; ///< Behind the handler.
    std::u16string CellInTheEnd;
    std::u16string ShownInTheEnd;
};

/// A new sheet on the toolkit that this program tries, with the editor between two text boxes or as the last column,
/// and somebody who listens in between.
class Desk : private EventSink {
public:
    Desk(const EditorKind& kind, std::int32_t row, std::int32_t col)
        : kind_(kind)
        , row_(row)
        , col_(col)
    {
        DefaultProperties unsaved;
        sheet_->UserControl_ReadProperties(unsaved);
        Hand().Resize(9600, 4800);
        constexpr std::int32_t columns = 3;
        sheet_->Cols(columns + 1);
        for (std::int32_t c = 1; c <= columns; ++c)
            Declare(c, c == col ? kind.Kind : fcTextBox);
        sheet_->BuildGridColumns();
        sheet_->AllowAddNew(true);
        sheet_->Add(0, 3);
        sheet_->AdvanceToNextCell += [this](bool&) { now_.WasDownAtAdvance = now_.WasDownAtAdvance && !IsUp(); };
        sheet_->KeyDown += [this](std::int16_t&, std::int16_t&) { ++now_.Told; };
        sheet_->ButtonClick += [this](std::int16_t) { ++now_.Clicks; };
        calls_->Notes(true);
        stage_->Engine().Listen(this);
    }
    ~Desk() override { stage_->Engine().Listen(nullptr); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// The user comes into the cell, which holds the text, from another. He has left its editor by the mouse before,
    /// so that a combo box counts no arrow of the last time.
    Desk& Enter(std::u16string_view text)
    {
        Hand().Click(row_, col_);
        Hand().Click(1, 1);
        Grid().TextMatrix(row_, col_, text);
        Hand().Click(row_, col_);
        return *this;
    }
    Desk& Caret(std::int32_t position)
    {
        Hand().Caret(position);
        return *this;
    }
    Desk& Tag(std::u16string_view tag)
    {
        Editor().Tag(tag);
        return *this;
    }
    /// Puts a text into the cell that no editor has, so that a write of the cell is seen.
    Desk& Mark()
    {
        Grid().TextMatrix(row_, col_, sentinel);
        return *this;
    }
    Seen Press(std::int16_t code, std::int16_t shift = 0)
    {
        now_ = {};
        const bool types = code == Key::Enter || code == Key::Escape || code == Key::Tab || code == Key::Space;
        Hand().Press({.Code = code,
                      .Shift = shift,
                      .HasCharacter = types,
                      .Character = types ? static_cast<char16_t>(code) : u'\0'});
        now_.CellInTheEnd = Grid().TextMatrix(row_, col_);
        now_.ShownInTheEnd = Shown();
        return now_;
    }

private:
    void Declare(std::int32_t col, FieldControlType kind)
    {
        const bool isMasked = kind == fcMaskedEditBox;
        const char16_t* setting = isMasked ? u"#-#" : kind == fcComboBox || kind == fcListBox ? u"One|Two|Three" : u"";
        sheet_->CreateColumnDataType(col, u"C", kind, setting, false, fcLeft, 40, faNil, isMasked);
    }
    Tessellon::Hand& Hand() { return stage_->TheHand(); }
    Tessellon::Grid& Grid() { return stage_->Engine().MSFlexGrid1(); }
    Tessellon::Editor& Editor()
    {
        EnginePlatform& platform = stage_->Engine();
        switch (kind_.Control) {
        case Child::Check1: return *platform.Check1();
        case Child::Combo1: return *platform.Combo1().Item(0);
        case Child::List1: return *platform.List1().Item(0);
        case Child::DTPicker1: return *platform.DTPicker1();
        case Child::MaskEdBox1: return *platform.MaskEdBox1().Item(0);
        case Child::RichTextBox1: return *platform.RichTextBox1();
        case Child::Command1: return *platform.Command1().Item(0);
        default: return *platform.Text1();
        }
    }
    bool IsUp() { return Editor().Visible() || Editor().Enabled(); }
    std::u16string Shown()
    {
        for (const auto& editor : stage_->Engine().Editors()) {
            if (editor->Which() == kind_.Control)
                return editor->ShownText();
        }
        return {};
    }

    void Raise(Child child, ChildEvent event, EventArguments& arguments) override
    {
        const bool isTheKey = child == kind_.Control && event == ChildEvent::KeyDown;
        if (isTheKey)
            static_cast<void>(calls_->TakeNotes());
        if (child == kind_.Control && event == ChildEvent::KeyPress)
            now_.CharacterReachedIt = true;
        probe_.Raise(child, event, arguments);
        if (isTheKey) {
            now_.Code = arguments.KeyCode;
            now_.Cursor = {Grid().Row(), Grid().Col()};
            now_.IsUp = IsUp();
            now_.Cell = Grid().TextMatrix(row_, col_);
            now_.Calls = calls_->TakeNotes().size();
        }
    }

    const EditorKind& kind_;
    std::int32_t row_;
    std::int32_t col_;
    std::unique_ptr<Contract::PlatformUnderTest> stage_ = Contract::TheFactory().Make();
    std::shared_ptr<Journal> calls_ = std::make_shared<Journal>(stage_->Get());
    SheetPointer sheet_ = TessellonSheet::Create(calls_);
    SheetProbe probe_{*sheet_};
    Seen now_;
};

/// Plays one editor's keys and says what was seen in the words of the table.
class Player {
public:
    explicit Player(const EditorKind& kind)
        : kind_(kind)
        , enterOnLast_(Desk(kind, 3, 3).Enter(kind.Text).Mark().Press(Key::Enter))
        , middle_(kind, 2, 2)
    {
    }

    std::string Play(std::string_view key)
    {
        if (key == "Esc")
            return Escape();
        if (key == "Enter")
            return Enter();
        if (key == "Space")
            return Space();
        if (key == "Left")
            return Sideways(Key::Left);
        if (key == "Right")
            return Sideways(Key::Right);
        if (key == "Up")
            return Upright(Key::Up);
        if (key == "Down")
            return Upright(Key::Down);
        if (key == "Other")
            return Other();
        if (key == "Public KeyDown raised")
            return Told();
        return Eaten();
    }

    /// What the editor shows behind a blank.
    std::u16string ShownBehindABlank() { return Open().Press(Key::Space).ShownInTheEnd; }

private:
    Desk& Open() { return middle_.Enter(kind_.Text); }

    static bool IsMoved(const Seen& seen) { return seen.Cursor != std::pair{2, 2}; }
    static bool IsWritten(const Seen& seen) { return seen.Cell != sentinel; }

    static bool IsIdle(const Seen& seen) { return seen.Calls == 0 && seen.Clicks == 0 && seen.IsUp; }

    /// Where the cursor went, each time behind a stand-down.
    static std::string Way(const Seen& seen)
    {
        const std::pair<std::pair<std::int32_t, std::int32_t>, const char*> ways[] = {
            {{2, 3}, "next"}, {{2, 1}, "previous"}, {{1, 2}, "above"}, {{3, 2}, "below"}};
        for (const auto& [place, word] : ways) {
            if (seen.Cursor == place)
                return seen.WasDownAtAdvance ? word : std::string(word) + " with the editor up";
        }
        return "nowhere";
    }

    std::string Escape()
    {
        const Seen seen = Open().Tag(u"2002-05-07").Mark().Press(Key::Escape);
        std::string words = seen.Cell == u"2002-05-07"   ? "restore"
                            : seen.Cell == u"07/05/2002" ? "restore through the date format"
                                                         : "something";
        if (!seen.IsUp && !IsMoved(seen))
            words += ", down";
        return words;
    }

    std::string Enter()
    {
        const Seen plain = Open().Mark().Press(Key::Enter);
        if (plain.Clicks == 1)
            return "click";
        const Seen fromEmpty = middle_.Enter(u"").Mark().Press(Key::Enter);
        const Seen withCtrl = Open().Press(Key::Enter, 2);
        std::string words;
        if (withCtrl.Cell == std::u16string(kind_.Text) + u"\r\n" && !IsMoved(withCtrl) && withCtrl.IsUp)
            words += "Ctrl: new line; else ";
        if (IsWritten(plain))
            words += IsWritten(fromEmpty) ? "write value, " : "write text if it had any, ";
        words += Way(plain);
        if (!IsWritten(plain) && IsWritten(enterOnLast_))
            words += ", writing the selection on the last cell only";
        return words;
    }

    std::string Space()
    {
        const Seen seen = Open().Mark().Press(Key::Space);
        if (seen.Clicks == 1)
            return "click";
        if (IsMoved(seen) || !seen.IsUp || seen.Code != Key::Space || !seen.CharacterReachedIt)
            return "taken away from the control";
        if (IsWritten(seen))
            return seen.Cell == kind_.Text ? "write text; typed" : "something";
        return seen.CellInTheEnd == u"False" ? "platform toggles" : "left to the control";
    }

    std::string Sideways(std::int16_t code)
    {
        std::string way = "nowhere";
        int first = 0;
        int second = 0;
        int atFront = 0;
        int atEnd = 0;
        for (const std::int32_t caret : {0, 1, 3}) {
            const Seen once = Open().Caret(caret).Press(code);
            if (IsMoved(once)) {
                way = Way(once);
                ++first;
                atFront += caret == 0 ? 1 : 0;
                atEnd += caret == 3 ? 1 : 0;
                continue;
            }
            if (!IsIdle(once))
                return "something";
            const Seen twice = middle_.Press(code);
            if (IsMoved(twice)) {
                ++second;
                if (way == "nowhere")
                    way = Way(twice);
            }
        }
        if (first == 3)
            return way;
        if (first == 1 && atFront == 1)
            return way + " if caret at 0";
        if (first == 1 && atEnd == 1)
            return way + " if caret at end";
        if (first == 0 && second == 3)
            return way + " on every second press";
        return first == 0 && second == 0 ? "nothing" : "unsteady";
    }

    std::string Upright(std::int16_t code)
    {
        for (const std::int32_t caret : {1, 3}) {
            if (Way(Open().Caret(caret).Press(code)) != Way(Open().Press(code)))
                return "unsteady";
        }
        const Seen seen = Open().Mark().Press(code);
        if (IsMoved(seen))
            return Way(seen);
        if (seen.Cell == kind_.Text && seen.CellInTheEnd == (code == Key::Up ? u"One" : u"Three"))
            return kind_.Control == Child::List1 ? selectionMoves : textMoves;
        return IsIdle(seen) ? "nothing" : "something";
    }

    std::string Other()
    {
        std::string words;
        for (const std::int16_t code : otherKeys) {
            const Seen seen = Open().Mark().Press(code);
            const std::string now = !seen.IsUp || IsMoved(seen) ? "something"
                                    : seen.Cell == kind_.Text   ? "write text"
                                    : IsIdle(seen)              ? "nothing"
                                                                : "something";
            if (!words.empty() && words != now)
                return "unsteady";
            words = now;
        }
        return words;
    }

    std::string Told()
    {
        std::vector<std::int16_t> keys = {Key::Escape, Key::Enter, Key::Space, Key::Left,
                                          Key::Up,     Key::Right, Key::Down};
        keys.insert(keys.end(), std::begin(otherKeys), std::end(otherKeys));
        std::ptrdiff_t told = 0;
        for (const std::int16_t code : keys)
            told += Open().Press(code).Told;
        return told == 0 ? "no" : told == static_cast<std::ptrdiff_t>(keys.size()) ? "yes" : "unsteady";
    }

    std::string Eaten()
    {
        std::string words;
        const std::pair<std::int16_t, const char*> keys[] = {
            {Key::Enter, "Enter"}, {Key::Space, "Space"}, {Key::Left, "Left"},    {Key::Up, "Up"},
            {Key::Right, "Right"}, {Key::Down, "Down"},   {Key::Escape, "Escape"}};
        for (const auto& [code, name] : keys) {
            const Seen seen = Open().Caret(code == Key::Right ? 3 : 0).Press(code);
            if (seen.Code == 0)
                words += (words.empty() ? "" : ", ") + std::string(name);
            else if (seen.Code != code)
                return "another key";
        }
        for (const std::int16_t code : otherKeys) {
            if (Open().Press(code).Code != code)
                return "another key";
        }
        const bool onlyWhenActedOn =
            Open().Caret(1).Press(Key::Left).Code == Key::Left && Open().Caret(1).Press(Key::Right).Code == Key::Right;
        if (words.ends_with("Down") && onlyWhenActedOn)
            words += " when acted on";
        return words.empty() ? "no" : words;
    }

    const EditorKind& kind_;
    Seen enterOnLast_; ///< Of a desk that is gone by now: of two windows only one has the keys.
    Desk middle_;
};

/// What the control does with a blank is its own, so the table's two words for it are one here.
std::string Unified(const std::string& words)
{
    return words == "typed" || words == "platform" ? "left to the control" : words;
}

TEST(KeyMap, EveryKey_DoesInEveryEditorWhatTheTableSays)
{
    for (std::size_t i = 0; i < editors.size(); ++i) {
        Player player(editors.at(i));
        for (const KeyMapRow& row : keyMap)
            EXPECT_EQ(player.Play(row.Key), Unified(row.Does.at(i))) << row.Key << " in " << editors.at(i).Name;
    }
}

TEST(KeyMap, Blank_IsTypedWhereTheControlHasATextOfItsOwn)
{
    const std::pair<std::size_t, const char16_t*> shown[] = {{0, u" abc"}, {2, u" Two"},       {3, u"Two"},
                                                             {4, u" -2"},  {5, u"05/05/2002"}, {6, u" abc"}};
    for (const auto& [i, text] : shown)
        EXPECT_EQ(Player(editors.at(i)).ShownBehindABlank(), text) << editors.at(i).Name;
}

} // namespace
} // namespace Tessellon
