#include "headless/HeadlessHand.h"

namespace Tessellon {

template <class Action>
void HeadlessHand::InFront(const Action& action)
{
    if (platform_->TheFocus().IsWindowInFront())
        platform_->UserAction(action);
}

template <class Control>
std::shared_ptr<Control> HeadlessHand::Focused() const
{
    return std::dynamic_pointer_cast<Control>(platform_->FocusedEditor());
}

bool HeadlessHand::IsInSheet(float x, float y) const
{
    Container& frame = platform_->UserControl();
    return x >= 0 && y >= 0 && x < frame.ScaleWidth() && y < frame.ScaleHeight();
}

bool HeadlessHand::IsThere(std::int32_t row, std::int32_t col) const
{
    GridEngine& grid = platform_->TheGrid();
    return row >= 0 && col >= 0 && row < grid.Rows() && col < grid.Cols();
}

/// A failure in the press takes the release with it: the button is up again behind it.
template <class Action>
void HeadlessHand::PressAndRelease(const Action& action)
{
    try {
        action(platform_->TheGrid());
    } catch (...) {
        platform_->TheGrid().AbandonPress();
        throw;
    }
}

bool HeadlessHand::ClickCell(GridCell cell)
{
    GridEngine& grid = platform_->TheGrid();
    if (!IsThere(cell.Row, cell.Col) || !grid.Enabled())
        return false;
    grid.ScrollIntoView(cell);
    if (grid.PressCell(cell))
        grid.ReleaseHere();
    return true;
}

void HeadlessHand::Click(std::int32_t row, std::int32_t col)
{
    InFront([&] { PressAndRelease([&](GridEngine& /*grid*/) { ClickCell({row, col}); }); });
}

void HeadlessHand::DoubleClick(std::int32_t row, std::int32_t col)
{
    InFront([&] {
        PressAndRelease([&](GridEngine& grid) {
            if (ClickCell({row, col}) && IsThere(row, col) && grid.DoublePressCell({row, col}))
                grid.ReleaseHere();
        });
    });
}

void HeadlessHand::Drag(std::int32_t row, std::int32_t col, std::int32_t toRow, std::int32_t toCol)
{
    InFront([&] {
        PressAndRelease([&](GridEngine& grid) {
            if (!IsThere(row, col) || !IsThere(toRow, toCol) || !grid.Enabled())
                return;
            grid.ScrollIntoView({row, col});
            if (!grid.PressCell({row, col}))
                return;
            grid.DragToCell({toRow, toCol});
            grid.ReleaseHere();
        });
    });
}

void HeadlessHand::Scroll(std::int32_t topRow, std::int32_t leftCol)
{
    InFront([&] { platform_->TheGrid().ScrollTo(topRow, leftCol); });
}

void HeadlessHand::MouseDown(float x, float y)
{
    InFront([&] {
        if (IsInSheet(x, y))
            platform_->TheGrid().PressMouse({.X = x, .Y = y}, HeadingEdges::Ignore);
    });
}

void HeadlessHand::MouseUp(float x, float y)
{
    InFront([&] {
        if (IsInSheet(x, y))
            platform_->TheGrid().ReleaseMouse({.X = x, .Y = y});
    });
}

/// The move's event alone: a drag that selects is Drag.
void HeadlessHand::MouseMove(float x, float y)
{
    InFront([&] {
        if (IsInSheet(x, y) && platform_->TheGrid().IsHeld(1))
            platform_->TheGrid().HoverMouse({.X = x, .Y = y});
    });
}

void HeadlessHand::Hover(float x, float y)
{
    InFront([&] {
        if (IsInSheet(x, y))
            platform_->TheGrid().HoverMouse({.Button = 0, .X = x, .Y = y});
    });
}

void HeadlessHand::Press(const Stroke& stroke)
{
    InFront([&] {
        platform_->TheKeys().Down(stroke);
        platform_->TheKeys().Up(stroke);
    });
}

void HeadlessHand::Caret(std::int32_t position)
{
    InFront([&] {
        if (const auto text = Focused<TextBoxControl>())
            text->SelStart(position);
        else if (const auto rich = Focused<RichTextBoxControl>())
            rich->SelStart(position);
        else if (const auto mask = Focused<MaskEdBoxControl>())
            mask->SelStart(position);
        else if (const auto combo = Focused<ComboBoxControl>())
            combo->Caret(position);
    });
}

void HeadlessHand::Select(std::int32_t item)
{
    InFront([&] {
        if (const auto list = Focused<ListBoxControl>())
            list->Choose(item, 0);
        else if (const auto combo = Focused<ComboBoxControl>())
            combo->Choose(item);
    });
}

void HeadlessHand::Toggle()
{
    InFront([&] {
        if (const auto check = Focused<CheckBoxControl>())
            check->Toggle();
    });
}

void HeadlessHand::Push()
{
    InFront([&] {
        if (const auto button = std::dynamic_pointer_cast<CommandButtonControl>(platform_->EditorThatIsUp()))
            button->Push();
    });
}

void HeadlessHand::Pick(double date, bool withTime)
{
    InFront([&] {
        const std::shared_ptr<PickerControl> picker = platform_->ThePicker();
        if (platform_->EditorThatIsUp() != picker || !platform_->TheFocus().Press(*picker))
            return;
        picker->OpenCalendar();
        picker->Choose(date, withTime);
    });
}

void HeadlessHand::Over(OverEvent event, float x, float y)
{
    InFront([&] {
        const std::shared_ptr<ControlCore> editor = platform_->EditorThatIsUp();
        if (!editor)
            return;
        const Child which = editor->Which();
        const bool isPicker = which == Child::DTPicker1;
        EventArguments mouse;
        mouse.Button = event == OverEvent::Move ? 0 : 1;
        mouse.X = x;
        mouse.Y = y;
        switch (event) {
        case OverEvent::Down: editor->Tell(ChildEvent::MouseDown, mouse); break;
        case OverEvent::Up: editor->Tell(ChildEvent::MouseUp, mouse); break;
        case OverEvent::Move: editor->Tell(ChildEvent::MouseMove, mouse); break;
        case OverEvent::Click:
            if (isPicker)
                editor->Tell(ChildEvent::Click);
            break;
        case OverEvent::DoubleClick:
            if (isPicker || which == Child::Text1)
                editor->Tell(ChildEvent::DblClick);
            break;
        }
    });
}

void HeadlessHand::FocusOut()
{
    InFront([&] { platform_->TheFocus().LeaveSheet(); });
}

void HeadlessHand::FocusIn()
{
    InFront([&] { platform_->TheFocus().EnterSheet(); });
}

void HeadlessHand::WindowOut()
{
    platform_->UserAction([&] { platform_->TheFocus().WindowOut(); });
}

void HeadlessHand::WindowIn()
{
    platform_->UserAction([&] { platform_->TheFocus().WindowIn(); });
}

void HeadlessHand::Resize(float width, float height)
{
    platform_->UserAction([&] { platform_->Resize(width, height); });
}

} // namespace Tessellon
