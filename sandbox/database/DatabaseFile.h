// Database files as wholes: written completely or not at all, and temporary ones.
#pragma once

#include "sandbox/database/Connection.h"

#include <functional>
#include <string>

namespace sandbox
{

bool FileExists(const std::wstring& path);

// Writes a new database file in one transaction: under a temporary name beside it, renamed when it is whole,
// which replaces a file of that name. When something throws, nothing is left.
void WriteDatabaseFile(const std::wstring& path, const std::function<void(Connection&)>& fill);

// A path in the folder for temporary files that no other caller gets.
std::wstring TemporaryDatabasePath();

} // namespace sandbox
