#pragma once

#include <string>
#include <string_view>

namespace Tessellon {

// Case by Unicode's simple mapping, unit by unit: no unit becomes two. Surrogates have no case and are no letters.
// The table behind it (CaseTable.h) is written by tools/MakeCaseTable.py from the Unicode data that its head names.

char16_t UpperCaseByTable(char16_t unit);
char16_t LowerCaseByTable(char16_t unit);
bool IsLetterByTable(char16_t unit);

inline char16_t UpperCase(char16_t unit)
{
    if (unit < 0x80)
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 0x20) : unit;
    return UpperCaseByTable(unit);
}

inline char16_t LowerCase(char16_t unit)
{
    if (unit < 0x80)
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    return LowerCaseByTable(unit);
}

inline bool IsLetter(char16_t unit)
{
    if (unit < 0x80)
        return (unit | 0x20) >= u'a' && (unit | 0x20) <= u'z';
    return IsLetterByTable(unit);
}

constexpr bool IsDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

std::u16string UpperCase(std::u16string_view text);
/// Appends the text in upper case.
void UpperCaseTo(std::u16string& out, std::u16string_view text);

/// Texts are equal when their upper case is.
bool EqualIgnoringCase(std::u16string_view left, std::u16string_view right);
bool StartsWithIgnoringCase(std::u16string_view text, std::u16string_view start);

} // namespace Tessellon
