// The host's named record sources: what each lists, for whom, and in which order. Clients of the host open
// them by name, with a filter over their columns:
//   ContactMyContact    the user's contacts, with company (ACC_SNAME) and business address
//   ActivityMyActivity  the tasks that the user does or has created, with contact and company
//   AccountMyAccount    the user's accounts and those without an owner, with the primary address (M_ADDR_ID)
//   Calendar            the entries of the calendar (VW_CALENDAR) of all users: clients filter by F_ACTORID
#pragma once

#include "sandbox/database/Connection.h"

#include <string>

namespace sandbox
{

// The rows of a source for a user, those that were added first first. Throws Rejection for a source that does
// not exist and for a filter that cannot be understood.
ResultSet OpenSource(Connection& database, long userId, const std::wstring& name, const std::wstring& filter);

} // namespace sandbox
