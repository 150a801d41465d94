#pragma once

#include <QScrollBar>

namespace Tessellon {

class SheetFrame;

/// The scroll bars of the grid: real ones, without focus, shown as far as there is something to scroll to. They follow
/// the grid when there is time, not at each of its changes.
class GridScrollBars {
public:
    explicit GridScrollBars(SheetFrame& frame);

    [[nodiscard]] QScrollBar& Horizontal() const { return *horizontal_; }
    [[nodiscard]] QScrollBar& Vertical() const { return *vertical_; }
    [[nodiscard]] int HorizontalHeight() const { return horizontalHeight_; } ///< Logical pixels; 0 while hidden.
    [[nodiscard]] int VerticalWidth() const { return verticalWidth_; }

    void Changed(); ///< Ranges or positions may be others.
    void FollowIfDue();
    void Follow(); ///< Shows the grid's ranges, and places grid and bars in the frame.

private:
    void Settle();
    void Scrolled();

    SheetFrame& frame_;
    QScrollBar* horizontal_;
    QScrollBar* vertical_;
    int horizontalHeight_ = 0;
    int verticalWidth_ = 0;
    bool isDue_ = false;
    bool isFollowing_ = false;
};

} // namespace Tessellon
