#include "benchmarks/Memory.h"

#include <atomic>
#include <cstdlib>
#include <mutex>
#include <new>

namespace
{

std::atomic<size_t> gInUse{0};
std::atomic<size_t> gPeak{0};

constexpr size_t kStep = 16;
constexpr size_t kLargestSmall = 512;
constexpr size_t kChunk = 1 << 20;

// Stands before every block and keeps it aligned.
struct alignas(kStep) Header
{
    size_t Size; // as asked for
    Header* NextFree;
};

// Blocks of one size each, taken from chunks that are never given back.
class SmallBlocks
{
  public:
    void* Take(size_t size)
    {
        const std::lock_guard hold(mLock);
        Header*& free = mFree[ClassOf(size)];
        Header* const block = free != nullptr ? free : Cut(ClassOf(size));
        free = free != nullptr ? free->NextFree : nullptr;
        return block;
    }

    void Give(Header* block)
    {
        const std::lock_guard hold(mLock);
        Header*& free = mFree[ClassOf(block->Size)];
        block->NextFree = free;
        free = block;
    }

  private:
    static size_t ClassOf(size_t size) { return (size + kStep - 1) / kStep; }

    Header* Cut(size_t sizeClass)
    {
        const size_t size = sizeof(Header) + sizeClass * kStep;
        if (mLeft < size)
        {
            mChunk = static_cast<char*>(std::malloc(kChunk));
            mLeft = mChunk != nullptr ? kChunk : 0;
        }
        if (mChunk == nullptr)
        {
            throw std::bad_alloc();
        }
        void* const block = mChunk;
        mChunk += size;
        mLeft -= size;
        return static_cast<Header*>(block);
    }

    std::mutex mLock;
    Header* mFree[kLargestSmall / kStep + 1] = {};
    char* mChunk = nullptr;
    size_t mLeft = 0;
};

// Never destroyed: objects that end with the process still give their memory back.
SmallBlocks& Small()
{
    alignas(SmallBlocks) static char place[sizeof(SmallBlocks)];
    static SmallBlocks* const blocks = new (place) SmallBlocks;
    return *blocks;
}

void* LargeBlock(size_t size)
{
    void* const block = std::malloc(sizeof(Header) + size);
    if (block == nullptr)
    {
        throw std::bad_alloc();
    }
    return block;
}

} // namespace

void* operator new(size_t size)
{
    auto* const header = static_cast<Header*>(size <= kLargestSmall ? Small().Take(size) : LargeBlock(size));
    header->Size = size;
    const size_t inUse = gInUse += size;
    if (inUse > gPeak)
    {
        gPeak = inUse;
    }
    return header + 1;
}

void operator delete(void* memory) noexcept
{
    if (memory == nullptr)
    {
        return;
    }
    Header* const header = static_cast<Header*>(memory) - 1;
    gInUse -= header->Size;
    header->Size <= kLargestSmall ? Small().Give(header) : std::free(header);
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
