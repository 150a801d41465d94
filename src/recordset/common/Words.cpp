#include "recordset/common/Words.h"

#include <algorithm>
#include <iterator>

namespace Tessellon::Common {

namespace {

/// Whether text is word, which is in lower case, with letters of either case.
bool IsWord(std::u16string_view text, std::u16string_view word)
{
    return std::equal(text.begin(), text.end(), word.begin(), word.end(), [](char16_t one, char16_t other) {
        return (one >= u'A' && one <= u'Z' ? one - u'A' + u'a' : one) == other;
    });
}

} // namespace

std::u16string_view WithoutBlanks(std::u16string_view text)
{
    while (text.starts_with(u' '))
        text.remove_prefix(1);
    while (text.ends_with(u' '))
        text.remove_suffix(1);
    return text;
}

std::optional<bool> TruthOf(std::u16string_view text)
{
    constexpr std::u16string_view yes[] = {u"1", u"true", u"t", u"yes", u"y", u"on"};
    constexpr std::u16string_view no[] = {u"0", u"false", u"f", u"no", u"n", u"off"};
    const auto isText = [&](std::u16string_view word) { return IsWord(text, word); };
    if (std::any_of(std::begin(yes), std::end(yes), isText))
        return true;
    if (std::any_of(std::begin(no), std::end(no), isText))
        return false;
    return std::nullopt;
}

} // namespace Tessellon::Common
