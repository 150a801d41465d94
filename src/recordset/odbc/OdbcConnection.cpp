#include "recordset/odbc/OdbcConnection.h"

#include "recordset/odbc/OdbcRecordset.h"
#include "recordset/odbc/OdbcSession.h"
#include "recordset/odbc/Statement.h"

#include <utility>

namespace Tessellon {

std::shared_ptr<OdbcConnection> OdbcConnection::Open(std::u16string_view connectionText, const OdbcOptions& options)
{
    auto connection = std::make_shared<OdbcConnection>();
    connection->Connect(connectionText, options);
    return connection;
}

OdbcConnection::OdbcConnection()
    : session_(std::make_shared<OdbcSession>())
{
}

OdbcConnection::~OdbcConnection() = default;

void OdbcConnection::Connect(std::u16string_view connectionText, const OdbcOptions& options)
{
    session_ = std::make_shared<OdbcSession>();
    session_->Open(connectionText, options.LoginSeconds);
}

std::shared_ptr<OdbcRecordset> OdbcConnection::Query(std::u16string_view statement)
{
    session_->SettleRecordsets();
    session_->ForgetErrors();
    if (!session_->IsOpen())
        throw session_->Noted(u"08003", u"the connection is not open");
    auto run = std::make_unique<Odbc::Statement>(session_);
    run->Run(statement);
    return std::make_shared<OdbcRecordset>(session_, std::move(run));
}

const std::vector<ProviderError>& OdbcConnection::Errors()
{
    return session_->Errors();
}

} // namespace Tessellon
