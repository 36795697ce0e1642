#include "links/Accounts.h"

#include "data/HostRow.h"
#include "data/Literals.h"
#include "links/AccountInfo.h"
#include "resources/Strings.h"
#include "state/Failures.h"

namespace links
{

using data::Host;
using data::QuotedText;

namespace
{

// F_ACCCURRIDX of a new account, by interface language.
constexpr long kChineseCurrency = 1;
constexpr long kOtherCurrency = 2;

// table: of the account or its information. A pending transaction is the host's own: the host then decides
// about the rows.
void DeleteOf(const std::wstring& key, const wchar_t* table, const Host& host)
{
    state::Trapped([&] {
        if (!host.InTransaction())
        {
            host.Delete(table, L"F_ACCID=" + QuotedText(key));
        }
    });
}

} // namespace

std::wstring CreateAccount(const Host& host, data::FieldCatalogue& catalogue, const std::wstring& companyName,
                           Rollback rollback)
{
    data::InsertRow account(catalogue);
    account.Add(L"F_ACCSNAME", companyName);
    account.Add(L"F_ACCCURRIDX", resources::IsChinese() ? kChineseCurrency : kOtherCurrency);
    std::wstring key = host.NewGuid();
    account.PutFirst(L"F_ACCID", QuotedText(key));
    const auto undo = [&](const wchar_t* table) {
        if (rollback == Rollback::ByDeletion)
        {
            DeleteOf(key, table, host);
        }
    };
    data::InsertOrUndo([&] { account.Insert(host, L"TBLACCOUNT"); }, [&] { undo(L"TBLACCOUNT"); });
    try
    {
        InsertAccountInfo(host, key, [&] { undo(L"TBLACCINFO"); });
    }
    catch (...)
    {
        undo(L"TBLACCOUNT");
        throw;
    }
    return key;
}

} // namespace links
