#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace Bench {

/// Tells a figure to whoever runs the program: a line of its name and its value.
inline void Tell(const char* name, double value)
{
    std::printf("%s %.9g\n", name, value);
}

/// What the processor did for this thread; what else runs on the machine does not count.
inline double ProcessorNow()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// By the clock on the wall, or by the processor's where ./bench --processor asks for that.
inline double Now()
{
    static const bool countsProcessor = std::getenv("BENCH_PROCESSOR") != nullptr;
    if (countsProcessor)
        return ProcessorNow();
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

template <class Work>
double SecondsOf(const Work& work)
{
    const double start = Now();
    work();
    return Now() - start;
}

template <class Work>
double ProcessorSecondsOf(const Work& work)
{
    const double start = ProcessorNow();
    work();
    return ProcessorNow() - start;
}

inline double Median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

/// Does the same work in two ways, so often in turn, and tells what the processor needed at the median: "with" the
/// thing in question and "without" it.
template <class With, class Without>
void TellInTurn(int pairs, const With& with, const Without& without)
{
    std::vector<double> secondsWith;
    std::vector<double> secondsWithout;
    for (int i = 0; i < pairs; ++i) {
        secondsWithout.push_back(ProcessorSecondsOf(without));
        secondsWith.push_back(ProcessorSecondsOf(with));
    }
    Tell("with", Median(secondsWith));
    Tell("without", Median(secondsWithout));
}

/// What cells hold, in one number: the same for texts that are the same, in any order of the cells.
class Checksum {
public:
    template <class Text>
    void Add(const Text& text)
    {
        std::uint64_t sum = 0;
        for (const auto unit : text)
            sum = sum * 31 + static_cast<std::uint64_t>(unit);
        total_ += sum;
    }
    /// Small enough to be told exactly.
    [[nodiscard]] double Value() const { return static_cast<double>(total_ % 1'000'000'007); }

private:
    std::uint64_t total_ = 0;
};

} // namespace Bench
