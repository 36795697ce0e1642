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

// Parts that are compared one by one, as one text. Their lengths keep them apart, whatever they hold.
std::wstring JoinedKey(const std::wstring& name, const std::wstring& category, const std::wstring& date);

// The subject, by which the user knows a task and an entry of the calendar.
std::wstring SubjectOfItem(const automation::Object& item);
std::wstring SubjectOfRow(const automation::Recordset& rows);

// ACC_SNAME of the row on which the recordset stands.
std::wstring AccountOfRow(const automation::Recordset& rows);

} // namespace exchange
