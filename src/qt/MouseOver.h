#pragma once

#include "platform/Events.h"
#include "qt/KeyTranslation.h"
#include "qt/Metrics.h"

#include <QMouseEvent>

namespace Tessellon {

/// A mouse event over an editor, in twips from the editor's own corner. `origin` is where in the editor the event's
/// position counts from. Of a move the button is all that are held.
[[nodiscard]] inline EventArguments MouseOver(const QMouseEvent& event, QPoint origin, Metrics& metrics)
{
    const auto pixel = static_cast<double>(metrics.TwipsAPixel());
    EventArguments mouse;
    mouse.Button = event.type() == QEvent::MouseMove ? ButtonsOf(event.buttons()) : ButtonOf(event.button());
    mouse.Shift = ShiftOf(event.modifiers());
    mouse.X = static_cast<float>((event.position().x() + origin.x()) * pixel);
    mouse.Y = static_cast<float>((event.position().y() + origin.y()) * pixel);
    return mouse;
}

} // namespace Tessellon
