// Answers as text, in words that do not depend on language, time zone or the regional settings of a machine.
#pragma once

#include "automation/Object.h"

#include <functional>
#include <string>

namespace conformance
{

// "text 'abc'", "number 3", "date 4501-01-01 00:00:00", "true", "empty", "null", "nothing", "object", ...
std::wstring Describe(const automation::Value& value);

// What the function returns, or "error 0x........" where a call fails: descriptions are in Outlook's
// language.
std::wstring AnswerOf(const std::function<automation::Value()>& ask);

// Several answers as one: "a; b; c".
std::wstring Joined(std::initializer_list<std::wstring> answers);

} // namespace conformance
