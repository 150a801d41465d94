#include "engine/runtime/RunTimeFunctions.h"

#include "engine/Failures.h"
#include "engine/runtime/Calendar.h"
#include "engine/runtime/DateText.h"
#include "engine/runtime/FormatSigns.h"
#include "engine/runtime/MaskFormat.h"
#include "engine/runtime/NumberFormat.h"
#include "engine/runtime/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ctime>
#include <utility>

namespace Tessellon {

namespace {

double LocalTime()
{
    const std::time_t moment = std::time(nullptr);
    const std::tm* const local = std::localtime(&moment);
    if (local == nullptr)
        return 0.0;
    return SerialOf({local->tm_year + 1900, local->tm_mon + 1, local->tm_mday, local->tm_hour, local->tm_min,
                     std::min(local->tm_sec, 59)});
}

template <typename Whole>
void AppendInteger(std::u16string& out, Whole number)
{
    std::array<char, 24> text;
    char* const end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    AppendAscii(out, {text.data(), end});
}

/// False for what has no digits: a float that is not finite, a decimal that cannot be read.
bool DigitsOf(const Value& value, DecimalDigits& digits)
{
    switch (value.Type) {
    case Value::Kind::Boolean: digits = DecimalDigits::OfInteger(value.Boolean ? -1 : 0); return true;
    case Value::Kind::Integer: digits = DecimalDigits::OfInteger(value.Integer); return true;
    case Value::Kind::Unsigned: digits = DecimalDigits::OfUnsigned(value.Unsigned); return true;
    case Value::Kind::Decimal: return ReadDecimal(value.Characters, digits);
    case Value::Kind::Single:
    case Value::Kind::Double:
    case Value::Kind::Date:
        if (!std::isfinite(value.Real))
            return false;
        digits = value.Type == Value::Kind::Single ? DecimalDigits::OfSingle(value.Real)
                                                   : DecimalDigits::OfDouble(value.Real);
        return true;
    default: return false;
    }
}

/// The serial that a number is as a date; past all years where it is past the range of floats.
double SerialOfNumber(const DecimalDigits& digits)
{
    return digits.FitsDouble() ? digits.ToDouble() : HUGE_VAL;
}

} // namespace

RunTimeFunctions::RunTimeFunctions(Locale locale)
    : locale_(std::move(locale))
    , ordering_({}, locale_)
    , now_(LocalTime)
{
}

std::u16string RunTimeFunctions::Format(const Value& value, std::u16string_view format) const
{
    std::u16string out;
    FormatTo(out, value, format);
    return out;
}

void RunTimeFunctions::FormatTo(std::u16string& out, const Value& value, std::u16string_view format) const
{
    if (value.IsNull())
        FormatMissing(out, format);
    else if (format.empty())
        GeneralTextTo(out, value);
    else if (value.Type == Value::Kind::Text)
        FormatText(out, value.Characters, format);
    else
        FormatNumber(out, value, format);
}

void RunTimeFunctions::FormatMissing(std::u16string& out, std::u16string_view format) const
{
    const FormatTraits traits = TraitsOf(format);
    if (traits.TextPlace) {
        const FormatSections sections = SectionsOf(format);
        if (sections.Count > 1)
            AppendMasked(out, {}, sections.Texts[1], locale_);
    } else if (traits.HasNumberSigns() && !traits.IsMask()) {
        AppendMissing(out, format, locale_);
    }
}

void RunTimeFunctions::FormatNumber(std::u16string& out, const Value& value, std::u16string_view format) const
{
    const bool date = value.Type == Value::Kind::Date;
    if (date) {
        if (const DatePattern& pattern = PatternOf(format); pattern.HasDateSigns()) {
            pattern.Append(out, value.Real, locale_);
            return;
        }
    }
    const NamedFormat named = NamedFormatOf(format);
    if (date && IsNamedDate(named)) {
        AppendNamedDate(out, value.Real, named, locale_);
        return;
    }
    const FormatTraits traits = named == NamedFormat::None ? TraitsOf(format) : FormatTraits();
    DecimalDigits digits;
    const bool general = named == NamedFormat::GeneralNumber && value.Type != Value::Kind::Boolean;
    if (!DigitsOf(value, digits) || general) {
        GeneralTextTo(out, date ? Value::OfDouble(value.Real) : value);
    } else if (IsNamedDate(named)) {
        AppendNamedDate(out, SerialOfNumber(digits), named, locale_);
    } else if (named != NamedFormat::None) {
        AppendNamedNumber(out, digits, named, locale_);
    } else if (traits.IsDate()) {
        PatternOf(format).Append(out, SerialOfNumber(digits), locale_);
    } else if (traits.IsMask()) {
        std::u16string text;
        GeneralTextTo(text, value);
        AppendMasked(out, text, SectionsOf(format).Texts[0], locale_);
    } else {
        AppendNumber(out, digits, format, locale_);
    }
}

const DatePattern& RunTimeFunctions::PatternOf(std::u16string_view format) const
{
    // The standard library compares texts of 16 bits unit by unit.
    const auto isFormat = [format](std::u16string_view other) {
        return std::equal(format.begin(), format.end(), other.begin(), other.end());
    };
    if (!pattern_ || !isFormat(pattern_->Format()))
        pattern_.emplace(format);
    return *pattern_;
}

void RunTimeFunctions::FormatText(std::u16string& out, std::u16string_view text, std::u16string_view format) const
{
    const NamedFormat named = NamedFormatOf(format);
    const FormatTraits traits = named == NamedFormat::None ? TraitsOf(format) : FormatTraits();
    if (text.empty()) {
        if (traits.TextPlace) {
            const FormatSections sections = SectionsOf(format);
            AppendMasked(out, text, sections.Texts[sections.Count > 1 ? 1 : 0], locale_);
        }
        return;
    }
    if (named == NamedFormat::None && IsBlank(text)) {
        AppendMasked(out, text, format, locale_);
        return;
    }
    const bool asDate = IsNamedDate(named) || traits.IsDate();
    double serial = 0.0;
    DecimalDigits digits;
    bool numeric = false;
    bool isDate = asDate && ReadDateText(text, serial);
    if (!isDate)
        numeric = ReadNumber(text, locale_, digits);
    if (asDate && numeric) {
        serial = SerialOfNumber(digits);
        isDate = true;
    }
    if (isDate && named != NamedFormat::None)
        AppendNamedDate(out, serial, named, locale_);
    else if (isDate)
        PatternOf(format).Append(out, serial, locale_);
    else if (named != NamedFormat::None && numeric)
        AppendNamedNumber(out, digits, named, locale_);
    else if (numeric && traits.HasNumberSigns() && !traits.IsMask())
        AppendNumber(out, digits, format, locale_);
    else if (named != NamedFormat::None || (!numeric && traits.Zero))
        out.append(text);
    else
        AppendMasked(out, text, SectionsOf(format).Texts[0], locale_);
}

std::u16string RunTimeFunctions::GeneralText(const Value& value) const
{
    std::u16string out;
    GeneralTextTo(out, value);
    return out;
}

void RunTimeFunctions::GeneralTextTo(std::u16string& out, const Value& value) const
{
    switch (value.Type) {
    case Value::Kind::Null: break;
    case Value::Kind::Boolean: out.append(value.Boolean ? u"True" : u"False"); break;
    case Value::Kind::Integer: AppendInteger(out, value.Integer); break;
    case Value::Kind::Unsigned: AppendInteger(out, value.Unsigned); break;
    case Value::Kind::Single: AppendSingle(out, value.Real, locale_.DecimalSeparator); break;
    case Value::Kind::Double: AppendDouble(out, value.Real, locale_.DecimalSeparator); break;
    case Value::Kind::Date: AppendGeneralDate(out, value.Real, locale_); break;
    case Value::Kind::Text: out.append(value.Characters); break;
    case Value::Kind::Decimal: {
        DecimalDigits digits;
        if (ReadDecimal(value.Characters, digits))
            AppendPlain(out, digits, locale_.DecimalSeparator);
        else
            out.append(value.Characters);
        break;
    }
    }
}

bool RunTimeFunctions::IsNumeric(std::u16string_view text) const
{
    double number = 0.0;
    if (ReadPlainNumber(text, locale_.DecimalSeparator, number))
        return true;
    DecimalDigits digits;
    return ReadNumber(text, locale_, digits);
}

double RunTimeFunctions::ToNumber(std::u16string_view text) const
{
    double number = 0.0;
    if (ReadPlainNumber(text, locale_.DecimalSeparator, number))
        return number;
    DecimalDigits digits;
    if (!ReadNumber(text, locale_, digits))
        Fail(13, u"TessellonSheet");
    return digits.ToDouble();
}

bool RunTimeFunctions::ReadDateText(std::u16string_view text, double& serial) const
{
    return ReadDate(text, locale_, ordering_, now_, serial);
}

bool RunTimeFunctions::IsDate(std::u16string_view text) const
{
    double serial = 0.0;
    return ReadDateText(text, serial);
}

double RunTimeFunctions::ToDate(std::u16string_view text) const
{
    double serial = 0.0;
    if (!ReadDateText(text, serial))
        Fail(13, u"TessellonSheet");
    return serial;
}

double RunTimeFunctions::DateDifferenceInSeconds(double from, double to)
{
    return static_cast<double>(WholeSeconds(to) - WholeSeconds(from));
}

double RunTimeFunctions::Today() const
{
    return std::trunc(now_());
}

std::u16string_view RunTimeFunctions::FailureText(std::int32_t number)
{
    return Tessellon::FailureText(number);
}

} // namespace Tessellon
