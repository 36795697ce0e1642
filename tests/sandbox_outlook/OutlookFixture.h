// Fixture of the tests of the fake Outlook: a mailbox with the default folders and its application object,
// and the description of an expected failure.
#pragma once

#include "automation/Error.h"
#include "automation/Object.h"
#include "sandbox/outlook/Outlook.h"
#include "tests/support/Days.h"
#include "tests/support/ItemValues.h"
#include "tests/support/Kinds.h"

#include <gtest/gtest.h>

#include <string>

namespace sandbox
{

inline constexpr const wchar_t* kContacts = test_support::kContactRecords.folder;
inline constexpr const wchar_t* kTasks = test_support::kTaskRecords.folder;
inline constexpr const wchar_t* kCalendar = test_support::kCalendarRecords.folder;

using test_support::At;
using test_support::Day;
using test_support::Number;
using test_support::Text;
using test_support::Truth;

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

} // namespace sandbox
