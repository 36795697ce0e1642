// The tables that the link of a contact changes besides the contact's own: the company's account and that
// account's address. One way writes them, another one keeps the changes for a preview.
#pragma once

#include "automation/ItemView.h"
#include "data/Host.h"
#include "data/KeptRow.h"

#include <string>
#include <vector>

namespace links
{

// A column of the account's address and the item's property that it comes from.
struct AddressColumn
{
    const wchar_t* column;
    const wchar_t* property;
};

inline constexpr AddressColumn kAddressColumns[] = {
    {L"F_ADDRCOUNTRY", L"BusinessAddressCountry"},   {L"F_ADDRPROVINCE", L"BusinessAddressState"},
    {L"F_ADDRCITY", L"BusinessAddressCity"},         {L"F_ADDRDETAIL", L"BusinessAddressStreet"},
    {L"F_POSTALCODE", L"BusinessAddressPostalCode"},
};

// Throws automation::Error when the host refuses.
class AccountTables
{
  public:
    AccountTables(const data::Host& host, data::FieldCatalogue& catalogue, const automation::ItemView& item)
        : mHost(host), mCatalogue(catalogue), mItem(item)
    {
    }
    AccountTables(const AccountTables&) = delete;
    AccountTables& operator=(const AccountTables&) = delete;
    virtual ~AccountTables() = default;

    const data::Host& TheHost() const noexcept { return mHost; }
    data::FieldCatalogue& Catalogue() const noexcept { return mCatalogue; }
    const automation::ItemView& Item() const noexcept { return mItem; }

    // The user's right.
    virtual bool May(long operation) = 0;
    // Give the keys of the new rows.
    virtual std::wstring AddAccount(const std::wstring& companyName) = 0;
    virtual std::wstring AddAddress(const std::wstring& account) = 0;
    virtual void OverwriteAddress(const std::wstring& key) = 0;

  private:
    const data::Host& mHost;
    data::FieldCatalogue& mCatalogue;
    const automation::ItemView& mItem;
};

class WrittenTables : public AccountTables
{
  public:
    using AccountTables::AccountTables;

    bool May(long operation) override;
    std::wstring AddAccount(const std::wstring& companyName) override;
    std::wstring AddAddress(const std::wstring& account) override;
    void OverwriteAddress(const std::wstring& key) override;
};

// For a preview: keeps what would be written.
class KeptTables : public AccountTables
{
  public:
    using AccountTables::AccountTables;

    bool May(long operation) override;
    std::wstring AddAccount(const std::wstring& companyName) override;
    std::wstring AddAddress(const std::wstring& account) override;
    void OverwriteAddress(const std::wstring& key) override;

    std::wstring NewCompany;
    std::vector<data::HeldColumn> Address; // empty where none is written

  private:
    void KeepAddress();
};

} // namespace links
