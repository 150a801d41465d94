#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace Orders {

/// What a walk over records took and what it found.
struct BareLoopResult {
    double Seconds = 0;
    std::int64_t Rows = 0;
    std::uint64_t Checksum =
        0; ///< The bytes of all texts plus the first byte of each: cheap, so that the loop stays bare.
};

/// The least that a load can cost: opens the database, walks the query once to count and once more to read every field
/// as text, with nothing but SQLite's own calls. Failures are a std::runtime_error of one line.
BareLoopResult RunBareLoop(const std::filesystem::path& path, const std::string& query);

/// The most memory that this process has had so far, in bytes; none where the system does not tell.
std::optional<std::int64_t> PeakMemory();

} // namespace Orders
