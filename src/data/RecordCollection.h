// A general-purpose collection as automation languages know it: records in the order of their addition, by
// 1-based position or by key (compared without regard to letter case).
#pragma once

#include "automation/Error.h"
#include "automation/Text.h"

#include <algorithm>
#include <deque>
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
        if (!key.empty())
        {
            AddKey(automation::UpperCased(key));
        }
        return mRecords.emplace_back(std::move(first), recordState);
    }

    // A copy of a record of another collection, without a key.
    void Append(Record record) { mRecords.push_back(std::move(record)); }

    // The record at a position from 1 to Count, or under a key. Throws automation::Error where there is none.
    Record& Item(long position) { return mRecords[Checked(position)]; }
    const Record& Item(long position) const { return mRecords[Checked(position)]; }
    Record& Item(const std::wstring& key) { return mRecords[Checked(key)]; }

    long Count() const noexcept { return static_cast<long>(mRecords.size()); }

    void Remove(long position) { Erase(Checked(position)); }
    void Remove(const std::wstring& key) { Erase(Checked(key)); }

    // The walk from the first record to the last (the enumerator of the automation collection).
    auto begin() const noexcept { return mRecords.begin(); }
    auto end() const noexcept { return mRecords.end(); }

  private:
    // Of the record that is about to be added.
    void AddKey(std::wstring upperCasedKey)
    {
        if (PositionOf(upperCasedKey) != mKeys.size())
        {
            throw automation::Error(E_INVALIDARG, L"Add",
                                    L"This key is already associated with an element of this collection");
        }
        mKeys.resize(mRecords.size());
        mKeys.push_back(std::move(upperCasedKey));
    }

    // The number of keys where there is none such.
    size_t PositionOf(const std::wstring& upperCasedKey) const noexcept
    {
        return static_cast<size_t>(std::find(mKeys.begin(), mKeys.end(), upperCasedKey) - mKeys.begin());
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
        const size_t position = key.empty() ? mKeys.size() : PositionOf(automation::UpperCased(key));
        return position < mKeys.size() ? position : Checked(0L);
    }

    void Erase(size_t position)
    {
        mRecords.erase(mRecords.begin() + static_cast<std::ptrdiff_t>(position));
        if (position < mKeys.size())
        {
            mKeys.erase(mKeys.begin() + static_cast<std::ptrdiff_t>(position));
        }
    }

    std::deque<Record> mRecords; // one stays where it is while others come
    std::vector<std::wstring>
        mKeys; // upper case, empty for none; of the records up to the last one with a key
};

} // namespace data
