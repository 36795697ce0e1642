// The recurrence pattern of an appointment as clients hold it: another face of the appointment's own
// properties, saved when the appointment is.
#pragma once

#include "sandbox/outlook/ItemDraft.h"
#include "sandbox/outlook/OutlookObject.h"

namespace sandbox::outlook
{

MemberTable MembersOfPattern();

class RecurrencePattern : public OutlookObject
{
  public:
    RecurrencePattern(MailboxRef mailbox, std::shared_ptr<ItemDraft> draft)
        : OutlookObject(std::move(mailbox)), mDraft(std::move(draft))
    {
    }

    ItemDraft& Draft() const noexcept { return *mDraft; }

  protected:
    const wchar_t* ClassName() const override { return L"RecurrencePattern"; }
    const wchar_t* InterfaceName() const override { return L"RecurrencePattern"; }
    const MemberTable& Members() const override;

  private:
    friend MemberTable MembersOfPattern();

    Value Exceptions(const Call&);

    std::shared_ptr<ItemDraft> mDraft;
};

} // namespace sandbox::outlook
