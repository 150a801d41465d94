#pragma once

#include "engine/input/Stroke.h"

#include <QKeyEvent>

#include <cstdint>

namespace Tessellon {

/// 1 Shift, 2 Ctrl, 4 Alt, added up.
[[nodiscard]] std::int16_t ShiftOf(Qt::KeyboardModifiers modifiers);
[[nodiscard]] Qt::KeyboardModifiers ModifiersOf(std::int16_t shift);

/// A key of Qt as the sheet knows it: its code, and its character where it types one.
[[nodiscard]] Stroke StrokeOf(const QKeyEvent& event);
/// The key of Qt that has a code; Qt::Key_unknown for none.
[[nodiscard]] Qt::Key QtKeyOf(std::int16_t code);

/// 1 left, 2 right, 4 middle; 0 for others.
[[nodiscard]] std::int16_t ButtonOf(Qt::MouseButton button);
/// The same, added up.
[[nodiscard]] std::int16_t ButtonsOf(Qt::MouseButtons buttons);

} // namespace Tessellon
