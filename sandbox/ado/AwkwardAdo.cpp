#include "sandbox/ado/AwkwardAdo.h"

#include <algorithm>

namespace sandbox
{

namespace
{

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

void SetSwitch(AwkwardAdo& awkward, const std::wstring& name, const automation::Value& value)
{
    SetSwitch(AwkwardAdoSwitches(), awkward, name, value);
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
