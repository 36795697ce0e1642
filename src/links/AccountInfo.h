// The information row that every account of the host has beside its own.
#pragma once

#include <functional>
#include <string>

namespace data
{
class Host;
}

namespace links
{

// Adds the row of the account with this key to TBLACCINFO. Throws automation::Error when the host refuses.
// undo: called before an error is passed on after which the row may be there.
void InsertAccountInfo(
    const data::Host& host, const std::wstring& accountKey, const std::function<void()>& undo = [] {});

// The form of the host contract: returns 0, or -1 for failure.
long AddAccountInfo(const std::wstring& accountKey);

} // namespace links
