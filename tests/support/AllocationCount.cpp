#include "support/AllocationCount.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> allocations{0};

} // namespace

// In a file of their own: where GCC sees only one of them inlined it takes the pair for a mismatch.
void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
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

namespace Tessellon {

long AllocationCount()
{
    return allocations;
}

} // namespace Tessellon
