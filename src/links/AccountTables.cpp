#include "links/AccountTables.h"

#include "data/FieldFormat.h"
#include "data/HostRow.h"
#include "data/Literals.h"
#include "data/Permissions.h"
#include "links/Accounts.h"

namespace links
{

using data::QuotedText;

namespace
{

constexpr wchar_t kNewKey[] = L"new"; // of a row that is kept

void AddAddressColumns(const automation::ItemView& item, data::HostRow& address)
{
    for (const AddressColumn& one : kAddressColumns)
    {
        address.Add(one.column, item.Get(one.property));
    }
    address.Add(L"F_ISPRIMARY", true);
}

} // namespace

bool WrittenTables::May(long operation)
{
    return data::CheckPermission(data::kAccountRecord, data::kUsualScope, operation);
}

std::wstring WrittenTables::AddAccount(const std::wstring& companyName)
{
    return CreateAccount(TheHost(), Catalogue(), companyName, Rollback::ByTransaction);
}

std::wstring WrittenTables::AddAddress(const std::wstring& account)
{
    data::InsertRow address(Catalogue());
    AddAddressColumns(Item(), address);
    std::wstring key = TheHost().NewGuid();
    address.PutFirst(L"F_ADDRID,F_ACCID", QuotedText(key) + L"," + QuotedText(account));
    address.Insert(TheHost(), L"TBLADDRESS");
    return key;
}

void WrittenTables::OverwriteAddress(const std::wstring& key)
{
    data::UpdateRow address(Catalogue());
    AddAddressColumns(Item(), address);
    address.Update(TheHost(), L"TBLADDRESS", L"F_ADDRID", key);
}

bool KeptTables::May(long operation)
{
    const bool may = data::HasPermission(data::kAccountRecord, data::kUsualScope, operation);
    if (!may)
    {
        data::TellMissingRight(data::kAccountRecord, operation);
    }
    return may;
}

std::wstring KeptTables::AddAccount(const std::wstring& companyName)
{
    NewCompany = data::TextAsHeld(Catalogue(), L"F_ACCSNAME", companyName);
    return kNewKey;
}

std::wstring KeptTables::AddAddress(const std::wstring& /*account*/)
{
    KeepAddress();
    return kNewKey;
}

void KeptTables::OverwriteAddress(const std::wstring& /*key*/)
{
    KeepAddress();
}

void KeptTables::KeepAddress()
{
    data::KeptRow address(Catalogue());
    AddAddressColumns(Item(), address);
    Address = address.Columns();
}

} // namespace links
