#pragma once

#include "shell/TessellonSheet.h"

#include <functional>
#include <string>
#include <vector>

namespace Tessellon::HandlerTests {

/// One of the sheet's events: its name, and how a host hears it.
struct Occasion {
    std::string Name;
    std::function<void(TessellonSheet&, const std::function<void()>&)> Hear;
};

/// All 25, in the order of their numbers.
const std::vector<Occasion>& Occasions();

} // namespace Tessellon::HandlerTests
