// Appointments in the default calendar of the thread's Outlook. Header only.
#pragma once

#include "tests/support/ItemValues.h"
#include "tests/support/TestedKind.h"

#include <string>
#include <utility>

namespace test_support
{

using automation::Object;
using automation::Value;

inline Object AppointmentAt(long position)
{
    return DefaultFolder(kCalendarKind).GetObject(L"Items").GetObject(L"Item", position);
}

// A saved appointment with these bounds.
inline Object AddAppointment(automation::Date start, automation::Date end,
                             const std::wstring& subject = L"Meeting")
{
    Object appointment = DefaultFolder(kCalendarKind).GetObject(L"Items").GetObject(L"Add");
    appointment.Put(L"Subject", subject);
    appointment.Put(L"Start", start);
    appointment.Put(L"End", end);
    appointment.Put(L"ReminderSet", false); // a new appointment has a reminder
    appointment.Call(L"Save");
    return appointment;
}

// The same for the whole of a day.
inline Object AddAllDay(automation::Date day, const std::wstring& subject = L"Meeting")
{
    Object appointment = AddAppointment(day, automation::Date{day.days + 1}, subject);
    appointment.Put(L"AllDayEvent", true);
    appointment.Call(L"Save");
    return appointment;
}

// Gives an appointment a pattern and saves it; set is handed the pattern.
template<typename Set>
Object Repeat(const Object& appointment, Set&& set)
{
    set(appointment.GetObject(L"GetRecurrencePattern"));
    appointment.Call(L"Save");
    return appointment;
}

// A repeating appointment with these bounds.
template<typename Set>
Object AddRepeating(automation::Date start, automation::Date end, Set&& set)
{
    return Repeat(AddAppointment(start, end), std::forward<Set>(set));
}

} // namespace test_support
