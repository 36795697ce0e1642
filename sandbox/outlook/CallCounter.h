// Counts the calls that reach fake objects of this process, by class and member, and can disturb them:
// what a benchmark reads, and how a test makes Outlook fail at a chosen call.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"

#include <functional>
#include <map>
#include <mutex>
#include <string>

namespace sandbox
{

class CallCounter : public CallObserver
{
  public:
    // Calls on this class are neither counted nor disturbed.
    explicit CallCounter(std::wstring exemptClass = {}) : mExemptClass(std::move(exemptClass)) {}

    void OnCall(const wchar_t* className, const wchar_t* member) override;
    void OnNameLookup(const wchar_t* className, const wchar_t* member) override;

    long Total() const;
    // One line per member called, "Class.Member", a tab and the number, in alphabetical order.
    std::wstring Table() const;
    // The same for the lookups of members by their names, which are no calls and not in the total.
    std::wstring LookupTable() const;
    void Reset();
    // Runs the action before the n-th call from now (1 is the next); what it throws is that call's failure.
    void BeforeCall(long n, std::function<void()> action);

  private:
    mutable std::mutex mLock;
    std::wstring mExemptClass;
    std::map<std::wstring, long> mCounts;
    std::map<std::wstring, long> mLookups;
    long mCallsUntilAction = 0;
    std::function<void()> mAction;
};

} // namespace sandbox
