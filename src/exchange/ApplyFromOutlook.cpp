#include "exchange/ApplyFromOutlook.h"

#include "automation/Text.h"
#include "resources/Strings.h"
#include "state/Failures.h"

namespace exchange
{

using automation::Object;

namespace
{

// A changed Outlook item is written to the host when it carries this mark.
constexpr long kMarkToHost = 0;

Object ItemOf(Run& run, const data::ClsOlRecord& record)
{
    const double index = automation::LeadingNumber(record.ItemIndex);
    return ForPass(run, run.Items.GetObject(L"Item", static_cast<long>(index)));
}

void Insert(Run& run, const PassFromOutlook& pass, long position)
{
    const data::ClsOlRecord& record = run.Pending.NewOutlookItems.Item(position);
    if (!record.ItemIndex.empty())
    {
        pass.Write(run, data::kNewRecord, ItemOf(run, record));
    }
}

void Update(Run& run, const PassFromOutlook& pass, long position)
{
    const data::ClsOlRecord& record = run.Pending.ChangedOutlookItems.Item(position);
    if (record.RecordState == kMarkToHost && !record.ItemIndex.empty())
    {
        const Object item = ItemOf(run, record);
        const long row = run.Pending.ChangedHostRecords.Item(position).RecordBookmark;
        run.HostRows.MoveTo(row);
        if (pass.Write(run, data::kExistingRecord, item) == 0)
        {
            run.OverwrittenRows.insert(row);
        }
    }
}

} // namespace

bool PassFromOutlook::operator()(Run& run) const
{
    return state::Trapped(true, [&] {
        run.Display.SetStatus(resources::String(IDS_RUN_APPLYING));
        const ShowsProgress shown(run.Display);
        run.Relations.Use(RelationStatement, RelationOptions);
        run.Catalogue.Forget();
        WalkWithProgress(run.Display, run.Pending.NewOutlookItems.Count(),
                         [&](long position) { Insert(run, *this, position); });
        WalkWithProgress(run.Display, run.Pending.ChangedOutlookItems.Count(),
                         [&](long position) { Update(run, *this, position); });
        return false;
    });
}

} // namespace exchange
