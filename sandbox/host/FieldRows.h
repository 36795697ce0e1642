// The rows of the field catalogue: every column that is written through it, with its rule and size.
#pragma once

#include <span>

namespace sandbox
{

// The catalogue's rules for writing a column.
enum class FieldRule : long
{
    Number = 1,
    Text = 2,
    Flag = 3,
    Date = 4,
    Time = 5,
    DateTime = 6,
    Fraction = 7, // a number with decimals
    LongText = 8,
};

struct FieldRow
{
    const wchar_t* column;
    FieldRule rule;
    long size; // of a text, in characters, never more than the column takes
};

std::span<const FieldRow> FieldRows();

} // namespace sandbox
