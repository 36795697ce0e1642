#include "contacts/ContactsToOutlook.h"
#include "automation/OutlookConstants.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "exchange/ApplyToOutlook.h"
#include "exchange/MappingToOutlook.h"
#include "resources/Strings.h"

namespace contacts
{

namespace
{

using exchange::PutAsIs;
using exchange::TargetProperty;

// Outside the Chinese interface the host's and Outlook's first and last names are exchanged, deliberately.
void PutFirstName(const TargetProperty& property)
{
    property.Item.Put(resources::IsChinese() ? L"FirstName" : L"LastName", property.HostValue);
}

void PutLastName(const TargetProperty& property)
{
    property.Item.Put(resources::IsChinese() ? L"LastName" : L"FirstName", property.HostValue);
}

void PutInChinese(const TargetProperty& property)
{
    if (resources::IsChinese())
    {
        PutAsIs(property);
    }
}

void PutInEnglish(const TargetProperty& property)
{
    if (resources::IsEnglish())
    {
        PutAsIs(property);
    }
}

void PutCompany(const TargetProperty& property)
{
    property.Item.Put(L"CompanyName", property.HostValue);
    property.Item.Put(L"Companies", property.HostValue);
}

// Outlook makes a calendar entry of the date whenever it is written.
void PutDayWhenOther(const TargetProperty& property)
{
    const automation::Date day =
        automation::OutlookDate(property.HostValue).value_or(automation::kOutlookNoDate);
    const auto present = automation::ReadableDate(property.Item.Get(property.Name));
    if (!present || !(automation::DayOf(*present) == automation::DayOf(day)))
    {
        property.Put(day);
    }
}

constexpr exchange::PropertyToOutlook kContactToItem[] = {
    {L"FirstName", PutFirstName},
    {L"LastName", PutLastName},
    {L"Suffix", PutInChinese},
    {L"Title", PutInEnglish},
    {L"Birthday", PutDayWhenOther},
    {L"Anniversary", PutDayWhenOther},
    {L"CompanyName", PutCompany},
    {L"NickName", PutAsIs},
    {L"Spouse", PutAsIs},
    {L"HomeTelephoneNumber", PutAsIs},
    {L"MobileTelephoneNumber", PutAsIs},
    {L"HomeAddressCity", PutAsIs},
    {L"HomeAddressCountry", PutAsIs},
    {L"HomeAddressState", PutAsIs},
    {L"HomeAddressStreet", PutAsIs},
    {L"HomeAddressPostalCode", PutAsIs},
    {L"JobTitle", PutAsIs},
    {L"Department", PutAsIs},
    {L"Email1Address", PutAsIs},
    {L"AssistantName", PutAsIs},
    {L"AssistantTelephoneNumber", PutAsIs},
    {L"BusinessTelephoneNumber", PutAsIs},
    {L"BusinessFaxNumber", PutAsIs},
    {L"BusinessAddressCity", PutAsIs},
    {L"BusinessAddressCountry", PutAsIs},
    {L"BusinessAddressPostalCode", PutAsIs},
    {L"BusinessAddressState", PutAsIs},
    {L"BusinessAddressStreet", PutAsIs},
};

} // namespace

const exchange::PassToOutlook SynContactToOutlook{
    .ItemType = automation::kContactItem,
    .RelationStatement = L"Select * From SynRelation Where QuenlarTblName='TBLCONTACT'",
    .RelationOptions = {},
    .Write = SynSynContactToOlContact,
};

void SynSynContactToOlContact(exchange::Run& run, long /*mode*/, const automation::Object& item)
{
    exchange::WriteRelatedProperties(run, kContactToItem, item, exchange::Saves::OnceAtTheEnd);
}

} // namespace contacts
