// Counts the calls that reach the fakes of this process, by "Class.Member", for the length of a scope. Header
// only; for programs of tests that link fakes.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"

#include <map>
#include <string>

namespace test_support
{

class CallCounter : public sandbox::CallObserver
{
  public:
    CallCounter() : mPrevious(sandbox::Observe(this)) {}
    CallCounter(const CallCounter&) = delete;
    CallCounter& operator=(const CallCounter&) = delete;
    ~CallCounter() override { sandbox::Observe(mPrevious); }

    void OnCall(const wchar_t* className, const wchar_t* member) override
    {
        ++mCounts[std::wstring(className) + L"." + member];
        ++mTotal;
    }

    long Of(const std::wstring& member) const
    {
        const auto count = mCounts.find(member);
        return count == mCounts.end() ? 0 : count->second;
    }
    const std::map<std::wstring, long>& All() const noexcept { return mCounts; }
    long Total() const noexcept { return mTotal; }

  private:
    sandbox::CallObserver* mPrevious;
    std::map<std::wstring, long> mCounts;
    long mTotal = 0;
};

} // namespace test_support
