// The log of runs, for administrators. It is off by default: no file is opened then. Two values in the
// registry turn it on (see docs/administrators.md); each run then writes a file of its own, made from its
// report.
#pragma once

#include "report/ReportTexts.h"

namespace report
{

// Below HKEY_LOCAL_MACHINE (its 64-bit view), then below HKEY_CURRENT_USER; the first that has the value
// counts.
inline constexpr wchar_t kSettingsKey[] = L"Software\\QUENLAR\\Telvix";
inline constexpr wchar_t kLogsRuns[] = L"RunLog";         // DWORD; other than 0: runs are logged
inline constexpr wchar_t kLogsValues[] = L"RunLogValues"; // DWORD; other than 0: with names and messages

inline constexpr size_t kMostLogs = 5;
inline constexpr size_t kMostLogBytes = size_t{1024} * 1024; // of a file; the rest is left out

// Writes the run's file if the registry asks for it, and deletes the oldest ones. Never throws: a log that
// cannot be written is left out.
void LogRun(const FinishedRun& run) noexcept;

} // namespace report
