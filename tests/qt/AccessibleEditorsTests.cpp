#include "ChoiceForm.h"

#include <QAccessible>

namespace Tessellon {

namespace {

class AccessibleEditors : public ChoiceForm {
protected:
    [[nodiscard]] static QAccessibleInterface& Of(QObject& object)
    {
        return *QAccessible::queryAccessibleInterface(&object);
    }
};

} // namespace

TEST_F(AccessibleEditors, ListOffersItsEntries_AndWhichAreSelected)
{
    WindowClick({1, 2});
    QAccessibleInterface& list = Of(ListBox());
    EXPECT_EQ(list.role(), QAccessible::List);
    EXPECT_EQ(list.text(QAccessible::Name), Sheet->ColumnHeader(2));
    ASSERT_EQ(list.childCount(), ListBox().EntryCount());
    Key(Qt::Key_Home);
    Key(Qt::Key_Down);
    EXPECT_EQ(list.child(1)->role(), QAccessible::ListItem);
    EXPECT_EQ(list.child(1)->text(QAccessible::Name), ListBox().EntryText(1));
    EXPECT_TRUE(list.child(1)->state().selected);
    EXPECT_FALSE(list.child(0)->state().selected);
    EXPECT_EQ(list.focusChild(), list.child(1));
    EXPECT_EQ(list.indexOfChild(list.child(1)), 1);
    EXPECT_EQ(list.child(list.childCount()), nullptr);
    const QPoint middle = list.child(1)->rect().center();
    EXPECT_EQ(list.childAt(middle.x(), middle.y()), list.child(1));
}

TEST_F(AccessibleEditors, OpenListOfACombo_OffersItsEntries)
{
    WindowClick({1, 1});
    Key(Qt::Key_F4);
    auto* open = Sheet->findChild<ComboList*>();
    ASSERT_NE(open, nullptr);
    ASSERT_TRUE(open->isVisible());
    QAccessibleInterface& list = Of(*open);
    EXPECT_EQ(list.role(), QAccessible::List);
    EXPECT_EQ(list.childCount(), open->EntryCount());
    Key(Qt::Key_Down);
    EXPECT_TRUE(list.child(open->CurrentEntry())->state().selected);
}

} // namespace Tessellon
