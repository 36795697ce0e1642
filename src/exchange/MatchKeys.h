// The parts of match keys that the kinds share. Keys are comparable texts: trimmed, in upper case, with Empty
// and Null as the empty text.
#pragma once

#include "automation/Recordset.h"

#include <string>

namespace exchange
{

std::wstring Comparable(const automation::Value& value);

// As Comparable; the text that the host stores for a record without a category is no category.
std::wstring ComparableCategory(const automation::Value& value);

// The date in a pattern; the empty text for no date, and for one that Outlook cannot hold: that is how it is
// written there.
std::wstring ComparableDate(const automation::Value& value, const wchar_t* pattern);

// The values that make up the key of a task or calendar entry. Their comparable forms are compared one by
// one.
struct KeyParts
{
    automation::Value Name;
    automation::Value Category;
    automation::Value Date;
};

// The parts as one text; their lengths keep them apart. datePattern: the part of the date that is compared.
std::wstring JoinedKey(const KeyParts& parts, const wchar_t* datePattern);

// The subject, by which the user knows a task and an entry of the calendar.
std::wstring SubjectOfItem(const automation::Object& item);
std::wstring SubjectOfRow(const automation::Recordset& rows);

// ACC_SNAME of the recordset's current row.
std::wstring AccountOfRow(const automation::Recordset& rows);

} // namespace exchange
