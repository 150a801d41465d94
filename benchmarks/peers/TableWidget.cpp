// QTableWidget as a host would fill it in bulk: nothing painted and nobody told meanwhile.

#include "peers/QtTable.h"
#include "peers/Records.h"
#include "support/Records.h"

#include <QSignalBlocker>
#include <QTableWidget>

namespace Bench {

void MeasureTableWidget(const std::string& database)
{
    WithEnter<QTableWidget> table;
    MeasureTable(table, [&] {
        table.setUpdatesEnabled(false);
        table.setColumnCount(fieldCount);
        table.setRowCount(Records::Count(database));
        {
            const QSignalBlocker blocker(table.model());
            Records records(database, query);
            for (int row = 0; records.Next(); ++row)
                for (int field = 0; field < fieldCount; ++field)
                    table.setItem(row, field, new QTableWidgetItem(QString::fromUtf8(records.Text(field))));
        }
        table.setUpdatesEnabled(true);
    });
}

} // namespace Bench
