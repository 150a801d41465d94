#include "qt/CheckBoxWidget.h"

#include "qt/Texts.h"

namespace Tessellon {

CheckBoxWidget::CheckBoxWidget(SheetFrame& frame, CheckBoxControl& control)
    : EditorOn(frame, control, {QPalette::Window, QPalette::WindowText})
{
}

void CheckBoxWidget::ShowLook()
{
    setText(OwnText(TheControl().ShownCaption()).replace(u'&', QStringLiteral("&&")));
    setLayoutDirection(TheControl().TextAlignment() == 1 ? Qt::RightToLeft : Qt::LeftToRight);
}

void CheckBoxWidget::ShowContent()
{
    constexpr std::int16_t grey = 2;
    setCheckState(TheControl().State() == grey ? Qt::PartiallyChecked
                  : TheControl().State() != 0  ? Qt::Checked
                                               : Qt::Unchecked);
}

void CheckBoxWidget::Released(QMouseEvent& /*event*/)
{
    setDown(false);
}

} // namespace Tessellon
