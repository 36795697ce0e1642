#include "tasks/TaskLinks.h"

#include "automation/Error.h"
#include "contacts/Accounts.h"
#include "data/FieldFormat.h"
#include "data/Lookups.h"
#include "data/Permissions.h"
#include "data/SqlFragments.h"
#include "state/Failures.h"
#include "tasks/ContactLink.h"
#include "ui/ShowMessageBox.h"

#include <optional>

namespace tasks
{

using automation::Object;
using automation::TextOrEmpty;

namespace
{

constexpr wchar_t kContactColumn[] = L"F_CNTCTID";
constexpr wchar_t kAccountColumn[] = L"F_ACCID";
constexpr wchar_t kNull[] = L"NULL";

// One literal whatever the key holds: the lookup's statement carries a text from Outlook as it is, so that
// what it finds need not be a key of the host's making.
std::wstring LiteralOfKey(const std::wstring& key)
{
    return key.empty() ? kNull : data::QuotedText(key);
}

std::wstring LiteralOfContact(const Object& item)
{
    if (!data::HasPermission(data::kContactRecord, data::kUsualScope, data::kModifyOperation) ||
        IsOfOutlook8(item))
    {
        return kNull;
    }
    const std::wstring names = TextOrEmpty(item.Get(L"ContactNames"));
    return names.empty() ? kNull
                         : LiteralOfKey(TextOrEmpty(data::FindValue(L"TBLCONTACT", L"F_SURNAME+F_GIVENNAME",
                                                                    names, kContactColumn)));
}

// An account stands under its company's name as its column holds it: a longer name was cut when the account
// was made, and is found again by what is left of it.
std::wstring KeyOfAccount(data::FieldCatalogue& catalogue, const std::wstring& companies)
{
    const std::wstring name = data::TextAsHeld(catalogue, L"F_ACCSNAME", companies);
    const std::wstring key = TextOrEmpty(data::FindValue(L"TBLACCOUNT", L"F_ACCSNAME", name, kAccountColumn));
    return key.empty() ? contacts::CreateAccount(data::Host(), catalogue, companies) : key;
}

bool MayChangeAccounts(long operation)
{
    return data::HasPermission(data::kAccountRecord, data::kUsualScope, operation);
}

// Nothing when the account is to stay as the host has it.
std::optional<std::wstring> LiteralOfAccount(data::FieldCatalogue& catalogue, const Object& item)
{
    const std::wstring companies = TextOrEmpty(item.Get(L"Companies"));
    if (companies.empty() && MayChangeAccounts(data::kModifyOperation))
    {
        return kNull;
    }
    if (MayChangeAccounts(data::kAddOperation))
    {
        return LiteralOfKey(KeyOfAccount(catalogue, companies));
    }
    return std::nullopt;
}

void AppendInsert(std::wstring& fields, std::wstring& values, const wchar_t* column,
                  const std::wstring& literal)
{
    data::AppendEntry(fields, column);
    data::AppendEntry(values, literal);
}

void AppendUpdate(std::wstring& setList, const wchar_t* column, const std::wstring& literal)
{
    data::AppendEntry(setList, std::wstring(column) + L"=" + literal);
}

// Runs the body of a builder; an error is shown under the builder's name, and is its failure.
template<typename Build>
long Reported(const wchar_t* builder, Build&& build)
{
    return state::Trapped(-1L, [&] {
        try
        {
            build();
            return 0L;
        }
        catch (const automation::Error& error)
        {
            ui::ShowMessageBox(std::to_wstring(error.Code()) + L":" + error.Description(), MB_ICONERROR,
                               builder);
            throw;
        }
    });
}

} // namespace

long ChangeNewTaskContact(const Object& item, std::wstring& fields, std::wstring& values)
{
    return Reported(L"ChangeNewTaskContact",
                    [&] { AppendInsert(fields, values, kContactColumn, LiteralOfContact(item)); });
}

long ChangeEditTaskContact(const Object& item, std::wstring& setList)
{
    return Reported(L"ChangeEditTaskContact",
                    [&] { AppendUpdate(setList, kContactColumn, LiteralOfContact(item)); });
}

long ChangeAddTaskAccount(data::FieldCatalogue& catalogue, const Object& item, std::wstring& fields,
                          std::wstring& values)
{
    return Reported(L"ChangeAddTaskAccount", [&] {
        if (const auto literal = LiteralOfAccount(catalogue, item))
        {
            AppendInsert(fields, values, kAccountColumn, *literal);
        }
    });
}

long ChangeEditTaskAccount(data::FieldCatalogue& catalogue, const Object& item, std::wstring& setList)
{
    return Reported(L"ChangeEditTaskAccount", [&] {
        if (const auto literal = LiteralOfAccount(catalogue, item))
        {
            AppendUpdate(setList, kAccountColumn, *literal);
        }
    });
}

} // namespace tasks
