// The recurrence pattern of an appointment or a task, as rules over the item's own properties: a pattern is
// saved with its item, and what it does not state follows from the appointment's start and end or the day of
// the task.
#pragma once

#include "automation/Dates.h"
#include "sandbox/outlook/ItemDraft.h"

namespace sandbox::outlook
{

// True once the appointment has a pattern.
bool IsRecurrent(const ItemDraft& item);
// Gives the appointment a pattern, if it has none: weekly on its weekday, without end.
void StartPattern(ItemDraft& item);
// Takes the pattern away; the appointment stays at its first occurrence.
void ClearPattern(ItemDraft& item);
// The first occurrence of a recurring appointment, with its time of day.
automation::Date FirstStart(const ItemDraft& item);
// Makes the pattern that of an all-day event, where the appointment is one.
void FitPatternToDay(ItemDraft& item);

// The bounds as stored, whatever the pattern says.
automation::Date OwnStart(const ItemDraft& item);
automation::Date OwnEnd(const ItemDraft& item);
long MinutesBetween(automation::Date start, automation::Date end);

} // namespace sandbox::outlook
