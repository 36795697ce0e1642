// The demo's printed report of a run.
#pragma once

#include "tools/demo/Conversation.h"
#include "tools/demo/Snapshot.h"

#include <string>

namespace tools::demo
{

// outlookCalls: the calls that Outlook received during the run.
void PrintRun(const std::wstring& category, const Outcome& outcome, const Snapshot& before,
              const Snapshot& after, long outlookCalls);

// The changes on both sides, without a conversation.
void PrintChanges(const Snapshot& before, const Snapshot& after);

} // namespace tools::demo
