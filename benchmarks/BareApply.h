// The bare loops of the apply passes: for each pending record the reads and writes that the contract demands,
// taken from the benchmarks' own list of them, and nothing else.
#pragma once

#include "benchmarks/BareCollection.h"
#include "benchmarks/HostRecorder.h"

namespace benchmarks
{

// Writes the run's pending host records into Outlook.
void WriteBareToOutlook(const Kind& kind, const exchange::Run& run, Ids ids = Ids::PerObject);

// Reads what the run's pending items have for the host, and makes the host's calls of a pass that was written
// down.
void WriteBareFromOutlook(const Kind& kind, const exchange::Run& run, const HostCalls& hostCalls,
                          const automation::Object& host);

} // namespace benchmarks
