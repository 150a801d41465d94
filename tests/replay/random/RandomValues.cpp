#include "RandomValues.h"

#include "Literals.h"
#include "Utf8.h"

#include <stdexcept>

namespace Tessellon::Replay {

namespace {

using Values = std::vector<std::string>;

const Values rows{"0", "1", "1", "1", "2", "2", "2", "3", "3", "4", "5", "8", "20", "41", "-1", "2147483647"};
const Values cols{"0", "1", "1", "2", "2", "3", "3", "4", "4", "5", "6", "7", "8", "9", "-1", "-2147483648"};
const Values counts{"1", "1", "1", "2", "3", "0", "-1"};
const Values colCounts{"1", "2", "3", "5", "9", "9", "10", "0", "-1"};
const Values truths{"True", "False"};
const Values lengths{"0", "-1", "1", "15", "100.5", "240", "240", "300", "480", "960", "960", "1500", "2400", "9600"};
const Values places{"0",    "1",    "59",   "119.5", "240",  "360",  "361",  "500",  "700",   "960",
                    "1000", "1440", "2000", "3000",  "4790", "4800", "9590", "9600", "12000", "-1"};
const Values texts{R"("")",
                   R"("a")",
                   R"("abc def")",
                   R"(" x ")",
                   R"("   ")",
                   R"("True")",
                   R"(" true ")",
                   R"("green")",
                   R"(" GREEN ")",
                   R"("two")",
                   R"("12")",
                   R"("-1.5e3")",
                   R"("1,234.50")",
                   R"("15/03/2024")",
                   R"("29/2/1999")",
                   R"("2001-12-31 23:59:58")",
                   R"("12-AB")",
                   R"("first\r\nsecond")",
                   R"("tab\there")",
                   R"("\u{1F600}!")",
                   R"("\u{D83D}")",
                   R"("say \"so\"")",
                   R"("a text that is wider than its column, by far")"};
const Values limits{"0", "0", "1", "3", "5", "40", "-1", "32767", "32768"};
const Values formats{R"("XX d/M/yyyy XXX")",  R"("dd/MM/yyyy")", R"("d/M/yy h:mm t")", R"("yyyy-MM-dd HH:mm:ss")",
                     R"("XX d/M/yyyy XXX")",  R"("MM")",         R"("'d' d")",         R"("   ")",
                     R"("dddd, d MMMM yyyy")"};
const Values colors{"Red", "Yellow", "White", "InfoBackground", "ButtonFace", "0xFF8800", "0", "-1"};
const Values dates{"2024-03-15", "2024-02-29",          "1999-12-31T23:59:59", "0100-01-01",
                   "9999-12-31", "1899-12-30T06:00:00", "2024-03-31",          "2030-07-04T12:00:00"};
const Values masks{R"("##-AA")", R"("##/##/####")", R"(">??-&&")", R"("(999) 999")", R"("AAAA")", R"("\\")", R"("")"};
const Values numberFormats{R"("#,##0.00")", R"("0.0%")", R"("dd/MM/yyyy")", R"("@@@-@@")", R"("")", R"("Currency")"};

/// One character of each sort that the table of keys knows.
constexpr std::string_view characters = "aZ5 $;~[}\"'-/.:_";

const Values& ValuesOf(char letter)
{
    static const Values alignments{"fcLeft", "fcLeft", "fcCenter", "fcRight", "0", "9"};
    static const Values adjusts{"faNil", "faHeader", "faContent", "7"};
    static const Values indexes{"0", "1", "0", "1", "2", "-1"};
    static const Values comparisons{"mtString", "mtNumeric", "mtDate", "0"};
    static const Values carets{"0", "0", "1", "1", "2", "3", "5", "99", "-1"};
    static const Values sizes{"8", "8", "10", "6.5", "0", "-1"};
    static const Values fonts{R"("Sans")", R"("Serif")", R"("")"};
    static const Values keys = AllKeys();
    static const Values modifiers = AllModifiers();
    switch (letter) {
    case 'r': return rows;
    case 'c': return cols;
    case 'n': return counts;
    case 'N': return colCounts;
    case 't': return texts;
    case 'b': return truths;
    case 'h': return lengths;
    case 'x':
    case 'y': return places;
    case 'k': return AllKinds();
    case 'a': return alignments;
    case 'j': return adjusts;
    case 'l': return limits;
    case 'f': return formats;
    case 'i': return indexes;
    case 'o': return colors;
    case 'm': return comparisons;
    case 'p': return carets;
    case 'd': return dates;
    case 'z': return sizes;
    case 'w': return fonts;
    case 'K': return keys;
    case 'M': return modifiers;
    default: throw std::logic_error(std::string("no values are known for ") + letter);
    }
}

} // namespace

std::string RandomValue(char letter, Dice& dice)
{
    return letter == 'g' ? RandomSetting(dice.OneOf(AllKinds()), dice) : dice.OneOf(ValuesOf(letter));
}

std::string RandomSetting(std::string_view kind, Dice& dice)
{
    static const Values items{R"("red|green|blue")", R"("one|two|three|two|ten")", R"(" a ||b")", R"("")"};
    static const Values captions{R"("Go")", R"("  ")", R"("&Do it")"};
    if (dice.OneIn(10))
        return RandomValue('t', dice);
    if (kind == "fcComboBox" || kind == "fcListBox")
        return dice.OneOf(items);
    if (kind == "fcMaskedEditBox")
        return dice.OneOf(dice.OneIn(3) ? numberFormats : masks);
    return kind == "fcCommandButton" ? dice.OneOf(captions) : R"("")";
}

std::vector<std::string> AllKeys()
{
    std::vector<std::string> keys;
    for (const std::u16string& name : KeyNames())
        keys.push_back(ToUtf8(name));
    for (const char character : characters)
        keys.push_back(character == ' ' ? "\" \"" : std::string(1, character));
    for (const char* const other : {"\u00E9", "\u20AC", "\U0001F600"})
        keys.emplace_back(other);
    return keys;
}

std::vector<std::string> AllModifiers()
{
    return {"", "Shift", "Ctrl", "Alt", "Shift+Ctrl", "Shift+Alt", "Ctrl+Alt", "Shift+Ctrl+Alt"};
}

const std::vector<std::string>& AllKinds()
{
    static const std::vector<std::string> kinds{"fcTextBox",     "fcCheckBox",      "fcComboBox",
                                                "fcListBox",     "fcDatePicker",    "fcMaskedEditBox",
                                                "fcRichTextBox", "fcCommandButton", "fcNil"};
    return kinds;
}

} // namespace Tessellon::Replay
