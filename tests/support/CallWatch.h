// Watches the calls that reach the fakes of this process for the length of a scope: how often, in which
// order, with which arguments; and makes chosen calls fail. Watches may be nested; each sees every call.
// Header only; for test programs that link fakes.
#pragma once

#include "automation/Error.h"
#include "sandbox/dispatch/DispatchObject.h"

#include <algorithm>
#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace test_support
{

class CallWatch : public sandbox::CallObserver
{
  public:
    using Names = std::vector<std::wstring>; // "Class.Member"
    using Condition = std::function<bool(const std::wstring& name)>;

    CallWatch() : mPrevious(sandbox::Observe(this)) {}
    CallWatch(const CallWatch&) = delete;
    CallWatch& operator=(const CallWatch&) = delete;
    ~CallWatch() override { sandbox::Observe(mPrevious); }

    // The calls of "Class.Member", or of "Member" of any class; those that meet a condition; all.
    long Of(const std::wstring& name) const { return CountIf(IsOneOf({name})); }
    long CountIf(const Condition& condition) const { return static_cast<long>(Those(condition).size()); }
    long Total() const
    {
        return CountIf([](const std::wstring&) { return true; });
    }
    // The calls of these members in their order.
    Names InOrder(const Names& names) const { return Those(IsOneOf(names)); }
    Names Those(const Condition& condition) const
    {
        const std::lock_guard hold(mLock);
        Names found;
        std::ranges::copy_if(mCalls, std::back_inserter(found), condition);
        return found;
    }
    // How often a client asked for the number of "Class.Member".
    long LookupsOf(const std::wstring& name) const
    {
        const std::lock_guard hold(mLock);
        return static_cast<long>(std::ranges::count(mLookups, name));
    }

    // From now on every call of this member fails with E_FAIL, or only the n-th call from now (1 is the next)
    // that meets the condition.
    void FailEvery(const std::wstring& name) { mFails = IsOneOf({name}); }
    void FailNth(long n, const std::wstring& name) { FailNth(n, IsOneOf({name})); }
    void FailNth(long n, Condition condition)
    {
        mFails = [left = n, condition = std::move(condition)](const std::wstring& name) mutable {
            return condition(name) && --left == 0;
        };
    }
    bool HasFailed() const noexcept { return mHasFailed; }

    void OnCall(const wchar_t* className, const wchar_t* member) override
    {
        const std::wstring name = std::wstring(className) + L"." + member;
        {
            const std::lock_guard hold(mLock);
            mCalls.push_back(name);
        }
        if (mPrevious != nullptr)
        {
            mPrevious->OnCall(className, member);
        }
        if (mFails && mFails(name))
        {
            mHasFailed = true;
            throw automation::Error(E_FAIL, member, L"Injected by a test");
        }
    }
    void OnArguments(const wchar_t* className, const wchar_t* member, const sandbox::Call& call) override
    {
        if (mPrevious != nullptr)
        {
            mPrevious->OnArguments(className, member, call);
        }
    }
    void OnNameLookup(const wchar_t* className, const wchar_t* member) override
    {
        const std::lock_guard hold(mLock);
        mLookups.push_back(std::wstring(className) + L"." + member);
        if (mPrevious != nullptr)
        {
            mPrevious->OnNameLookup(className, member);
        }
    }

  private:
    static Condition IsOneOf(Names names)
    {
        return [names = std::move(names)](const std::wstring& name) {
            return std::ranges::any_of(
                names, [&](const std::wstring& one) { return name == one || name.ends_with(L"." + one); });
        };
    }

    sandbox::CallObserver* mPrevious;
    mutable std::mutex mLock;
    Names mCalls;
    Names mLookups;
    Condition mFails;
    bool mHasFailed = false;
};

} // namespace test_support
