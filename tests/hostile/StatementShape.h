// What a statement says apart from its values: the yardstick for values of every origin. Two runs that differ
// in nothing but their values must send statements of the same shapes.
#pragma once

#include "tests/hostile/StatementRecorder.h"

#include <string>
#include <string_view>
#include <vector>

namespace test_support
{

// A statement, list or condition with each literal (text, number, NULL) replaced by "?". A text that is not
// closed reads "(open)".
std::wstring ShapeOf(std::wstring_view text);

// "Member|shape|shape", in the order of the calls.
std::vector<std::wstring> ShapesOf(const Statements& statements);

} // namespace test_support
