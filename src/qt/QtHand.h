#pragma once

#include "headless/HeadlessHand.h"

#include <QEvent>
#include <QObject>
#include <QPointF>

namespace Tessellon {

class SheetFrame;

/// The user as scripts and tests play him on the desktop: real events of mouse, keys and focus go to the widgets. What
/// a script does that no single event stands for goes to the engines as on the platform without a screen.
class QtHand : public HeadlessHand {
public:
    /// `elsewhere` is a widget of the same window that takes the focus when it is pressed.
    QtHand(SheetFrame& frame, QWidget& elsewhere);

    void Click(std::int32_t row, std::int32_t col) override;
    void DoubleClick(std::int32_t row, std::int32_t col) override;
    void Drag(std::int32_t row, std::int32_t col, std::int32_t toRow, std::int32_t toCol) override;
    void MouseDown(float x, float y) override;
    void MouseUp(float x, float y) override;
    void Hover(float x, float y) override;
    void Press(const Stroke& stroke) override;
    void FocusOut() override;
    void FocusIn() override;
    void WindowOut() override;
    void WindowIn() override;
    void Resize(float width, float height) override;
    void Wait() override;

private:
    /// Shows a cell whole, as the scroll bars do; false if there is none, or nobody takes a press.
    bool Reach(GridCell cell);
    void PressAndRelease(GridCell cell, QEvent::Type press);
    void DropFailedPress(); ///< A failure in a press takes the release with it: the button is up again behind it.
    void SendToCell(GridCell cell, QEvent::Type type);
    void Send(QEvent::Type type, QPointF position);
    [[nodiscard]] QPointF PixelsOf(float x, float y) const;
    [[nodiscard]] bool IsOnSheet(float x, float y) const;
    [[nodiscard]] bool IsInFront() const;

    SheetFrame& frame_;
    QWidget& elsewhere_;
    QObject failures_; ///< Its connection ends with this hand.
    bool hasFailed_ = false; ///< What the user does is broken off where it fails.
};

} // namespace Tessellon
