#include "sandbox/host/MemberFailures.h"

#include "automation/Error.h"

namespace sandbox
{

void MemberFailures::Order(const std::wstring& member, long n, OrderedFailure failure)
{
    mOrdered.insert_or_assign({member, CallsOf(member) + n}, std::move(failure));
}

long MemberFailures::CallsOf(const std::wstring& member) const
{
    const auto found = mCalls.find(member);
    return found == mCalls.end() ? 0 : found->second;
}

std::optional<long> MemberFailures::OnCall(const std::wstring& member, bool hasResult)
{
    const auto found = mOrdered.find({member, ++mCalls[member]});
    if (found == mOrdered.end())
    {
        return std::nullopt;
    }
    const OrderedFailure failure = std::move(found->second);
    mOrdered.erase(found);
    if (!hasResult || !failure.result)
    {
        throw automation::Error(E_FAIL, member, failure.reason);
    }
    return failure.result;
}

} // namespace sandbox
