// bench_calls DATABASE [OPTION...]: the calls of a host, with the options of Google Benchmark.

#include "headless/Sheets.h"

namespace Bench {
namespace {

std::string database;

} // namespace

Tessellon::TessellonSheet& LargeSheet()
{
    static const HeadlessSheet large = [] {
        HeadlessSheet made;
        Load(*made.Sheet, database);
        return made;
    }();
    return *large.Sheet;
}

std::int32_t LargeSheetRows()
{
    return LargeSheet().Rows() - 1;
}

HeadlessSheet SheetOf(std::int32_t rows)
{
    HeadlessSheet made;
    Load(*made.Sheet, database, " LIMIT " + std::to_string(rows));
    return made;
}

} // namespace Bench

int main(int count, char** arguments)
{
    benchmark::Initialize(&count, arguments);
    if (count != 2)
        return 2;
    Bench::database = arguments[1];
    benchmark::RunSpecifiedBenchmarks();
}
