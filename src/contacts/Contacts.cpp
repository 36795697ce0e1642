#include "contacts/Contacts.h"

#include "contacts/ContactsFromOutlook.h"
#include "contacts/ContactsToOutlook.h"
#include "data/Permissions.h"
#include "exchange/MatchKeys.h"

namespace contacts
{

namespace
{

using automation::Object;
using automation::Recordset;
using automation::Value;

std::wstring ContactNameOfItem(const Object& item)
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

std::wstring CompanyOfContact(const Object& item)
{
    return exchange::Comparable(item.Get(L"CompanyName"));
}

} // namespace

const exchange::Kind kContacts{
    .Name = exchange::kContactName,
    .RecordSource = L"ContactMyContact",
    .KeyColumn = L"F_CNTCTID",
    .SourceFilter = nullptr,
    .SucceedsWithoutHostRows = false,
    .AppliesFromOutlookFirst = false,
    .CollectToOutlookTextId = IDS_RUN_COLLECTING,
    .PermissionKind = data::kContactRecord,
    .Match = {ContactNameOfItem, CompanyOfContact, ContactNameOfRow, exchange::AccountOfRow},
    .FiltersOf = exchange::KeepAll,
    .ToOutlook = SynContactToOutlook,
    .FromOutlook = SynContactFromOutlook,
};

} // namespace contacts
