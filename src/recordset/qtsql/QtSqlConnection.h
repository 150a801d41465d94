#pragma once

#include "platform/Recordset.h"

#include <memory>
#include <vector>

class QSqlQuery;

namespace Tessellon {

class QtSqlRecordset;

/// The connection beside queries that a host runs itself. It opens nothing: it gives their records, and tells what went
/// wrong with them.
class QtSqlConnection final : public Connection {
public:
    QtSqlConnection();
    ~QtSqlConnection() override;

    /// The records of a query, which is taken over (std::move). Nothing is read yet and nothing fails: a query that
    /// failed, was not executed or gives no records is a failure of the first question to the recordset.
    std::shared_ptr<QtSqlRecordset> Records(QSqlQuery query);

    /// What the last failure of a recordset said: the database's words ahead of the driver's. The next Records empties
    /// it.
    const std::vector<ProviderError>& Errors() override;

private:
    std::shared_ptr<std::vector<ProviderError>> errors_; ///< Shared with the recordsets.
};

} // namespace Tessellon
