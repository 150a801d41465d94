#pragma once

#include "engine/controls/ChoiceControls.h"
#include "qt/EditorWidget.h"

#include <QPushButton>

namespace Tessellon {

/// The button over a cell. Its look is the desktop's; what a press does is its control's affair.
class ButtonWidget : public EditorOn<QPushButton, CommandButtonControl> {
public:
    ButtonWidget(SheetFrame& frame, CommandButtonControl& control);

protected:
    void Dress(QPalette& colors) const override;
    void ShowLook() override { update(); }
    void AboutToGo() override { setDown(false); }
    void Pressed(QMouseEvent& event) override { setDown(event.button() == Qt::LeftButton); }
    void Moved(QMouseEvent& event) override;
    void Released(QMouseEvent& event) override;
    void initStyleOption(QStyleOptionButton* option) const override;
};

} // namespace Tessellon
