#include "Literals.h"

#include "ScriptError.h"
#include "engine/journal/ValueText.h"
#include "engine/runtime/Calendar.h"
#include "engine/runtime/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace Tessellon::Replay {

namespace {

using NamedNumber = std::pair<std::u16string_view, std::int64_t>;

/// The constants of all public enumerations.
constexpr std::array constants{
    NamedNumber{u"fcNil", fcNil},
    NamedNumber{u"fcTextBox", fcTextBox},
    NamedNumber{u"fcCheckBox", fcCheckBox},
    NamedNumber{u"fcComboBox", fcComboBox},
    NamedNumber{u"fcListBox", fcListBox},
    NamedNumber{u"fcDatePicker", fcDatePicker},
    NamedNumber{u"fcMaskedEditBox", fcMaskedEditBox},
    NamedNumber{u"fcRichTextBox", fcRichTextBox},
    NamedNumber{u"fcCommandButton", fcCommandButton},
    NamedNumber{u"fcLeft", fcLeft},
    NamedNumber{u"fcCenter", fcCenter},
    NamedNumber{u"fcRight", fcRight},
    NamedNumber{u"faNil", faNil},
    NamedNumber{u"faHeader", faHeader},
    NamedNumber{u"faContent", faContent},
    NamedNumber{u"mtString", mtString},
    NamedNumber{u"mtNumeric", mtNumeric},
    NamedNumber{u"mtDate", mtDate},
    NamedNumber{u"ptNone", ptNone},
    NamedNumber{u"ptArrow", ptArrow},
    NamedNumber{u"Black", Black},
    NamedNumber{u"Red", Red},
    NamedNumber{u"Green", Green},
    NamedNumber{u"Yellow", Yellow},
    NamedNumber{u"Blue", Blue},
    NamedNumber{u"Magenta", Magenta},
    NamedNumber{u"Cyan", Cyan},
    NamedNumber{u"White", White},
    NamedNumber{u"ScrollBars", ScrollBars},
    NamedNumber{u"Desktop", Desktop},
    NamedNumber{u"ActiveTitleBar", ActiveTitleBar},
    NamedNumber{u"InactiveTitleBar", InactiveTitleBar},
    NamedNumber{u"MenuBar", MenuBar},
    NamedNumber{u"WindowBackground", WindowBackground},
    NamedNumber{u"WindowFrame", WindowFrame},
    NamedNumber{u"MenuText", MenuText},
    NamedNumber{u"WindowText", WindowText},
    NamedNumber{u"TitleBarText", TitleBarText},
    NamedNumber{u"ActiveBorder", ActiveBorder},
    NamedNumber{u"InactiveBorder", InactiveBorder},
    NamedNumber{u"ApplicationWorkspace", ApplicationWorkspace},
    NamedNumber{u"HighLight", HighLight},
    NamedNumber{u"HighlightText", HighlightText},
    NamedNumber{u"ButtonFace", ButtonFace},
    NamedNumber{u"ButtonShadow", ButtonShadow},
    NamedNumber{u"GrayText", GrayText},
    NamedNumber{u"ButtonText", ButtonText},
    NamedNumber{u"InactiveCaptionText", InactiveCaptionText},
    NamedNumber{u"ThreeDHighlight", ThreeDHighlight},
    NamedNumber{u"ThreeDDKShadow", ThreeDDKShadow},
    NamedNumber{u"ThreeDLight", ThreeDLight},
    NamedNumber{u"ThreeDFace", ThreeDFace},
    NamedNumber{u"ThreeDShadow", ThreeDShadow},
    NamedNumber{u"InfoText", InfoText},
    NamedNumber{u"InfoBackground", InfoBackground},
};

template <class Table>
auto Find(const Table& table, std::u16string_view name)
{
    return std::find_if(table.begin(), table.end(), [&](const auto& entry) { return entry.first == name; });
}

[[noreturn]] void Refuse(const Word& word, const char* wanted)
{
    throw ScriptError(Shown(word) + " is not " + wanted);
}

bool IsDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

/// Up to eight hexadecimal figures are a signed number of 32 bits.
std::optional<DecimalDigits> ReadHexadecimal(std::u16string_view figures)
{
    constexpr std::size_t mostFigures = 8;
    if (figures.empty() || figures.size() > mostFigures)
        return std::nullopt;
    std::uint32_t bits = 0;
    for (const char16_t unit : figures) {
        std::uint32_t figure = 0;
        if (IsDigit(unit))
            figure = unit - u'0';
        else if (unit >= u'A' && unit <= u'F')
            figure = unit - u'A' + 10U;
        else if (unit >= u'a' && unit <= u'f')
            figure = unit - u'a' + 10U;
        else
            return std::nullopt;
        bits = bits * 16 + figure;
    }
    return DecimalDigits::OfInteger(static_cast<std::int32_t>(bits));
}

template <class Whole>
std::optional<Whole> ReadWhole(const Word& word)
{
    const std::optional<DecimalDigits> digits = ReadNumber(word);
    if (!digits)
        return std::nullopt;
    using Limits = std::numeric_limits<Whole>;
    const std::optional<std::int64_t> whole = WholeNumber(*digits, Limits::min(), Limits::max());
    return whole ? std::optional(static_cast<Whole>(*whole)) : std::nullopt;
}

template <class Value>
Value Needed(const std::optional<Value>& value, const Word& word, const char* wanted)
{
    if (!value)
        Refuse(word, wanted);
    return *value;
}

/// Takes exactly so many figures from the front.
std::optional<int> TakeFigures(std::u16string_view& text, std::size_t count)
{
    if (text.size() < count)
        return std::nullopt;
    int number = 0;
    for (const char16_t unit : text.substr(0, count)) {
        if (!IsDigit(unit))
            return std::nullopt;
        number = number * 10 + (unit - u'0');
    }
    text.remove_prefix(count);
    return number;
}

/// Takes figures behind a sign that must stand there.
std::optional<int> TakeFigures(std::u16string_view& text, char16_t sign, std::size_t count)
{
    if (text.empty() || text.front() != sign)
        return std::nullopt;
    text.remove_prefix(1);
    return TakeFigures(text, count);
}

struct NamedKey {
    std::u16string_view Name;
    std::int16_t Code;
    std::u16string_view Characters;
};

constexpr std::array keys{
    NamedKey{u"Enter", 13, u"\r"}, NamedKey{u"Esc", 27, u"\x1B"},  NamedKey{u"Tab", 9, u"\t"},
    NamedKey{u"Space", 32, u" "},  NamedKey{u"Back", 8, u"\b"},    NamedKey{u"Left", 37, u""},
    NamedKey{u"Up", 38, u""},      NamedKey{u"Right", 39, u""},    NamedKey{u"Down", 40, u""},
    NamedKey{u"Delete", 46, u""},  NamedKey{u"Home", 36, u""},     NamedKey{u"End", 35, u""},
    NamedKey{u"PageUp", 33, u""},  NamedKey{u"PageDown", 34, u""},
};

constexpr int lastFunctionKey = 16;

/// F1 to F16.
std::optional<std::int16_t> FunctionKey(std::u16string_view name)
{
    constexpr int codeBeforeF1 = 111;
    if (name.size() < 2 || name.size() > 3 || name[0] != u'F' || name[1] == u'0')
        return std::nullopt;
    int number = 0;
    for (const char16_t unit : name.substr(1)) {
        if (!IsDigit(unit))
            return std::nullopt;
        number = number * 10 + (unit - u'0');
    }
    return number <= lastFunctionKey ? std::optional(static_cast<std::int16_t>(codeBeforeF1 + number)) : std::nullopt;
}

bool IsOneCharacter(std::u16string_view text)
{
    const auto isBetween = [](char16_t unit, int least, int most) { return unit >= least && unit <= most; };
    return text.size() == 1 ||
           (text.size() == 2 && isBetween(text[0], 0xD800, 0xDBFF) && isBetween(text[1], 0xDC00, 0xDFFF));
}

} // namespace

std::optional<DecimalDigits> ReadNumber(const Word& word)
{
    if (!word.IsBare())
        return std::nullopt;
    const std::u16string_view text = word.Bare;
    if (text.starts_with(u"0x") || text.starts_with(u"&H"))
        return ReadHexadecimal(text.substr(2));
    if (const auto* const constant = Find(constants, text); constant != constants.end())
        return DecimalDigits::OfInteger(static_cast<std::int32_t>(constant->second));
    DecimalDigits digits;
    return ReadDecimal(text, digits) ? std::optional(digits) : std::nullopt;
}

std::optional<std::uint64_t> WholeMagnitude(const DecimalDigits& digits)
{
    constexpr std::int64_t mostFigures = 20;
    if (digits.IsZero())
        return 0;
    if (static_cast<std::int64_t>(digits.Digits().size()) > digits.Point || digits.Point > mostFigures)
        return std::nullopt;
    std::uint64_t magnitude = 0;
    for (std::int64_t position = digits.Point - 1; position >= 0; --position) {
        const auto figure = static_cast<std::uint64_t>(digits.DigitAt(position) - '0');
        if (magnitude > (std::numeric_limits<std::uint64_t>::max() - figure) / 10)
            return std::nullopt;
        magnitude = magnitude * 10 + figure;
    }
    return magnitude;
}

std::optional<std::int64_t> WholeNumber(const DecimalDigits& digits, std::int64_t least, std::int64_t most)
{
    const std::optional<std::uint64_t> magnitude = WholeMagnitude(digits);
    const std::uint64_t limit =
        digits.Negative ? std::uint64_t{0} - static_cast<std::uint64_t>(least) : static_cast<std::uint64_t>(most);
    if (!magnitude || *magnitude > limit)
        return std::nullopt;
    return static_cast<std::int64_t>(digits.Negative ? std::uint64_t{0} - *magnitude : *magnitude);
}

std::optional<DateLiteral> ReadDate(const Word& word)
{
    if (!word.IsBare())
        return std::nullopt;
    std::u16string_view rest = word.Bare;
    const auto year = TakeFigures(rest, 4);
    const auto month = TakeFigures(rest, u'-', 2);
    const auto day = TakeFigures(rest, u'-', 2);
    if (!year || !month || !day || !IsLegalDate(*year, *month, *day))
        return std::nullopt;
    CivilTime fields{.Year = *year, .Month = *month, .Day = *day};
    const bool hasTime = !rest.empty();
    if (hasTime) {
        const auto hour = TakeFigures(rest, u'T', 2);
        const auto minute = TakeFigures(rest, u':', 2);
        const auto second = TakeFigures(rest, u':', 2);
        if (!hour || !minute || !second || *hour > 23 || *minute > 59 || *second > 59 || !rest.empty())
            return std::nullopt;
        fields.Hour = *hour;
        fields.Minute = *minute;
        fields.Second = *second;
    }
    return DateLiteral{.Serial = SerialOf(fields), .HasTime = hasTime};
}

template <>
std::int32_t ReadAs(const Word& word)
{
    return Needed(ReadWhole<std::int32_t>(word), word, "a whole number of 32 bits");
}

template <>
std::int16_t ReadAs(const Word& word)
{
    return Needed(ReadWhole<std::int16_t>(word), word, "a whole number of 16 bits");
}

template <>
double ReadAs(const Word& word)
{
    const std::optional<DecimalDigits> digits = ReadNumber(word);
    if (!digits || !digits->FitsDouble())
        Refuse(word, "a number");
    return digits->ToDouble();
}

template <>
float ReadAs(const Word& word)
{
    const auto number = static_cast<float>(ReadAs<double>(word));
    if (!std::isfinite(number))
        Refuse(word, "a number within the range of 32 bits");
    return number;
}

template <>
bool ReadAs(const Word& word)
{
    if (!word.Is(u"True") && !word.Is(u"False"))
        Refuse(word, "True or False");
    return word.Bare == u"True";
}

template <>
std::u16string ReadAs(const Word& word)
{
    if (!word.IsText())
        Refuse(word, "a text in quotes");
    return *word.Text;
}

template <>
DateLiteral ReadAs(const Word& word)
{
    return Needed(ReadDate(word), word, "a date like 2024-03-15 or 2024-03-15T10:30:00");
}

template <>
KeyLiteral ReadAs(const Word& word)
{
    const std::u16string& name = word.IsText() ? *word.Text : word.Bare;
    if (IsOneCharacter(name))
        return {.Code = name.size() == 1 ? KeyCodeOf(name.front()) : std::int16_t{0}, .Characters = name};
    if (word.IsBare()) {
        for (const NamedKey& key : keys)
            if (key.Name == name)
                return {.Code = key.Code, .Characters = std::u16string(key.Characters)};
        if (const std::optional<std::int16_t> code = FunctionKey(name))
            return {.Code = *code, .Characters = {}};
    }
    Refuse(word, "a key");
}

template <>
ModifierLiteral ReadAs(const Word& word)
{
    static constexpr std::array names{NamedNumber{u"Shift", 1}, NamedNumber{u"Ctrl", 2}, NamedNumber{u"Alt", 4}};
    int sum = 0;
    std::u16string_view rest = word.Bare;
    for (bool isLast = false; !isLast;) {
        const std::size_t plus = rest.find(u'+');
        isLast = plus == std::u16string_view::npos;
        const auto* const name = Find(names, rest.substr(0, plus));
        if (name == names.end() || (sum & name->second) != 0 || !word.IsBare())
            Refuse(word, "Shift, Ctrl and Alt with a + between");
        sum += static_cast<int>(name->second);
        rest.remove_prefix(isLast ? 0 : plus + 1);
    }
    return {.Shift = static_cast<std::int16_t>(sum)};
}

template <>
FieldControlType ReadAs(const Word& word)
{
    return static_cast<FieldControlType>(ReadAs<std::int32_t>(word));
}

template <>
FieldControlAlign ReadAs(const Word& word)
{
    return static_cast<FieldControlAlign>(ReadAs<std::int32_t>(word));
}

template <>
FieldAutoAdjustType ReadAs(const Word& word)
{
    return static_cast<FieldAutoAdjustType>(ReadAs<std::int32_t>(word));
}

template <>
ManipulateType ReadAs(const Word& word)
{
    return static_cast<ManipulateType>(ReadAs<std::int32_t>(word));
}

template <>
ColorType ReadAs(const Word& word)
{
    return static_cast<ColorType>(ReadAs<std::int32_t>(word));
}

std::vector<std::u16string> KeyNames()
{
    std::vector<std::u16string> names;
    for (const NamedKey& key : keys)
        names.emplace_back(key.Name);
    for (int number = 1; number <= lastFunctionKey; ++number)
        names.push_back(u"F" + ValueText(static_cast<std::int32_t>(number)));
    return names;
}

std::int16_t KeyCodeOf(char16_t character)
{
    struct Keys {
        std::u16string_view Characters;
        std::u16string_view Shifted; ///< The same keys with Shift.
        std::int16_t First; ///< The code of the first; the others follow it.
    };
    static constexpr std::array rows{
        Keys{u"123456789", u"!@#$%^&*(", u'1'},
        Keys{u";=,-./`", u":+<_>?~", 186},
        Keys{u"[\\]'", u"{|}\"", 219},
    };
    if (character >= u'a' && character <= u'z')
        return static_cast<std::int16_t>(character - u'a' + u'A');
    if ((character >= u'A' && character <= u'Z') || character == u'0' || character == u' ')
        return static_cast<std::int16_t>(character);
    if (character == u')')
        return u'0';
    for (const Keys& row : rows) {
        for (const std::u16string_view characters : {row.Characters, row.Shifted})
            if (const std::size_t place = characters.find(character); place != std::u16string_view::npos)
                return static_cast<std::int16_t>(row.First + static_cast<int>(place));
    }
    return 0;
}

} // namespace Tessellon::Replay
