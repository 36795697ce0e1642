#include "state/SharedState.h"

#include "sandbox/dispatch/DispatchObject.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <future>
#include <thread>

namespace
{

// A host's object with work of its own to do when it is released.
class WorkingHost : public sandbox::DispatchObject
{
  public:
    explicit WorkingHost(std::function<void()> atRelease) : mAtRelease(std::move(atRelease)) {}
    ~WorkingHost() override { mAtRelease(); }

  private:
    const wchar_t* ClassName() const override { return L"DTC"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable table;
        return table;
    }

    std::function<void()> mAtRelease;
};

TEST(SharedStateOfThreads, AThreadThatReleasesItsObjectsHoldsNoOtherThreadUp)
{
    std::thread other;
    bool isServed = false;
    std::thread ending([&] {
        state::Shared().gDTC = sandbox::MakeObject<WorkingHost>([&] {
            std::promise<void> promise;
            std::future<void> done = promise.get_future();
            other = std::thread([promise = std::move(promise)]() mutable {
                state::Shared();
                promise.set_value();
                state::FreeStateOfThread();
            });
            isServed = done.wait_for(std::chrono::seconds(5)) == std::future_status::ready;
        });
        state::FreeStateOfThread();
    });
    ending.join();
    other.join();
    EXPECT_TRUE(isServed);
}

TEST(SharedStateOfThreads, AReleasedObjectMayUseTheStateOfItsThread)
{
    std::thread([] {
        state::Shared().gDTC = sandbox::MakeObject<WorkingHost>([] { state::Shared().gFontSize = 1; });
        state::FreeStateOfThread(); // and the state made meanwhile is another one
        EXPECT_EQ(1, state::Shared().gFontSize);
        state::FreeStateOfThread();
        EXPECT_EQ(0, state::Shared().gFontSize);
        state::FreeStateOfThread();
    }).join();
}

} // namespace
