// The module is unloaded when it is no longer used, whichever threads have used it, and can be loaded again.
#include "tests/endurance/Apartment.h"
#include "tests/endurance/Footprint.h"
#include "tests/endurance/Module.h"
#include "tests/endurance/Office.h"
#include "tests/endurance/StaticTexts.h"
#include "tests/support/Fakes.h"
#include "tests/support/Thoroughness.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <list>
#include <utility>
#include <vector>

using automation::LongOf;
using automation::Object;
using Microsoft::WRL::ComPtr;
using sandbox::LiveObjects;
using test_support::ApartmentThread;
using test_support::Footprint;
using test_support::LendFont;
using test_support::Module;
using test_support::Office;
using test_support::PumpUntil;
using test_support::UseNumber;

namespace
{

constexpr size_t kRecordsPerLoad = 4;
constexpr size_t kFirstCycles = test_support::kUsesOfRound; // the system's caches fill
constexpr size_t kCycles = 6;
constexpr size_t kLongCycles = 200;
constexpr long kReminder = 45; // minutes; not the default
constexpr long kDefaultReminder = 20;
constexpr int kThreads = 8;

// The growth that all cycles together may leave: nothing of the component, a little of the caches of the
// system. One object lost by each cycle would be as many as there are cycles.
constexpr Footprint kToleranceOfLoads = {
    .heapBytes = 1500, .residentBytes = 1024 * 1024, .gdiObjects = 1, .kernelHandles = 2};

size_t Cycles()
{
    return test_support::IsLongRun() ? kLongCycles : kCycles;
}

long ReminderOf(const Object& component)
{
    return LongOf(component.Get(L"CalendarPreviewAlarmTime"));
}

// A thread that has used the module, holds nothing but its shared values, and lives until it is let go.
class UsedThread
{
  public:
    explicit UsedThread(const Module& module)
        : mThread([this, &module] {
              UseAndRelease(module);
              mHasUsed = true;
              PumpUntil([this] { return mMayEnd.load(); });
              for (const std::function<void()>& work : mLast)
              {
                  work();
              }
          })
    {
        PumpUntil([this] { return mHasUsed.load(); });
    }
    UsedThread(const UsedThread&) = delete;
    UsedThread& operator=(const UsedThread&) = delete;
    ~UsedThread() { End(); }

    void End()
    {
        mMayEnd = true;
        mThread.Join();
    }

    // Work for the thread before it ends.
    void EndAfter(std::function<void()> work)
    {
        mLast.push_back(std::move(work));
        End();
    }

  private:
    static void UseAndRelease(const Module& module)
    {
        const Object component = module.NewComponent();
        component.Put(L"CalendarPreviewAlarmTime", kReminder);
        LendFont(component);
        test_support::ThrowInside(component);
    }

    std::atomic<bool> mHasUsed{false};
    std::atomic<bool> mMayEnd{false};
    std::vector<std::function<void()>> mLast;
    ApartmentThread mThread;
};

// One life of the module: loaded, used in a way of its own, its shared values left to it.
void UseAndUnload(Office& office, size_t k)
{
    Module module;
    {
        const Object component = module.NewComponent();
        EXPECT_EQ(kDefaultReminder, ReminderOf(component));
        component.Put(L"CalendarPreviewAlarmTime", kReminder);
        EXPECT_EQ("", office.Check(UseNumber(k), component));
        LendFont(component);
    }
    EXPECT_EQ(S_OK, module.CanUnloadNow());
    module.Unload();
}

// Whatever the module might have left on this thread would be called now: hooks, timers, window procedures, a
// message filter.
void UseThisThread()
{
    ComPtr<IMessageFilter> filter;
    CoRegisterMessageFilter(nullptr, &filter);
    EXPECT_EQ(nullptr, filter.Get());
    tools::Robot user([](tools::Robot& running) {
        const tools::ShownDialog box = running.WaitForDialog();
        box.Click(IDOK);
        running.WaitUntilClosed(box);
    });
    MessageBoxW(nullptr, L"text", L"caption", MB_OK);
    user.Finish();
    PostMessageW(nullptr, WM_KEYDOWN, VK_RETURN, 0);
    PostMessageW(nullptr, WM_USER, 0, 0);
    bool handled = false;
    EXPECT_TRUE(PumpUntil([&] { return std::exchange(handled, true); }));
}

} // namespace

TEST(TheModule, IsNeededAsLongAsAnInstanceLives)
{
    const Module module;
    Object first = module.NewComponent();
    const Object second = first;
    EXPECT_EQ(S_FALSE, module.CanUnloadNow());
    Object third = module.NewComponent();
    first = {};
    EXPECT_EQ(S_FALSE, module.CanUnloadNow());
    third = {};
    EXPECT_EQ(S_FALSE, module.CanUnloadNow());
}

TEST(TheModule, IsNeededAsLongAsAClassObjectLives)
{
    const Module module;
    ComPtr<IClassFactory> factory = module.ClassObject();
    EXPECT_EQ(S_FALSE, module.CanUnloadNow());
    factory.Reset();
    EXPECT_EQ(S_OK, module.CanUnloadNow());
}

TEST(TheModule, IsNeededAsLongAsItIsLocked)
{
    const Module module;
    module.ClassObject()->LockServer(TRUE);
    module.ClassObject()->LockServer(TRUE);
    module.ClassObject()->LockServer(FALSE);
    EXPECT_EQ(S_FALSE, module.CanUnloadNow());
    module.ClassObject()->LockServer(FALSE);
    EXPECT_EQ(S_OK, module.CanUnloadNow());
}

TEST(TheModule, IsNotNeededForStateThatItsInstancesShared)
{
    Module module;
    LendFont(module.NewComponent());
    EXPECT_EQ(S_OK, module.CanUnloadNow());
    EXPECT_EQ(1, LiveObjects());
    module.Unload();
    EXPECT_FALSE(Module::IsLoaded());
    EXPECT_EQ(0, LiveObjects());
}

TEST(TheModule, StaysLoadedWhileCOMKnowsAnInstanceAndIsUnloadedAfterwards)
{
    Office office(sandbox::Edition::English, kRecordsPerLoad);
    for (size_t k = 0; k < 3; ++k)
    {
        Object component = test_support::NewComponent();
        CoFreeUnusedLibrariesEx(0, 0);
        EXPECT_TRUE(Module::IsLoaded());
        EXPECT_EQ("", office.Check(UseNumber(k), component));
        component = {};
        CoFreeUnusedLibrariesEx(0, 0);
        EXPECT_FALSE(Module::IsLoaded());
        UseThisThread();
    }
}

TEST(TheModule, LeavesNothingBehindHoweverOftenItIsUsedUnloadedAndLoadedAgain)
{
    const test_support::StaticTexts texts;
    Office office(sandbox::Edition::English, kRecordsPerLoad);
    CoFreeUnusedLibrariesEx(0, 0);
    size_t cycles = 0;
    const auto useAndUnload = [&](size_t times) {
        for (const size_t end = cycles + times; cycles < end; ++cycles)
        {
            UseAndUnload(office, cycles);
            EXPECT_FALSE(Module::IsLoaded());
        }
        return texts.Without(Footprint::Now());
    };
    Footprint before = useAndUnload(kFirstCycles);
    const Footprint growth = test_support::GrowthOfLevelSeries(kToleranceOfLoads, [&] {
        const Footprint after = useAndUnload(Cycles());
        return after - std::exchange(before, after);
    });
    UseThisThread();
    EXPECT_TRUE(growth.IsWithin(kToleranceOfLoads)) << TextOf(growth);
    test_support::ReportFigure("endurance: " + std::to_string(cycles) +
                               " times loaded, used and unloaded; over the last " + std::to_string(Cycles()) +
                               ": " + TextOf(growth));
}

TEST(TheModule, IsUnloadedWhileAThreadThatUsedItLivesOn)
{
    for (size_t k = 0; k < Cycles(); ++k)
    {
        Module module;
        UsedThread thread(module);
        EXPECT_EQ(1, LiveObjects());
        module.Unload();
        EXPECT_FALSE(Module::IsLoaded());
        EXPECT_EQ(0, LiveObjects());
        thread.EndAfter(UseThisThread);
        EXPECT_FALSE(Module::IsLoaded());
    }
}

TEST(TheModule, ForgetsAThreadThatHasEnded)
{
    const Module module;
    UsedThread thread(module);
    EXPECT_EQ(1, LiveObjects());
    thread.End();
    EXPECT_EQ(0, LiveObjects());
}

TEST(TheModule, ComesBackAsNewForAThreadThatUsedItBefore)
{
    Module first;
    UsedThread thread(first);
    first.Unload();
    ASSERT_FALSE(Module::IsLoaded());
    const Module again;
    thread.EndAfter([&] {
        const Object component = again.NewComponent();
        EXPECT_EQ(kDefaultReminder, ReminderOf(component));
        LendFont(component);
        EXPECT_EQ(1, LiveObjects());
    });
    EXPECT_EQ(0, LiveObjects());
}

TEST(TheModule, IsUnloadedWhileSomeOfItsThreadsLiveOnAndOthersHaveEnded)
{
    Module module;
    std::list<UsedThread> threads;
    for (int i = 0; i < kThreads; ++i)
    {
        threads.emplace_back(module);
    }
    EXPECT_EQ(kThreads, LiveObjects());
    for (int i = 0; i < kThreads / 2; ++i)
    {
        threads.pop_front();
    }
    EXPECT_EQ(kThreads / 2, LiveObjects());
    EXPECT_EQ(S_OK, module.CanUnloadNow());
    module.Unload();
    EXPECT_FALSE(Module::IsLoaded());
    EXPECT_EQ(0, LiveObjects());
    threads.clear();
}
