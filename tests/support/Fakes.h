// Include this in one file of a program of tests that links fakes: every test then ends with none alive.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"
#include "tests/support/LeakCheck.h"

namespace test_support
{

inline const LeakCheck kFakes{"fake objects", &sandbox::LiveObjects};

} // namespace test_support
