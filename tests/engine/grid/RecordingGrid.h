#pragma once

#include "engine/grid/GridEngine.h"
#include "platform/Failure.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::GridTests {

/// Surroundings that note all that the grid tells them, and answer as a test wants.
class Recorder : public GridSurroundings {
public:
    void Raise(ChildEvent event, EventArguments& arguments) override;
    bool TakeFocusByPress() override;
    void TakeFocusByCode() override { Events.emplace_back("SetFocus"); }
    void EnabledChanged() override { Events.emplace_back("EnabledChanged"); }
    std::int32_t DefaultRowHeight(const Font& font) override { return static_cast<std::int32_t>(font.Size * 30); }
    std::int32_t DefaultColWidth(const Font& font) override { return static_cast<std::int32_t>(font.Size * 120); }
    std::int32_t HorizontalScrollBarHeight() override { return BarHeight; }
    std::int32_t VerticalScrollBarWidth() override { return BarWidth; }
    void Bell() override { Events.emplace_back("Bell"); }
    void Copy(std::u16string_view text) override { Copied.emplace_back(text); }
    void Invalidate(const GridRectangle& part) override { Parts.push_back(part); }
    void PaintNow() override { ++Paintings; }
    void ScrollBarsChanged() override { ++BarChanges; }

    /// What is to happen the next time that an event is raised, once.
    void Once(ChildEvent event, std::function<void()> handler) { handlers_[event].push_back(std::move(handler)); }

    std::vector<std::string> Events;
    std::vector<EventArguments> Mouse; ///< Of the mouse events.
    std::vector<std::u16string> Copied;
    std::vector<GridRectangle> Parts;
    int Paintings = 0;
    int BarChanges = 0;
    std::int32_t BarHeight = 0;
    std::int32_t BarWidth = 0;
    bool HasFocus = true;
    bool LosesPress = false;
    std::function<void()> OnFocus; ///< Runs while a press takes the focus.

private:
    std::map<ChildEvent, std::vector<std::function<void()>>> handlers_;
};

/// A grid of 9600 x 4800 twips: the heading and 19 rows, the marker column and 9 columns.
class GridTest : public ::testing::Test {
protected:
    GridTest()
        : Grid(Surroundings)
    {
        Grid.Move(0, 0, 9600, 4800);
    }

    /// Rows x Cols in all, cursor on (1, 1), nothing noted yet.
    void Build(std::int32_t rows, std::int32_t cols);
    /// What was raised since the last call.
    std::vector<std::string> Told();
    void Forget();
    void Select(std::int32_t row, std::int32_t col, std::int32_t rowSel, std::int32_t colSel);
    /// Row, Col, RowSel, ColSel.
    std::vector<std::int32_t> Cursor();
    std::vector<std::int32_t> Scrolled() { return {Grid.TopRow(), Grid.LeftCol()}; }

    Recorder Surroundings;
    GridEngine Grid;
};

using Names = std::vector<std::string>;
using Numbers = std::vector<std::int32_t>;

inline const Names wholeMove{"LeaveCell", "EnterCell", "RowColChange", "SelChange"};

/// The number of the failure that an action ends in; 0 for none.
std::int32_t NumberOf(const std::function<void()>& action);
/// Both lists, one behind the other.
Names operator+(Names left, const Names& right);

} // namespace Tessellon::GridTests
