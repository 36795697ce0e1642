// Switches of a fake by name: tests, server programs and registry values set the members of a structure with
// them. A structure lists its switches in a table of Switch rows. Header only.
#pragma once

#include "automation/Error.h"
#include "automation/Value.h"

#include <algorithm>
#include <cwchar>
#include <string>
#include <type_traits>
#include <vector>

namespace sandbox
{

template<typename Owner>
struct Switch
{
    const wchar_t* name;
    const wchar_t* source; // the documentation that describes the behaviour
    void (*set)(Owner& owner, const automation::Value& value);
};

// For Switch rows: sets this member; throws automation::Error for a value that its type does not take.
template<auto member, typename Owner>
void SetMember(Owner& owner, const automation::Value& value)
{
    using Type = std::remove_reference_t<decltype(owner.*member)>;
    if constexpr (std::is_same_v<Type, std::wstring>)
    {
        owner.*member = automation::TextOrEmpty(value);
    }
    else if constexpr (std::is_same_v<Type, bool>)
    {
        owner.*member = automation::TruthOf(value);
    }
    else
    {
        owner.*member = static_cast<Type>(automation::LongOf(value));
    }
}

// Sets the switch of this name, in any letter case; throws automation::Error (E_INVALIDARG) if there is none.
template<typename Owner>
void SetSwitch(const std::vector<Switch<Owner>>& switches, Owner& owner, const std::wstring& name,
               const automation::Value& value)
{
    const auto found = std::ranges::find_if(
        switches, [&](const Switch<Owner>& one) { return _wcsicmp(one.name, name.c_str()) == 0; });
    if (found == switches.end())
    {
        throw automation::Error(E_INVALIDARG, L"Switch", L"There is no switch \"" + name + L"\".");
    }
    found->set(owner, value);
}

} // namespace sandbox
