#pragma once

#include "platform/Recordset.h"

#include <sql.h>
#include <vector>

namespace Tessellon::Odbc {

/// What driver and driver manager say of the last call on a handle, in their order; at least one.
std::vector<ProviderError> DiagnosticsOf(SQLSMALLINT kind, SQLHANDLE handle, bool isWide);

} // namespace Tessellon::Odbc
