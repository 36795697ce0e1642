#include "tasks/Tasks.h"

#include "automation/Readable.h"
#include "data/Permissions.h"
#include "exchange/MatchKeys.h"
#include "tasks/TasksFromOutlook.h"
#include "tasks/TasksToOutlook.h"

namespace tasks
{

namespace
{

using automation::IsTrue;
using automation::Object;
using automation::Recordset;

std::wstring KeyOfTaskItem(const Object& item)
{
    const std::wstring subject = exchange::Comparable(item.Get(L"Subject"));
    const std::wstring category = exchange::ComparableCategory(item.Get(L"Categories"));
    return exchange::JoinedKey(subject, category,
                               exchange::ComparableDate(item.Get(L"StartDate"), L"yyyy/mm/dd"));
}

std::wstring KeyOfTaskRow(const Recordset& rows)
{
    const std::wstring name = exchange::Comparable(rows.ValueOf(L"F_ACTNAME"));
    const std::wstring type = exchange::ComparableCategory(rows.ValueOf(L"F_ACTTYPE"));
    return exchange::JoinedKey(name, type,
                               exchange::ComparableDate(rows.ValueOf(L"F_ACTPSTIME"), L"yyyy/mm/dd"));
}

std::wstring CompaniesOfTask(const Object& item)
{
    return exchange::Comparable(item.Get(L"Companies"));
}

bool IsPendingRow(const Recordset& rows)
{
    return !IsTrue(rows.ValueOf(L"F_ACTCOMPLETED"));
}

bool IsPendingItem(const Object& item)
{
    return !IsTrue(item.Get(L"Complete"));
}

exchange::Filters PendingOnly(const state::SynParameter& parameter, const data::Host& /*host*/)
{
    return parameter.TaskTransItem == state::kPendingTasks ? exchange::Filters{IsPendingRow, IsPendingItem}
                                                           : exchange::Filters{};
}

} // namespace

const exchange::Kind kTasks{
    .Name = exchange::kTaskName,
    .RecordSource = L"ActivityMyActivity",
    .KeyColumn = L"F_ACTID",
    .SourceFilter = nullptr,
    .SucceedsWithoutHostRows = true,
    .AppliesFromOutlookFirst = true,
    .CollectToOutlookTextId = IDS_RUN_COLLECTING,
    .PermissionKind = data::kActivityRecord,
    .Match = {KeyOfTaskItem, CompaniesOfTask, KeyOfTaskRow, exchange::AccountOfRow},
    .FiltersOf = PendingOnly,
    .ToOutlook = SynTaskToOutlook,
    .FromOutlook = SynTaskFromOutlook,
};

} // namespace tasks
