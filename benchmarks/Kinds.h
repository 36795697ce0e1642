// The three kinds of data as the benchmarks know them, written down once more and apart from the component:
// by what members a record is matched, and what the apply passes have to read and write for one record.
#pragma once

#include "exchange/Kind.h"

#include <span>
#include <vector>

namespace benchmarks
{

enum class Direction
{
    ToOutlook,
    FromOutlook,
};

// A step of the bare write of one record into Outlook.
struct Step
{
    enum Action
    {
        Column, // the host column is read
        Get,    // the property is read
        Put,    // the property is written
        Save,
    };
    // The value written, made of those of the columns that were read so far.
    using Making = automation::Value (*)(const std::vector<automation::Value>& read);

    Action Does;
    const wchar_t* Name = nullptr;
    Making Value = nullptr; // null: the column read last
};

struct Kind
{
    const char* Name;
    const exchange::Kind& Category;
    long DefaultFolder; // OlDefaultFolders
    long ItemType;      // OlItemType
    std::span<const wchar_t* const> ItemKeys;
    const wchar_t* SecondItemKey; // compared where the others agree; null for none
    std::span<const wchar_t* const> RowKeys;
    const wchar_t* SecondRowKey;
    std::span<const wchar_t* const> TableColumns; // beside the identity and the class
    bool TableHasSecondKey;
    const wchar_t* RowId; // the key of a row that is updated
    std::span<const Step> StepsToOutlook;
    std::span<const wchar_t* const> ReadFromOutlook; // properties of an item that goes to the host
};

std::span<const Kind> Kinds();

} // namespace benchmarks
