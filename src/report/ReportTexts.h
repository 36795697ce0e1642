// The report of a run in the interface language: the cells of its list, and the whole of it as a text for the
// clipboard, a file and the log.
#pragma once

#include "exchange/Report.h"

#include <string>
#include <vector>

#include <windows.h>

namespace report
{

// The report of a finished run, with what the main dialog shows of the run.
struct FinishedRun
{
    std::wstring Category;  // the kind's name in the interface language
    std::wstring Outcome{}; // the text of the status line
    SYSTEMTIME EndedAt{};   // local time
    exchange::Report Report{};
};

enum Column
{
    kChangeColumn,
    kRecordColumn,
    kReasonColumn,
    kFieldColumn,
    kLengthColumn,
    kWordsColumn,
    kCodeColumn, // not in the list
    kColumnCount,
};

std::wstring HeaderOf(Column column);
std::wstring CellOf(const exchange::ReportRow& row, Column column);
// Without line breaks and tabs.
std::wstring InOneLine(std::wstring text);
// Every cell of the row that holds something, with its header, line by line.
std::wstring DetailsOf(const exchange::ReportRow& row);

// Outcome and counts, line by line.
std::vector<std::wstring> SummaryOf(const FinishedRun& run);

enum class Values
{
    Included,
    // Without names of records, and without the words of others, which may hold values.
    LeftOut,
};

// Lines that end with CR LF; the cells of a row are separated by tabs.
std::wstring TextOf(const FinishedRun& run, Values values);

} // namespace report
