#pragma once

#include "orders/Source.h"
#include "roads/Road.h"

#include <string>
#include <vector>

namespace Orders {

/// Opens what a query gives on a connection of any kind. A column that has a long text in the first record does not
/// follow its content. Failures are those of Roads::Travel.
Source OpenQuery(const std::string& connection, const std::string& query);

/// A column for each field: a check box for booleans, a date picker for dates, a text box for all else, numbers on the
/// right. Dates are written with the time of day where a field has one.
Columns ColumnsOf(const std::vector<Roads::Field>& fields);

} // namespace Orders
