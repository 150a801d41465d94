#pragma once

#include "engine/controls/ControlCore.h"
#include "platform/Editors.h"

#include <string_view>

namespace Tessellon {

/// One kind of editor on the state that all share: what the sheet sees of it.
template <class Kind>
class EditorControl : public Kind, public ControlCore {
public:
    using ControlCore::ControlCore;

    std::u16string_view Name() override { return ControlName(); }
    bool Visible() override { return IsVisible(); }
    void Visible(bool visible) override { SetVisible(visible); }
    bool Enabled() override { return IsEnabled(); }
    void Enabled(bool enabled) override { SetEnabled(enabled); }
    void ZOrder(std::int16_t position) override { SetOrder(position); }
    void SetFocus() override { AskForFocus(); }
    std::u16string_view Tag() override { return tag_; }
    void Tag(std::u16string_view tag) override { tag_ = tag; }

    float Left() override { return Place().Left; }
    void Left(float left) override { SetPlace({left, Place().Top, Place().Width, Place().Height}); }
    float Top() override { return Place().Top; }
    void Top(float top) override { SetPlace({Place().Left, top, Place().Width, Place().Height}); }
    float Width() override { return Place().Width; }
    void Width(float width) override { SetPlace({Place().Left, Place().Top, width, Place().Height}); }
    float Height() override { return Place().Height; }
    void Move(float left, float top, float width, float height) override { SetPlace({left, top, width, height}); }

    void FontName(std::u16string_view name) override { SetFontName(name); }
    void FontSize(double points) override { SetFontSize(points); }
};

} // namespace Tessellon
