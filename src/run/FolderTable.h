// The table of an Outlook folder (Folder.GetTable, since Outlook 2007): some properties of every item,
// hundreds of items by one call. The collection reads identities and match keys from it. Whatever the table
// refuses or leaves out throws automation::Error; the caller then reads the items themselves.
#pragma once

#include "automation/Object.h"
#include "automation/ValueGrid.h"

#include <functional>
#include <string>
#include <vector>

namespace run
{

class FolderTable
{
  public:
    // One row while it is visited.
    class Row
    {
      public:
        Row(const automation::ValueGrid& block, bool isByRow, long row) noexcept
            : mBlock(block), mIsByRow(isByRow), mRow(row)
        {
        }
        // The value of one of the table's columns, counted from 0.
        const VARIANT& At(size_t column) const;

      private:
        const automation::ValueGrid& mBlock;
        bool mIsByRow;
        long mRow;
    };

    // columns: built-in names of properties, at least two.
    FolderTable(const automation::Object& folder, std::vector<std::wstring> columns);

    const std::vector<std::wstring>& Columns() const noexcept { return mColumns; }
    long RowCount() const;
    // Calls visit for each of the first count rows, in the table's order; throws when there are fewer.
    void Visit(long count, const std::function<void(const Row& row)>& visit) const;

  private:
    long BlockOf(long rows) const noexcept;

    std::vector<std::wstring> mColumns;
    automation::Object mTable;
};

} // namespace run
