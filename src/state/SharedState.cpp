#include "state/SharedState.h"

#include <memory>
#include <mutex>
#include <new>
#include <utility>
#include <vector>

namespace state
{

namespace
{

// A thread_local object with a destructor would pin the module in memory, and a thread that outlives the
// module would call into nothing; a raw pointer in a slot does neither. Every state is listed as well, since
// threads that outlive the module send no detach notification.
class Registry
{
  public:
    Registry() : mSlot(TlsAlloc())
    {
        if (mSlot == TLS_OUT_OF_INDEXES)
        {
            throw std::bad_alloc();
        }
    }
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    ~Registry() { TlsFree(mSlot); }

    SharedState& OfThread()
    {
        auto* state = static_cast<SharedState*>(TlsGetValue(mSlot));
        if (state == nullptr)
        {
            auto created = std::make_unique<SharedState>();
            state = created.get();
            const std::lock_guard lock(mMutex);
            mStates.push_back(std::move(created));
            TlsSetValue(mSlot, state);
        }
        return *state;
    }

    void FreeThread()
    {
        auto* state = static_cast<SharedState*>(TlsGetValue(mSlot));
        TlsSetValue(mSlot, nullptr);
        const std::lock_guard lock(mMutex);
        std::erase_if(mStates, [state](const auto& one) { return one.get() == state; });
    }

  private:
    DWORD mSlot;
    std::mutex mMutex;
    std::vector<std::unique_ptr<SharedState>> mStates;
};

// Made on first use and never destroyed by the run-time library: at the end of the process the modules behind
// the references may be gone already. The module's own unloading deletes it.
std::mutex gRegistryMutex;
Registry* gRegistry = nullptr;

Registry& TheRegistry()
{
    const std::lock_guard lock(gRegistryMutex);
    if (gRegistry == nullptr)
    {
        gRegistry = new Registry;
    }
    return *gRegistry;
}

} // namespace

SharedState& Shared()
{
    return TheRegistry().OfThread();
}

SynParameter& EditedParameter()
{
    return Shared().gConfigureParameter;
}

void FreeStateOfThread() noexcept
{
    if (gRegistry != nullptr)
    {
        gRegistry->FreeThread();
    }
}

void FreeStateOfAllThreads() noexcept
{
    delete std::exchange(gRegistry, nullptr);
}

} // namespace state
