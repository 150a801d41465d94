#pragma once

#include "engine/controls/ChoiceControls.h"

#include <QCheckBox>

namespace Tessellon {

class SheetFrame;

/// The check box over a cell. It only shows its control's state: keys and mouse change that, not the widget.
class CheckBoxWidget : public QCheckBox {
public:
    explicit CheckBoxWidget(SheetFrame& frame);

    void Follow(Aspect aspect); ///< Shows what of the control has become another.

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Look();
    void ShowState();
    [[nodiscard]] CheckBoxControl& Control() const;

    SheetFrame& frame_;
    bool isPressed_ = false;
};

} // namespace Tessellon
