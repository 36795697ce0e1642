#include "config/ObjectKinds.h"

#include "resources/ids.h"

#include <algorithm>

namespace config
{

namespace
{

// Outlook's OlItemType.
constexpr long kAppointmentItem = 1;
constexpr long kContactItem = 2;
constexpr long kTaskItem = 3;

constexpr ObjectKind kKinds[] = {
    {L"Contact", 10, L"contact", kContactItem, IDS_CATEGORY_CONTACT, IDS_PICKER_CAPTION_CONTACTS,
     IDS_PICKER_CONTACTS},
    {L"Task", 20, L"task", kTaskItem, IDS_CATEGORY_TASK, IDS_PICKER_CAPTION_TASKS, IDS_PICKER_TASKS},
    {L"Calendar", 30, L"calendar", kAppointmentItem, IDS_CATEGORY_CALENDAR, IDS_PICKER_CAPTION_CALENDAR,
     IDS_PICKER_CALENDAR},
};

} // namespace

std::span<const ObjectKind> ObjectKinds()
{
    return kKinds;
}

const ObjectKind* FindObjectKind(std::wstring_view objectName)
{
    const auto* found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                     [&](const ObjectKind& kind) { return objectName == kind.TransObject; });
    return found != std::end(kKinds) ? found : nullptr;
}

} // namespace config
