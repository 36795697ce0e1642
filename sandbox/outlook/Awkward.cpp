#include "sandbox/outlook/Awkward.h"

#include <algorithm>

namespace sandbox::outlook
{

namespace
{

constexpr const wchar_t* kItems = L"Items object (Outlook)";
constexpr const wchar_t* kItemEvents = L"Items.ItemAdd event, Items.ItemRemove event (Outlook)";
constexpr const wchar_t* kFactors =
    L"Factors Affecting Property Value Representation in the Table and View Classes";
constexpr const wchar_t* kTable = L"Table object (Outlook): a table represents a set of items at a moment";

struct Guarded
{
    std::wstring_view interfaceName;
    std::wstring_view members; // between blanks
};

// Of "Protected Properties and Methods": the interfaces that the fake has.
constexpr Guarded kGuarded[] = {
    {L"_AppointmentItem", L" Body OptionalAttendees Organizer PropertyAccessor RequiredAttendees Resources "
                          L"RTFBody Respond SaveAs Send "},
    {L"_Columns", L" Add "},
    {L"_ContactItem",
     L" Body Email1Address Email1AddressType Email1DisplayName Email1EntryID Email2Address Email2AddressType "
     L"Email2DisplayName Email2EntryID Email3Address Email3AddressType Email3DisplayName Email3EntryID "
     L"IMAddress NetMeetingAlias PropertyAccessor ReferredBy RTFBody SaveAs "},
    {L"_DistListItem", L" Body PropertyAccessor RTFBody GetMember SaveAs "},
    {L"MAPIFolder", L" GetCalendarExporter PropertyAccessor "},
    {L"_MailItem", L" Body HTMLBody PropertyAccessor RTFBody SenderName SaveAs "},
    {L"_NameSpace", L" CurrentUser GetSelectNamesDialog GetAddressEntryFromID GetRecipientFromID "},
    {L"_NoteItem", L" Body PropertyAccessor "},
    {L"_PostItem", L" Body HTMLBody PropertyAccessor RTFBody SenderName SaveAs "},
    {L"_TaskItem", L" Body ContactNames Contacts Delegator Owner PropertyAccessor RTFBody "
                   L"StatusOnCompletionRecipients StatusUpdateRecipients SaveAs Send "},
};

} // namespace

const std::vector<AwkwardSwitch>& AwkwardSwitches()
{
    static const std::vector<AwkwardSwitch> switches = {
        {L"Order", kItems, &SetMember<&Awkward::order>},
        {L"ArriveAtFetch", kItemEvents, &SetMember<&Awkward::arriveAtFetch>},
        {L"VanishAtFetch", kItemEvents, &SetMember<&Awkward::vanishAtFetch>},
        {L"ForeignItems",
         L"Item Types and Message Classes; Enumerate the Contacts Folder and Set Custom Property "
         L"for Only Contact Items",
         &SetMember<&Awkward::foreignItems>},
        {L"Guard", L"Protected Properties and Methods", &SetMember<&Awkward::guard>},
        {L"LinksRaise", L"Links object (Outlook): deprecated", &SetMember<&Awkward::linksRaise>},
        {L"OfflineStore", L"NameSpace.Offline property (Outlook); What is MAPI_E_RECONNECTED?",
         &SetMember<&Awkward::offlineStore>},
        {L"AppointmentReminders", L"Set or remove reminders (Outlook): default reminders",
         &SetMember<&Awkward::appointmentReminders>},
        {L"TaskReminders", L"Set or remove reminders (Outlook): set reminders on tasks with due dates",
         &SetMember<&Awkward::taskReminders>},
        {L"SeriesHaveExceptions", L"Exceptions object, RecurrencePattern.Exceptions property (Outlook)",
         &SetMember<&Awkward::seriesHaveExceptions>},
        {L"Twins",
         L"Store.DisplayName property (Outlook): need not be unique; Working with EntryIDs and StoreIDs",
         &SetMember<&Awkward::twins>},
        {L"NoTable", L"Folder.GetTable method (Outlook): version added Outlook 2007",
         &SetMember<&Awkward::noTable>},
        {L"TableReversed", L"Table.Sort method (Outlook): no order is promised before it",
         &SetMember<&Awkward::tableReversed>},
        {L"TableStale", kTable, &SetMember<&Awkward::tableStale>},
        {L"TableTextLength", kFactors, &SetMember<&Awkward::tableTextLength>},
        {L"TableTextUnit", kFactors, &SetMember<&Awkward::tableTextUnit>},
        {L"TableUtcMinutes", kFactors, &SetMember<&Awkward::tableUtcMinutes>},
        {L"TableArrayByRow",
         L"Table.GetArray method (Outlook): (column, row), which samples elsewhere contradict",
         &SetMember<&Awkward::tableArrayByRow>},
        {L"TableMissingRow", kTable, &SetMember<&Awkward::tableMissingRow>},
        {L"TableDuplicateRow", kTable, &SetMember<&Awkward::tableDuplicateRow>},
        {L"TableFailsAtRow", kTable, &SetMember<&Awkward::tableFailsAtRow>},
        {L"TableRefuses", L"Unsupported Properties in a Table Object or Table Filter",
         &SetMember<&Awkward::tableRefuses>},
    };
    return switches;
}

void SetSwitch(Awkward& awkward, const std::wstring& name, const automation::Value& value)
{
    sandbox::SetSwitch(AwkwardSwitches(), awkward, name, value);
}

bool IsGuarded(std::wstring_view interfaceName, std::wstring_view member)
{
    const auto found = std::ranges::find(kGuarded, interfaceName, &Guarded::interfaceName);
    const std::wstring word = L" " + std::wstring(member) + L" ";
    return found != std::end(kGuarded) && found->members.find(word) != std::wstring_view::npos;
}

} // namespace sandbox::outlook
