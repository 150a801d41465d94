// Whole columns: SearchCol, Summation, Minimum.

#include "headless/Sheets.h"

#include <stdexcept>

namespace Bench {
namespace {

using namespace Tessellon;

constexpr std::int32_t textCol = 2;
constexpr std::int32_t dateCol = 5;
constexpr std::int32_t amountCol = 7;

template <class Ask>
void Walk(benchmark::State& state, const Ask& ask)
{
    TessellonSheet& sheet = LargeSheet();
    for ([[maybe_unused]] auto unused : state) {
        if (!ask(sheet))
            throw std::logic_error("the walk did not find what is there");
    }
    ShareAmong(state, LargeSheetRows());
}

void SearchCol(benchmark::State& state)
{
    Walk(state, [](TessellonSheet& sheet) { return sheet.SearchCol(textCol, u"Ada of no family") == 0; });
}
BENCHMARK(SearchCol)->Unit(benchmark::kMillisecond);

void Summation(benchmark::State& state)
{
    Walk(state, [](TessellonSheet& sheet) {
        bool success = false;
        return sheet.Summation(amountCol, success) > 0 && success;
    });
}
BENCHMARK(Summation)->Unit(benchmark::kMillisecond);

template <ManipulateType type, std::int32_t col>
void Minimum(benchmark::State& state)
{
    Walk(state, [](TessellonSheet& sheet) {
        bool success = false;
        return !sheet.Minimum(col, type, success).empty() && success;
    });
}
BENCHMARK(Minimum<mtNumeric, amountCol>)->Name("MinimumOfNumbers")->Unit(benchmark::kMillisecond);
BENCHMARK(Minimum<mtDate, dateCol>)->Name("MinimumOfDates")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace Bench
