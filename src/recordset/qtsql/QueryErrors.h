#pragma once

#include "platform/Failure.h"
#include "platform/Recordset.h"

#include <vector>

class QSqlQuery;

namespace Tessellon::QtSql {

/// Notes in errors why a query gives no record where one was asked for, and gives the failure to throw. What the query
/// says itself goes ahead of what its connection says.
Failure Noted(const QSqlQuery& query, std::vector<ProviderError>& errors);

} // namespace Tessellon::QtSql
