#include "links/Activities.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "data/FieldFormat.h"
#include "data/Literals.h"
#include "data/Lookups.h"
#include "data/Permissions.h"
#include "links/ContactLink.h"
#include "state/Remarks.h"
#include "ui/ShowError.h"

#include <optional>

namespace links
{

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

// Whom a record is to be linked to: nothing where its link stays as the host has it, the empty text for no
// one.
std::optional<std::wstring> ContactToLink(const automation::ItemView& item)
{
    const bool mayLink = HasRight(data::kContactRecord, data::kModifyOperation) && !IsOfOutlook8(item.Item());
    return mayLink ? ContactNamesOf(item) : std::wstring();
}

Link LiteralOfContact(const wchar_t* builder, const automation::ItemView& item)
{
    const auto names = ContactToLink(item);
    if (!names || names->empty())
    {
        return names ? Link(kNull) : Link();
    }
    return LiteralOfKey(FindKey(builder, L"TBLCONTACT", L"F_SURNAME+F_GIVENNAME", *names, kContactColumn));
}

// The same for the company.
std::optional<std::wstring> CompanyToLink(const automation::ItemView& item)
{
    std::wstring company = automation::Trimmed(TextOrEmpty(item.Get(L"Companies")));
    const bool mayLink =
        company.empty() ? data::HasPermission(data::kAccountRecord, data::kUsualScope, data::kModifyOperation)
                        : HasRight(data::kAccountRecord, data::kAddOperation);
    return mayLink ? std::optional(std::move(company)) : std::nullopt;
}

// An account is stored under its company's name cut to the column: a longer name is looked up in its cut
// form.
std::wstring NameOfAccount(data::FieldCatalogue& catalogue, const std::wstring& company)
{
    return data::TextAsHeld(catalogue, L"F_ACCSNAME", company);
}

// The data that the account builders share.
struct AccountLink
{
    const wchar_t* Builder;
    data::FieldCatalogue& Catalogue;
    links::Rollback Rollback;

    std::wstring KeyOf(const std::wstring& company) const
    {
        const std::wstring key =
            FindKey(Builder, L"TBLACCOUNT", L"F_ACCSNAME", NameOfAccount(Catalogue, company), kAccountColumn);
        return key.empty() ? links::CreateAccount(data::Host(), Catalogue, company, Rollback) : key;
    }

    Link LiteralOf(const automation::ItemView& item) const
    {
        const auto company = CompanyToLink(item);
        if (!company)
        {
            return {};
        }
        return company->empty() ? kNull : LiteralOfKey(KeyOf(*company));
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

std::optional<LinkPreview> PreviewTaskContact(const automation::ItemView& item)
{
    const auto names = ContactToLink(item);
    if (!names)
    {
        return std::nullopt;
    }
    const bool isKnown =
        !names->empty() &&
        !TextOrEmpty(data::FindValue(L"TBLCONTACT", L"F_SURNAME+F_GIVENNAME", *names, kContactColumn))
             .empty();
    return LinkPreview{isKnown ? *names : std::wstring()};
}

std::optional<LinkPreview> PreviewTaskAccount(data::FieldCatalogue& catalogue,
                                              const automation::ItemView& item)
{
    const auto company = CompanyToLink(item);
    if (!company || company->empty())
    {
        return company ? std::optional(LinkPreview()) : std::nullopt;
    }
    const std::wstring name = NameOfAccount(catalogue, *company);
    const bool isKnown =
        !TextOrEmpty(data::FindValue(L"TBLACCOUNT", L"F_ACCSNAME", name, kAccountColumn)).empty();
    return LinkPreview{name, !isKnown};
}

} // namespace links
