#pragma once

#include "roads/Road.h"

#include <string>

namespace Roads {

// One way for each kind of address, with what stands behind the colon. What they are refused is a Failure, or a
// std::runtime_error where it is no provider that refuses.
Destination TravelBySqlite(const std::string& file, const std::string& query);
Destination TravelByOdbc(const std::string& connectionText, const std::string& query);
Destination TravelByPostgres(const std::string& url, const std::string& query);
Destination TravelByQtSql(const std::string& driverAndName, const std::string& query);

/// A destination of a connection and its records, which tell their fields.
template <class Connection, class Records>
Destination Arrived(std::shared_ptr<Connection> connection, const std::shared_ptr<Records>& records)
{
    Destination destination{std::move(connection), records, {}};
    for (std::int32_t field = 0; field < records->FieldCount(); ++field)
        destination.Fields.push_back({records->FieldName(field), records->FieldType(field)});
    return destination;
}

} // namespace Roads
