#include "data/RowColumns.h"

#include "data/Host.h"
#include "data/SqlFragments.h"

namespace data
{

void RowColumns::Add(const std::wstring& column, const automation::Value& value)
{
    const long result = mMode == kNewRecord ? AddInsertField(mCatalogue, Fields, column, Values, value)
                                            : AddUpdateField(mCatalogue, SetList, column, value);
    Demand(result == 0, column.c_str());
}

} // namespace data
