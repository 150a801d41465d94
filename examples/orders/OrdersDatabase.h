#pragma once

#include <cstdint>
#include <filesystem>

namespace Orders {

/// The orders that the example shows, in the order of its columns:
/// number, customer, city, date, amount, currency, paid, state, phone, notes, slip, and the key, which is hidden.
inline constexpr const char* Query =
    "SELECT id AS number, customer, city, ordered, amount, currency, paid, "
    "CASE WHEN shipped THEN 'Shipped' ELSE 'Open' END AS state, phone, notes, 'Copy' AS slip, id "
    "FROM orders ORDER BY id";

inline constexpr std::int64_t UsualCount = 2'000;

/// Makes a SQLite database of orders that look real; the same count gives the same orders every time. It is written
/// beside path under another name and takes its place when it is whole, so a file that stood there is kept until then.
/// Failures are a std::runtime_error of one line, behind which nothing is left.
void MakeDatabase(const std::filesystem::path& path, std::int64_t count = UsualCount);

} // namespace Orders
