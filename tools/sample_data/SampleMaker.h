// Composes sample records from the words: the same ones on every machine, no two of them alike in what they
// are matched by, with gaps where real data has gaps.
#pragma once

#include "tools/sample_data/Records.h"
#include "tools/sample_data/Words.h"

#include <random>
#include <set>

namespace tools
{

// The day that the sample data lies around: 6 May 2003, a Tuesday.
inline constexpr automation::Date kSampleToday{37747};

// Every so many of the user's contacts is in Outlook as well; tasks and entries are linked to these.
inline constexpr size_t kEveryContactInOutlook = 3;

class SampleMaker
{
  public:
    explicit SampleMaker(unsigned seed) : mEngine(seed) {}

    // Accounts with the companies from a number on, English and Chinese ones in turn; the suffixes set them
    // apart from those without.
    std::vector<SampleAccount> Accounts(size_t first, size_t count, const std::wstring& englishSuffix = {},
                                        const std::wstring& chineseSuffix = {});
    // A contact of an account; null for one without.
    SampleContact Contact(const SampleAccount* account);
    // So many contacts: the accounts' in turn, every twelfth without one.
    std::vector<SampleContact> Contacts(const std::vector<SampleAccount>& accounts, size_t count);
    // A task, perhaps with a contact of the records and his company.
    SampleTask Task(const SampleRecords& records);
    // An entry of the calendar, by a repeat rule or (0) without one.
    SampleEntry Entry(const SampleRecords& records, long repeat);

  private:
    size_t Below(size_t bound) { return mEngine() % bound; }
    bool Chance(unsigned percent) { return Below(100) < percent; }
    std::wstring Pick(std::span<const wchar_t* const> words) { return words[Below(words.size())]; }
    std::wstring Number(size_t digits);
    std::wstring Phone(const std::wstring& dialCode, unsigned percent);
    SampleAddress AddressIn(const Place& place);
    automation::Date DayAround(long days);
    OptionalDate DayInYears(int first, int last, unsigned percent);
    std::optional<size_t> LinkedContact(const SampleRecords& records, unsigned percent);
    // Gives the contact a new name, the word that goes with it and a mail address.
    void Name(SampleContact& contact, const SampleAccount* account, bool isChinese);
    automation::Date WorkingDay();
    void PlanTask(SampleTask& task);
    void ProgressTask(SampleTask& task);
    // False for a key that was there before.
    bool IsNew(const std::wstring& key) { return mKeys.insert(key).second; }

    std::mt19937 mEngine;
    std::set<std::wstring> mKeys;
};

} // namespace tools
