#include "benchmarks/BareApply.h"
#include "benchmarks/Parts.h"
#include "benchmarks/Walk.h"
#include "state/SharedState.h"

#include <stdexcept>

namespace benchmarks
{

namespace
{

struct Outcome
{
    Case Of;
    Pair Times;
};

void Apply(const Kind& kind, Direction direction, exchange::Run& run)
{
    const exchange::Kind& category = kind.Category;
    if (direction == Direction::ToOutlook ? category.ToOutlook(run) : category.FromOutlook(run))
    {
        throw std::runtime_error("the apply pass failed");
    }
}

Measured ApplyOnce(const Kind& kind, Direction direction, const DataFiles& files, Place place,
                   Purpose purpose)
{
    Sides sides(files, kind, place);
    exchange::Run run = sides.NewRun();
    FillPending(direction, files.Count(), run.Pending);
    Measured measured = Measure(sides.Control(), purpose, [&] { Apply(kind, direction, run); });
    if (const std::wstring refused = sides.HostSide().LastRejection(); !refused.empty())
    {
        throw std::runtime_error("the host refused something");
    }
    return measured;
}

// What the pass asks of the host, from a pass in process.
HostCalls CallsOfHost(const Kind& kind, const DataFiles& files)
{
    HostCalls calls;
    Sides sides(files, kind, Place::InProcess);
    exchange::Run run = sides.NewRun();
    FillPending(Direction::FromOutlook, files.Count(), run.Pending);
    state::Shared().gDTC = Recorded(sides.HostSide().Dtc(), calls);
    Apply(kind, Direction::FromOutlook, run);
    return calls;
}

Measured WriteOnce(const Kind& kind, Direction direction, const DataFiles& files, Place place,
                   const HostCalls& hostCalls, Purpose purpose)
{
    Sides sides(files, kind, place);
    exchange::Run run = sides.NewRun();
    FillPending(direction, files.Count(), run.Pending);
    return Measure(sides.Control(), purpose, [&] {
        if (direction == Direction::ToOutlook)
        {
            WriteBareToOutlook(kind, run);
        }
        else
        {
            WriteBareFromOutlook(kind, run, hostCalls, sides.HostSide().Dtc());
        }
    });
}

Outcome Measure(const Kind& kind, Direction direction, const DataFiles& files, Place place)
{
    const char* const where = place == Place::OutOfProcess ? "out of process" : "in process";
    Outcome outcome{{"apply", where, kind.Name, NameOf(direction), files.Count()}, {}};
    Report::Progress("apply, " + outcome.Of.Place + ", " + kind.Name + " " + NameOf(direction) + ", " +
                     std::to_string(files.Count()));
    HostCalls hostCalls;
    if (direction == Direction::FromOutlook)
    {
        hostCalls = CallsOfHost(kind, files);
    }
    outcome.Times = InTurn(
        place == Place::InProcess,
        [&](Purpose purpose) { return ApplyOnce(kind, direction, files, place, purpose); },
        [&](Purpose purpose) { return WriteOnce(kind, direction, files, place, hostCalls, purpose); });
    return outcome;
}

void Write(Report& report, const Outcome& outcome)
{
    const auto& [component, bare] = outcome.Times;
    report.Figure(outcome.Of, "seconds", component.Seconds);
    report.Figure(outcome.Of, "bare seconds", bare.Seconds);
    report.Figure(outcome.Of, "peak bytes", static_cast<double>(component.Peak));
    report.Figures(outcome.Of, "", component.Traffic);
    report.Figures(outcome.Of, "bare ", bare.Traffic);
}

void AddTo(Table& table, const Outcome& outcome)
{
    const auto& [component, bare] = outcome.Times;
    const auto records = static_cast<double>(outcome.Of.Records);
    const auto perRecord = [&](long calls) { return Text(static_cast<double>(calls) / records, 1); };
    table.Add({outcome.Of.Kind, outcome.Of.Direction, Text(outcome.Of.Records), Text(component.Seconds, 3),
               Text(bare.Seconds, 3), Text(outcome.Times.Ratio(), 2),
               Text(component.Seconds / records * 1000, 2), perRecord(component.Traffic.OutlookCalls()),
               perRecord(bare.Traffic.OutlookCalls()), perRecord(component.Traffic.OutlookLookups()),
               perRecord(bare.Traffic.OutlookLookups()), perRecord(component.Traffic.HostCalls()),
               perRecord(bare.Traffic.HostCalls()), Text(component.Peak / 1024)});
}

// The sizes in turn, as long as the next one will not take too long.
void MeasureSeries(const Kind& kind, Direction direction, Place place, const std::vector<size_t>& sizes,
                   const Plan& plan, Report& report, Table& table)
{
    double secondsPerRecord = 0;
    for (const size_t size : sizes)
    {
        if (secondsPerRecord * static_cast<double>(size) > plan.ApplyPatience)
        {
            table.Add({kind.Name, NameOf(direction), Text(size),
                       "left out, some " + Text(secondsPerRecord * static_cast<double>(size), 0)});
            continue;
        }
        const DataFiles files(size);
        const Outcome outcome = Measure(kind, direction, files, place);
        Write(report, outcome);
        AddTo(table, outcome);
        secondsPerRecord = outcome.Times.Component.Seconds / static_cast<double>(size);
    }
}

void MeasurePlace(Place place, const std::vector<size_t>& sizes, const Plan& plan, Report& report)
{
    Table table({"kind", "direction", "records", "seconds", "bare", "ratio", "ms/record",
                 "Outlook calls/record", "bare", "lookups/record", "bare", "host calls/record", "bare",
                 "peak KB"});
    for (const Kind& kind : Kinds())
    {
        for (const Direction direction : {Direction::ToOutlook, Direction::FromOutlook})
        {
            MeasureSeries(kind, direction, place, sizes, plan, report, table);
        }
    }
    report.Print(place == Place::OutOfProcess ? "Apply, Outlook out of process" : "Apply, Outlook in process",
                 table);
}

} // namespace

void MeasureApply(const Plan& plan, Report& report)
{
    MeasurePlace(Place::OutOfProcess, plan.OutOfProcess, plan, report);
    MeasurePlace(Place::InProcess, plan.ApplyInProcess, plan, report);
}

} // namespace benchmarks
