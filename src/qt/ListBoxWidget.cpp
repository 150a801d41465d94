#include "qt/ListBoxWidget.h"

#include "qt/KeyTranslation.h"
#include "qt/Texts.h"

namespace Tessellon {

ListBoxWidget::ListBoxWidget(SheetFrame& frame, ListBoxControl& control)
    : EditorOn(frame, control, {QPalette::Base, QPalette::Text})
{
}

void ListBoxWidget::ShowContent()
{
    ShowEntry(CurrentEntry());
    viewport()->update();
}

void ListBoxWidget::ShowItems()
{
    EntriesChanged();
    ShowContent();
}

QString ListBoxWidget::EntryText(int index) const
{
    return OneLine(TheControl().State().Entry(index));
}

void ListBoxWidget::Pressed(QMouseEvent& event)
{
    pressed_ = event.button() == Qt::LeftButton ? EntryAt(event.position().toPoint()) : -1;
}

/// What the press meant is done behind MouseUp, as with the other editors that a press changes.
void ListBoxWidget::ReleasedInside(QMouseEvent& event)
{
    frame_.Do([&] { TheControl().Choose(pressed_, ShiftOf(event.modifiers())); });
}

} // namespace Tessellon
