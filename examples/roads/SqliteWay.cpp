#include "recordset/common/Unicode.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"
#include "roads/Ways.h"

namespace Roads {

using namespace Tessellon;

Destination TravelBySqlite(const std::string& file, const std::string& query)
{
    const auto connection = SqliteConnection::Open(std::filesystem::path(file).u16string());
    return Arrived(connection, connection->Query(Common::ToUtf16(query)));
}

} // namespace Roads
