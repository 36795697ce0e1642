// A field of a proposed record, as it is and as it will be.
#pragma once

#include "automation/Object.h"

#include <string>
#include <vector>

namespace exchange
{

class RecordedItem;

enum class Side
{
    Outlook,
    Host,
};

struct Difference
{
    Side Where;
    std::wstring Field;    // the property of the item, or the column of the row
    std::wstring Property; // the property to which the column belongs; empty for none
    automation::Value Now; // Empty for a new record
    automation::Value After;
    bool IsNew = false; // a linked record is added for the value

    bool IsChanged() const;
};

// Whether two values read alike: absent values and Outlook's date for "none" are one, and a flag equals its
// number.
bool AreSame(const automation::Value& one, const automation::Value& other);

// Adds the properties that a recorded item has been given, with its links and its recurrence pattern. real:
// the item behind it, null for a new one.
void AddItemDifferences(RecordedItem& recorded, const automation::Object& real,
                        std::vector<Difference>& fields);

} // namespace exchange
