// Appointments in the mailbox of the fake Outlook, for the tests of the calendar.
#pragma once

#include "tests/sandbox_outlook/OutlookFixture.h"

#include <string>

namespace test_support
{

using automation::Object;
using automation::Value;
using sandbox::At;
using sandbox::Day;
using sandbox::Number;
using sandbox::Text;
using sandbox::Truth;

class AppointmentsFixture : public sandbox::OutlookFixture
{
  protected:
    // A saved appointment in the calendar folder with these bounds.
    Object AddAppointment(automation::Date start, automation::Date end,
                          const std::wstring& subject = L"Meeting") const
    {
        Object appointment = New(Calendar());
        appointment.Put(L"Subject", subject);
        appointment.Put(L"Start", start);
        appointment.Put(L"End", end);
        appointment.Put(L"ReminderSet", false); // a new appointment has a reminder
        appointment.Call(L"Save");
        return appointment;
    }

    // The same for the whole of a day.
    Object AddAllDay(automation::Date day, const std::wstring& subject = L"Meeting") const
    {
        Object appointment = AddAppointment(day, automation::Date{day.days + 1}, subject);
        appointment.Put(L"AllDayEvent", true);
        appointment.Call(L"Save");
        return appointment;
    }

    // Gives an appointment a pattern and saves it; set is handed the pattern.
    template<typename Set>
    Object Repeat(const Object& appointment, Set&& set) const
    {
        set(appointment.GetObject(L"GetRecurrencePattern"));
        appointment.Call(L"Save");
        return appointment;
    }

    // A repeating appointment with these bounds.
    template<typename Set>
    Object AddRepeating(automation::Date start, automation::Date end, Set&& set) const
    {
        return Repeat(AddAppointment(start, end), std::forward<Set>(set));
    }

    Object AppointmentAt(long position) const
    {
        return Calendar().GetObject(L"Items").GetObject(L"Item", position);
    }

    long CountAppointments() const { return mMailbox->ItemCount(sandbox::kCalendar); }
};

} // namespace test_support
