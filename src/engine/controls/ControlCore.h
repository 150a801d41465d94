#pragma once

#include "engine/input/InputControl.h"
#include "platform/Font.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Tessellon {

class ControlCore;
class Focus;
class PlatformRunTime;

/// What of a control has become another, for the toolkit that shows it.
enum class Aspect : std::uint8_t {
    Visible,
    Enabled,
    Order,
    Place,
    Look, ///< Font, colours, alignment, caption, formats.
    Content, ///< Text, value, selection.
    Caret,
    Items,
    Calendar, ///< The picker's open calendar is closed.
    Gone, ///< The control was unloaded, and is not shown again.
};

/// What a control asks of its surroundings.
class ControlSurroundings {
public:
    virtual ~ControlSurroundings() = default;

    virtual void RaiseChild(Child child, ChildEvent event, EventArguments& arguments) = 0;
    virtual Focus& TheFocus() = 0;
    virtual PlatformRunTime& Functions() = 0;
    virtual void Bell() = 0;
    virtual float ComboBoxHeight(const Font& font) = 0; ///< Twips.
    virtual void Changed(ControlCore& control, Aspect aspect) = 0;
    /// A real widget that edits by itself takes the key; it tells the control what came of it. False: it did not.
    virtual bool KeyInWidget(ControlCore& control, std::int16_t keyCode, std::int16_t shift) = 0;
    virtual bool CharacterInWidget(ControlCore& control, char16_t character) = 0;
};

/// The state that all editors share, without a toolkit: a toolkit shows it and hands the user's doing in.
class ControlCore : public InputControl, public std::enable_shared_from_this<ControlCore> {
public:
    struct Rectangle {
        float Left = 0;
        float Top = 0;
        float Width = 0;
        float Height = 0;
    };

    ControlCore(ControlSurroundings& surroundings, Child child, std::u16string name, std::int16_t index, float height);
    ControlCore(const ControlCore&) = delete;
    ControlCore& operator=(const ControlCore&) = delete;

    // What a toolkit shows.
    [[nodiscard]] Child Which() const { return child_; }
    [[nodiscard]] std::int16_t Index() const { return index_; }
    [[nodiscard]] bool IsVisible() const { return visible_; }
    [[nodiscard]] bool IsEnabled() const { return enabled_; }
    [[nodiscard]] bool IsInFront() const { return inFront_; }
    [[nodiscard]] const Rectangle& Place() const { return place_; }
    [[nodiscard]] const Font& GetFont() const { return font_; }
    [[nodiscard]] std::int32_t Color() const { return color_; }
    [[nodiscard]] std::int16_t TextAlignment() const { return alignment_; }
    [[nodiscard]] bool HasFocus() const;
    /// What the control shows, as one text.
    [[nodiscard]] virtual std::u16string ShownText() const = 0;

    // What the user does with the mouse. Positions are twips from the control's own corner.
    /// False: the press is lost.
    bool PressMouse(const EventArguments& mouse);
    void MoveMouse(const EventArguments& mouse);
    /// Released inside, the press does what it means.
    void ReleaseMouse(const EventArguments& mouse, bool inside);
    /// The mouse event alone, without what it would do.
    void Tell(ChildEvent event, const EventArguments& mouse);
    void Tell(ChildEvent event);

    /// The instance was unloaded: it stays hidden for good.
    void Retire();

    // InputControl
    [[nodiscard]] std::u16string_view ControlName() const override { return name_; }
    [[nodiscard]] bool CanHaveFocus() const override { return visible_ && enabled_; }
    [[nodiscard]] unsigned TimesTakenDown() const override { return timesTakenDown_; }
    [[nodiscard]] std::shared_ptr<const void> Alive() const override { return weak_from_this().lock(); }
    /// One that was unloaded has nothing more to tell.
    void Raise(ChildEvent event, EventArguments& arguments) override;

protected:
    void SetVisible(bool visible);
    void SetEnabled(bool enabled);
    void SetOrder(std::int16_t position);
    void SetPlace(const Rectangle& place);
    void SetFontName(std::u16string_view name);
    void SetFontSize(double points);
    void SetColor(std::int32_t color);
    void SetAlignment(std::int16_t alignment);
    void AskForFocus();
    void Show(Aspect aspect) { surroundings_.Changed(*this, aspect); }

    virtual void BecameVisible() {}
    virtual void BecameHidden() {}
    virtual void BecameDisabled() {}
    virtual void FontChanged() {}
    /// What a press with the mouse means, behind MouseUp.
    virtual void PressMeans() {}

    ControlSurroundings& surroundings_;
    std::u16string tag_;

private:
    void TakenDown(bool& state);

    Child child_;
    std::u16string name_;
    std::int16_t index_;
    bool visible_ = false;
    bool enabled_ = true;
    bool inFront_ = false;
    bool retired_ = false;
    unsigned timesTakenDown_ = 0;
    Rectangle place_;
    Font font_;
    std::int32_t color_;
    std::int16_t alignment_ = 0;
};

} // namespace Tessellon
