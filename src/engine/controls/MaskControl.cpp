#include "engine/controls/MaskControl.h"

#include "engine/Failures.h"
#include "engine/controls/KeyCodes.h"
#include "engine/runtime/PlatformRunTime.h"

#include <utility>

namespace Tessellon {

MaskEdBoxControl::MaskEdBoxControl(ControlSurroundings& surroundings, std::u16string name, std::int16_t index)
    : EditorControl(surroundings, Child::MaskEdBox1, std::move(name), index, 0)
    , state_(surroundings.Functions().Functions())
{
}

void MaskEdBoxControl::Text(std::u16string_view text)
{
    if (state_.Text(text) == MaskWrite::DoesNotFit)
        Fail(380, ControlName());
    Show(Aspect::Content);
}

void MaskEdBoxControl::Mask(std::u16string_view mask)
{
    if (!state_.Mask(mask))
        Fail(380, ControlName());
    Show(Aspect::Content);
}

void MaskEdBoxControl::Format(std::u16string_view format)
{
    state_.Format(format);
    Show(Aspect::Content);
}

void MaskEdBoxControl::SelStart(std::int32_t position)
{
    if (!state_.Caret(position))
        Fail(380, ControlName());
    Show(Aspect::Caret);
}

/// The key that made a handler take the box down does nothing more in it.
void MaskEdBoxControl::KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown)
{
    if (takenDown || surroundings_.KeyInWidget(*this, keyCode, shift))
        return;
    switch (keyCode) {
    case KeyCode::Left: state_.Left(); break;
    case KeyCode::Right: state_.Right(); break;
    case KeyCode::Home: state_.Home(); break;
    case KeyCode::End: state_.End(); break;
    case KeyCode::Delete: state_.Delete(); break;
    case KeyCode::Backspace: state_.Backspace(); break;
    default: return;
    }
    Show(Aspect::Content);
}

void MaskEdBoxControl::TakeUp(char16_t character, std::int16_t /*shift*/)
{
    if (surroundings_.CharacterInWidget(*this, character))
        return;
    if (state_.Type(character) == MaskTyping::Refused)
        surroundings_.Bell();
    Show(Aspect::Content);
}

} // namespace Tessellon
