#include "support/AllocationCount.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> allocations{0};
std::atomic<bool> hasMemory{true};

} // namespace

// In a file of their own: where GCC sees only one of them inlined it takes the pair for a mismatch.
void* operator new(std::size_t size)
{
    ++allocations;
    void* const memory = hasMemory ? std::malloc(size == 0 ? 1 : size) : nullptr;
    if (memory != nullptr)
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

// A sanitizer's own ones for arrays would not come by here.
void* operator new[](std::size_t size)
{
    return operator new(size);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace Tessellon {

long AllocationCount()
{
    return allocations;
}

NoMemory::NoMemory()
{
    hasMemory = false;
}

NoMemory::~NoMemory()
{
    hasMemory = true;
}

} // namespace Tessellon
