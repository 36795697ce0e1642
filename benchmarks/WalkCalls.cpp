#include "benchmarks/WalkCalls.h"

#include "benchmarks/Measurement.h"
#include "benchmarks/Report.h"
#include "benchmarks/Sides.h"
#include "benchmarks/Walk.h"

#include <cmath>
#include <cstdlib>
#include <utility>

namespace benchmarks
{

namespace
{

constexpr size_t kFew[] = {10, 11, 21, 32};

long CountedWalk(const Kind& kind, Direction direction, size_t count)
{
    const DataFiles files(count);
    Sides sides(files, kind, Place::InProcess);
    exchange::Run run = sides.NewRun();
    return Measure({}, Purpose::Counted, [&] { Walk(kind, direction, run); }).Traffic.AllCalls();
}

} // namespace

WalkCalls::WalkCalls(const Kind& kind, Direction direction) : mDirection(direction)
{
    // Elimination, with the counts as the last column.
    std::array<std::array<double, kTerms + 1>, kTerms> system{};
    for (size_t i = 0; i < kTerms; ++i)
    {
        const Terms terms = TermsAt(kFew[i]);
        std::copy(terms.begin(), terms.end(), system[i].begin());
        system[i][kTerms] = static_cast<double>(CountedWalk(kind, direction, kFew[i]));
    }
    for (size_t column = 0; column < kTerms; ++column)
    {
        size_t pivot = column;
        for (size_t i = column; i < kTerms; ++i)
        {
            pivot = std::fabs(system[i][column]) > std::fabs(system[pivot][column]) ? i : pivot;
        }
        std::swap(system[column], system[pivot]);
        for (size_t i = 0; i < kTerms; ++i)
        {
            const double factor = i == column ? 0 : system[i][column] / system[column][column];
            for (size_t j = column; j <= kTerms; ++j)
            {
                system[i][j] -= factor * system[column][j];
            }
        }
    }
    for (size_t i = 0; i < kTerms; ++i)
    {
        mCoefficients[i] = std::round(system[i][kTerms] / system[i][i]);
    }
}

// The host has the records 0 to n-1, Outlook those from n/2 on, so that the records without a partner come
// first in the host and last in Outlook.
WalkCalls::Terms WalkCalls::TermsAt(size_t count) const
{
    const double all = static_cast<double>(count);
    const size_t half = count / 2;
    const double alone = static_cast<double>(half);
    const double matched = all - alone;
    const double before = mDirection == Direction::FromOutlook ? alone : 0; // a partner in the other side
    const double comparisons = alone * all + matched * before + matched * (matched + 1) / 2;
    return {comparisons, matched, all, 1};
}

double WalkCalls::At(size_t count) const
{
    const Terms terms = TermsAt(count);
    double calls = 0;
    for (size_t i = 0; i < kTerms; ++i)
    {
        calls += mCoefficients[i] * terms[i];
    }
    return calls;
}

bool WalkCalls::Agrees(size_t count, long counted) const
{
    return At(count) == static_cast<double>(counted);
}

std::string WalkCalls::Formula() const
{
    constexpr const char* kNames[kTerms] = {" c", " m", " n", ""};
    std::string formula;
    for (size_t i = 0; i < kTerms; ++i)
    {
        if (const auto coefficient = static_cast<long>(mCoefficients[i]); coefficient != 0)
        {
            formula += formula.empty() ? "" : coefficient < 0 ? " - " : " + ";
            formula += std::to_string(std::labs(coefficient)) + kNames[i];
        }
    }
    return formula;
}

} // namespace benchmarks
