#include "calendar/CalendarFromOutlook.h"

#include "calendar/CalendarFieldsFromOutlook.h"
#include "calendar/CalendarRelations.h"
#include "data/Host.h"
#include "data/Literals.h"
#include "data/SqlFragments.h"
#include "exchange/ApplyFromOutlook.h"
#include "links/TaskLinks.h"
#include "state/Failures.h"
#include "ui/ShowMessageBox.h"

namespace calendar
{

using automation::Object;
using data::Demand;
using data::Host;
using data::RowColumns;

namespace
{

// Runs a step of the writer; an error is shown with the host column that was being processed, and gives
// failure.
template<typename Result, typename Step>
Result Reported(const RowColumns& entry, Result failure, Step&& step)
{
    return state::Trapped(failure, [&] {
        try
        {
            return step();
        }
        catch (const automation::Error& error)
        {
            ui::ShowMessageBox(entry.Column + L":" + error.Description(), MB_OK);
            throw;
        }
    });
}

// False when the lookup of the account has failed; the builder has shown why.
bool AddAccount(const Object& item, RowColumns& entry)
{
    using links::UndoneBy;
    return entry.Mode() == data::kNewRecord
               ? links::ChangeAddTaskAccount(entry.Catalogue(), item, entry.Fields, entry.Values,
                                             UndoneBy::Hand) == 0
               : links::ChangeEditTaskAccount(entry.Catalogue(), item, entry.SetList, UndoneBy::Hand) == 0;
}

// False when the appointment is not to be written.
bool Complete(exchange::Run& run, const Object& item, RowColumns& entry)
{
    return AddCalendarColumns(run.Relations, item, entry) && AddAccount(item, entry);
}

void Insert(const Host& host, RowColumns& entry)
{
    const std::wstring id = host.NewGuid();
    const std::wstring user = host.UserIdLiteral();
    data::AppendEntry(entry.Fields, L"F_ACTORID,F_CREATORID,F_ACTID");
    data::AppendEntry(entry.Values, user + L"," + user + L"," + data::QuotedText(id));
    Demand(host.Insert(L"TBLACTIVITY", entry.Fields, entry.Values, id) >= 0, L"Insert");
}

void Update(const Host& host, const automation::Recordset& rows, const RowColumns& entry)
{
    if (!entry.SetList.empty())
    {
        const std::wstring id = automation::TextOf(rows.ValueOf(L"F_ACTID"));
        Demand(host.Update(L"TBLACTIVITY", entry.SetList, L"F_ACTID=" + data::QuotedText(id)) == 0,
               L"Update");
    }
}

void Save(const exchange::Run& run, RowColumns& entry)
{
    const Host host;
    if (entry.Mode() == data::kNewRecord)
    {
        Insert(host, entry);
    }
    else
    {
        Update(host, run.HostRows, entry);
    }
    state::WriteLog(L"A calendar entry has been written");
}

} // namespace

const exchange::PassFromOutlook SynCalendarFromOutlook{
    .RelationStatement = kRelationStatement,
    .RelationOptions = kRelationOptions,
    .Write = SynOlCalendarToSynCalendar,
};

long SynOlCalendarToSynCalendar(exchange::Run& run, long mode, const Object& item)
{
    if (mode != data::kNewRecord && mode != data::kExistingRecord)
    {
        return 0;
    }
    RowColumns entry(run.Catalogue, mode);
    const bool isComplete = Reported(entry, false, [&] { return Complete(run, item, entry); });
    return isComplete ? Reported(entry, -1L,
                                 [&] {
                                     Save(run, entry);
                                     return 0L;
                                 })
                      : 0L;
}

} // namespace calendar
