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
void WithMainDialog(const std::function<void(exchange::RunDisplay& display)>& work)
{
    HWND main = nullptr;
    run::SynchronizeServices services{
        .CheckOutlookProfiles = [] { return false; },
        .SetSynParamenter = [](state::SynParameter& parameter,
                               const std::wstring&) { parameter.IsTrans = true; },
        .ShowConfigure = [] {},
        .RunTaskSync =
            [&](exchange::RunDisplay& display) {
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

double SecondsOfProgress(exchange::RunDisplay& display, size_t count)
{
    constexpr int kRounds = 5;
    Measured best;
    for (int round = 0; round < kRounds; ++round)
    {
        best.Merge(Measure({}, Purpose::Timed, [&] {
            const exchange::ProgressScope progress(display);
            exchange::WalkWithProgress(display, static_cast<long>(count), [](long) {});
        }));
    }
    return best.Seconds;
}

// A run in one direction out of process: what its two stages take.
struct RunSeconds
{
    double Collection;
    double Apply;
};

RunSeconds SecondsOfRun(const Kind& kind, size_t count)
{
    const DataFiles files(count);
    Sides sides(files, kind, Place::OutOfProcess);
    exchange::Run run = sides.NewRun();
    const auto timed = [](auto&& body) { return Measure({}, Purpose::Timed, body).Seconds; };
    const double collection = timed([&] { Collect(kind, Direction::FromOutlook, run); });
    return {collection, timed([&] { kind.Category.FromOutlook(run); })};
}

} // namespace

void MeasureDisplay(const Plan& plan, Report& report)
{
    const size_t few = plan.DetailCount;
    const RunSeconds taken = SecondsOfRun(Kinds().front(), few);
    Table table({"records", "ms in the collection", "of it %", "ms in the run", "of it %"});
    WithMainDialog([&](exchange::RunDisplay& display) {
        for (const size_t count : plan.OutOfProcess)
        {
            const double scale = static_cast<double>(count) / static_cast<double>(few);
            const double inCollection = SecondsOfProgress(display, count);
            // The apply pass fills the bar twice: for the new records and for the changed ones.
            const double inRun = inCollection + 2 * SecondsOfProgress(display, count / 2);
            const double ofCollection = inCollection / (taken.Collection * scale) * 100;
            const double ofRun = inRun / ((taken.Collection + taken.Apply) * scale) * 100;
            const Case of{"display", "", "contacts", "from Outlook", count};
            report.Figure(of, "seconds in the collection", inCollection);
            report.Figure(of, "percent of the collection", ofCollection);
            report.Figure(of, "seconds in the run", inRun);
            report.Figure(of, "percent of the run", ofRun);
            table.Add({Text(count), Text(inCollection * 1000, 1), Text(ofCollection, 2),
                       Text(inRun * 1000, 1), Text(ofRun, 2)});
        }
    });
    report.Print("Progress and painting in the main dialog, contacts from Outlook", table);
}

} // namespace benchmarks
