// The report of one run: how many records were written, and which ones were not, or not whole, with the
// reason. Data only: the run carries and fills it, the main dialog shows it afterwards. It holds names of
// records, and otherwise no value of a field; secrets are taken out of the words of others.
#pragma once

#include "exchange/Change.h"
#include "state/Remarks.h"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace exchange
{

struct ReportRow
{
    std::optional<Change> Of; // nothing for a remark about the run as a whole
    std::wstring Name;        // of the record; empty where nothing tells it
    state::Remark Remark;
    long Times = 1; // of a missing right: how often it was asked for
};

struct ChangeCount
{
    long Accepted = 0; // by the user
    long Written = 0;
    long NotWritten = 0;
    long LeftAlone = 0; // the same run has written the record in the other direction

    // After a pass that has ended early.
    long NotReached() const noexcept
    {
        const long rest = Accepted - Written - NotWritten - LeftAlone;
        return rest > 0 ? rest : 0;
    }
};

class Report : public state::RemarkSink
{
  public:
    // The user has accepted so many changes of a kind.
    void Accept(Change change, std::ptrdiff_t records) { Of(change).Accepted += static_cast<long>(records); }

    // Calls write, which handles one record; remarks during the call belong to that record. An error ends the
    // record and passes on to the caller. nameOf: the record's name, read during the call and only if the
    // record gets a remark; it may throw.
    void Record(Change change, std::function<std::wstring()> nameOf, const std::function<void()>& write);
    void LeaveAlone(Change change) { ++Of(change).LeftAlone; }

    void Take(state::Remark remark) override;

    // Items of the folder that are no records of the kind.
    void CountOtherItems(long items) { mOtherItems = items; }
    void Fail() { mFailed = true; }

    bool HasFailed() const noexcept { return mFailed; }
    const std::vector<ReportRow>& Rows() const noexcept { return mRows; }
    const ChangeCount& CountOf(Change change) const { return mCounts.at(static_cast<size_t>(change)); }
    long OtherItems() const noexcept { return mOtherItems; }
    // Records that were gone, or another pair, when it came to writing them.
    long Vanished() const;
    long NotReached() const;
    // Whether the user can learn more from it than from the status line.
    bool HasSomethingToTell() const;

  private:
    ChangeCount& Of(Change change) { return mCounts.at(static_cast<size_t>(change)); }
    bool Counted(const state::Remark& missingRight);
    std::wstring NameOfCurrent();

    std::vector<ReportRow> mRows;
    std::array<ChangeCount, kAllChanges.size()> mCounts{};
    long mOtherItems = 0;
    bool mFailed = false;

    // The record that is being written.
    std::optional<Change> mCurrent;
    std::function<std::wstring()> mNameOf;
    bool mIsLost = false;
};

} // namespace exchange
