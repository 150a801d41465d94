#pragma once

#include "engine/fields/PickerFormat.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

struct CivilTime;
struct Locale;

/// What a key does to the fields of a date picker.
enum class DateKey : std::uint8_t { Left, Right, Up, Down, Home, End };

/// Where a key leads in a date picker's open calendar.
enum class CalendarMove : std::uint8_t {
    PreviousDay,
    NextDay,
    PreviousWeek,
    NextWeek,
    PreviousMonth,
    NextMonth,
    FirstOfMonth,
    LastOfMonth,
};

/// What became of a date that code wrote.
enum class DateWrite : std::uint8_t {
    Same,
    Changed,
    OutOfRange, ///< Not of the years 100 to 9999; nothing is done. Failure 5 of the control.
};

/// What the user's doing led to.
struct DateResult {
    bool Changed = false; ///< The value became another, be it only on the way: Change is due.
    bool Bell = false;
    bool ForCallback = false; ///< The current field is one of the host's: the key is its own to handle.
};

/// Value and fields of a date picker with a format of its own. Dates are serials with the time of day; the value is
/// always of the years 100 to 9999. Fields count from 0, left to right; one of them is current.
///
/// Digits gather in the current field. They are taken as soon as no further digit could fit, and ahead of whatever
/// else is done here; the picker itself calls TakePending ahead of what it tells of any other key.
class DateFields {
public:
    static constexpr std::int32_t None = -1;
    /// The host's text for a callback field, given its run of signs.
    using CallbackText = std::function<std::u16string(std::u16string_view run)>;

    /// The locale gives the names of months, weekdays and halves of the day; it has to outlive the fields.
    explicit DateFields(const Locale& locale);

    // What code does. None of it raises Change.

    [[nodiscard]] double Value() const { return value_; }
    /// Drops the digits that wait, also if the value stays the same.
    [[nodiscard]] DateWrite Value(double date);
    [[nodiscard]] std::u16string_view CustomFormat() const { return format_; }
    /// True if it became another. Drops the digits that wait; the current field keeps its number, or is the last.
    bool CustomFormat(std::u16string_view format);

    // The fields

    [[nodiscard]] std::int32_t FieldCount() const { return static_cast<std::int32_t>(fields_.size()); }
    [[nodiscard]] std::int32_t CurrentField() const { return current_; } ///< None where there are no fields.
    /// Takes the digits that wait and makes a field current; what lies outside is drawn to the nearest.
    DateResult CurrentField(std::int32_t field);
    /// The run of signs that stands for a field in the format; empty for a field that is not there.
    [[nodiscard]] std::u16string_view FieldRun(std::int32_t field) const;
    /// Whether the current field is one of the host's, which gets the keys that are typed in it.
    [[nodiscard]] bool IsCallbackField() const;

    // What the user does

    /// The picker has the focus: its first field is current.
    void TakeFocus();
    DateResult Press(DateKey key);
    /// A character as UTF-16 unit. In a callback field nothing is done.
    DateResult Type(char16_t unit);
    /// Whether the character is a digit that would gather in the current field, and not end what waits there.
    [[nodiscard]] bool Gathers(char16_t unit) const;
    [[nodiscard]] std::u16string_view Pending() const { return pending_; }
    /// Takes the digits that wait as the number that they are; an illegal one is dropped with the bell.
    DateResult TakePending();
    void DropPending() { pending_.clear(); }
    /// A step in the open calendar. The time of day stays. At either end of the years the bell.
    DateResult Move(CalendarMove move);
    /// A day is chosen; the time of day stays. A day out of range is not taken, with the bell.
    DateResult PickDay(double day);
    /// A date is chosen with its time of day, or came back from a callback.
    DateResult PickDate(double date);

    // What is shown

    /// Puts the text together: asks for the text of each callback field, from the left. False, and the text is left to
    /// whoever writes it anew, where a callback made value or format another; the fields behind are not asked then.
    bool Assemble(const CallbackText& callback);
    /// The text as it was last put together.
    [[nodiscard]] std::u16string_view DisplayText() const { return display_; }
    /// Where a field stands in DisplayText, in UTF-16 units.
    struct Span {
        std::size_t Start = 0;
        std::size_t Length = 0;
    };
    /// Empty for a field that is not there, or was not there when the text was put together.
    [[nodiscard]] Span FieldSpan(std::int32_t field) const;

private:
    [[nodiscard]] const PickerPiece* CurrentPiece() const;
    [[nodiscard]] bool IsBehindCurrent(char16_t unit) const;
    [[nodiscard]] std::u16string TextOf(const PickerPiece& piece) const;
    DateResult Gather(char16_t digit);
    DateResult Step(const PickerPiece& piece, std::int32_t direction);
    DateResult SetNumber(const PickerPiece& piece, std::int32_t number);
    DateResult SetDay(std::int32_t year, std::int32_t month);
    DateResult SetTime(std::int32_t hour, std::int32_t minute, std::int32_t second);
    DateResult TakeFields(const CivilTime& date);
    DateResult Take(double date);

    const Locale& locale_;
    double value_ = 0;
    std::int32_t wantedDay_; ///< The day last chosen, typed or loaded, which a shorter month may not have.
    std::u16string format_;
    std::vector<PickerPiece> pieces_;
    std::vector<std::size_t> fields_; ///< The pieces that are fields.
    std::int32_t current_ = None;
    std::u16string pending_;
    std::u16string display_;
    std::vector<Span> spans_;
    std::uint32_t revision_ = 0; ///< Counts what makes a text that is being put together out of date.
};

} // namespace Tessellon
