// COM for the life of a thread's work, and a thread that has it.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

#include <windows.h>

#include <objbase.h>

namespace test_support
{

class Apartment
{
  public:
    Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    ~Apartment() { CoUninitialize(); }
};

// Runs the work on a thread with an apartment of its own. The thread that made it stays awake while it waits
// for the end: other threads may send messages to its windows.
class ApartmentThread
{
  public:
    explicit ApartmentThread(std::function<void()> work);
    ApartmentThread(const ApartmentThread&) = delete;
    ApartmentThread& operator=(const ApartmentThread&) = delete;
    ~ApartmentThread() { Join(); }

    void Join();

  private:
    std::atomic<bool> mEnded{false};
    std::thread mThread;
};

// Handles messages until the condition holds; false when it has not within half a minute.
bool PumpUntil(const std::function<bool()>& condition);

} // namespace test_support
