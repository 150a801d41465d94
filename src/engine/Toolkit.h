#pragma once

#include "engine/controls/ControlCore.h"
#include "engine/grid/GridTypes.h"
#include "platform/Failure.h"
#include "platform/Font.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Tessellon {

/// What only a screen has, and what has to be shown there. Sizes are twips. But for MessageBox and what names itself a
/// telling of the host, nothing here may call back into the sheet.
class Toolkit {
public:
    virtual ~Toolkit() = default;

    // Metrics
    virtual float TextWidth(std::u16string_view text, const Font& font) = 0;
    virtual std::int32_t DefaultRowHeight(const Font& font) = 0;
    virtual std::int32_t DefaultColWidth(const Font& font) = 0;
    virtual float ComboBoxHeight(const Font& font) = 0;
    virtual std::int32_t HorizontalScrollBarHeight() = 0; ///< While it is shown, else 0.
    virtual std::int32_t VerticalScrollBarWidth() = 0;
    virtual float TwipsPerPixelY() = 0;
    virtual Font AmbientFont() { return {}; }
    virtual std::int32_t WindowHandle() { return 0; }
    virtual std::size_t StackBudget(); ///< Three quarters of what a thread commonly has.

    // Painting of the grid
    virtual void Invalidate(const GridRectangle& part) = 0;
    virtual void PaintNow() = 0;
    virtual void ScrollBarsChanged() = 0;

    // Editors and focus
    virtual void Changed(ControlCore& control, Aspect aspect) = 0;
    /// A real widget that edits by itself takes the key. False: the engine does what the key means.
    virtual bool KeyInWidget(ControlCore& control, std::int16_t keyCode, std::int16_t shift) = 0;
    virtual bool CharacterInWidget(ControlCore& control, char16_t character) = 0;
    virtual void FocusMoved() = 0; ///< The focus of the sheet stands elsewhere: the toolkit's own follows.

    // The rest of a desktop
    virtual void Bell() = 0;
    virtual void Copy(std::u16string_view text) = 0;
    virtual void MousePointer(std::int16_t shape) = 0;
    virtual void MessageBox(std::u16string_view text, std::int16_t style) = 0;

    // What the host is told
    virtual void UnhandledFailure(const Failure& failure) = 0;
    virtual void PropertyChanged(std::u16string_view name) = 0;
};

} // namespace Tessellon
