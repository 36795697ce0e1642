#include "links/Activities.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "data/FieldFormat.h"
#include "data/Literals.h"
#include "data/Lookups.h"
#include "data/Permissions.h"
#include "data/Remark.h"
#include "links/ContactLink.h"
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
        ui::ShowAndThrow(error, std::to_wstring(NumberOf(error)), MB_ICONERROR, builder);
    }
}

std::wstring LiteralOfKey(const std::wstring& key)
{
    return key.empty() ? kNull : data::QuotedText(key);
}

// Nothing where the object model guard refuses them.
std::optional<std::wstring> ContactNamesOf(const automation::ItemView& item)
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

Link LiteralOfContact(const wchar_t* builder, const automation::ItemView& item)
{
    if (!data::HasPermission(data::kContactRecord, data::kUsualScope, data::kModifyOperation) ||
        IsOfOutlook8(item.Item()))
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
    links::Rollback Rollback;

    // An account is stored under its company's name cut to the column: a longer name is looked up in its cut
    // form.
    std::wstring KeyOf(const std::wstring& company) const
    {
        const std::wstring name = data::TextAsHeld(Catalogue, L"F_ACCSNAME", company);
        const std::wstring key = FindKey(Builder, L"TBLACCOUNT", L"F_ACCSNAME", name, kAccountColumn);
        return key.empty() ? links::CreateAccount(data::Host(), Catalogue, company, Rollback) : key;
    }

    Link LiteralOf(const automation::ItemView& item) const
    {
        const std::wstring company = automation::Trimmed(TextOrEmpty(item.Get(L"Companies")));
        if (company.empty())
        {
            return UserMayChangeAccounts(data::kModifyOperation) ? Link(kNull) : Link();
        }
        return UserMayChangeAccounts(data::kAddOperation) ? Link(LiteralOfKey(KeyOf(company))) : Link();
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

void ChangeNewTaskContact(const automation::ItemView& item, data::InsertRow& task)
{
    AddLink(task, kContactColumn, LiteralOfContact(L"ChangeNewTaskContact", item));
}

void ChangeEditTaskContact(const automation::ItemView& item, data::UpdateRow& task)
{
    AddLink(task, kContactColumn, LiteralOfContact(L"ChangeEditTaskContact", item));
}

void ChangeAddTaskAccount(const automation::ItemView& item, data::InsertRow& task, Rollback rollback)
{
    const AccountLink link{L"ChangeAddTaskAccount", task.Catalogue(), rollback};
    AddLink(task, kAccountColumn, link.LiteralOf(item));
}

void ChangeEditTaskAccount(const automation::ItemView& item, data::UpdateRow& task, Rollback rollback)
{
    const AccountLink link{L"ChangeEditTaskAccount", task.Catalogue(), rollback};
    AddLink(task, kAccountColumn, link.LiteralOf(item));
}

void InsertActivity(const data::Host& host, data::InsertRow& activity, const std::wstring& keyColumns)
{
    const std::wstring id = host.NewGuid();
    const std::wstring user = host.UserIdLiteral();
    activity.AddLiteral(keyColumns, user + L"," + user + L"," + data::QuotedText(id));
    activity.Insert(host, L"TBLACTIVITY", id);
}

void UpdateActivity(const data::Host& host, const data::UpdateRow& activity,
                    const automation::Recordset& rows)
{
    activity.Update(host, L"TBLACTIVITY", L"F_ACTID", automation::TextOf(rows.ValueOf(L"F_ACTID")));
}

} // namespace links
