// The least of a host that change collection needs: the rights of its user, and a clock.
#pragma once

#include "automation/Object.h"

#include <memory>
#include <set>

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

    struct State
    {
        std::set<long> denied; // right codes
        automation::Date now{37742.5};
    };

  private:
    std::shared_ptr<State> mState;
    automation::Object mObject;
};

} // namespace test_support
