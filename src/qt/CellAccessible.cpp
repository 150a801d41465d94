#include "qt/CellAccessible.h"

#include "qt/GridAccessible.h"
#include "qt/GridView.h"
#include "qt/SheetFrame.h"
#include "qt/Texts.h"

namespace Tessellon {

CellAccessible::CellAccessible(const GridAccessible& table, GridCell cell)
    : table_(table)
    , cell_(cell)
{
}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

bool CellAccessible::isValid() const
{
    return table_.isValid() && cell_.Row < table_.Grid().Rows() && cell_.Col < table_.Grid().Cols();
}

QWindow* CellAccessible::window() const
{
    return table_.window();
}

QAccessibleInterface* CellAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(&table_.View());
}

QAccessibleInterface* CellAccessible::table() const
{
    return parent();
}

QString CellAccessible::text(QAccessible::Text kind) const
{
    if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Value))
        return {};
    if (IsMarker())
        return IsHeading() ? QString() : QString::number(cell_.Row);
    return OwnText(table_.Grid().TextOf(cell_));
}

QRect CellAccessible::rect() const
{
    if (!isValid())
        return {};
    const GridView& view = table_.View();
    const QRect place = view.PixelsAround(table_.Grid().RectangleOf(cell_));
    return {view.mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::Role CellAccessible::role() const
{
    if (IsHeading())
        return IsMarker() ? QAccessible::Pane : QAccessible::ColumnHeader;
    return IsMarker() ? QAccessible::RowHeader : QAccessible::Cell;
}

QAccessible::State CellAccessible::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    GridEngine& grid = table_.Grid();
    const bool isRowInView = IsHeading() || grid.VisibleRows().Contains(cell_.Row);
    const bool isColInView = IsMarker() || grid.VisibleCols().Contains(cell_.Col);
    state.invisible = grid.ColWidth(cell_.Col) == 0 || !table_.View().isVisible();
    state.offscreen = !isRowInView || !isColInView;
    state.disabled = !grid.Enabled();
    if (role() != QAccessible::Cell)
        return state;
    state.selectable = true;
    state.selected = isSelected();
    state.focusable = grid.Enabled();
    state.focused = grid.Selection().Current == cell_ && table_.HasFocus();
    return state;
}

QList<QAccessibleInterface*> CellAccessible::columnHeaderCells() const
{
    return {table_.CellAt({0, cell_.Col})};
}

QList<QAccessibleInterface*> CellAccessible::rowHeaderCells() const
{
    return {table_.CellAt({cell_.Row, 0})};
}

int CellAccessible::columnIndex() const
{
    return cell_.Col - table_.Grid().FixedCols();
}

int CellAccessible::rowIndex() const
{
    return cell_.Row - table_.Grid().FixedRows();
}

bool CellAccessible::isSelected() const
{
    return table_.Grid().Selection().Contains(cell_);
}

QStringList CellAccessible::actionNames() const
{
    return isValid() && table_.Grid().Enabled() ? QStringList{pressAction(), setFocusAction()} : QStringList();
}

void CellAccessible::doAction(const QString& name)
{
    if (actionNames().contains(name))
        table_.View().ClickCell(cell_);
}

} // namespace Tessellon
