// Fixture of the tests of the fake Outlook: a mailbox with the default folders and its application object,
// and the description of an expected failure.
#pragma once

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Object.h"
#include "sandbox/outlook/Outlook.h"

#include <gtest/gtest.h>

#include <string>

namespace sandbox
{

inline constexpr const wchar_t* kContacts = L"Personal Folders\\Contacts";
inline constexpr const wchar_t* kTasks = L"Personal Folders\\Tasks";
inline constexpr const wchar_t* kCalendar = L"Personal Folders\\Calendar";

inline automation::Date Day(int year, int month, int day, int hour = 0, int minute = 0)
{
    return automation::DateOf(automation::Moment{year, month, day, hour, minute, 0});
}

// A date as text, so that a failed comparison can be read.
inline std::wstring At(const automation::Value& date)
{
    return automation::Formatted(automation::DateOf(date), L"yyyy-mm-dd hh:mm");
}

// The description of the error that the body raises; a failure of the test when it raises none.
template<typename Body>
std::wstring FailureOf(Body&& body)
{
    try
    {
        body();
    }
    catch (const automation::Error& error)
    {
        return error.Description();
    }
    ADD_FAILURE() << "no error was raised";
    return {};
}

class OutlookFixture : public testing::Test
{
  protected:
    automation::Object Folder(long number) const
    {
        return mOutlook.GetObject(L"GetNamespace", L"MAPI").GetObject(L"GetDefaultFolder", number);
    }

    automation::Object Contacts() const { return Folder(10); }
    automation::Object Tasks() const { return Folder(13); }
    automation::Object Calendar() const { return Folder(9); }

    automation::Object New(const automation::Object& folder) const
    {
        return folder.GetObject(L"Items").GetObject(L"Add");
    }

    automation::Object SavedContact(const wchar_t* first, const wchar_t* last) const
    {
        automation::Object contact = New(Contacts());
        contact.Put(L"FirstName", first);
        contact.Put(L"LastName", last);
        contact.Call(L"Save");
        return contact;
    }

    MailboxRef mMailbox = MakeMailbox();
    automation::Object mOutlook = MakeOutlook(mMailbox);
};

inline std::wstring Text(const automation::Object& object, const wchar_t* member)
{
    return automation::TextOf(object.Get(member));
}

inline long Number(const automation::Object& object, const wchar_t* member)
{
    return automation::LongOf(object.Get(member));
}

inline bool Truth(const automation::Object& object, const wchar_t* member)
{
    return automation::TruthOf(object.Get(member));
}

} // namespace sandbox
