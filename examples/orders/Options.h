#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace Orders {

/// What the command line asks for.
struct Options {
    std::optional<std::filesystem::path> Database;
    std::optional<std::int64_t> Rows;
    std::optional<std::string> Connection; ///< With a query, and the other way round.
    std::optional<std::string> Query;
    std::optional<std::filesystem::path> Picture;
    std::optional<std::filesystem::path> Log;
    bool Help = false;
};

inline constexpr std::int64_t MostRows = 10'000'000;

/// The text of help.txt, with a place for the program's name: "@PROGRAM@".
extern const char* const HelpText;

/// A mistake in the arguments is a std::runtime_error of one line that says what to do.
Options ParseOptions(int count, const char* const* arguments);

/// Whether the files to write can be: they have a folder, are none, and do not stand where the orders are read from.
/// Otherwise a std::runtime_error of one line. Nothing is written.
void CheckPlaces(const Options& options);

} // namespace Orders
