#include "engine/journal/ValueText.h"

#include "engine/runtime/Calendar.h"
#include "engine/runtime/NumberText.h"

#include <array>
#include <charconv>
#include <cstddef>

namespace Tessellon {

namespace {

void AppendDigits(std::u16string& out, std::int64_t number, int base = 10, std::size_t width = 0)
{
    std::array<char, 24> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, base).ptr;
    const auto length = static_cast<std::size_t>(end - digits.data());
    if (length < width)
        out.append(width - length, u'0');
    for (const char* digit = digits.data(); digit != end; ++digit)
        out.push_back(static_cast<char16_t>(*digit >= 'a' ? *digit - 'a' + 'A' : *digit));
}

bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The letter of a short escape; 0 where there is none.
char16_t ShortEscape(char16_t unit)
{
    switch (unit) {
    case u'"': return u'"';
    case u'\\': return u'\\';
    case u'\n': return u'n';
    case u'\r': return u'r';
    case u'\t': return u't';
    default: return 0;
    }
}

} // namespace

void AppendValue(std::u16string& out, bool truth)
{
    out += truth ? u"True" : u"False";
}

void AppendValue(std::u16string& out, std::int16_t number)
{
    AppendDigits(out, number);
}

void AppendValue(std::u16string& out, std::int32_t number)
{
    AppendDigits(out, number);
}

void AppendValue(std::u16string& out, float number)
{
    AppendSingle(out, number, u'.');
}

void AppendValue(std::u16string& out, double number)
{
    AppendDouble(out, number, u'.');
}

void AppendValue(std::u16string& out, DateValue date)
{
    if (!IsLegalSerial(date.Serial)) {
        AppendValue(out, date.Serial);
        return;
    }
    const CivilTime fields = FieldsOf(date.Serial);
    AppendDigits(out, fields.Year, 10, 4);
    out.push_back(u'-');
    AppendDigits(out, fields.Month, 10, 2);
    out.push_back(u'-');
    AppendDigits(out, fields.Day, 10, 2);
}

void AppendValue(std::u16string& out, std::u16string_view text)
{
    out.push_back(u'"');
    AppendEscaped(out, text);
    out.push_back(u'"');
}

void AppendValue(std::u16string& out, Picture picture)
{
    out += picture == Picture::Arrow ? u"arrow" : u"none";
}

void AppendValue(std::u16string& out, const Font& font)
{
    AppendValue(out, std::u16string_view(font.Name));
    out.push_back(u',');
    AppendValue(out, font.Size);
}

void AppendEscaped(std::u16string& out, std::u16string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (const char16_t letter = ShortEscape(unit); letter != 0) {
            out.push_back(u'\\');
            out.push_back(letter);
        } else if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            out.push_back(unit);
            out.push_back(text[++i]);
        } else if (unit < 32 || IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            out += u"\\u{";
            AppendDigits(out, unit, 16);
            out.push_back(u'}');
        } else {
            out.push_back(unit);
        }
    }
}

} // namespace Tessellon
