#include "sandbox/outlook/Filter.h"

#include <algorithm>
#include <cwchar>

namespace sandbox::outlook
{

namespace
{

// "The method will return an error with the following properties" (Items.Find method, Items.Restrict method).
constexpr std::wstring_view kUnfiltered[] = {
    L"Body",
    L"Categories",
    L"Children",
    L"Class",
    L"Companies",
    L"CompanyLastFirstNoSpace",
    L"CompanyLastFirstSpaceOnly",
    L"ContactNames",
    L"Contacts",
    L"ConversationIndex",
    L"DLName",
    L"Email1EntryID",
    L"Email2EntryID",
    L"Email3EntryID",
    L"EntryID",
    L"HTMLBody",
    L"IsOnlineMeeting",
    L"LastFirstAndSuffix",
    L"LastFirstNoSpace",
    L"AutoResolvedWinner",
    L"BodyFormat",
    L"InternetCodePage",
    L"Permission",
    L"LastFirstNoSpaceCompany",
    L"LastFirstSpaceOnly",
    L"LastFirstSpaceOnlyCompany",
    L"LastFirstNoSpaceAndSuffix",
    L"MemberCount",
    L"NetMeetingAlias",
    L"NetMeetingAutoStart",
    L"NetMeetingOrganizerAlias",
    L"NetMeetingServer",
    L"NetMeetingType",
    L"RecurrenceState",
    L"ReceivedByEntryID",
    L"ReceivedOnBehalfOfEntryID",
    L"ReplyRecipients",
    L"ResponseState",
    L"Saved",
    L"Sent",
    L"Submitted",
    L"VotingOptions",
    L"DownloadState",
    L"IsConflict",
    L"MeetingWorkspaceURL",
};

} // namespace

bool IsUnfiltered(std::wstring_view name)
{
    return std::ranges::any_of(kUnfiltered, [&](std::wstring_view one) {
        return one.size() == name.size() && _wcsnicmp(one.data(), name.data(), name.size()) == 0;
    });
}

} // namespace sandbox::outlook
