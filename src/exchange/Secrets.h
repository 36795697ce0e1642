// Takes out of the words of the host and of Outlook what a report must not hold: the connection string, its
// passwords, and values of fields, which a host may repeat with the statement that it refuses.
#pragma once

#include <string>

namespace exchange
{

// connection: the connection string in use; may be empty. Every secret becomes "***", every text literal of
// a statement '***'.
std::wstring WithoutSecrets(std::wstring words, const std::wstring& connection);

} // namespace exchange
