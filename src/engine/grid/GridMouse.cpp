#include "engine/grid/GridEngine.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessellon {

namespace {

constexpr std::int16_t leftButton = 1;
constexpr std::int16_t shiftKey = 1;
constexpr float edgeReach = 60;
constexpr std::int32_t rowsOfWheel = 3;

} // namespace

void GridEngine::RaiseMouse(ChildEvent event, const GridMouse& mouse)
{
    EventArguments arguments;
    arguments.Button = mouse.Button;
    arguments.Shift = mouse.Shift;
    arguments.X = mouse.X;
    arguments.Y = mouse.Y;
    surroundings_.Raise(event, arguments);
}

GridMouse GridEngine::MiddleOf(GridCell cell, std::int16_t button, std::int16_t shift) const
{
    const GridRectangle place = RectangleOf(cell);
    return {button, shift, static_cast<float>(place.Left) + static_cast<float>(place.Width) / 2,
            static_cast<float>(place.Top) + static_cast<float>(place.Height) / 2};
}

bool GridEngine::HasShownData() const
{
    return rows_.Count() > fixedRows && FirstShownCol() < cols_.Count();
}

// ---- Presses --------------------------------------------------------------------------------------------------------

bool GridEngine::PressMouse(const GridMouse& mouse, HeadingEdges edges)
{
    return BeginPress(mouse, std::nullopt, edges, false);
}

bool GridEngine::DoublePressMouse(const GridMouse& mouse)
{
    return BeginPress(mouse, std::nullopt, HeadingEdges::Ignore, true);
}

bool GridEngine::PressCell(GridCell cell, std::int16_t button, std::int16_t shift)
{
    return IsThere(cell) && BeginPress(MiddleOf(cell, button, shift), cell, HeadingEdges::Ignore, false);
}

bool GridEngine::DoublePressCell(GridCell cell, std::int16_t button, std::int16_t shift)
{
    return IsThere(cell) && BeginPress(MiddleOf(cell, button, shift), cell, HeadingEdges::Ignore, true);
}

bool GridEngine::BeginPress(const GridMouse& mouse, std::optional<GridCell> named, HeadingEdges edges, bool isSecond)
{
    if (!isEnabled_ || !surroundings_.TakeFocusByPress() || !isEnabled_)
        return false;
    // Whoever lost the focus may have scrolled or rebuilt the grid: what lies under the mouse is settled here.
    const std::optional<GridCell> cell = named ? named : CellAt(mouse.X, mouse.Y);
    const std::optional<std::int32_t> edge =
        edges == HeadingEdges::Resize && mouse.Button == leftButton ? EdgeAt(mouse.X, mouse.Y) : std::nullopt;
    held_ = static_cast<std::int16_t>(held_ | mouse.Button);
    mouse_ = mouse;
    if (mouse.Button == leftButton) {
        press_ = Press();
        press_.Clicks = !isSecond && !edge && !(cell && cell->Row < fixedRows);
    }
    RaiseMouse(ChildEvent::MouseDown, mouse);
    if (!isEnabled_) {
        AbandonPress();
        return true;
    }
    if (mouse.Button != leftButton)
        return true;
    if (isSecond) {
        Raise(ChildEvent::DblClick);
    } else if (edge) {
        if (*edge < cols_.Count())
            press_ = {Gesture::Resize, false, false, *edge, cols_.Size(*edge), mouse.X};
    } else if (cell && IsThere(*cell)) {
        PressOn(*cell, mouse.Shift);
    }
    return true;
}

void GridEngine::PressOn(GridCell cell, std::int16_t shift)
{
    if (IsData(cell)) {
        BringIntoView(cell);
        if (!IsThere(cell))
            return;
        press_.Does = Gesture::Select;
        if ((shift & shiftKey) != 0)
            Extend(cell);
        else
            MoveTo({cell, cell});
    } else if (HasShownData()) {
        PressOnHeading(cell);
    }
}

void GridEngine::PressOnHeading(GridCell cell)
{
    if (cell.Row >= fixedRows) {
        BringIntoView({cell.Row, FirstShownCol()});
        if (IsThere(cell) && HasShownData())
            MoveTo({{cell.Row, FirstShownCol()}, {cell.Row, cols_.Count() - 1}});
        return;
    }
    const GridCell last{rows_.Count() - 1, cols_.Count() - 1};
    if (cell.Col < fixedCols) {
        MoveTo({{fixedRows, FirstShownCol()}, last});
        return;
    }
    // Told even where the cell is the current one: whoever waits for a move behind this press hears of it.
    MoveTo({{std::max(selection_.Current.Row, fixedRows), cell.Col}, {last.Row, cell.Col}}, Telling::Always);
}

void GridEngine::Extend(GridCell corner)
{
    selection_.Corner = corner;
    press_.Extends = true;
    ShowCursor();
}

void GridEngine::AbandonPress()
{
    held_ = 0;
    press_ = Press();
}

// ---- Moves and releases ---------------------------------------------------------------------------------------------

void GridEngine::HoverMouse(const GridMouse& mouse)
{
    if (isEnabled_)
        RaiseMouse(ChildEvent::MouseMove, mouse);
}

void GridEngine::MoveMouse(const GridMouse& mouse)
{
    if (!isEnabled_)
        return;
    mouse_ = mouse;
    RaiseMouse(ChildEvent::MouseMove, mouse);
    if (!isEnabled_ || !IsHeld(leftButton))
        return;
    if (press_.Does == Gesture::Resize && press_.Col < cols_.Count()) {
        const double width = std::round(press_.Width + static_cast<double>(mouse.X) - press_.X);
        ColWidth(press_.Col, static_cast<std::int32_t>(std::max(width, 0.0)));
    } else if (press_.Does == Gesture::Select) {
        if (const std::optional<GridCell> cell = CellAt(mouse.X, mouse.Y); cell && IsData(*cell))
            Extend(*cell);
    }
}

void GridEngine::DragToCell(GridCell cell, std::int16_t shift)
{
    if (!isEnabled_ || !IsThere(cell))
        return;
    mouse_ = MiddleOf(cell, leftButton, shift);
    RaiseMouse(ChildEvent::MouseMove, mouse_);
    if (isEnabled_ && IsHeld(leftButton) && press_.Does == Gesture::Select && IsData(cell) && IsThere(cell))
        Extend(cell);
}

void GridEngine::ReleaseHere(std::int16_t button, std::int16_t shift)
{
    ReleaseMouse({button, shift, mouse_.X, mouse_.Y});
}

void GridEngine::ReleaseMouse(const GridMouse& mouse)
{
    if (!IsHeld(mouse.Button))
        return;
    held_ = static_cast<std::int16_t>(held_ & ~mouse.Button);
    const Press press = mouse.Button == leftButton ? std::exchange(press_, Press()) : Press();
    if (isEnabled_ && press.Extends)
        TellSelection();
    if (isEnabled_)
        RaiseMouse(ChildEvent::MouseUp, mouse);
    if (isEnabled_ && press.Clicks)
        Raise(ChildEvent::Click);
}

std::optional<std::int32_t> GridEngine::EdgeAt(float x, float y) const
{
    if (userResizing_ != 1 || !(x >= 0) || !(y >= 0) || static_cast<double>(y) >= static_cast<double>(rows_.Size(0)))
        return std::nullopt;
    std::optional<std::int32_t> found;
    float reach = edgeReach;
    const auto look = [&](std::int32_t col) {
        const GridRectangle place = RectangleOf({0, col});
        const float distance = std::abs(x - static_cast<float>(place.Left + place.Width));
        if (place.Width > 0 && distance <= reach) {
            reach = distance;
            found = col;
        }
    };
    for (std::int32_t col = 0; col < fixedCols; ++col)
        look(col);
    const GridSpan visible = VisibleCols();
    for (std::int32_t col = visible.First; col <= visible.Last; ++col)
        look(col);
    return found;
}

// ---- Scrolling by the mouse -----------------------------------------------------------------------------------------

void GridEngine::StepDrag(float x, float y)
{
    if (!isEnabled_ || press_.Does != Gesture::Select)
        return;
    const GridRectangle view = View();
    const auto past = [](float position, std::int64_t begin, std::int32_t end) {
        return static_cast<double>(position) < static_cast<double>(begin) ? -1
               : static_cast<double>(position) >= end                     ? 1
                                                                          : 0;
    };
    const std::int32_t down = past(y, rows_.Position(fixedRows), view.Height);
    const std::int32_t across = past(x, cols_.Position(fixedCols), view.Width);
    TopRow(topRow_ + down);
    LeftCol(leftCol_ + across);
    GridCell corner = Pulled(selection_.Corner);
    if (down != 0)
        corner.Row = down < 0 ? topRow_ : topRow_ + RowSight().Page() - 1;
    if (across != 0)
        corner.Col = across < 0 ? leftCol_ : leftCol_ + ColSight().Page() - 1;
    corner = Pulled(corner);
    if (isEnabled_ && press_.Does == Gesture::Select && IsData(corner) && corner != selection_.Corner)
        Extend(corner);
}

void GridEngine::TurnWheel(std::int32_t notches, std::int16_t shift)
{
    if (!isEnabled_)
        return;
    if ((shift & shiftKey) == 0) {
        const std::int64_t row = topRow_ - std::int64_t{notches} * rowsOfWheel;
        TopRow(static_cast<std::int32_t>(std::clamp<std::int64_t>(row, 0, rows_.Count())));
        return;
    }
    std::int32_t col = leftCol_;
    for (std::int32_t notch = notches; notch > 0 && col > fixedCols; --notch)
        col = cols_.PreviousShown(col - 1);
    for (std::int32_t notch = notches; notch < 0 && col < cols_.Count(); ++notch)
        col = cols_.NextShown(col + 1);
    LeftCol(col);
}

} // namespace Tessellon
