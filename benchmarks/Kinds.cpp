#include "benchmarks/Kinds.h"
#include "automation/OutlookConstants.h"
#include "calendar/Calendar.h"
#include "contacts/Contacts.h"
#include "tasks/Tasks.h"

#include "automation/Dates.h"
#include "exchange/ApplyToOutlook.h"

namespace benchmarks
{

namespace
{

using automation::DateOf;
using automation::IsEmptyOrNull;
using automation::Value;
using Values = std::vector<Value>;

Value DateOrNone(const Values& read)
{
    return IsEmptyOrNull(read.back()) ? Value(automation::kOutlookNoDate) : read.back();
}

Value Percentage(const Values& read)
{
    return automation::DoubleOf(read.back()) * 100;
}

Value OneLess(const Values& read)
{
    return automation::DoubleOf(read.back()) - 1;
}

// Of the columns of the day, the time of day and the duration, read in this order.
Value Start(const Values& read)
{
    const Value* last = &read.back();
    return automation::PlusTime(DateOf(last[-2]), DateOf(last[-1]));
}

Value End(const Values& read)
{
    return automation::PlusTime(DateOf(Start(read)), DateOf(read.back()));
}

constexpr const wchar_t* kContactItemKeys[] = {L"LastName", L"FirstName"};
constexpr const wchar_t* kContactColumns[] = {L"LastName", L"FirstName", L"CompanyName"};
constexpr const wchar_t* kContactRowKeys[] = {L"F_SURNAME", L"F_GIVENNAME"};
constexpr const wchar_t* kTaskItemKeys[] = {L"Subject", L"Categories", L"StartDate"};
constexpr const wchar_t* kTaskRowKeys[] = {L"F_ACTNAME", L"F_ACTTYPE", L"F_ACTPSTIME"};
constexpr const wchar_t* kEntryItemKeys[] = {L"Subject", L"Categories", L"Start"};
constexpr const wchar_t* kEntryColumns[] = {L"Subject", L"Categories", L"Start", L"AllDayEvent"};
constexpr const wchar_t* kEntryRowKeys[] = {L"F_ACTNAME", L"F_ACTTYPE", L"F_ACTESDATE", L"F_ACTESTIME"};

// In the order of the sandbox's relation rows, in English.
constexpr Step kContactSteps[] = {
    {Step::Column, L"F_SURNAME"},
    {Step::Put, L"LastName"},
    {Step::Column, L"F_GIVENNAME"},
    {Step::Put, L"FirstName"},
    {Step::Column, L"F_NICKNAME"},
    {Step::Put, L"NickName"},
    {Step::Column, L"F_TITLE"},
    {Step::Put, L"Title"},
    {Step::Column, L"F_SUFFIX"},
    {Step::Column, L"F_SPOUSE"},
    {Step::Put, L"Spouse"},
    {Step::Column, L"F_BIRTHDAY"},
    {Step::Put, L"Birthday", DateOrNone},
    {Step::Column, L"F_ANNIVERSARY"},
    {Step::Put, L"Anniversary", DateOrNone},
    {Step::Column, L"ACC_SNAME"},
    {Step::Put, L"CompanyName"},
    {Step::Put, L"Companies"},
    {Step::Column, L"F_JOBTITLE"},
    {Step::Put, L"JobTitle"},
    {Step::Column, L"F_DEPARTMENT"},
    {Step::Put, L"Department"},
    {Step::Column, L"F_EMAIL"},
    {Step::Put, L"Email1Address"},
    {Step::Column, L"F_BUSINESSPHONE"},
    {Step::Put, L"BusinessTelephoneNumber"},
    {Step::Column, L"F_BUSINESSFAX"},
    {Step::Put, L"BusinessFaxNumber"},
    {Step::Column, L"F_MOBILEPHONE"},
    {Step::Put, L"MobileTelephoneNumber"},
    {Step::Column, L"F_HOMEPHONE"},
    {Step::Put, L"HomeTelephoneNumber"},
    {Step::Column, L"F_ASSISTANT"},
    {Step::Put, L"AssistantName"},
    {Step::Column, L"F_ASSISTANTPHONE"},
    {Step::Put, L"AssistantTelephoneNumber"},
    {Step::Column, L"F_HOMECOUNTRY"},
    {Step::Put, L"HomeAddressCountry"},
    {Step::Column, L"F_HOMEPROVINCE"},
    {Step::Put, L"HomeAddressState"},
    {Step::Column, L"F_HOMECITY"},
    {Step::Put, L"HomeAddressCity"},
    {Step::Column, L"F_HOMESTREET"},
    {Step::Put, L"HomeAddressStreet"},
    {Step::Column, L"F_HOMEPOSTALCODE"},
    {Step::Put, L"HomeAddressPostalCode"},
    {Step::Column, L"ADDR_COUNTRY"},
    {Step::Put, L"BusinessAddressCountry"},
    {Step::Column, L"ADDR_PROVINCE"},
    {Step::Put, L"BusinessAddressState"},
    {Step::Column, L"ADDR_CITY"},
    {Step::Put, L"BusinessAddressCity"},
    {Step::Column, L"ADDR_DETAIL"},
    {Step::Put, L"BusinessAddressStreet"},
    {Step::Column, L"ADDR_POSTALCODE"},
    {Step::Put, L"BusinessAddressPostalCode"},
    {Step::Save},
};

// Saved after every relation row, and once more.
constexpr Step kTaskSteps[] = {
    {Step::Column, L"F_ACTNAME"},
    {Step::Put, L"Subject"},
    {Step::Save},
    {Step::Column, L"F_ACTTYPE"},
    {Step::Put, L"Categories"},
    {Step::Save},
    {Step::Column, L"F_ACTPETIME"},
    {Step::Put, L"DueDate", DateOrNone},
    {Step::Save},
    {Step::Column, L"F_ACTPSTIME"},
    {Step::Put, L"StartDate", DateOrNone},
    {Step::Save},
    {Step::Column, L"F_ACTCREATETIME"},
    {Step::Save},
    {Step::Column, L"F_ACTPERCENT"},
    {Step::Put, L"PercentComplete", Percentage},
    {Step::Save},
    {Step::Column, L"F_ACTSTATUS"},
    {Step::Put, L"Status"},
    {Step::Save},
    {Step::Save},
    {Step::Column, L"F_ACTCTIME"},
    {Step::Get, L"Status"},
    {Step::Save},
    {Step::Column, L"F_ACTCOMPLETED"},
    {Step::Get, L"Status"},
    {Step::Save},
    {Step::Column, L"F_ACTPRIORITY"},
    {Step::Put, L"Importance", OneLess},
    {Step::Save},
    {Step::Column, L"F_ACTTOTALWORK"},
    {Step::Put, L"TotalWork"},
    {Step::Save},
    {Step::Column, L"F_ACTACTUALWORK"},
    {Step::Put, L"ActualWork"},
    {Step::Save},
    {Step::Column, L"ACC_SNAME"},
    {Step::Put, L"Companies"},
    {Step::Save},
    {Step::Column, L"CONTACT_SURNAME"},
    {Step::Column, L"CONTACT_GIVENNAME"},
    {Step::Save},
    {Step::Column, L"F_ACTREMIND"},
    {Step::Put, L"ReminderSet"},
    {Step::Save},
    {Step::Save},
};

constexpr Step kEntrySteps[] = {
    {Step::Column, L"F_ACTNAME"},       {Step::Put, L"Subject"},
    {Step::Column, L"F_ACTTYPE"},       {Step::Put, L"Categories"},
    {Step::Get, L"IsRecurring"},        {Step::Column, L"F_ACTESDATE"},
    {Step::Column, L"F_ACTESTIME"},     {Step::Column, L"ACT_DURATION"},
    {Step::Put, L"Start", Start},       {Step::Put, L"End", End},
    {Step::Column, L"CONTACT_SURNAME"}, {Step::Column, L"CONTACT_GIVENNAME"},
    {Step::Column, L"F_ACTREMIND"},     {Step::Put, L"ReminderSet"},
    {Step::Column, L"ACT_REPEATS"},     {Step::Save},
};

// What relation rows name, and what the links to accounts and contacts ask for.
constexpr const wchar_t* kContactReads[] = {
    L"LastName",
    L"FirstName",
    L"NickName",
    L"Title",
    L"Spouse",
    L"Birthday",
    L"Anniversary",
    L"JobTitle",
    L"Department",
    L"Email1Address",
    L"BusinessTelephoneNumber",
    L"BusinessFaxNumber",
    L"MobileTelephoneNumber",
    L"HomeTelephoneNumber",
    L"AssistantName",
    L"AssistantTelephoneNumber",
    L"HomeAddressCountry",
    L"HomeAddressState",
    L"HomeAddressCity",
    L"HomeAddressStreet",
    L"HomeAddressPostalCode",
    L"CompanyName",
    L"BusinessAddressCountry",
    L"BusinessAddressState",
    L"BusinessAddressCity",
    L"BusinessAddressStreet",
    L"BusinessAddressPostalCode",
};

constexpr const wchar_t* kTaskReads[] = {
    L"Subject",         L"Categories",     L"DueDate",      L"StartDate", L"CreationTime",
    L"PercentComplete", L"Status",         L"Importance",   L"TotalWork", L"ActualWork",
    L"ReminderSet",     L"OutlookVersion", L"ContactNames", L"Companies",
};

constexpr const wchar_t* kEntryReads[] = {
    L"Subject", L"Categories", L"AllDayEvent", L"IsRecurring", L"Start", L"End", L"ReminderSet", L"Companies",
};

const Kind kKinds[] = {
    {"contacts", contacts::kContacts, 10, automation::kContactItem, kContactItemKeys, L"CompanyName",
     kContactRowKeys, L"ACC_SNAME", kContactColumns, true, L"F_CNTCTID", kContactSteps, kContactReads},
    {"tasks", tasks::kTasks, 13, automation::kTaskItem, kTaskItemKeys, L"Companies", kTaskRowKeys,
     L"ACC_SNAME", kTaskItemKeys, false, L"F_ACTID", kTaskSteps, kTaskReads},
    {"calendar", calendar::kCalendar, 9, automation::kAppointmentItem, kEntryItemKeys, nullptr, kEntryRowKeys,
     nullptr, kEntryColumns, false, L"F_ACTID", kEntrySteps, kEntryReads},
};

} // namespace

std::span<const Kind> Kinds()
{
    return kKinds;
}

} // namespace benchmarks
