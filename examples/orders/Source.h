#pragma once

#include "orders/Options.h"

#include <filesystem>
#include <memory>

namespace Tessellon {
class SqliteConnection;
class SqliteRecordset;
} // namespace Tessellon

namespace Orders {

/// Where the orders come from.
struct Source {
    std::filesystem::path Path;
    std::shared_ptr<Tessellon::SqliteConnection> Connection;
    std::shared_ptr<Tessellon::SqliteRecordset> Records;
};

/// Opens a database of orders. What keeps it from being read is a std::runtime_error of one line that says what to do.
Source OpenDatabase(const std::filesystem::path& path);

/// Opens the database that the options name, or makes one in the user's cache folder. Failures are as
/// of OpenDatabase; a lock of another program is waited for some seconds.
Source OpenSource(const Options& options);

} // namespace Orders
