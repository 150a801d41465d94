#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

namespace {

std::int16_t CodeOf(char16_t unit)
{
    if (unit >= u'a' && unit <= u'z')
        return static_cast<std::int16_t>(unit - u'a' + u'A');
    const bool hasCode = (unit >= u'A' && unit <= u'Z') || (unit >= u'0' && unit <= u'9') || unit == u' ';
    return hasCode ? static_cast<std::int16_t>(unit) : std::int16_t{0};
}

template <class Control, class Kind>
Control& Instance(ControlArray<Kind>& array, std::int16_t index)
{
    return dynamic_cast<Control&>(*array.Item(index));
}

} // namespace

PlatformContract::PlatformContract()
    : Under(TheFactory().Make())
{
    Engine().Resize(9600, 4800);
    Cells().Move(0, 0, 9600, 4800);
    Cells().Rows(21);
    Cells().Cols(6);
    Cells().Row(1);
    Cells().Col(1);
    Under->Get()->Listen(&Recorder);
}

PlatformContract::~PlatformContract()
{
    Under->Get()->Listen(nullptr);
}

ComboBoxControl& PlatformContract::Combo(std::int16_t index)
{
    return Instance<ComboBoxControl>(Engine().Combo1(), index);
}

ListBoxControl& PlatformContract::List(std::int16_t index)
{
    return Instance<ListBoxControl>(Engine().List1(), index);
}

MaskEdBoxControl& PlatformContract::Mask(std::int16_t index)
{
    return Instance<MaskEdBoxControl>(Engine().MaskEdBox1(), index);
}

CommandButtonControl& PlatformContract::Button(std::int16_t index)
{
    return Instance<CommandButtonControl>(Engine().Command1(), index);
}

void PlatformContract::Act(const std::function<void()>& action)
{
    Engine().UserAction(action);
}

bool PlatformContract::PressOn(ControlCore& editor, std::int16_t button)
{
    bool isTaken = false;
    Act([&] {
        EventArguments mouse;
        mouse.Button = button;
        isTaken = editor.PressMouse(mouse);
    });
    return isTaken;
}

void PlatformContract::ReleaseOn(ControlCore& editor, bool inside, std::int16_t button)
{
    Act([&] {
        EventArguments mouse;
        mouse.Button = button;
        editor.ReleaseMouse(mouse, inside);
    });
}

void PlatformContract::Key(std::int16_t code, std::int16_t shift)
{
    User().Press({code, shift, false, 0});
}

void PlatformContract::Key(std::int16_t code, char16_t character, std::int16_t shift)
{
    User().Press({code, shift, true, character});
}

void PlatformContract::Type(std::u16string_view text)
{
    for (const char16_t unit : text)
        Key(CodeOf(unit), unit);
}

std::string PlatformContract::Holder()
{
    return Narrow(Engine().FocusName());
}

Names PlatformContract::Cell()
{
    GridEngine& grid = Cells();
    return {std::to_string(grid.Row()), std::to_string(grid.Col()), std::to_string(grid.RowSel()),
            std::to_string(grid.ColSel())};
}

std::int32_t NumberOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Number;
    }
    return 0;
}

std::string SourceOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return Narrow(failure.Source);
    }
    return {};
}

Names operator+(Names left, const Names& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

Names Stroked(const std::string& name, std::int16_t code, std::int16_t character, const Names& between)
{
    const std::string key = "(" + std::to_string(code) + ",0)";
    return Names{name + ".KeyDown" + key, name + ".KeyPress(" + std::to_string(character) + ")"} + between +
           Names{name + ".KeyUp" + key};
}

} // namespace Tessellon::Contract
