// What the module's run-time library keeps for a thread on which an exception has passed does not outlive the
// module.
#include "tests/endurance/Apartment.h"
#include "tests/endurance/Footprint.h"
#include "tests/endurance/Module.h"
#include "tests/support/Thoroughness.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <utility>

using test_support::ApartmentThread;
using test_support::Footprint;
using test_support::Module;
using test_support::PumpUntil;
using test_support::ThrowInside;

namespace
{

constexpr size_t kFirstLives = 5; // the system's caches fill
constexpr size_t kBriefLives = 4;
constexpr size_t kLives = 10;
constexpr size_t kLongLives = 200;

// The growth that all lives together may leave.
constexpr Footprint kToleranceOfLives = {.heapBytes = 150, .residentBytes = 1024 * 1024, .kernelHandles = 1};

// The growth over many lives of the module, the first ones not counted.
Footprint GrowthOver(const std::function<void()>& life)
{
    const auto live = [&](size_t times) {
        for (size_t i = 0; i < times; ++i)
        {
            life();
            EXPECT_FALSE(Module::IsLoaded());
        }
        return Footprint::Now();
    };
    Footprint before = live(kFirstLives);
    return test_support::GrowthOfLevelSeries(kToleranceOfLives, [&] {
        const Footprint after = live(test_support::ByThoroughness(kBriefLives, kLives, kLongLives));
        return after - std::exchange(before, after);
    });
}

// The next free slots for values of threads and of fibers.
std::pair<DWORD, DWORD> NextSlots()
{
    const std::pair slots(TlsAlloc(), FlsAlloc(nullptr));
    TlsFree(slots.first);
    FlsFree(slots.second);
    return slots;
}

void ThrowAndUnload()
{
    Module module;
    ThrowInside(module.NewComponent());
    module.Unload();
}

// The thread lives on after the module.
void ThrowOnAThreadAndUnload()
{
    Module module;
    std::atomic<bool> hasThrown{false};
    std::atomic<bool> mayEnd{false};
    ApartmentThread thread([&] {
        ThrowInside(module.NewComponent());
        hasThrown = true;
        PumpUntil([&] { return mayEnd.load(); });
    });
    EXPECT_TRUE(PumpUntil([&] { return hasThrown.load(); }));
    module.Unload();
    mayEnd = true;
    thread.Join();
}

} // namespace

TEST(AnExceptionInTheModule, LeavesNothingBehindOnAThreadThatOutlivesIt)
{
    for (void (*const life)() : {ThrowAndUnload, ThrowOnAThreadAndUnload})
    {
        const Footprint growth = GrowthOver(life);
        EXPECT_TRUE(growth.IsWithin(kToleranceOfLives)) << TextOf(growth);
    }
}

TEST(AnExceptionInTheModule, LeavesAllSlotsOfThreadsFree)
{
    ThrowAndUnload();
    const auto before = NextSlots();
    ThrowAndUnload();
    EXPECT_EQ(before, NextSlots());
}
