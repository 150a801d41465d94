#include "roads/PostgresUrl.h"

#include "roads/Secrets.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace Roads {

namespace {

constexpr auto none = std::string_view::npos;

[[noreturn]] void Refuse(const std::string& what)
{
    throw std::runtime_error("the URL of the connection cannot be read: " + what);
}

/// What stands ahead of the first of the characters; the text goes on behind it.
std::string_view Taken(std::string_view& text, char end)
{
    const std::size_t at = text.find(end);
    const std::string_view part = text.substr(0, at);
    text = at == none ? std::string_view() : text.substr(at + 1);
    return part;
}

std::string Meant(std::string_view part)
{
    for (std::size_t at = part.find('%'); at != none; at = part.find('%', at + 1)) {
        const std::string_view figures = part.substr(at + 1, 2);
        if (figures.size() < 2 || figures.find_first_not_of("0123456789abcdefABCDEF") != none || figures == "00")
            Refuse("a % wants two hexadecimal figures behind it, not 00; a % itself is written %25");
    }
    return Decoded(part);
}

int PortOf(std::string_view text)
{
    constexpr int most = 65'535;
    int port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (error != std::errc() || end != text.data() + text.size() || port < 1 || port > most)
        Refuse("the port is no number from 1 to 65535; in a password : / ? # @ are written %3A %2F %3F %23 %40");
    return port;
}

} // namespace

PostgresUrl::PostgresUrl(std::string_view url)
{
    url.remove_prefix(std::min(url.find("://"), url.size() - 3) + 3);
    std::string_view parameters = url;
    std::string_view path = Taken(parameters, '?');
    std::string_view place = Taken(path, '/');
    if (path.find('@') != none || path.find('/') != none)
        Refuse(
            "there is more than one / ahead of the database; in a user and a password / and @ are written %2F and %40");

    if (const std::size_t at = place.rfind('@'); at != none) {
        std::string_view password = place.substr(0, at);
        User = Meant(Taken(password, ':'));
        Password = Meant(password);
        place.remove_prefix(at + 1);
    }
    if (place.starts_with('[')) {
        const std::size_t end = place.find(']');
        if (end == none)
            Refuse("a [ of the host is not closed");
        Host = place.substr(1, end - 1);
        place.remove_prefix(end + 1);
        if (!place.empty() && !place.starts_with(':'))
            Refuse("behind the ] of the host a : and the port are wanted");
        Taken(place, ':');
    } else {
        Host = Meant(Taken(place, ':'));
    }
    if (!place.empty())
        Port = PortOf(place);
    Database = Meant(path);

    while (!parameters.empty()) {
        std::string_view value = Taken(parameters, '&');
        if (value.empty())
            continue;
        if (value.find('=') == none)
            Refuse("each parameter behind the ? wants a = and a value");
        const std::string key = Meant(Taken(value, '='));
        const std::string meant = Meant(value);
        if (key == "user")
            User = meant;
        else if (key == "password")
            Password = meant;
        else if (key == "host")
            Host = meant;
        else if (key == "port")
            Port = PortOf(meant);
        else if (key == "dbname")
            Database = meant;
        else
            Parameters.emplace_back(key, meant);
    }
}

} // namespace Roads
