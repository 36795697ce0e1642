// What the component uses of Outlook's objects: the members by their interface, and the types in which it
// writes them.
#pragma once

#include <windows.h>

#include <oaidl.h>

namespace sandbox
{

struct MemberUse
{
    const wchar_t* interfaceName;
    const wchar_t* member;
    VARTYPE written; // VT_EMPTY: it is read or called only
};

inline constexpr MemberUse kUses[] = {
    {L"_Application", L"GetNamespace", VT_EMPTY},
    {L"_NameSpace", L"Folders", VT_EMPTY},
    {L"_NameSpace", L"GetDefaultFolder", VT_EMPTY},
    {L"_NameSpace", L"GetItemFromID", VT_EMPTY},
    {L"_Folders", L"Count", VT_EMPTY},
    {L"_Folders", L"Item", VT_EMPTY},
    {L"MAPIFolder", L"Folders", VT_EMPTY},
    {L"MAPIFolder", L"Items", VT_EMPTY},
    {L"MAPIFolder", L"Name", VT_EMPTY},
    {L"MAPIFolder", L"DefaultItemType", VT_EMPTY},
    {L"MAPIFolder", L"StoreID", VT_EMPTY},
    {L"MAPIFolder", L"EntryID", VT_EMPTY},
    {L"MAPIFolder", L"FolderPath", VT_EMPTY},
    {L"MAPIFolder", L"GetTable", VT_EMPTY},
    {L"_Items", L"Count", VT_EMPTY},
    {L"_Items", L"Item", VT_EMPTY},
    {L"_Items", L"Add", VT_EMPTY},
    {L"_Items", L"Restrict", VT_EMPTY},
    {L"_Items", L"Find", VT_EMPTY},
    {L"Links", L"Add", VT_EMPTY},
    {L"_Table", L"Columns", VT_EMPTY},
    {L"_Table", L"GetRowCount", VT_EMPTY},
    {L"_Table", L"EndOfTable", VT_EMPTY},
    {L"_Table", L"GetArray", VT_EMPTY},
    {L"_Columns", L"Add", VT_EMPTY},
    {L"_Columns", L"RemoveAll", VT_EMPTY},
    {L"_ContactItem", L"EntryID", VT_EMPTY},
    {L"_ContactItem", L"MessageClass", VT_EMPTY},
    {L"_ContactItem", L"OutlookVersion", VT_EMPTY},
    {L"_ContactItem", L"Parent", VT_EMPTY},
    {L"_ContactItem", L"Save", VT_EMPTY},
    {L"_ContactItem", L"FirstName", VT_BSTR},
    {L"_ContactItem", L"LastName", VT_BSTR},
    {L"_ContactItem", L"Suffix", VT_BSTR},
    {L"_ContactItem", L"Title", VT_BSTR},
    {L"_ContactItem", L"CompanyName", VT_BSTR},
    {L"_ContactItem", L"Companies", VT_BSTR},
    {L"_ContactItem", L"NickName", VT_BSTR},
    {L"_ContactItem", L"Spouse", VT_BSTR},
    {L"_ContactItem", L"HomeTelephoneNumber", VT_BSTR},
    {L"_ContactItem", L"MobileTelephoneNumber", VT_BSTR},
    {L"_ContactItem", L"HomeAddressCity", VT_BSTR},
    {L"_ContactItem", L"HomeAddressCountry", VT_BSTR},
    {L"_ContactItem", L"HomeAddressState", VT_BSTR},
    {L"_ContactItem", L"HomeAddressStreet", VT_BSTR},
    {L"_ContactItem", L"HomeAddressPostalCode", VT_BSTR},
    {L"_ContactItem", L"JobTitle", VT_BSTR},
    {L"_ContactItem", L"Department", VT_BSTR},
    {L"_ContactItem", L"Email1Address", VT_BSTR},
    {L"_ContactItem", L"AssistantName", VT_BSTR},
    {L"_ContactItem", L"AssistantTelephoneNumber", VT_BSTR},
    {L"_ContactItem", L"BusinessTelephoneNumber", VT_BSTR},
    {L"_ContactItem", L"BusinessFaxNumber", VT_BSTR},
    {L"_ContactItem", L"BusinessAddressCity", VT_BSTR},
    {L"_ContactItem", L"BusinessAddressCountry", VT_BSTR},
    {L"_ContactItem", L"BusinessAddressPostalCode", VT_BSTR},
    {L"_ContactItem", L"BusinessAddressState", VT_BSTR},
    {L"_ContactItem", L"BusinessAddressStreet", VT_BSTR},
    {L"_ContactItem", L"Birthday", VT_DATE},
    {L"_ContactItem", L"Anniversary", VT_DATE},
    {L"_TaskItem", L"EntryID", VT_EMPTY},
    {L"_TaskItem", L"MessageClass", VT_EMPTY},
    {L"_TaskItem", L"OutlookVersion", VT_EMPTY},
    {L"_TaskItem", L"Parent", VT_EMPTY},
    {L"_TaskItem", L"ContactNames", VT_EMPTY},
    {L"_TaskItem", L"CreationTime", VT_EMPTY},
    {L"_TaskItem", L"Links", VT_EMPTY},
    {L"_TaskItem", L"Save", VT_EMPTY},
    {L"_TaskItem", L"Subject", VT_BSTR},
    {L"_TaskItem", L"StartDate", VT_DATE},
    {L"_TaskItem", L"DueDate", VT_DATE},
    {L"_TaskItem", L"DateCompleted", VT_DATE},
    {L"_TaskItem", L"Categories", VT_BSTR},
    {L"_TaskItem", L"Complete", VT_BOOL},
    {L"_TaskItem", L"PercentComplete", VT_I4},
    {L"_TaskItem", L"Status", VT_I4},
    {L"_TaskItem", L"Importance", VT_I4},
    {L"_TaskItem", L"ReminderSet", VT_BOOL},
    {L"_TaskItem", L"ReminderTime", VT_DATE},
    {L"_TaskItem", L"TotalWork", VT_I4},
    {L"_TaskItem", L"ActualWork", VT_I4},
    {L"_TaskItem", L"Companies", VT_BSTR},
    {L"_AppointmentItem", L"EntryID", VT_EMPTY},
    {L"_AppointmentItem", L"MessageClass", VT_EMPTY},
    {L"_AppointmentItem", L"OutlookVersion", VT_EMPTY},
    {L"_AppointmentItem", L"Parent", VT_EMPTY},
    {L"_AppointmentItem", L"AllDayEvent", VT_EMPTY},
    {L"_AppointmentItem", L"IsRecurring", VT_EMPTY},
    {L"_AppointmentItem", L"Links", VT_EMPTY},
    {L"_AppointmentItem", L"GetRecurrencePattern", VT_EMPTY},
    {L"_AppointmentItem", L"Companies", VT_EMPTY},
    {L"_AppointmentItem", L"Save", VT_EMPTY},
    {L"_AppointmentItem", L"Subject", VT_BSTR},
    {L"_AppointmentItem", L"Start", VT_DATE},
    {L"_AppointmentItem", L"End", VT_DATE},
    {L"_AppointmentItem", L"Categories", VT_BSTR},
    {L"_AppointmentItem", L"ReminderSet", VT_BOOL},
    {L"_AppointmentItem", L"ReminderMinutesBeforeStart", VT_I4},
    {L"RecurrencePattern", L"Duration", VT_EMPTY},
    {L"RecurrencePattern", L"StartTime", VT_BSTR},
    {L"RecurrencePattern", L"EndTime", VT_DATE},
    {L"RecurrencePattern", L"PatternStartDate", VT_DATE},
    {L"RecurrencePattern", L"RecurrenceType", VT_I4},
    {L"RecurrencePattern", L"Interval", VT_I4},
    {L"RecurrencePattern", L"DayOfWeekMask", VT_I4},
    {L"RecurrencePattern", L"DayOfMonth", VT_I4},
    {L"RecurrencePattern", L"MonthOfYear", VT_I4},
    {L"RecurrencePattern", L"NoEndDate", VT_BOOL},
    {L"RecurrencePattern", L"PatternEndDate", VT_DATE},
};

// Members of the host, of ADO and of fonts.
inline constexpr const wchar_t* kOfOthers[] = {
    L"AbsolutePosition",
    L"BOF",
    L"BeginTrans",
    L"Bookmark",
    L"Close",
    L"CommitTrans",
    L"CursorLocation",
    L"CursorType",
    L"Delete",
    L"EOF",
    L"Fields",
    L"GetRows",
    L"InTransaction",
    L"Insert",
    L"Move",
    L"MoveFirst",
    L"MoveNext",
    L"MyInfo",
    L"Name",
    L"NewGuid",
    L"Open",
    L"OpenRecordset",
    L"OpenRecordsetByString",
    L"PermissionOn",
    L"RecordCount",
    L"RollbackTrans",
    L"Size",
    L"State",
    L"SysDateTime",
    L"Type",
    L"UID",
    L"Update",
    L"Value",
    // Values of the registry.
    L"Descending",
    L"Dpi",
    L"Height",
    L"SortedBy",
    L"Width",
};

// Rows of mappings that are named after a member and write others.
inline constexpr const wchar_t* kWritesOthers[] = {
    L"IsRecurring", // writes the recurrence pattern
};

struct DeprecatedUse
{
    const wchar_t* member;
    const wchar_t* reason;
};

inline constexpr DeprecatedUse kDeprecatedUses[] = {
    {L"Anniversary", L"hosts relate a column to it, and no other member of a contact holds the date"},
    {L"Links", L"a task or appointment has no other member that holds the contact it belongs to"},
};

} // namespace sandbox
