#include "contacts/ContactPreview.h"

#include "links/AccountLinks.h"

namespace contacts
{

namespace
{

using automation::Object;
using automation::Recordset;
using automation::TextOrEmpty;
using automation::Value;
using exchange::LinkedValue;
using exchange::RelationTable;

Value CompanyOfItem(const Object& item)
{
    return item.Get(L"CompanyName");
}

Value CompanyOfRow(const Recordset& rows, RelationTable& /*relations*/)
{
    return rows.ValueOf(L"ACC_SNAME");
}

Value BirthdayOfItem(const Object& item)
{
    return item.Get(L"Birthday");
}

Value BirthdayOfRow(const Recordset& rows, RelationTable& relations)
{
    return exchange::RelatedValue(rows, relations, L"Birthday");
}

// The company and the business address, which reach the host through the account.
std::vector<LinkedValue> LinksOfContact(const exchange::LinkSource& source)
{
    const bool isNew = source.Mode == data::kNewRecord;
    links::PresentContact present;
    if (!isNew)
    {
        present = {automation::TextOf(source.HostRows.ValueOf(L"F_CNTCTID")),
                   TextOrEmpty(source.HostRows.ValueOf(L"ACC_SNAME"))};
    }
    const auto now = [&](const wchar_t* property) {
        return isNew ? Value() : exchange::RelatedValue(source.HostRows, source.Relations, property);
    };
    const links::AccountPreview account =
        links::PreviewAccountLinks(data::Host(), source.Catalogue, source.Item, isNew ? nullptr : &present);
    std::vector<LinkedValue> values;
    if (account.Company)
    {
        values.push_back({L"CompanyName", present.Company, *account.Company, account.IsNewCompany});
    }
    for (const auto& [property, value] : account.Address)
    {
        values.push_back({property, now(property), value});
    }
    return values;
}

} // namespace

const exchange::KindPreview kContactPreview{
    .Group = {CompanyOfItem, CompanyOfRow},
    .Date = {BirthdayOfItem, BirthdayOfRow},
    .Behaviour = {},
    .LinksOf = LinksOfContact,
};

} // namespace contacts
