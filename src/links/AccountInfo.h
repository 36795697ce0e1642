// The information row that every account of the host has beside its own.
#pragma once

#include <string>

namespace data
{
class Host;
}

namespace links
{

// Adds the row of the account with this key to TBLACCINFO; returns 0, or -1 when the host refuses.
long AddAccountInfo(const std::wstring& accountKey);

// AddAccountInfo for callers that report the error themselves: throws automation::Error where that returns
// -1.
void InsertAccountInfo(const data::Host& host, const std::wstring& accountKey);

} // namespace links
