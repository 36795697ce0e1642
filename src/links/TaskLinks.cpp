#include "links/TaskLinks.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "data/FieldFormat.h"
#include "data/Host.h"
#include "data/Literals.h"
#include "data/Lookups.h"
#include "data/Permissions.h"
#include "links/ContactLink.h"
#include "state/Remarks.h"
#include "ui/ShowError.h"

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

// The literal of a link; nothing when the column stays as the host has it.
using Link = std::optional<std::wstring>;

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
        state::TellFailure(error, keyColumn, static_cast<long>(name.size()));
        ui::ShowAndThrow(error, std::to_wstring(NumberOf(error)), MB_ICONERROR, builder);
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
        state::Tell({.Why = state::Cause::ReadRefused,
                     .Field = L"ContactNames",
                     .Words = error.Description(),
                     .Code = error.Code()});
        return std::nullopt;
    }
}

// Without a message: the report of the run tells the missing right.
bool HasRight(long kind, long operation)
{
    const bool has = data::HasPermission(kind, data::kUsualScope, operation);
    if (!has)
    {
        data::TellMissingRight(kind, operation);
    }
    return has;
}

Link LiteralOfContact(const wchar_t* builder, const Object& item)
{
    if (!HasRight(data::kContactRecord, data::kModifyOperation) || IsOfOutlook8(item))
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
            return data::HasPermission(data::kAccountRecord, data::kUsualScope, data::kModifyOperation)
                       ? Link(kNull)
                       : Link();
        }
        return HasRight(data::kAccountRecord, data::kAddOperation) ? Link(LiteralOfKey(KeyOf(company)))
                                                                   : Link();
    }
};

void AddLink(data::HostRow& task, const wchar_t* column, const Link& link)
{
    if (link)
    {
        task.AddLiteral(column, *link);
    }
}

} // namespace

void ChangeNewTaskContact(const Object& item, data::InsertRow& task)
{
    AddLink(task, kContactColumn, LiteralOfContact(L"ChangeNewTaskContact", item));
}

void ChangeEditTaskContact(const Object& item, data::UpdateRow& task)
{
    AddLink(task, kContactColumn, LiteralOfContact(L"ChangeEditTaskContact", item));
}

void ChangeAddTaskAccount(const Object& item, data::InsertRow& task, UndoneBy undoneBy)
{
    const AccountLink link{L"ChangeAddTaskAccount", task.Catalogue(), undoneBy};
    AddLink(task, kAccountColumn, link.LiteralOf(item));
}

void ChangeEditTaskAccount(const Object& item, data::UpdateRow& task, UndoneBy undoneBy)
{
    const AccountLink link{L"ChangeEditTaskAccount", task.Catalogue(), undoneBy};
    AddLink(task, kAccountColumn, link.LiteralOf(item));
}

} // namespace links
