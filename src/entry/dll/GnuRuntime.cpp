#include "entry/dll/GnuRuntime.h"

#include <cstddef> // says which run-time library it is

#ifdef __GLIBCXX__

#include <atomic>
#include <cerrno>
#include <iterator>

#include <windows.h>

#include <pthread.h>

namespace __gnu_cxx // NOLINT(bugprone-reserved-identifier): the run-time library's own
{

void __freeres(); // NOLINT(bugprone-reserved-identifier)

} // namespace __gnu_cxx

namespace
{

constexpr pthread_once_t kRunning = 1;
constexpr pthread_once_t kDone = 2;

// A lock that was initialised statically is not zero, as an SRWLOCK is at first.
SRWLOCK* LockOf(pthread_mutex_t* mutex)
{
    static_assert(sizeof(SRWLOCK) == sizeof(pthread_mutex_t));
    pthread_mutex_t initial = PTHREAD_MUTEX_INITIALIZER;
    std::atomic_ref(*mutex).compare_exchange_strong(initial, 0);
    return reinterpret_cast<SRWLOCK*>(mutex);
}

CONDITION_VARIABLE* ConditionOf(pthread_cond_t* condition)
{
    static_assert(sizeof(CONDITION_VARIABLE) == sizeof(pthread_cond_t));
    pthread_cond_t initial = PTHREAD_COND_INITIALIZER;
    std::atomic_ref(*condition).compare_exchange_strong(initial, 0);
    return reinterpret_cast<CONDITION_VARIABLE*>(condition);
}

// A value of each thread. The fiber-local slots of Windows free the values of threads that end and, together
// with the slot, those of the threads that live on.
struct Key
{
    DWORD slot = FLS_OUT_OF_INDEXES;
    void (*free)(void*) = nullptr;
};

// The library uses one key, for the exceptions of a thread.
Key gKeys[2];
std::atomic<pthread_key_t> gUsedKeys{0};

template<pthread_key_t key>
void WINAPI FreeValue(void* value)
{
    if (value != nullptr && gKeys[key].free != nullptr)
    {
        gKeys[key].free(value);
    }
}

constexpr PFLS_CALLBACK_FUNCTION kFreeValue[] = {FreeValue<0>, FreeValue<1>};
static_assert(std::size(kFreeValue) == std::size(gKeys));

} // namespace

extern "C"
{

    // The functions that it initialises with are short, so a thread that has to wait needs no lock.
    int pthread_once(pthread_once_t* once, void (*initialise)())
    {
        const std::atomic_ref state(*once);
        while (state.load() != kDone)
        {
            pthread_once_t initial = PTHREAD_ONCE_INIT;
            if (state.compare_exchange_strong(initial, kRunning))
            {
                initialise();
                state.store(kDone);
            }
            else
            {
                SwitchToThread();
            }
        }
        return 0;
    }

    int pthread_key_create(pthread_key_t* key, void (*free)(void*))
    {
        *key = gUsedKeys++;
        if (*key >= std::size(gKeys))
        {
            return EAGAIN;
        }
        gKeys[*key].free = free;
        gKeys[*key].slot = FlsAlloc(kFreeValue[*key]);
        return gKeys[*key].slot != FLS_OUT_OF_INDEXES ? 0 : EAGAIN;
    }

    // Exceptions ask for it between a call that failed and the code that looks for the reason.
    void* pthread_getspecific(pthread_key_t key)
    {
        const DWORD error = GetLastError();
        void* const value = FlsGetValue(gKeys[key].slot);
        SetLastError(error);
        return value;
    }

    int pthread_setspecific(pthread_key_t key, const void* value)
    {
        return FlsSetValue(gKeys[key].slot, const_cast<void*>(value)) ? 0 : ENOMEM;
    }

    int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* /*attributes*/)
    {
        *mutex = 0;
        return 0;
    }

    int pthread_mutex_destroy(pthread_mutex_t* /*mutex*/)
    {
        return 0;
    }

    int pthread_mutex_lock(pthread_mutex_t* mutex)
    {
        AcquireSRWLockExclusive(LockOf(mutex));
        return 0;
    }

    int pthread_mutex_unlock(pthread_mutex_t* mutex)
    {
        ReleaseSRWLockExclusive(LockOf(mutex));
        return 0;
    }

    int pthread_cond_init(pthread_cond_t* condition, const pthread_condattr_t* /*attributes*/)
    {
        *condition = 0;
        return 0;
    }

    int pthread_cond_wait(pthread_cond_t* condition, pthread_mutex_t* mutex)
    {
        return SleepConditionVariableSRW(ConditionOf(condition), LockOf(mutex), INFINITE, 0) ? 0 : EINVAL;
    }

    int pthread_cond_broadcast(pthread_cond_t* condition)
    {
        WakeAllConditionVariable(ConditionOf(condition));
        return 0;
    }

} // extern "C"

namespace entry
{

void FreeGnuRuntime() noexcept
{
    // Some 70 KB for exceptions that are thrown when there is no memory left, which the library gives back
    // only when asked.
    __gnu_cxx::__freeres();
    for (Key& key : gKeys)
    {
        if (key.slot != FLS_OUT_OF_INDEXES)
        {
            FlsFree(key.slot);
            key.slot = FLS_OUT_OF_INDEXES;
        }
    }
}

} // namespace entry

#else

namespace entry
{

void FreeGnuRuntime() noexcept {}

} // namespace entry

#endif
