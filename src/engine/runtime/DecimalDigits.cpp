#include "engine/runtime/DecimalDigits.h"

#include "engine/Failures.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace Tessellon {

namespace {

constexpr std::int64_t largestPoint = 400; // Well beyond the exponents of a 64-bit float, on either side

} // namespace

DecimalDigits DecimalDigits::OfInteger(std::int64_t integer)
{
    const auto bits = static_cast<std::uint64_t>(integer);
    return integer < 0 ? OfUnsigned(0 - bits, true) : OfUnsigned(bits);
}

DecimalDigits DecimalDigits::OfUnsigned(std::uint64_t number, bool negative)
{
    DecimalDigits digits;
    digits.Negative = negative;
    char* const end = std::to_chars(digits.near_.data(), digits.near_.data() + digits.near_.size(), number).ptr;
    digits.size_ = static_cast<std::size_t>(end - digits.near_.data());
    digits.Point = static_cast<std::int64_t>(digits.size_);
    digits.Normalize();
    return digits;
}

DecimalDigits DecimalDigits::OfDouble(double real)
{
    std::array<char, 40> text;
    char* end = std::to_chars(text.data(), text.data() + text.size(), real, std::chars_format::scientific).ptr;
    // The shortest text is quick. With 16 digits it has at least 21 units, as point and exponent take five. Up to 15
    // it is what rounding gives, but for numbers so small that they have fewer digits.
    constexpr std::ptrdiff_t fifteenDigits = 15 + 5;
    const bool subnormal = std::abs(real) < std::numeric_limits<double>::min();
    if (subnormal || end - text.data() > fifteenDigits)
        end = std::to_chars(text.data(), text.data() + text.size(), real, std::chars_format::scientific, 14).ptr;
    return OfScientific({text.data(), static_cast<std::size_t>(end - text.data())});
}

DecimalDigits DecimalDigits::OfSingle(double real)
{
    std::array<char, 40> text;
    char* const end = std::to_chars(text.data(), text.data() + text.size(), real, std::chars_format::scientific, 6).ptr;
    return OfScientific({text.data(), static_cast<std::size_t>(end - text.data())});
}

DecimalDigits DecimalDigits::OfScientific(std::string_view text)
{
    DecimalDigits digits;
    const std::size_t mark = text.find('e');
    for (const char unit : text.substr(0, mark)) {
        if (unit == '-')
            digits.Negative = true;
        else if (unit != '.')
            digits.Push(unit);
    }
    std::string_view exponent = text.substr(mark + 1);
    if (exponent.front() == '+')
        exponent.remove_prefix(1);
    int power = 0;
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
    digits.Point = power + 1;
    digits.Normalize();
    return digits;
}

std::string_view DecimalDigits::Digits() const
{
    return size_ > near_.size() ? std::string_view(far_) : std::string_view(near_.data(), size_);
}

char DecimalDigits::DigitAt(std::int64_t position) const
{
    const std::int64_t index = Point - 1 - position;
    if (index < 0 || index >= static_cast<std::int64_t>(size_))
        return '0';
    return Digits()[static_cast<std::size_t>(index)];
}

bool DecimalDigits::Read(double& number) const
{
    number = 0.0;
    if (IsZero() || Point < -largestPoint)
        return true;
    if (Point > largestPoint)
        return false;
    // "0.digitsE+-ddd"
    std::array<char, 64> near;
    std::string far;
    char* start = near.data();
    if (size_ + 8 > near.size()) {
        far.resize(size_ + 8);
        start = far.data();
    }
    char* end = start;
    if (Negative)
        *end++ = '-';
    *end++ = '.';
    end = std::ranges::copy(Digits(), end).out;
    *end++ = 'e';
    end = std::to_chars(end, end + 5, static_cast<int>(Point)).ptr;
    const std::errc error = std::from_chars(start, end, number).ec;
    if (error == std::errc())
        return true;
    number = 0.0;
    return Point < 0;
}

double DecimalDigits::ToDouble() const
{
    double number = 0.0;
    if (!Read(number))
        Fail(6, u"TessellonSheet");
    return number;
}

bool DecimalDigits::FitsDouble() const
{
    constexpr std::int64_t surelyFits = 308; // Below 1E308
    double number = 0.0;
    return Point <= surelyFits || Read(number);
}

void DecimalDigits::Push(char digit)
{
    if (size_ < near_.size()) {
        near_[size_++] = digit;
        return;
    }
    if (size_ == near_.size())
        far_.assign(near_.data(), size_);
    far_.push_back(digit);
    ++size_;
}

void DecimalDigits::Shorten(std::size_t size)
{
    if (size_ > near_.size()) {
        far_.resize(size);
        if (size <= near_.size())
            std::ranges::copy(far_, near_.begin());
    }
    size_ = size;
}

void DecimalDigits::Normalize()
{
    std::string_view digits = Digits();
    const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
    if (zeros > 0) {
        char* const data = Data();
        std::copy(data + zeros, data + size_, data);
        Shorten(size_ - zeros);
        Point -= static_cast<std::int64_t>(zeros);
        digits = Digits();
    }
    Shorten(digits.find_last_not_of('0') + 1);
    if (IsZero()) {
        Negative = false;
        Point = 0;
    }
}

void DecimalDigits::Round(std::int64_t decimals)
{
    const std::int64_t keep = Point + decimals;
    if (keep >= static_cast<std::int64_t>(size_))
        return;
    if (keep < 0) {
        Shorten(0);
        Normalize();
        return;
    }
    const auto kept = static_cast<std::size_t>(keep);
    const bool up = Digits()[kept] >= '5';
    Shorten(kept);
    if (up) {
        std::size_t i = kept;
        char* const data = Data();
        while (i > 0 && data[i - 1] == '9')
            --i;
        Shorten(i);
        if (i > 0) {
            ++Data()[i - 1];
        } else {
            Push('1');
            ++Point;
        }
    }
    Normalize();
}

} // namespace Tessellon
