// The parts of the benchmark; each measures, reports its figures and prints its tables.
#pragma once

#include "benchmarks/Plan.h"
#include "benchmarks/Report.h"

#include <string>

namespace benchmarks
{

void MeasureCollection(const Plan& plan, Report& report);
void MeasureApply(const Plan& plan, Report& report);
// What a cache of DISPIDs per item class would save.
void MeasureIds(const Plan& plan, Report& report);
// Progress and painting during a run.
void MeasureDisplay(const Plan& plan, Report& report);
// Creation, size and opening of dialogs, against an empty component.
void MeasureComponent(const Plan& plan, Report& report);

} // namespace benchmarks
