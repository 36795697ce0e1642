#include "run/FolderTable.h"

#include "automation/Error.h"

#include <algorithm>

namespace run
{

namespace
{

// One call takes milliseconds then, in which the dialog cannot be painted.
constexpr long kMostRows = 500;

} // namespace

const VARIANT& FolderTable::Row::At(size_t column) const
{
    const long at = static_cast<long>(column);
    return mIsByRow ? mBlock.At(mRow, at) : mBlock.At(at, mRow);
}

FolderTable::FolderTable(const automation::Object& folder, std::vector<std::wstring> columns)
    : mColumns(std::move(columns)), mTable(folder.GetObject(L"GetTable"))
{
    const automation::Object shown = mTable.GetObject(L"Columns");
    shown.Call(L"RemoveAll");
    for (const std::wstring& column : mColumns)
    {
        shown.Call(L"Add", column);
    }
}

long FolderTable::RowCount() const
{
    return automation::LongOf(mTable.Get(L"GetRowCount"));
}

// The documentation has arrays of (column, row), samples of it use (row, column). A block with as many rows
// as columns could be either, so none is asked for.
long FolderTable::BlockOf(long rows) const noexcept
{
    const long block = std::min(rows, kMostRows);
    return block == static_cast<long>(mColumns.size()) ? block - 1 : block;
}

void FolderTable::Visit(long count, const std::function<void(const Row& row)>& visit) const
{
    const long columns = static_cast<long>(mColumns.size());
    for (long read = 0; read < count;)
    {
        const long rows = BlockOf(count - read);
        const automation::ValueGrid block(mTable.Get(L"GetArray", rows));
        const bool isByRow = block.First() == rows && block.Second() == columns;
        if (!isByRow && !(block.First() == columns && block.Second() == rows))
        {
            throw automation::Error(DISP_E_BADINDEX, L"GetArray");
        }
        for (long row = 0; row < rows; ++row)
        {
            visit(Row(block, isByRow, row));
        }
        read += rows;
    }
}

} // namespace run
