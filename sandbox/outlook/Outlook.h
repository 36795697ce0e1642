// The fake Outlook for programs of the sandbox and tests: its application object over a mailbox, served in
// this process where it is wanted, and the mailbox files. The server program serves the same objects to
// other processes.
#pragma once

#include "automation/Object.h"
#include "sandbox/dispatch/ClassObject.h"
#include "sandbox/outlook/Classes.h"
#include "sandbox/outlook/Mailbox.h"

namespace sandbox
{

using outlook::ItemKind;
using outlook::Mailbox;
using outlook::MailboxRef;

// A mailbox in memory, with one store "Personal Folders" that has Outlook's default folders: "Inbox",
// "Calendar", "Contacts", "Tasks" and "Notes".
MailboxRef MakeMailbox();

// The mailbox kept in this file, a Windows path. Throws automation::Error when the file is not there or
// cannot be read.
MailboxRef OpenMailbox(const std::wstring& path);
// The same, with the file and its tables made where they are missing; it has no folders then.
MailboxRef CreateMailbox(const std::wstring& path);

// The application object over a mailbox.
automation::Object MakeOutlook(const MailboxRef& mailbox);

// As long as this lives, "Outlook.Application" is the fake in this process, for objects created on this
// thread: each creation gives a new application object over the one mailbox. COM must have been initialised
// on the thread. Throws automation::Error.
class OutlookInProcess
{
  public:
    explicit OutlookInProcess(MailboxRef mailbox);

  private:
    RegisteredClass mClass;
};

} // namespace sandbox
