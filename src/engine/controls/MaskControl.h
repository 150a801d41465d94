#pragma once

#include "engine/controls/EditorControl.h"
#include "engine/fields/MaskState.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Tessellon {

class MaskEdBoxControl : public EditorControl<MaskEdBox> {
public:
    MaskEdBoxControl(ControlSurroundings& surroundings, std::u16string name, std::int16_t index);

    std::u16string_view ClassName() override { return u"MASKEDBOX"; }
    std::u16string_view Text() override { return state_.Text(); }
    void Text(std::u16string_view text) override;
    std::u16string_view FormattedText() override { return state_.FormattedText(); }
    std::u16string_view Mask() override { return state_.Mask(); }
    void Mask(std::u16string_view mask) override;
    std::u16string_view Format() override { return state_.Format(); }
    void Format(std::u16string_view format) override;
    void PromptInclude(bool include) override { state_.PromptInclude(include); }
    void MaxLength(std::int16_t length) override { state_.MaxLength(length); }
    std::int32_t SelStart() override { return state_.Caret(); }
    void SelStart(std::int32_t position) override;
    void BackColor(std::int32_t color) override { SetColor(color); }

    [[nodiscard]] const MaskState& State() const { return state_; }
    [[nodiscard]] std::u16string ShownText() const override { return std::u16string(state_.ShownText()); }

    /// For a real widget with a selection of its own, which shows by itself what comes of its editing.
    MaskState& Editing() { return state_; }

    void KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown) override;
    void TakeUp(char16_t character, std::int16_t shift) override;

private:
    MaskState state_;
};

} // namespace Tessellon
