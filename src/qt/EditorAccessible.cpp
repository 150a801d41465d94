#include "qt/EditorAccessible.h"

#include "qt/EditorWidget.h"
#include "qt/EntryArea.h"

#include <QScrollBar>

namespace Tessellon {

QAccessibleInterface* MakeEditorAccessible(QObject& object)
{
    if (auto* area = dynamic_cast<EntryArea*>(&object))
        return new EntriesAccessible(*area);
    auto* editor = dynamic_cast<EditorWidget*>(&object);
    const bool isPainted = object.metaObject() == &QWidget::staticMetaObject;
    return editor != nullptr && isPainted ? new EditorAccessible(*editor) : nullptr;
}

EditorAccessible::EditorAccessible(EditorWidget& editor)
    : QAccessibleWidget(&editor.Widget(), QAccessible::EditableText)
    , editor_(editor)
{
}

QString EditorAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? editor_.Spoken() : QAccessibleWidget::text(kind);
}

// ---- Entries --------------------------------------------------------------------------------------------------------

EntriesAccessible::EntriesAccessible(EntryArea& area)
    : QAccessibleWidget(&area, QAccessible::List)
    , area_(area)
{
}

EntriesAccessible::~EntriesAccessible()
{
    for (const QAccessible::Id id : std::as_const(entries_))
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* EntriesAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    if (const auto found = entries_.constFind(index); found != entries_.cend())
        return QAccessible::accessibleInterface(*found);
    auto* made = new EntryAccessible(*this, index);
    entries_.insert(index, QAccessible::registerAccessibleInterface(made));
    return made;
}

int EntriesAccessible::childCount() const
{
    return area_.EntryCount();
}

int EntriesAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* entry = dynamic_cast<const EntryAccessible*>(child);
    return entry != nullptr ? entry->Index() : -1;
}

QAccessibleInterface* EntriesAccessible::childAt(int x, int y) const
{
    return child(area_.EntryAt(area_.viewport()->mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface* EntriesAccessible::focusChild() const
{
    return area_.hasFocus() ? child(area_.CurrentEntry()) : nullptr;
}

EntryAccessible::EntryAccessible(const EntriesAccessible& list, int index)
    : list_(list)
    , index_(index)
{
}

bool EntryAccessible::isValid() const
{
    return list_.isValid() && index_ < list_.Area().EntryCount();
}

QWindow* EntryAccessible::window() const
{
    return list_.window();
}

QAccessibleInterface* EntryAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(&list_.Area());
}

QString EntryAccessible::text(QAccessible::Text kind) const
{
    return isValid() && kind == QAccessible::Name ? list_.Area().EntryText(index_) : QString();
}

QRect EntryAccessible::rect() const
{
    const QWidget& view = *list_.Area().viewport();
    const QRect place = list_.Area().PlaceOf(index_);
    return {view.mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State EntryAccessible::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    EntryArea& area = list_.Area();
    state.selectable = true;
    state.selected = area.IsEntrySelected(index_);
    state.focusable = area.isEnabled();
    state.focused = area.hasFocus() && area.CurrentEntry() == index_;
    state.disabled = !area.isEnabled();
    state.invisible = !area.isVisible();
    state.offscreen = !area.viewport()->rect().intersects(area.PlaceOf(index_));
    return state;
}

} // namespace Tessellon
