// One measured piece of work, and two of them measured in turn: the component's and the bare one.
#pragma once

#include "benchmarks/Memory.h"
#include "benchmarks/Traffic.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <optional>

namespace benchmarks
{

struct Measured
{
    double Seconds = std::numeric_limits<double>::infinity();
    benchmarks::Traffic Traffic;
    size_t Peak = 0; // bytes

    // The better time of two runs of the same work.
    void Merge(const Measured& other)
    {
        Seconds = std::min(Seconds, other.Seconds);
        if (Traffic.Calls.empty())
        {
            Traffic = other.Traffic;
            Peak = other.Peak;
        }
    }
};

struct Pair
{
    Measured Component;
    Measured Bare;

    double Ratio() const noexcept { return Component.Seconds / Bare.Seconds; }
};

// Where Outlook is in this process, counting costs as much as a call: such a run counts or is timed.
enum class Purpose
{
    TimedAndCounted,
    Counted,
    Timed,
};

template<typename Body>
Measured Measure(const automation::Object& control, Purpose purpose, Body&& body)
{
    Measured measured;
    std::optional<TrafficMeter> meter;
    if (purpose != Purpose::Timed)
    {
        meter.emplace(control);
    }
    const MemoryMeter memory;
    const auto start = std::chrono::steady_clock::now();
    body();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    measured.Peak = memory.Peak();
    if (meter)
    {
        measured.Traffic = meter->Stop();
    }
    if (purpose != Purpose::Counted)
    {
        measured.Seconds = elapsed.count();
    }
    return measured;
}

// One piece of work, several times while it does not take too long; the best time.
template<typename Work>
Measured Repeated(bool isInProcess, Work&& work)
{
    constexpr int kMostRounds = 7;
    constexpr double kEnough = 2; // seconds of measured time
    Measured best;
    if (isInProcess)
    {
        best.Merge(work(Purpose::Counted));
    }
    double spent = 0;
    for (int round = 0; round < kMostRounds && spent < kEnough; ++round)
    {
        const Measured one = work(isInProcess ? Purpose::Timed : Purpose::TimedAndCounted);
        spent += one.Seconds;
        best.Merge(one);
    }
    return best;
}

// Two pieces of work in turn, several times while it does not take too long; of each the best time. Both are
// called with the purpose of the run.
template<typename Component, typename Bare>
Pair InTurn(bool isInProcess, Component&& component, Bare&& bare)
{
    constexpr int kMostRounds = 7;
    constexpr double kEnough = 4; // seconds of measured time
    Pair pair;
    if (isInProcess)
    {
        pair.Component.Merge(component(Purpose::Counted));
        pair.Bare.Merge(bare(Purpose::Counted));
    }
    const Purpose purpose = isInProcess ? Purpose::Timed : Purpose::TimedAndCounted;
    double spent = 0;
    for (int round = 0; round < kMostRounds && spent < kEnough; ++round)
    {
        const Measured one = component(purpose);
        const Measured other = bare(purpose);
        spent += one.Seconds + other.Seconds;
        pair.Component.Merge(one);
        pair.Bare.Merge(other);
    }
    return pair;
}

} // namespace benchmarks
