// The rows that ship with the host's tables: users, the field catalogue, the rows that relate
// host columns to Outlook's properties, the template rows of the parameters, the repeat rules.
#pragma once

#include "sandbox/database/Connection.h"

#include <string>

namespace sandbox
{

// The host's language editions differ in the relation rows of the names. Outside its Chinese interface the
// component exchanges first and last name on the way between the two sides, while it matches the surname with
// Outlook's LastName in either language. So the English edition relates the surname to "FirstName", that it
// may arrive in LastName; the Chinese edition relates them straight.
enum class Edition
{
    English,
    Chinese,
};

// The users of the sandbox: the one signed in first, and a second one whose rows are not the first one's.
inline constexpr long kFirstUser = 1;
inline constexpr long kSecondUser = 2;

// The repeat rules' names by F_ACTREPTIDX, from 1 on: daily, weekly, monthly, quarterly, half-yearly, yearly.
inline constexpr const wchar_t* kRepeatRules[] = {L"每天", L"每周", L"每月", L"每季", L"每半年", L"每年"};

// Fills the tables that CreateHostSchema made. Throws automation::Error.
void FillHostCatalogue(Connection& database, Edition edition);

// Exchanges the two relation rows of the names where they stand exactly as the other edition ships them; rows
// that somebody has made by hand are left alone.
void UseEdition(Connection& database, Edition edition);

// Adds rows of texts and numbers to a table; columns are joined with ",".
void AddRows(Connection& database, const std::wstring& table, const std::wstring& columns,
             const std::vector<Row>& rows);

} // namespace sandbox
