// Outlook's application object and its one namespace.
#pragma once

#include "sandbox/outlook/OutlookObject.h"

namespace sandbox::outlook
{

class ApplicationObject : public OutlookObject
{
  public:
    explicit ApplicationObject(MailboxRef mailbox);
    ~ApplicationObject() override;

  protected:
    const wchar_t* ClassName() const override { return L"Application"; }
    const wchar_t* InterfaceName() const override { return L"_Application"; }
    const MemberTable& Members() const override;

  private:
    Value GetNamespace(const Call& call);
    Value Session(const Call&);
    Value CreateItem(const Call& call);
};

class NameSpaceObject : public OutlookObject
{
  public:
    explicit NameSpaceObject(MailboxRef mailbox);

  protected:
    const wchar_t* ClassName() const override { return L"NameSpace"; }
    const wchar_t* InterfaceName() const override { return L"_NameSpace"; }
    const MemberTable& Members() const override;

  private:
    Value Folders(const Call& call);
    Value GetDefaultFolder(const Call& call);
    Value GetItemFromId(const Call& call);
};

// Application objects alive in this process.
long LiveApplications() noexcept;

// The kind that an OlItemType value or a message class ("IPM.Contact") stands for; throws automation::Error
// for another value.
ItemKind KindOfItemType(const Value& type);
// The kind of item that Outlook's default folder of this number (OlDefaultFolders) holds; throws
// automation::Error for another number.
ItemKind KindOfDefaultFolder(long number);

} // namespace sandbox::outlook
