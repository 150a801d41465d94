#pragma once

namespace Tessellon {

/// How often this program has asked operator new for memory.
long AllocationCount();

} // namespace Tessellon
