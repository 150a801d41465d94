#include "qt/GridScrollBars.h"

#include "qt/GridView.h"
#include "qt/SheetFrame.h"

#include <algorithm>
#include <utility>

namespace Tessellon {

namespace {

bool IsNeeded(const GridScrollRange& range)
{
    return range.Maximum > range.Minimum || range.Value > range.Minimum;
}

void Show(QScrollBar& bar, const GridScrollRange& range)
{
    // A bringing into view may go beyond the last full page.
    bar.setRange(range.Minimum, std::max(range.Maximum, range.Value));
    bar.setPageStep(range.Page);
    bar.setValue(range.Value);
}

} // namespace

GridScrollBars::GridScrollBars(SheetFrame& frame)
    : frame_(frame)
    , horizontal_(new QScrollBar(Qt::Horizontal, &frame))
    , vertical_(new QScrollBar(Qt::Vertical, &frame))
{
    for (QScrollBar* bar : {horizontal_, vertical_}) {
        bar->setFocusPolicy(Qt::NoFocus);
        bar->setContextMenuPolicy(Qt::NoContextMenu);
        bar->hide();
        QObject::connect(bar, &QScrollBar::valueChanged, &frame, [this] { Scrolled(); });
    }
}

void GridScrollBars::Scrolled()
{
    if (isFollowing_)
        return;
    const int topRow = vertical_->value();
    const int leftCol = horizontal_->value();
    frame_.CommitComposition();
    frame_.Do([&] { frame_.Platform()->TheGrid().ScrollTo(topRow, leftCol); });
}

void GridScrollBars::Changed()
{
    if (!std::exchange(isDue_, true))
        QMetaObject::invokeMethod(
            &frame_, [this] { FollowIfDue(); }, Qt::QueuedConnection);
}

void GridScrollBars::FollowIfDue()
{
    if (isDue_)
        Follow();
}

/// Each bar takes room, and may by that make the other one needed.
void GridScrollBars::Settle()
{
    const GridEngine& grid = frame_.Platform()->TheGrid();
    const int extent = frame_.TheMetrics().ScrollBarPixels();
    horizontalHeight_ = 0;
    verticalWidth_ = 0;
    if (extent == 0)
        return;
    if (IsNeeded(grid.RowScroll()))
        verticalWidth_ = extent;
    if (IsNeeded(grid.ColScroll()))
        horizontalHeight_ = extent;
    if (horizontalHeight_ != 0 && IsNeeded(grid.RowScroll()))
        verticalWidth_ = extent;
}

void GridScrollBars::Follow()
{
    isDue_ = false;
    isFollowing_ = true;
    Settle();
    const GridEngine& grid = frame_.Platform()->TheGrid();
    Show(*vertical_, grid.RowScroll());
    Show(*horizontal_, grid.ColScroll());
    const int width = frame_.width() - verticalWidth_;
    const int height = frame_.height() - horizontalHeight_;
    frame_.View().setGeometry(0, 0, width, height);
    vertical_->setGeometry(width, 0, verticalWidth_, height);
    horizontal_->setGeometry(0, height, width, horizontalHeight_);
    vertical_->setVisible(verticalWidth_ > 0);
    horizontal_->setVisible(horizontalHeight_ > 0);
    isFollowing_ = false;
}

} // namespace Tessellon
