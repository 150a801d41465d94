// QTableView on a QSqlTableModel that fetches all its records, so that each can be gone to.

#include "peers/QtTable.h"

#include <QSqlDatabase>
#include <QSqlTableModel>

namespace Bench {

void MeasureSqlModel(const std::string& database)
{
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    connection.setDatabaseName(QString::fromStdString(database));
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    Demand(connection.open(), "the database can be opened");
    QSqlTableModel model(nullptr, connection);
    // What is edited stays with the user.
    model.setEditStrategy(QSqlTableModel::OnManualSubmit);
    WithEnter<QTableView> view;
    MeasureTable(view, [&] {
        model.setTable(QStringLiteral("records"));
        model.setSort(0, Qt::AscendingOrder);
        Demand(model.select(), "the records can be read");
        while (model.canFetchMore())
            model.fetchMore();
        view.setModel(&model);
    });
}

} // namespace Bench
