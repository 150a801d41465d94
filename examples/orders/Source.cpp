#include "orders/Source.h"

#include "orders/Options.h"
#include "orders/OrderColumns.h"
#include "orders/OrdersDatabase.h"
#include "platform/Failure.h"
#include "recordset/common/Unicode.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"

#include <cstdlib>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace Orders {

namespace {

/// $XDG_CACHE_HOME, or ~/.cache where that says nothing.
std::filesystem::path CacheFolder()
{
    const auto valueOf = [](const char* variable) {
        const char* value = std::getenv(variable);
        return std::filesystem::path(value != nullptr ? value : "");
    };
    if (std::filesystem::path cache = valueOf("XDG_CACHE_HOME"); cache.is_absolute())
        return cache / "tessellon";
    if (std::filesystem::path home = valueOf("HOME"); home.is_absolute())
        return home / ".cache" / "tessellon";
    throw std::runtime_error("no folder for the orders: set HOME or XDG_CACHE_HOME, or name a database by --database");
}

/// The same count gives the same orders, so one that stands there already is replaced by its like.
std::filesystem::path MadeDatabase(std::int64_t rows)
{
    const std::filesystem::path folder = CacheFolder();
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        throw std::runtime_error("cannot make the folder " + folder.string() + ": " + error.message() +
                                 "; set XDG_CACHE_HOME, or name a database by --database");
    std::filesystem::path path = folder / ("orders-" + std::to_string(rows) + ".db");
    MakeDatabase(path, rows);
    return path;
}

/// What to do, behind SQLite's own words.
std::string Advice(int code)
{
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return "another program has locked it; end that one, then try again";
    case SQLITE_NOTADB: return "name a SQLite database with a table of orders";
    case SQLITE_ERROR: return "name a database with a table of orders like the one that --rows makes";
    default: return "name another file, or leave --database out";
    }
}

void CheckFile(const std::filesystem::path& path)
{
    std::error_code error;
    const auto refuse = [&](const std::string& why) {
        throw std::runtime_error("cannot read " + path.string() + ": " + why +
                                 "; name another file, or leave --database out");
    };
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status))
        refuse(status.type() == std::filesystem::file_type::not_found ? "there is no such file" : error.message());
    if (!std::filesystem::is_regular_file(status))
        refuse(std::filesystem::is_directory(status) ? "it is a folder" : "it is no ordinary file");
    if (std::filesystem::file_size(path, error) == 0)
        refuse("it is empty");
}

} // namespace

Source OpenDatabase(const std::filesystem::path& path)
{
    CheckFile(path);
    Source source;
    source.Name = QString::fromStdU16String(path.filename().u16string());
    source.Layout = OrderColumns();
    source.OpenAgain = [path] { return OpenDatabase(path); };
    const auto connection = std::make_shared<Tessellon::SqliteConnection>();
    source.Connection = connection;
    try {
        connection->Connect(path.u16string());
        source.Records = connection->Query(Tessellon::Common::ToUtf16(Query));
    } catch (const Tessellon::Failure& failure) {
        const auto& errors = connection->Errors();
        std::string words = Tessellon::Common::ToUtf8(failure.Description);
        // Of a file that does not open, the path stands there already.
        if (const std::size_t at = words.find(": " + path.string()); at != std::string::npos)
            words.resize(at);
        throw std::runtime_error("cannot read " + path.string() + ": " + words + "; " +
                                 Advice(errors.empty() ? 0 : errors.front().NativeError));
    }
    return source;
}

std::filesystem::path DatabaseOf(const Options& options)
{
    return options.Database ? *options.Database : MadeDatabase(options.Rows.value_or(UsualCount));
}

} // namespace Orders
