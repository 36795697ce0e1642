#include "contacts/Contacts.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "automation/Text.h"
#include "contacts/ContactPreview.h"
#include "data/Literals.h"
#include "data/Permissions.h"
#include "exchange/MatchKeys.h"
#include "links/AccountLinks.h"
#include "resources/Strings.h"
#include "state/Remarks.h"
#include "ui/ShowMessageBox.h"

namespace contacts
{

namespace
{

using automation::Object;
using automation::Recordset;
using automation::Value;
using data::Host;
using data::QuotedText;
using exchange::HostValue;
using exchange::PutAsIs;
using exchange::ReadAsIs;
using exchange::SourceProperty;
using exchange::TargetProperty;

// Match keys

std::wstring ContactNameOfItem(const automation::ItemView& item)
{
    // The contract joins the names without a separator: Li Ming and Lim Ing are one name.
    const std::wstring lastName = exchange::Comparable(item.Get(L"LastName"));
    return lastName + exchange::Comparable(item.Get(L"FirstName"));
}

std::wstring ContactNameOfRow(const Recordset& rows)
{
    const Value surname = rows.ValueOf(L"F_SURNAME");
    const Value givenName = rows.ValueOf(L"F_GIVENNAME");
    if (automation::IsEmptyOrNull(surname) || automation::IsEmptyOrNull(givenName))
    {
        return {};
    }
    return exchange::Comparable(surname) + exchange::Comparable(givenName);
}

std::wstring CompanyOfContact(const automation::ItemView& item)
{
    return exchange::Comparable(item.Get(L"CompanyName"));
}

constexpr const wchar_t* kKeyColumns[] = {L"LastName", L"FirstName", L"CompanyName"};

std::wstring FullName(const Value& last, const Value& first)
{
    const std::wstring surname = automation::TextOrEmpty(last);
    const std::wstring givenName = automation::TextOrEmpty(first);
    return resources::IsChinese() ? surname + givenName : automation::Trimmed(givenName + L" " + surname);
}

std::wstring NameOfItem(const Object& item)
{
    return FullName(item.Get(L"LastName"), item.Get(L"FirstName"));
}

std::wstring NameOfRow(const Recordset& rows)
{
    return FullName(rows.ValueOf(L"F_SURNAME"), rows.ValueOf(L"F_GIVENNAME"));
}

// Towards Outlook

// The host contract exchanges first and last names outside the Chinese interface, in both directions.
const wchar_t* ExchangedName(std::wstring_view name)
{
    const bool isLastName = name == L"LastName";
    return isLastName == resources::IsChinese() ? L"LastName" : L"FirstName";
}

void PutName(const TargetProperty& property)
{
    property.Item.Put(ExchangedName(property.Name), property.HostValue);
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
    {L"FirstName", PutName},
    {L"LastName", PutName},
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

// From Outlook

HostValue ReadName(const SourceProperty& property)
{
    return property.Item.IsEmpty(property.Name) ? HostValue()
                                                : property.Item.ValueOf(ExchangedName(property.Name));
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
constexpr exchange::PropertyFromOutlook kItemToContact[] = {
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

// False when the contact lacks a name, and so is not written.
bool AddColumns(exchange::Run& run, const automation::ItemView& item, data::HostRow& contact)
{
    exchange::ItemProperties properties(item);
    return exchange::AddRelatedColumns(run.Relations, kItemToContact, exchange::Unmapped::LeftOut, properties,
                                       contact);
}

void Insert(exchange::Run& run, const automation::ItemView& item)
{
    data::InsertRow contact(run.Catalogue);
    if (AddColumns(run, item, contact))
    {
        const Host host;
        data::Transaction transaction(host);
        links::AddAccountLinks(host, item, contact);
        const std::wstring key = QuotedText(host.NewGuid());
        contact.PutFirst(L"F_CNTCTID,F_CREATORID", key + L"," + QuotedText(host.UserId()));
        contact.Insert(host, L"TBLCONTACT");
        transaction.Commit();
    }
}

void Update(exchange::Run& run, const automation::ItemView& item)
{
    data::UpdateRow contact(run.Catalogue);
    if (AddColumns(run, item, contact))
    {
        const Host host;
        data::Transaction transaction(host);
        const links::PresentContact present{automation::TextOf(run.HostRows.ValueOf(L"F_CNTCTID")),
                                            automation::TextOrEmpty(run.HostRows.ValueOf(L"ACC_SNAME"))};
        links::AddAccountLinks(host, item, contact, &present);
        if (!contact.SetList().empty())
        {
            contact.Update(host, L"TBLCONTACT", L"F_CNTCTID", present.Key);
        }
        transaction.Commit();
    }
}

void ShowInvalidMode()
{
    ui::ShowMessageBox(L"Error: Invalid Operation", MB_ICONERROR, L"SynOlContactToSynContact");
}

} // namespace

void SynSynContactToOlContact(exchange::Run& run, data::RecordMode /*mode*/, const Object& item)
{
    exchange::WriteRelatedProperties(run, kContactToItem, item, exchange::Saves::OnceAtTheEnd);
}

long SynOlContactToSynContact(exchange::Run& run, data::RecordMode mode, const automation::ItemView& item)
{
    return exchange::WriteRecord({Insert, Update, ShowInvalidMode}, run, mode, item);
}

constexpr exchange::PassToOutlook SynContactToOutlook{
    .ItemType = exchange::kContactName.OutlookItemType,
    .RelationStatement = L"Select * From SynRelation Where QuenlarTblName='TBLCONTACT'",
    .RelationOptions = {},
    .Mapping = kContactToItem,
    .Write = SynSynContactToOlContact,
};

constexpr exchange::PassFromOutlook SynContactFromOutlook{
    .RelationStatement = L"Select * from SynRelation where QuenlarTblName='TBLCONTACT'",
    .RelationOptions = {automation::kCursorKeyset, automation::kLockReadOnly, automation::kCommandText},
    .Mapping = kItemToContact,
    .Write = SynOlContactToSynContact,
};

constexpr exchange::Kind kContacts{
    .Name = exchange::kContactName,
    .RecordSource = L"ContactMyContact",
    .KeyColumn = L"F_CNTCTID",
    .SourceFilter = nullptr,
    .SucceedsWithoutHostRows = false,
    .AppliesFromOutlookFirst = false,
    .CollectToOutlookTextId = IDS_RUN_COLLECTING,
    .PermissionKind = data::kContactRecord,
    .Match = {ContactNameOfItem,
              CompanyOfContact,
              ContactNameOfRow,
              exchange::AccountOfRow,
              {L"IPM.Contact", kKeyColumns, true}},
    .NameOfItem = NameOfItem,
    .NameOfRow = NameOfRow,
    .FiltersOf = exchange::KeepAll,
    .ToOutlook = SynContactToOutlook,
    .FromOutlook = SynContactFromOutlook,
    .Preview = kContactPreview,
};

} // namespace contacts
