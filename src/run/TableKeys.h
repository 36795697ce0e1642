// The identities and match keys of all items of a folder, read from its table instead of from each item. The
// table is not trusted blindly: its first rows and a random sample are compared with the items. A row that
// the documentation gives reason to doubt leaves its keys open, to be read from the item.
#pragma once

#include "exchange/Kind.h"
#include "exchange/Run.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace run
{

// The EntryIDs of items by position, counted from 1. Hexadecimal digits, one byte each, since there is one
// for every item of the folder.
class EntryIds
{
  public:
    // Throws automation::Error for a text that is no EntryID.
    void Add(std::wstring_view entryId);
    std::wstring At(long position) const;
    long Count() const noexcept { return static_cast<long>(mEnds.size()); }
    bool AreUnique() const;

  private:
    std::string_view Digits(size_t index) const;

    std::string mDigits;
    std::vector<std::uint32_t> mEnds;
};

// A key by position, from 0; nothing while it has not been read.
using Keys = std::deque<std::optional<std::wstring>>;

struct TableKeys
{
    EntryIds Ids;
    Keys First;
    Keys Second;
    // What the filter of items says of each, if the table could tell; empty without a filter.
    std::vector<std::optional<bool>> Kept;
};

// The keys of the run's items, of which there are count; nothing where the folder has no table, or one that
// is not to be trusted. keepsItem may be empty.
std::optional<TableKeys> ReadTable(const exchange::MatchRule& rule, const exchange::Filters& filters,
                                   exchange::Run& run, long count);

} // namespace run
