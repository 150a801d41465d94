#pragma once

#include <QScrollBar>
#include <QWidget>

namespace Bench {

/// One frame after a jump, of sheet and peers alike: first to pages that were never seen, then to and fro between some
/// that were. `cells` is what must be painted each time.
void MeasureJumps(QScrollBar& bar, QWidget& cells);

} // namespace Bench
