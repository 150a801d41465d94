#include "Utf8.h"

#include "ScriptError.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Tessellon::Replay {

namespace {

constexpr char32_t firstSurrogate = 0xD800;
constexpr char32_t firstLowSurrogate = 0xDC00;
constexpr char32_t lastSurrogate = 0xDFFF;
constexpr char32_t firstAstral = 0x10000;
constexpr char32_t lastPoint = 0x10FFFF;

/// Takes one code point from the front; what is none, too long or a surrogate is an error.
char32_t TakePoint(std::string_view& bytes)
{
    const auto lead = static_cast<std::uint8_t>(bytes.front());
    bytes.remove_prefix(1);
    if (lead < 0x80)
        return lead;
    const int more = lead >= 0xF0 && lead < 0xF8 ? 3 : lead >= 0xE0 ? 2 : 1;
    static constexpr std::array<char32_t, 4> least = {0, 0x80, 0x800, firstAstral};
    char32_t point = lead & (0x3FU >> more);
    bool isWell = lead >= 0xC0 && lead < 0xF8 && bytes.size() >= static_cast<std::size_t>(more);
    for (int i = 0; isWell && i < more; ++i) {
        const auto next = static_cast<std::uint8_t>(bytes.front());
        bytes.remove_prefix(1);
        isWell = (next & 0xC0U) == 0x80;
        point = point << 6 | (next & 0x3FU);
    }
    if (!isWell || point < least[static_cast<std::size_t>(more)] || point > lastPoint ||
        (point >= firstSurrogate && point <= lastSurrogate))
        throw ScriptError("this line is not UTF-8");
    return point;
}

} // namespace

std::u16string FromUtf8(std::string_view bytes)
{
    std::u16string text;
    text.reserve(bytes.size());
    while (!bytes.empty())
        AppendCodePoint(text, TakePoint(bytes));
    return text;
}

void AppendUtf8(std::string& out, std::u16string_view text)
{
    const auto tail = [&](char32_t point, int shift) {
        out.push_back(static_cast<char>(0x80U | (point >> shift & 0x3FU)));
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        if (point >= firstSurrogate && point <= lastSurrogate) {
            const bool isPair = point < firstLowSurrogate && i + 1 < text.size() && text[i + 1] >= firstLowSurrogate &&
                                text[i + 1] <= lastSurrogate;
            point = isPair ? firstAstral + ((point - firstSurrogate) << 10) + (text[++i] - firstLowSurrogate) : 0xFFFD;
        }
        if (point < 0x80) {
            out.push_back(static_cast<char>(point));
        } else if (point < 0x800) {
            out.push_back(static_cast<char>(0xC0U | point >> 6));
            tail(point, 0);
        } else if (point < firstAstral) {
            out.push_back(static_cast<char>(0xE0U | point >> 12));
            tail(point, 6);
            tail(point, 0);
        } else {
            out.push_back(static_cast<char>(0xF0U | point >> 18));
            tail(point, 12);
            tail(point, 6);
            tail(point, 0);
        }
    }
}

std::string ToUtf8(std::u16string_view text)
{
    std::string bytes;
    AppendUtf8(bytes, text);
    return bytes;
}

void AppendCodePoint(std::u16string& out, char32_t point)
{
    if (point >= firstAstral) {
        out.push_back(static_cast<char16_t>(firstSurrogate + ((point - firstAstral) >> 10)));
        point = firstLowSurrogate + ((point - firstAstral) & 0x3FFU);
    }
    out.push_back(static_cast<char16_t>(point));
}

} // namespace Tessellon::Replay
