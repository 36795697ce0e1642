// Writes down the calls of a few members of the fakes in their order, for the length of a scope, and
// makes one member fail where a test asks for it. Observers around it still see every call.
#pragma once

#include "automation/Error.h"
#include "sandbox/dispatch/DispatchObject.h"

#include <algorithm>
#include <string>
#include <vector>

namespace test_support
{

class CallOrder : public sandbox::CallObserver
{
  public:
    explicit CallOrder(std::vector<std::wstring> members)
        : mMembers(std::move(members)), mPrevious(sandbox::Observe(this))
    {
    }
    CallOrder(const CallOrder&) = delete;
    CallOrder& operator=(const CallOrder&) = delete;
    ~CallOrder() override { sandbox::Observe(mPrevious); }

    void OnCall(const wchar_t* className, const wchar_t* member) override
    {
        const std::wstring name = std::wstring(className) + L"." + member;
        if (std::ranges::find(mMembers, name) != mMembers.end())
        {
            Seen.push_back(name);
        }
        if (mPrevious != nullptr)
        {
            mPrevious->OnCall(className, member);
        }
        if (name == Failing)
        {
            throw automation::Error(E_FAIL, name, L"Ordered by a test");
        }
    }

    std::vector<std::wstring> Seen;
    std::wstring Failing;

  private:
    std::vector<std::wstring> mMembers;
    sandbox::CallObserver* mPrevious;
};

} // namespace test_support
