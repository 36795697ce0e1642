#include "contacts/ContactsToOutlook.h"

#include "automation/Dates.h"
#include "data/ApplyToOutlook.h"
#include "resources/Strings.h"

#include <algorithm>
#include <iterator>

namespace contacts
{

namespace
{

using automation::Object;
using automation::Value;

constexpr data::PassToOutlook kPass{
    .ItemType = data::kContactItem,
    .RelationStatement = L"Select * From SynRelation Where QuenlarTblName='TBLCONTACT'",
    .RelationOptions = {},
    .Write = SynSynContactToOlContact,
};

using Writer = void (*)(const Object& item, const wchar_t* property, const Value& value);

void PutAsIs(const Object& item, const wchar_t* property, const Value& value)
{
    item.Put(property, value);
}

// Outside the Chinese interface the host's and Outlook's first and last names are exchanged, deliberately.
void PutFirstName(const Object& item, const wchar_t* /*property*/, const Value& value)
{
    item.Put(resources::IsChinese() ? L"FirstName" : L"LastName", value);
}

void PutLastName(const Object& item, const wchar_t* /*property*/, const Value& value)
{
    item.Put(resources::IsChinese() ? L"LastName" : L"FirstName", value);
}

void PutInChinese(const Object& item, const wchar_t* property, const Value& value)
{
    if (resources::IsChinese())
    {
        item.Put(property, value);
    }
}

void PutInEnglish(const Object& item, const wchar_t* property, const Value& value)
{
    if (resources::IsEnglish())
    {
        item.Put(property, value);
    }
}

void PutDate(const Object& item, const wchar_t* property, const Value& value)
{
    item.Put(property, automation::IsEmptyOrNull(value) ? Value(automation::kOutlookNoDate) : value);
}

void PutCompany(const Object& item, const wchar_t* /*property*/, const Value& value)
{
    item.Put(L"CompanyName", value);
    item.Put(L"Companies", value);
}

struct MappingRow
{
    const wchar_t* OutlookName;
    Writer Write;
};

constexpr MappingRow kMapping[] = {
    {L"FirstName", PutFirstName},
    {L"LastName", PutLastName},
    {L"Suffix", PutInChinese},
    {L"Title", PutInEnglish},
    {L"Birthday", PutDate},
    {L"Anniversary", PutDate},
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

bool SynContactToOutlook(data::Run& run)
{
    return data::ApplyToOutlook(run, kPass);
}

void SynSynContactToOlContact(data::Run& run, long /*mode*/, const Object& item)
{
    for (const data::RelationRow& relation : run.Relations.Rows())
    {
        const Value stored = run.HostRows.ValueOf(relation.EnglishName);
        const auto row =
            std::find_if(std::begin(kMapping), std::end(kMapping), [&](const MappingRow& candidate) {
                return relation.OutlookName == candidate.OutlookName;
            });
        if (row != std::end(kMapping))
        {
            row->Write(item, row->OutlookName, automation::IsEmptyOrNull(stored) ? Value() : stored);
        }
    }
    item.Call(L"Save");
}

} // namespace contacts
