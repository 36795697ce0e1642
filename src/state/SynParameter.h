// The parameters of one kind of data (contacts, tasks or calendar), as the parameter store loads them from
// the host's table T_POutlookSyncParam; two of them live in the shared state: the one a run uses and the one
// the configuration dialogs edit.
#pragma once

#include <string>

namespace state
{

// Codes of SynParameter::TransType.
enum TransType : long
{
    kOutlookToQuenlar = 1,
    kQuenlarToOutlook = 2,
    kBothWays = 3,
};

// Whether a run with this code writes to the side.
inline bool WritesToOutlook(long transType)
{
    return transType != kOutlookToQuenlar;
}
inline bool WritesToHost(long transType)
{
    return transType != kQuenlarToOutlook;
}

// Codes of SynParameter::TransConflictOption.
enum ConflictOption : long
{
    kAddAllConflicting = 1,
    kIgnoreAllConflicting = 2,
    kNotifyMe = 3,
    kHostWins = 4,
    kOutlookWins = 5,
};

// Codes of SynParameter::CalendarTransItem.
enum CalendarRange : long
{
    kAllEntries = 0,
    kFutureEntries = 1,
    kEntriesWithinDays = 2,
};

// Codes of SynParameter::TaskTransItem.
enum TaskRange : long
{
    kAllTasks = 0,
    kPendingTasks = 1,
};

struct SynParameter
{
    bool IsTrans = false;
    long TransType = 0;
    std::wstring TransTypePic;
    std::wstring TransObject;
    std::wstring TransObjectPic;
    std::wstring TransSource;
    std::wstring TransSourceConfig;
    long TransConflictOption = 0;
    std::wstring CurrentFolder; // path of the Outlook folder that a run uses
    std::wstring DefaultFolder;
    long CalendarTransItem = 0;
    short CalendarPrior = 0; // days before today
    short CalendarAfter = 0; // days after today
    long TaskTransItem = 0;
};

} // namespace state
