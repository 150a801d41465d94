#pragma once

#include "engine/grid/GridTypes.h"

#include <QAccessibleTableInterface>
#include <QAccessibleWidget>
#include <QBasicTimer>
#include <QHash>
#include <QObject>

namespace Tessellon {

class GridEngine;
class GridView;

/// The painted grid as a screen reader knows it: a table of the data cells, with their headings. Its children are all
/// cells, row by row, those of the heading row and of the marker column among them, and behind them the editors that
/// are up. Cells are made when they are asked for.
class GridAccessible final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit GridAccessible(GridView& view);
    ~GridAccessible() override;

    static void Install(); ///< From now on grids, and the editors that are painted here, are known as such.

    [[nodiscard]] GridView& View() const { return view_; }
    [[nodiscard]] GridEngine& Grid() const;
    [[nodiscard]] QAccessibleInterface* CellAt(GridCell cell) const; ///< Null for one that is not there.
    [[nodiscard]] bool HasFocus() const; ///< The sheet's, in the grid or in an editor.

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;

    // Rows and columns of data, from 0.
    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override;
    [[nodiscard]] int selectedCellCount() const override;
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;
    [[nodiscard]] QString columnDescription(int column) const override;
    [[nodiscard]] QString rowDescription(int row) const override;
    [[nodiscard]] int selectedColumnCount() const override { return static_cast<int>(selectedColumns().size()); }
    [[nodiscard]] int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    [[nodiscard]] int columnCount() const override;
    [[nodiscard]] int rowCount() const override;
    [[nodiscard]] QList<int> selectedColumns() const override;
    [[nodiscard]] QList<int> selectedRows() const override;
    [[nodiscard]] bool isColumnSelected(int column) const override;
    [[nodiscard]] bool isRowSelected(int row) const override;
    bool selectRow(int row) override; ///< As by a press on its marker.
    bool selectColumn(int column) override; ///< As by a press on its heading.
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

private:
    [[nodiscard]] QList<QWidget*> EditorsUp() const;
    bool Select(GridCell heading);

    GridView& view_;
    mutable QHash<qint64, QAccessible::Id> cells_; ///< Of those that were asked for lately.
};

/// Tells screen readers, a little later and only if there are any, that the cursor, the selection or the shape of a
/// grid is another.
class AccessibleEcho : public QObject {
public:
    explicit AccessibleEcho(GridView& view);

    void GridChanged();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void Tell(QAccessibleEvent& event) const;

    GridView& view_;
    QBasicTimer later_;
    GridSelection told_;
    std::int32_t toldRows_ = 0;
    std::int32_t toldCols_ = 0;
};

} // namespace Tessellon
