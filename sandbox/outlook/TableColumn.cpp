#include "sandbox/outlook/TableColumn.h"

#include "automation/Dates.h"
#include "automation/Text.h"
#include "sandbox/outlook/Failures.h"

#include <algorithm>
#include <array>
#include <cwchar>

#include <oleauto.h>

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;

bool IsSame(std::wstring_view left, std::wstring_view right)
{
    return left.size() == right.size() && _wcsnicmp(left.data(), right.data(), left.size()) == 0;
}

// "Unsupported Computed Properties" (Unsupported Properties in a Table Object or Table Filter). The page
// lists Companies among them and, above, among the supported ones; here it is refused.
constexpr std::wstring_view kRefused[] = {
    L"AutoResolvedWinner",
    L"BodyFormat",
    L"Class",
    L"ContactNames",
    L"Companies",
    L"DLName",
    L"DownloadState",
    L"FlagIcon",
    L"HtmlBody",
    L"InternetCodePage",
    L"IsConflict",
    L"IsMarkedAsTask",
    L"MeetingWorkspaceURL",
    L"MemberCount",
    L"Permission",
    L"PermissionService",
    L"RecurrenceState",
    L"ResponseState",
    L"Saved",
    L"Sent",
    L"Submitted",
    L"TaskSubject",
    L"Unread",
    L"VotingOptions",
};

struct NamespaceRow
{
    std::wstring_view name;
    PropertyId property;
};

constexpr NamespaceRow kNamespaces[] = {
    {L"urn:schemas-microsoft-com:office:office#Keywords", Categories},
    {L"http://schemas.microsoft.com/mapi/proptag/0x30070040", CreationTime},
    {L"http://schemas.microsoft.com/mapi/proptag/0x30080040", LastModificationTime},
};

std::optional<PropertyId> BuiltIn(const std::wstring& name)
{
    for (size_t kind = 0; kind < kItemKinds; ++kind)
    {
        const auto id = FindProperty(static_cast<ItemKind>(kind), name);
        if (id && !IsOfPattern(*id))
        {
            return id;
        }
    }
    return std::nullopt;
}

bool Has(ItemKind kind, PropertyId id)
{
    return (PropertyOf(id).kinds & MaskOf(kind)) != 0;
}

Value InUtc(automation::Date date)
{
    SYSTEMTIME local{};
    SYSTEMTIME utc{};
    double moment = date.days;
    if (!VariantTimeToSystemTime(moment, &local) || !TzSpecificLocalTimeToSystemTime(nullptr, &local, &utc) ||
        !SystemTimeToVariantTime(&utc, &moment))
    {
        return date;
    }
    return automation::Date{moment};
}

Value KeywordsOf(const std::wstring& text)
{
    std::vector<Value> keywords;
    for (size_t at = 0; at < text.size();)
    {
        const size_t end = std::min(text.find(L", ", at), text.size());
        keywords.emplace_back(text.substr(at, end - at));
        at = end + 2;
    }
    return ArrayOf(keywords);
}

size_t BytesOf(const std::wstring& text, TextUnit unit)
{
    return unit == TextUnit::BytesOfUtf8 ? automation::ToUtf8(text).size() : text.size() * sizeof(wchar_t);
}

// The whole characters that fit into the length.
std::wstring Cut(std::wstring text, size_t length, TextUnit unit)
{
    if (unit == TextUnit::Characters)
    {
        return text.substr(0, length);
    }
    while (BytesOf(text, unit) > length)
    {
        const bool isPair = text.size() > 1 && IS_LOW_SURROGATE(text.back());
        text.erase(text.size() - (isPair ? 2 : 1));
    }
    return text;
}

Value Shown(const TableColumn& column, const Value& value, const Awkward& awkward)
{
    if (value.Type() == VT_BSTR)
    {
        const std::wstring text = automation::TextOf(value);
        const auto length = static_cast<size_t>(awkward.tableTextLength);
        return column.isByNamespace && column.property == Categories
                   ? KeywordsOf(text)
                   : Value(Cut(text, length, awkward.tableTextUnit));
    }
    if (value.Type() == VT_DATE)
    {
        const automation::Date date = automation::DateOf(value);
        return column.isByNamespace ? InUtc(date)
                                    : Value(automation::PlusMinutes(date, -awkward.tableUtcMinutes));
    }
    return value;
}

} // namespace

TableColumn ColumnOfName(const std::wstring& name, const Awkward& awkward)
{
    const auto isName = [&](std::wstring_view one) { return IsSame(one, name); };
    if (IsSame(name, L"EntryID"))
    {
        return {name, std::nullopt};
    }
    const auto byNamespace = std::ranges::find_if(kNamespaces, isName, &NamespaceRow::name);
    if (byNamespace != std::end(kNamespaces))
    {
        return {name, byNamespace->property, true};
    }
    const auto id = BuiltIn(name);
    if (!id || std::ranges::any_of(kRefused, isName) || IsSame(name, awkward.tableRefuses))
    {
        FailColumn(name);
    }
    return {name, *id};
}

std::vector<TableColumn> DefaultColumns(ItemKind folderType)
{
    std::vector<TableColumn> columns = {{L"EntryID", std::nullopt}};
    const auto add = [&](std::initializer_list<PropertyId> ids) {
        for (const PropertyId id : ids)
        {
            columns.push_back({PropertyOf(id).name, id});
        }
    };
    add({Subject, CreationTime, LastModificationTime, MessageClass});
    switch (folderType)
    {
    case ItemKind::Contact: add({FirstName, LastName, CompanyName}); break;
    case ItemKind::Appointment: add({Start, End, IsRecurring}); break;
    case ItemKind::Task: add({DueDate, PercentComplete, IsRecurring}); break;
    default: break;
    }
    return columns;
}

Value ValueInColumn(const TableColumn& column, Mailbox& mailbox, const StoredItemRef& item)
{
    if (!column.property)
    {
        return Mailbox::EntryIdOf(*item);
    }
    if (!Has(item->kind, *column.property))
    {
        return {};
    }
    return Shown(column, ItemDraft(mailbox, item).Read(*column.property), mailbox.Behaviour());
}

Value ArrayOf(const std::vector<Value>& values)
{
    SAFEARRAY* const array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(values.size()));
    Value result;
    VARIANT* const given = result.Receive();
    given->vt = VT_ARRAY | VT_VARIANT;
    given->parray = array;
    for (LONG i = 0; i < static_cast<LONG>(values.size()); ++i)
    {
        automation::Check(
            SafeArrayPutElement(array, &i, const_cast<VARIANT*>(&values[static_cast<size_t>(i)].Raw())),
            L"array");
    }
    return result;
}

Value ArrayOf(const std::vector<std::vector<Value>>& rows, size_t columns, bool isByRow)
{
    SAFEARRAYBOUND bounds[] = {{static_cast<ULONG>(isByRow ? rows.size() : columns), 0},
                               {static_cast<ULONG>(isByRow ? columns : rows.size()), 0}};
    SAFEARRAY* const array = SafeArrayCreate(VT_VARIANT, 2, bounds);
    Value result;
    VARIANT* const given = result.Receive();
    given->vt = VT_ARRAY | VT_VARIANT;
    given->parray = array;
    for (size_t row = 0; row < rows.size(); ++row)
    {
        for (size_t column = 0; column < columns; ++column)
        {
            LONG at[] = {static_cast<LONG>(isByRow ? row : column),
                         static_cast<LONG>(isByRow ? column : row)};
            automation::Check(SafeArrayPutElement(array, at, const_cast<VARIANT*>(&rows[row][column].Raw())),
                              L"array");
        }
    }
    return result;
}

} // namespace sandbox::outlook
