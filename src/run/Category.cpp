#include "run/Category.h"

#include "automation/Readable.h"
#include "calendar/CalendarFromOutlook.h"
#include "calendar/CalendarToOutlook.h"
#include "contacts/ContactsFromOutlook.h"
#include "contacts/ContactsToOutlook.h"
#include "data/Permissions.h"
#include "resources/ids.h"
#include "run/CalendarRange.h"
#include "tasks/TasksFromOutlook.h"
#include "tasks/TasksToOutlook.h"

namespace run
{

namespace
{

using automation::IsTrue;
using automation::Object;
using automation::Recordset;

std::wstring EntriesOfUser(const data::Host& host)
{
    return L"F_ACTORID=" + host.UserIdLiteral();
}

Filters KeepAll(const state::SynParameter& /*parameter*/, const data::Host& /*host*/)
{
    return {};
}

bool IsPendingRow(const Recordset& rows)
{
    return !IsTrue(rows.ValueOf(L"F_ACTCOMPLETED"));
}

bool IsPendingItem(const Object& item)
{
    return !IsTrue(item.Get(L"Complete"));
}

Filters PendingOnly(const state::SynParameter& parameter, const data::Host& /*host*/)
{
    return parameter.TaskTransItem == state::kPendingTasks ? Filters{IsPendingRow, IsPendingItem} : Filters{};
}

} // namespace

const Category kTaskCategory{
    .Key = L"Task",
    .TextId = IDS_CATEGORY_TASK,
    .RecordSource = L"ActivityMyActivity",
    .SourceFilter = nullptr,
    .SucceedsWithoutHostRows = true,
    .AppliesFromOutlookFirst = true,
    .CollectToOutlookTextId = IDS_RUN_COLLECTING,
    .PermissionKind = data::kActivityRecord,
    .Match = kMatchTask,
    .FiltersOf = PendingOnly,
    .ApplyToOutlook = tasks::SynTaskToOutlook,
    .ApplyFromOutlook = tasks::SynTaskFromOutlook,
};

const Category kCalendarCategory{
    .Key = L"Calendar",
    .TextId = IDS_CATEGORY_CALENDAR,
    .RecordSource = L"Calendar",
    .SourceFilter = EntriesOfUser,
    .SucceedsWithoutHostRows = false,
    .AppliesFromOutlookFirst = false,
    .CollectToOutlookTextId = IDS_RUN_APPLYING,
    .PermissionKind = data::kAccountCalendarRecord,
    .Match = kMatchAppointment,
    .FiltersOf = WithinCalendarRange,
    .ApplyToOutlook = calendar::SynCalendarToOutlook,
    .ApplyFromOutlook = calendar::SynCalendarFromOutlook,
};

const Category kContactCategory{
    .Key = L"Contact",
    .TextId = IDS_CATEGORY_CONTACT,
    .RecordSource = L"ContactMyContact",
    .SourceFilter = nullptr,
    .SucceedsWithoutHostRows = false,
    .AppliesFromOutlookFirst = false,
    .CollectToOutlookTextId = IDS_RUN_COLLECTING,
    .PermissionKind = data::kContactRecord,
    .Match = kMatchContact,
    .FiltersOf = KeepAll,
    .ApplyToOutlook = contacts::SynContactToOutlook,
    .ApplyFromOutlook = contacts::SynContactFromOutlook,
};

} // namespace run
