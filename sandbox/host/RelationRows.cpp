#include "sandbox/host/RelationRows.h"

namespace sandbox
{

namespace
{

constexpr const wchar_t* kContacts = L"TBLCONTACT";
constexpr const wchar_t* kTasks = L"TBLACTIVITY";
constexpr const wchar_t* kCalendar = L"VW_CALENDAR";

constexpr RelationRow kEnglishNames[] = {
    {kContacts, L"F_SURNAME", L"FirstName"},
    {kContacts, L"F_GIVENNAME", L"LastName"},
};

constexpr RelationRow kChineseNames[] = {
    {kContacts, L"F_SURNAME", L"LastName"},
    {kContacts, L"F_GIVENNAME", L"FirstName"},
};

// Columns without "F_" come from linked rows or are computed: they are shown in Outlook and never written.
// Of a task the percentage comes first and its status before what is written only to a completed task, so
// that a completed one arrives whole. Its start comes after the date that it is due: Outlook moves the other
// one when the two contradict each other, and a task is known again by its start.
constexpr RelationRow kRelationRows[] = {
    {kContacts, L"F_NICKNAME", L"NickName"},
    {kContacts, L"F_TITLE", L"Title"},
    {kContacts, L"F_SUFFIX", L"Suffix"},
    {kContacts, L"F_SPOUSE", L"Spouse"},
    {kContacts, L"F_BIRTHDAY", L"Birthday"},
    {kContacts, L"F_ANNIVERSARY", L"Anniversary"},
    {kContacts, L"ACC_SNAME", L"CompanyName"},
    {kContacts, L"F_JOBTITLE", L"JobTitle"},
    {kContacts, L"F_DEPARTMENT", L"Department"},
    {kContacts, L"F_EMAIL", L"Email1Address"},
    {kContacts, L"F_BUSINESSPHONE", L"BusinessTelephoneNumber"},
    {kContacts, L"F_BUSINESSFAX", L"BusinessFaxNumber"},
    {kContacts, L"F_MOBILEPHONE", L"MobileTelephoneNumber"},
    {kContacts, L"F_HOMEPHONE", L"HomeTelephoneNumber"},
    {kContacts, L"F_ASSISTANT", L"AssistantName"},
    {kContacts, L"F_ASSISTANTPHONE", L"AssistantTelephoneNumber"},
    {kContacts, L"F_HOMECOUNTRY", L"HomeAddressCountry"},
    {kContacts, L"F_HOMEPROVINCE", L"HomeAddressState"},
    {kContacts, L"F_HOMECITY", L"HomeAddressCity"},
    {kContacts, L"F_HOMESTREET", L"HomeAddressStreet"},
    {kContacts, L"F_HOMEPOSTALCODE", L"HomeAddressPostalCode"},
    {kContacts, L"ADDR_COUNTRY", L"BusinessAddressCountry"},
    {kContacts, L"ADDR_PROVINCE", L"BusinessAddressState"},
    {kContacts, L"ADDR_CITY", L"BusinessAddressCity"},
    {kContacts, L"ADDR_DETAIL", L"BusinessAddressStreet"},
    {kContacts, L"ADDR_POSTALCODE", L"BusinessAddressPostalCode"},

    {kTasks, L"F_ACTNAME", L"Subject"},
    {kTasks, L"F_ACTTYPE", L"Categories"},
    {kTasks, L"F_ACTPETIME", L"DueDate"},
    {kTasks, L"F_ACTPSTIME", L"StartDate"},
    {kTasks, L"F_ACTCREATETIME", L"CreationTime"},
    {kTasks, L"F_ACTPERCENT", L"PercentComplete"},
    {kTasks, L"F_ACTSTATUS", L"Status"},
    {kTasks, L"F_ACTCTIME", L"DateCompleted"},
    {kTasks, L"F_ACTCOMPLETED", L"Complete"},
    {kTasks, L"F_ACTPRIORITY", L"Importance"},
    {kTasks, L"F_ACTTOTALWORK", L"TotalWork"},
    {kTasks, L"F_ACTACTUALWORK", L"ActualWork"},
    {kTasks, L"ACC_SNAME", L"Companies"},
    {kTasks, L"CONTACT_SURNAME", L"ContactNames"},
    {kTasks, L"F_ACTREMIND", L"ReminderSet"},

    {kCalendar, L"F_ACTNAME", L"Subject"},
    {kCalendar, L"F_ACTTYPE", L"Categories"},
    {kCalendar, L"F_ACTESDATE", L"Start"},
    {kCalendar, L"CONTACT_SURNAME", L"Recipients"},
    {kCalendar, L"F_ACTREMIND", L"ReminderSet"},
    {kCalendar, L"ACT_REPEATS", L"IsRecurring"},
};

} // namespace

std::span<const RelationRow> RelationRows()
{
    return kRelationRows;
}

std::span<const RelationRow> NameRows(Edition edition)
{
    return edition == Edition::Chinese ? std::span<const RelationRow>(kChineseNames) : kEnglishNames;
}

} // namespace sandbox
