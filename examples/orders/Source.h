#pragma once

#include "orders/Columns.h"
#include "platform/Recordset.h"

#include <QString>

#include <filesystem>
#include <functional>
#include <memory>

namespace Orders {

struct Options;

/// Where the rows of a sheet come from.
struct Source {
    QString Name; ///< As people know it; nothing in it is secret.
    std::shared_ptr<Tessellon::Connection> Connection;
    std::shared_ptr<Tessellon::Recordset> Records;
    Columns Layout;
    std::function<Source()> OpenAgain; ///< Fails as the first opening did.
};

/// Opens a database of orders. What keeps it from being read is a std::runtime_error of one line that says what to do.
Source OpenDatabase(const std::filesystem::path& path);

/// The database that the options name, or one that is made in the user's cache folder. Failures are as of OpenDatabase.
std::filesystem::path DatabaseOf(const Options& options);

} // namespace Orders
