#include "qt/SheetWidget.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"

#include <QApplication>
#include <QSqlDatabase>
#include <QSqlQuery>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Tessellon::SheetWidget sheet;
    sheet.Cols(2);
    sheet.CreateColumnDataType(1, "Customer", Tessellon::fcTextBox, "", false, Tessellon::fcLeft, 0,
                               Tessellon::faContent, false);
    sheet.BuildGridColumns();
    const auto connection = Tessellon::SqliteConnection::Open(u":memory:");
    sheet.DataSource(connection->Query(u"SELECT 'Ada' AS customer"), connection);
    sheet.show();
    QApplication::processEvents();
    if (sheet.TextMatrix(1, 1) != "Ada")
        return 1;
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName(":memory:");
    if (!database.open())
        return 2;
    sheet.DataSource(QSqlQuery("SELECT 'Grace'"));
    return sheet.TextMatrix(1, 1) == "Grace" ? 0 : 3;
}
