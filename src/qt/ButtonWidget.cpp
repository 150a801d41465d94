#include "qt/ButtonWidget.h"

#include "qt/Colors.h"
#include "qt/Texts.h"

#include <QStyleOptionButton>

namespace Tessellon {

ButtonWidget::ButtonWidget(SheetFrame& frame, CommandButtonControl& control)
    : EditorOn(frame, control, {QPalette::Button, QPalette::ButtonText})
{
    // In a dialog it would become the one that Enter presses.
    setAutoDefault(false);
    // The caption is read from the control when it is painted, so that Qt sees no mnemonic in it.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

/// No colour of the sheet's: only the caption of a button that is disabled is kept readable.
void ButtonWidget::Dress(QPalette& colors) const
{
    colors.setColor(
        QPalette::Disabled, QPalette::ButtonText,
        Faded(colors.color(QPalette::Active, QPalette::ButtonText), colors.color(QPalette::Active, QPalette::Button)));
}

void ButtonWidget::initStyleOption(QStyleOptionButton* option) const
{
    QPushButton::initStyleOption(option);
    const QRect room = style()->subElementRect(QStyle::SE_PushButtonContents, option, this);
    const QString caption = OneLine(TheControl().ShownText());
    option->text = fontMetrics().elidedText(caption, Qt::ElideRight, room.width()).replace(u'&', QStringLiteral("&&"));
}

void ButtonWidget::Moved(QMouseEvent& event)
{
    setDown(IsHeld(Qt::LeftButton) && rect().contains(event.position().toPoint()));
}

void ButtonWidget::Released(QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton)
        setDown(false);
}

} // namespace Tessellon
