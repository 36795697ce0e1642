// Numbers of Outlook's object model that the component passes, by the enumerations of Outlook's
// documentation.
#pragma once

namespace automation
{

// OlItemType
inline constexpr long kAppointmentItem = 1;
inline constexpr long kContactItem = 2;
inline constexpr long kTaskItem = 3;

// OlDefaultFolders
inline constexpr long kContactsFolder = 10;

} // namespace automation
