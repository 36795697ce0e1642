// Lets something happen before the n-th call that reaches an object of one side: what other programs and the
// server do while a run works.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"

#include <functional>

namespace test_support
{

enum class CallsOf
{
    Outlook,
    Host, // its data-access object and recordsets, those of the component's own included
};

class Disturber : public sandbox::CallObserver
{
  public:
    // 0 for never: then it counts only.
    Disturber(CallsOf side, long atCall, std::function<void()> action);
    Disturber(const Disturber&) = delete;
    Disturber& operator=(const Disturber&) = delete;
    ~Disturber() override { sandbox::Observe(mPrevious); }

    void OnCall(const wchar_t* className, const wchar_t* member) override;
    long Calls() const noexcept { return mCalls; }

  private:
    sandbox::CallObserver* mPrevious;
    CallsOf mSide;
    long mAtCall;
    std::function<void()> mAction;
    long mCalls = 0;
    bool mIsActing = false;
};

} // namespace test_support
