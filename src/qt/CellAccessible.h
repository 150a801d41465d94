#pragma once

#include "engine/grid/GridTypes.h"
#include "qt/LeafAccessible.h"

#include <QAccessibleActionInterface>
#include <QAccessibleTableCellInterface>

namespace Tessellon {

class GridAccessible;

/// A cell of the grid as a screen reader knows it: a data cell with its text, a heading, or the number of a row. One
/// whose row or column is gone is not valid any more.
class CellAccessible final : public LeafAccessible,
                             public QAccessibleTableCellInterface,
                             public QAccessibleActionInterface {
public:
    CellAccessible(const GridAccessible& table, GridCell cell);

    [[nodiscard]] GridCell Cell() const { return cell_; }

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;

    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override;
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override;
    [[nodiscard]] int columnIndex() const override; ///< Of the data, from 0; -1 of the marker column.
    [[nodiscard]] int rowIndex() const override;
    [[nodiscard]] bool isSelected() const override;
    [[nodiscard]] QAccessibleInterface* table() const override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override; ///< As by a click on it.
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    [[nodiscard]] bool IsHeading() const { return cell_.Row == 0; }
    [[nodiscard]] bool IsMarker() const { return cell_.Col == 0; }

    const GridAccessible& table_;
    GridCell cell_;
};

} // namespace Tessellon
