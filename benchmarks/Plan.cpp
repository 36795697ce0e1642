#include "benchmarks/Plan.h"

namespace benchmarks
{

Plan FullPlan()
{
    return {.OutOfProcess = {60, 125, 250, 500, 1000, 2000},
            .InProcess = {1000, 6250, 12500, 25000, 50000},
            .ApplyInProcess = {1000, 2000},
            .WalkPatience = 20,
            .ApplyPatience = 20,
            .DetailCount = 250};
}

Plan QuickPlan()
{
    return {.OutOfProcess = {20, 40},
            .InProcess = {1000, 2000},
            .ApplyInProcess = {100},
            .WalkPatience = 5,
            .ApplyPatience = 5,
            .DetailCount = 40};
}

} // namespace benchmarks
