// The fake's entries in the registry: programmatic identifiers, the server program, and which mailbox it
// serves. They belong to the sandbox's own prefix.
#pragma once

#include <string>

#include <windows.h>

namespace sandbox::outlook
{

// Registers the program at this path as the server of the fake's classes, and takes that back; the
// programmatic identifiers stay, for processes that serve the class themselves. Throw automation::Error.
void RegisterServer(const std::wstring& program);
void UnregisterServer();

// The mailbox file that the server serves: the value "Mailbox" of the current user's key
// "Software\TelvixSandbox", else the environment variable TELVIX_SANDBOX_MAILBOX; empty where neither is set.
std::wstring ChosenMailbox();
// Sets the registry value; an empty path removes it. Throws automation::Error.
void ChooseMailbox(const std::wstring& path);

// How long a server that is started waits before it lets itself be found, in milliseconds: the value
// "StartDelay" of the same key, 0 where there is none.
long ChosenStartDelay();
// Sets the registry value; 0 removes it. Throws automation::Error.
void ChooseStartDelay(long milliseconds);

} // namespace sandbox::outlook
