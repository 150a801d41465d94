#include "recordset/odbc/Secrets.h"

#include "recordset/common/Words.h"

#include <algorithm>
#include <cstddef>

namespace Tessellon::Odbc {

using Common::WithoutBlanks;

namespace {

constexpr std::u16string_view Asterisks = u"***";

bool IsSecret(std::u16string_view key)
{
    std::u16string letters;
    for (const char16_t character : key)
        letters += static_cast<char16_t>(character >= u'A' && character <= u'Z' ? character - u'A' + u'a' : character);
    constexpr std::u16string_view signs[] = {u"pwd", u"passw", u"passphrase", u"secret", u"token"};
    return std::any_of(std::begin(signs), std::end(signs),
                       [&](std::u16string_view sign) { return letters.find(sign) != std::u16string::npos; });
}

/// Takes the value at the text's start off it. In braces it may hold any character, a closing brace doubled.
std::u16string TakeValue(std::u16string_view& text)
{
    std::u16string value;
    const std::u16string_view braced = WithoutBlanks(text);
    if (!braced.starts_with(u'{')) {
        value = WithoutBlanks(text.substr(0, text.find(u';')));
    } else {
        text = braced.substr(1);
        while (!text.empty() && !(text.starts_with(u'}') && !text.starts_with(u"}}"))) {
            text.remove_prefix(text.starts_with(u"}}") ? 1 : 0);
            value += text.front();
            text.remove_prefix(1);
        }
    }
    text.remove_prefix(std::min(text.find(u';'), text.size()));
    return value;
}

} // namespace

std::vector<std::u16string> SecretsOf(std::u16string_view connectionText)
{
    std::vector<std::u16string> secrets;
    std::u16string_view text = connectionText;
    while (!text.empty()) {
        const std::size_t sign = text.find_first_of(u"=;");
        if (sign == std::u16string_view::npos)
            break;
        const std::u16string_view key = text.substr(0, sign);
        const bool hasValue = text[sign] == u'=';
        text.remove_prefix(sign + 1);
        if (!hasValue)
            continue;
        const std::u16string_view before = text;
        const std::u16string value = TakeValue(text);
        if (!value.empty() && IsSecret(key)) {
            secrets.push_back(value);
            secrets.emplace_back(WithoutBlanks(before.substr(0, before.size() - text.size())));
        }
        text.remove_prefix(std::min<std::size_t>(1, text.size()));
    }
    return secrets;
}

void Mask(std::vector<ProviderError>& errors, const std::vector<std::u16string>& secrets)
{
    std::u16string words;
    for (const ProviderError& error : errors)
        words += error.Description;
    std::vector<bool> isSecret(words.size());
    for (const std::u16string& secret : secrets)
        for (std::size_t at = 0; (at = words.find(secret, at)) != std::u16string::npos; ++at)
            std::fill_n(isSecret.begin() + static_cast<std::ptrdiff_t>(at), secret.size(), true);

    std::size_t at = 0;
    for (ProviderError& error : errors) {
        std::u16string shown;
        for (std::size_t i = 0; i < error.Description.size(); ++i, ++at) {
            if (!isSecret[at])
                shown += words[at];
            else if (i == 0 || !isSecret[at - 1])
                shown += Asterisks;
        }
        error.Description = std::move(shown);
    }
}

} // namespace Tessellon::Odbc
