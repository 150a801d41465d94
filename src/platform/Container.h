#pragma once

#include "platform/Font.h"
#include "platform/Grid.h"

#include <cstdint>
#include <string_view>

namespace Tessellon {

/// What a container keeps of a design: named values. Only what differs from the default needs to be kept.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    virtual Font ReadFont(std::u16string_view name, const Font& byDefault) = 0;
    virtual bool ReadTruth(std::u16string_view name, bool byDefault) = 0;
    virtual void WriteFont(std::u16string_view name, const Font& font, const Font& byDefault) = 0;
    virtual void WriteTruth(std::u16string_view name, bool truth, bool byDefault) = 0;
};

/// The frame in which the sheet lives on a form.
class Container {
public:
    virtual ~Container() = default;

    virtual float ScaleWidth() = 0; ///< Inner size, twips.
    virtual float ScaleHeight() = 0;
    virtual float TextWidth(std::u16string_view text) = 0; ///< In the component's own font, twips.
    virtual void FontSize(double points) = 0; ///< Of that font; not above 0: failure 380.
    virtual Font AmbientFont() = 0;
    virtual std::int32_t hWnd() = 0; ///< 0 where there is none.
    virtual void PropertyChanged(std::u16string_view name) = 0;
    virtual void SetFocus() = 0; ///< Gives the focus back to the component.
};

class Screen {
public:
    virtual ~Screen() = default;

    virtual void MousePointer(std::int16_t shape) = 0; ///< 0 default, 11 hourglass.
    virtual float TwipsPerPixelY() = 0;
};

/// An image that the component carries.
class Image {
public:
    virtual ~Image() = default;

    virtual Picture GetPicture() = 0;
};

} // namespace Tessellon
