#pragma once

namespace Tessellon {

/// How often this program has asked operator new for memory.
long AllocationCount();

/// While one lives, this program's operator new finds no memory.
class NoMemory {
public:
    NoMemory();
    ~NoMemory();
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};

} // namespace Tessellon
