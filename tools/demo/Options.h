// The demo's options: the arguments of the program, which the script `demo` has checked already.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tools::demo
{

struct Options
{
    std::wstring HostFile;
    std::wstring MailboxFile;
    std::vector<std::wstring> Categories; // "contact", "task", "calendar"
    std::optional<long> TransType;        // stored before the run when given
    std::optional<long> ConflictOption;   // likewise
    std::wstring ScreensFolder;           // empty: no pictures
    bool Prepare = false;                 // only create the data
    bool Decline = false;                 // press Cancel in the confirmation
    bool Interactive = false;             // leave the dialogs to the user
    bool Tour = false;                    // walk through the configuration, changing nothing
    bool Details = false;                 // open what a run tells in detail; Outlook refuses a few things
};

// Throws std::invalid_argument for arguments that the program does not know.
Options ParseOptions(const std::vector<std::wstring>& arguments);

} // namespace tools::demo
