#include "recordset/kept/PackedValue.h"

#include "engine/runtime/ByteUnits.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace Tessellon::Kept {

namespace {

/// The first byte of a value: its form in the upper half, and in the lower how many bytes of a word follow.
enum : unsigned char {
    Null = 0x00,
    Boolean = 0x10,
    Integer = 0x20,
    Unsigned = 0x30,
    Single = 0x40,
    Double = 0x50,
    Date = 0x60,
    Long = 0x70, ///< A text: the word is its length, and in its lowest bit whether the units have two bytes.
    Short = 0x80, ///< A text of one byte a unit: the other seven bits are its length.
    DecimalAhead = 0x0E, ///< Stands ahead of a text that is a decimal.

    UpperHalf = 0xF0,
    LowerHalf = 0x0F,
    LongestShort = 0x7F,
};

constexpr std::size_t WordBytes = sizeof(std::uint64_t);

/// Writes the lowest bytes of a word behind its form. All of them are written, the others to be written over.
unsigned char* PackWord(unsigned char form, std::uint64_t word, std::size_t bytes, unsigned char* to)
{
    *to++ = static_cast<unsigned char>(form | bytes);
    for (std::size_t i = 0; i < WordBytes; ++i)
        to[i] = static_cast<unsigned char>(word >> (8 * i));
    return to + bytes;
}

unsigned char* PackWord(unsigned char form, std::uint64_t word, unsigned char* to)
{
    return PackWord(form, word, (static_cast<std::size_t>(std::bit_width(word)) + 7) / 8, to);
}

std::uint64_t Word(const unsigned char* from, std::size_t bytes)
{
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < WordBytes; ++i)
        word |= std::uint64_t{from[i]} << (8 * i);
    return bytes == 0 ? 0 : word & (~std::uint64_t{0} >> (8 * (WordBytes - bytes)));
}

/// Small numbers of either sign become small words.
std::uint64_t WordOf(std::int64_t number)
{
    return (static_cast<std::uint64_t>(number) << 1U) ^ static_cast<std::uint64_t>(number >> 63U);
}

std::int64_t NumberOf(std::uint64_t word)
{
    return static_cast<std::int64_t>((word >> 1U) ^ (0 - (word & 1U)));
}

/// Most reals of a table end in bytes of zero, which are left out.
unsigned char* PackReal(unsigned char form, double real, unsigned char* to)
{
    const auto bits = std::bit_cast<std::uint64_t>(real);
    const std::size_t zeros = static_cast<std::size_t>(std::countr_zero(bits)) / 8;
    return PackWord(form, bits == 0 ? 0 : bits >> (8 * zeros), WordBytes - zeros, to);
}

double Real(const unsigned char* from, std::size_t bytes)
{
    return std::bit_cast<double>(bytes == 0 ? 0 : Word(from, bytes) << (8 * (WordBytes - bytes)));
}

unsigned char* PackText(std::u16string_view text, unsigned char* to)
{
    if (!FitsBytes(text)) {
        to = PackWord(Long, 2 * std::uint64_t{text.size()} + 1, to);
        std::memcpy(to, text.data(), 2 * text.size());
        return to + 2 * text.size();
    }
    if (text.size() <= LongestShort)
        *to++ = static_cast<unsigned char>(Short | text.size());
    else
        to = PackWord(Long, 2 * std::uint64_t{text.size()}, to);
    Narrow(reinterpret_cast<char*>(to), text);
    return to + text.size();
}

/// A text as it is packed.
struct Extent {
    const unsigned char* Begin;
    std::size_t Units;
    bool IsWide;

    [[nodiscard]] const unsigned char* End() const { return Begin + (IsWide ? 2 * Units : Units); }
};

Extent ExtentOf(const unsigned char* packed)
{
    const unsigned char first = *packed++;
    if ((first & Short) != 0)
        return {packed, static_cast<std::size_t>(first & LongestShort), false};
    const std::size_t bytes = first & LowerHalf;
    const std::uint64_t word = Word(packed, bytes);
    return {packed + bytes, static_cast<std::size_t>(word / 2), word % 2 != 0};
}

std::u16string_view Characters(const Extent& extent, std::u16string& buffer)
{
    if (buffer.size() < extent.Units + Block)
        buffer.resize(extent.Units + extent.Units / 2 + Block);
    char16_t* const units = buffer.data();
    if (extent.IsWide)
        std::memcpy(units, extent.Begin, 2 * extent.Units);
    else
        for (std::size_t done = 0; done < extent.Units; done += Block)
            for (std::size_t i = done; i < done + Block; ++i)
                units[i] = extent.Begin[i];
    return {units, extent.Units};
}

} // namespace

std::size_t MostBytes(const Value& value)
{
    return 2 + WordBytes + 2 * value.Characters.size();
}

unsigned char* Pack(const Value& value, unsigned char* to)
{
    switch (value.Type) {
    case Value::Kind::Null: *to = Null; return to + 1;
    case Value::Kind::Boolean: return PackWord(Boolean, value.Boolean ? 1 : 0, to);
    case Value::Kind::Integer: return PackWord(Integer, WordOf(value.Integer), to);
    case Value::Kind::Unsigned: return PackWord(Unsigned, value.Unsigned, to);
    case Value::Kind::Single: return PackReal(Single, value.Real, to);
    case Value::Kind::Double: return PackReal(Double, value.Real, to);
    case Value::Kind::Date: return PackReal(Date, value.Real, to);
    case Value::Kind::Decimal: *to = DecimalAhead; return PackText(value.Characters, to + 1);
    case Value::Kind::Text: break;
    }
    return PackText(value.Characters, to);
}

const unsigned char* Behind(const unsigned char* packed)
{
    if (*packed == DecimalAhead)
        ++packed;
    return *packed < Long ? packed + 1 + (*packed & LowerHalf) : ExtentOf(packed).End();
}

const unsigned char* Unpack(const unsigned char* packed, Value& value, std::u16string& buffer)
{
    const unsigned char first = *packed;
    if (first == DecimalAhead || first >= Long) {
        const Extent extent = ExtentOf(first == DecimalAhead ? packed + 1 : packed);
        const std::u16string_view characters = Characters(extent, buffer);
        value = first == DecimalAhead ? Value::OfDecimal(characters) : Value::OfText(characters);
        return extent.End();
    }
    const std::size_t bytes = first & LowerHalf;
    const unsigned char* const word = packed + 1;
    switch (first & UpperHalf) {
    case Boolean: value = Value::OfBoolean(bytes != 0); break;
    case Integer: value = Value::OfInteger(NumberOf(Word(word, bytes))); break;
    case Unsigned: value = Value::OfUnsigned(Word(word, bytes)); break;
    case Single: value = Value::OfSingle(static_cast<float>(Real(word, bytes))); break;
    case Double: value = Value::OfDouble(Real(word, bytes)); break;
    case Date: value = Value::OfDate(Real(word, bytes)); break;
    default: value = Value::Null();
    }
    return word + bytes;
}

} // namespace Tessellon::Kept
