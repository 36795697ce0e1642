// The three kinds of data that can be exchanged, in one table: the fixed names and numbers under which their
// settings are stored, and what the configuration dialogs need to know of each.
#pragma once

#include <span>
#include <string_view>

#include <windows.h>

namespace config
{

struct ObjectKind
{
    const wchar_t* TransObject; // also the key of the kind's rows in the dialogs' lists
    long TransObjectID;
    const wchar_t* Picture;   // picture key
    long OutlookItemType;     // Outlook's OlItemType of the kind's items
    UINT Caption;             // resource string: the kind's name
    UINT FolderPickerCaption; // resource string
    UINT FolderPickerPrompt;  // resource string
};

// Contacts, tasks, calendar.
std::span<const ObjectKind> ObjectKinds();

// The kind with this name, letter for letter; null for a name that no kind has.
const ObjectKind* FindObjectKind(std::wstring_view objectName);

} // namespace config
