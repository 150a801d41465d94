// TextMatrix: down a column, and here and there beside the least that could hold as many texts.

#include "headless/Sheets.h"
#include "support/Records.h"

#include <random>
#include <vector>

namespace Bench {
namespace {

using namespace Tessellon;

constexpr std::int32_t textCol = 2;

void ReadDownAColumn(benchmark::State& state)
{
    TessellonSheet& sheet = LargeSheet();
    const std::int32_t rows = LargeSheetRows();
    for ([[maybe_unused]] auto unused : state) {
        for (std::int32_t row = 1; row <= rows; ++row)
            benchmark::DoNotOptimize(sheet.TextMatrix(row, textCol).data());
    }
    ShareAmong(state, rows);
}
BENCHMARK(ReadDownAColumn)->Unit(benchmark::kMillisecond);

void WriteDown(TessellonSheet& sheet, std::int32_t rows)
{
    constexpr std::u16string_view texts[] = {u"Ada Brandt", u"Björn Castillo", u"Chloé Fairbanks", u"Inês Ferrari"};
    static std::size_t first = 0;
    ++first;
    for (std::int32_t row = 1; row <= rows; ++row)
        sheet.TextMatrix(row, textCol, texts[(first + static_cast<std::size_t>(row)) % std::size(texts)]);
}

/// Over a column as it was loaded: each repetition has a sheet of its own.
void WriteDownALoadedColumn(benchmark::State& state)
{
    const std::int32_t rows = LargeSheetRows();
    for ([[maybe_unused]] auto unused : state) {
        state.PauseTiming();
        {
            const HeadlessSheet loaded = SheetOf(rows);
            state.ResumeTiming();
            WriteDown(*loaded.Sheet, rows);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    ShareAmong(state, rows);
}
BENCHMARK(WriteDownALoadedColumn)->Iterations(1)->Unit(benchmark::kMillisecond);

void WriteDownAWrittenColumn(benchmark::State& state)
{
    const std::int32_t rows = LargeSheetRows();
    static const HeadlessSheet written = SheetOf(rows);
    for ([[maybe_unused]] auto unused : state)
        WriteDown(*written.Sheet, rows);
    ShareAmong(state, rows);
}
BENCHMARK(WriteDownAWrittenColumn)->MinWarmUpTime(0.3)->Unit(benchmark::kMillisecond);

struct Place {
    std::int32_t Row;
    std::int32_t Col;
};

const std::vector<Place>& Places()
{
    static const std::vector<Place> places = [] {
        constexpr std::size_t count = 1'000'000;
        std::mt19937 random(20'240'315);
        std::vector<Place> drawn(count);
        for (Place& place : drawn)
            place = {static_cast<std::int32_t>(1 + random() % static_cast<std::uint32_t>(LargeSheetRows())),
                     static_cast<std::int32_t>(1 + random() % fieldCount)};
        return drawn;
    }();
    return places;
}

void ReadAtRandom(benchmark::State& state)
{
    TessellonSheet& sheet = LargeSheet();
    const std::vector<Place>& places = Places();
    for ([[maybe_unused]] auto unused : state) {
        for (const Place& place : places)
            benchmark::DoNotOptimize(sheet.TextMatrix(place.Row, place.Col).data());
    }
    ShareAmong(state, static_cast<std::int64_t>(places.size()));
}
BENCHMARK(ReadAtRandom)->Unit(benchmark::kMillisecond);

/// The reader gets a text of its own, as from the sheet.
void ReadAtRandomFlat(benchmark::State& state)
{
    static const std::vector<std::u16string> flat = [] {
        std::vector<std::u16string> texts;
        texts.reserve(static_cast<std::size_t>(LargeSheetRows()) * fieldCount);
        for (std::int32_t row = 1; row <= LargeSheetRows(); ++row)
            for (std::int32_t col = 1; col <= fieldCount; ++col)
                texts.push_back(LargeSheet().TextMatrix(row, col));
        return texts;
    }();
    const std::vector<Place>& places = Places();
    for ([[maybe_unused]] auto unused : state) {
        for (const Place& place : places) {
            const std::u16string text =
                flat[static_cast<std::size_t>(place.Row - 1) * fieldCount + static_cast<std::size_t>(place.Col - 1)];
            benchmark::DoNotOptimize(text.data());
        }
    }
    ShareAmong(state, static_cast<std::int64_t>(places.size()));
}
BENCHMARK(ReadAtRandomFlat)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace Bench
