#pragma once

#include "engine/controls/ChoiceControls.h"
#include "qt/EditorWidget.h"

#include <QCheckBox>

namespace Tessellon {

/// The check box over a cell. It only shows its control's state: keys and mouse change that, not the widget.
class CheckBoxWidget : public EditorOn<QCheckBox, CheckBoxControl> {
public:
    CheckBoxWidget(SheetFrame& frame, CheckBoxControl& control);

protected:
    void ShowLook() override;
    void ShowContent() override;
    void AboutToGo() override { setDown(false); }
    void Pressed(QMouseEvent& event) override { setDown(event.button() == Qt::LeftButton); }
    void Released(QMouseEvent& event) override;
};

} // namespace Tessellon
