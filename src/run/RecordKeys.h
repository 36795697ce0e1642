// The match keys of one side of a run (the folder's items or the host's rows), each read once, in order, and
// only as far as the search needs. Records are counted from 1. Both directions of a two-way run share them.
#pragma once

#include "exchange/MatchRule.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace run
{

class RecordKeys
{
  public:
    virtual ~RecordKeys() = default;

    // Whether the side has this record, which is the one after a known one or one of those.
    virtual bool Exists(long position) = 0;
    // Makes the record, which exists, the current one. Throws automation::Error when it cannot be fetched.
    virtual void Reach(long position) = 0;

    // Whether the record's first key has been read.
    bool IsRead(long position) const noexcept;

    // Whether records whose first keys agree are compared by a second one.
    bool HasSecond() const noexcept { return mHasSecond; }

    // Throw automation::Error when a key cannot be read.
    const std::wstring& First(long position);
    const std::wstring& Second(long position);

  protected:
    explicit RecordKeys(bool hasSecond) noexcept : mHasSecond(hasSecond) {}

  private:
    virtual std::wstring ReadFirst() = 0;
    virtual std::wstring ReadSecond() = 0;

    bool mHasSecond;

    // A deque keeps its elements in place while it grows, so that an index can refer to the keys.
    std::deque<std::optional<std::wstring>> mFirst;
    std::deque<std::optional<std::wstring>> mSecond;
};

class ItemKeys : public RecordKeys
{
  public:
    ItemKeys(const exchange::MatchRule& rule, const automation::Object& items);

    // Items.Count, asked once at the start of each collection procedure, since a walk goes by it.
    long CountItems();
    bool Exists(long position) override { return position <= mCount; }
    void Reach(long position) override;
    const automation::Object& Current() const noexcept { return mCurrent; }

  private:
    std::wstring ReadFirst() override { return mRule.FirstKeyOfItem(mCurrent); }
    std::wstring ReadSecond() override { return mRule.SecondKeyOfItem(mCurrent); }

    const exchange::MatchRule& mRule;
    automation::Object mItems;
    automation::Object mCurrent;
    long mCurrentPosition = 0;
    long mCount = 0;
};

class RowKeys : public RecordKeys
{
  public:
    RowKeys(const exchange::MatchRule& rule, const automation::Recordset& rows);

    bool Exists(long position) override;
    void Reach(long position) override;

  private:
    std::wstring ReadFirst() override { return mRule.FirstKeyOfRow(mRows); }
    std::wstring ReadSecond() override { return mRule.SecondKeyOfRow(mRows); }

    const exchange::MatchRule& mRule;
    const automation::Recordset& mRows;
    long mCurrentPosition = 0; // 0 before the first row has been reached
    long mKnown = 0;           // rows that are known to exist
    bool mIsComplete = false;  // the end has been seen: there are no others
};

} // namespace run
