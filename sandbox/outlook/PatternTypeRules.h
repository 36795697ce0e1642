// The type of a recurrence pattern and the members that go only with some of the types: interval, weekdays,
// day, month and instance. Part of the rules of appointments; PatternRules builds on it.
#pragma once

#include "sandbox/outlook/ItemDraft.h"
#include "sandbox/outlook/Recurrence.h"

namespace sandbox::outlook
{

// The days on which an appointment's pattern falls.
Recurrence RecurrenceOf(const ItemDraft& item);
// What the member states, Empty for one that does not go with the pattern's type.
Value StatedByType(const ItemDraft& item, PropertyId id);

} // namespace sandbox::outlook
