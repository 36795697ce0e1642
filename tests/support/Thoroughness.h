// How much a test tries: a little in "./test --changed" (which sets TELVIX_BRIEF), for a quick answer between
// two edits; a bounded part in the usual run of all tests; everything in "./test --long" (TELVIX_LONG). A
// test reports as a figure how much it has tried, so that a bounded run does not pass for a whole one.
#pragma once

#include <string>

namespace test_support
{

bool IsLongRun();
bool IsBriefRun();

// How often a test repeats something that is usually repeated `usual` times: an eighth of it, at least once,
// in a brief run, ten times as often in a long one.
long Times(long usual);

// The one of three amounts that belongs to the present run.
template<typename Amount>
Amount ByThoroughness(Amount brief, Amount usual, Amount everything)
{
    return IsLongRun() ? everything : IsBriefRun() ? brief : usual;
}

// Prints a figure, and adds it to the file that TELVIX_FIGURES names, which ./test shows at its end.
// text: one line, UTF-8, for example "faults tried, contacts to Outlook: 412".
void ReportFigure(const std::string& text);

} // namespace test_support
