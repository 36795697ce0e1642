#include "config/store/ParameterStore.h"

#include "config/store/UserRows.h"
#include "data/Host.h"
#include "data/Literals.h"
#include "exchange/KindName.h"
#include "state/Failures.h"
#include "ui/ShowMessageBox.h"

namespace config
{

namespace
{

using automation::LongOf;
using automation::Recordset;
using automation::RecordsetCloser;
using automation::ShortOf;
using automation::TextOf;
using automation::TextOrEmpty;
using state::SynParameter;

void OpenOrCreateRows(Recordset& rows, const std::wstring& objectName)
{
    const data::Host host;
    const std::wstring sql = L"Select * From " + std::wstring(kParameterTable) + L" Where TransObject=" +
                             data::QuotedText(objectName) + L" And F_UID=" + host.UserIdLiteral();
    data::ThrowUnless(host.OpenRecordsetByString(rows, sql) >= 0, L"OpenRecordsetByString");
    if (rows.HasNoRows())
    {
        Recordset created = CreateDefaultParameters();
        automation::CloseRecordset(created);
        automation::CloseRecordset(rows);
        data::ThrowUnless(host.OpenRecordsetByString(rows, sql) >= 0, L"OpenRecordsetByString");
    }
}

void ReadCommonValues(SynParameter& record, const Recordset& rows)
{
    record.TransObject = TextOf(rows.ValueOf(L"TransObject"));
    record.TransObjectPic = TextOf(rows.ValueOf(L"TransObjectPic"));
    record.TransType = LongOf(rows.ValueOf(L"TransType"));
    record.TransTypePic = TextOf(rows.ValueOf(L"TransTypePic"));
    record.IsTrans = IsSet(rows.ValueOf(L"IsTrans"));
    record.TransConflictOption = LongOf(rows.ValueOf(L"TransConflictOption"));
}

void ReadTaskValues(SynParameter& record, const Recordset& rows)
{
    record.TaskTransItem = LongOf(rows.ValueOf(L"TaskTransItem"));
}

void ReadCalendarValues(SynParameter& record, const Recordset& rows)
{
    record.CalendarTransItem = LongOf(rows.ValueOf(L"CalendarTransItem"));
    if (record.CalendarTransItem == state::kEntriesWithinDays)
    {
        record.CalendarPrior = ShortOf(rows.ValueOf(L"CalendarPrior"));
        record.CalendarAfter = ShortOf(rows.ValueOf(L"CalendarAfter"));
    }
}

struct KindReader
{
    const exchange::KindName& Kind;
    void (*Read)(SynParameter& record, const Recordset& rows);
};

// The kinds that have values of their own.
constexpr KindReader kKindReaders[] = {
    {exchange::kTaskName, &ReadTaskValues},
    {exchange::kCalendarName, &ReadCalendarValues},
};

void ReadValuesOfKind(SynParameter& record, const Recordset& rows, const std::wstring& objectName)
{
    if (exchange::FindKindName(objectName) == nullptr)
    {
        ui::ShowMessageBox(L"错误", MB_ABORTRETRYIGNORE, L"SetSynParamenter");
    }
    for (const KindReader& reader : kKindReaders)
    {
        if (objectName == reader.Kind.TransObject)
        {
            reader.Read(record, rows);
        }
    }
}

} // namespace

bool SetSynParamenter(SynParameter& record, const std::wstring& objectName)
{
    Recordset rows;
    const RecordsetCloser closer(rows);
    return state::Trapped(true, [&] {
        OpenOrCreateRows(rows, objectName);
        if (rows.AtEnd())
        {
            return false;
        }
        ReadCommonValues(record, rows);
        LoadDefaultFolder(record, objectName);
        record.TransSource = TextOrEmpty(rows.ValueOf(L"TransSource"));
        record.TransSourceConfig = TextOrEmpty(rows.ValueOf(L"TransSourceConfig"));
        ReadValuesOfKind(record, rows, objectName);
        return false;
    });
}

std::wstring LoadDefaultFolder(SynParameter& record, const std::wstring& objectName)
{
    Recordset rows;
    const RecordsetCloser closer(rows);
    return state::Trapped(std::wstring(), [&] {
        const exchange::KindName* kind = exchange::FindKindName(objectName);
        const std::wstring sql = kind == nullptr
                                     ? std::wstring()
                                     : L"Select * From " + std::wstring(kFolderTable) +
                                           L" Where TransObjectID=" + std::to_wstring(kind->TransObjectID);
        if (OpenUserRecordset(rows, sql))
        {
            return std::wstring();
        }
        std::wstring folder;
        for (; !rows.AtEnd(); rows.MoveNext())
        {
            if (IsSet(rows.ValueOf(L"IsDefault")))
            {
                folder = TextOf(rows.ValueOf(L"OutlookFolder"));
            }
        }
        record.DefaultFolder = folder;
        record.CurrentFolder = folder;
        return folder;
    });
}

} // namespace config
