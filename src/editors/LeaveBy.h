#pragma once

#include "editors/KeyCodes.h"
#include "shell/TessellonSheet.h"

namespace Tessellon {

/// Stands the editor down and goes on.
inline void TessellonSheet::LeaveBy(Editor& editor, Way way)
{
    StandDown(editor);
    IncrementCell(way.ColStep, way.RowStep);
}

/// Trailing blanks do not count: behind them the caret is at no end, and the key stays in the box.
template <class Box>
bool TessellonSheet::IsCaretAtEnd(Box& box)
{
    return box.SelStart() == static_cast<std::int32_t>(Trim(box.Text()).size());
}

} // namespace Tessellon
