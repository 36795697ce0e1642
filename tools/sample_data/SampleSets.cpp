#include "tools/sample_data/SampleSets.h"

namespace tools
{

namespace
{

using automation::Date;

constexpr unsigned kSeed = 2003;
constexpr long kRuleCount = 6;

// How many records there are of each kind; of the entries those that repeat come last.
struct Counts
{
    size_t accounts;
    size_t contacts;
    size_t tasks;
    size_t singleEntries;
    size_t repeatedEntries;
};

constexpr Counts kMine{60, 220, 150, 96, 24};
constexpr Counts kTheirs{10, 40, 25, 20, 6};
constexpr Counts kOutlookOnly{8, 36, 30, 20, 0};
constexpr Counts kElsewhere{4, 24, 16, 12, 0};

SampleRecords Made(SampleMaker& maker, const Counts& counts, std::vector<SampleAccount> accounts)
{
    SampleRecords records;
    records.accounts = std::move(accounts);
    records.contacts = maker.Contacts(records.accounts, counts.contacts);
    for (size_t i = 0; i < counts.tasks; ++i)
    {
        records.tasks.push_back(maker.Task(records));
    }
    for (size_t i = 0; i < counts.singleEntries + counts.repeatedEntries; ++i)
    {
        const bool isRepeated = i >= counts.singleEntries;
        records.entries.push_back(maker.Entry(
            records, isRepeated ? 1 + static_cast<long>(i - counts.singleEntries) % kRuleCount : 0));
    }
    return records;
}

Date Time(int hour, int minute = 0)
{
    return {(hour * 60 + minute) / 1440.0};
}

// Appointments as only Outlook knows them: whole days, over midnight, repeating with and without an end.
void AddSpecialEntries(std::vector<SampleEntry>& entries)
{
    const auto day = [](int days) { return Date{kSampleToday.days + days}; };
    SampleEntry entry;
    entry.category = L"Business";
    entry.isAllDay = true;
    entry.subject = L"Company outing";
    entry.day = day(10);
    entries.push_back(entry);
    entry.subject = L"劳动节假期";
    entry.category = L"";
    entry.day = day(-5);
    entries.push_back(entry);

    entry.isAllDay = false;
    entry.subject = L"Night shift at the customer's";
    entry.day = day(3);
    entry.start = Time(22);
    entry.end = Time(1);
    entries.push_back(entry);

    entry.subject = L"Stand-up meeting";
    entry.category = L"Business";
    entry.day = day(1);
    entry.start = Time(9);
    entry.end = Time(9, 15);
    entry.repeat = 1;
    entry.lastRepeat = day(60);
    entries.push_back(entry);
    entry.subject = L"Evening course";
    entry.start = Time(18, 30);
    entry.end = Time(20);
    entry.repeat = 2;
    entry.lastRepeat.reset();
    entries.push_back(entry);
}

// Some of Outlook's own contacts work at companies that the host knows.
std::vector<SampleAccount> CompaniesOfOutlook(SampleMaker& maker, const SampleSets& sets)
{
    std::vector<SampleAccount> companies = maker.Accounts(0, kOutlookOnly.accounts, L" Holding", L"（集团）");
    for (size_t i = 0; i < sets.mine.accounts.size(); i += 7)
    {
        companies.push_back(sets.mine.accounts[i]);
    }
    return companies;
}

SampleSets MadeSets()
{
    SampleMaker maker(kSeed);
    SampleSets sets;
    sets.mine = Made(maker, kMine, maker.Accounts(0, kMine.accounts));
    sets.theirs = Made(maker, kTheirs, maker.Accounts(20, kTheirs.accounts, L" – Branch", L"分公司"));
    sets.outlookOnly = Made(maker, kOutlookOnly, CompaniesOfOutlook(maker, sets));
    AddSpecialEntries(sets.outlookOnly.entries);
    sets.elsewhere = Made(maker, kElsewhere, maker.Accounts(30, kElsewhere.accounts, L" & Co.", L"事务所"));
    return sets;
}

bool HasChanged(size_t index)
{
    return index / kEveryContactInOutlook % 2 != 0;
}

} // namespace

const SampleSets& Samples()
{
    static const SampleSets sets = MadeSets();
    return sets;
}

bool IsContactInOutlook(size_t index)
{
    return index % kEveryContactInOutlook == 0;
}

bool IsTaskInOutlook(size_t index)
{
    return index % 3 == 1;
}

bool IsEntryInOutlook(size_t index)
{
    return index % 3 == 2;
}

SampleContact AsInOutlook(SampleContact contact, size_t index)
{
    if (HasChanged(index))
    {
        contact.mobilePhone = L"+86 139 " + std::to_wstring(10'000'000 + index * 7919);
        contact.homePhone.clear();
    }
    return contact;
}

SampleTask AsInOutlook(SampleTask task, size_t index)
{
    if (HasChanged(index) && task.status == TaskStatus::NotStarted)
    {
        task.status = TaskStatus::InProgress;
        task.percent = 50;
    }
    return task;
}

SampleEntry AsInOutlook(SampleEntry entry, size_t index)
{
    if (HasChanged(index))
    {
        entry.reminds = !entry.reminds;
    }
    return entry;
}

} // namespace tools
