#pragma once

#include <cstdint>

namespace Tessellon {

/// What the widgets of a sheet are there for.
enum class Conduct : std::uint8_t {
    Desktop, ///< A user: sizes from fonts and screen, editors that edit by themselves.
    Replay, ///< A record: fixed sizes, and the engine alone edits, so that the record is that of any platform.
};

} // namespace Tessellon
