#include "engine/grid/RecordingGrid.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocations{0};

void* Counted(std::size_t size)
{
    ++allocations;
    if (void* room = std::malloc(size > 0 ? size : 1))
        return room;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size)
{
    return Counted(size);
}

void* operator new[](std::size_t size)
{
    return Counted(size);
}

void operator delete(void* room) noexcept
{
    std::free(room);
}

void operator delete[](void* room) noexcept
{
    std::free(room);
}

void operator delete(void* room, std::size_t) noexcept
{
    std::free(room);
}

void operator delete[](void* room, std::size_t) noexcept
{
    std::free(room);
}

namespace Tessellon::GridTests {

namespace {

/// Surroundings that note nothing, so that what is counted is the grid's own.
class Silence : public GridSurroundings {
public:
    void Raise(ChildEvent, EventArguments&) override { ++Raised; }
    bool TakeFocusByPress() override { return true; }
    void TakeFocusByCode() override {}
    void EnabledChanged() override {}
    std::int32_t DefaultRowHeight(const Font&) override { return 240; }
    std::int32_t DefaultColWidth(const Font&) override { return 960; }
    std::int32_t HorizontalScrollBarHeight() override { return 0; }
    std::int32_t VerticalScrollBarWidth() override { return 0; }
    void Bell() override {}
    void Copy(std::u16string_view) override {}
    void Invalidate(const GridRectangle&) override { ++Invalidated; }
    void PaintNow() override { ++Painted; }
    void ScrollBarsChanged() override {}

    std::size_t Raised = 0;
    std::size_t Invalidated = 0;
    std::size_t Painted = 0;
};

constexpr std::int32_t rows = 10'000;
constexpr std::int32_t cols = 10;

/// Numbers, dates, names and the odd text beyond one byte a unit; the bytes that its characters take.
std::size_t Load(GridEngine& grid)
{
    const std::u16string_view texts[] = {u"1234567", u"15/03/2024", u"Ada Lovelace", u"12.50", u"a note of some length",
                                         u"",        u"True",       u"\u20AC 9,99",  u"42",    u"Z\u00FCrich"};
    std::size_t bytes = 0;
    grid.Rows(1);
    grid.Rows(rows + 1);
    for (std::int32_t row = 1; row <= rows; ++row) {
        for (std::int32_t col = 1; col <= cols; ++col) {
            const std::u16string_view text = texts[(row + col) % 10];
            grid.TextMatrix(row, col, text);
            bytes += text.size() * (text.starts_with(u'\u20AC') ? 2 : 1);
        }
        grid.RowHeight(row, 240);
        grid.Redraw(true);
        grid.Row(row);
        grid.FillStyle(1);
        grid.Col(1);
        grid.ColSel(cols);
        grid.CellBackColor(row % 2);
        grid.FillStyle(0);
    }
    return bytes;
}

} // namespace

class Guards : public ::testing::Test {
protected:
    Guards()
        : grid(silence)
    {
        grid.Move(0, 0, 9600, 4800);
        grid.Cols(cols + 1);
    }

    Silence silence;
    GridEngine grid;
};

TEST_F(Guards, Load_AllocatesAtMostTwiceInAHundredCells)
{
    const std::size_t before = allocations;
    Load(grid);
    EXPECT_LE(allocations - before, std::size_t{rows} * cols / 50);
}

TEST_F(Guards, Load_HoldsAtMostEightBytesACellBeyondTheText)
{
    const std::size_t text = Load(grid);
    const std::size_t held = grid.Bytes();
    EXPECT_LE(held - text, std::size_t{rows} * cols * 8) << static_cast<double>(held - text) / (rows * cols);
}

TEST_F(Guards, LoadBeyondTheView_PaintsOnlyWhatIsInView)
{
    Load(grid);
    EXPECT_LE(silence.Painted, 22U);
    EXPECT_LE(silence.Invalidated, 400U);
    EXPECT_EQ(silence.Raised, std::size_t{rows} * 4);
}

TEST_F(Guards, ReadsAndRepeatedWrites_AllocateNothing)
{
    Load(grid);
    std::size_t units = grid.TextMatrix(5, 5).size();
    const std::size_t before = allocations;
    for (std::int32_t row = 1; row <= rows; ++row) {
        units += grid.TextMatrix(row, 3).size();
        grid.TextMatrix(row, 3, u"x");
        grid.TextMatrix(row, 3, u"");
    }
    EXPECT_GT(units, 0U);
    // The texts that were overwritten may be packed once a chunk, and no oftener.
    EXPECT_LE(allocations - before, 200U);
}

TEST_F(Guards, OneCellMove_InvalidatesTwoCells)
{
    Load(grid);
    grid.Row(1);
    grid.Refresh();
    const std::size_t invalidated = silence.Invalidated;
    grid.Row(2);
    EXPECT_EQ(silence.Invalidated - invalidated, 2U);
}

TEST_F(Guards, HeightsThatEqualTheRest_HoldNothing)
{
    const std::size_t before = allocations;
    grid.Rows(1'000'000);
    for (std::int32_t row = 1; row < 1'000'000; ++row)
        grid.RowHeight(row, 240);
    grid.RowHeightMin(300);
    grid.TopRow(999'999);
    EXPECT_EQ(grid.TopRow(), 1'000'000 - 15);
    EXPECT_LE(allocations - before, 20U);
}

} // namespace Tessellon::GridTests
