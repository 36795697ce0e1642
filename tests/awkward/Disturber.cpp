#include "tests/awkward/Disturber.h"

#include <algorithm>
#include <iterator>

namespace test_support
{

namespace
{

constexpr std::wstring_view kClassesOfHost[] = {L"DTC", L"MyInfo", L"Recordset", L"Fields", L"Field"};

bool IsOfHost(std::wstring_view className)
{
    return std::ranges::find(kClassesOfHost, className) != std::end(kClassesOfHost);
}

} // namespace

Disturber::Disturber(CallsOf side, long atCall, std::function<void()> action)
    : mPrevious(sandbox::Observe(this)), mSide(side), mAtCall(atCall), mAction(std::move(action))
{
}

void Disturber::OnCall(const wchar_t* className, const wchar_t* /*member*/)
{
    if (mIsActing || IsOfHost(className) != (mSide == CallsOf::Host))
    {
        return;
    }
    if (++mCalls == mAtCall)
    {
        mIsActing = true;
        mAction();
        mIsActing = false;
    }
}

} // namespace test_support
