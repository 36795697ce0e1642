// What tells the records of one side apart for good, by position from 1: the EntryIDs of items, the keys of
// rows. Small, since there is one for every record of a run: some hexadecimal digits, of one byte each.
#pragma once

#include "run/NumberTable.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace run
{

class Identities
{
  public:
    // Keeps the identity of a record that has none yet. False where another record has the same one; an empty
    // identity is no record's.
    bool Add(long position, std::wstring_view identity);

    bool Has(long position) const noexcept;
    // Of a record that has one.
    std::wstring At(long position) const;

  private:
    // Numbers count the identities in the order of their addition, from 1.
    std::uint32_t Append(std::wstring_view identity);
    bool Insert(std::uint32_t number);
    bool IsWide(std::uint32_t number) const noexcept { return mEnds[number] % 2 != 0; }
    std::string_view BytesOf(std::uint32_t number) const noexcept;
    size_t HashOf(std::uint32_t number) const noexcept;

    std::string mBytes;                     // one after another, of one or of two bytes a character
    std::vector<size_t> mEnds{0};           // in mBytes, doubled; odd for two bytes a character
    std::vector<std::uint32_t> mByPosition; // 0 for none
    NumberTable mTable;
};

} // namespace run
