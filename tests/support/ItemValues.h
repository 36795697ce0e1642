// Members of automation objects as values that a failed comparison can show. Header only.
#pragma once

#include "automation/Dates.h"
#include "automation/Object.h"

#include <string>

namespace test_support
{

inline std::wstring Text(const automation::Object& object, const wchar_t* member)
{
    return automation::TextOf(object.Get(member));
}

inline long Number(const automation::Object& object, const wchar_t* member)
{
    return automation::LongOf(object.Get(member));
}

inline bool Truth(const automation::Object& object, const wchar_t* member)
{
    return automation::TruthOf(object.Get(member));
}

// A date with its time of day.
inline std::wstring At(const automation::Value& date)
{
    return automation::Formatted(automation::DateOf(date), L"yyyy-mm-dd hh:mm");
}

} // namespace test_support
