// Makes one chosen call of a whole run fail, whichever object it reaches.
#pragma once

#include "tests/support/Interceptor.h"

#include <string>

namespace test_support
{

enum class Fault
{
    Raises,     // the call is not made; it ends with an error
    AnswerLost, // the call is made, and its answer is an error, as when a connection breaks
    Refuses,    // one of the host's writes and queries is not made and answers a negative number
};

class Faults : public Interceptor
{
  public:
    // at: the call that fails, counted from 1 among those that the fault can strike; 0: none.
    void Order(Fault fault, long at);
    void OrderNone() { Order(Fault::Raises, 0); }
    // No further call fails; the member struck is still known.
    void Stop() noexcept { mAt = 0; }

    // The member struck; empty if none was.
    const std::wstring& StruckMember() const noexcept { return mStruckMember; }

    // For class objects: the creation of an object is a call too. Throws automation::Error if it is struck.
    void CountCreation();

    HRESULT OnLookup(const std::wstring& name) override;
    bool Before(const InterceptedCall& call) override;
    void After(const InterceptedCall& call) override;
    bool WrapsResultsOf(const std::wstring& /*member*/) const override { return true; }

  private:
    bool Strikes(const std::wstring& member);
    [[noreturn]] void Fail(const std::wstring& member) const;

    Fault mFault = Fault::Raises;
    long mAt = 0;
    long mCalls = 0; // that the fault can strike
    std::wstring mStruckMember;
    bool mLosesAnswer = false; // of the call that is being made
};

} // namespace test_support
