// The list of changes as data: one entry for each proposal of a run, with texts that are read when they are
// asked for and kept, an order and a search, and the user's choice of the entries that are to be written. It
// lives from the confirmation's first look at it to the answer.
#pragma once

#include "exchange/Preview.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace preview
{

enum class Column
{
    Change,
    Name,
    Group, // company or category
    Date,
};

inline constexpr std::array kColumns{Column::Change, Column::Name, Column::Group, Column::Date};

// An order of the entries and a choice among them.
struct Arrangement
{
    std::optional<Column> SortedBy{}; // nothing: as they were proposed
    bool IsDescending = false;
    std::wstring Search{};            // in any letter case; empty for all entries
    std::optional<Column> SearchIn{}; // nothing: in every column

    bool operator==(const Arrangement&) const = default;
};

class ChangeList
{
  public:
    // The kind and the run outlive the list.
    ChangeList(const exchange::Kind& kind, exchange::Run& run, long transType);

    size_t Count() const noexcept { return mProposals.size(); }
    const exchange::Proposal& At(size_t entry) const { return mProposals.at(entry); }
    const exchange::Kind& Kind() const noexcept { return mKind; }

    // --- The texts. An entry that cannot be read has a question mark.

    bool IsRead(size_t entry, Column column) const;
    void Read(size_t entry, Column column);
    // The empty text until it has been read.
    std::wstring TextOf(size_t entry, Column column) const;

    // --- The order: positions from 0 of the entries that are shown.

    // Whether the arrangement needs a text of this entry that has not been read.
    bool NeedsReading(size_t entry, const Arrangement& arrangement) const;
    void ReadFor(size_t entry, const Arrangement& arrangement);
    // What it needs has been read.
    void Arrange(const Arrangement& arrangement);
    const Arrangement& Arranged() const noexcept { return mArrangement; }
    const std::vector<size_t>& Shown() const noexcept { return mShown; }

    // --- The choice.

    bool IsChecked(size_t entry) const { return mChecked[entry]; }
    void Check(size_t entry, bool checked);
    size_t CheckedCount() const noexcept { return mCheckedCount; }
    // The run's changes without the entries that have no check mark.
    data::Changes Kept() const;

    // The fields of an entry. Throws automation::Error when the record cannot be read.
    exchange::RecordPreview FieldsOf(size_t entry) { return mPreview.Of(mProposals.at(entry)); }

  private:
    struct Cell
    {
        std::wstring Text;
        double Number = 0; // of a date, for the order
        bool IsRead = false;
    };

    automation::Value ValueOf(size_t entry, Column column);
    bool Contains(size_t entry, const Arrangement& arrangement) const;
    const Cell* Find(size_t entry, Column column) const;
    int Compared(size_t one, size_t other, Column column) const;

    const exchange::Kind& mKind;
    exchange::Run& mRun;
    exchange::Preview mPreview;
    std::vector<exchange::Proposal> mProposals;
    std::array<std::vector<Cell>, kColumns.size()> mCells; // by column, empty until one of it has been read
    std::vector<size_t> mShown;
    Arrangement mArrangement;
    std::vector<bool> mChecked;
    size_t mCheckedCount = 0;
};

} // namespace preview
