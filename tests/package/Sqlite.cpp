#include "platform/Failure.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"

int main()
{
    using namespace Tessellon;
    const auto connection = SqliteConnection::Open(u":memory:");
    if (connection->Query(u"SELECT 'Ada' AS customer")->FieldName(0) != u"customer")
        return 1;
    try {
        connection->Query(u"SELECT customer FROM nowhere");
    } catch (const Failure& failure) {
        return failure.Source == u"Recordset" ? 0 : 2;
    }
    return 3;
}
