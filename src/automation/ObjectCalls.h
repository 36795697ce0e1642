// The calling members of Object, kept apart because they need Argument, which needs Object.
#pragma once

#include "automation/Argument.h"
#include "automation/Object.h"

#include <utility>

namespace automation
{

template<typename... Arguments>
Value Object::Get(const wchar_t* member, Arguments&&... arguments) const
{
    // A parameterless read may be a method in some servers and a property in others; both flags serve both.
    constexpr WORD kFlags = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    if constexpr (sizeof...(arguments) == 0)
    {
        return Invoke(member, kFlags, nullptr, 0);
    }
    else
    {
        Argument passed[] = {Argument(std::forward<Arguments>(arguments))...};
        return Invoke(member, kFlags, passed, sizeof...(arguments));
    }
}

template<typename... Arguments>
Value Object::Call(const wchar_t* member, Arguments&&... arguments) const
{
    return Get(member, std::forward<Arguments>(arguments)...);
}

template<typename... Arguments>
Object Object::GetObject(const wchar_t* member, Arguments&&... arguments) const
{
    return ObjectOf(Get(member, std::forward<Arguments>(arguments)...));
}

} // namespace automation
