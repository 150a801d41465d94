#include "roads/Road.h"

#include "platform/Failure.h"
#include "recordset/common/Unicode.h"
#include "roads/Discreet.h"
#include "roads/PostgresUrl.h"
#include "roads/Secrets.h"
#include "roads/Ways.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <stdexcept>

namespace Roads {

using namespace Tessellon;

namespace {

constexpr auto none = std::string_view::npos;

struct Scheme {
    std::string_view Begin;
    Address::Kind Road;
    bool BelongsToTheRest = false;
};
constexpr std::array schemes{
    Scheme{"sqlite:", Address::Kind::Sqlite},
    Scheme{"odbc:", Address::Kind::Odbc},
    Scheme{"postgresql://", Address::Kind::Postgres, true},
    Scheme{"postgres://", Address::Kind::Postgres, true},
    Scheme{"qtsql:", Address::Kind::QtSql},
};

/// The value of a key in an ODBC connection text, without its braces; empty where there is none.
std::string ValueOf(std::string_view text, std::string_view key)
{
    const auto isKey = [&](std::string_view given) {
        return std::ranges::equal(given, key, [](unsigned char left, unsigned char right) {
            return std::tolower(left) == std::tolower(right);
        });
    };
    while (!text.empty()) {
        const std::size_t sign = text.find('=');
        if (sign == none)
            return {};
        const std::string_view given = text.substr(0, sign);
        text.remove_prefix(sign + 1);
        std::size_t end = text.find(';');
        if (text.starts_with('{')) {
            std::size_t close = text.find('}', 1);
            while (close != none && close + 1 < text.size() && text[close + 1] == '}')
                close = text.find('}', close + 2);
            end = close == none ? none : text.find(';', close);
        }
        std::string_view value = text.substr(0, end);
        text.remove_prefix(end == none ? text.size() : end + 1);
        if (isKey(given)) {
            if (value.size() > 1 && value.starts_with('{') && value.ends_with('}'))
                value = value.substr(1, value.size() - 2);
            return std::string(value);
        }
    }
    return {};
}

std::string OdbcName(std::string_view text)
{
    for (const std::string_view key : {"DSN", "FILEDSN", "Database", "Server", "Servername", "Driver"}) {
        if (std::string value = ValueOf(text, key); !value.empty())
            return value;
    }
    return "the ODBC data source";
}

std::string PostgresName(std::string_view text)
{
    const PostgresUrl url(text);
    const std::string database = url.Database.empty() ? "the user's database" : url.Database;
    return url.Host.empty() ? database : database + " on " + url.Host;
}

std::string FileName(const std::filesystem::path& path)
{
    return path.has_filename() ? path.filename().string() : path.string();
}

/// Words of a provider on one line.
std::string OneLine(std::string_view words)
{
    std::string line;
    for (const char character : words) {
        const bool isBlank = std::isspace(static_cast<unsigned char>(character)) != 0;
        if (!isBlank)
            line += character;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    while (line.ends_with(' '))
        line.pop_back();
    return line;
}

Destination TravelTo(const Address& address, const std::string& query)
{
    switch (address.Road) {
    case Address::Kind::Sqlite: return TravelBySqlite(address.Rest, query);
    case Address::Kind::Odbc: return TravelByOdbc(address.Rest, query);
    case Address::Kind::Postgres: return TravelByPostgres(address.Rest, query);
    case Address::Kind::QtSql: return TravelByQtSql(address.Rest, query);
    }
    return {};
}

} // namespace

Address::Address(const std::string& text)
{
    const auto scheme =
        std::ranges::find_if(schemes, [&](const Scheme& known) { return text.starts_with(known.Begin); });
    if (scheme == schemes.end())
        throw std::runtime_error("--connection wants a text that begins with sqlite:, odbc:, postgresql:// or qtsql:; "
                                 "--help shows each");
    Road = scheme->Road;
    Rest = scheme->BelongsToTheRest ? text : text.substr(scheme->Begin.size());
    if (Rest.empty())
        throw std::runtime_error("--connection says nothing behind " + std::string(scheme->Begin) +
                                 "; --help shows what belongs there");
}

std::string Address::Name() const
{
    Secrets secrets;
    secrets.Gather(Rest);
    switch (Road) {
    case Kind::Sqlite: return FileName(Rest);
    case Kind::Odbc: return secrets.Hide(OdbcName(Rest));
    case Kind::Postgres: return secrets.Hide(PostgresName(Rest));
    case Kind::QtSql: return secrets.Hide(FileName(Rest.substr(Rest.find(':') + 1)));
    }
    return {};
}

std::optional<std::filesystem::path> Address::File() const
{
    constexpr std::string_view qtSqlite = "QSQLITE:";
    if (Road == Kind::Sqlite)
        return Rest;
    if (Road == Kind::QtSql && Rest.starts_with(qtSqlite))
        return Rest.substr(qtSqlite.size());
    return {};
}

Destination Travel(const std::string& connection, const std::string& query)
{
    Secrets secrets;
    secrets.Gather(connection);
    const Address address(connection);
    const auto refuse = [&](std::string words) {
        throw std::runtime_error("cannot read " + address.Name() + ": " + OneLine(secrets.Hide(words)));
    };
    Destination destination;
    try {
        destination = TravelTo(address, query);
    } catch (const Failure& failure) {
        refuse(Common::ToUtf8(failure.Description));
    } catch (const std::runtime_error& failure) {
        refuse(failure.what());
    }
    if (destination.Fields.empty())
        refuse("the query gives no fields");
    if (!secrets.IsEmpty()) {
        destination.Records = std::make_shared<DiscreetRecordset>(std::move(destination.Records), secrets);
        destination.Connection = std::make_shared<DiscreetConnection>(std::move(destination.Connection), secrets);
    }
    return destination;
}

} // namespace Roads
