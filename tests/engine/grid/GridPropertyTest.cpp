#include "engine/grid/RecordingGrid.h"

#include <rapidcheck.h>

#include <algorithm>

namespace Tessellon::GridTests {

namespace {

/// A grid as one would write it down first: a string a cell, everything found by walking.
struct PlainGrid {
    std::vector<std::vector<std::u16string>> Cells{2, std::vector<std::u16string>(2)};
    Numbers Heights{240, 240};
    Numbers Widths{960, 960};
    std::int32_t Minimum = 0;
    std::int32_t ViewHeight = 4800;
    std::int32_t ViewWidth = 9600;
    Numbers Cursor{0, 0, 0, 0};
    std::int32_t TopRow = 1;
    std::int32_t LeftCol = 1;

    [[nodiscard]] std::int32_t Rows() const { return static_cast<std::int32_t>(Cells.size()); }
    [[nodiscard]] std::int32_t Cols() const { return static_cast<std::int32_t>(Widths.size()); }
    [[nodiscard]] Numbers RowSizes() const
    {
        Numbers sizes = Heights;
        for (std::int32_t& size : sizes)
            size = std::max(size, Minimum);
        return sizes;
    }

    static bool Fits(const Numbers& sizes, std::int32_t from, std::int32_t to, std::int32_t view)
    {
        std::int64_t sum = sizes[0];
        for (std::int32_t at = from; at <= to; ++at)
            sum += sizes[static_cast<std::size_t>(at)];
        return sum <= view;
    }

    static std::int32_t LastPage(const Numbers& sizes, std::int32_t view)
    {
        auto last = static_cast<std::int32_t>(sizes.size()) - 1;
        while (last > 1 && sizes[static_cast<std::size_t>(last)] == 0)
            --last;
        std::int32_t first = std::max(last, 1);
        while (first > 1 && Fits(sizes, first - 1, last, view))
            --first;
        return first;
    }

    static std::int32_t Showing(const Numbers& sizes, std::int32_t first, std::int32_t index, std::int32_t view)
    {
        if (index < 1)
            return first;
        if (index < first)
            return index;
        while (first < index && !Fits(sizes, first, index, view))
            ++first;
        return first;
    }

    void Pull()
    {
        for (const std::size_t at : {0U, 2U})
            Cursor[at] = std::min(Cursor[at], Rows() - 1);
        for (const std::size_t at : {1U, 3U})
            Cursor[at] = std::min(Cursor[at], Cols() - 1);
    }

    void ClampRow(std::int32_t row) { TopRow = std::clamp(row, 1, LastPage(RowSizes(), ViewHeight)); }
    void ClampCol(std::int32_t col) { LeftCol = std::clamp(col, 1, LastPage(Widths, ViewWidth)); }
};

class RandomGrid {
public:
    RandomGrid()
        : grid_(surroundings_)
    {
        grid_.Move(0, 0, 9600, 4800);
    }

    void Step()
    {
        const int row = *rc::gen::inRange(0, plain_.Rows());
        const int col = *rc::gen::inRange(0, plain_.Cols());
        const auto rowAt = static_cast<std::size_t>(row);
        const auto colAt = static_cast<std::size_t>(col);
        switch (*rc::gen::inRange(0, 15)) {
        case 0: Resize(*rc::gen::element(1, 2, 5, 40, 90)); break;
        case 1: Widen(*rc::gen::element(1, 2, 4, 25)); break;
        case 2:
            grid_.AddItem(u"a\tb", row + 1);
            plain_.Cells.insert(plain_.Cells.begin() + row + 1, std::vector<std::u16string>(plain_.Widths.size()));
            plain_.Cells[rowAt + 1][0] = u"a";
            if (plain_.Cols() > 1)
                plain_.Cells[rowAt + 1][1] = u"b";
            plain_.Heights.insert(plain_.Heights.begin() + row + 1, 240);
            break;
        case 3:
            if (row > 0 && plain_.Rows() > 2) {
                grid_.RemoveItem(row);
                plain_.Cells.erase(plain_.Cells.begin() + row);
                plain_.Heights.erase(plain_.Heights.begin() + row);
                plain_.Pull();
                plain_.ClampRow(plain_.TopRow);
            }
            break;
        case 4: {
            const std::u16string text = *rc::gen::element<std::u16string>(u"", u"x", u"longer", u"\u20AC");
            grid_.TextMatrix(row, col, text);
            plain_.Cells[rowAt][colAt] = text;
            break;
        }
        case 5:
            plain_.Heights[rowAt] = *rc::gen::element(0, 100, 240, 700, 6000);
            grid_.RowHeight(row, plain_.Heights[rowAt]);
            break;
        case 6:
            plain_.Widths[colAt] = *rc::gen::element(0, 300, 960, 4000, 12000);
            grid_.ColWidth(col, plain_.Widths[colAt]);
            break;
        case 7:
            plain_.Minimum = *rc::gen::element(0, 120, 300);
            grid_.RowHeightMin(plain_.Minimum);
            break;
        case 8:
            grid_.TopRow(row * 2);
            plain_.ClampRow(row * 2);
            break;
        case 9:
            grid_.LeftCol(col * 2);
            plain_.ClampCol(col * 2);
            break;
        case 10:
            grid_.Row(row);
            plain_.Cursor = {row, plain_.Cursor[1], row, plain_.Cursor[1]};
            break;
        case 11:
            grid_.Col(col);
            plain_.Cursor = {plain_.Cursor[0], col, plain_.Cursor[0], col};
            break;
        case 12:
            grid_.RowSel(row);
            grid_.ColSel(col);
            plain_.Cursor[2] = row;
            plain_.Cursor[3] = col;
            break;
        case 13:
            grid_.CellTop();
            plain_.TopRow = PlainGrid::Showing(plain_.RowSizes(), plain_.TopRow, plain_.Cursor[0], plain_.ViewHeight);
            plain_.LeftCol = PlainGrid::Showing(plain_.Widths, plain_.LeftCol, plain_.Cursor[1], plain_.ViewWidth);
            break;
        default:
            plain_.ViewHeight = *rc::gen::element(0, 240, 300, 1000, 4800, 20000);
            plain_.ViewWidth = *rc::gen::element(0, 960, 2000, 9600, 50000);
            grid_.Move(0, 0, static_cast<float>(plain_.ViewWidth), static_cast<float>(plain_.ViewHeight));
        }
    }

    void ExpectSame()
    {
        RC_ASSERT(grid_.Rows() == plain_.Rows());
        RC_ASSERT(grid_.Cols() == plain_.Cols());
        RC_ASSERT((Numbers{grid_.Row(), grid_.Col(), grid_.RowSel(), grid_.ColSel()}) == plain_.Cursor);
        RC_ASSERT(grid_.TopRow() == plain_.TopRow);
        RC_ASSERT(grid_.LeftCol() == plain_.LeftCol);
        for (std::int32_t row = 0; row < plain_.Rows(); ++row) {
            const auto rowAt = static_cast<std::size_t>(row);
            RC_ASSERT(grid_.RowHeight(row) == plain_.RowSizes()[rowAt]);
            for (std::int32_t col = 0; col < plain_.Cols(); ++col)
                RC_ASSERT(grid_.TextMatrix(row, col) == plain_.Cells[rowAt][static_cast<std::size_t>(col)]);
        }
        ExpectEveryEventPaired();
    }

private:
    void Resize(std::int32_t rows)
    {
        const bool shrinks = rows < plain_.Rows();
        grid_.Rows(rows);
        plain_.Cells.resize(static_cast<std::size_t>(rows), std::vector<std::u16string>(plain_.Widths.size()));
        plain_.Heights.resize(static_cast<std::size_t>(rows), 240);
        plain_.Pull();
        if (shrinks)
            plain_.ClampRow(plain_.TopRow);
    }

    void Widen(std::int32_t cols)
    {
        const bool shrinks = cols < plain_.Cols();
        grid_.Cols(cols);
        for (std::vector<std::u16string>& line : plain_.Cells)
            line.resize(static_cast<std::size_t>(cols));
        plain_.Widths.resize(static_cast<std::size_t>(cols), 960);
        plain_.Pull();
        if (shrinks)
            plain_.ClampCol(plain_.LeftCol);
    }

    /// Without handlers each LeaveCell is followed at once by its EnterCell and RowColChange.
    void ExpectEveryEventPaired()
    {
        const Names& told = surroundings_.Events;
        for (std::size_t at = 0; at < told.size(); ++at)
            if (told[at] == "LeaveCell") {
                RC_ASSERT(at + 2 < told.size());
                RC_ASSERT(told[at + 1] == "EnterCell");
                RC_ASSERT(told[at + 2] == "RowColChange");
            }
    }

    Recorder surroundings_;
    GridEngine grid_;
    PlainGrid plain_;
};

} // namespace

TEST(RandomWalks, OverTheGrid_AgreeWithAPlainOne)
{
    EXPECT_TRUE(rc::check([] {
        RandomGrid grid;
        const int steps = *rc::gen::inRange(1, 120);
        for (int step = 0; step < steps; ++step) {
            grid.Step();
            grid.ExpectSame();
        }
    }));
}

TEST(RandomWalks, WithHandlersThatDoAnything_KeepTheCursorInsideTheGrid)
{
    EXPECT_TRUE(rc::check([] {
        Recorder surroundings;
        GridEngine grid(surroundings);
        grid.Move(0, 0, 9600, 4800);
        const auto act = [&] {
            const int number = *rc::gen::inRange(0, 14);
            const auto row = static_cast<std::int32_t>(*rc::gen::inRange(0, grid.Rows()));
            const auto col = static_cast<std::int32_t>(*rc::gen::inRange(0, grid.Cols()));
            switch (number) {
            case 0: grid.Rows(*rc::gen::element(1, 3, 60)); break;
            case 1: grid.Cols(*rc::gen::element(1, 3, 20)); break;
            case 2: grid.Row(row); break;
            case 3: grid.Col(col); break;
            case 4: grid.PressCell({row, col}, 1, *rc::gen::element<std::int16_t>(0, 1)); break;
            case 5: grid.DragToCell({row, col}); break;
            case 6: grid.ReleaseHere(); break;
            case 7:
                grid.PressKey(*rc::gen::inRange<std::int16_t>(33, 41), *rc::gen::inRange<std::int16_t>(0, 4));
                break;
            case 8: grid.Redraw(*rc::gen::arbitrary<bool>()); break;
            case 9: grid.FillStyle(*rc::gen::element<std::int16_t>(0, 1)); break;
            case 10: grid.ColWidth(col, *rc::gen::element(-1, 0, 3000)); break;
            case 11: grid.CellTop(); break;
            case 12: grid.StepDrag(-5, 9000); break;
            default: grid.Enabled(*rc::gen::arbitrary<bool>());
            }
        };
        const int steps = *rc::gen::inRange(1, 60);
        for (int step = 0; step < steps; ++step) {
            for (const ChildEvent event : {ChildEvent::LeaveCell, ChildEvent::EnterCell, ChildEvent::Scroll,
                                           ChildEvent::MouseDown, ChildEvent::SelChange})
                if (*rc::gen::inRange(0, 4) == 0)
                    surroundings.Once(event, act);
            act();
            RC_ASSERT(grid.Row() >= 0 && grid.Row() < grid.Rows());
            RC_ASSERT(grid.RowSel() >= 0 && grid.RowSel() < grid.Rows());
            RC_ASSERT(grid.Col() >= 0 && grid.Col() < grid.Cols());
            RC_ASSERT(grid.ColSel() >= 0 && grid.ColSel() < grid.Cols());
            RC_ASSERT(grid.TopRow() >= 1 && grid.TopRow() <= std::max(grid.Rows() - 1, 1));
            RC_ASSERT(grid.LeftCol() >= 1 && grid.LeftCol() <= std::max(grid.Cols() - 1, 1));
        }
    }));
}

} // namespace Tessellon::GridTests
