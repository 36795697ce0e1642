// Sample records as plain data, before they become rows of the host or items of Outlook. An empty text and an
// absent date are missing values.
#pragma once

#include "automation/Value.h"

#include <optional>
#include <string>
#include <vector>

namespace tools
{

using OptionalDate = std::optional<automation::Date>;

struct SampleAddress
{
    std::wstring country;
    std::wstring province;
    std::wstring city;
    std::wstring street;
    std::wstring postalCode;
};

struct SampleAccount
{
    std::wstring name;
    std::optional<SampleAddress> address;
    bool isChinese = false;
    std::wstring mailDomain;
    std::wstring dialCode;
};

struct SampleContact
{
    std::wstring surname;
    std::wstring givenName;
    std::wstring company; // the name of an account, or empty
    std::wstring nickName;
    std::wstring title;
    std::wstring suffix;
    std::wstring spouse;
    OptionalDate birthday;
    OptionalDate anniversary;
    std::wstring jobTitle;
    std::wstring department;
    std::wstring email;
    std::wstring businessPhone;
    std::wstring businessFax;
    std::wstring mobilePhone;
    std::wstring homePhone;
    std::wstring assistant;
    std::wstring assistantPhone;
    SampleAddress home;
    SampleAddress business; // that of the company; the host has it with the account
};

// Outlook's numbers for the status of a task.
enum class TaskStatus : long
{
    NotStarted = 0,
    InProgress = 1,
    Complete = 2,
    Waiting = 3,
    Deferred = 4,
};

struct SampleTask
{
    std::wstring subject;
    std::wstring category;
    std::wstring company;
    std::optional<size_t> contact; // one of the same records
    OptionalDate start;            // with the planned time of day
    OptionalDate due;
    OptionalDate completed;
    OptionalDate created;
    TaskStatus status = TaskStatus::NotStarted;
    long percent = 0;
    long importance = 1; // Outlook's: 0 low, 1 normal, 2 high
    bool reminds = false;
    long totalWork = 0; // minutes
    long actualWork = 0;
};

struct SampleEntry
{
    std::wstring subject;
    std::wstring category;
    std::optional<size_t> contact;
    automation::Date day;   // of the first occurrence
    automation::Date start; // times of day
    automation::Date end;
    bool isAllDay = false; // in Outlook only
    bool reminds = false;
    long repeat = 0;         // the host's F_ACTREPTIDX: 0 none, 1 daily to 6 yearly
    OptionalDate lastRepeat; // absent for one that repeats for ever
};

struct SampleRecords
{
    std::vector<SampleAccount> accounts;
    std::vector<SampleContact> contacts;
    std::vector<SampleTask> tasks;
    std::vector<SampleEntry> entries;
};

} // namespace tools
