#include "ChoiceForm.h"
#include "EditorForm.h"

#include <QAccessible>

namespace Tessellon {

namespace {

QAccessibleInterface& Of(QObject& object)
{
    return *QAccessible::queryAccessibleInterface(&object);
}

class AccessibleEditors : public ChoiceForm {};

class AccessibleKinds : public EditorForm, public testing::WithParamInterface<FieldControlType> {};

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

/// What is shown is read either as a value or, of a widget of Qt's with lines, by its text interface.
TEST_P(AccessibleKinds, EditorBearsTheHeading_AndItsTextIsRead)
{
    FillWith(GetParam());
    Sheet->TextMatrix(2, 1, QStringLiteral("02/01/2024"));
    Click({2, 1});
    QAccessibleInterface& editor = Of(*QApplication::focusWidget());
    EXPECT_EQ(editor.role(), QAccessible::EditableText);
    EXPECT_EQ(editor.text(QAccessible::Name), QStringLiteral("First"));
    QString shown = editor.text(QAccessible::Value);
    if (shown.isEmpty() && editor.textInterface() != nullptr)
        shown = editor.textInterface()->text(0, editor.textInterface()->characterCount());
    EXPECT_EQ(shown, QStringLiteral("02/01/2024"));
}

INSTANTIATE_TEST_SUITE_P(Each, AccessibleKinds,
                         testing::Values(fcTextBox, fcComboBox, fcDatePicker, fcMaskedEditBox, fcRichTextBox));

} // namespace Tessellon
