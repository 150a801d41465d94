#pragma once

#include "engine/controls/EditorControl.h"
#include "engine/fields/ComboState.h"
#include "engine/fields/ListState.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Tessellon {

class CheckBoxControl : public EditorControl<CheckBox> {
public:
    explicit CheckBoxControl(ControlSurroundings& surroundings);

    std::u16string_view ClassName() override { return u"CHECKBOX"; }
    std::int16_t Value() override { return value_; }
    void Value(std::int16_t value) override;
    void Caption(std::u16string_view caption) override;
    void Alignment(std::int16_t alignment) override { SetAlignment(alignment); }
    void BackColor(std::int32_t color) override { SetColor(color); }

    [[nodiscard]] std::u16string_view ShownCaption() const { return caption_; }
    [[nodiscard]] std::int16_t State() const { return value_; }
    [[nodiscard]] std::u16string ShownText() const override;
    void Toggle(); ///< The user clicks it: any state but 0 becomes 0.

    [[nodiscard]] bool IsValidated() const override { return true; }
    void KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown) override;
    void TakeUp(char16_t character, std::int16_t shift) override;

protected:
    void PressMeans() override { Toggle(); }

private:
    void Become(std::int16_t value);

    std::int16_t value_ = 0;
    std::u16string caption_;
};

class CommandButtonControl : public EditorControl<CommandButton> {
public:
    CommandButtonControl(ControlSurroundings& surroundings, std::u16string name, std::int16_t index);

    std::u16string_view ClassName() override { return u"COMMANDBUTTON"; }
    std::u16string_view Caption() override { return caption_; }
    void Caption(std::u16string_view caption) override;

    [[nodiscard]] std::u16string ShownText() const override { return caption_; }
    void Push(); ///< The user presses it, without the mouse events.

    void KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown) override;
    void TakeUp(char16_t character, std::int16_t shift) override;

protected:
    void PressMeans() override { Tell(ChildEvent::Click); }

private:
    std::u16string caption_;
};

class ComboBoxControl : public EditorControl<ComboBox> {
public:
    ComboBoxControl(ControlSurroundings& surroundings, std::u16string name, std::int16_t index);

    std::u16string_view ClassName() override { return u"COMBOBOX"; }
    std::u16string_view Text() override { return state_.Field().Text(); }
    void Text(std::u16string_view text) override { TextBecame(state_.Field().Text(text), ChildEvent::Change); }
    void AddItem(std::u16string_view item) override;
    void Clear() override;
    void BackColor(std::int32_t color) override { SetColor(color); }

    [[nodiscard]] const ComboState& State() const { return state_; }
    [[nodiscard]] std::u16string ShownText() const override { return std::u16string(state_.Field().Text()); }
    void Caret(std::int32_t position); ///< The user puts it there.
    void Choose(std::int32_t item); ///< The user chooses an item, from 0.
    void EditedInWidget(std::u16string_view text, std::int32_t caret);

    void KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown) override;
    void TakeUp(char16_t character, std::int16_t shift) override;

protected:
    void FontChanged() override;

private:
    void TextBecame(bool another, ChildEvent event);

    ComboState state_;
};

class ListBoxControl : public EditorControl<ListBox> {
public:
    ListBoxControl(ControlSurroundings& surroundings, std::u16string name, std::int16_t index);

    std::u16string_view ClassName() override { return u"LISTBOX"; }
    void Text(std::u16string_view text) override;
    std::int32_t ListCount() override { return state_.Count(); }
    std::u16string_view List(std::int32_t index) override { return state_.Entry(index); }
    bool Selected(std::int32_t index) override { return state_.Selected(index); }
    void Selected(std::int32_t index, bool selected) override;
    void AddItem(std::u16string_view item) override;
    void Clear() override;
    void BackColor(std::int32_t color) override { SetColor(color); }

    [[nodiscard]] const ListState& State() const { return state_; }
    [[nodiscard]] std::u16string ShownText() const override;
    void Choose(std::int32_t item, std::int16_t shift); ///< The user chooses an entry with the mouse, from 0.

    void KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown) override;
    void TakeUp(char16_t character, std::int16_t shift) override;

private:
    void SelectionBecame(bool another);

    ListState state_;
};

} // namespace Tessellon
