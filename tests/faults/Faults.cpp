#include "tests/faults/Faults.h"

#include "automation/Error.h"

#include <algorithm>
#include <array>
#include <utility>

namespace test_support
{

namespace
{

// Members of the host whose result is a status.
constexpr std::array<const wchar_t*, 5> kStatusMembers = {L"OpenRecordset", L"OpenRecordsetByString",
                                                          L"Insert", L"Update", L"Delete"};

constexpr long kRefusal = -77;

bool IsStatus(const InterceptedCall& call)
{
    return call.isRoot && std::ranges::find(kStatusMembers, call.member) != kStatusMembers.end();
}

} // namespace

void Faults::Order(Fault fault, long at)
{
    mFault = fault;
    mAt = at;
    mCalls = 0;
    mStruckMember.clear();
    mLosesAnswer = false;
}

void Faults::CountCreation()
{
    if (mFault == Fault::Raises && Strikes(L"CreateInstance"))
    {
        throw automation::Error(E_OUTOFMEMORY, L"CreateInstance");
    }
}

HRESULT Faults::OnLookup(const std::wstring& name)
{
    const bool canStrike = mFault == Fault::Raises || (mFault == Fault::AnswerLost && name == L"(type)");
    return canStrike && Strikes(name) ? RPC_E_DISCONNECTED : S_OK;
}

bool Faults::Before(const InterceptedCall& call)
{
    const bool canStrike = mFault != Fault::Refuses || IsStatus(call);
    if (!canStrike || !Strikes(call.member))
    {
        return true;
    }
    if (mFault == Fault::Raises)
    {
        Fail(call.member);
    }
    if (mFault == Fault::Refuses)
    {
        call.result.vt = VT_I4;
        call.result.lVal = kRefusal;
        return false;
    }
    mLosesAnswer = true;
    return true;
}

void Faults::After(const InterceptedCall& call)
{
    if (std::exchange(mLosesAnswer, false))
    {
        Fail(call.member);
    }
}

// Counts a call that the fault can strike; whether this is the one.
bool Faults::Strikes(const std::wstring& member)
{
    if (++mCalls != mAt)
    {
        return false;
    }
    mStruckMember = member;
    return true;
}

// An error of the object's own, or of the way to it.
void Faults::Fail(const std::wstring& member) const
{
    throw automation::Error(mAt % 2 == 0 ? RPC_E_DISCONNECTED : E_FAIL, member, L"Injected");
}

} // namespace test_support
