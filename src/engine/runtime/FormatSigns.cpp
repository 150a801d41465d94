#include "engine/runtime/FormatSigns.h"

#include "engine/runtime/CaseMap.h"
#include "engine/runtime/DateTokens.h"

#include <array>

namespace Tessellon {

namespace {

struct NamedFormatText {
    std::u16string_view Text;
    NamedFormat Format;
};

constexpr std::array namedFormats{
    NamedFormatText{u"General Number", NamedFormat::GeneralNumber},
    NamedFormatText{u"Currency", NamedFormat::Currency},
    NamedFormatText{u"Fixed", NamedFormat::Fixed},
    NamedFormatText{u"Standard", NamedFormat::Standard},
    NamedFormatText{u"Percent", NamedFormat::Percent},
    NamedFormatText{u"Scientific", NamedFormat::Scientific},
    NamedFormatText{u"Yes/No", NamedFormat::YesNo},
    NamedFormatText{u"True/False", NamedFormat::TrueFalse},
    NamedFormatText{u"On/Off", NamedFormat::OnOff},
    NamedFormatText{u"General Date", NamedFormat::GeneralDate},
    NamedFormatText{u"Long Date", NamedFormat::LongDate},
    NamedFormatText{u"Medium Date", NamedFormat::MediumDate},
    NamedFormatText{u"Short Date", NamedFormat::ShortDate},
    NamedFormatText{u"Long Time", NamedFormat::LongTime},
    NamedFormatText{u"Medium Time", NamedFormat::MediumTime},
    NamedFormatText{u"Short Time", NamedFormat::ShortTime},
};

/// Notes whether words consist of the letters that are places of a mask, and of nothing else.
class MaskWords {
public:
    void Add(FormatSign sign)
    {
        if (sign.Literal || !IsLetter(sign.Unit)) {
            End();
            return;
        }
        const bool place = sign.Unit == u'A' || sign.Unit == u'a' || sign.Unit == u'C';
        (place ? places_ : others_) = true;
    }
    void End()
    {
        found_ = found_ || (places_ && !others_);
        places_ = others_ = false;
    }
    [[nodiscard]] bool Found() const { return found_; }

private:
    bool places_ = false;
    bool others_ = false;
    bool found_ = false;
};

} // namespace

bool HasDateSigns(std::u16string_view format)
{
    DateTokens tokens(format);
    for (DateToken token; tokens.Next(token);) {
        const bool maskSign = token.Kind == DateSign::General && token.Text == u"C";
        const bool maskLetters =
            token.Kind == DateSign::DayName && token.Text.front() != u'd' && token.Text.front() != u'D';
        if (token.Kind > DateSign::TimeSeparator && !maskSign && !maskLetters)
            return true;
    }
    return false;
}

FormatTraits TraitsOf(std::u16string_view format)
{
    FormatTraits traits;
    MaskWords words;
    FormatScanner scanner(format);
    for (FormatSign sign; scanner.Next(sign);) {
        words.Add(sign);
        if (sign.Literal)
            continue;
        switch (sign.Unit) {
        case u'0': traits.Zero = true; [[fallthrough]];
        case u'#': traits.NumberPlace = true; break;
        case u'%': traits.Percent = true; break;
        case u'@':
        case u'&': traits.TextPlace = true; break;
        case u'9':
        case u'?': traits.MaskPlace = true; break;
        case u'<':
        case u'>':
        case u'!': traits.TextOrder = true; break;
        default: break;
        }
    }
    words.End();
    traits.MaskLetters = words.Found();
    traits.DateSigns = HasDateSigns(format);
    return traits;
}

FormatSections SectionsOf(std::u16string_view format)
{
    FormatSections sections;
    FormatScanner scanner(format);
    std::size_t start = 0;
    for (FormatSign sign; scanner.Next(sign);) {
        if (sign.Literal || sign.Unit != u';')
            continue;
        const std::size_t end = scanner.Position() - 1;
        sections.Texts[sections.Count++] = format.substr(start, end - start);
        start = end + 1;
        if (sections.Count == sections.Texts.size())
            return sections;
    }
    sections.Texts[sections.Count++] = format.substr(start);
    return sections;
}

NamedFormat NamedFormatOf(std::u16string_view format)
{
    constexpr std::size_t shortest = 5;
    constexpr std::size_t longest = 14;
    if (format.size() < shortest || format.size() > longest)
        return NamedFormat::None;
    for (const NamedFormatText& named : namedFormats) {
        if (format.size() == named.Text.size() && EqualIgnoringCase(format, named.Text))
            return named.Format;
    }
    return NamedFormat::None;
}

} // namespace Tessellon
