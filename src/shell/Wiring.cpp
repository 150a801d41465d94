#include "shell/Entry.h"

#include <array>

namespace Tessellon {

/// Which handler hears which event of which child. What is not in the table is not heard.
void TessellonSheet::Raise(Child child, ChildEvent event, EventArguments& arguments)
{
    using Sheet = TessellonSheet;
    using A = EventArguments;
    using Handler = void (*)(Sheet&, A&);
    struct Wire {
        Child Source;
        ChildEvent Told;
        Handler Heard;
    };
    using enum Child;
    using enum ChildEvent;

    static constexpr Wire wires[] = {
        {Child::MSFlexGrid1, ChildEvent::Click, [](Sheet& s, A&) { s.MSFlexGrid1_Click(); }},
        {Child::MSFlexGrid1, ChildEvent::Compare, [](Sheet& s, A& a) { s.MSFlexGrid1_Compare(a.Row1, a.Row2, a.Cmp); }},
        {Child::MSFlexGrid1, ChildEvent::DblClick, [](Sheet& s, A&) { s.MSFlexGrid1_DblClick(); }},
        {Child::MSFlexGrid1, ChildEvent::EnterCell, [](Sheet& s, A&) { s.MSFlexGrid1_EnterCell(); }},
        {Child::MSFlexGrid1, GotFocus, [](Sheet& s, A&) { s.MSFlexGrid1_GotFocus(); }},
        {Child::MSFlexGrid1, LostFocus, [](Sheet& s, A&) { s.MSFlexGrid1_LostFocus(); }},
        {Child::MSFlexGrid1, ChildEvent::KeyDown, [](Sheet& s, A& a) { s.MSFlexGrid1_KeyDown(a.KeyCode, a.Shift); }},
        {Child::MSFlexGrid1, ChildEvent::KeyPress, [](Sheet& s, A& a) { s.MSFlexGrid1_KeyPress(a.KeyAscii); }},
        {Child::MSFlexGrid1, ChildEvent::KeyUp, [](Sheet& s, A& a) { s.MSFlexGrid1_KeyUp(a.KeyCode, a.Shift); }},
        {Child::MSFlexGrid1, ChildEvent::LeaveCell, [](Sheet& s, A&) { s.MSFlexGrid1_LeaveCell(); }},
        {Child::MSFlexGrid1, ChildEvent::MouseDown,
         [](Sheet& s, A& a) { s.MSFlexGrid1_MouseDown(a.Button, a.Shift, a.X, a.Y); }},
        {Child::MSFlexGrid1, ChildEvent::MouseMove,
         [](Sheet& s, A& a) { s.MSFlexGrid1_MouseMove(a.Button, a.Shift, a.X, a.Y); }},
        {Child::MSFlexGrid1, ChildEvent::MouseUp,
         [](Sheet& s, A& a) { s.MSFlexGrid1_MouseUp(a.Button, a.Shift, a.X, a.Y); }},
        {Child::MSFlexGrid1, ChildEvent::RowColChange, [](Sheet& s, A&) { s.MSFlexGrid1_RowColChange(); }},
        {Child::MSFlexGrid1, ChildEvent::Scroll, [](Sheet& s, A&) { s.MSFlexGrid1_Scroll(); }},
        {Child::MSFlexGrid1, ChildEvent::SelChange, [](Sheet& s, A&) { s.MSFlexGrid1_SelChange(); }},

        {Child::Text1, Change, [](Sheet& s, A&) { s.Text1_Change(); }},
        {Child::Text1, GotFocus, [](Sheet& s, A&) { s.Text1_GotFocus(); }},
        {Child::Text1, LostFocus, [](Sheet& s, A&) { s.Text1_LostFocus(); }},
        {Child::Text1, Validate, [](Sheet& s, A& a) { s.Text1_Validate(a.Cancel); }},
        {Child::Text1, ChildEvent::DblClick, [](Sheet& s, A&) { s.Text1_DblClick(); }},
        {Child::Text1, ChildEvent::KeyDown, [](Sheet& s, A& a) { s.Text1_KeyDown(a.KeyCode, a.Shift); }},
        {Child::Text1, ChildEvent::KeyPress, [](Sheet& s, A& a) { s.Text1_KeyPress(a.KeyAscii); }},
        {Child::Text1, ChildEvent::KeyUp, [](Sheet& s, A& a) { s.Text1_KeyUp(a.KeyCode, a.Shift); }},

        {Child::Check1, ChildEvent::Click, [](Sheet& s, A&) { s.Check1_Click(); }},
        {Child::Check1, LostFocus, [](Sheet& s, A&) { s.Check1_LostFocus(); }},
        {Child::Check1, Validate, [](Sheet& s, A&) { s.Check1_Validate(); }},
        {Child::Check1, ChildEvent::KeyDown, [](Sheet& s, A& a) { s.Check1_KeyDown(a.KeyCode, a.Shift); }},
        {Child::Check1, ChildEvent::MouseDown, [](Sheet& s, A& a) { s.Check1_MouseDown(a.Button, a.Shift, a.X, a.Y); }},
        {Child::Check1, ChildEvent::MouseMove, [](Sheet& s, A& a) { s.Check1_MouseMove(a.Button, a.Shift, a.X, a.Y); }},
        {Child::Check1, ChildEvent::MouseUp, [](Sheet& s, A& a) { s.Check1_MouseUp(a.Button, a.Shift, a.X, a.Y); }},

        {Child::Combo1, Change, [](Sheet& s, A& a) { s.Combo1_Change(a.Index); }},
        {Child::Combo1, ChildEvent::Click, [](Sheet& s, A& a) { s.Combo1_Click(a.Index); }},
        {Child::Combo1, GotFocus, [](Sheet& s, A&) { s.Combo1_GotFocus(); }},
        {Child::Combo1, LostFocus, [](Sheet& s, A&) { s.Combo1_LostFocus(); }},
        {Child::Combo1, ChildEvent::KeyDown, [](Sheet& s, A& a) { s.Combo1_KeyDown(a.Index, a.KeyCode, a.Shift); }},

        {Child::List1, ChildEvent::Click, [](Sheet& s, A& a) { s.List1_Click(a.Index); }},
        {Child::List1, LostFocus, [](Sheet& s, A&) { s.List1_LostFocus(); }},
        {Child::List1, ChildEvent::KeyDown, [](Sheet& s, A& a) { s.List1_KeyDown(a.Index, a.KeyCode, a.Shift); }},
        {Child::List1, ChildEvent::MouseDown, [](Sheet& s, A& a) { s.List1_MouseDown(a.Button, a.Shift, a.X, a.Y); }},
        {Child::List1, ChildEvent::MouseMove, [](Sheet& s, A& a) { s.List1_MouseMove(a.Button, a.Shift, a.X, a.Y); }},
        {Child::List1, ChildEvent::MouseUp, [](Sheet& s, A& a) { s.List1_MouseUp(a.Button, a.Shift, a.X, a.Y); }},

        {Child::DTPicker1, Change, [](Sheet& s, A&) { s.DTPicker1_Change(); }},
        {Child::DTPicker1, ChildEvent::Click, [](Sheet& s, A&) { s.DTPicker1_Click(); }},
        {Child::DTPicker1, CloseUp, [](Sheet& s, A&) { s.DTPicker1_CloseUp(); }},
        {Child::DTPicker1, DropDown, [](Sheet& s, A&) { s.DTPicker1_DropDown(); }},
        {Child::DTPicker1, ChildEvent::DblClick, [](Sheet& s, A&) { s.DTPicker1_DblClick(); }},
        {Child::DTPicker1, ChildEvent::Format,
         [](Sheet& s, A& a) { s.DTPicker1_Format(a.CallbackField, a.FormattedString); }},
        {Child::DTPicker1, CallbackKeyDown,
         [](Sheet& s, A& a) { s.DTPicker1_CallbackKeyDown(a.KeyCode, a.Shift, a.CallbackField, a.CallbackDate); }},
        {Child::DTPicker1, LostFocus, [](Sheet& s, A&) { s.DTPicker1_LostFocus(); }},
        {Child::DTPicker1, ChildEvent::KeyDown, [](Sheet& s, A& a) { s.DTPicker1_KeyDown(a.KeyCode, a.Shift); }},
        {Child::DTPicker1, ChildEvent::KeyPress, [](Sheet& s, A& a) { s.DTPicker1_KeyPress(a.KeyAscii); }},
        {Child::DTPicker1, ChildEvent::KeyUp, [](Sheet& s, A& a) { s.DTPicker1_KeyUp(a.KeyCode, a.Shift); }},
        {Child::DTPicker1, ChildEvent::MouseDown,
         [](Sheet& s, A& a) { s.DTPicker1_MouseDown(a.Button, a.Shift, a.X, a.Y); }},
        {Child::DTPicker1, ChildEvent::MouseMove,
         [](Sheet& s, A& a) { s.DTPicker1_MouseMove(a.Button, a.Shift, a.X, a.Y); }},
        {Child::DTPicker1, ChildEvent::MouseUp,
         [](Sheet& s, A& a) { s.DTPicker1_MouseUp(a.Button, a.Shift, a.X, a.Y); }},

        {Child::MaskEdBox1, GotFocus, [](Sheet& s, A& a) { s.MaskEdBox1_GotFocus(a.Index); }},
        {Child::MaskEdBox1, LostFocus, [](Sheet& s, A&) { s.MaskEdBox1_LostFocus(); }},
        {Child::MaskEdBox1, ChildEvent::KeyDown,
         [](Sheet& s, A& a) { s.MaskEdBox1_KeyDown(a.Index, a.KeyCode, a.Shift); }},
        {Child::MaskEdBox1, ChildEvent::KeyPress, [](Sheet& s, A& a) { s.MaskEdBox1_KeyPress(a.KeyAscii); }},
        {Child::MaskEdBox1, ChildEvent::KeyUp, [](Sheet& s, A& a) { s.MaskEdBox1_KeyUp(a.Index, a.KeyCode); }},

        {Child::RichTextBox1, Change, [](Sheet& s, A&) { s.RichTextBox1_Change(); }},
        {Child::RichTextBox1, GotFocus, [](Sheet& s, A&) { s.RichTextBox1_GotFocus(); }},
        {Child::RichTextBox1, LostFocus, [](Sheet& s, A&) { s.RichTextBox1_LostFocus(); }},
        {Child::RichTextBox1, ChildEvent::KeyDown, [](Sheet& s, A& a) { s.RichTextBox1_KeyDown(a.KeyCode, a.Shift); }},
        {Child::RichTextBox1, ChildEvent::KeyPress, [](Sheet& s, A& a) { s.RichTextBox1_KeyPress(a.KeyAscii); }},
        {Child::RichTextBox1, ChildEvent::KeyUp, [](Sheet& s, A& a) { s.RichTextBox1_KeyUp(a.KeyCode, a.Shift); }},

        {Child::Command1, ChildEvent::Click, [](Sheet& s, A& a) { s.Command1_Click(a.Index); }},
        {Child::Command1, GotFocus, [](Sheet& s, A&) { s.Command1_GotFocus(); }},
        {Child::Command1, LostFocus, [](Sheet& s, A&) { s.Command1_LostFocus(); }},
        {Child::Command1, ChildEvent::KeyDown, [](Sheet& s, A& a) { s.Command1_KeyDown(a.Index, a.KeyCode, a.Shift); }},
        {Child::Command1, ChildEvent::MouseDown,
         [](Sheet& s, A& a) { s.Command1_MouseDown(a.Button, a.Shift, a.X, a.Y); }},
        {Child::Command1, ChildEvent::MouseMove,
         [](Sheet& s, A& a) { s.Command1_MouseMove(a.Button, a.Shift, a.X, a.Y); }},
        {Child::Command1, ChildEvent::MouseUp, [](Sheet& s, A& a) { s.Command1_MouseUp(a.Button, a.Shift, a.X, a.Y); }},

        {Child::UserControl, Resize, [](Sheet& s, A&) { s.UserControl_Resize(); }},
        {Child::UserControl, ChildEvent::ExitFocus, [](Sheet& s, A&) { s.UserControl_ExitFocus(); }},
    };

    static constexpr std::size_t children = static_cast<std::size_t>(Child::UserControl) + 1;
    static constexpr std::size_t events = static_cast<std::size_t>(ChildEvent::ExitFocus) + 1;
    static constexpr auto handlers = [] {
        std::array<std::array<Handler, events>, children> table{};
        for (const Wire& wire : wires)
            table[static_cast<std::size_t>(wire.Source)][static_cast<std::size_t>(wire.Told)] = wire.Heard;
        return table;
    }();

    const Handler handler = handlers[static_cast<std::size_t>(child)][static_cast<std::size_t>(event)];
    if (handler != nullptr)
        Entry(*this).Run([&] { handler(*this, arguments); });
}

} // namespace Tessellon
