// The routines through which the parameter store and every configuration dialog reach the current user's rows
// in the host's tables (module MdlConfigProcess), and the names of the two tables. Rows of a user are told
// apart by the column F_UID. Each traps its own errors and returns true for failure, false for success.
#pragma once

#include "automation/Recordset.h"

#include <string>

namespace config
{

// One row per user and kind of data; user 0 holds the templates.
inline constexpr wchar_t kParameterTable[] = L"T_POutlookSyncParam";
// The Outlook folders chosen, any number per user and kind.
inline constexpr wchar_t kFolderTable[] = L"T_POutlookSyncFolder";

// A stored flag; NULL is not set.
bool IsSet(const automation::Value& flag);

// Opens a statement or condition, restricted to the current user.
bool OpenUserRecordset(automation::Recordset& recordset, const std::wstring& whereOrSql);

// Updates the current user's rows that satisfy a condition.
bool UpdateUserRows(const std::wstring& setClause, const std::wstring& tableName,
                    const std::wstring& whereClause);

// Inserts one row owned by the current user: column names and SQL literals, in the same order.
bool InsertUserRow(const std::wstring& columnList, const std::wstring& valueList,
                   const std::wstring& tableName);

} // namespace config
