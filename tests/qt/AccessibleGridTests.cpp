#include "Form.h"

#include "qt/GridAccessible.h"

#include <QAccessible>

#include <utility>
#include <vector>

namespace Tessellon {

namespace {

class AccessibleGrid : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill(*Sheet, 200);
        Sheet->TextMatrix(2, 1, QStringLiteral("Ada"));
        Sheet->setAccessibleName(QStringLiteral("Orders"));
        Click({2, 1});
    }

    [[nodiscard]] QAccessibleInterface& Table() const { return *QAccessible::queryAccessibleInterface(&View()); }
    [[nodiscard]] QAccessibleTableInterface& Cells() const { return *Table().tableInterface(); }
    [[nodiscard]] QAccessibleInterface& Cell(int row, int column) const { return *Cells().cellAt(row, column); }
    [[nodiscard]] static QString Name(const QAccessibleInterface& of) { return of.text(QAccessible::Name); }
    [[nodiscard]] GridEngine& Grid() const { return Frame().Platform()->TheGrid(); }
};

} // namespace

TEST_F(AccessibleGrid, IsATableOfDataRowsAndColumns_NamedByItsHost)
{
    EXPECT_EQ(Table().role(), QAccessible::Table);
    EXPECT_EQ(Name(Table()), QStringLiteral("Orders"));
    EXPECT_EQ(Cells().rowCount(), Sheet->Rows() - 1);
    EXPECT_EQ(Cells().columnCount(), Sheet->Cols() - 1);
    EXPECT_EQ(Table().childCount(), Sheet->Rows() * Sheet->Cols() + 1) << "all cells, and the editor that is up";
}

TEST_F(AccessibleGrid, CellGivesItsTextAndItsHeadings)
{
    const QAccessibleInterface& cell = Cell(1, 0);
    EXPECT_EQ(cell.role(), QAccessible::Cell);
    EXPECT_EQ(Name(cell), QStringLiteral("Ada"));
    auto& place = *Cell(1, 0).tableCellInterface();
    EXPECT_EQ(place.rowIndex(), 1);
    EXPECT_EQ(place.columnIndex(), 0);
    ASSERT_EQ(place.columnHeaderCells().size(), 1);
    EXPECT_EQ(place.columnHeaderCells()[0]->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(Name(*place.columnHeaderCells()[0]), Sheet->ColumnHeader(1));
    EXPECT_EQ(Cells().columnDescription(0), Sheet->ColumnHeader(1));
    EXPECT_EQ(place.rowHeaderCells()[0]->role(), QAccessible::RowHeader);
    EXPECT_EQ(Cells().rowDescription(1), QStringLiteral("2"));
    EXPECT_EQ(Cells().cellAt(Sheet->Rows() - 1, 0), nullptr);
    EXPECT_EQ(Cells().cellAt(-1, 0), nullptr);
}

TEST_F(AccessibleGrid, ChildrenAreFoundByNumberAndByPlace)
{
    for (const int index : {0, 1, Sheet->Cols(), Sheet->Cols() * 2 + 1, Table().childCount() - 1}) {
        QAccessibleInterface* child = Table().child(index);
        ASSERT_NE(child, nullptr) << index;
        EXPECT_EQ(Table().indexOfChild(child), index);
        EXPECT_EQ(child->parent(), &Table());
    }
    EXPECT_EQ(Table().child(Table().childCount()), nullptr);
    const QPoint middle = View().mapToGlobal(MiddleOf({3, 2}));
    ASSERT_NE(Table().childAt(middle.x(), middle.y()), nullptr);
    EXPECT_EQ(Table().childAt(middle.x(), middle.y()), Cells().cellAt(2, 1));
    EXPECT_TRUE(Cell(2, 1).rect().contains(middle));
}

TEST_F(AccessibleGrid, CurrentCellAndSelectionAreKnown)
{
    EXPECT_TRUE(Cell(1, 0).state().focused);
    EXPECT_TRUE(Cell(1, 0).state().selected);
    EXPECT_FALSE(Cell(2, 0).state().selected);
    Click({1, 1});
    QTest::mousePress(&View(), Qt::LeftButton, {}, MiddleOf({0, 2}));
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, MiddleOf({0, 2}));
    EXPECT_TRUE(Cells().isColumnSelected(1));
    EXPECT_FALSE(Cells().isColumnSelected(0));
    EXPECT_EQ(Cells().selectedColumns(), QList<int>{1});
    EXPECT_TRUE(Cells().selectRow(4));
    EXPECT_EQ(Cells().selectedRows(), QList<int>{4});
    EXPECT_EQ(Cells().selectedCellCount(), Sheet->Cols() - 1);
    EXPECT_EQ(Sheet->Row(), 5);
}

TEST_F(AccessibleGrid, CellOutOfViewSaysSo_AndCanBeEntered)
{
    QAccessibleInterface& far = Cell(150, 1);
    EXPECT_TRUE(far.state().offscreen);
    ASSERT_TRUE(far.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    far.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Sheet->Row(), 151);
    EXPECT_EQ(Sheet->Col(), 2);
    EXPECT_FALSE(far.state().offscreen);
}

TEST_F(AccessibleGrid, CellWhoseRowIsGone_IsNotValid)
{
    QAccessibleInterface& last = Cell(Cells().rowCount() - 1, 0);
    EXPECT_TRUE(last.isValid());
    Sheet->Delete(Sheet->Rows() - 1);
    EXPECT_FALSE(last.isValid());
    EXPECT_TRUE(last.state().invalid);
    EXPECT_EQ(Name(last), QString());
}

TEST_F(AccessibleGrid, EditorBearsTheHeadingOfItsColumn_AndHasTheFocus)
{
    QAccessibleInterface* editor = Table().focusChild();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->object(), &Box());
    EXPECT_EQ(Name(*editor), Sheet->ColumnHeader(1));
    EXPECT_EQ(editor->text(QAccessible::Value), QStringLiteral("Ada"));
    Key(Qt::Key_Return);
    EXPECT_EQ(Name(*QAccessible::queryAccessibleInterface(QApplication::focusWidget())), Sheet->ColumnHeader(2));
    Key(Qt::Key_Escape);
    EXPECT_EQ(Table().focusChild(), Cells().cellAt(1, 1));
}

TEST_F(AccessibleGrid, ReadersAreToldOfTheCursorAndOfTheShape)
{
    using Told = std::vector<std::pair<QAccessible::Event, int>>;
    Told told; // and the child that it was told of
    Frame().OnReader = [&](QAccessibleEvent& event) { told.emplace_back(event.type(), event.child()); };
    const auto take = [&] {
        QTest::qWait(5);
        return std::exchange(told, {});
    };
    Click({1, 1});
    take();

    Key(Qt::Key_Down);
    EXPECT_EQ(take(), (Told{{QAccessible::Selection, 2 * Sheet->Cols() + 1}})) << "the editor speaks for itself";
    QTest::mouseClick(&View(), Qt::LeftButton, {}, MiddleOf({0, 2}));
    const int current = 2 * Sheet->Cols() + 2;
    EXPECT_EQ(take(), (Told{{QAccessible::Selection, current}, {QAccessible::Focus, current}}));
    Sheet->Delete(9);
    EXPECT_EQ(take().front().first, QAccessible::TableModelChanged);
    Frame().OnReader = nullptr;
}

} // namespace Tessellon
