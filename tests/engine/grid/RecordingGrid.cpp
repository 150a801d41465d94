#include "engine/grid/RecordingGrid.h"

#include <utility>

namespace Tessellon::GridTests {

namespace {

std::string NameOf(ChildEvent event)
{
    switch (event) {
    case ChildEvent::LeaveCell: return "LeaveCell";
    case ChildEvent::EnterCell: return "EnterCell";
    case ChildEvent::RowColChange: return "RowColChange";
    case ChildEvent::SelChange: return "SelChange";
    case ChildEvent::Scroll: return "Scroll";
    case ChildEvent::MouseDown: return "MouseDown";
    case ChildEvent::MouseMove: return "MouseMove";
    case ChildEvent::MouseUp: return "MouseUp";
    case ChildEvent::Click: return "Click";
    case ChildEvent::DblClick: return "DblClick";
    default: return "another";
    }
}

} // namespace

void Recorder::Raise(ChildEvent event, EventArguments& arguments)
{
    Events.push_back(NameOf(event));
    if (event == ChildEvent::MouseDown || event == ChildEvent::MouseMove || event == ChildEvent::MouseUp)
        Mouse.push_back(arguments);
    std::vector<std::function<void()>>& waiting = handlers_[event];
    if (waiting.empty())
        return;
    const std::function<void()> handler = waiting.front();
    waiting.erase(waiting.begin());
    handler();
}

bool Recorder::TakeFocusByPress()
{
    if (!HasFocus) {
        Events.emplace_back("Focus");
        if (OnFocus)
            std::exchange(OnFocus, nullptr)();
    }
    return !LosesPress;
}

void GridTest::Build(std::int32_t rows, std::int32_t cols)
{
    Grid.Rows(rows);
    Grid.Cols(cols);
    Grid.Row(rows > 1 ? 1 : 0);
    Grid.Col(cols > 1 ? 1 : 0);
    Grid.Refresh();
    Forget();
}

Names GridTest::Told()
{
    return std::exchange(Surroundings.Events, {});
}

void GridTest::Forget()
{
    Surroundings.Events.clear();
    Surroundings.Mouse.clear();
    Surroundings.Parts.clear();
    Surroundings.Paintings = 0;
    Surroundings.BarChanges = 0;
}

void GridTest::Select(std::int32_t row, std::int32_t col, std::int32_t rowSel, std::int32_t colSel)
{
    Grid.Row(row);
    Grid.Col(col);
    Grid.RowSel(rowSel);
    Grid.ColSel(colSel);
}

Numbers GridTest::Cursor()
{
    return {Grid.Row(), Grid.Col(), Grid.RowSel(), Grid.ColSel()};
}

std::int32_t NumberOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Source, u"MSFlexGrid1");
        return failure.Number;
    }
    return 0;
}

Names operator+(Names left, const Names& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

} // namespace Tessellon::GridTests
