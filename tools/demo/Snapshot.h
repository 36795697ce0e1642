// The contents of the host's database and of the mailbox at one moment, and the changes since.
#pragma once

#include "sandbox/database/Connection.h"

#include <map>
#include <string>
#include <vector>

namespace tools::demo
{

struct Entry
{
    std::wstring label;   // what a reader calls the record
    std::wstring content; // all its values, to see whether it has changed
};

// Record key to entry.
using Entries = std::map<std::wstring, Entry>;

struct Snapshot
{
    Entries hostContacts;
    Entries hostAccounts;
    Entries hostActivities;
    Entries outlookItems;
};

struct Difference
{
    std::vector<std::wstring> added; // labels
    std::vector<std::wstring> changed;
};

// Reads both databases. Throws automation::Error.
Snapshot TakeSnapshot(sandbox::Connection& host, sandbox::Connection& mailbox);

Difference Compare(const Entries& before, const Entries& after);

} // namespace tools::demo
