#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Tessellon {

/// A number as its decimal digits, of any length: 0.d1d2d3... times ten to the power of `Point`. Without leading or
/// trailing zeros; zero has no digits and no sign. Up to 40 digits take no memory beyond the object.
class DecimalDigits {
public:
    static DecimalDigits OfInteger(std::int64_t integer);
    static DecimalDigits OfUnsigned(std::uint64_t number, bool negative = false);
    static DecimalDigits OfDouble(double real); ///< 15 significant digits. Only finite numbers.
    static DecimalDigits OfSingle(double real); ///< 7 significant digits. Only finite numbers.

    [[nodiscard]] bool IsZero() const { return size_ == 0; }
    [[nodiscard]] std::string_view Digits() const;
    /// The digit that counts 10 to the power of `position`; '0' where none is kept.
    [[nodiscard]] char DigitAt(std::int64_t position) const;
    /// Not within the range of a 64-bit float: failure 6. What is too small for it is zero.
    [[nodiscard]] double ToDouble() const;
    [[nodiscard]] bool FitsDouble() const;

    /// Adds a digit behind the others. Behind the last one `Normalize` must be called.
    void Push(char digit);
    void Normalize();
    /// Rounds to so many decimals, halves away from zero.
    void Round(std::int64_t decimals);

    bool Negative = false;
    std::int64_t Point = 0;

private:
    static DecimalDigits OfScientific(std::string_view text);
    void Shorten(std::size_t size);
    [[nodiscard]] char* Data() { return size_ > near_.size() ? far_.data() : near_.data(); }
    [[nodiscard]] bool Read(double& number) const;

    std::array<char, 40> near_;
    std::string far_;
    std::size_t size_ = 0;
};

} // namespace Tessellon
