#include "screen/Jumps.h"

#include "screen/Window.h"

namespace Bench {

namespace {

constexpr int mostPages = 100;
constexpr int seenPages = 5;
constexpr int seenJumps = 100;

} // namespace

void MeasureJumps(QScrollBar& bar, QWidget& cells)
{
    // The first page is on the screen, and the last one may share rows with the one ahead.
    const int pages = (bar.maximum() - bar.minimum()) / bar.pageStep() - 1;
    const int count = std::min(mostPages, pages);
    Demand(count >= seenPages, "there are pages to jump to");
    const auto goTo = [&](int which) {
        // From one half of the records to the other and back.
        const int half = pages / 2;
        const long long page = 1 + which / 2 * static_cast<long long>(half) / (count / 2 + 1) + which % 2 * half;
        bar.setValue(bar.minimum() + static_cast<int>(page) * bar.pageStep());
    };
    PaintCount painted(cells);
    Tell("jump", Median(PaintedSeconds(count, goTo)));
    Demand(painted.Events >= count, "each jump is painted");

    painted.Events = 0;
    const auto goBack = [&](int i) { goTo(i % seenPages); };
    Tell("seenJump", Median(PaintedSeconds(seenJumps, goBack)));
    Demand(painted.Events >= seenJumps, "each jump is painted");
}

} // namespace Bench
