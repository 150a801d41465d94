#pragma once

#include "engine/runtime/DecimalDigits.h"
#include "engine/runtime/Locale.h"

#include <string>
#include <string_view>

namespace Tessellon {

/// Reads a number as a user of that locale writes it: sign, groups, exponent, currency sign, parentheses for minus,
/// &H and &O. False where the text is no number, or one past the range of a 64-bit float.
bool ReadNumber(std::u16string_view text, const Locale& locale, DecimalDigits& digits);

/// The quick way for what most texts are: at most a minus, 15 digits and one decimal separator. False for any other,
/// though it may be a number too.
bool ReadPlainNumber(std::u16string_view text, char16_t decimalSeparator, double& number);

/// Reads the digits of a decimal as a source gives them: sign, digits, point, exponent. False where it is none.
bool ReadDecimal(std::u16string_view text, DecimalDigits& digits);

/// Appends figures and signs of ASCII.
void AppendAscii(std::u16string& out, std::string_view text);
/// Appends the number in full, without exponent and trailing zeros.
void AppendPlain(std::u16string& out, const DecimalDigits& digits, char16_t decimalSeparator);
/// Appends a 64-bit float: 15 digits, an exponent from 1E15 on and below 0.0001.
void AppendDouble(std::u16string& out, double real, char16_t decimalSeparator);
/// Appends a 32-bit float: 7 digits, an exponent from 1E7 on and below 0.0001.
void AppendSingle(std::u16string& out, double real, char16_t decimalSeparator);

} // namespace Tessellon
