#include "Words.h"

#include "ScriptError.h"
#include "Utf8.h"
#include "engine/journal/ValueText.h"

#include <cstddef>

namespace Tessellon::Replay {

namespace {

bool IsBlank(char16_t unit)
{
    return unit == u' ' || unit == u'\t';
}

class LineReader {
public:
    explicit LineReader(std::u16string_view line)
        : rest_(line)
    {
    }

    bool SkipToWord()
    {
        while (!rest_.empty() && IsBlank(rest_.front()))
            rest_.remove_prefix(1);
        return !rest_.empty() && rest_.front() != u'#';
    }

    Word TakeWord()
    {
        Word word;
        while (!AtWordEnd() && rest_.front() != u'"')
            word.Bare.push_back(Take());
        if (AtWordEnd())
            return word;
        Take();
        if (word.Bare.empty() && IsLoneQuote()) {
            word.Bare = u"\"";
            return word;
        }
        if (!word.Bare.empty() && word.Bare.back() != u'=')
            throw ScriptError("a quote within a word");
        word.Text = TakeText();
        if (!AtWordEnd())
            throw ScriptError("no blank behind a text");
        return word;
    }

private:
    [[nodiscard]] bool AtWordEnd() const { return rest_.empty() || IsBlank(rest_.front()); }
    /// Behind a quote: it is followed by a blank or nothing, and no other quote closes it.
    [[nodiscard]] bool IsLoneQuote() const { return AtWordEnd() && rest_.find(u'"') == std::u16string_view::npos; }

    char16_t Take()
    {
        const char16_t unit = rest_.front();
        rest_.remove_prefix(1);
        return unit;
    }

    char16_t TakeWithin()
    {
        if (rest_.empty())
            throw ScriptError("a text without its closing quote");
        return Take();
    }

    std::u16string TakeText()
    {
        std::u16string text;
        for (char16_t unit = TakeWithin(); unit != u'"'; unit = TakeWithin()) {
            if (unit == u'\\')
                TakeEscape(text);
            else
                text.push_back(unit);
        }
        return text;
    }

    void TakeEscape(std::u16string& text)
    {
        switch (TakeWithin()) {
        case u'"': text.push_back(u'"'); break;
        case u'\\': text.push_back(u'\\'); break;
        case u'n': text.push_back(u'\n'); break;
        case u'r': text.push_back(u'\r'); break;
        case u't': text.push_back(u'\t'); break;
        case u'u': TakeCodePoint(text); break;
        default: throw ScriptError("an unknown escape in a text");
        }
    }

    void TakeCodePoint(std::u16string& text)
    {
        constexpr char32_t lastPoint = 0x10FFFF;
        bool isWell = TakeWithin() == u'{' && !rest_.empty() && rest_.front() != u'}';
        char32_t point = 0;
        for (char16_t unit = TakeWithin(); isWell && unit != u'}'; unit = TakeWithin()) {
            char32_t figure = 16;
            if (unit >= u'0' && unit <= u'9')
                figure = unit - u'0';
            else if (unit >= u'A' && unit <= u'F')
                figure = unit - u'A' + 10U;
            else if (unit >= u'a' && unit <= u'f')
                figure = unit - u'a' + 10U;
            point = point * 16 + figure;
            isWell = figure < 16 && point <= lastPoint;
        }
        if (!isWell)
            throw ScriptError("\\u must be followed by a code point in hexadecimal figures in braces");
        AppendCodePoint(text, point);
    }

    std::u16string_view rest_;
};

} // namespace

std::vector<Word> SplitWords(std::u16string_view line)
{
    std::vector<Word> words;
    LineReader reader(line);
    while (reader.SkipToWord())
        words.push_back(reader.TakeWord());
    return words;
}

std::string Shown(const Word& word)
{
    return ToUtf8(word.Text ? word.Bare + ValueText(std::u16string_view(*word.Text)) : word.Bare);
}

} // namespace Tessellon::Replay
