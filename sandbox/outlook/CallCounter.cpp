#include "sandbox/outlook/CallCounter.h"

namespace sandbox
{

namespace
{

std::wstring Written(const std::map<std::wstring, long>& counts)
{
    std::wstring table;
    for (const auto& [member, count] : counts)
    {
        table += member + L"\t" + std::to_wstring(count) + L"\n";
    }
    return table;
}

} // namespace

void CallCounter::OnCall(const wchar_t* className, const wchar_t* member)
{
    if (className == mExemptClass)
    {
        return;
    }
    std::function<void()> action;
    {
        const std::lock_guard hold(mLock);
        ++mCounts[std::wstring(className) + L"." + member];
        if (mCallsUntilAction > 0 && --mCallsUntilAction == 0)
        {
            action = std::move(mAction);
        }
    }
    if (action)
    {
        action();
    }
}

void CallCounter::OnNameLookup(const wchar_t* className, const wchar_t* member)
{
    if (className != mExemptClass)
    {
        const std::lock_guard hold(mLock);
        ++mLookups[std::wstring(className) + L"." + member];
    }
}

long CallCounter::Total() const
{
    const std::lock_guard hold(mLock);
    long total = 0;
    for (const auto& [member, count] : mCounts)
    {
        total += count;
    }
    return total;
}

std::wstring CallCounter::Table() const
{
    const std::lock_guard hold(mLock);
    return Written(mCounts);
}

std::wstring CallCounter::LookupTable() const
{
    const std::lock_guard hold(mLock);
    return Written(mLookups);
}

void CallCounter::Reset()
{
    const std::lock_guard hold(mLock);
    mCounts.clear();
    mLookups.clear();
}

void CallCounter::BeforeCall(long n, std::function<void()> action)
{
    const std::lock_guard hold(mLock);
    mCallsUntilAction = n;
    mAction = std::move(action);
}

} // namespace sandbox
