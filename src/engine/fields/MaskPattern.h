#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Tessellon {

struct Locale;

/// The language of input masks, read into positions: each is a literal or a place that takes certain characters.
/// `#` and `9` take a digit or a blank, `A` and `a` a letter or a digit, `?` a letter, `C` any character, `&` any
/// printable one. Behind `>` places turn to upper case, behind `<` to lower. `\` makes the next character a literal;
/// `.` `,` `:` `/` are the locale's separators as literals, all else is itself a literal. A position is a UTF-16 unit.
class MaskPattern {
public:
    /// Nothing for a mask that cannot be read: one that ends in a lone `\`.
    static std::optional<MaskPattern> Read(std::u16string_view mask, const Locale& locale);

    [[nodiscard]] std::size_t Size() const { return positions_.size(); }
    [[nodiscard]] bool IsLiteral(std::size_t position) const { return positions_[position].Takes == Class::Literal; }
    /// The literal that stands at a position that is one.
    [[nodiscard]] char16_t Literal(std::size_t position) const { return positions_[position].Literal; }
    /// The first place at the position or behind it; Size() where there is none.
    [[nodiscard]] std::size_t PlaceFrom(std::size_t position) const;
    /// What the place holds when the character is put there: in the place's case. Nothing where it does not fit, on
    /// a literal, and past the end.
    [[nodiscard]] std::optional<char16_t> Fit(std::size_t position, char16_t character) const;

private:
    enum class Class : std::uint8_t { Literal, DigitOrBlank, LetterOrDigit, Letter, Any, Printable };
    enum class Case : std::uint8_t { Kept, Upper, Lower };
    struct Position {
        Class Takes;
        Case Turns;
        char16_t Literal;
    };

    [[nodiscard]] static bool Takes(Class place, char16_t character);

    std::vector<Position> positions_;
};

} // namespace Tessellon
