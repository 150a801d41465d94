#pragma once

#include <cstdint>
#include <set>
#include <string>

namespace Tessellon::Replay {

/// The words of the language that a script, or a set of scripts, has used.
struct UsedWords {
    std::set<std::string> Commands; ///< "press", "mouse down", "? grid", "on do".
    std::set<std::string> Keys; ///< By their names; one character as itself.
    std::set<std::string> Modifiers; ///< "Shift+Ctrl"; an empty one for none.

    void Add(const UsedWords& other);
};

/// A script that a seed stands for: a sheet with columns of several kinds, then commands of the whole language, each
/// drawn as often as any other, with sensible and with odd arguments. The same on every machine. The seeds from a
/// million on draw the user's commands three times out of four.
struct RandomScript {
    explicit RandomScript(std::uint32_t seed);

    std::string Text;
    UsedWords Used;
};

/// All that scripts can use.
UsedWords AllWords();

} // namespace Tessellon::Replay
