// The least of a host that change collection needs: the rights of its user.
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

  private:
    std::shared_ptr<std::set<long>> mDenied;
    automation::Object mObject;
};

} // namespace test_support
