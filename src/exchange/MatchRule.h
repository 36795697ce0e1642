// When a host row and an Outlook item are the same record: the category's matching function, split into the
// keys of either side, so that each key is read once. The two match when their first keys are equal and then
// their second keys; the second ones are read only where the first ones are equal.
#pragma once

#include "automation/ItemView.h"
#include "automation/Recordset.h"

#include <span>
#include <string>

namespace exchange
{

// Which part of the keys a folder's table gives (Folder.GetTable). Items of other message classes than this
// one and its derived ones ("IPM.Contact.Acme") are read themselves.
struct KeysInTable
{
    const wchar_t* MessageClass = nullptr; // null: the table is of no use for the kind
    // The properties of the keys, by their built-in names: a date is local then, and keywords are one text.
    std::span<const wchar_t* const> Columns{};
    bool HasSecondKey = false;
};

// The keys are comparable texts (trimmed, upper case, Empty and Null as the empty text). A null function
// means that the category has no second key.
struct MatchRule
{
    std::wstring (*FirstKeyOfItem)(const automation::ItemView& item);
    std::wstring (*SecondKeyOfItem)(const automation::ItemView& item);
    // Of the row on which the recordset stands.
    std::wstring (*FirstKeyOfRow)(const automation::Recordset& rows);
    std::wstring (*SecondKeyOfRow)(const automation::Recordset& rows);
    KeysInTable InTable{};

    // Whether the item and the row on which the recordset stands are the same record.
    bool Matches(const automation::ItemView& item, const automation::Recordset& rows) const
    {
        return FirstKeyOfItem(item) == FirstKeyOfRow(rows) &&
               (SecondKeyOfItem == nullptr || SecondKeyOfItem(item) == SecondKeyOfRow(rows));
    }
};

} // namespace exchange
