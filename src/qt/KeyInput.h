#pragma once

#include "engine/input/Stroke.h"

class QEvent;
class QKeyEvent;

namespace Tessellon {

class SheetFrame;

/// Keys on any widget of a sheet: whichever of them Qt gave the key, it belongs to the control that has the focus.
class KeyInput {
public:
    explicit KeyInput(SheetFrame& frame)
        : frame_(frame)
    {
    }

    /// True if the event was a key and is done with.
    bool Handle(QEvent& event);

private:
    void Down(QKeyEvent& event);
    [[nodiscard]] bool IsHeard() const; ///< Somebody has the focus, and is not deaf.
    /// Whether the focused control has a use for the key, so that no shortcut of the host's may take it.
    [[nodiscard]] bool IsUsed(const Stroke& stroke) const;
    [[nodiscard]] bool IsUsedByEditor(const Stroke& stroke) const;

    SheetFrame& frame_;
};

} // namespace Tessellon
