#include "data/ApplyFromOutlook.h"

#include "automation/Text.h"
#include "resources/Strings.h"
#include "state/Failures.h"

namespace data
{

using automation::Object;

namespace
{

// A changed Outlook item is written to the host when it carries this mark.
constexpr long kMarkToHost = 0;

Object ItemOf(Run& run, const ClsOlRecord& record)
{
    const double index = automation::LeadingNumber(record.ItemIndex);
    return ForPass(run, run.Items.GetObject(L"Item", static_cast<long>(index)));
}

void Insert(Run& run, const PassFromOutlook& pass, long position)
{
    const ClsOlRecord& record = run.Pending.NewOutlookItems.Item(position);
    if (!record.ItemIndex.empty())
    {
        pass.Write(run, kNewRecord, ItemOf(run, record));
    }
}

void Update(Run& run, const PassFromOutlook& pass, long position)
{
    const ClsOlRecord& record = run.Pending.ChangedOutlookItems.Item(position);
    if (record.RecordState == kMarkToHost && !record.ItemIndex.empty())
    {
        const Object item = ItemOf(run, record);
        const long row = run.Pending.ChangedHostRecords.Item(position).RecordBookmark;
        run.HostRows.MoveTo(row);
        if (pass.Write(run, kExistingRecord, item) == 0)
        {
            run.OverwrittenRows.insert(row);
        }
    }
}

} // namespace

bool ApplyFromOutlook(Run& run, const PassFromOutlook& pass)
{
    return state::Trapped(true, [&] {
        run.Display.SetStatus(resources::String(IDS_RUN_APPLYING));
        const ShowsProgress shown(run.Display);
        run.Relations.Use(pass.RelationStatement, pass.RelationOptions);
        run.Catalogue.Forget();
        WalkWithProgress(run.Display, run.Pending.NewOutlookItems.Count(),
                         [&](long position) { Insert(run, pass, position); });
        WalkWithProgress(run.Display, run.Pending.ChangedOutlookItems.Count(),
                         [&](long position) { Update(run, pass, position); });
        return false;
    });
}

} // namespace data
