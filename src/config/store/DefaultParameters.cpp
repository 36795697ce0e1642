#include "config/store/ParameterStore.h"
#include "config/store/UserRows.h"
#include "data/Host.h"
#include "data/Literals.h"
#include "state/Failures.h"

#include <set>

namespace config
{

namespace
{

using automation::Recordset;
using automation::Value;

constexpr wchar_t kRowsOf[] = L"Select * From T_POutlookSyncParam Where F_UID=";

std::wstring Bare(const Value& value)
{
    return automation::IsEmptyOrNull(value) ? L"NULL" : data::NumberOrQuotedText(automation::TextOf(value));
}

std::wstring Quoted(const Value& value)
{
    return automation::IsEmptyOrNull(value) ? L"NULL" : data::QuotedText(automation::TextOf(value));
}

std::wstring Flag(const Value& value)
{
    return IsSet(value) ? L"1" : L"0";
}

struct CopiedColumn
{
    const wchar_t* name;
    std::wstring (*literal)(const Value& value);
};

// The columns that are copied from a template, in this order, after the owner.
constexpr CopiedColumn kCopied[] = {
    {L"TransObjectID", &Bare},       {L"TransObject", &Quoted},      {L"TransObjectPic", &Quoted},
    {L"TransType", &Bare},           {L"TransTypePic", &Quoted},     {L"TransConflictOption", &Bare},
    {L"TransSourceConfig", &Quoted}, {L"TransSource", &Quoted},      {L"CalendarTransItem", &Bare},
    {L"CalendarPrior", &Bare},       {L"CalendarAfter", &Bare},      {L"TaskTransItem", &Bare},
    {L"TransNameEnglish", &Quoted},  {L"TransNameChinese", &Quoted}, {L"IsTrans", &Flag},
};

std::wstring KindOf(const Recordset& rows)
{
    return automation::TextOrEmpty(rows.ValueOf(L"TransObject"));
}

// The kinds that the user has a row of.
std::set<std::wstring> KindsOf(const data::Host& host, const std::wstring& userId)
{
    Recordset rows;
    const automation::RecordsetCloser closer(rows);
    data::ThrowUnless(host.OpenRecordsetByString(rows, kRowsOf + userId) >= 0, L"OpenRecordsetByString");
    std::set<std::wstring> kinds;
    for (; !rows.AtEnd(); rows.MoveNext())
    {
        kinds.insert(KindOf(rows));
    }
    return kinds;
}

void CopyTemplate(const data::Host& host, const Recordset& templates, const std::wstring& userId)
{
    std::wstring columns = L"F_UID";
    std::wstring values = userId;
    for (const CopiedColumn& column : kCopied)
    {
        columns += L"," + std::wstring(column.name);
        values += L"," + column.literal(templates.ValueOf(column.name));
    }
    data::ThrowUnless(host.Insert(kParameterTable, columns, values) >= 0, L"Insert");
}

} // namespace

Recordset CreateDefaultParameters()
{
    Recordset templates;
    const automation::RecordsetCloser closer(templates);
    return state::Trapped(Recordset(), [&] {
        const data::Host host;
        const std::wstring userId = host.UserIdLiteral();
        const std::set<std::wstring> present = KindsOf(host, userId);
        data::ThrowUnless(host.OpenRecordsetByString(templates, kRowsOf + std::wstring(L"0")) >= 0,
                          L"OpenRecordsetByString");
        for (; !templates.AtEnd(); templates.MoveNext())
        {
            if (!present.contains(KindOf(templates)))
            {
                CopyTemplate(host, templates, userId);
            }
        }
        Recordset rows;
        data::ThrowUnless(host.OpenRecordsetByString(rows, kRowsOf + userId) >= 0, L"OpenRecordsetByString");
        return rows;
    });
}

} // namespace config
