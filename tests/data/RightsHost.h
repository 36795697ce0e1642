// A host that answers questions of rights only: it keeps the codes that it was asked for, and answers or
// fails as it is told.
#pragma once

#include "automation/Error.h"
#include "sandbox/dispatch/DispatchObject.h"
#include "state/SharedState.h"

#include <vector>

namespace test_support
{

struct RightsAsked
{
    long module;
    long function;
    long right;

    bool operator==(const RightsAsked&) const = default;
};

class RightsHost : public sandbox::DispatchObject
{
  public:
    std::vector<RightsAsked> Asked;
    long Answer = 0;
    bool Fails = false;

  protected:
    const wchar_t* ClassName() const override { return L"RightsHost"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable kMembers = {
            {L"MyInfo", sandbox::Reads(&RightsHost::MyInfo), {}},
            {L"PermissionOn", sandbox::Reads(&RightsHost::PermissionOn), {}},
        };
        return kMembers;
    }

  private:
    automation::Value MyInfo(const sandbox::Call& /*call*/) { return automation::Object(this); }

    automation::Value PermissionOn(const sandbox::Call& call)
    {
        if (Fails)
        {
            throw automation::Error(E_FAIL, L"PermissionOn", L"The rights are not available");
        }
        Asked.push_back(
            {automation::LongOf(call.At(0)), automation::LongOf(call.At(1)), automation::LongOf(call.At(2))});
        return Answer;
    }
};

} // namespace test_support
