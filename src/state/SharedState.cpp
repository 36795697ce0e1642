#include "state/SharedState.h"

#include <algorithm>
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
        // Freed after the lock is released, because its releases run foreign code.
        const std::unique_ptr<SharedState> taken = Take(state);
    }

  private:
    std::unique_ptr<SharedState> Take(const SharedState* state)
    {
        const std::lock_guard lock(mMutex);
        const auto found = std::ranges::find(mStates, state, &std::unique_ptr<SharedState>::get);
        if (found == mStates.end())
        {
            return nullptr;
        }
        std::unique_ptr<SharedState> taken = std::move(*found);
        mStates.erase(found);
        return taken;
    }

    DWORD mSlot;
    std::mutex mMutex;
    std::vector<std::unique_ptr<SharedState>> mStates;
};

// The one registry, made on first use and never destroyed by the run-time library: at the end of the process
// the modules behind the references may be gone already. The module's own unloading deletes it.
class OneRegistry
{
  public:
    Registry& Get()
    {
        const std::lock_guard lock(mMutex);
        if (mRegistry == nullptr)
        {
            mRegistry = new Registry;
        }
        return *mRegistry;
    }

    // Null where it has not been made.
    Registry* Find()
    {
        const std::lock_guard lock(mMutex);
        return mRegistry;
    }

    std::unique_ptr<Registry> Take()
    {
        const std::lock_guard lock(mMutex);
        return std::unique_ptr<Registry>(std::exchange(mRegistry, nullptr));
    }

  private:
    std::mutex mMutex;
    Registry* mRegistry = nullptr;
};

OneRegistry gRegistry;

} // namespace

SharedState& Shared()
{
    return gRegistry.Get().OfThread();
}

SynParameter& EditedParameter()
{
    return Shared().gConfigureParameter;
}

void FreeStateOfThread() noexcept
{
    if (Registry* const registry = gRegistry.Find())
    {
        registry->FreeThread();
    }
}

void FreeStateOfAllThreads() noexcept
{
    const std::unique_ptr<Registry> taken = gRegistry.Take(); // freed after the lock is given back
}

} // namespace state
