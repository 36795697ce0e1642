// An item of any kind as clients hold it. Every fetch of an item is an object of its
// own, with its own unsaved changes.
#pragma once

#include "sandbox/outlook/ItemDraft.h"
#include "sandbox/outlook/OutlookObject.h"

namespace sandbox::outlook
{

class OutlookItem : public OutlookObject
{
  public:
    OutlookItem(MailboxRef mailbox, std::shared_ptr<ItemDraft> draft);

    STDMETHODIMP QueryInterface(REFIID id, void** result) override;

    const ItemDraft& Draft() const noexcept { return *mDraft; }

  protected:
    const wchar_t* ClassName() const override;
    const MemberTable& Members() const override;
    const wchar_t* InterfaceName() const override;
    const MailFolder* Place() const override;

  private:
    friend MemberTable MembersOfKind(ItemKind kind);

    Value EntryId(const Call&);
    Value Parent(const Call&);
    Value Saved(const Call&);
    Value Links(const Call& call);
    Value Save(const Call&);
    Value MarkComplete(const Call&);
    Value Delete(const Call&);
    Value Close(const Call& call);
    Value GetRecurrencePattern(const Call&);
    Value ClearRecurrencePattern(const Call&);

    std::shared_ptr<ItemDraft> mDraft;
};

// A stored item as a client's object.
automation::Object ObjectOfItem(const MailboxRef& mailbox, const StoredItemRef& item);
// A new, unsaved item that will be saved into this folder.
automation::Object ObjectOfNewItem(const MailboxRef& mailbox, MailFolder& folder, ItemKind kind);
// The stored item behind an object that a client passes, itself or through whatever stands before it; null
// for an object that is no saved item of the mailbox.
StoredItemRef ItemBehind(Mailbox& mailbox, const automation::Object& object);

} // namespace sandbox::outlook
