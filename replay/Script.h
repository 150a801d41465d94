#pragma once

#include "Forms.h"

#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::Replay {

/// One command of a script.
struct Command {
    std::string Line; ///< As it stands in the script.
    Action Run;
};

/// A script that can be run: all of it was read and checked.
struct Script {
    std::vector<Command> Commands;
    bool AsksForJournal = false; ///< Somewhere `? journal` stands, so that the calls are worth noting.
};

/// Reads a whole script; one that cannot be read throws ScriptError with the line.
Script ReadScript(std::string_view text);

} // namespace Tessellon::Replay
