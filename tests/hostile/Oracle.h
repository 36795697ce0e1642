// What the host contract says of a value in a column, worked out a second time and in another way than the
// component does: the yardstick of the tests over hostile values.
#pragma once

#include "sandbox/host/Literals.h"

#include "automation/Value.h"

#include <optional>
#include <string>

namespace test_support
{

// The part of a text that a column of this size keeps: whole characters as long as they fit, an apostrophe
// and a character beyond U+00FF counting two.
std::wstring KeptText(const std::wstring& text, long size);

// Why the literal is not what a column of this type and size must be given for the value; empty when it is.
// Call it for values only that the component did not refuse.
std::string Complaint(const sandbox::Literal& literal, const automation::Value& value, long type, long size);

} // namespace test_support
