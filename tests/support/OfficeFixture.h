// Fixture of the tests in an office (TestOffice).
#pragma once

#include "tests/support/TestOffice.h"

#include <gtest/gtest.h>

namespace test_support
{

class OfficeFixture : public testing::Test, public TestOffice
{
};

} // namespace test_support
