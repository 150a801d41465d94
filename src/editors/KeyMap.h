#pragma once

#include "columns/ColDataType.h"

#include <cstdint>
#include <optional>

namespace Tessellon {

/// What a key means to an editor. Each way out of the cell begins with the editor's stand-down.
enum class KeyAction : std::uint8_t {
    Nothing, ///< The key is left to the control: it types, toggles, or moves in it.
    Restore, ///< The tag goes back into the cell, and the editor goes down.
    RestoreDate, ///< The same, through the date format.
    Next,
    Previous,
    Above,
    Below,
    PreviousAt0, ///< Only with the caret at the front; elsewhere it moves.
    NextAtEnd, ///< Only with the caret behind the trimmed text; elsewhere it moves.
    PreviousOn2nd, ///< Left and right count together, and every second press leaves.
    NextOn2nd,
    WriteNext, ///< The next cell, behind a write of the value.
    WriteIfHad, ///< The same with the text, which is written only if the cell had any on entry.
    WriteIfLast, ///< The same with the selection, which is written in the very last cell only.
    BreakOrNext, ///< A line break with Ctrl alone, the next cell with anything else.
    WriteText, ///< The text from before the key is written; then the key is the control's.
    WriteChosen, ///< The same with the selection.
    Click,
};

/// A step of the cursor.
struct Way {
    std::int16_t ColStep;
    std::int16_t RowStep;
};
inline constexpr Way nextCell{1, 0};
inline constexpr Way previousCell{-1, 0};
inline constexpr Way cellAbove{0, -1};
inline constexpr Way cellBelow{0, 1};

/// What a key does in the editor of a kind, whatever keys are held with it.
KeyAction ActionOf(FieldControlType editor, std::int16_t keyCode);
/// The step that an action takes behind the stand-down; none for one that stays in the cell.
std::optional<Way> WayOf(KeyAction action);
/// Whether the host is told KeyDown behind the key's action.
bool IsKeyTold(FieldControlType editor);
/// Whether a key that was acted on counts for nothing in the control.
bool IsKeyEaten(FieldControlType editor, std::int16_t keyCode);

} // namespace Tessellon
