#include "links/Accounts.h"

#include "automation/Text.h"
#include "data/FieldFormat.h"
#include "data/Literals.h"
#include "data/Lookups.h"
#include "data/Permissions.h"
#include "links/AccountInfo.h"
#include "resources/Strings.h"
#include "state/Failures.h"

#include <optional>

namespace links
{

using automation::Object;
using automation::TextOrEmpty;
using automation::Trimmed;
using automation::Value;
using data::Host;
using data::HostRow;
using data::InsertRow;
using data::QuotedText;

namespace
{

// F_ACCCURRIDX of a new account, by interface language.
constexpr long kChineseCurrency = 1;
constexpr long kOtherCurrency = 2;

struct AddressColumn
{
    const wchar_t* column;
    const wchar_t* property;
};

constexpr AddressColumn kAddressColumns[] = {
    {L"F_ADDRCOUNTRY", L"BusinessAddressCountry"},   {L"F_ADDRPROVINCE", L"BusinessAddressState"},
    {L"F_ADDRCITY", L"BusinessAddressCity"},         {L"F_ADDRDETAIL", L"BusinessAddressStreet"},
    {L"F_POSTALCODE", L"BusinessAddressPostalCode"},
};

// A company's account as the host knows it; empty keys where it has none, or the user may not make one.
struct Links
{
    std::wstring account;
    std::wstring address;
};

bool MayChangeAccounts(long operation)
{
    return data::CheckPermission(data::kAccountRecord, data::kUsualScope, operation);
}

void AddAddressColumns(const automation::ItemView& item, HostRow& address)
{
    for (const AddressColumn& one : kAddressColumns)
    {
        address.Add(one.column, item.Get(one.property));
    }
    address.Add(L"F_ISPRIMARY", true);
}

// The key of the account's new primary address, empty where the user may not add it.
std::wstring CreateAddress(const Host& host, data::FieldCatalogue& catalogue,
                           const automation::ItemView& item, const std::wstring& account)
{
    if (!MayChangeAccounts(data::kAddOperation))
    {
        return {};
    }
    InsertRow address(catalogue);
    AddAddressColumns(item, address);
    std::wstring key = host.NewGuid();
    address.PutFirst(L"F_ADDRID,F_ACCID", QuotedText(key) + L"," + QuotedText(account));
    address.Insert(host, L"TBLADDRESS");
    return key;
}

// The key of the address, empty where the user may not change it.
std::wstring OverwriteAddress(const Host& host, data::FieldCatalogue& catalogue,
                              const automation::ItemView& item, const std::wstring& key)
{
    if (!MayChangeAccounts(data::kModifyOperation))
    {
        return {};
    }
    data::UpdateRow address(catalogue);
    AddAddressColumns(item, address);
    address.Update(host, L"TBLADDRESS", L"F_ADDRID", key);
    return key;
}

// Looks an account up by its company's name as the column holds it: cut as it was when the account was made.
std::wstring AccountFilter(data::FieldCatalogue& catalogue, const std::wstring& companyName)
{
    return L"F_ACCSNAME=" + QuotedText(data::TextAsHeld(catalogue, L"F_ACCSNAME", companyName));
}

Links LinksOfNewAccount(const Host& host, data::FieldCatalogue& catalogue, const automation::ItemView& item,
                        const std::wstring& companyName)
{
    if (!MayChangeAccounts(data::kAddOperation))
    {
        return {}; // and without an account there is nothing that an address could belong to
    }
    const std::wstring account = CreateAccount(host, catalogue, companyName, Rollback::ByTransaction);
    return {account, CreateAddress(host, catalogue, item, account)};
}

Links LinksOfFoundAccount(const Host& host, data::FieldCatalogue& catalogue, const automation::ItemView& item,
                          const automation::Recordset& accounts)
{
    const std::wstring account = automation::TextOf(accounts.ValueOf(L"F_ACCID"));
    const std::wstring address = TextOrEmpty(accounts.ValueOf(L"M_ADDR_ID"));
    return {account, address.empty() ? CreateAddress(host, catalogue, item, account)
                                     : OverwriteAddress(host, catalogue, item, address)};
}

void OpenAccounts(const Host& host, data::FieldCatalogue& catalogue, const std::wstring& companyName,
                  automation::Recordset& accounts)
{
    data::ThrowUnless(
        host.OpenRecordset(accounts, L"AccountMyAccount", AccountFilter(catalogue, companyName)) >= 0,
        L"OpenRecordset");
}

Links LinksOfCompany(const Host& host, data::FieldCatalogue& catalogue, const automation::ItemView& item,
                     const std::wstring& companyName)
{
    automation::Recordset accounts;
    const automation::RecordsetCloser closer(accounts);
    OpenAccounts(host, catalogue, companyName, accounts);
    return accounts.AtEnd() ? LinksOfNewAccount(host, catalogue, item, companyName)
                            : LinksOfFoundAccount(host, catalogue, item, accounts);
}

// A pending transaction is the host's own: the host then decides about the account.
void DeleteAccount(const Host& host, const std::wstring& key)
{
    state::Trapped([&] {
        if (!host.InTransaction())
        {
            host.Delete(L"TBLACCOUNT", L"F_ACCID=" + QuotedText(key));
        }
    });
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
Links LinksOfPresentAccount(const Host& host, data::FieldCatalogue& catalogue,
                            const automation::ItemView& item, const PresentContact& present)
{
    const auto account = PresentAccount(present.Key);
    if (!account)
    {
        return {};
    }
    automation::Recordset accounts;
    const automation::RecordsetCloser closer(accounts);
    OpenAccounts(host, catalogue, present.Company, accounts);
    while (!accounts.AtEnd() && TextOrEmpty(accounts.ValueOf(L"F_ACCID")) != *account)
    {
        accounts.MoveNext();
    }
    return accounts.AtEnd() ? Links() : LinksOfFoundAccount(host, catalogue, item, accounts);
}

// If the user may not make the link, keep the existing contact's one.
void AddLink(HostRow& contact, bool isNew, const wchar_t* column, const std::wstring& key)
{
    if (isNew || !key.empty())
    {
        contact.Add(column, key);
    }
}

// Whether the contact moves to another account; false when the host cannot say.
bool ChangesAccount(const std::wstring& contactKey, const std::wstring& account)
{
    return PresentAccount(contactKey).value_or(account) != account;
}

// An address belongs to its account: a contact that moves to another account leaves the address behind, even
// if the user may not give it another one.
void AddLinks(HostRow& contact, const Links& links, const PresentContact* present)
{
    AddLink(contact, present == nullptr, L"F_ACCID", links.account);
    AddLink(contact, present == nullptr, L"F_CNTADDRID", links.address);
    const bool isAccountOnly = !links.account.empty() && links.address.empty();
    if (present != nullptr && isAccountOnly && ChangesAccount(present->Key, links.account))
    {
        contact.Add(L"F_CNTADDRID", Value::Null());
    }
}

} // namespace

std::wstring CreateAccount(const Host& host, data::FieldCatalogue& catalogue, const std::wstring& companyName,
                           Rollback rollback)
{
    InsertRow account(catalogue);
    account.Add(L"F_ACCSNAME", companyName);
    account.Add(L"F_ACCCURRIDX", resources::IsChinese() ? kChineseCurrency : kOtherCurrency);
    std::wstring key = host.NewGuid();
    account.PutFirst(L"F_ACCID", QuotedText(key));
    account.Insert(host, L"TBLACCOUNT");
    try
    {
        links::InsertAccountInfo(host, key);
    }
    catch (...)
    {
        if (rollback == Rollback::ByDeletion)
        {
            DeleteAccount(host, key);
        }
        throw;
    }
    return key;
}

void AddAccountLinks(const Host& host, const automation::ItemView& item, HostRow& contact,
                     const PresentContact* present)
{
    const std::wstring companyName = Trimmed(TextOrEmpty(item.Get(L"CompanyName")));
    if (companyName.empty())
    {
        contact.Add(L"F_ACCID", Value::Null());
        contact.Add(L"F_CNTADDRID", Value::Null());
        return;
    }
    const bool stays = present != nullptr && IsSameCompany(companyName, present->Company);
    AddLinks(contact,
             stays ? LinksOfPresentAccount(host, contact.Catalogue(), item, *present)
                   : LinksOfCompany(host, contact.Catalogue(), item, companyName),
             present);
}

} // namespace links
