#pragma once

#include "platform/Recordset.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Roads {

/// A connection text, as "sqlite:FILE": which road it takes, and what stands behind the colon.
struct Address {
    enum class Kind : std::uint8_t { Sqlite, Odbc, Postgres, QtSql };

    /// A text of no known road is a std::runtime_error of one line that names them all.
    explicit Address(const std::string& text);

    /// What people call the place, as "orders.db" or "shop on db.example.org". No secret is in it.
    [[nodiscard]] std::string Name() const;
    /// The file that is read, where it is known to be one.
    [[nodiscard]] std::optional<std::filesystem::path> File() const;

    Kind Road;
    std::string Rest;
};

struct Field {
    std::u16string Name;
    std::int32_t Type = 0; ///< A number of DataTypeEnum.
};

/// The records of a query, and whence they come.
struct Destination {
    std::shared_ptr<Tessellon::Connection> Connection;
    std::shared_ptr<Tessellon::Recordset> Records;
    std::vector<Field> Fields;
};

/// Connects and runs a query, in UTF-8. What keeps it from being shown is a std::runtime_error of one line, in the
/// words of whoever refuses it. In those words, and in what the connection tells later, no secret of the connection
/// text is seen. It wants a QCoreApplication.
Destination Travel(const std::string& connection, const std::string& query);

} // namespace Roads
