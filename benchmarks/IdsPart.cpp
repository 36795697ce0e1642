#include "benchmarks/BareApply.h"
#include "benchmarks/Parts.h"
#include "benchmarks/Walk.h"

namespace benchmarks
{

namespace
{

Measured Read(const Kind& kind, const DataFiles& files, Ids ids)
{
    Sides sides(files, kind, Place::OutOfProcess);
    const exchange::Run run = sides.NewRun();
    return Measure(sides.Control(), Purpose::TimedAndCounted, [&] { ReadBare(kind, run, ids); });
}

Measured Write(const Kind& kind, const DataFiles& files, Ids ids)
{
    Sides sides(files, kind, Place::OutOfProcess);
    exchange::Run run = sides.NewRun();
    FillPending(Direction::ToOutlook, files.Count(), run.Pending);
    return Measure(sides.Control(), Purpose::TimedAndCounted, [&] { WriteBareToOutlook(kind, run, ids); });
}

using Work = Measured (*)(const Kind& kind, const DataFiles& files, Ids ids);

void AddTo(Table& table, Report& report, const Kind& kind, const char* name, const DataFiles& files,
           Work work)
{
    const Pair pair = InTurn(
        false, [&](Purpose) { return work(kind, files, Ids::PerObject); },
        [&](Purpose) { return work(kind, files, Ids::PerClass); });
    const auto& [perObject, perClass] = pair;
    const auto records = static_cast<double>(files.Count());
    const auto tripsPerRecord = [&](const Measured& measured) {
        return Text(static_cast<double>(measured.Traffic.RoundTrips()) / records, 1);
    };
    const Case of{"ids", "out of process", kind.Name, name, files.Count()};
    report.Figure(of, "seconds per object", perObject.Seconds);
    report.Figure(of, "seconds per class", perClass.Seconds);
    table.Add({kind.Name, name, Text(files.Count()), Text(perObject.Seconds, 3), Text(perClass.Seconds, 3),
               Text((1 - perClass.Seconds / perObject.Seconds) * 100, 0), tripsPerRecord(perObject),
               tripsPerRecord(perClass)});
}

} // namespace

void MeasureIds(const Plan& plan, Report& report)
{
    const DataFiles files(plan.DetailCount);
    Table table({"kind", "bare work", "records", "ids per object, s", "per class, s", "saved %",
                 "round trips/record", "per class"});
    for (const Kind& kind : Kinds())
    {
        Report::Progress(std::string("DISPIDs per item class, ") + kind.Name);
        AddTo(table, report, kind, "collection", files, Read);
        AddTo(table, report, kind, "apply to Outlook", files, Write);
    }
    report.Print("What DISPIDs kept per item class would save, Outlook out of process", table);
}

} // namespace benchmarks
