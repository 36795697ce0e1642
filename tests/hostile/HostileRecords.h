// Records of hostile values, made by a table of what a record of their kind has.
#pragma once

#include "tests/hostile/HostileItem.h"
#include "tests/hostile/HostileValues.h"

namespace test_support
{

// The usual type of a property or column.
enum class Sort
{
    Text,
    Date,
    Flag,
    Number,
};

struct PropertyRow
{
    const wchar_t* name;
    Sort sort;
};

inline Value OfSort(Sort sort, HostileValues& values)
{
    constexpr double kMay2003 = 37747;
    switch (sort)
    {
    case Sort::Text: return values.Text(values.OneIn(3) ? 80 : 40);
    case Sort::Date:
        return values.OneIn(2)
                   ? values.Date()
                   : Value(automation::Date{kMay2003 + static_cast<double>(values.Below(1440)) / 1440});
    case Sort::Flag: return values.OneIn(2);
    default: return values.OneIn(10) ? values.Number() : Value(static_cast<long>(values.Below(5)));
    }
}

// Of each property a value of its own sort, now and then any other; in every fourth record any value
// everywhere.
template<typename Rows>
ItemValues HostileRecord(const Rows& rows, HostileValues& values)
{
    const bool isWild = values.OneIn(4);
    ItemValues record;
    for (const PropertyRow& row : rows)
    {
        record[row.name] = values.OneIn(isWild ? 2 : 100) ? values.Any() : OfSort(row.sort, values);
    }
    return record;
}

} // namespace test_support
