#include "engine/runtime/NumberFormat.h"

#include "engine/runtime/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace Tessellon {

namespace {

bool IsPlace(char16_t unit)
{
    return unit == u'0' || unit == u'#';
}

/// What stands behind an E makes it an exponent's: a sign and a place.
bool BeginsExponent(FormatSign sign, std::u16string_view rest)
{
    return !sign.Literal && (sign.Unit == u'E' || sign.Unit == u'e') && rest.size() >= 2 &&
           (rest[0] == u'+' || rest[0] == u'-') && IsPlace(rest[1]);
}

/// The plan of one section: how many places of which kind it has.
struct NumberPlan {
    std::int64_t WholePlaces = 0;
    std::int64_t WholeFigures = 0; ///< Figures ahead of the point that are always shown.
    std::int64_t Decimals = 0;
    std::int64_t DecimalFigures = 0; ///< Decimals that are always shown.
    std::int64_t Power = 0; ///< By which power of ten the number is multiplied.
    std::int64_t ExponentFigures = 0;
    bool Groups = false;
    bool Exponent = false;
    bool Point = false;

    explicit NumberPlan(std::u16string_view section);

private:
    void AddPlace(bool zero);

    std::int64_t commas_ = 0; // Ahead of the point and behind the last place
    bool zeroSeen_ = false;
};

NumberPlan::NumberPlan(std::u16string_view section)
{
    FormatScanner scanner(section);
    for (FormatSign sign; scanner.Next(sign);) {
        if (sign.Literal)
            continue;
        if (IsPlace(sign.Unit)) {
            AddPlace(sign.Unit == u'0');
        } else if (sign.Unit == u',' && !Point && !Exponent && WholePlaces > 0) {
            ++commas_;
        } else if (sign.Unit == u'.' && !Exponent) {
            Point = true;
        } else if (sign.Unit == u'%') {
            Power += 2;
        } else if (!Exponent && WholePlaces + Decimals > 0 && BeginsExponent(sign, scanner.Rest())) {
            Exponent = true;
        }
    }
    Power -= 3 * commas_;
}

void NumberPlan::AddPlace(bool zero)
{
    if (Exponent) {
        ExponentFigures += zero ? 1 : 0;
    } else if (Point) {
        ++Decimals;
        if (zero)
            DecimalFigures = Decimals;
    } else {
        Groups = Groups || commas_ > 0;
        commas_ = 0;
        ++WholePlaces;
        zeroSeen_ = zeroSeen_ || zero;
        WholeFigures += zeroSeen_ ? 1 : 0;
    }
}

/// Brings a number into the shape of a section: scaled, rounded, the exponent parted from it. A section without
/// places shows no number and rounds none.
std::int64_t Shape(DecimalDigits& number, const NumberPlan& plan)
{
    std::int64_t exponent = 0;
    if (plan.WholePlaces + plan.Decimals == 0)
        return exponent;
    if (!number.IsZero()) {
        number.Point += plan.Power;
        if (plan.Exponent) {
            exponent = number.Point - plan.WholePlaces;
            number.Point = plan.WholePlaces;
        }
    }
    number.Round(plan.Decimals);
    if (plan.Exponent && number.Point > plan.WholePlaces) {
        ++exponent;
        --number.Point;
    }
    return exponent;
}

class NumberWriter {
public:
    NumberWriter(std::u16string& out, const Locale& locale, const DecimalDigits& number, const NumberPlan& plan,
                 std::int64_t exponent)
        : out_(out)
        , locale_(locale)
        , number_(number)
        , plan_(plan)
        , exponent_(exponent)
        , figures_(std::max<std::int64_t>(number.IsZero() ? 0 : number.Point, plan.WholeFigures))
        , place_(plan.WholePlaces)
    {
    }

    void Write(std::u16string_view section)
    {
        FormatScanner scanner(section);
        for (FormatSign sign; scanner.Next(sign);) {
            if (placeSeen_ && !exponentWritten_ && BeginsExponent(sign, scanner.Rest())) {
                const FormatSign letter = sign;
                scanner.Next(sign);
                WriteExponent(letter.Unit, sign.Unit == u'+');
            } else if (sign.Literal) {
                out_.push_back(sign.Unit);
            } else {
                WriteSign(sign.Unit);
            }
        }
    }

private:
    void WriteSign(char16_t unit)
    {
        switch (unit) {
        case u'0':
        case u'#':
            placeSeen_ = true;
            if (!exponentWritten_)
                pointWritten_ ? WriteDecimal() : WriteWholePlace();
            break;
        case u'.':
            if (!pointWritten_ && !exponentWritten_)
                WriteWholeFigures(0);
            pointWritten_ = true;
            out_.push_back(locale_.DecimalSeparator);
            break;
        case u',': break;
        case u'/': out_.push_back(locale_.DateSeparator); break;
        case u':': out_.push_back(locale_.TimeSeparator); break;
        default: out_.push_back(unit); break;
        }
    }

    void WriteWholePlace()
    {
        --place_;
        WriteWholeFigures(place_);
    }

    /// Writes the figures down to a position. The first place takes all that have no place of their own.
    void WriteWholeFigures(std::int64_t position)
    {
        if (!started_)
            next_ = figures_ - 1;
        started_ = true;
        for (; next_ >= position; --next_) {
            out_.push_back(static_cast<char16_t>(number_.DigitAt(next_)));
            if (plan_.Groups && next_ > 0 && next_ % 3 == 0)
                out_.push_back(locale_.GroupSeparator);
        }
    }

    void WriteDecimal()
    {
        ++decimal_;
        const auto kept = static_cast<std::int64_t>(number_.Digits().size()) - number_.Point;
        if (decimal_ <= plan_.DecimalFigures || decimal_ <= kept)
            out_.push_back(static_cast<char16_t>(number_.DigitAt(-decimal_)));
    }

    void WriteExponent(char16_t letter, bool plus)
    {
        exponentWritten_ = true;
        out_.push_back(letter);
        if (exponent_ < 0)
            out_.push_back(u'-');
        else if (plus)
            out_.push_back(u'+');
        std::array<char, 24> text;
        const std::int64_t size = exponent_ < 0 ? -exponent_ : exponent_;
        char* const end = std::to_chars(text.data(), text.data() + text.size(), size).ptr;
        for (std::int64_t figures = end - text.data(); figures < plan_.ExponentFigures; ++figures)
            out_.push_back(u'0');
        AppendAscii(out_, {text.data(), end});
    }

    std::u16string& out_;
    const Locale& locale_;
    const DecimalDigits& number_;
    const NumberPlan& plan_;
    std::int64_t exponent_;
    std::int64_t figures_; // Ahead of the point
    std::int64_t place_; // Ahead of the point, the last one is 0
    std::int64_t next_ = 0; // The power of ten of the figure to be written next
    std::int64_t decimal_ = 0;
    bool started_ = false;
    bool placeSeen_ = false;
    bool pointWritten_ = false;
    bool exponentWritten_ = false;
};

/// Writes the number by one section; with a minus in front where the section does not say by itself that it is for
/// negative numbers. False, with nothing written, if the section is for these and rounds the number to zero.
bool AppendSection(std::u16string& out, DecimalDigits number, std::u16string_view section, bool forNegative,
                   const Locale& locale)
{
    const NumberPlan plan(section);
    const std::int64_t exponent = Shape(number, plan);
    if (forNegative && number.IsZero())
        return false;
    if (number.Negative && !forNegative)
        out.push_back(u'-');
    NumberWriter(out, locale, number, plan, exponent).Write(section);
    return true;
}

void AppendCurrency(std::u16string& out, DecimalDigits number, const Locale& locale)
{
    number.Round(2);
    if (number.Negative)
        out.push_back(u'-');
    number.Negative = false;
    if (locale.CurrencyInFront)
        out.append(locale.CurrencySign);
    AppendNumber(out, number, u"#,##0.00", locale);
    if (!locale.CurrencyInFront)
        out.append(1, u' ').append(locale.CurrencySign);
}

} // namespace

void AppendNumber(std::u16string& out, const DecimalDigits& number, std::u16string_view format, const Locale& locale)
{
    const FormatSections sections = SectionsOf(format);
    if (number.IsZero() && sections.Count > 2 && !sections.Texts[2].empty()) {
        AppendSection(out, number, sections.Texts[2], false, locale);
        return;
    }
    if (number.Negative && sections.Count > 1 && !sections.Texts[1].empty() &&
        AppendSection(out, number, sections.Texts[1], true, locale))
        return;
    AppendSection(out, number, sections.Texts[0], false, locale);
}

void AppendNamedNumber(std::u16string& out, const DecimalDigits& number, NamedFormat format, const Locale& locale)
{
    switch (format) {
    case NamedFormat::Currency: AppendCurrency(out, number, locale); break;
    case NamedFormat::Fixed: AppendNumber(out, number, u"0.00", locale); break;
    case NamedFormat::Standard: AppendNumber(out, number, u"#,##0.00", locale); break;
    case NamedFormat::Percent: AppendNumber(out, number, u"0.00%", locale); break;
    case NamedFormat::Scientific: AppendNumber(out, number, u"0.00E+00", locale); break;
    case NamedFormat::YesNo: out.append(number.IsZero() ? u"No" : u"Yes"); break;
    case NamedFormat::TrueFalse: out.append(number.IsZero() ? u"False" : u"True"); break;
    case NamedFormat::OnOff: out.append(number.IsZero() ? u"Off" : u"On"); break;
    default: AppendPlain(out, number, locale.DecimalSeparator); break;
    }
}

void AppendMissing(std::u16string& out, std::u16string_view format, const Locale& locale)
{
    const FormatSections sections = SectionsOf(format);
    if (sections.Count == sections.Texts.size())
        AppendSection(out, {}, sections.Texts[3], false, locale);
}

} // namespace Tessellon
