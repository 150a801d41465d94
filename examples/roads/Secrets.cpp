#include "roads/Secrets.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

namespace Roads {

namespace {

constexpr std::string_view mark = "***";
constexpr auto none = std::string_view::npos;

bool IsWord(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    constexpr unsigned char firstBeyondAscii = 0x80;
    return std::isalnum(byte) != 0 || byte >= firstBeyondAscii;
}

/// The key ahead of an equals sign, as "Password", and decoded, as in a URL.
std::string KeyAhead(std::string_view text, std::size_t sign)
{
    const auto belongs = [](char character) {
        return IsWord(character) || std::string_view("_-.%").find(character) != none;
    };
    while (sign > 0 && text[sign - 1] == ' ')
        --sign;
    std::size_t begin = sign;
    while (begin > 0 && belongs(text[begin - 1]))
        --begin;
    std::string key = Decoded(text.substr(begin, sign - begin));
    std::ranges::transform(key, key.begin(),
                           [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return key;
}

bool IsSecret(std::string_view key)
{
    constexpr std::array<std::string_view, 6> marks{"pass", "pwd", "secret", "token", "credential", "key"};
    return std::ranges::any_of(marks, [&](std::string_view part) { return key.find(part) != none; });
}

/// Calls with the place behind each sign whose key is one of a secret.
template <class Action>
void ForEachSecretKey(std::string_view text, const Action& action)
{
    for (std::size_t sign = text.find('='); sign != none; sign = text.find('=', sign + 1)) {
        if (IsSecret(KeyAhead(text, sign)))
            action(std::min(text.find_first_not_of(' ', sign + 1), text.size()));
    }
}

/// How long a value is that stands in braces, where two closing ones mean one; all of it if they are not closed.
std::size_t LengthInBraces(std::string_view value)
{
    for (std::size_t at = value.find('}', 1); at != none; at = value.find('}', at + 2)) {
        if (at + 1 == value.size() || value[at + 1] != '}')
            return at + 1;
    }
    return value.size();
}

std::size_t LengthInQuotes(std::string_view value)
{
    const std::size_t end = value.find(value.front(), 1);
    return end == none ? value.size() : end + 1;
}

/// How much of the words behind a key is the value, as far as words of others tell.
std::size_t LengthInWords(std::string_view value)
{
    if (value.empty())
        return 0;
    if (value.front() == '{')
        return LengthInBraces(value);
    if (value.front() == '\'' || value.front() == '"')
        return LengthInQuotes(value);
    return std::min(value.find_first_of(";&\"' \t\r\n"), value.size());
}

std::string Replaced(std::string_view text, std::string_view what, std::string_view with)
{
    std::string result(text);
    for (std::size_t at = result.find(what); at != none; at = result.find(what, at + with.size()))
        result.replace(at, what.size(), with);
    return result;
}

void HideOne(std::string& words, std::string_view secret)
{
    constexpr std::size_t shortest = 4;
    for (std::size_t at = words.find(secret); at != none; at = words.find(secret, at)) {
        const std::size_t end = at + secret.size();
        const bool isWithinAWord = (at > 0 && IsWord(words[at - 1])) || (end < words.size() && IsWord(words[end]));
        if (secret.size() < shortest && isWithinAWord) {
            ++at;
        } else {
            words.replace(at, secret.size(), mark);
            at += mark.size();
        }
    }
}

/// Passwords that the words name as such, also those that nobody told of.
void HideWhatLooksSecret(std::string& words)
{
    struct Place {
        std::size_t Begin;
        std::size_t Length;
    };
    std::vector<Place> places;
    ForEachSecretKey(words, [&](std::size_t begin) {
        places.push_back({begin, LengthInWords(std::string_view(words).substr(begin))});
    });
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        if (place->Length > 0)
            words.replace(place->Begin, place->Length, mark);
    }
    for (std::size_t url = words.find("://"); url != none; url = words.find("://", url + 1)) {
        const std::size_t end = std::min(words.find_first_of(" \t\r\n\"'", url), words.size());
        const std::size_t at = std::string_view(words).substr(0, end).rfind('@');
        const std::size_t colon = words.find(':', url + 3);
        if (at != none && colon < at && at > url)
            words.replace(colon + 1, at - colon - 1, mark);
    }
}

} // namespace

std::string Decoded(std::string_view text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned value = 0;
        const char* const figures = text.data() + at + 1;
        if (text[at] == '%' && at + 2 < text.size() &&
            std::from_chars(figures, figures + 2, value, 16).ptr == figures + 2) {
            result += static_cast<char>(value);
            at += 2;
        } else {
            result += text[at];
        }
    }
    return result;
}

void Secrets::Add(std::string_view secret)
{
    const std::size_t begin = secret.find_first_not_of(' ');
    if (begin == none)
        return;
    const std::string_view trimmed = secret.substr(begin, secret.find_last_not_of(' ') - begin + 1);
    for (std::string spelling : {std::string(trimmed), Decoded(trimmed)}) {
        if (std::ranges::find(secrets_, spelling) == secrets_.end())
            secrets_.push_back(std::move(spelling));
    }
    std::ranges::stable_sort(secrets_, std::ranges::greater(), &std::string::size);
}

/// The whole text, and as much of it as stands ahead of each character that could end it.
void Secrets::AddWithEnds(std::string_view text)
{
    Add(text);
    for (std::size_t end = text.find_first_of(";& "); end != none; end = text.find_first_of(";& ", end + 1))
        Add(text.substr(0, end));
}

void Secrets::Gather(std::string_view text)
{
    ForEachSecretKey(text, [&](std::size_t begin) {
        const std::string_view rest = text.substr(begin);
        const std::string_view inside = rest.starts_with('{') ? rest.substr(1, LengthInBraces(rest) - 1) : rest;
        const std::string_view closed = inside.substr(0, inside.size() - (inside.ends_with('}') ? 1 : 0));
        for (const std::string_view value : {rest, inside, closed})
            AddWithEnds(value);
        Add(Replaced(closed, "}}", "}"));
        if (rest.starts_with('\'') || rest.starts_with('"')) {
            const std::size_t length = LengthInQuotes(rest);
            Add(rest.substr(1, length - 1));
            Add(rest.substr(1, length - 2));
        }
    });
    for (std::size_t url = text.find("://"); url != none; url = text.find("://", url + 1)) {
        const std::string_view rest = text.substr(url + 3);
        const std::size_t colon = rest.find(':');
        if (colon == none)
            continue;
        const std::string_view behind = rest.substr(colon + 1);
        for (std::size_t at = behind.find('@'); at != none; at = behind.find('@', at + 1))
            Add(behind.substr(0, at));
        // Where there is no host, as the user has left it out, a port that is none may be the password.
        const std::string_view port = behind.substr(0, behind.find_first_of("/?#@"));
        if (port.find_first_not_of("0123456789") != none)
            Add(port);
    }
}

std::string Secrets::Hide(std::string_view words) const
{
    std::string result(words);
    for (const std::string& secret : secrets_)
        HideOne(result, secret);
    HideWhatLooksSecret(result);
    return result;
}

} // namespace Roads
