#include "sandbox/host/RecordSources.h"

#include "automation/Text.h"
#include "sandbox/host/HostStatements.h"
#include "sandbox/host/Rejection.h"

#include <algorithm>
#include <iterator>

namespace sandbox
{

namespace
{

struct RecordSource
{
    const wchar_t* name;
    const wchar_t* view;
    const wchar_t* condition; // {} is the user's id
    const wchar_t* order;     // the running number, which follows the order of insertion
};

constexpr RecordSource kSources[] = {
    {L"ContactMyContact", L"VW_CONTACT", L"F_CREATORID={}", L"F_CNTCTNO"},
    {L"ActivityMyActivity", L"VW_ACTIVITY", L"(F_ACTORID={} OR F_CREATORID={})", L"F_ACTNO"},
    {L"AccountMyAccount", L"VW_ACCOUNT", L"(F_CREATORID={} OR F_CREATORID IS NULL)", L"F_ACCNO"},
    {L"Calendar", L"VW_CALENDAR", L"1=1", L"F_ACTNO"},
};

} // namespace

ResultSet OpenSource(Connection& database, long userId, const std::wstring& name, const std::wstring& filter)
{
    const auto* source =
        std::ranges::find_if(kSources, [&](const RecordSource& one) { return name == one.name; });
    if (source == std::end(kSources))
    {
        throw Rejection(Refusal::UnknownSource, L"There is no record source \"" + name + L"\"");
    }
    CheckQuotes(filter); // here, so that the complaint names the filter and not the whole statement
    std::wstring sql = std::wstring(L"SELECT * FROM ") + source->view + L" WHERE " +
                       automation::Replaced(source->condition, L"{}", std::to_wstring(userId));
    if (!filter.empty())
    {
        sql += L" AND (" + filter + L")";
    }
    return HostStatements(database).Select(sql + L" ORDER BY " + source->order);
}

} // namespace sandbox
