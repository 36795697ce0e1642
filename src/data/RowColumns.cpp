#include "data/RowColumns.h"

#include "data/SqlFragments.h"

namespace data
{

void RowColumns::Add(const std::wstring& column, const automation::Value& value)
{
    if (mMode == kNewRecord)
    {
        InsertField(mCatalogue, Fields, column, Values, value);
    }
    else
    {
        UpdateField(mCatalogue, SetList, column, value);
    }
}

} // namespace data
