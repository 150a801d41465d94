#include "recordset/common/Unicode.h"
#include "recordset/odbc/OdbcConnection.h"
#include "recordset/odbc/OdbcRecordset.h"
#include "roads/Ways.h"

namespace Roads {

using namespace Tessellon;

Destination TravelByOdbc(const std::string& connectionText, const std::string& query)
{
    const auto connection = OdbcConnection::Open(Common::ToUtf16(connectionText));
    return Arrived(connection, connection->Query(Common::ToUtf16(query)));
}

} // namespace Roads
