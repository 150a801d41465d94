#include "engine/controls/ChoiceControls.h"

#include "engine/Failures.h"
#include "engine/controls/KeyCodes.h"
#include "engine/controls/TextControls.h"
#include "engine/input/Focus.h"

#include <optional>
#include <utility>

namespace Tessellon {

// Check box

CheckBoxControl::CheckBoxControl(ControlSurroundings& surroundings)
    : EditorControl(surroundings, Child::Check1, u"Check1", 0, 0)
{
}

void CheckBoxControl::Become(std::int16_t value)
{
    if (std::exchange(value_, value) == value)
        return;
    Show(Aspect::Content);
    ControlCore::Tell(ChildEvent::Click);
}

void CheckBoxControl::Value(std::int16_t value)
{
    constexpr std::int16_t grey = 2;
    if (value < 0 || value > grey)
        Fail(380, ControlName());
    Become(value);
}

void CheckBoxControl::Caption(std::u16string_view caption)
{
    caption_ = caption;
    Show(Aspect::Look);
}

std::u16string CheckBoxControl::ShownText() const
{
    return {static_cast<char16_t>(u'0' + value_)};
}

void CheckBoxControl::Toggle()
{
    Become(value_ == 0 ? 1 : 0);
}

void CheckBoxControl::KeyMeans(std::int16_t keyCode, std::int16_t /*shift*/, bool /*takenDown*/)
{
    if (keyCode == KeyCode::Space)
        Toggle();
}

void CheckBoxControl::TakeUp(char16_t /*character*/, std::int16_t /*shift*/)
{
}

// Button

CommandButtonControl::CommandButtonControl(ControlSurroundings& surroundings, std::u16string name, std::int16_t index)
    : EditorControl(surroundings, Child::Command1, std::move(name), index, 0)
{
}

void CommandButtonControl::Caption(std::u16string_view caption)
{
    caption_ = caption;
    Show(Aspect::Look);
}

void CommandButtonControl::Push()
{
    if (surroundings_.TheFocus().Press(*this))
        ControlCore::Tell(ChildEvent::Click);
}

void CommandButtonControl::KeyMeans(std::int16_t /*keyCode*/, std::int16_t /*shift*/, bool /*takenDown*/)
{
}

void CommandButtonControl::TakeUp(char16_t /*character*/, std::int16_t /*shift*/)
{
}

// Combo box

ComboBoxControl::ComboBoxControl(ControlSurroundings& surroundings, std::u16string name, std::int16_t index)
    : EditorControl(surroundings, Child::Combo1, std::move(name), index, surroundings.ComboBoxHeight({}))
{
}

/// A combo box takes its height from its font.
void ComboBoxControl::FontChanged()
{
    SetPlace({Place().Left, Place().Top, Place().Width, surroundings_.ComboBoxHeight(GetFont())});
}

void ComboBoxControl::TextBecame(bool another, ChildEvent event)
{
    if (!another)
        return;
    Show(Aspect::Content);
    ControlCore::Tell(event);
}

void ComboBoxControl::AddItem(std::u16string_view item)
{
    state_.AddItem(item);
    Show(Aspect::Items);
}

void ComboBoxControl::Clear()
{
    state_.Clear();
    Show(Aspect::Items);
    Show(Aspect::Content);
}

void ComboBoxControl::Caret(std::int32_t position)
{
    if (!state_.Field().Caret(position))
        Fail(380, ControlName());
    Show(Aspect::Caret);
}

void ComboBoxControl::Choose(std::int32_t item)
{
    TextBecame(state_.Choose(item), ChildEvent::Click);
}

void ComboBoxControl::EditedInWidget(std::u16string_view text, std::int32_t caret)
{
    if (state_.Field().TakeFrom(text, caret))
        ControlCore::Tell(ChildEvent::Change);
}

void ComboBoxControl::KeyMeans(std::int16_t keyCode, std::int16_t shift, bool /*takenDown*/)
{
    const bool isUpOrDown = keyCode == KeyCode::Down || keyCode == KeyCode::Up;
    // With Alt they open the list, where there is one.
    if (isUpOrDown && (shift & Modifier::Alt) != 0 && surroundings_.KeyInWidget(*this, keyCode, shift))
        return;
    if (keyCode == KeyCode::Down) {
        TextBecame(state_.Down(), ChildEvent::Click);
    } else if (keyCode == KeyCode::Up) {
        TextBecame(state_.Up(), ChildEvent::Click);
    } else if (!surroundings_.KeyInWidget(*this, keyCode, shift)) {
        const bool another = PressInText(state_.Field(), keyCode);
        if (!another)
            Show(Aspect::Caret);
        TextBecame(another, ChildEvent::Change);
    }
}

void ComboBoxControl::TakeUp(char16_t character, std::int16_t /*shift*/)
{
    if (!surroundings_.CharacterInWidget(*this, character))
        TextBecame(state_.Field().Type(character), ChildEvent::Change);
}

// List box

namespace {

constexpr float designHeight = 300;

std::optional<ListKey> ListKeyOf(std::int16_t keyCode)
{
    switch (keyCode) {
    case KeyCode::Up:
    case KeyCode::Left: return ListKey::Up;
    case KeyCode::Down:
    case KeyCode::Right: return ListKey::Down;
    case KeyCode::Home: return ListKey::Home;
    case KeyCode::End: return ListKey::End;
    default: return std::nullopt;
    }
}

} // namespace

ListBoxControl::ListBoxControl(ControlSurroundings& surroundings, std::u16string name, std::int16_t index)
    : EditorControl(surroundings, Child::List1, std::move(name), index, designHeight)
{
}

void ListBoxControl::Text(std::u16string_view text)
{
    state_.Text(text);
    Show(Aspect::Content);
}

void ListBoxControl::Selected(std::int32_t index, bool selected)
{
    if (!state_.Selected(index, selected))
        Fail(381, ControlName());
    Show(Aspect::Content);
}

void ListBoxControl::AddItem(std::u16string_view item)
{
    state_.AddItem(item);
    Show(Aspect::Items);
}

void ListBoxControl::Clear()
{
    state_.Clear();
    Show(Aspect::Items);
}

std::u16string ListBoxControl::ShownText() const
{
    return std::u16string(state_.Entry(state_.FirstSelected()));
}

void ListBoxControl::SelectionBecame(bool another)
{
    if (!another)
        return;
    Show(Aspect::Content);
    ControlCore::Tell(ChildEvent::Click);
}

void ListBoxControl::Choose(std::int32_t item, std::int16_t shift)
{
    SelectionBecame(state_.Choose(item, shift));
}

/// A list that the key's handler took down tells the click all the same; over the next cell it keeps its selection.
void ListBoxControl::KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown)
{
    const std::optional<ListKey> key = ListKeyOf(keyCode);
    if (!key)
        return;
    if (takenDown && IsVisible())
        SelectionBecame(state_.WouldChange(*key, shift));
    else
        SelectionBecame(state_.Press(*key, shift));
}

void ListBoxControl::TakeUp(char16_t character, std::int16_t shift)
{
    SelectionBecame(state_.Type(character, shift));
}

} // namespace Tessellon
