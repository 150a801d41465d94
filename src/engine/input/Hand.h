#pragma once

#include "engine/input/Stroke.h"

#include <cstdint>

namespace Tessellon {

/// A mouse event over the editor that is up, without what it would do.
enum class OverEvent : std::uint8_t { Down, Up, Move, Click, DoubleClick };

/// The user, as scripts and tests play him. Everything that cannot be done as things stand does nothing: a key without
/// a focus, a cell that is not there, an editor that is not up. Positions and sizes are twips in the sheet. A failure
/// that comes out of what he did ends the rest of it and is told to the platform's host.
class Hand {
public:
    virtual ~Hand() = default;

    // The grid.
    virtual void Click(std::int32_t row, std::int32_t col) = 0; ///< Scrolls there first, as with the scroll bars.
    virtual void DoubleClick(std::int32_t row, std::int32_t col) = 0;
    virtual void Drag(std::int32_t row, std::int32_t col, std::int32_t toRow, std::int32_t toCol) = 0;
    virtual void Scroll(std::int32_t topRow, std::int32_t leftCol) = 0;
    virtual void MouseDown(float x, float y) = 0;
    virtual void MouseUp(float x, float y) = 0;
    virtual void MouseMove(float x, float y) = 0; ///< With the left button held.
    virtual void Hover(float x, float y) = 0;

    // Keys.
    virtual void Press(const Stroke& stroke) = 0; ///< Key down, its character, key up.

    // Editors.
    virtual void Caret(std::int32_t position) = 0; ///< Of the focused text, masked, rich text or combo box.
    virtual void Select(std::int32_t item) = 0; ///< Of the focused list or combo box, from 0.
    virtual void Toggle() = 0; ///< The focused check box.
    virtual void Push() = 0; ///< The button that is up.
    virtual void Pick(double date, bool withTime) = 0;
    virtual void Over(OverEvent event, float x, float y) = 0;

    // Window and focus.
    virtual void FocusOut() = 0;
    virtual void FocusIn() = 0;
    virtual void WindowOut() = 0;
    virtual void WindowIn() = 0;
    virtual void Resize(float width, float height) = 0;
    virtual void Wait() = 0; ///< Everything that is due is done.
};

} // namespace Tessellon
