// The calendar: entries of the host's view VW_CALENDAR and Outlook appointments. Which column belongs to
// which property comes from the field relation table; how each property is converted is fixed here. Times and
// repetition have files of their own: AppointmentTimes, Recurrence, CalendarRange.
#pragma once

#include "exchange/Kind.h"

namespace calendar
{

// Matched by F_ACTNAME, F_ACTTYPE, F_ACTESDATE with F_ACTESTIME (to the minute) against Subject, Categories
// and Start.
extern const exchange::Kind kCalendar;

// The two passes of a run: true when an error ended the pass. Towards the host, an appointment that cannot be
// written is reported, and the pass continues.
extern const exchange::PassToOutlook SynCalendarToOutlook;
extern const exchange::PassFromOutlook SynCalendarFromOutlook;

// Writes the run's current host entry into the appointment and saves it, once, at the
// end. An unknown mode does nothing. True when an error ended the writer; the appointment is then left
// unsaved.
bool SynSynCalendarToOlCalendar(exchange::Run& run, data::RecordMode mode, const automation::Object& item);

// Writes one appointment, without a transaction of its own: a new row of TBLACTIVITY, or over the row on
// which the run's recordset stands. An unknown mode does nothing. Returns -1 when the host refused the row, 0
// otherwise: the row is written, or skipped because of an empty subject or an error. A message box has shown
// the error or refusal, with the host column that was being processed.
long SynOlCalendarToSynCalendar(exchange::Run& run, data::RecordMode mode, const automation::ItemView& item);

} // namespace calendar
