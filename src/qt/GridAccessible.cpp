#include "qt/GridAccessible.h"

#include "qt/CellAccessible.h"
#include "qt/EditorAccessible.h"
#include "qt/GridView.h"
#include "qt/SheetFrame.h"
#include "qt/Texts.h"

#include <QApplication>
#include <QTimerEvent>

#include <limits>

namespace Tessellon {

namespace {

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object)
{
    if (auto* view = dynamic_cast<GridView*>(object))
        return new GridAccessible(*view);
    return object != nullptr ? MakeEditorAccessible(*object) : nullptr;
}

} // namespace

void GridAccessible::Install()
{
    QAccessible::installFactory(MakeAccessible);
}

GridAccessible::GridAccessible(GridView& view)
    : QAccessibleWidget(&view, QAccessible::Table)
    , view_(view)
{
}

GridAccessible::~GridAccessible()
{
    for (const QAccessible::Id id : std::as_const(cells_))
        QAccessible::deleteAccessibleInterface(id);
}

GridEngine& GridAccessible::Grid() const
{
    return view_.Frame().Platform()->TheGrid();
}

bool GridAccessible::HasFocus() const
{
    const QWidget* focus = QApplication::focusWidget();
    return focus != nullptr && (focus == &view_ || view_.isAncestorOf(focus));
}

QAccessibleInterface* GridAccessible::CellAt(GridCell cell) const
{
    constexpr qsizetype mostCells = 10'000;
    GridEngine& grid = Grid();
    if (cell.Row < 0 || cell.Row >= grid.Rows() || cell.Col < 0 || cell.Col >= grid.Cols())
        return nullptr;
    const qint64 key = (qint64{cell.Row} << 32) | cell.Col;
    if (const auto found = cells_.constFind(key); found != cells_.cend())
        return QAccessible::accessibleInterface(*found);
    // A reader that walks down a million rows leaves them behind.
    if (cells_.size() >= mostCells) {
        for (const QAccessible::Id id : std::as_const(cells_))
            QAccessible::deleteAccessibleInterface(id);
        cells_.clear();
    }
    auto* made = new CellAccessible(*this, cell);
    cells_.insert(key, QAccessible::registerAccessibleInterface(made));
    return made;
}

void* GridAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

// ---- Children -------------------------------------------------------------------------------------------------------

QList<QWidget*> GridAccessible::EditorsUp() const
{
    QList<QWidget*> editors;
    for (QWidget* child : view_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (child->isVisible() && !child->isWindow())
            editors.append(child);
    return editors;
}

QAccessibleInterface* GridAccessible::child(int index) const
{
    GridEngine& grid = Grid();
    const qint64 cells = qint64{grid.Rows()} * grid.Cols();
    if (index < 0)
        return nullptr;
    if (index < cells)
        return CellAt({index / grid.Cols(), index % grid.Cols()});
    const QList<QWidget*> editors = EditorsUp();
    const qint64 editor = index - cells;
    return editor < editors.size() ? QAccessible::queryAccessibleInterface(editors[editor]) : nullptr;
}

int GridAccessible::childCount() const
{
    GridEngine& grid = Grid();
    const qint64 count = qint64{grid.Rows()} * grid.Cols() + EditorsUp().size();
    return static_cast<int>(std::min<qint64>(count, std::numeric_limits<int>::max()));
}

int GridAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    GridEngine& grid = Grid();
    if (child == nullptr)
        return -1;
    if (const auto* cell = dynamic_cast<const CellAccessible*>(child))
        return cell->Cell().Row * grid.Cols() + cell->Cell().Col;
    const qsizetype editor = EditorsUp().indexOf(qobject_cast<QWidget*>(child->object()));
    return editor < 0 ? -1 : grid.Rows() * grid.Cols() + static_cast<int>(editor);
}

QAccessibleInterface* GridAccessible::childAt(int x, int y) const
{
    const QPoint place = view_.mapFromGlobal(QPoint(x, y));
    if (!view_.rect().contains(place))
        return nullptr;
    for (QWidget* editor : EditorsUp())
        if (editor->geometry().contains(place))
            return QAccessible::queryAccessibleInterface(editor);
    const std::optional<GridCell> cell = view_.CellAt(place);
    return cell ? CellAt(*cell) : nullptr;
}

QAccessibleInterface* GridAccessible::focusChild() const
{
    QWidget* focus = QApplication::focusWidget();
    if (focus == &view_)
        return CellAt(Grid().Selection().Current);
    return HasFocus() ? QAccessible::queryAccessibleInterface(focus) : nullptr;
}

/// The name is the one that the host gave its sheet.
QString GridAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        for (const QWidget* named = &view_; named != nullptr && !named->isWindow(); named = named->parentWidget())
            if (!named->accessibleName().isEmpty())
                return named->accessibleName();
    return QAccessibleWidget::text(kind);
}

// ---- The table ------------------------------------------------------------------------------------------------------

QAccessibleInterface* GridAccessible::cellAt(int row, int column) const
{
    return row < 0 || column < 0 ? nullptr : CellAt({row + Grid().FixedRows(), column + Grid().FixedCols()});
}

int GridAccessible::columnCount() const
{
    return Grid().Cols() - Grid().FixedCols();
}

int GridAccessible::rowCount() const
{
    return Grid().Rows() - Grid().FixedRows();
}

QString GridAccessible::columnDescription(int column) const
{
    const QAccessibleInterface* heading = CellAt({0, column + Grid().FixedCols()});
    return heading != nullptr ? heading->text(QAccessible::Name) : QString();
}

QString GridAccessible::rowDescription(int row) const
{
    const QAccessibleInterface* heading = CellAt({row + Grid().FixedRows(), 0});
    return heading != nullptr ? heading->text(QAccessible::Name) : QString();
}

int GridAccessible::selectedCellCount() const
{
    return static_cast<int>(selectedCells().size());
}

/// No more than a reader can want to hear.
QList<QAccessibleInterface*> GridAccessible::selectedCells() const
{
    constexpr qsizetype mostCells = 1000;
    const GridSelection selection = Grid().Selection();
    QList<QAccessibleInterface*> cells;
    for (std::int32_t row = std::max(selection.FirstRow(), Grid().FixedRows()); row <= selection.LastRow(); ++row)
        for (std::int32_t col = std::max(selection.FirstCol(), Grid().FixedCols()); col <= selection.LastCol(); ++col)
            if (cells.size() < mostCells)
                cells.append(CellAt({row, col}));
            else
                return cells;
    return cells;
}

bool GridAccessible::isColumnSelected(int column) const
{
    const GridSelection selection = Grid().Selection();
    const std::int32_t col = column + Grid().FixedCols();
    return rowCount() > 0 && col >= selection.FirstCol() && col <= selection.LastCol() &&
           selection.FirstRow() <= Grid().FixedRows() && selection.LastRow() == Grid().Rows() - 1;
}

bool GridAccessible::isRowSelected(int row) const
{
    const GridSelection selection = Grid().Selection();
    const std::int32_t index = row + Grid().FixedRows();
    return columnCount() > 0 && index >= selection.FirstRow() && index <= selection.LastRow() &&
           selection.FirstCol() <= Grid().FixedCols() && selection.LastCol() == Grid().Cols() - 1;
}

QList<int> GridAccessible::selectedColumns() const
{
    QList<int> columns;
    for (int column = 0; column < columnCount(); ++column)
        if (isColumnSelected(column))
            columns.append(column);
    return columns;
}

QList<int> GridAccessible::selectedRows() const
{
    const GridSelection selection = Grid().Selection();
    QList<int> rows;
    for (std::int32_t row = selection.FirstRow(); row <= selection.LastRow(); ++row)
        if (isRowSelected(row - Grid().FixedRows()))
            rows.append(row - Grid().FixedRows());
    return rows;
}

bool GridAccessible::Select(GridCell heading)
{
    if (CellAt(heading) == nullptr)
        return false;
    view_.ClickCell(heading);
    return true;
}

bool GridAccessible::selectRow(int row)
{
    return row >= 0 && Select({row + Grid().FixedRows(), 0});
}

bool GridAccessible::selectColumn(int column)
{
    return column >= 0 && Select({0, column + Grid().FixedCols()});
}

// ---- What readers are told ------------------------------------------------------------------------------------------

AccessibleEcho::AccessibleEcho(GridView& view)
    : view_(view)
{
}

void AccessibleEcho::GridChanged()
{
    if ((QAccessible::isActive() || view_.Frame().OnReader) && !later_.isActive())
        later_.start(0, this);
}

void AccessibleEcho::Tell(QAccessibleEvent& event) const
{
    if (view_.Frame().OnReader)
        view_.Frame().OnReader(event);
    else
        QAccessible::updateAccessibility(&event);
}

void AccessibleEcho::timerEvent(QTimerEvent* /*event*/)
{
    later_.stop();
    GridEngine& grid = view_.Frame().Platform()->TheGrid();
    auto* table = dynamic_cast<GridAccessible*>(QAccessible::queryAccessibleInterface(&view_));
    if (table == nullptr)
        return;
    if (grid.Rows() != toldRows_ || grid.Cols() != toldCols_) {
        toldRows_ = grid.Rows();
        toldCols_ = grid.Cols();
        QAccessibleTableModelChangeEvent event(&view_, QAccessibleTableModelChangeEvent::ModelReset);
        Tell(event);
    }
    if (grid.Selection() == told_)
        return;
    told_ = grid.Selection();
    const int current = table->indexOfChild(table->CellAt(told_.Current));
    const auto tell = [&](QAccessible::Event kind) {
        QAccessibleEvent event(&view_, kind);
        event.setChild(current);
        Tell(event);
    };
    tell(QAccessible::Selection);
    // An editor that has the focus speaks for itself.
    if (QApplication::focusWidget() == &view_)
        tell(QAccessible::Focus);
}

} // namespace Tessellon
