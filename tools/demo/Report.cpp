#include "tools/demo/Report.h"

#include "automation/Text.h"

#include <cstdio>

namespace tools::demo
{

namespace
{

constexpr size_t kNamed = 4; // records named per line

void Print(const std::wstring& text)
{
    std::printf("%s\n", automation::ToUtf8(text).c_str());
}

std::wstring Counted(const std::vector<std::wstring>& labels)
{
    std::wstring text = std::to_wstring(labels.size());
    for (size_t i = 0; i < labels.size() && i < kNamed; ++i)
    {
        text += (i == 0 ? L" (" : L"; ") + labels[i];
    }
    if (labels.size() > kNamed)
    {
        text += L"; ...";
    }
    return labels.empty() ? text : text + L")";
}

void PrintDifference(const std::wstring& what, const Entries& before, const Entries& after)
{
    const Difference difference = Compare(before, after);
    if (!difference.added.empty())
    {
        Print(L"  " + what + L" added:   " + Counted(difference.added));
    }
    if (!difference.changed.empty())
    {
        Print(L"  " + what + L" changed: " + Counted(difference.changed));
    }
}

} // namespace

void PrintChanges(const Snapshot& before, const Snapshot& after)
{
    PrintDifference(L"Outlook items  ", before.outlookItems, after.outlookItems);
    PrintDifference(L"host contacts  ", before.hostContacts, after.hostContacts);
    PrintDifference(L"host accounts  ", before.hostAccounts, after.hostAccounts);
    PrintDifference(L"host activities", before.hostActivities, after.hostActivities);
}

void PrintRun(const std::wstring& category, const Outcome& outcome, const Snapshot& before,
              const Snapshot& after, long outlookCalls)
{
    Print(category);
    for (const std::wstring& line : outcome.confirmation)
    {
        Print(L"  | " + line);
    }
    for (const std::wstring& message : outcome.messages)
    {
        Print(L"  ! " + message);
    }
    PrintChanges(before, after);
    Print(L"  " + outcome.status);
    std::printf("  %.2f s, %ld calls received by Outlook\n\n", outcome.seconds, outlookCalls);
    std::fflush(stdout);
}

} // namespace tools::demo
