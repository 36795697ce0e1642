// Folders and the collections of them.
#pragma once

#include "sandbox/outlook/OutlookObject.h"

namespace sandbox::outlook
{

class FoldersObject : public OutlookObject
{
  public:
    // The folders in a folder, or the top-level stores for null.
    FoldersObject(MailboxRef mailbox, MailFolder* parent);

  protected:
    const wchar_t* ClassName() const override { return L"Folders"; }
    const wchar_t* InterfaceName() const override { return L"_Folders"; }
    const MailFolder* Place() const override { return mParent; }
    const MemberTable& Members() const override;

  private:
    const std::vector<MailFolder*>& Children() const;
    MailFolder* Find(const std::wstring& name) const;
    Value Item(const Call& call);
    Value Count(const Call&);
    Value Add(const Call& call);
    Value GetFirst(const Call&);
    Value GetNext(const Call&);
    Value At(size_t index) const;

    MailFolder* mParent;
    size_t mNext = 0;
};

class FolderObject : public OutlookObject
{
  public:
    FolderObject(MailboxRef mailbox, MailFolder& folder);

  protected:
    const wchar_t* ClassName() const override { return L"MAPIFolder"; }
    const wchar_t* InterfaceName() const override { return L"MAPIFolder"; }
    const MailFolder* Place() const override { return &mFolder; }
    const MemberTable& Members() const override;

  private:
    Value Name(const Call&);
    Value DefaultItemType(const Call&);
    Value DefaultMessageClass(const Call&);
    Value Folders(const Call& call);
    Value Items(const Call& call);
    Value Parent(const Call&);
    Value FolderPath(const Call&);
    Value StoreId(const Call&);
    Value EntryId(const Call&);
    Value GetTable(const Call& call);
    Value Delete(const Call&);

    MailFolder& mFolder;
};

automation::Object ObjectOfFolder(const MailboxRef& mailbox, MailFolder& folder);

} // namespace sandbox::outlook
