// The least of a host that change collection needs: the rights of its user, and a clock.
#pragma once

#include "automation/Object.h"

#include <array>
#include <memory>
#include <set>
#include <vector>

namespace test_support
{

class TestHost
{
  public:
    TestHost();

    automation::Object Object() const { return mObject; }
    // Denies a right code (2 add, 4 modify) of every module.
    void DenyRight(long right);

    void SetSysDateTime(automation::Date moment);

    // A question for a right: the codes of module, function and right.
    using Question = std::array<long, 3>;
    // The questions so far, in their order.
    const std::vector<Question>& Questions() const noexcept { return mState->questions; }

    struct State
    {
        std::set<long> denied; // right codes
        std::vector<Question> questions;
        automation::Date now{37742.5};
    };

  private:
    std::shared_ptr<State> mState;
    automation::Object mObject;
};

} // namespace test_support
