#include "tests/endurance/Footprint.h"
#include "tests/endurance/Office.h"
#include "tests/endurance/ProcessLanguage.h"
#include "tests/endurance/StaticTexts.h"
#include "tests/support/Fakes.h"
#include "tests/support/Thoroughness.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

using resources::Language;
using sandbox::Edition;
using test_support::Footprint;
using test_support::kUsesOfRound;
using test_support::Office;
using test_support::ProcessLanguage;
using test_support::StaticTexts;
using test_support::UseNumber;

namespace
{

constexpr size_t kRecordsOfKind = 4;
constexpr long kBoundedRuns = 60;
constexpr long kLongRuns = 1000;

// The later half of the runs may be larger than the quarter before by so much, whatever their number: the
// system's caches still take a kilobyte during the first hundred runs, and nothing afterwards. Memory in
// pages also holds what the database driver keeps.
constexpr Footprint kToleranceOfRuns = {
    .heapBytes = 1500, .residentBytes = 1024 * 1024, .gdiObjects = 1, .kernelHandles = 2};

// The growth over seven uses of the same kind, the first three not counted: everything that a use needs once
// is there then, so that a few bytes of a leak show.
constexpr int kFirstUses = 3;
constexpr int kUsesAlike = 4;
constexpr Footprint kToleranceOfAlike = {.heapBytes = 200, .residentBytes = 1024 * 1024, .kernelHandles = 1};

Footprint Smallest(const std::vector<Footprint>& samples, size_t first, size_t end)
{
    Footprint smallest = samples.at(first);
    for (size_t i = first; i < end; ++i)
    {
        smallest = test_support::Smaller(smallest, samples[i]);
    }
    return smallest;
}

// From the second quarter of the samples to their second half; during the first the system's caches fill.
Footprint Growth(const std::vector<Footprint>& samples)
{
    const size_t middle = (samples.size() + 1) / 2;
    const size_t first = std::max<size_t>(1, samples.size() / 4);
    return Smallest(samples, middle, samples.size()) - Smallest(samples, first, middle);
}

// One round of uses in either language.
void UseInBothLanguages(Office& english, Office& chinese)
{
    for (Office* office : {&english, &chinese})
    {
        const ProcessLanguage language(office == &english ? Language::English : Language::Chinese);
        for (size_t k = 0; k < kUsesOfRound; ++k)
        {
            EXPECT_EQ("", office->Check(UseNumber(k)));
        }
    }
}

} // namespace

TEST(ThisProcess, StaysAsLargeAsItIsOverManyRunsOfTheComponent)
{
    const StaticTexts texts;
    std::optional<ProcessLanguage> language(Language::English);
    Office english(Edition::English, kRecordsOfKind);
    language.emplace(Language::Chinese);
    Office chinese(Edition::Chinese, kRecordsOfKind);
    language.reset();
    const long runsOfSeries = test_support::IsLongRun() ? kLongRuns : kBoundedRuns;
    const auto runs = [&] { return english.Runs() + chinese.Runs(); };
    const Footprint growth = test_support::GrowthOfLevelSeries(kToleranceOfRuns, [&] {
        std::vector<Footprint> samples;
        samples.reserve(static_cast<size_t>(runsOfSeries));
        for (const long end = runs() + runsOfSeries; runs() < end && !testing::Test::HasFailure();)
        {
            UseInBothLanguages(english, chinese);
            samples.push_back(texts.Without(Footprint::Now()));
        }
        return Growth(samples);
    });
    EXPECT_TRUE(growth.IsWithin(kToleranceOfRuns)) << TextOf(growth);
    test_support::ReportFigure(
        "endurance: " + std::to_string(runs()) +
        " runs of SynLoad in one process; from their second quarter to their second half: " + TextOf(growth));
}

TEST(EveryDialog, FreesEveryByteThatItAllocates)
{
    const StaticTexts texts;
    const ProcessLanguage language(Language::English);
    Office office(Edition::English, kRecordsOfKind);
    const test_support::Use use = {
        .kind = &test_support::kContactRecords, .direction = 3, .rule = 4, .tour = true};
    const auto useSeveralTimes = [&](int times) {
        for (int i = 0; i < times; ++i)
        {
            EXPECT_EQ("", office.Check(use));
        }
        return texts.Without(Footprint::Now());
    };
    Footprint before = useSeveralTimes(kFirstUses);
    const Footprint growth = test_support::GrowthOfLevelSeries(kToleranceOfAlike, [&] {
        const Footprint after = useSeveralTimes(kUsesAlike);
        return after - std::exchange(before, after);
    });
    EXPECT_TRUE(growth.IsWithin(kToleranceOfAlike)) << TextOf(growth);
}
