#include "recordset/qtsql/QtSqlConnection.h"
#include "recordset/qtsql/QtSqlRecordset.h"

#include <QCoreApplication>
#include <QSqlDatabase>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName(":memory:");
    if (!database.open())
        return 1;
    Tessellon::QtSqlConnection connection;
    return connection.Records(QSqlQuery("SELECT 'Ada'"))->FieldValue(0).Characters == u"Ada" ? 0 : 2;
}
