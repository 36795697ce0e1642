#include "sandbox/outlook/Outlook.h"

#include "sandbox/outlook/Application.h"
#include "sandbox/outlook/DatabaseStore.h"
#include "sandbox/outlook/Registration.h"

namespace sandbox
{

MailboxRef MakeMailbox()
{
    auto mailbox = std::make_shared<Mailbox>();
    mailbox->AddFolder(L"Personal Folders\\Inbox", ItemKind::Mail);
    mailbox->AddFolder(L"Personal Folders\\Calendar", ItemKind::Appointment);
    mailbox->AddFolder(L"Personal Folders\\Contacts", ItemKind::Contact);
    mailbox->AddFolder(L"Personal Folders\\Tasks", ItemKind::Task);
    mailbox->AddFolder(L"Personal Folders\\Notes", ItemKind::Note);
    return mailbox;
}

MailboxRef OpenMailbox(const std::wstring& path)
{
    return std::make_shared<Mailbox>(std::make_unique<outlook::DatabaseStore>(path));
}

MailboxRef CreateMailbox(const std::wstring& path)
{
    outlook::DatabaseStore::Create(path);
    return OpenMailbox(path);
}

automation::Object MakeOutlook(const MailboxRef& mailbox)
{
    return MakeObject<outlook::ApplicationObject>(mailbox);
}

OutlookInProcess::OutlookInProcess(MailboxRef mailbox)
    : mClass(outlook::kOutlookClass, CLSCTX_INPROC_SERVER,
             [mailbox = std::move(mailbox)] { return MakeOutlook(mailbox); })
{
    RegisterProgId(outlook::kOutlookProgId, outlook::kOutlookClass);
}

} // namespace sandbox
