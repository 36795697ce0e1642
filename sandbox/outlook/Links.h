// The links of an item to contacts. Changes to them are the item's changes, saved with it.
#pragma once

#include "sandbox/outlook/ItemDraft.h"
#include "sandbox/outlook/OutlookObject.h"

namespace sandbox::outlook
{

class LinksObject : public OutlookObject
{
  public:
    LinksObject(MailboxRef mailbox, std::shared_ptr<ItemDraft> draft);

  protected:
    const wchar_t* ClassName() const override { return L"Links"; }
    const wchar_t* InterfaceName() const override { return L"Links"; }
    const MemberTable& Members() const override;

  private:
    size_t IndexOf(const Call& call) const;
    Value Item(const Call& call);
    Value Count(const Call&);
    Value Add(const Call& call);
    Value Remove(const Call& call);

    std::shared_ptr<ItemDraft> mDraft;
};

class LinkObject : public OutlookObject
{
  public:
    LinkObject(MailboxRef mailbox, std::wstring link);

  protected:
    const wchar_t* ClassName() const override { return L"Link"; }
    const wchar_t* InterfaceName() const override { return L"Link"; }
    const MemberTable& Members() const override;

  private:
    Value Name(const Call&);
    Value Item(const Call&);

    std::wstring mLink;
};

} // namespace sandbox::outlook
