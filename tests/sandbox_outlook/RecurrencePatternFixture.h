// An appointment of an Outlook in process, whose recurrence pattern the tests ask for.
#pragma once

#include "tests/sandbox_outlook/OutlookFixture.h"

namespace sandbox
{

class RecurrencePattern : public OutlookFixture
{
  protected:
    // Tuesday 2003-05-06, 09:30 to 10:30.
    RecurrencePattern()
    {
        mAppointment.Put(L"Start", Day(2003, 5, 6, 9, 30));
        mAppointment.Put(L"Duration", 60);
    }

    automation::Object Pattern() const { return mAppointment.GetObject(L"GetRecurrencePattern"); }
    std::wstring Time(const automation::Object& pattern, const wchar_t* member) const
    {
        return automation::Formatted(automation::DateOf(pattern.Get(member)), L"yyyy-mm-dd hh:mm:ss");
    }
    std::wstring EndOf(const automation::Object& pattern) const
    {
        return automation::Formatted(automation::DateOf(pattern.Get(L"PatternEndDate")), L"yyyy-mm-dd");
    }

    automation::Object mAppointment = New(Calendar());
};

} // namespace sandbox
