#include "recordset/qtsql/QtSqlConnection.h"

#include "recordset/qtsql/QtSqlRecordset.h"

#include <utility>

namespace Tessellon {

QtSqlConnection::QtSqlConnection()
    : errors_(std::make_shared<std::vector<ProviderError>>())
{
}

QtSqlConnection::~QtSqlConnection() = default;

std::shared_ptr<QtSqlRecordset> QtSqlConnection::Records(QSqlQuery query)
{
    errors_->clear();
    return std::make_shared<QtSqlRecordset>(std::move(query), errors_);
}

const std::vector<ProviderError>& QtSqlConnection::Errors()
{
    return *errors_;
}

} // namespace Tessellon
