#include "links/TaskLinks.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "data/FieldFormat.h"
#include "data/Literals.h"
#include "data/Lookups.h"
#include "data/Permissions.h"
#include "data/Remark.h"
#include "data/SqlFragments.h"
#include "links/ContactLink.h"
#include "state/Failures.h"
#include "ui/ShowMessageBox.h"

#include <optional>

namespace links
{

using automation::Object;
using automation::TextOrEmpty;

namespace
{

constexpr wchar_t kContactColumn[] = L"F_CNTCTID";
constexpr wchar_t kAccountColumn[] = L"F_ACCID";
constexpr wchar_t kNull[] = L"NULL";

// The value that a builder appends; nothing when the column stays as the host has it.
using Link = std::optional<std::wstring>;

// The lookup has failed, and the user has been shown why.
struct FailedLookup : automation::Error
{
    using Error::Error;
};

// As scripts number errors: those of a range reserved for that without the range.
long NumberOf(const automation::Error& error)
{
    const HRESULT code = error.Code();
    return HRESULT_FACILITY(code) == FACILITY_CONTROL && FAILED(code) ? HRESULT_CODE(code) : code;
}

std::wstring FindKey(const wchar_t* builder, const wchar_t* table, const wchar_t* keyColumn,
                     const std::wstring& name, const wchar_t* resultColumn)
{
    try
    {
        return TextOrEmpty(data::FindValue(table, keyColumn, name, resultColumn));
    }
    catch (const automation::Error& error)
    {
        ui::ShowMessageBox(std::to_wstring(NumberOf(error)) + L":" + error.Description(), MB_ICONERROR,
                           builder);
        throw FailedLookup(error.Code(), error.Member(), error.Description());
    }
}

std::wstring LiteralOfKey(const std::wstring& key)
{
    return key.empty() ? kNull : data::QuotedText(key);
}

// Nothing where the object model guard refuses them.
std::optional<std::wstring> ContactNamesOf(const Object& item)
{
    try
    {
        return TextOrEmpty(item.Get(L"ContactNames"));
    }
    catch (const automation::Error& error)
    {
        if (!automation::IsRefusal(error))
        {
            throw;
        }
        data::Remark(L"The contact has been left as it is: Outlook refuses to tell it");
        return std::nullopt;
    }
}

Link LiteralOfContact(const wchar_t* builder, const Object& item)
{
    if (!data::HasPermission(data::kContactRecord, data::kUsualScope, data::kModifyOperation) ||
        IsOfOutlook8(item))
    {
        return kNull;
    }
    const auto names = ContactNamesOf(item);
    if (!names || names->empty())
    {
        return names ? Link(kNull) : Link();
    }
    return LiteralOfKey(FindKey(builder, L"TBLCONTACT", L"F_SURNAME+F_GIVENNAME", *names, kContactColumn));
}

bool UserMayChangeAccounts(long operation)
{
    return data::HasPermission(data::kAccountRecord, data::kUsualScope, operation);
}

// The data that the account builders share.
struct AccountLink
{
    const wchar_t* Builder;
    data::FieldCatalogue& Catalogue;
    links::UndoneBy UndoneBy;

    // An account is stored under its company's name cut to the column: a longer name is looked up in its cut
    // form.
    std::wstring KeyOf(const std::wstring& company) const
    {
        const std::wstring name = data::TextAsHeld(Catalogue, L"F_ACCSNAME", company);
        const std::wstring key = FindKey(Builder, L"TBLACCOUNT", L"F_ACCSNAME", name, kAccountColumn);
        return key.empty() ? links::CreateAccount(data::Host(), Catalogue, company, UndoneBy) : key;
    }

    Link LiteralOf(const Object& item) const
    {
        const std::wstring company = automation::Trimmed(TextOrEmpty(item.Get(L"Companies")));
        if (company.empty())
        {
            return UserMayChangeAccounts(data::kModifyOperation) ? Link(kNull) : Link();
        }
        return UserMayChangeAccounts(data::kAddOperation) ? Link(LiteralOfKey(KeyOf(company))) : Link();
    }
};

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

// -1 when a lookup failed; other errors go on to the writer.
template<typename Build>
long WithoutFailedLookup(Build&& build)
{
    try
    {
        build();
        return 0;
    }
    catch (const FailedLookup&)
    {
        state::LogError();
        return -1;
    }
}

} // namespace

long ChangeNewTaskContact(const Object& item, std::wstring& fields, std::wstring& values)
{
    return WithoutFailedLookup([&] {
        if (const auto literal = LiteralOfContact(L"ChangeNewTaskContact", item))
        {
            AppendInsert(fields, values, kContactColumn, *literal);
        }
    });
}

long ChangeEditTaskContact(const Object& item, std::wstring& setList)
{
    return WithoutFailedLookup([&] {
        if (const auto literal = LiteralOfContact(L"ChangeEditTaskContact", item))
        {
            AppendUpdate(setList, kContactColumn, *literal);
        }
    });
}

long ChangeAddTaskAccount(data::FieldCatalogue& catalogue, const Object& item, std::wstring& fields,
                          std::wstring& values, links::UndoneBy undoneBy)
{
    return WithoutFailedLookup([&] {
        const AccountLink link{L"ChangeAddTaskAccount", catalogue, undoneBy};
        if (const auto literal = link.LiteralOf(item))
        {
            AppendInsert(fields, values, kAccountColumn, *literal);
        }
    });
}

long ChangeEditTaskAccount(data::FieldCatalogue& catalogue, const Object& item, std::wstring& setList,
                           links::UndoneBy undoneBy)
{
    return WithoutFailedLookup([&] {
        const AccountLink link{L"ChangeEditTaskAccount", catalogue, undoneBy};
        if (const auto literal = link.LiteralOf(item))
        {
            AppendUpdate(setList, kAccountColumn, *literal);
        }
    });
}

} // namespace links
