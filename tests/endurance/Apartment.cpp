#include "tests/endurance/Apartment.h"

#include <chrono>

namespace test_support
{

namespace
{

using namespace std::chrono_literals;

constexpr auto kPatience = 30s;
constexpr auto kPollInterval = 1ms;

} // namespace

bool PumpUntil(const std::function<bool()>& condition)
{
    const auto deadline = std::chrono::steady_clock::now() + kPatience;
    while (!condition())
    {
        if (std::chrono::steady_clock::now() > deadline)
        {
            return false;
        }
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        {
            DispatchMessageW(&message);
        }
        std::this_thread::sleep_for(kPollInterval);
    }
    return true;
}

ApartmentThread::ApartmentThread(std::function<void()> work)
    : mThread([this, work = std::move(work)] {
          {
              const Apartment apartment;
              work();
          }
          mEnded = true;
      })
{
}

void ApartmentThread::Join()
{
    if (mThread.joinable())
    {
        PumpUntil([this] { return mEnded.load(); });
        mThread.join();
    }
}

} // namespace test_support
