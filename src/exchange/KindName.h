// The names and numbers of the three kinds of data: under which their settings are stored, and what every
// list and dialog shows of them. One table for the whole component.
#pragma once

#include "automation/OutlookConstants.h"
#include "resources/ids.h"

#include <array>
#include <string_view>

namespace exchange
{

struct KindName
{
    const wchar_t* TransObject; // also the key of the kind's rows in the dialogs' lists
    long TransObjectID;
    const wchar_t* Picture;       // picture key
    long OutlookItemType;         // Outlook's OlItemType of the kind's items
    unsigned Caption;             // resource string: the kind's name
    unsigned FolderPickerCaption; // resource string
    unsigned FolderPickerPrompt;  // resource string
};

inline constexpr KindName kContactName{
    .TransObject = L"Contact",
    .TransObjectID = 10,
    .Picture = L"contact",
    .OutlookItemType = automation::kContactItem,
    .Caption = IDS_CATEGORY_CONTACT,
    .FolderPickerCaption = IDS_PICKER_CAPTION_CONTACTS,
    .FolderPickerPrompt = IDS_PICKER_CONTACTS,
};
inline constexpr KindName kTaskName{
    .TransObject = L"Task",
    .TransObjectID = 20,
    .Picture = L"task",
    .OutlookItemType = automation::kTaskItem,
    .Caption = IDS_CATEGORY_TASK,
    .FolderPickerCaption = IDS_PICKER_CAPTION_TASKS,
    .FolderPickerPrompt = IDS_PICKER_TASKS,
};
inline constexpr KindName kCalendarName{
    .TransObject = L"Calendar",
    .TransObjectID = 30,
    .Picture = L"calendar",
    .OutlookItemType = automation::kAppointmentItem,
    .Caption = IDS_CATEGORY_CALENDAR,
    .FolderPickerCaption = IDS_PICKER_CAPTION_CALENDAR,
    .FolderPickerPrompt = IDS_PICKER_CALENDAR,
};

// Contacts, tasks, calendar.
inline constexpr std::array kKindNames{kContactName, kTaskName, kCalendarName};

// The kind with this name, letter for letter; null for a name that no kind has.
const KindName* FindKindName(std::wstring_view objectName);

} // namespace exchange
