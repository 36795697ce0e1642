#include "data/ApplyToOutlook.h"

#include "automation/Text.h"
#include "resources/Strings.h"
#include "state/Failures.h"

namespace data
{

namespace
{

// A changed host record is written to Outlook when it carries this mark.
constexpr long kMarkToOutlook = 1;

void AddNewRecords(Run& run, const PassToOutlook& pass)
{
    const long count = run.Pending.NewHostRecords.Count();
    run.Display.SetProgress(0);
    for (long i = 1; i <= count; ++i)
    {
        run.HostRows.MoveTo(run.Pending.NewHostRecords.Item(i).RecordBookmark);
        pass.Write(run, kNewRecord, run.Items.GetObject(L"Add", pass.ItemType));
        run.Display.SetProgress(static_cast<double>(i) / static_cast<double>(count));
    }
}

void WriteChangedRecord(Run& run, const PassToOutlook& pass, long i)
{
    run.HostRows.MoveTo(run.Pending.ChangedHostRecords.Item(i).RecordBookmark);
    const double index = automation::LeadingNumber(run.Pending.ChangedOutlookItems.Item(i).ItemIndex);
    pass.Write(run, kExistingRecord, run.Items.GetObject(L"Item", static_cast<long>(index)));
}

void WriteChangedRecords(Run& run, const PassToOutlook& pass)
{
    const long count = run.Pending.ChangedHostRecords.Count();
    run.Display.SetProgress(0);
    for (long i = 1; i <= count; ++i)
    {
        if (run.Pending.ChangedHostRecords.Item(i).RecordState == kMarkToOutlook)
        {
            WriteChangedRecord(run, pass, i);
        }
        run.Display.SetProgress(static_cast<double>(i) / static_cast<double>(count));
    }
}

} // namespace

bool ApplyToOutlook(Run& run, const PassToOutlook& pass)
{
    return state::Trapped(true, [&] {
        run.Display.SetStatus(resources::String(IDS_RUN_APPLYING));
        const ShowsProgress showsProgress(run.Display);
        run.Relations.Use(pass.RelationStatement, pass.RelationOptions);
        AddNewRecords(run, pass);
        WriteChangedRecords(run, pass);
        return false;
    });
}

} // namespace data
