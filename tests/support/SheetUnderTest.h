#pragma once

#include "engine/EnginePlatform.h"
#include "engine/Journal.h"
#include "headless/HeadlessHand.h"
#include "headless/HeadlessToolkit.h"
#include "shell/TessellonSheet.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// The sheet's private procedures, for tests that try one alone. A test adds what it needs as members of its own file.
struct SheetProbe;

/// A container's property bag that keeps what is written and gives it back.
class TestBag : public PropertyBag {
public:
    Font ReadFont(std::u16string_view name, const Font& byDefault) override;
    bool ReadTruth(std::u16string_view name, bool byDefault) override;
    void WriteFont(std::u16string_view name, const Font& font, const Font& byDefault) override;
    void WriteTruth(std::u16string_view name, bool truth, bool byDefault) override;

    std::vector<std::string> Calls; ///< Each as "Write Enabled True (default True)".
    Font* SavedFont = nullptr;
    bool* SavedEnabled = nullptr;
};

/// A sheet on a platform without a screen, watched by a journal, with a user's hand and a record of what the host
/// hears. Made as a replay makes it: properties read (font "Sans", 8 points; enabled), 9600 x 4800 twips, the focus
/// outside.
class SheetUnderTest {
public:
    SheetUnderTest();
    ~SheetUnderTest();
    SheetUnderTest(const SheetUnderTest&) = delete;
    SheetUnderTest& operator=(const SheetUnderTest&) = delete;

    TessellonSheet& operator*() { return *Sheet; }
    TessellonSheet* operator->() { return Sheet.get(); }

    std::shared_ptr<HeadlessToolkit> Toolkit;
    std::shared_ptr<EnginePlatform> Platform;
    std::shared_ptr<Journal> Calls;
    SheetPointer Sheet;
    HeadlessHand Hand;

    /// What the host heard since the last time: each event with its arguments as a replay prints it
    /// ("KeyDown KeyCode=13 Shift=0"), "box TEXT" for a message box and "exception NUMBER" for an unhandled failure.
    std::vector<std::string> TakeEvents();
    /// The names of the events alone.
    std::vector<std::string> TakeEventNames();
    /// The platform calls since the last time, as the journal notes them.
    std::vector<std::string> TakeCalls();
    /// The visible editors with their texts: "Text1 \"ab\"", in the order in which the sheet takes them down.
    std::vector<std::string> EditorsUp() const;
    std::string Focus() const; ///< "none" where nobody has it.

    void Press(std::int16_t code, std::int16_t shift = 0); ///< With the character that the key types.
    void Type(std::u16string_view text);

    /// A column of a kind with a heading, not hidden, aligned left, 40 characters, no width fitting.
    void Column(std::int32_t col, FieldControlType kind, std::u16string_view setting = u"", bool hidden = false,
                bool useMask = false);
    /// Columns of the kinds, built, and so many empty rows; the events until then are dropped.
    void Build(const std::vector<FieldControlType>& kinds, std::int32_t rows);

    const SheetMembers& Members() const { return Sheet->Members(); }

    std::vector<std::string> Heard; ///< What TakeEvents gives next.

private:
    void Listen();
};

/// UTF-8 of a text, lone surrogates as U+FFFD.
std::string Utf8(std::u16string_view text);
std::u16string Utf16(std::string_view text);

/// Records for a load, held in memory; walks are counted, and a move can be made to fail.
class TestRecordset : public Recordset {
public:
    struct Cell {
        Value::Kind Kind = Value::Kind::Null;
        std::u16string Text; ///< Of a Text or Decimal.
        std::int64_t Integer = 0; ///< Of an Integer or Boolean.
        double Real = 0; ///< Of a Double, Single or Date.
    };

    std::vector<std::int32_t> Types; ///< DataTypeEnum numbers, a field each.
    std::vector<std::vector<Cell>> Records;
    int FirstMoves = 0;
    int NextMoves = 0;

    bool AtEnd() override { return at_ >= Records.size(); }
    void MoveFirst() override;
    void MoveNext() override;
    std::int32_t FieldCount() override { return static_cast<std::int32_t>(Types.size()); }
    std::int32_t FieldType(std::int32_t field) override { return Types.at(static_cast<std::size_t>(field)); }
    Value FieldValue(std::int32_t field) override;

private:
    std::size_t at_ = 0;
};

class TestConnection : public Connection {
public:
    std::vector<ProviderError> Entries;
    const std::vector<ProviderError>& Errors() override { return Entries; }
};

} // namespace Tessellon
