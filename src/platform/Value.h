#pragma once

#include <cstdint>
#include <string_view>

namespace Tessellon {

/// One value with the type that its source gave it. It owns nothing: the texts it points to are its source's.
struct Value {
    enum class Kind : std::uint8_t {
        Null,
        Boolean, ///< Boolean
        Integer, ///< Integer
        Unsigned, ///< Unsigned: whole numbers past the signed range
        Single, ///< Real, with the digits of 32 bits
        Double, ///< Real
        Decimal, ///< Characters: sign, digits, point; of any length
        Date, ///< Real: a date serial
        Text, ///< Characters
    };

    Kind Type = Kind::Null;
    union {
        bool Boolean;
        std::int64_t Integer = 0;
        std::uint64_t Unsigned;
        double Real;
    };
    std::u16string_view Characters;

    static Value Null() { return {}; }
    static Value OfBoolean(bool boolean)
    {
        Value value;
        value.Type = Kind::Boolean;
        value.Boolean = boolean;
        return value;
    }
    static Value OfInteger(std::int64_t integer)
    {
        Value value;
        value.Type = Kind::Integer;
        value.Integer = integer;
        return value;
    }
    static Value OfUnsigned(std::uint64_t number)
    {
        Value value;
        value.Type = Kind::Unsigned;
        value.Unsigned = number;
        return value;
    }
    static Value OfSingle(float real) { return OfReal(Kind::Single, real); }
    static Value OfDouble(double real) { return OfReal(Kind::Double, real); }
    static Value OfDate(double serial) { return OfReal(Kind::Date, serial); }
    static Value OfDecimal(std::u16string_view digits) { return OfCharacters(Kind::Decimal, digits); }
    static Value OfText(std::u16string_view text) { return OfCharacters(Kind::Text, text); }

    [[nodiscard]] bool IsNull() const { return Type == Kind::Null; }

private:
    static Value OfReal(Kind kind, double real)
    {
        Value value;
        value.Type = kind;
        value.Real = real;
        return value;
    }
    static Value OfCharacters(Kind kind, std::u16string_view characters)
    {
        Value value;
        value.Type = kind;
        value.Characters = characters;
        return value;
    }
};

} // namespace Tessellon
