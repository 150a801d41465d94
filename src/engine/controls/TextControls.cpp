#include "engine/controls/TextControls.h"

#include "engine/Failures.h"
#include "engine/controls/KeyCodes.h"

namespace Tessellon {

bool PressInText(TextState& state, std::int16_t keyCode)
{
    switch (keyCode) {
    case KeyCode::Left: state.Left(); return false;
    case KeyCode::Right: state.Right(); return false;
    case KeyCode::Home: state.Home(); return false;
    case KeyCode::End: state.End(); return false;
    case KeyCode::Delete: return state.Delete();
    case KeyCode::Backspace: return state.Backspace();
    case KeyCode::Enter: return state.LineBreak();
    default: return false;
    }
}

template <class Kind>
void TextControl<Kind>::TextBecame(bool another)
{
    if (!another)
        return;
    this->Show(Aspect::Content);
    this->ControlCore::Tell(ChildEvent::Change);
}

template <class Kind>
void TextControl<Kind>::MaxLength(std::int32_t length)
{
    state_.MaxLength(length);
    this->Show(Aspect::Look);
}

template <class Kind>
void TextControl<Kind>::SelStart(std::int32_t position)
{
    if (!state_.Caret(position))
        Fail(380, this->ControlName());
    this->Show(Aspect::Caret);
}

template <class Kind>
void TextControl<Kind>::EditedInWidget(std::u16string_view text, std::int32_t caret)
{
    if (state_.TakeFrom(text, caret))
        this->ControlCore::Tell(ChildEvent::Change);
}

/// The key that made a handler take the box down does nothing more in it: the box may stand over the next cell.
template <class Kind>
void TextControl<Kind>::KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown)
{
    if (takenDown || this->surroundings_.KeyInWidget(*this, keyCode, shift))
        return;
    const bool another = PressInText(state_, keyCode);
    if (!another)
        this->Show(Aspect::Caret);
    TextBecame(another);
}

template <class Kind>
void TextControl<Kind>::TakeUp(char16_t character, std::int16_t shift)
{
    static_cast<void>(shift);
    if (!this->surroundings_.CharacterInWidget(*this, character))
        TextBecame(state_.Type(character));
}

template class TextControl<TextBox>;
template class TextControl<RichTextBox>;

TextBoxControl::TextBoxControl(ControlSurroundings& surroundings)
    : TextControl(surroundings, Child::Text1, u"Text1", 0, 0)
{
}

RichTextBoxControl::RichTextBoxControl(ControlSurroundings& surroundings)
    : TextControl(surroundings, Child::RichTextBox1, u"RichTextBox1", 0, 0)
{
    state_.Multiline(true);
}

} // namespace Tessellon
