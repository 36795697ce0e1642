// The match keys of one side of a run (the folder's items or the host's rows), each read once, in order, and
// only as far as the search needs, with what tells the records apart for good. Records are counted from 1.
// Both directions of a two-way run share them.
#pragma once

#include "automation/Error.h"
#include "exchange/Kind.h"
#include "exchange/Run.h"
#include "run/TableKeys.h"

#include <optional>
#include <string>
#include <unordered_set>
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
    // The record is the current one, and likely to be proposed: its identity is read while it is at hand.
    virtual void Keep(long /*position*/) {}
    virtual bool KeepsLikelyOnes() const noexcept { return false; }

    // Whether the record's first key has been read.
    bool IsRead(long position) const noexcept;
    // False for what has turned out to be no record of the kind: an item of another kind, a record that is
    // gone, one that has been met before at another position. It has no keys then.
    bool IsRecord(long position) const { return !mNone.contains(position); }
    // The items of other kinds among those that have been read.
    long OtherKinds() const noexcept { return mOtherKinds; }

    // Whether records whose first keys agree are compared by a second one.
    bool HasSecond() const noexcept { return mHasSecond; }

    // Throw automation::Error when a key cannot be read.
    data::StoredText First(long position);
    data::StoredText Second(long position);

    // The read's result; otherwise where it shows that there is no record of the kind.
    template<typename Result, typename Read>
    Result ReadRecord(long position, Result otherwise, Read&& read);

  protected:
    // texts: of the run, for what is remembered.
    RecordKeys(bool hasSecond, data::TextStore& texts) noexcept : mHasSecond(hasSecond), mTexts(texts) {}

    // Remembers the record by its identity; one that was met before is none.
    void Remember(long position, const std::wstring& identity);
    const Identities& Known() const noexcept { return mIdentities; }
    bool HasMetOneTwice() const noexcept { return mHasMetOneTwice; }
    // Takes over keys that have been read in another way; those that it leaves open are read when asked for.
    void Take(TableKeys& table) noexcept;

  private:
    virtual std::wstring ReadFirst() = 0;
    virtual std::wstring ReadSecond() = 0;
    virtual bool TellsOfNone(const automation::Error& /*error*/) const noexcept { return false; }

    template<typename Read>
    data::StoredText ReadOnce(Keys& keys, long position, Read&& read);

    bool mHasSecond;
    data::TextStore& mTexts;
    Keys mFirst;
    Keys mSecond;
    std::unordered_set<long> mNone;
    long mOtherKinds = 0;
    Identities mIdentities;
    bool mHasMetOneTwice = false;
};

template<typename Result, typename Read>
Result RecordKeys::ReadRecord(long position, Result otherwise, Read&& read)
{
    try
    {
        return read();
    }
    catch (const automation::Error& error)
    {
        if (!TellsOfNone(error))
        {
            throw;
        }
        const bool isNew = mNone.insert(position).second;
        mOtherKinds += isNew && automation::IsMissingMember(error) ? 1 : 0;
        return otherwise;
    }
}

class ItemKeys : public RecordKeys
{
  public:
    // filters: of the direction from Outlook. keepsAll: every item is likely to be proposed. usesTable: the
    // folder's table is tried before the items.
    ItemKeys(const exchange::MatchRule& rule, const exchange::Filters& filters, exchange::Run& run,
             bool keepsAll, bool usesTable);

    // Items.Count, asked once at the start of each collection procedure, since a walk goes by it.
    long CountItems();
    long Count() const noexcept { return mCount; }
    // Whether other programs have changed the folder since its items were counted.
    bool HasMoved() const;

    // Whether the folder's table has been of use, or not been tried yet.
    bool UsesTable() const noexcept { return mUsesTable; }

    bool Exists(long position) override;
    void Reach(long position) override;
    void Keep(long position) override;
    bool KeepsLikelyOnes() const noexcept override { return !mKeepsAll; }
    // Whether the filter keeps the item.
    bool Keeps(long position);
    // Empty where the item's store gives none.
    data::StoredText EntryId(long position);

  private:
    std::wstring ReadFirst() override;
    std::wstring ReadSecond() override { return mRule.SecondKeyOfItem(mCurrent); }
    bool TellsOfNone(const automation::Error& error) const noexcept override
    {
        return automation::IsMissingMember(error) || automation::IsGone(error);
    }

    void TryTable();
    bool HasTable() const noexcept { return mUsesTable && mHasTriedTable; }
    automation::Object Fetched(long position);

    const exchange::MatchRule& mRule;
    const exchange::Filters& mFilters;
    exchange::Run& mRun;
    bool mKeepsAll;
    bool mUsesTable;
    bool mHasTriedTable = false;            // positions are those of the table then, where it is of use
    std::vector<std::optional<bool>> mKept; // by the filter, as far as the table tells
    automation::Object mCurrent;
    long mCurrentPosition = 0;
    long mCount = 0;
};

class RowKeys : public RecordKeys
{
  public:
    RowKeys(const exchange::MatchRule& rule, exchange::Run& run, std::wstring keyColumn);

    // RecordCount when the walk began.
    long Count();
    // Whether the host has sorted or filtered its rows while they were read.
    bool HasMoved();

    bool Exists(long position) override;
    void Reach(long position) override;
    // What the row has in its key column.
    data::StoredText Key(long position);

  private:
    std::wstring ReadFirst() override;
    std::wstring ReadSecond() override { return mRule.SecondKeyOfRow(mRows); }
    bool TellsOfNone(const automation::Error& error) const noexcept override
    {
        return automation::IsGone(error);
    }
    std::wstring KnownKey(long position) const { return Known().At(position).Text(); }
    bool StepBehind(long position);

    const exchange::MatchRule& mRule;
    const automation::Recordset& mRows;
    std::wstring mKeyColumn;
    long mCurrentPosition = 0; // 0 before the first row has been reached
    long mKnown = 0;           // rows that are known to exist
    bool mIsComplete = false;  // the end has been seen: there are no others
    std::optional<long> mCount;
};

} // namespace run
