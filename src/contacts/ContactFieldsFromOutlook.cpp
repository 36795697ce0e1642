#include "contacts/ContactFieldsFromOutlook.h"

#include "exchange/MappingFromOutlook.h"
#include "resources/Strings.h"

namespace contacts
{

using automation::Value;

namespace
{

using exchange::HostValue;
using exchange::ReadAsIs;
using exchange::SourceProperty;

// Outside the Chinese interface the host keeps the two names the other way round; contacts to Outlook make
// the same exchange.
HostValue ReadName(const SourceProperty& property)
{
    if (property.Item.IsEmpty(property.Name))
    {
        return std::nullopt;
    }
    const wchar_t* const exchanged = property.Name == L"LastName" ? L"FirstName" : L"LastName";
    return property.Item.ValueOf(resources::IsChinese() ? property.Name : exchanged);
}

HostValue ReadWhenFilled(bool inThisLanguage, const SourceProperty& property)
{
    return inThisLanguage && !property.Item.IsEmpty(property.Name) ? property.Item.ValueOf(property.Name)
                                                                   : Value(exchange::kNoColumn);
}

HostValue ReadInChineseWhenFilled(const SourceProperty& property)
{
    return ReadWhenFilled(resources::IsChinese(), property);
}

HostValue ReadInEnglishWhenFilled(const SourceProperty& property)
{
    return ReadWhenFilled(resources::IsEnglish(), property);
}

HostValue ReadDate(const SourceProperty& property)
{
    return property.Item.DateOrNull(property.Name);
}

// Company and business address are not here: they reach the host through the account and address links.
constexpr exchange::PropertyFromOutlook kItemToContactColumns[] = {
    {L"LastName", ReadName},
    {L"FirstName", ReadName},
    {L"Suffix", ReadInChineseWhenFilled},
    {L"Title", ReadInEnglishWhenFilled},
    {L"Birthday", ReadDate},
    {L"Anniversary", ReadDate},
    {L"NickName", ReadAsIs},
    {L"Spouse", ReadAsIs},
    {L"HomeAddressCountry", ReadAsIs},
    {L"HomeAddressState", ReadAsIs},
    {L"HomeAddressCity", ReadAsIs},
    {L"HomeAddressStreet", ReadAsIs},
    {L"HomeAddressPostalCode", ReadAsIs},
    {L"JobTitle", ReadAsIs},
    {L"Department", ReadAsIs},
    {L"AssistantName", ReadAsIs},
    {L"BusinessTelephoneNumber", ReadAsIs},
    {L"BusinessFaxNumber", ReadAsIs},
    {L"MobileTelephoneNumber", ReadAsIs},
    {L"HomeTelephoneNumber", ReadAsIs},
    {L"AssistantTelephoneNumber", ReadAsIs},
    {L"Email1Address", ReadAsIs},
};

} // namespace

bool AddContactColumns(exchange::RelationTable& relations, const automation::Object& item,
                       data::RowColumns& contact)
{
    exchange::ItemProperties properties(item);
    return exchange::AddRelatedColumns(relations, kItemToContactColumns, exchange::kNoColumn, properties,
                                       contact);
}

} // namespace contacts
