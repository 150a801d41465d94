#pragma once

#include "orders/BareLoop.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace Orders {

struct BareLoopCost {
    BareLoopResult Result;
    std::optional<std::int64_t> PeakMemory;
};

/// Runs the bare loop in a process of its own, so that the memory it takes is told apart. To be called while this one
/// has a single thread. A failure is a std::runtime_error of one line, as of the loop itself.
BareLoopCost RunBareLoopApart(const std::filesystem::path& path, const std::string& query);

} // namespace Orders
