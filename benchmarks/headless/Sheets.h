#pragma once

#include "support/HeadlessSheet.h"

#include <benchmark/benchmark.h>

#include <string_view>

namespace Bench {

/// The sheet of all records; loaded when it is first asked for. It has the same rows again behind each benchmark.
Tessellon::TessellonSheet& LargeSheet();
std::int32_t LargeSheetRows(); ///< Of data.
/// A sheet of the first records only.
HeadlessSheet SheetOf(std::int32_t rows);

/// Shows the time of one of `count` things that an iteration does.
inline void ShareAmong(benchmark::State& state, std::int64_t count)
{
    state.counters["each"] = benchmark::Counter(
        static_cast<double>(count), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

} // namespace Bench
