#include "qt/KeyTranslation.h"

#include "engine/controls/KeyCodes.h"

#include <array>

namespace Tessellon {

namespace {

struct Pair {
    int Key;
    std::int16_t Code;
};

// The first of a code is the key that the code is turned back into.
constexpr std::array pairs{
    Pair{Qt::Key_Backspace, KeyCode::Backspace},
    Pair{Qt::Key_Tab, KeyCode::Tab},
    Pair{Qt::Key_Backtab, KeyCode::Tab},
    Pair{Qt::Key_Clear, 12},
    Pair{Qt::Key_Return, KeyCode::Enter},
    Pair{Qt::Key_Enter, KeyCode::Enter},
    Pair{Qt::Key_Shift, 16},
    Pair{Qt::Key_Control, 17},
    Pair{Qt::Key_Alt, 18},
    Pair{Qt::Key_AltGr, 18},
    Pair{Qt::Key_Pause, 19},
    Pair{Qt::Key_CapsLock, 20},
    Pair{Qt::Key_Escape, KeyCode::Escape},
    Pair{Qt::Key_Space, KeyCode::Space},
    Pair{Qt::Key_PageUp, KeyCode::PageUp},
    Pair{Qt::Key_PageDown, KeyCode::PageDown},
    Pair{Qt::Key_End, KeyCode::End},
    Pair{Qt::Key_Home, KeyCode::Home},
    Pair{Qt::Key_Left, KeyCode::Left},
    Pair{Qt::Key_Up, KeyCode::Up},
    Pair{Qt::Key_Right, KeyCode::Right},
    Pair{Qt::Key_Down, KeyCode::Down},
    Pair{Qt::Key_Select, 41},
    Pair{Qt::Key_Execute, 43},
    Pair{Qt::Key_Print, 44},
    Pair{Qt::Key_SysReq, 44},
    Pair{Qt::Key_Insert, 45},
    Pair{Qt::Key_Delete, KeyCode::Delete},
    Pair{Qt::Key_Help, 47},
    Pair{Qt::Key_Meta, 91},
    Pair{Qt::Key_Super_L, 91},
    Pair{Qt::Key_Super_R, 92},
    Pair{Qt::Key_Menu, 93},
    Pair{Qt::Key_NumLock, 144},
    Pair{Qt::Key_ScrollLock, 145},
    Pair{Qt::Key_Exclam, '1'},
    Pair{Qt::Key_At, '2'},
    Pair{Qt::Key_NumberSign, '3'},
    Pair{Qt::Key_Dollar, '4'},
    Pair{Qt::Key_Percent, '5'},
    Pair{Qt::Key_AsciiCircum, '6'},
    Pair{Qt::Key_Ampersand, '7'},
    Pair{Qt::Key_Asterisk, '8'},
    Pair{Qt::Key_ParenLeft, '9'},
    Pair{Qt::Key_ParenRight, '0'},
    Pair{Qt::Key_Semicolon, 186},
    Pair{Qt::Key_Colon, 186},
    Pair{Qt::Key_Equal, 187},
    Pair{Qt::Key_Plus, 187},
    Pair{Qt::Key_Comma, 188},
    Pair{Qt::Key_Less, 188},
    Pair{Qt::Key_Minus, 189},
    Pair{Qt::Key_Underscore, 189},
    Pair{Qt::Key_Period, 190},
    Pair{Qt::Key_Greater, 190},
    Pair{Qt::Key_Slash, 191},
    Pair{Qt::Key_Question, 191},
    Pair{Qt::Key_QuoteLeft, 192},
    Pair{Qt::Key_AsciiTilde, 192},
    Pair{Qt::Key_BracketLeft, 219},
    Pair{Qt::Key_BraceLeft, 219},
    Pair{Qt::Key_Backslash, 220},
    Pair{Qt::Key_Bar, 220},
    Pair{Qt::Key_BracketRight, 221},
    Pair{Qt::Key_BraceRight, 221},
    Pair{Qt::Key_Apostrophe, 222},
    Pair{Qt::Key_QuoteDbl, 222},
};

constexpr std::array keypad{
    Pair{Qt::Key_Asterisk, 106}, Pair{Qt::Key_Plus, 107},   Pair{Qt::Key_Minus, 109},
    Pair{Qt::Key_Comma, 110},    Pair{Qt::Key_Period, 110}, Pair{Qt::Key_Slash, 111},
};

constexpr int lastFunctionKey = Qt::Key_F16;
constexpr std::int16_t keypadZero = 96;

bool IsLetterOrFigure(int key)
{
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

std::int16_t CodeOf(int key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::KeypadModifier)) {
        if (key >= Qt::Key_0 && key <= Qt::Key_9)
            return static_cast<std::int16_t>(keypadZero + key - Qt::Key_0);
        for (const Pair& pair : keypad)
            if (pair.Key == key)
                return pair.Code;
    }
    if (IsLetterOrFigure(key))
        return static_cast<std::int16_t>(key);
    if (key >= Qt::Key_F1 && key <= lastFunctionKey)
        return static_cast<std::int16_t>(KeyCode::F1 + key - Qt::Key_F1);
    for (const Pair& pair : pairs)
        if (pair.Key == key)
            return pair.Code;
    return 0;
}

Stroke WithCharacter(Stroke stroke, char16_t character)
{
    stroke.HasCharacter = true;
    stroke.Character = character;
    return stroke;
}

} // namespace

std::int16_t ShiftOf(Qt::KeyboardModifiers modifiers)
{
    const int shift = (modifiers.testFlag(Qt::ShiftModifier) ? Modifier::Shift : 0) +
                      (modifiers.testFlag(Qt::ControlModifier) ? Modifier::Ctrl : 0) +
                      (modifiers.testFlag(Qt::AltModifier) ? Modifier::Alt : 0);
    return static_cast<std::int16_t>(shift);
}

Qt::KeyboardModifiers ModifiersOf(std::int16_t shift)
{
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (shift & Modifier::Shift) != 0);
    modifiers.setFlag(Qt::ControlModifier, (shift & Modifier::Ctrl) != 0);
    modifiers.setFlag(Qt::AltModifier, (shift & Modifier::Alt) != 0);
    return modifiers;
}

Stroke StrokeOf(const QKeyEvent& event)
{
    constexpr char16_t lineFeed = 10;
    Stroke stroke;
    stroke.Code = CodeOf(event.key(), event.modifiers());
    stroke.Shift = ShiftOf(event.modifiers());
    const QString text = event.text();
    const bool isPrintable = !text.isEmpty() && text.front().unicode() >= u' ' && text.front().unicode() != 127;
    const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    // The third level of a keyboard comes as Ctrl and Alt on some platforms: what it types is no command.
    if (ctrl && alt && isPrintable)
        return WithCharacter(stroke, text.front().unicode());
    if (alt)
        return stroke;
    if (ctrl) {
        if (stroke.Code >= 'A' && stroke.Code <= 'Z')
            return WithCharacter(stroke, static_cast<char16_t>(stroke.Code - 'A' + 1));
        return stroke.Code == KeyCode::Enter ? WithCharacter(stroke, lineFeed) : stroke;
    }
    switch (stroke.Code) {
    case KeyCode::Enter:
    case KeyCode::Escape:
    case KeyCode::Tab:
    case KeyCode::Backspace: return WithCharacter(stroke, static_cast<char16_t>(stroke.Code));
    default: return isPrintable ? WithCharacter(stroke, text.front().unicode()) : stroke;
    }
}

Qt::Key QtKeyOf(std::int16_t code)
{
    if (IsLetterOrFigure(code))
        return static_cast<Qt::Key>(code);
    if (code >= KeyCode::F1 && code <= KeyCode::F1 + lastFunctionKey - Qt::Key_F1)
        return static_cast<Qt::Key>(Qt::Key_F1 + code - KeyCode::F1);
    for (const Pair& pair : pairs)
        if (pair.Code == code)
            return static_cast<Qt::Key>(pair.Key);
    return Qt::Key_unknown;
}

std::int16_t ButtonOf(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton: return 1;
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 0;
    }
}

std::int16_t ButtonsOf(Qt::MouseButtons buttons)
{
    int sum = 0;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (buttons.testFlag(button))
            sum += ButtonOf(button);
    return static_cast<std::int16_t>(sum);
}

} // namespace Tessellon
