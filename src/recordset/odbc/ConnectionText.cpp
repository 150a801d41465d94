#include "recordset/odbc/ConnectionText.h"

#include "recordset/common/Words.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace Tessellon::Odbc {

using Common::WithoutBlanks;

namespace {

constexpr std::u16string_view Asterisks = u"***";

/// What stands between two semicolons.
struct Attribute {
    std::u16string Key; ///< In lower case.
    std::u16string Value;
    std::u16string_view Written; ///< The value with its braces.
};

std::u16string LowerCase(std::u16string_view text)
{
    std::u16string letters;
    for (const char16_t character : text)
        letters += static_cast<char16_t>(character >= u'A' && character <= u'Z' ? character - u'A' + u'a' : character);
    return letters;
}

bool IsSecret(std::u16string_view key)
{
    constexpr std::u16string_view signs[] = {u"pwd", u"passw", u"passphrase", u"secret", u"token"};
    return std::any_of(std::begin(signs), std::end(signs),
                       [&](std::u16string_view sign) { return key.find(sign) != std::u16string_view::npos; });
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

std::vector<Attribute> AttributesOf(std::u16string_view text)
{
    std::vector<Attribute> attributes;
    while (!text.empty()) {
        const std::size_t sign = std::min(text.find_first_of(u"=;"), text.size());
        Attribute attribute;
        attribute.Key = LowerCase(WithoutBlanks(text.substr(0, sign)));
        text.remove_prefix(sign);
        if (text.starts_with(u'=')) {
            text.remove_prefix(1);
            const std::u16string_view before = text;
            attribute.Value = TakeValue(text);
            attribute.Written = WithoutBlanks(before.substr(0, before.size() - text.size()));
            attributes.push_back(std::move(attribute));
        }
        text.remove_prefix(std::min<std::size_t>(1, text.size()));
    }
    return attributes;
}

} // namespace

std::u16string DriverOf(std::u16string_view connectionText)
{
    for (const Attribute& attribute : AttributesOf(connectionText))
        if (attribute.Key == u"driver")
            return std::u16string(attribute.Written);
    return {};
}

std::vector<std::u16string> SecretsOf(std::u16string_view connectionText)
{
    std::vector<std::u16string> secrets;
    for (const Attribute& attribute : AttributesOf(connectionText)) {
        if (attribute.Value.empty() || !IsSecret(attribute.Key))
            continue;
        secrets.push_back(attribute.Value);
        secrets.emplace_back(attribute.Written);
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
