#include "benchmarks/DialogWatch.h"
#include "benchmarks/Parts.h"
#include "benchmarks/Sides.h"
#include "benchmarks/Walk.h"
#include "resources/ids.h"
#include "run/FrmSynchronizeItem.h"

namespace benchmarks
{

namespace
{

// Hands the main dialog's own display to the work, as a run has it.
void WithMainDialog(const std::function<void(data::RunDisplay& display)>& work)
{
    HWND main = nullptr;
    run::SynchronizeServices services{
        .CheckOutlookProfiles = [] { return false; },
        .SetSynParamenter = [](state::SynParameter& parameter,
                               const std::wstring&) { parameter.IsTrans = true; },
        .ShowConfigure = [] {},
        .RunTaskSync =
            [&](data::RunDisplay& display) {
                work(display);
                DialogWatch::PressUntilClosed(main, IDCANCEL);
                return false;
            },
        .RunCalendarSync = {},
        .RunContactSync = {},
    };
    const DialogWatch watch([&](HWND dialog) {
        if (main == nullptr)
        {
            main = dialog;
            DialogWatch::SelectFirstRow(dialog, IDC_SYNC_CATEGORY);
            DialogWatch::Press(dialog, IDC_SYNC_START);
        }
    });
    run::ShowSynchronizeItem(services);
}

double SecondsOfProgress(data::RunDisplay& display, size_t count)
{
    return Measure({}, Purpose::Timed,
                   [&] {
                       const data::ShowsProgress shows(display);
                       data::WalkWithProgress(display, static_cast<long>(count), [](long) {});
                   })
        .Seconds;
}

double SecondsOfCollection(const Kind& kind, size_t count)
{
    const DataFiles files(count);
    Sides sides(files, kind, Place::OutOfProcess);
    data::Run run = sides.NewRun();
    return Measure({}, Purpose::Timed, [&] { Collect(kind, Direction::FromOutlook, run); }).Seconds;
}

} // namespace

void MeasureDisplay(const Plan& plan, Report& report)
{
    constexpr int kRounds = 5;
    const Kind& kind = Kinds().front();
    const size_t few = plan.DetailCount;
    const double perRecord = SecondsOfCollection(kind, few) / static_cast<double>(few);
    Table table({"records", "ms for progress and painting", "of a collection %"});
    WithMainDialog([&](data::RunDisplay& display) {
        for (const size_t count : plan.OutOfProcess)
        {
            double seconds = SecondsOfProgress(display, count);
            for (int round = 1; round < kRounds; ++round)
            {
                seconds = std::min(seconds, SecondsOfProgress(display, count));
            }
            const double share = seconds / (perRecord * static_cast<double>(count)) * 100;
            report.Figure({"display", "", "", "", count}, "milliseconds", seconds * 1000);
            report.Figure({"display", "", "", "", count}, "percent of a collection", share);
            table.Add({Text(count), Text(seconds * 1000, 2), Text(share, 2)});
        }
    });
    report.Print("Progress and painting, against the collection of contacts from Outlook", table);
}

} // namespace benchmarks
