// Counts the calls of the host's members, and makes a chosen one fail: with a negative result, as a host that
// refuses, or with an error, as a host that breaks.
#pragma once

#include <map>
#include <optional>
#include <string>

namespace sandbox
{

struct OrderedFailure
{
    // The negative result; nothing: an error is raised (E_FAIL) with the reason as its description.
    std::optional<long> result;
    std::wstring reason = L"Ordered by a test";
};

class MemberFailures
{
  public:
    // The n-th call of a member from now on (1 is the next one) fails, the others go through.
    void Order(const std::wstring& member, long n, OrderedFailure failure);
    // Calls of a member so far, failed ones included.
    long CallsOf(const std::wstring& member) const;

    // Called at the start of each call: counts it; the result to return instead of carrying it out, if one
    // has been ordered. Throws automation::Error where an error has been ordered, or a result of a member
    // that has none.
    std::optional<long> OnCall(const std::wstring& member, bool hasResult);

  private:
    std::map<std::wstring, long> mCalls;
    std::map<std::pair<std::wstring, long>, OrderedFailure> mOrdered; // by member and number of the call
};

} // namespace sandbox
