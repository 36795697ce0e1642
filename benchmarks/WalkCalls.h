// The number of calls of the plain nested walk at any size, by a formula: so much per comparison, per record
// with a partner, per record walked, and a constant. The four coefficients come from walks that were counted
// at four small sizes; Check holds the formula against a count at another size.
#pragma once

#include "benchmarks/Kinds.h"

#include <array>
#include <string>

namespace benchmarks
{

class WalkCalls
{
  public:
    // Counts walks of a few dozen records in process.
    WalkCalls(const Kind& kind, Direction direction);

    // Calls of all targets, lookups of names not included.
    double At(size_t count) const;
    // Whether the formula gives what a walk at this size was counted to make.
    bool Agrees(size_t count, long counted) const;
    std::string Formula() const;

  private:
    static constexpr size_t kTerms = 4;
    using Terms = std::array<double, kTerms>;

    Terms TermsAt(size_t count) const;

    Direction mDirection;
    Terms mCoefficients{};
};

} // namespace benchmarks
