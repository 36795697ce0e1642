#include "links/AccountLinks.h"

#include "automation/Text.h"
#include "data/FieldFormat.h"
#include "data/Literals.h"
#include "data/Lookups.h"
#include "data/Permissions.h"
#include "links/AccountTables.h"
#include "state/Failures.h"

#include <algorithm>

namespace links
{

using automation::TextOrEmpty;
using automation::Trimmed;
using automation::Value;
using data::Host;
using data::HostRow;
using data::QuotedText;

namespace
{

// A company's account as the host knows it; empty keys where it has none, or the user may not make one.
struct Links
{
    std::wstring account;
    std::wstring address;
};

// The key of the account's new primary address, empty where the user may not add it.
std::wstring CreateAddress(AccountTables& tables, const std::wstring& account)
{
    return tables.May(data::kAddOperation) ? tables.AddAddress(account) : std::wstring();
}

// The key of the address, empty where the user may not change it.
std::wstring OverwriteAddress(AccountTables& tables, const std::wstring& key)
{
    if (!tables.May(data::kModifyOperation))
    {
        return {};
    }
    tables.OverwriteAddress(key);
    return key;
}

// Looks an account up by its company's name as the column holds it: cut as it was when the account was made.
std::wstring AccountFilter(data::FieldCatalogue& catalogue, const std::wstring& companyName)
{
    return L"F_ACCSNAME=" + QuotedText(data::TextAsHeld(catalogue, L"F_ACCSNAME", companyName));
}

Links LinksOfNewAccount(AccountTables& tables, const std::wstring& companyName)
{
    if (!tables.May(data::kAddOperation))
    {
        return {}; // and without an account there is nothing that an address could belong to
    }
    const std::wstring account = tables.AddAccount(companyName);
    return {account, CreateAddress(tables, account)};
}

Links LinksOfFoundAccount(AccountTables& tables, const automation::Recordset& accounts)
{
    const std::wstring account = automation::TextOf(accounts.ValueOf(L"F_ACCID"));
    const std::wstring address = TextOrEmpty(accounts.ValueOf(L"M_ADDR_ID"));
    return {account, address.empty() ? CreateAddress(tables, account) : OverwriteAddress(tables, address)};
}

void OpenAccounts(AccountTables& tables, const std::wstring& companyName, automation::Recordset& accounts)
{
    data::ThrowUnless(tables.TheHost().OpenRecordset(accounts, L"AccountMyAccount",
                                                     AccountFilter(tables.Catalogue(), companyName)) >= 0,
                      L"OpenRecordset");
}

Links LinksOfCompany(AccountTables& tables, const std::wstring& companyName)
{
    automation::Recordset accounts;
    const automation::RecordsetCloser closer(accounts);
    OpenAccounts(tables, companyName, accounts);
    return accounts.AtEnd() ? LinksOfNewAccount(tables, companyName) : LinksOfFoundAccount(tables, accounts);
}

// The account of the contact in the host; nothing when the host cannot say.
std::optional<std::wstring> PresentAccount(const std::wstring& contactKey)
{
    return state::Trapped(std::optional<std::wstring>(), [&] {
        return std::optional(
            TextOrEmpty(data::FindValue(L"TBLCONTACT", L"F_CNTCTID", contactKey, L"F_ACCID")));
    });
}

bool IsSameCompany(const std::wstring& one, const std::wstring& other)
{
    return automation::UpperCased(Trimmed(one)) == automation::UpperCased(Trimmed(other));
}

// Looks under the name that the host has, for the account that the contact has: another one may have the same
// name. No links where that account is not to be seen, so that the contact stays with it.
Links LinksOfPresentAccount(AccountTables& tables, const PresentContact& present)
{
    const auto account = PresentAccount(present.Key);
    if (!account)
    {
        return {};
    }
    automation::Recordset accounts;
    const automation::RecordsetCloser closer(accounts);
    OpenAccounts(tables, present.Company, accounts);
    while (!accounts.AtEnd() && TextOrEmpty(accounts.ValueOf(L"F_ACCID")) != *account)
    {
        accounts.MoveNext();
    }
    return accounts.AtEnd() ? Links() : LinksOfFoundAccount(tables, accounts);
}

// Whether the contact moves to another account; false when the host cannot say.
bool ChangesAccount(const std::wstring& contactKey, const std::wstring& account)
{
    return PresentAccount(contactKey).value_or(account) != account;
}

// The two columns of the contact's row: nothing for one that stays, the empty text for NULL.
struct LinkColumns
{
    std::optional<std::wstring> Account;
    std::optional<std::wstring> Address;
};

// If the user may not make a link, keep the existing contact's one. An address belongs to its account: a
// contact that moves to another account leaves the address behind, even if the user may not give it another
// one.
LinkColumns ColumnsOf(const Links& links, const PresentContact* present)
{
    const auto columnOf = [&](const std::wstring& key) {
        return key.empty() && present != nullptr ? std::nullopt : std::optional(key);
    };
    LinkColumns columns{columnOf(links.account), columnOf(links.address)};
    const bool isAccountOnly = !links.account.empty() && links.address.empty();
    if (present != nullptr && isAccountOnly && ChangesAccount(present->Key, links.account))
    {
        columns.Address = L"";
    }
    return columns;
}

// present: null for a new contact.
LinkColumns MakeLinks(AccountTables& tables, const PresentContact* present)
{
    const std::wstring companyName = Trimmed(TextOrEmpty(tables.Item().Get(L"CompanyName")));
    if (companyName.empty())
    {
        return {L"", L""};
    }
    const bool stays = present != nullptr && IsSameCompany(companyName, present->Company);
    return ColumnsOf(stays ? LinksOfPresentAccount(tables, *present) : LinksOfCompany(tables, companyName),
                     present);
}

// A key is written whole: cut to the size of its column it would name no row, and a driver may put braces
// around a GUID.
void PutLink(HostRow& contact, const wchar_t* column, const std::optional<std::wstring>& key)
{
    if (!key)
    {
        return;
    }
    if (key->empty())
    {
        contact.Add(column, Value::Null());
    }
    else
    {
        contact.AddLiteral(column, QuotedText(*key));
    }
}

const Value* FindColumn(const std::vector<data::HeldColumn>& columns, std::wstring_view name)
{
    const auto found = std::ranges::find(columns, name, &data::HeldColumn::Column);
    return found == columns.end() ? nullptr : &found->Value;
}

std::wstring NameOfAccount(const std::wstring& key)
{
    return TextOrEmpty(data::FindValue(L"TBLACCOUNT", L"F_ACCID", key, L"F_ACCSNAME"));
}

void AddAddress(bool hasNone, const std::vector<data::HeldColumn>& address, AccountPreview& preview)
{
    for (const AddressColumn& one : kAddressColumns)
    {
        const Value* const value = hasNone ? nullptr : FindColumn(address, one.column);
        preview.Address.push_back({one.property, value == nullptr ? Value::Null() : *value});
    }
}

} // namespace

void AddAccountLinks(const Host& host, const automation::ItemView& item, HostRow& contact,
                     const PresentContact* present)
{
    WrittenTables tables(host, contact.Catalogue(), item);
    const LinkColumns columns = MakeLinks(tables, present);
    PutLink(contact, L"F_ACCID", columns.Account);
    PutLink(contact, L"F_CNTADDRID", columns.Address);
}

AccountPreview PreviewAccountLinks(const Host& host, data::FieldCatalogue& catalogue,
                                   const automation::ItemView& item, const PresentContact* present)
{
    KeptTables tables(host, catalogue, item);
    const LinkColumns columns = MakeLinks(tables, present);
    AccountPreview preview;
    if (columns.Account)
    {
        preview.IsNewCompany = !tables.NewCompany.empty();
        preview.Company = preview.IsNewCompany       ? tables.NewCompany
                          : columns.Account->empty() ? L""
                                                     : NameOfAccount(*columns.Account);
    }
    if (columns.Address)
    {
        AddAddress(columns.Address->empty(), tables.Address, preview);
    }
    return preview;
}

} // namespace links
