#pragma once

#include "engine/grid/GridEngine.h"
#include "qt/CellTexts.h"
#include "qt/DevicePixels.h"

#include <QTimer>
#include <QWidget>

#include <optional>
#include <vector>

namespace Tessellon {

class CellPainter;
class SheetFrame;

/// The grid on the screen: paints what the engine says, and hands it the user's mouse and keys.
class GridView : public QWidget {
public:
    explicit GridView(SheetFrame& frame);

    [[nodiscard]] SheetFrame& Frame() const { return frame_; }
    [[nodiscard]] std::optional<GridCell> CellAt(const QPoint& place) const;
    void ClickCell(GridCell cell); ///< As the user's left button would, wherever the cell is.
    /// All logical pixels that a part of the grid touches.
    [[nodiscard]] QRect PixelsAround(const GridRectangle& part) const;
    void TurnWheel(QWheelEvent& event); ///< Over the grid or anything that lies on it.
    /// What the mouse does next is done to this cell, wherever it is by then; none: to what lies under it.
    void Name(std::optional<GridCell> cell) { named_ = cell; }
    [[nodiscard]] bool WasPressTaken() const { return isPressTaken_; } ///< The last one; a lost one has no release.
    [[nodiscard]] const ShapedTextCache& Texts() const { return texts_.Shaped(); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// A row or a column on the screen, in logical pixels that lie on device pixels.
    struct Strip {
        std::int32_t Index;
        qreal Begin;
        qreal End;
    };

    [[nodiscard]] qreal Pixels(std::int64_t twips) const; ///< Logical ones, not rounded.
    [[nodiscard]] std::vector<Strip> RowsInView(const DevicePixels& pixels) const;
    [[nodiscard]] std::vector<Strip> ColsInView(const DevicePixels& pixels) const;
    void PaintCell(CellPainter& painter, GridCell cell, const QRectF& place);
    void FollowScreen();

    void Press(const QMouseEvent& event, bool isSecond);
    bool TakePress(const GridMouse& mouse, bool isSecond);
    [[nodiscard]] GridMouse MouseOf(const QMouseEvent& event, std::int16_t button) const;
    void ShowPointer(const GridMouse& mouse);
    void WatchDrag(const GridMouse& mouse);

    SheetFrame& frame_;
    CellTexts texts_;
    float pixel_ = 0; ///< Twips.
    QTimer dragging_; ///< Runs while a drag is held outside.
    GridMouse dragged_;
    std::optional<GridCell> named_;
    bool isPressTaken_ = false;
    int turned_ = 0; ///< Of the wheel, what is no whole notch yet, in eighths of a degree; across below.
    int turnedAcross_ = 0;
};

} // namespace Tessellon
