// Add and Delete. What an iteration adds is taken away again, and the other way round, while nobody measures.

#include "headless/Sheets.h"
#include "support/Figures.h"

namespace Bench {
namespace {

using namespace Tessellon;

constexpr std::int32_t fewRows = 10;
constexpr std::int32_t someRows = 100'000;

template <class Measured, class Undone>
void Measure(benchmark::State& state, const Measured& measured, const Undone& undone)
{
    for ([[maybe_unused]] auto unused : state) {
        state.SetIterationTime(ProcessorSecondsOf(measured));
        undone();
    }
}

void AddAtTheEnd(benchmark::State& state, TessellonSheet& sheet)
{
    const std::int32_t last = sheet.Rows() - 1;
    Measure(
        state, [&] { sheet.Add(last); }, [&] { sheet.Delete(last + 1); });
    ShareAmong(state, 1);
}

void AddAtTheEndOfMany(benchmark::State& state)
{
    AddAtTheEnd(state, LargeSheet());
}
BENCHMARK(AddAtTheEndOfMany)->UseManualTime();

void AddAtTheEndOfFew(benchmark::State& state)
{
    static const HeadlessSheet few = SheetOf(fewRows);
    AddAtTheEnd(state, *few.Sheet);
}
BENCHMARK(AddAtTheEndOfFew)->UseManualTime();

/// With so many of four quarters of the rows below.
void AddInTheMiddle(benchmark::State& state)
{
    TessellonSheet& sheet = LargeSheet();
    const auto below = static_cast<std::int32_t>(LargeSheetRows() * state.range() / 4);
    const std::int32_t row = LargeSheetRows() - below;
    Measure(
        state, [&] { sheet.Add(row); }, [&] { sheet.Delete(row + 1); });
    ShareAmong(state, below);
}
BENCHMARK(AddInTheMiddle)->DenseRange(1, 3)->UseManualTime();

void DeleteTheFirst(benchmark::State& state)
{
    static const HeadlessSheet some = SheetOf(someRows);
    TessellonSheet& sheet = *some.Sheet;
    Measure(
        state, [&] { sheet.Delete(1); }, [&] { sheet.Add(0); });
    ShareAmong(state, sheet.Rows() - 1);
}
BENCHMARK(DeleteTheFirst)->UseManualTime();

void AddBehindTheFirst(benchmark::State& state)
{
    static const HeadlessSheet some = SheetOf(someRows);
    TessellonSheet& sheet = *some.Sheet;
    Measure(
        state, [&] { sheet.Add(1); }, [&] { sheet.Delete(2); });
    ShareAmong(state, sheet.Rows() - 1);
}
BENCHMARK(AddBehindTheFirst)->UseManualTime();

void BackColorOfBothBands(benchmark::State& state)
{
    TessellonSheet& sheet = LargeSheet();
    for ([[maybe_unused]] auto unused : state) {
        sheet.BackColor(0, White);
        sheet.BackColor(1, Yellow);
    }
    ShareAmong(state, LargeSheetRows());
}
BENCHMARK(BackColorOfBothBands)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace Bench
