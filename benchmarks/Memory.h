// The program's own memory, counted exactly: every operator new and delete passes here. The texts of
// automation values (BSTR) are not in it; they live no longer than a call. Small blocks come from lists by
// size: Wine's heap walks its free blocks one by one to find one, which after the making of large data takes
// longer than what is measured, and which the heap of Windows does not.
#pragma once

#include <cstddef>

namespace benchmarks
{

// The most bytes that were in use at once, beyond those at the making of the object.
class MemoryMeter
{
  public:
    MemoryMeter() noexcept;
    size_t Peak() const noexcept;

  private:
    size_t mAtStart;
};

} // namespace benchmarks
