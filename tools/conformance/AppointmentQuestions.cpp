// Appointments: duration, reminder, whole days.
#include "automation/Dates.h"
#include "tools/conformance/Answer.h"
#include "tools/conformance/Questions.h"

namespace conformance
{

using automation::Object;
using automation::Value;

namespace
{

automation::Date At(int hour)
{
    return automation::DateOf({2024, 5, 17, hour, 0, 0});
}

Object AtNine(Scratch& scratch)
{
    Object appointment = scratch.New(Kind::Appointment);
    appointment.Put(L"Start", At(9));
    return appointment;
}

std::wstring TimesOf(const Object& appointment)
{
    return Joined({AnswerOf([&] { return appointment.Get(L"Start"); }),
                   AnswerOf([&] { return appointment.Get(L"End"); }),
                   AnswerOf([&] { return appointment.Get(L"Duration"); })});
}

std::wstring TimesAfter(Scratch& scratch, const wchar_t* member, const Value& value)
{
    const Object appointment = AtNine(scratch);
    const std::wstring put = AnswerOf([&] {
        appointment.Put(member, value);
        return Value(L"taken");
    });
    return put == L"text 'taken'" ? TimesOf(appointment) : put;
}

std::wstring IsRecurringAfter(Scratch& scratch, std::initializer_list<const wchar_t*> calls)
{
    const Object appointment = AtNine(scratch);
    for (const wchar_t* call : calls)
    {
        appointment.Call(call);
    }
    return AnswerOf([&] { return appointment.Get(L"IsRecurring"); });
}

std::wstring ReadNew(Scratch& scratch, const wchar_t* member)
{
    return AnswerOf([&] { return scratch.New(Kind::Appointment).Get(member); });
}

constexpr const wchar_t* kPatternPage = L"RecurrencePattern object (Outlook)";

constexpr Question kAppointmentQuestions[] = {
    {L"appointment.new.duration", [](Scratch& s) { return ReadNew(s, L"Duration"); }},
    {L"appointment.new.reminder", [](Scratch& s) { return ReadNew(s, L"ReminderSet"); }, L"true",
     L"Set or remove reminders"},
    {L"appointment.new.reminder-minutes",
     [](Scratch& s) { return ReadNew(s, L"ReminderMinutesBeforeStart"); }, L"number 15",
     L"Set or remove reminders"},
    {L"appointment.new.busy-status", [](Scratch& s) { return ReadNew(s, L"BusyStatus"); }},
    {L"appointment.start-then-end", [](Scratch& s) { return TimesAfter(s, L"End", At(10)); }},
    {L"appointment.start-moves-end", [](Scratch& s) { return TimesAfter(s, L"Start", At(10)); }},
    {L"appointment.duration-moves-end", [](Scratch& s) { return TimesAfter(s, L"Duration", 90L); }},
    {L"appointment.end-before-start",
     [](Scratch& s) {
         return TimesAfter(s, L"End", automation::DateOf({2024, 5, 16, 9, 0, 0}));
     }},
    {L"appointment.whole-day", [](Scratch& s) { return TimesAfter(s, L"AllDayEvent", true); }},
    {L"appointment.recurring.no-pattern", [](Scratch& s) { return IsRecurringAfter(s, {}); }, L"false",
     kPatternPage},
    {L"appointment.recurring.pattern-asked-for",
     [](Scratch& s) { return IsRecurringAfter(s, {L"GetRecurrencePattern"}); }, L"true", kPatternPage},
    {L"appointment.recurring.pattern-cleared",
     [](Scratch& s) {
         return IsRecurringAfter(s, {L"GetRecurrencePattern", L"ClearRecurrencePattern"});
     },
     L"false", kPatternPage},
};

} // namespace

std::span<const Question> AppointmentQuestions()
{
    return kAppointmentQuestions;
}

} // namespace conformance
