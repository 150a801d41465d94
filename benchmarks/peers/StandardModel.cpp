// QTableView on a QStandardItemModel, which gets its items ahead of the view.

#include "peers/QtTable.h"
#include "peers/Records.h"
#include "support/Records.h"

#include <QStandardItemModel>

namespace Bench {

void MeasureStandardModel(const std::string& database)
{
    QStandardItemModel model;
    WithEnter<QTableView> view;
    MeasureTable(view, [&] {
        model.setColumnCount(fieldCount);
        model.setRowCount(Records::Count(database));
        Records records(database, query);
        for (int row = 0; records.Next(); ++row)
            for (int field = 0; field < fieldCount; ++field)
                model.setItem(row, field, new QStandardItem(QString::fromUtf8(records.Text(field))));
        view.setModel(&model);
    });
}

} // namespace Bench
