// When a host row and an Outlook item are the same record, written from the rules of matching alone. Values
// are read with the platform's own functions: nothing of the component compares, trims or formats here.
#pragma once

#include "automation/Recordset.h"

namespace test_support
{

// Of the row on which the recordset stands. Throw where a value cannot be fetched, or is no text.
bool IsSameContact(const automation::Object& item, const automation::Recordset& rows);
bool IsSameTask(const automation::Object& item, const automation::Recordset& rows);
bool IsSameAppointment(const automation::Object& item, const automation::Recordset& rows);

} // namespace test_support
