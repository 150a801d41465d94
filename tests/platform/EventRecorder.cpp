#include "platform/EventRecorder.h"

namespace Tessellon::Contract {

namespace {

std::string NameOf(Child child, std::int16_t index)
{
    const std::string place = "(" + std::to_string(index) + ")";
    switch (child) {
    case Child::MSFlexGrid1: return "MSFlexGrid1";
    case Child::Text1: return "Text1";
    case Child::Check1: return "Check1";
    case Child::Combo1: return "Combo1" + place;
    case Child::List1: return "List1" + place;
    case Child::DTPicker1: return "DTPicker1";
    case Child::MaskEdBox1: return "MaskEdBox1" + place;
    case Child::RichTextBox1: return "RichTextBox1";
    case Child::Command1: return "Command1" + place;
    default: return "UserControl";
    }
}

std::string NameOf(ChildEvent event)
{
    switch (event) {
    case ChildEvent::Change: return "Change";
    case ChildEvent::Click: return "Click";
    case ChildEvent::DblClick: return "DblClick";
    case ChildEvent::GotFocus: return "GotFocus";
    case ChildEvent::LostFocus: return "LostFocus";
    case ChildEvent::Validate: return "Validate";
    case ChildEvent::KeyDown: return "KeyDown";
    case ChildEvent::KeyPress: return "KeyPress";
    case ChildEvent::KeyUp: return "KeyUp";
    case ChildEvent::MouseDown: return "MouseDown";
    case ChildEvent::MouseMove: return "MouseMove";
    case ChildEvent::MouseUp: return "MouseUp";
    case ChildEvent::Compare: return "Compare";
    case ChildEvent::EnterCell: return "EnterCell";
    case ChildEvent::LeaveCell: return "LeaveCell";
    case ChildEvent::RowColChange: return "RowColChange";
    case ChildEvent::Scroll: return "Scroll";
    case ChildEvent::SelChange: return "SelChange";
    case ChildEvent::CloseUp: return "CloseUp";
    case ChildEvent::DropDown: return "DropDown";
    case ChildEvent::Format: return "Format";
    case ChildEvent::CallbackKeyDown: return "CallbackKeyDown";
    case ChildEvent::Resize: return "Resize";
    default: return "ExitFocus";
    }
}

std::string Listed(std::initializer_list<std::int32_t> numbers)
{
    std::string list;
    for (const std::int32_t number : numbers)
        list += (list.empty() ? "(" : ",") + std::to_string(number);
    return list + ")";
}

std::string Details(ChildEvent event, const EventArguments& arguments)
{
    switch (event) {
    case ChildEvent::KeyDown:
    case ChildEvent::KeyUp: return Listed({arguments.KeyCode, arguments.Shift});
    case ChildEvent::KeyPress: return Listed({arguments.KeyAscii});
    case ChildEvent::MouseDown:
    case ChildEvent::MouseMove:
    case ChildEvent::MouseUp: return Listed({arguments.Button});
    case ChildEvent::Compare: return Listed({arguments.Row1, arguments.Row2});
    case ChildEvent::Format: return "(" + Narrow(arguments.CallbackField) + ")";
    case ChildEvent::CallbackKeyDown:
        return "(" + Narrow(arguments.CallbackField) + "," + std::to_string(arguments.KeyCode) + ")";
    default: return {};
    }
}

} // namespace

void EventRecorder::Raise(Child child, ChildEvent event, EventArguments& arguments)
{
    const std::string name = NameOf(child, arguments.Index) + "." + NameOf(event);
    events_.push_back(name + Details(event, arguments));
    if (watcher_)
        watcher_(name);
    if (const auto due = once_.find(name); due != once_.end() && !due->second.empty()) {
        const Reaction reaction = due->second.front();
        due->second.erase(due->second.begin());
        reaction(arguments);
    }
    if (const auto always = always_.find(name); always != always_.end()) {
        const Reaction reaction = always->second;
        reaction(arguments);
    }
}

std::string Narrow(std::u16string_view text)
{
    constexpr char16_t lastOfAscii = 0x7E;
    std::string narrow;
    for (const char16_t unit : text)
        narrow += unit <= lastOfAscii ? static_cast<char>(unit) : '?';
    return narrow;
}

} // namespace Tessellon::Contract
