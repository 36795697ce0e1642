#include "benchmarks/BareCollection.h"
#include "benchmarks/BareTable.h"
#include "benchmarks/Parts.h"
#include "benchmarks/Walk.h"
#include "benchmarks/WalkCalls.h"

#include <cstdio>
#include <stdexcept>

namespace benchmarks
{

namespace
{

constexpr Direction kDirections[] = {Direction::ToOutlook, Direction::FromOutlook};

struct Outcome
{
    Case Of;
    Pair Times;          // the component and the loop over the table
    Measured ItemLoop{}; // over the items
    double KeyBytes = 0;
    std::optional<Measured> WalkTimes;
    double WalkCallsByFormula = 0;
};

const char* NameOf(Place place)
{
    return place == Place::OutOfProcess ? "out of process" : "in process";
}

// The texts of all match keys, as the collection keeps them: of one byte a character, behind a header of
// four; of both sides, the second ones where there is a partner.
double KeyBytes(const Kind& kind, const exchange::Run& run, size_t count)
{
    const auto bytes = [](const std::wstring& key) { return static_cast<double>(key.size() + 4); };
    const exchange::MatchRule& rule = kind.Category.Match;
    const automation::Object item = run.Items.GetObject(L"Item", 1L);
    run.HostRows.MoveFirst();
    double perPair = bytes(rule.FirstKeyOfItem(item)) + bytes(rule.FirstKeyOfRow(run.HostRows));
    if (rule.SecondKeyOfItem != nullptr)
    {
        perPair += (bytes(rule.SecondKeyOfItem(item)) + bytes(rule.SecondKeyOfRow(run.HostRows))) / 2;
    }
    return perPair * static_cast<double>(count);
}

void DemandExpected(const exchange::Run& run, Direction direction, const char* complaint)
{
    data::Changes expected;
    FillPending(direction, static_cast<size_t>(automation::LongOf(run.Items.Get(L"Count"))), expected);
    if (!AreEqual(run.Pending, expected))
    {
        throw std::runtime_error(complaint);
    }
}

Measured CollectOnce(const Kind& kind, Direction direction, Sides& sides, Purpose purpose)
{
    exchange::Run run = sides.AnotherRun();
    Measured measured = Measure(sides.Control(), purpose, [&] { Collect(kind, direction, run); });
    DemandExpected(run, direction, "the collection proposed something else than the nested walk does");
    return measured;
}

template<typename Read>
Measured ReadOnce(Sides& sides, Purpose purpose, Read&& read)
{
    const exchange::Run run = sides.AnotherRun();
    return Measure(sides.Control(), purpose, [&] { read(run); });
}

// Counted out of process, and then held against the formula.
Measured WalkOnce(const Kind& kind, Direction direction, Sides& sides, const WalkCalls& formula)
{
    const bool isCounted = sides.Where() == Place::OutOfProcess;
    exchange::Run run = sides.AnotherRun();
    Measured measured = Measure(sides.Control(), isCounted ? Purpose::TimedAndCounted : Purpose::Timed,
                                [&] { Walk(kind, direction, run); });
    DemandExpected(run, direction, "the nested walk proposed something unexpected");
    if (isCounted && !formula.Agrees(sides.Count(), measured.Traffic.AllCalls()))
    {
        throw std::runtime_error("the formula of the walk's calls is wrong");
    }
    return measured;
}

// By the number of its calls; those of the loop over the items are no faster.
bool IsTooLong(const Outcome& outcome, double patience)
{
    const double calls = static_cast<double>(outcome.ItemLoop.Traffic.AllCalls());
    return outcome.WalkCallsByFormula / calls * outcome.ItemLoop.Seconds > patience;
}

Outcome Measure(const Kind& kind, Direction direction, Sides& sides, const Plan& plan, const WalkCalls& walk)
{
    Outcome outcome;
    outcome.Of = {"collection", NameOf(sides.Where()), kind.Name, NameOf(direction), sides.Count()};
    Report::Progress("collection, " + outcome.Of.Place + ", " + kind.Name + " " + NameOf(direction) + ", " +
                     std::to_string(sides.Count()));
    outcome.Times = InTurn(
        sides.Where() == Place::InProcess,
        [&](Purpose purpose) { return CollectOnce(kind, direction, sides, purpose); },
        [&](Purpose purpose) {
            return ReadOnce(sides, purpose, [&](const exchange::Run& run) { ReadBareTable(kind, run); });
        });
    outcome.ItemLoop = Repeated(sides.Where() == Place::InProcess, [&](Purpose purpose) {
        return ReadOnce(sides, purpose, [&](const exchange::Run& run) { ReadBare(kind, run); });
    });
    outcome.KeyBytes = KeyBytes(kind, sides.AnotherRun(), sides.Count());
    outcome.WalkCallsByFormula = walk.At(sides.Count());
    if (!IsTooLong(outcome, plan.WalkPatience))
    {
        outcome.WalkTimes = WalkOnce(kind, direction, sides, walk);
    }
    return outcome;
}

double BytesPerRecord(const Outcome& outcome)
{
    return (static_cast<double>(outcome.Times.Component.Peak) - outcome.KeyBytes) /
           static_cast<double>(outcome.Of.Records);
}

void Write(Report& report, const Outcome& outcome)
{
    const auto& [component, bare] = outcome.Times;
    report.Figure(outcome.Of, "seconds", component.Seconds);
    report.Figure(outcome.Of, "table loop seconds", bare.Seconds);
    report.Figure(outcome.Of, "item loop seconds", outcome.ItemLoop.Seconds);
    report.Figure(outcome.Of, "peak bytes", static_cast<double>(component.Peak));
    report.Figure(outcome.Of, "key bytes", outcome.KeyBytes);
    report.Figure(outcome.Of, "walk calls by formula", outcome.WalkCallsByFormula);
    if (outcome.WalkTimes)
    {
        report.Figure(outcome.Of, "walk seconds", outcome.WalkTimes->Seconds);
        if (const long counted = outcome.WalkTimes->Traffic.AllCalls(); counted != 0)
        {
            report.Figure(outcome.Of, "walk calls counted", static_cast<double>(counted));
        }
    }
    report.Figures(outcome.Of, "", component.Traffic);
    report.Figures(outcome.Of, "table loop ", bare.Traffic);
    report.Figures(outcome.Of, "item loop ", outcome.ItemLoop.Traffic);
}

// How the time grew from the size before to this one, as the factor for twice the data.
std::string Growth(const Outcome& before, const Outcome& now)
{
    if (before.Of.Kind != now.Of.Kind || before.Of.Direction != now.Of.Direction ||
        now.Of.Records != 2 * before.Of.Records)
    {
        return "";
    }
    return Text(now.Times.Component.Seconds / before.Times.Component.Seconds, 2);
}

Table Tabled(const std::vector<Outcome>& outcomes, bool isInProcess)
{
    Table table({"kind", "direction", "records", "seconds", "table loop", isInProcess ? "beyond" : "ratio",
                 "item loop", "of item loop", "growth", "Outlook calls", "lookups", "more than table loop",
                 "calls of item loop", "host calls", "walk s", "walk calls", "fewer", "peak KB", "B/record"});
    const Outcome* before = &outcomes.front();
    for (const Outcome& outcome : outcomes)
    {
        const auto& [component, bare] = outcome.Times;
        const auto calls = static_cast<double>(component.Traffic.AllCalls());
        table.Add({outcome.Of.Kind, outcome.Of.Direction, Text(outcome.Of.Records),
                   Text(component.Seconds, 3), Text(bare.Seconds, 3),
                   isInProcess ? Text(component.Seconds - bare.Seconds, 3) : Text(outcome.Times.Ratio(), 2),
                   Text(outcome.ItemLoop.Seconds, 3), Text(component.Seconds / outcome.ItemLoop.Seconds, 3),
                   Growth(*before, outcome), Text(static_cast<size_t>(component.Traffic.OutlookCalls())),
                   Text(static_cast<size_t>(component.Traffic.OutlookLookups())),
                   std::to_string(component.Traffic.RoundTrips() - bare.Traffic.RoundTrips()),
                   Text(static_cast<size_t>(outcome.ItemLoop.Traffic.OutlookCalls())),
                   Text(static_cast<size_t>(component.Traffic.HostCalls())),
                   outcome.WalkTimes ? Text(outcome.WalkTimes->Seconds, 2) : "",
                   Text(static_cast<size_t>(outcome.WalkCallsByFormula)),
                   Text(outcome.WalkCallsByFormula / calls, 0), Text(component.Peak / 1024),
                   Text(BytesPerRecord(outcome), 0)});
        before = &outcome;
    }
    return table;
}

void MeasurePlace(Place place, const std::vector<size_t>& sizes, const Plan& plan, Report& report)
{
    // Of each kind and direction, the sizes in ascending order.
    std::vector<std::vector<Outcome>> series(Kinds().size() * std::size(kDirections));
    std::vector<WalkCalls> walks;
    for (const Kind& kind : Kinds())
    {
        for (const Direction direction : kDirections)
        {
            walks.emplace_back(kind, direction);
        }
    }
    for (const size_t size : sizes)
    {
        const DataFiles files(size);
        size_t at = 0;
        for (const Kind& kind : Kinds())
        {
            Sides sides(files, kind, place);
            for (const Direction direction : kDirections)
            {
                series[at].push_back(Measure(kind, direction, sides, plan, walks[at]));
                Write(report, series[at].back());
                ++at;
            }
        }
    }
    std::vector<Outcome> all;
    std::string formulas =
        "Calls of the nested walk (c comparisons, m records with a partner, n records):\n\n";
    for (size_t i = 0; i < series.size(); ++i)
    {
        all.insert(all.end(), series[i].begin(), series[i].end());
        formulas += "- " + series[i].front().Of.Kind + " " + series[i].front().Of.Direction + ": " +
                    walks[i].Formula() + "\n";
    }
    report.Print(std::string("Collection, Outlook ") + NameOf(place), Tabled(all, place == Place::InProcess));
    if (place == Place::OutOfProcess)
    {
        report.Print(formulas);
    }
}

} // namespace

void MeasureCollection(const Plan& plan, Report& report)
{
    MeasurePlace(Place::OutOfProcess, plan.OutOfProcess, plan, report);
    MeasurePlace(Place::InProcess, plan.InProcess, plan, report);
}

} // namespace benchmarks
