// Include this in one file of a program of tests that links stand-ins: every test then ends with none alive.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"
#include "tests/support/LeakCheck.h"

namespace test_support
{

inline const LeakCheck kStandIns{"stand-in objects", &sandbox::LiveObjects};

} // namespace test_support
