#pragma once

#include "platform/Font.h"
#include "platform/Grid.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Tessellon {

/// A date serial that is to be written as a date.
struct DateValue {
    double Serial = 0;
};

// How values are written in a record of what happened: numbers as general number text with a point, texts quoted.
void AppendValue(std::u16string& out, bool truth); ///< True or False.
void AppendValue(std::u16string& out, std::int16_t number);
void AppendValue(std::u16string& out, std::int32_t number);
void AppendValue(std::u16string& out, float number); ///< With 7 digits.
void AppendValue(std::u16string& out, double number); ///< With 15 digits.
void AppendValue(std::u16string& out, DateValue date); ///< yyyy-MM-dd; a serial that is no date as a number.
void AppendValue(std::u16string& out, std::u16string_view text); ///< In double quotes, escaped.
void AppendValue(std::u16string& out, Picture picture); ///< arrow or none.
void AppendValue(std::u16string& out, const Font& font); ///< Its name and its size, with a comma between.
void AppendValue(std::u16string& out, const void* pointer) = delete;

/// Appends a text with \" \\ \n \r \t, and other characters below 32 and lone surrogates as \u{HEX}.
void AppendEscaped(std::u16string& out, std::u16string_view text);

template <class Value>
std::u16string ValueText(const Value& value)
{
    std::u16string text;
    AppendValue(text, value);
    return text;
}

} // namespace Tessellon
