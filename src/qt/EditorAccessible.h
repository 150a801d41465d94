#pragma once

#include "qt/LeafAccessible.h"

#include <QAccessibleWidget>
#include <QHash>

namespace Tessellon {

class EditorWidget;
class EntryArea;

/// An editor that is painted here, as a screen reader knows it: what it shows is its value. Those that are widgets of
/// Qt's speak for themselves.
class EditorAccessible final : public QAccessibleWidget {
public:
    explicit EditorAccessible(EditorWidget& editor);

    [[nodiscard]] QString text(QAccessible::Text kind) const override;

private:
    EditorWidget& editor_;
};

/// A list of entries as a screen reader knows it; its children are the entries.
class EntriesAccessible final : public QAccessibleWidget {
public:
    explicit EntriesAccessible(EntryArea& area);
    ~EntriesAccessible() override;

    [[nodiscard]] EntryArea& Area() const { return area_; }

    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

private:
    EntryArea& area_;
    mutable QHash<int, QAccessible::Id> entries_; ///< Of those that were asked for.
};

/// One entry. It is not valid where the list has become shorter.
class EntryAccessible final : public LeafAccessible {
public:
    EntryAccessible(const EntriesAccessible& list, int index);

    [[nodiscard]] int Index() const { return index_; }

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override;

private:
    const EntriesAccessible& list_;
    int index_;
};

/// What there is to say of an object of the sheet's own making; null for all others.
QAccessibleInterface* MakeEditorAccessible(QObject& object);

} // namespace Tessellon
