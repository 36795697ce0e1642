#include "sandbox/ado/AwkwardAdo.h"

#include "automation/Error.h"

#include <algorithm>
#include <cwchar>

namespace sandbox
{

namespace
{

using automation::Value;

template<auto member>
void SetMember(AwkwardAdo& awkward, const Value& value)
{
    using Type = std::remove_reference_t<decltype(awkward.*member)>;
    if constexpr (std::is_same_v<Type, std::wstring>)
    {
        awkward.*member = automation::TextOrEmpty(value);
    }
    else if constexpr (std::is_same_v<Type, bool>)
    {
        awkward.*member = automation::TruthOf(value);
    }
    else
    {
        awkward.*member = static_cast<Type>(automation::LongOf(value));
    }
}

constexpr const wchar_t* kDataTypes = L"DataTypeEnum (ADO)";

} // namespace

const std::vector<AwkwardAdoSwitch>& AwkwardAdoSwitches()
{
    static const std::vector<AwkwardAdoSwitch> switches = {
        {L"OpaqueBookmarks",
         L"CompareBookmarks method (ADO): the data type of a bookmark is specific to each provider",
         &SetMember<&AwkwardAdo::opaqueBookmarks>},
        {L"Rows", L"Types of Cursors (ADO)", &SetMember<&AwkwardAdo::rows>},
        {L"Sort", L"Sort property (ADO)", &SetMember<&AwkwardAdo::sort>},
        {L"Filter", L"Filter property (ADO)", &SetMember<&AwkwardAdo::filter>},
        {L"AtMove", L"Sort property (ADO); Filter property (ADO)", &SetMember<&AwkwardAdo::atMove>},
        {L"Integers", kDataTypes, &SetMember<&AwkwardAdo::integers>},
        {L"Guids", kDataTypes, &SetMember<&AwkwardAdo::guids>},
        {L"CharWidth", kDataTypes, &SetMember<&AwkwardAdo::charWidth>},
    };
    return switches;
}

void SetSwitch(AwkwardAdo& awkward, const std::wstring& name, const Value& value)
{
    const auto& switches = AwkwardAdoSwitches();
    const auto found = std::ranges::find_if(
        switches, [&](const AwkwardAdoSwitch& one) { return _wcsicmp(one.name, name.c_str()) == 0; });
    if (found == switches.end())
    {
        throw automation::Error(E_INVALIDARG, L"Switch", L"There is no switch \"" + name + L"\".");
    }
    found->set(awkward, value);
}

void SetSwitches(AwkwardAdo& awkward, const std::wstring& text)
{
    for (size_t at = 0; at < text.size();)
    {
        const size_t end = std::min(text.find(L';', at), text.size());
        const std::wstring pair = text.substr(at, end - at);
        const size_t equals = std::min(pair.find(L'='), pair.size());
        if (equals < pair.size())
        {
            SetSwitch(awkward, pair.substr(0, equals), pair.substr(equals + 1));
        }
        at = end + 1;
    }
}

AwkwardAdo& RecordsetsOfProcess() noexcept
{
    static AwkwardAdo awkward;
    return awkward;
}

} // namespace sandbox
