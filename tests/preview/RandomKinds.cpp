// The columns and properties that random records have, by kind.
#include "tests/preview/RandomSides.h"

namespace test_support
{

namespace
{

using enum RandomField::Sort;

constexpr RandomField kContactFields[] = {
    {L"F_NICKNAME", L"NickName"},
    {L"F_TITLE", L"Title"},
    {L"F_SUFFIX", L"Suffix"},
    {L"F_SPOUSE", L"Spouse"},
    {L"F_BIRTHDAY", L"Birthday", Day},
    {L"F_ANNIVERSARY", L"Anniversary", Day},
    {L"F_JOBTITLE", L"JobTitle"},
    {L"F_DEPARTMENT", L"Department"},
    {L"F_EMAIL", L"Email1Address"},
    {L"F_BUSINESSPHONE", L"BusinessTelephoneNumber"},
    {L"F_BUSINESSFAX", L"BusinessFaxNumber"},
    {L"F_MOBILEPHONE", L"MobileTelephoneNumber"},
    {L"F_HOMEPHONE", L"HomeTelephoneNumber"},
    {L"F_ASSISTANT", L"AssistantName"},
    {L"F_ASSISTANTPHONE", L"AssistantTelephoneNumber"},
    {L"F_HOMECOUNTRY", L"HomeAddressCountry"},
    {L"F_HOMEPROVINCE", L"HomeAddressState"},
    {L"F_HOMECITY", L"HomeAddressCity"},
    {L"F_HOMESTREET", L"HomeAddressStreet"},
    {L"F_HOMEPOSTALCODE", L"HomeAddressPostalCode"},
    {nullptr, L"BusinessAddressCity"},
    {nullptr, L"BusinessAddressStreet"},
};

constexpr RandomField kTaskFields[] = {
    {L"F_ACTPETIME", L"DueDate", Day},          {L"F_ACTPERCENT", L"PercentComplete", Percent},
    {L"F_ACTSTATUS", L"Status", Status},        {L"F_ACTCTIME", L"DateCompleted", Day},
    {L"F_ACTCOMPLETED", L"Complete", Flag},     {L"F_ACTPRIORITY", L"Importance", Priority},
    {L"F_ACTTOTALWORK", L"TotalWork", Minutes}, {L"F_ACTACTUALWORK", L"ActualWork", Minutes},
    {L"F_ACTREMIND", L"ReminderSet", Flag},
};

constexpr RandomField kCalendarFields[] = {
    {L"F_ACTREMIND", L"ReminderSet", Flag},
    {nullptr, L"AllDayEvent", Flag},
};

} // namespace

const RandomKind kRandomContacts{kContactKind, kContactFields};
const RandomKind kRandomTasks{kTaskKind, kTaskFields};
const RandomKind kRandomCalendar{kCalendarKind, kCalendarFields};

} // namespace test_support
