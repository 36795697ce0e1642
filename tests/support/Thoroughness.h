// How much a test tries. The usual run of all tests is bounded; "./test --long" tries everything (it sets
// TELVIX_LONG). What was tried is reported as a figure, so that a bounded run does not pass for a whole one.
#pragma once

#include <string>

namespace test_support
{

bool IsLongRun();

// Prints a figure, and adds it to the file that TELVIX_FIGURES names, which ./test shows at its end.
// text: one line, UTF-8, for example "faults tried, contacts to Outlook: 412".
void ReportFigure(const std::string& text);

} // namespace test_support
