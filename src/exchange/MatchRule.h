// When a host row and an Outlook item are the same record: the category's matching function, split into the
// keys of either side, so that each key is read once. The two match when their first keys are equal and then
// their second keys; the second ones are read only where the first ones are equal.
#pragma once

#include "automation/Recordset.h"

#include <string>

namespace exchange
{

// The keys are comparable texts (trimmed, upper case, Empty and Null as the empty text). A null function
// means that the category has no second key.
struct MatchRule
{
    std::wstring (*FirstKeyOfItem)(const automation::Object& item);
    std::wstring (*SecondKeyOfItem)(const automation::Object& item);
    // Of the row on which the recordset stands.
    std::wstring (*FirstKeyOfRow)(const automation::Recordset& rows);
    std::wstring (*SecondKeyOfRow)(const automation::Recordset& rows);

    // Whether the item and the row on which the recordset stands are the same record.
    bool Matches(const automation::Object& item, const automation::Recordset& rows) const
    {
        return FirstKeyOfItem(item) == FirstKeyOfRow(rows) &&
               (SecondKeyOfItem == nullptr || SecondKeyOfItem(item) == SecondKeyOfRow(rows));
    }
};

} // namespace exchange
