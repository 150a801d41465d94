#include "qt/TextBoxWidget.h"

namespace Tessellon {

TextBoxWidget::TextBoxWidget(SheetFrame& frame, TextBoxControl& control)
    : LineEditWidget(frame, control)
    , box_(control)
{
}

void TextBoxWidget::ShowLook()
{
    constexpr std::int16_t rightAligned = 1;
    constexpr std::int16_t centred = 2;
    const std::int16_t alignment = box_.TextAlignment();
    setAlignment((alignment == rightAligned ? Qt::AlignRight
                  : alignment == centred    ? Qt::AlignHCenter
                                            : Qt::AlignLeft) |
                 Qt::AlignVCenter);
}

void TextBoxWidget::DoublePressed(QMouseEvent& event)
{
    LineEditWidget::DoublePressed(event);
    frame_.Do([this] { box_.Tell(ChildEvent::DblClick); });
}

} // namespace Tessellon
