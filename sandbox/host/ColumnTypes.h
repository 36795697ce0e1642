// How a host whose columns are of other types than text takes the texts in a statement.
#pragma once

#include "sandbox/ado/AwkwardAdo.h"

#include <string>

namespace sandbox
{

// The statement, or a part of it, with its quoted texts as the database keeps them: a column of a fixed width
// ignores blanks at a text's end ("char and varchar (Transact-SQL)": comparisons pad with blanks), a column
// of identifiers takes them with and without braces ("uniqueidentifier (Transact-SQL)").
std::wstring InColumnTypes(const std::wstring& sql, const AwkwardAdo& awkward);

} // namespace sandbox
