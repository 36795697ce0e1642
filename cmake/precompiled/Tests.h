// What most test sources include: GoogleTest, beside the headers of every source.
#pragma once

#include "cmake/precompiled/Windows.h"

#include <gtest/gtest.h>

#include <random>
#include <thread>
