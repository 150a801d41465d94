#include "recordset/common/Unicode.h"

#include "engine/runtime/ByteUnits.h"

#include <cstddef>
#include <cstdint>

namespace Tessellon::Common {

namespace {

constexpr char16_t Replacement = 0xFFFD;
constexpr std::size_t Block = 16;

struct Sequence {
    std::uint32_t Point = 0;
    std::size_t Length = 0;
    bool Sound = false;
};

/// Reads one sequence of several bytes; a broken one is as long as its sound beginning.
Sequence ReadSequence(const unsigned char* at, std::size_t left)
{
    const unsigned lead = at[0];
    std::size_t length = 0;
    unsigned lowest = 0x80; // of the second byte: keeps overlong forms out
    unsigned highest = 0xBF; // of the second byte: keeps points past U+10FFFF out
    std::uint32_t point = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        point = lead & 0x1FU;
    } else if ((lead & 0xF0U) == 0xE0) {
        length = 3;
        point = lead & 0x0FU;
        lowest = lead == 0xE0 ? 0xA0 : lowest;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        point = lead & 0x07U;
        lowest = lead == 0xF0 ? 0x90 : lowest;
        highest = lead == 0xF4 ? 0x8F : highest;
    } else {
        return {0, 1, false};
    }
    for (std::size_t i = 1; i < length; ++i) {
        if (i >= left || at[i] < lowest || at[i] > highest)
            return {0, i, false};
        point = (point << 6U) | (at[i] & 0x3FU);
        lowest = 0x80;
        highest = 0xBF;
    }
    return {point, length, true};
}

/// Returns how many units came of the bytes.
std::size_t Decode(std::string_view bytes, char16_t* const units)
{
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    char16_t* out = units;
    while (at != end) {
        while (static_cast<std::size_t>(end - at) >= Block && Widen(out, {at, Block})) {
            at += Block;
            out += Block;
        }
        for (std::size_t i = 0; i < Block && at != end; ++i) {
            const auto byte = static_cast<unsigned char>(*at);
            if (byte < 0x80) {
                *out++ = byte;
                ++at;
                continue;
            }
            const Sequence sequence =
                ReadSequence(reinterpret_cast<const unsigned char*>(at), static_cast<std::size_t>(end - at));
            at += sequence.Length;
            if (!sequence.Sound) {
                *out++ = Replacement;
            } else if (sequence.Point < 0x10000) {
                *out++ = static_cast<char16_t>(sequence.Point);
            } else {
                *out++ = static_cast<char16_t>(0xD7C0U + (sequence.Point >> 10U));
                *out++ = static_cast<char16_t>(0xDC00U + (sequence.Point & 0x3FFU));
            }
        }
    }
    return static_cast<std::size_t>(out - units);
}

} // namespace

std::u16string_view ToUtf16(std::string_view bytes, std::u16string& buffer)
{
    // No byte gives more than one unit, so the bytes' count is room enough.
    if (buffer.size() < bytes.size())
        buffer.resize(bytes.size() + bytes.size() / 2);
    if (Widen(buffer.data(), bytes))
        return {buffer.data(), bytes.size()};
    return {buffer.data(), Decode(bytes, buffer.data())};
}

std::u16string ToUtf16(std::string_view bytes)
{
    std::u16string buffer;
    buffer.resize(ToUtf16(bytes, buffer).size());
    return buffer;
}

std::string ToUtf8(std::u16string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    const auto tail = [&](std::uint32_t bits) { bytes += static_cast<char>(0x80U | (bits & 0x3FU)); };
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t point = text[i];
        if (point >= 0xD800 && point < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000)
            point = ((point - 0xD7C0U) << 10U) + (text[++i] - 0xDC00U);
        if (point < 0x80) {
            bytes += static_cast<char>(point);
        } else if (point < 0x800) {
            bytes += static_cast<char>(0xC0U | (point >> 6U));
            tail(point);
        } else if (point < 0x10000) {
            bytes += static_cast<char>(0xE0U | (point >> 12U));
            tail(point >> 6U);
            tail(point);
        } else {
            bytes += static_cast<char>(0xF0U | (point >> 18U));
            tail(point >> 12U);
            tail(point >> 6U);
            tail(point);
        }
    }
    return bytes;
}

} // namespace Tessellon::Common
