#include "engine/runtime/NumberText.h"

#include "engine/runtime/ByteUnits.h"
#include "engine/runtime/CaseMap.h"
#include "platform/RunTime.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace Tessellon {

namespace {

constexpr std::int64_t largestExponent = 1'000'000; // Keeps sums of exponents far from the end of 64 bits

class NumberReader {
public:
    explicit NumberReader(std::u16string_view text)
        : rest_(text)
    {
    }

    [[nodiscard]] bool AtEnd() const { return rest_.empty(); }
    [[nodiscard]] std::u16string_view Rest() const { return rest_; }
    void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(u' '), rest_.size())); }
    bool Take(char16_t unit)
    {
        if (rest_.empty() || rest_.front() != unit)
            return false;
        rest_.remove_prefix(1);
        return true;
    }
    bool Take(std::u16string_view text)
    {
        if (text.empty() || !rest_.starts_with(text))
            return false;
        rest_.remove_prefix(text.size());
        return true;
    }
    bool TakeDigit(char& digit)
    {
        if (rest_.empty() || !IsDigit(rest_.front()))
            return false;
        digit = static_cast<char>(rest_.front());
        rest_.remove_prefix(1);
        return true;
    }
    /// A group separator counts only between digits.
    bool TakeGroup(char16_t separator)
    {
        if (rest_.size() < 2 || rest_.front() != separator || !IsDigit(rest_[1]))
            return false;
        rest_.remove_prefix(1);
        return true;
    }

private:
    std::u16string_view rest_;
};

/// Digits, a decimal separator, digits; at least one digit. A group separator of 0 allows no groups.
bool ReadMantissa(NumberReader& reader, char16_t decimal, char16_t group, DecimalDigits& digits)
{
    std::int64_t whole = 0;
    std::int64_t count = 0;
    char digit = '0';
    while (reader.TakeDigit(digit) || (whole > 0 && group != 0 && reader.TakeGroup(group) && reader.TakeDigit(digit))) {
        digits.Push(digit);
        ++whole;
    }
    count = whole;
    if (reader.Take(decimal)) {
        while (reader.TakeDigit(digit)) {
            digits.Push(digit);
            ++count;
        }
    }
    digits.Point = whole;
    return count > 0;
}

bool ReadExponent(NumberReader& reader, DecimalDigits& digits)
{
    if (!reader.Take(u'E') && !reader.Take(u'e'))
        return true;
    const bool negative = reader.Take(u'-');
    if (!negative)
        reader.Take(u'+');
    std::int64_t exponent = 0;
    bool any = false;
    for (char digit = '0'; reader.TakeDigit(digit); any = true)
        exponent = std::min(exponent * 10 + (digit - '0'), largestExponent);
    digits.Point += negative ? -exponent : exponent;
    return any;
}

/// Behind the "&": "HFF", "O17", "HFFFF&".
bool ReadBits(std::u16string_view text, DecimalDigits& digits)
{
    if (text.empty())
        return false;
    const char16_t letter = UpperCase(text.front());
    if (letter != u'H' && letter != u'O')
        return false;
    text.remove_prefix(1);
    const bool wide = text.ends_with(u'&');
    if (wide)
        text.remove_suffix(1);
    if (text.empty())
        return false;
    const std::uint64_t base = letter == u'H' ? 16 : 8;
    std::uint64_t bits = 0;
    for (const char16_t unit : text) {
        const char16_t upper = UpperCase(unit);
        std::uint64_t figure = base;
        if (IsDigit(unit))
            figure = unit - u'0';
        else if (upper >= u'A' && upper <= u'F')
            figure = upper - u'A' + 10U;
        if (figure >= base)
            return false;
        bits = bits * base + figure;
        if (bits > UINT32_MAX)
            return false;
    }
    if (bits <= UINT16_MAX && !wide)
        digits = DecimalDigits::OfInteger(static_cast<std::int16_t>(bits));
    else
        digits = DecimalDigits::OfInteger(static_cast<std::int32_t>(static_cast<std::uint32_t>(bits)));
    return true;
}

/// What may stand on either side of the digits, each once in all: a sign, the currency sign, parentheses.
struct NumberMarks {
    bool Sign = false;
    bool Negative = false;
    bool Currency = false;
    bool Opened = false;
    bool Closed = false;

    bool TakeSign(NumberReader& reader)
    {
        if (Sign || Opened || !(reader.Take(u'+') || (Negative = reader.Take(u'-'))))
            return false;
        return Sign = true;
    }
    bool TakeCurrency(NumberReader& reader, const Locale& locale)
    {
        return !Currency && reader.Take(locale.CurrencySign) && (Currency = true);
    }
    bool TakeOpening(NumberReader& reader) { return !Opened && !Sign && reader.Take(u'(') && (Opened = true); }
    bool TakeClosing(NumberReader& reader) { return Opened && !Closed && reader.Take(u')') && (Closed = true); }
};

void AppendScientific(std::u16string& out, const DecimalDigits& digits, char16_t decimalSeparator)
{
    if (digits.Negative)
        out.push_back(u'-');
    const std::string_view figures = digits.Digits();
    out.push_back(static_cast<char16_t>(figures.front()));
    if (figures.size() > 1) {
        out.push_back(decimalSeparator);
        AppendAscii(out, figures.substr(1));
    }
    const std::int64_t exponent = digits.Point - 1;
    out.append(exponent < 0 ? u"E-" : u"E+");
    const std::int64_t size = std::abs(exponent);
    if (size < 10)
        out.push_back(u'0');
    std::array<char, 24> text;
    AppendAscii(out, {text.data(), std::to_chars(text.data(), text.data() + text.size(), size).ptr});
}

/// What is no finite number has only a word.
bool AppendNotFinite(std::u16string& out, double real)
{
    if (std::isfinite(real))
        return false;
    if (std::isnan(real))
        out.append(u"NaN");
    else
        out.append(real < 0 ? u"-Infinity" : u"Infinity");
    return true;
}

bool AppendWhole(std::u16string& out, double real, double below)
{
    if (!(std::abs(real) < below) || real != std::trunc(real))
        return false;
    std::array<char, 24> text;
    const auto whole = static_cast<std::int64_t>(real);
    AppendAscii(out, {text.data(), std::to_chars(text.data(), text.data() + text.size(), whole).ptr});
    return true;
}

/// The quick way for what most numbers are, those of up to four decimals: the float nearest to such a number is what
/// the division of its ten-thousandths, which are exact, gives.
bool AppendFourDecimals(std::u16string& out, double real, char16_t decimalSeparator)
{
    constexpr double below = 1e11; // So that there are no more than 15 digits
    constexpr std::int64_t parts = 10000;
    if (!(std::abs(real) < below))
        return false;
    const auto all = static_cast<std::int64_t>(real * parts + (real < 0 ? -0.5 : 0.5));
    if (static_cast<double>(all) / parts != real)
        return false;
    std::array<char16_t, 24> text;
    auto start = text.end();
    const std::int64_t size = std::abs(all);
    if (size % parts != 0) {
        for (std::int64_t worth = 1, rest = size % parts; worth < parts; worth *= 10, rest /= 10) {
            if (start != text.end() || rest % 10 != 0)
                *--start = static_cast<char16_t>(u'0' + rest % 10);
        }
        *--start = decimalSeparator;
    }
    std::int64_t whole = size / parts;
    do
        *--start = static_cast<char16_t>(u'0' + whole % 10);
    while ((whole /= 10) > 0);
    if (all < 0)
        *--start = u'-';
    out.append(start, text.end());
    return true;
}

void AppendFloat(std::u16string& out, const DecimalDigits& digits, std::int64_t mostDigits, char16_t decimalSeparator)
{
    constexpr std::int64_t smallestPoint = -3; // 0.0001 is 0.1 times ten to the power of -3
    if (!digits.IsZero() && (digits.Point > mostDigits || digits.Point < smallestPoint))
        AppendScientific(out, digits, decimalSeparator);
    else
        AppendPlain(out, digits, decimalSeparator);
}

} // namespace

bool ReadNumber(std::u16string_view text, const Locale& locale, DecimalDigits& digits)
{
    digits = {};
    NumberReader reader(Trim(text));
    if (reader.Take(u'&'))
        return ReadBits(reader.Rest(), digits);
    NumberMarks marks;
    while (marks.TakeSign(reader) || marks.TakeCurrency(reader, locale) || marks.TakeOpening(reader))
        reader.SkipBlanks();
    if (!ReadMantissa(reader, locale.DecimalSeparator, locale.GroupSeparator, digits) || !ReadExponent(reader, digits))
        return false;
    reader.SkipBlanks();
    while (marks.TakeClosing(reader) || marks.TakeSign(reader) || marks.TakeCurrency(reader, locale))
        reader.SkipBlanks();
    if (!reader.AtEnd() || marks.Opened != marks.Closed)
        return false;
    digits.Negative = marks.Negative || marks.Opened;
    digits.Normalize();
    return digits.FitsDouble();
}

bool ReadPlainNumber(std::u16string_view text, char16_t decimalSeparator, double& number)
{
    constexpr std::array powers{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr std::size_t mostDigits = 15;
    const bool negative = text.starts_with(u'-');
    text.remove_prefix(negative ? 1 : 0);
    if (text.size() > mostDigits + 1)
        return false;
    std::int64_t digits = 0;
    std::size_t count = 0;
    std::size_t whole = mostDigits + 1; // Digits ahead of the separator, once there is one
    for (const char16_t unit : text) {
        if (IsDigit(unit)) {
            digits = digits * 10 + (unit - u'0');
            ++count;
        } else if (unit == decimalSeparator && whole > mostDigits) {
            whole = count;
        } else {
            return false;
        }
    }
    if (count == 0 || count > mostDigits)
        return false;
    // Both are exact, so the quotient is the nearest float.
    number = static_cast<double>(negative ? -digits : digits) / powers[whole > mostDigits ? 0 : count - whole];
    return true;
}

bool ReadDecimal(std::u16string_view text, DecimalDigits& digits)
{
    digits = {};
    NumberReader reader(Trim(text));
    digits.Negative = reader.Take(u'-');
    if (!digits.Negative)
        reader.Take(u'+');
    if (!ReadMantissa(reader, u'.', 0, digits) || !ReadExponent(reader, digits) || !reader.AtEnd())
        return false;
    digits.Normalize();
    return true;
}

void AppendAscii(std::u16string& out, std::string_view text)
{
    // Appending the range of another character type would go by way of a string of its own.
    std::array<char16_t, 32> units;
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), units.size()))) {
        const std::string_view part = text.substr(0, units.size());
        Widen(units.data(), part);
        out.append(units.data(), part.size());
    }
}

void AppendPlain(std::u16string& out, const DecimalDigits& digits, char16_t decimalSeparator)
{
    if (digits.Negative)
        out.push_back(u'-');
    const std::string_view figures = digits.Digits();
    const auto size = static_cast<std::int64_t>(figures.size());
    if (digits.Point <= 0)
        out.push_back(u'0');
    else if (digits.Point >= size)
        AppendAscii(out, figures);
    else
        AppendAscii(out, figures.substr(0, static_cast<std::size_t>(digits.Point)));
    if (digits.Point > size)
        out.append(static_cast<std::size_t>(digits.Point - size), u'0');
    if (digits.Point >= size)
        return;
    out.push_back(decimalSeparator);
    if (digits.Point < 0)
        out.append(static_cast<std::size_t>(-digits.Point), u'0');
    AppendAscii(out, digits.Point > 0 ? figures.substr(static_cast<std::size_t>(digits.Point)) : figures);
}

void AppendDouble(std::u16string& out, double real, char16_t decimalSeparator)
{
    constexpr std::int64_t mostDigits = 15;
    if (AppendFourDecimals(out, real, decimalSeparator) || AppendNotFinite(out, real) || AppendWhole(out, real, 1e15))
        return;
    AppendFloat(out, DecimalDigits::OfDouble(real), mostDigits, decimalSeparator);
}

void AppendSingle(std::u16string& out, double real, char16_t decimalSeparator)
{
    constexpr std::int64_t mostDigits = 7;
    if (AppendNotFinite(out, real) || AppendWhole(out, real, 1e7))
        return;
    AppendFloat(out, DecimalDigits::OfSingle(real), mostDigits, decimalSeparator);
}

} // namespace Tessellon
