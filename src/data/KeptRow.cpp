#include "data/KeptRow.h"

#include "data/FieldFormat.h"

namespace data
{

void KeptRow::Add(const std::wstring& column, const automation::Value& value)
{
    if (IsWritableColumn(column))
    {
        mColumns.push_back({column, HeldValueOf(Catalogue(), column, value)});
    }
}

} // namespace data
