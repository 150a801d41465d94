#pragma once

#include "Words.h"
#include "columns/ColDataType.h"
#include "data/ManipulateType.h"
#include "engine/runtime/DecimalDigits.h"
#include "view/ColorType.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::Replay {

/// A date as a script writes it: 2024-03-15 or 2024-03-15T10:30:00.
struct DateLiteral {
    double Serial = 0;
    bool HasTime = false;
};

/// A key by its name or character, with the code and the units that it types.
struct KeyLiteral {
    std::int16_t Code = 0;
    std::u16string Characters; ///< None of a key without one; two units of one character above U+FFFF.
};

/// The modifiers of a key: 1 Shift, 2 Ctrl, 4 Alt, added up.
struct ModifierLiteral {
    std::int16_t Shift = 0;
};

/// Any number, or none where the word is none.
std::optional<DecimalDigits> ReadNumber(const Word& word);
/// The whole number that the digits are, but for their sign; none if they are no whole one or past 64 bits.
std::optional<std::uint64_t> WholeMagnitude(const DecimalDigits& digits);
/// The whole number within the limits that the digits are, or none. `least` is not above 0.
std::optional<std::int64_t> WholeNumber(const DecimalDigits& digits, std::int64_t least, std::int64_t most);
std::optional<DateLiteral> ReadDate(const Word& word);

/// What a word is as a value of this type; one that the type cannot hold throws ScriptError.
template <class Value>
Value ReadAs(const Word& word);

template <>
std::int32_t ReadAs(const Word& word);
template <>
std::int16_t ReadAs(const Word& word);
template <>
float ReadAs(const Word& word);
template <>
double ReadAs(const Word& word);
template <>
bool ReadAs(const Word& word);
template <>
std::u16string ReadAs(const Word& word);
template <>
DateLiteral ReadAs(const Word& word);
template <>
KeyLiteral ReadAs(const Word& word);
template <>
ModifierLiteral ReadAs(const Word& word);

// Any number of 32 bits serves for an enumeration.
template <>
FieldControlType ReadAs(const Word& word);
template <>
FieldControlAlign ReadAs(const Word& word);
template <>
FieldAutoAdjustType ReadAs(const Word& word);
template <>
ManipulateType ReadAs(const Word& word);
template <>
ColorType ReadAs(const Word& word);

/// The names of all keys that have one: Enter, F1 and the like.
std::vector<std::u16string> KeyNames();
/// The code of the key that types a character; 0 where no key of its own does.
std::int16_t KeyCodeOf(char16_t character);

} // namespace Tessellon::Replay
