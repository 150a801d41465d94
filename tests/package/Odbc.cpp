#include "platform/Failure.h"
#include "recordset/odbc/OdbcConnection.h"
#include "recordset/odbc/OdbcRecordset.h"

#ifdef SQL_NTS
#error "The headers of the package bring those of ODBC along."
#endif

int main()
{
    using namespace Tessellon;
    OdbcConnection connection;
    try {
        connection.Connect(u"DSN=a data source that nobody has");
    } catch (const Failure& failure) {
        if (failure.Source != u"Recordset" || connection.Errors().front().SQLState != u"IM002")
            return 1;
    }
    try {
        return connection.Query(u"SELECT 1")->FieldCount() + 1;
    } catch (const Failure&) {
        return 0;
    }
}
