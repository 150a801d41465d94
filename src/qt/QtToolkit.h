#pragma once

#include "engine/Toolkit.h"

namespace Tessellon {

class EditorWidget;
class SheetFrame;

/// What the engines ask of a screen, handed to the widget of the sheet. It outlives that widget where a handler of the
/// sheet took it down, and is silent from then on.
class QtToolkit : public Toolkit {
public:
    explicit QtToolkit(SheetFrame& frame)
        : frame_(&frame)
    {
    }

    void Detach() { frame_ = nullptr; } ///< The widget goes.

    float TextWidth(std::u16string_view text, const Font& font) override;
    std::int32_t DefaultRowHeight(const Font& font) override;
    std::int32_t DefaultColWidth(const Font& font) override;
    float ComboBoxHeight(const Font& font) override;
    std::int32_t HorizontalScrollBarHeight() override;
    std::int32_t VerticalScrollBarWidth() override;
    float TwipsPerPixelY() override;
    Font AmbientFont() override;
    std::int32_t WindowHandle() override;
    std::size_t StackBudget() override;

    void Invalidate(const GridRectangle& part) override;
    void PaintNow() override;
    void ScrollBarsChanged() override;

    void Changed(ControlCore& control, Aspect aspect) override;
    bool KeyInWidget(ControlCore& control, std::int16_t keyCode, std::int16_t shift) override;
    bool CharacterInWidget(ControlCore& control, char16_t character) override;
    void FocusMoved() override;

    void Bell() override;
    void Copy(std::u16string_view text) override;
    void MousePointer(std::int16_t shape) override;
    void MessageBox(std::u16string_view text, std::int16_t style) override;

    void UnhandledFailure(const Failure& failure) override;
    void PropertyChanged(std::u16string_view name) override;

private:
    /// The widget of an editor, where it edits by itself.
    [[nodiscard]] EditorWidget* SelfEditing(const ControlCore& control) const;

    SheetFrame* frame_;
};

} // namespace Tessellon
