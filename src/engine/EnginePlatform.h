#pragma once

#include "engine/Toolkit.h"
#include "engine/controls/ChoiceControls.h"
#include "engine/controls/ControlArrayOf.h"
#include "engine/controls/MaskControl.h"
#include "engine/controls/PickerControl.h"
#include "engine/controls/TextControls.h"
#include "engine/grid/GridEngine.h"
#include "engine/input/Focus.h"
#include "engine/input/Keys.h"
#include "engine/runtime/PlatformRunTime.h"
#include "platform/Platform.h"

#include <cstddef>
#include <exception>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace Tessellon {

/// The platform on the engines: grid, editors, focus, keys and run time. A toolkit lends it what only a screen has and
/// shows what it says; it hands in what the user does, each time inside UserAction.
class EnginePlatform : public Platform,
                       public std::enable_shared_from_this<EnginePlatform>,
                       private GridSurroundings,
                       private ControlSurroundings {
public:
    EnginePlatform(std::shared_ptr<Toolkit> toolkit, Locale locale);

    // Platform
    Grid& MSFlexGrid1() override { return grid_; }
    std::shared_ptr<TextBox> Text1() override { return text_; }
    std::shared_ptr<CheckBox> Check1() override { return check_; }
    ControlArray<ComboBox>& Combo1() override { return combos_; }
    ControlArray<ListBox>& List1() override { return lists_; }
    std::shared_ptr<DTPicker> DTPicker1() override { return picker_; }
    ControlArray<MaskEdBox>& MaskEdBox1() override { return masks_; }
    std::shared_ptr<RichTextBox> RichTextBox1() override { return rich_; }
    ControlArray<CommandButton>& Command1() override { return commands_; }
    Image& ImgAction(std::int16_t index) override; ///< Its one member has the index 1; another: failure 340.
    Container& UserControl() override { return frame_; }
    Tessellon::Screen& Screen() override { return screen_; }
    Tessellon::RunTime& RunTime() override { return runTime_; }
    std::shared_ptr<Recordset> Watched(std::shared_ptr<Recordset> recordset) override { return recordset; }
    void Listen(EventSink* sink) override { sink_ = sink; }
    std::size_t StackBudget() override { return toolkit_->StackBudget(); }

    // What a toolkit and a test work with.
    GridEngine& TheGrid() { return grid_; }
    Focus& TheFocus() override { return focus_; }
    Keys& TheKeys() { return keys_; }
    PlatformRunTime& Functions() override { return runTime_; }
    [[nodiscard]] const std::shared_ptr<TextBoxControl>& TheTextBox() const { return text_; }
    [[nodiscard]] const std::shared_ptr<CheckBoxControl>& TheCheckBox() const { return check_; }
    [[nodiscard]] const std::shared_ptr<PickerControl>& ThePicker() const { return picker_; }
    [[nodiscard]] const std::shared_ptr<RichTextBoxControl>& TheRichTextBox() const { return rich_; }
    /// All editors, in the order in which the sheet takes them down.
    [[nodiscard]] std::vector<std::shared_ptr<ControlCore>> Editors() const;
    /// The editor that is up, the front one if there are several; null if none is.
    [[nodiscard]] std::shared_ptr<ControlCore> EditorThatIsUp() const;
    /// The control that has the focus; empty for none.
    [[nodiscard]] std::u16string_view FocusName() const;
    /// The editor that has the focus; null if none has.
    [[nodiscard]] std::shared_ptr<ControlCore> FocusedEditor() const;

    /// The sheet gets another size, in twips.
    void Resize(float width, float height);
    /// The font in which the component itself measures texts.
    [[nodiscard]] const Font& ComponentFont() const { return frame_.ComponentFont; }

    /// Runs what the user does. A failure that comes out of it ends the rest of it and is handed to the host.
    template <class Action>
    void UserAction(const Action& action);

private:
    /// The grid as the focus and the keys see it.
    struct GridInput : InputControl {
        explicit GridInput(EnginePlatform& owner)
            : Owner(owner)
        {
        }
        [[nodiscard]] std::u16string_view ControlName() const override { return u"MSFlexGrid1"; }
        [[nodiscard]] bool CanHaveFocus() const override { return Owner.grid_.Enabled(); }
        [[nodiscard]] bool IsDeaf() const override { return !Owner.grid_.Enabled(); }
        void Raise(ChildEvent event, EventArguments& arguments) override
        {
            Owner.RaiseChild(Child::MSFlexGrid1, event, arguments);
        }
        void KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown) override;
        void TakeUp(char16_t character, std::int16_t shift) override;

        EnginePlatform& Owner;
    };

    struct Frame : Container {
        explicit Frame(EnginePlatform& owner)
            : Owner(owner)
        {
        }
        float ScaleWidth() override { return Width; }
        float ScaleHeight() override { return Height; }
        float TextWidth(std::u16string_view text) override { return Owner.toolkit_->TextWidth(text, ComponentFont); }
        void FontSize(double points) override;
        Font AmbientFont() override { return Owner.toolkit_->AmbientFont(); }
        std::int32_t hWnd() override { return Owner.toolkit_->WindowHandle(); }
        void PropertyChanged(std::u16string_view name) override { Owner.toolkit_->PropertyChanged(name); }
        void SetFocus() override { Owner.focus_.GiveBack(); }

        EnginePlatform& Owner;
        Font ComponentFont;
        float Width = 0;
        float Height = 0;
    };

    struct ScreenPart : Tessellon::Screen {
        explicit ScreenPart(EnginePlatform& owner)
            : Owner(owner)
        {
        }
        void MousePointer(std::int16_t shape) override { Owner.toolkit_->MousePointer(shape); }
        float TwipsPerPixelY() override { return Owner.toolkit_->TwipsPerPixelY(); }

        EnginePlatform& Owner;
    };

    struct RunTimePart : PlatformRunTime {
        RunTimePart(EnginePlatform& owner, Locale locale)
            : PlatformRunTime(std::move(locale))
            , Owner(owner)
        {
        }
        void MessageBox(std::u16string_view text, std::int16_t style) override
        {
            Owner.toolkit_->MessageBox(text, style);
        }

        EnginePlatform& Owner;
    };

    struct Arrow : Image {
        Picture GetPicture() override { return Picture::Arrow; }
    };

    // GridSurroundings
    void Raise(ChildEvent event, EventArguments& arguments) override { gridInput_.Raise(event, arguments); }
    bool TakeFocusByPress() override { return focus_.Press(gridInput_); }
    void TakeFocusByCode() override { focus_.Set(gridInput_); }
    void EnabledChanged() override;
    std::int32_t DefaultRowHeight(const Font& font) override { return toolkit_->DefaultRowHeight(font); }
    std::int32_t DefaultColWidth(const Font& font) override { return toolkit_->DefaultColWidth(font); }
    std::int32_t HorizontalScrollBarHeight() override { return toolkit_->HorizontalScrollBarHeight(); }
    std::int32_t VerticalScrollBarWidth() override { return toolkit_->VerticalScrollBarWidth(); }
    void Bell() override { toolkit_->Bell(); }
    void Copy(std::u16string_view text) override { toolkit_->Copy(text); }
    void Invalidate(const GridRectangle& part) override { toolkit_->Invalidate(part); }
    void PaintNow() override { toolkit_->PaintNow(); }
    void ScrollBarsChanged() override { toolkit_->ScrollBarsChanged(); }

    // ControlSurroundings
    ControlSurroundings& Surroundings() { return *this; }
    void RaiseChild(Child child, ChildEvent event, EventArguments& arguments) override;
    float ComboBoxHeight(const Font& font) override { return toolkit_->ComboBoxHeight(font); }
    void Changed(ControlCore& control, Aspect aspect) override { toolkit_->Changed(control, aspect); }
    bool KeyInWidget(ControlCore& control, std::int16_t keyCode, std::int16_t shift) override
    {
        return toolkit_->KeyInWidget(control, keyCode, shift);
    }
    bool CharacterInWidget(ControlCore& control, char16_t character) override
    {
        return toolkit_->CharacterInWidget(control, character);
    }

    std::shared_ptr<Toolkit> toolkit_;
    EventSink* sink_ = nullptr;
    RunTimePart runTime_;
    Frame frame_;
    ScreenPart screen_;
    Arrow arrow_;
    GridInput gridInput_;
    Focus focus_;
    Keys keys_;
    GridEngine grid_;
    std::shared_ptr<TextBoxControl> text_;
    std::shared_ptr<CheckBoxControl> check_;
    ControlArrayOf<ComboBox, ComboBoxControl> combos_;
    ControlArrayOf<ListBox, ListBoxControl> lists_;
    std::shared_ptr<PickerControl> picker_;
    ControlArrayOf<MaskEdBox, MaskEdBoxControl> masks_;
    std::shared_ptr<RichTextBoxControl> rich_;
    ControlArrayOf<CommandButton, CommandButtonControl> commands_;
};

template <class Action>
void EnginePlatform::UserAction(const Action& action)
{
    const std::shared_ptr<EnginePlatform> alive = shared_from_this();
    try {
        action();
    } catch (const Failure& failure) {
        toolkit_->UnhandledFailure(failure);
    } catch (const std::exception&) {
        toolkit_->UnhandledFailure(FailureOf(5, u"TessellonSheet"));
    }
}

} // namespace Tessellon
