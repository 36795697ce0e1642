// The report of the last run, which the button "Report..." of the main dialog opens: outcome, counts, and the
// list of records that were not written, or not whole, with the reasons.
#pragma once

#include "report/ReportTexts.h"

namespace report
{

// Shows the dialog without an owner and returns when the user has closed it. Throws when it cannot be shown.
void ShowReport(const FinishedRun& run);

} // namespace report
