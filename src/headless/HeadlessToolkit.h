#pragma once

#include "engine/Toolkit.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace Tessellon {

/// No screen: fixed figures, and what would be shown or heard is handed to whoever asks for it.
class HeadlessToolkit : public Toolkit {
public:
    static constexpr float TwipsAUnit = 120; ///< Width of a UTF-16 unit, whatever the font.
    static constexpr float TwipsAPixel = 15;
    static constexpr std::int32_t RowHeight = 240;
    static constexpr std::int32_t ColWidth = 960;
    static constexpr float ComboHeight = 315;

    std::function<void(std::u16string_view)> OnMessageBox; ///< It is closed at once.
    std::function<void(const Failure&)> OnUnhandledFailure;
    std::function<void(std::u16string_view)> OnPropertyChanged;
    std::u16string Clipboard;
    int Bells = 0;
    std::int16_t Pointer = 0;
    int PaintedParts = 0; ///< How often a part of the view became due for painting.

    float TextWidth(std::u16string_view text, const Font& /*font*/) override
    {
        return static_cast<float>(text.size()) * TwipsAUnit;
    }
    std::int32_t DefaultRowHeight(const Font& /*font*/) override { return RowHeight; }
    std::int32_t DefaultColWidth(const Font& /*font*/) override { return ColWidth; }
    float ComboBoxHeight(const Font& /*font*/) override { return ComboHeight; }
    std::int32_t HorizontalScrollBarHeight() override { return 0; }
    std::int32_t VerticalScrollBarWidth() override { return 0; }
    float TwipsPerPixelY() override { return TwipsAPixel; }

    void Invalidate(const GridRectangle& /*part*/) override { ++PaintedParts; }
    void PaintNow() override {}
    void ScrollBarsChanged() override {}

    void Changed(ControlCore& /*control*/, Aspect /*aspect*/) override {}
    bool KeyInWidget(ControlCore& /*control*/, std::int16_t /*keyCode*/, std::int16_t /*shift*/) override
    {
        return false;
    }
    bool CharacterInWidget(ControlCore& /*control*/, char16_t /*character*/) override { return false; }
    void FocusMoved() override {}

    void Bell() override { ++Bells; }
    void Copy(std::u16string_view text) override { Clipboard = text; }
    void MousePointer(std::int16_t shape) override { Pointer = shape; }
    void MessageBox(std::u16string_view text, std::int16_t /*style*/) override
    {
        if (OnMessageBox)
            OnMessageBox(text);
    }
    void UnhandledFailure(const Failure& failure) override
    {
        if (OnUnhandledFailure)
            OnUnhandledFailure(failure);
    }
    void PropertyChanged(std::u16string_view name) override
    {
        if (OnPropertyChanged)
            OnPropertyChanged(name);
    }
};

} // namespace Tessellon
