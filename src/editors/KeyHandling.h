#pragma once

#include "editors/KeyCodes.h"
#include "editors/KeyMap.h"
#include "failure/Frames.h"
#include "shell/RaiseEvent.h"

namespace Tessellon {

/// The shape of every editor's key handler: `act` does what the key map says and tells whether it did anything, and
/// then the key map settles whether the key is eaten and whether the host hears of it.
template <class Act>
void TessellonSheet::HearKey(FieldControlType editor, const char16_t* procedure, std::int16_t& KeyCode,
                             std::int16_t& Shift, const Act& act)
{
    Armed(procedure, [&] {
        if (act(ActionOf(editor, KeyCode)) && IsKeyEaten(editor, KeyCode))
            KeyCode = 0;
    });
    if (IsKeyTold(editor))
        RaiseEvent(KeyDown, KeyCode, Shift);
}

/// Stands the editor down and goes on.
inline void TessellonSheet::LeaveBy(Editor& editor, KeyAction action)
{
    StandDown(editor);
    const Way way = WayOf(action).value();
    IncrementCell(way.ColStep, way.RowStep);
}

/// Leaves a box in which the caret may have to be at an end; false where the key stays in it. Trailing blanks do not
/// count: behind them the caret is at no end.
template <class Box>
bool TessellonSheet::LeaveAtCaret(KeyAction action, Box& box)
{
    const bool stays =
        !WayOf(action) || (action == KeyAction::PreviousAt0 && box.SelStart() != 0) ||
        (action == KeyAction::NextAtEnd && box.SelStart() != static_cast<std::int32_t>(Trim(box.Text()).size()));
    if (!stays)
        LeaveBy(box, action);
    return !stays;
}

/// What Esc does in most editors.
inline void TessellonSheet::Restore(Editor& editor)
{
    if (RowCount > 0)
        CellWriteBack(Trim(editor.Tag()));
    StandDown(editor);
    HideEditorRequest = true;
}

} // namespace Tessellon
