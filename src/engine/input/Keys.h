#pragma once

#include "engine/input/Focus.h"
#include "engine/input/Stroke.h"

namespace Tessellon {

/// What becomes of a key: KeyDown, what it means, KeyPress, the character, KeyUp.
class Keys {
public:
    explicit Keys(Focus& focus)
        : focus_(focus)
    {
    }

    /// The key goes down and types its character. False: a handler ate it.
    bool Down(const Stroke& stroke);
    void Up(const Stroke& stroke);
    /// A character that comes without a key, as an input method commits it.
    void Type(char16_t character);

private:
    [[nodiscard]] InputControl* Listener() const; ///< Who hears of keys; null for nobody.
    void Character(char16_t character, std::int16_t shift);

    Focus& focus_;
};

} // namespace Tessellon
