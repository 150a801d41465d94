#include "engine/EnginePlatform.h"

namespace Tessellon {

std::size_t Toolkit::StackBudget()
{
    constexpr std::size_t commonStack = std::size_t{8} * 1024 * 1024;
    return commonStack / 4 * 3;
}

EnginePlatform::EnginePlatform(std::shared_ptr<Toolkit> toolkit, Locale locale)
    : toolkit_(std::move(toolkit))
    , runTime_(*this, std::move(locale))
    , frame_(*this)
    , screen_(*this)
    , gridInput_(*this)
    , focus_(gridInput_, {.RaiseExitFocus =
                              [this] {
                                  EventArguments arguments;
                                  RaiseChild(Child::UserControl, ChildEvent::ExitFocus, arguments);
                              },
                          .Moved = [this] { toolkit_->FocusMoved(); }})
    , keys_(focus_)
    , grid_(*this)
    , text_(std::make_shared<TextBoxControl>(Surroundings()))
    , check_(std::make_shared<CheckBoxControl>(Surroundings()))
    , combos_(*this, u"Combo1")
    , lists_(*this, u"List1")
    , picker_(std::make_shared<PickerControl>(Surroundings()))
    , masks_(*this, u"MaskEdBox1")
    , rich_(std::make_shared<RichTextBoxControl>(Surroundings()))
    , commands_(*this, u"Command1")
{
}

Image& EnginePlatform::ImgAction(std::int16_t index)
{
    if (index != 1)
        Fail(340, u"ImgAction");
    return arrow_;
}

void EnginePlatform::RaiseChild(Child child, ChildEvent event, EventArguments& arguments)
{
    if (sink_ != nullptr)
        sink_->Raise(child, event, arguments);
}

void EnginePlatform::EnabledChanged()
{
    // A grid that has the focus keeps it while it is disabled, and is deaf to keys.
    if (grid_.Enabled())
        focus_.GridEnabled();
}

void EnginePlatform::Resize(float width, float height)
{
    frame_.Width = width;
    frame_.Height = height;
    EventArguments arguments;
    RaiseChild(Child::UserControl, ChildEvent::Resize, arguments);
}

void EnginePlatform::Frame::FontSize(double points)
{
    if (!(points > 0))
        Fail(380, u"UserControl");
    ComponentFont.Size = points;
}

void EnginePlatform::GridInput::KeyMeans(std::int16_t keyCode, std::int16_t shift, bool /*takenDown*/)
{
    Owner.grid_.PressKey(keyCode, shift);
}

void EnginePlatform::GridInput::TakeUp(char16_t character, std::int16_t /*shift*/)
{
    Owner.grid_.TypeCharacter(static_cast<std::int16_t>(character));
}

std::vector<std::shared_ptr<ControlCore>> EnginePlatform::Editors() const
{
    std::vector<std::shared_ptr<ControlCore>> editors{text_, check_};
    const auto append = [&](const auto& array) {
        editors.insert(editors.end(), array.Instances().begin(), array.Instances().end());
    };
    append(combos_);
    append(lists_);
    editors.push_back(picker_);
    append(masks_);
    editors.push_back(rich_);
    append(commands_);
    return editors;
}

std::shared_ptr<ControlCore> EnginePlatform::EditorThatIsUp() const
{
    std::shared_ptr<ControlCore> up;
    for (const auto& editor : Editors()) {
        if (editor->IsVisible() && (!up || editor->IsInFront()))
            up = editor;
    }
    return up;
}

std::u16string_view EnginePlatform::FocusName() const
{
    return focus_.Holder() != nullptr ? focus_.Holder()->ControlName() : std::u16string_view();
}

std::shared_ptr<ControlCore> EnginePlatform::FocusedEditor() const
{
    for (const auto& editor : Editors()) {
        if (editor->HasFocus())
            return editor;
    }
    return nullptr;
}

} // namespace Tessellon
