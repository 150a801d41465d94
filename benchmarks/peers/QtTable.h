#pragma once

#include <QHeaderView>
#include <QTableView>

#include <string>

namespace Bench {

/// A table of Qt's in which Enter ends the edit and goes on with the next cell, from row to row.
template <class Table>
class WithEnter : public Table {
protected:
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override
    {
        Table::closeEditor(editor, hint == QAbstractItemDelegate::SubmitModelCache ? QAbstractItemDelegate::EditNextItem
                                                                                   : hint);
    }
};

/// Rows and columns as large as the sheet's.
void Lay(QTableView& view);

/// Shows the table, fills it, and measures what a user does then.
template <class Fill>
void MeasureTable(QTableView& view, const Fill& fill);

void MeasureTableWidget(const std::string& database);
void MeasureStandardModel(const std::string& database);
void MeasureSqlModel(const std::string& database);

// What MeasureTable does ahead of the filling, and behind it.
void Begin(QTableView& view);
void Finish(QTableView& view);

} // namespace Bench

#include "screen/Window.h"

namespace Bench {

template <class Fill>
void MeasureTable(QTableView& view, const Fill& fill)
{
    Begin(view);
    Tell("seconds", SecondsOf([&] {
             fill();
             Paint();
         }));
    Finish(view);
}

} // namespace Bench
