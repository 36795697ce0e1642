// A general-purpose collection as automation languages know it: records in the order of their addition, by
// 1-based position or by key (compared without regard to letter case).
#pragma once

#include "automation/Error.h"
#include "automation/Text.h"

#include <string>
#include <utility>
#include <vector>

namespace data
{

template<typename Record>
class RecordCollection
{
  public:
    // A new record from its two properties, under a key unless that is empty. Throws automation::Error when
    // the key is taken.
    template<typename First>
    Record& Add(First first, long recordState, const std::wstring& key = {})
    {
        Entry entry{Record(std::move(first), recordState), automation::UpperCased(key)};
        if (!key.empty() && PositionOf(entry.key) != mEntries.size())
        {
            throw automation::Error(E_INVALIDARG, L"Add",
                                    L"This key is already associated with an element of this collection");
        }
        mEntries.push_back(std::move(entry));
        return mEntries.back().record;
    }

    // The record at a position from 1 to Count, or under a key. Throws automation::Error where there is none.
    Record& Item(long position) { return mEntries[Checked(position)].record; }
    const Record& Item(long position) const { return mEntries[Checked(position)].record; }
    Record& Item(const std::wstring& key) { return mEntries[Checked(key)].record; }

    long Count() const noexcept { return static_cast<long>(mEntries.size()); }

    void Remove(long position) { Erase(Checked(position)); }
    void Remove(const std::wstring& key) { Erase(Checked(key)); }

    // The walk from the first record to the last (the enumerator of the automation collection).
    auto begin() const noexcept { return Walk{mEntries.data()}; }
    auto end() const noexcept { return Walk{mEntries.data() + mEntries.size()}; }

  private:
    struct Entry
    {
        Record record;
        std::wstring key; // in upper case; empty for none
    };

    struct Walk
    {
        const Entry* at;
        const Record& operator*() const noexcept { return at->record; }
        Walk& operator++() noexcept
        {
            ++at;
            return *this;
        }
        bool operator==(const Walk&) const = default;
    };

    size_t PositionOf(const std::wstring& upperCasedKey) const noexcept
    {
        size_t position = 0;
        while (position < mEntries.size() && mEntries[position].key != upperCasedKey)
        {
            ++position;
        }
        return position;
    }

    size_t Checked(long position) const
    {
        if (position < 1 || position > Count())
        {
            throw automation::Error(DISP_E_BADINDEX, L"Item", L"Subscript out of range");
        }
        return static_cast<size_t>(position) - 1;
    }

    size_t Checked(const std::wstring& key) const
    {
        return Checked(key.empty() ? 0 : static_cast<long>(PositionOf(automation::UpperCased(key))) + 1);
    }

    void Erase(size_t position) { mEntries.erase(mEntries.begin() + static_cast<std::ptrdiff_t>(position)); }

    std::vector<Entry> mEntries;
};

} // namespace data
