#include "benchmarks/Memory.h"

#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace
{

std::atomic<size_t> gInUse{0};
std::atomic<size_t> gPeak{0};

} // namespace

void* operator new(size_t size)
{
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
    {
        throw std::bad_alloc();
    }
    const size_t inUse = gInUse += _msize(memory);
    if (inUse > gPeak)
    {
        gPeak = inUse;
    }
    return memory;
}

void operator delete(void* memory) noexcept
{
    if (memory != nullptr)
    {
        gInUse -= _msize(memory);
        std::free(memory);
    }
}

void operator delete(void* memory, size_t) noexcept
{
    operator delete(memory);
}

namespace benchmarks
{

MemoryMeter::MemoryMeter() noexcept : mAtStart(gInUse)
{
    gPeak = mAtStart;
}

size_t MemoryMeter::Peak() const noexcept
{
    return gPeak - mAtStart;
}

} // namespace benchmarks
