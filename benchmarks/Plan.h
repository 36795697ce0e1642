// How much a run of the benchmark measures.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace benchmarks
{

struct Plan
{
    std::vector<size_t> OutOfProcess; // records on each side, ascending
    std::vector<size_t> InProcess;
    std::vector<size_t> ApplyInProcess;
    double WalkPatience;  // seconds; a nested walk that would take longer is not made
    double ApplyPatience; // the same of an apply pass
    size_t DetailCount;   // of the parts that look at one size only
    std::string X64{};    // folders with the component and the empty one
    std::string X86{};
};

Plan FullPlan();
Plan QuickPlan();

} // namespace benchmarks
