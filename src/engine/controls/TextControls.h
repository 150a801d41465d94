#pragma once

#include "engine/controls/EditorControl.h"
#include "engine/fields/TextState.h"

#include <cstdint>
#include <string_view>

namespace Tessellon {

/// The key of a text field by the unit and to the ends. True if the text became another.
bool PressInText(TextState& state, std::int16_t keyCode);

/// Text box and rich text box: a text, its caret and its limit.
template <class Kind>
class TextControl : public EditorControl<Kind> {
public:
    using EditorControl<Kind>::EditorControl;

    std::u16string_view Text() override { return state_.Text(); }
    void Text(std::u16string_view text) override { TextBecame(state_.Text(text)); }
    void MaxLength(std::int32_t length) override;
    std::int32_t SelStart() override { return state_.Caret(); }
    void SelStart(std::int32_t position) override;
    void BackColor(std::int32_t color) override { this->SetColor(color); }

    [[nodiscard]] const TextState& State() const { return state_; }
    [[nodiscard]] std::u16string ShownText() const override { return std::u16string(state_.Text()); }

    /// A real widget has edited by itself.
    void EditedInWidget(std::u16string_view text, std::int32_t caret);

    void KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown) override;
    void TakeUp(char16_t character, std::int16_t shift) override;

protected:
    void TextBecame(bool another);

    TextState state_;
};

class TextBoxControl : public TextControl<TextBox> {
public:
    explicit TextBoxControl(ControlSurroundings& surroundings);

    std::u16string_view ClassName() override { return u"TEXTBOX"; }
    void Alignment(std::int16_t alignment) override { SetAlignment(alignment); }
    [[nodiscard]] bool IsValidated() const override { return true; }
};

class RichTextBoxControl : public TextControl<RichTextBox> {
public:
    explicit RichTextBoxControl(ControlSurroundings& surroundings);

    std::u16string_view ClassName() override { return u"RICHTEXTBOX"; }
};

} // namespace Tessellon
