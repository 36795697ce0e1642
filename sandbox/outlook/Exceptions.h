// The occurrences of a series that the user has deleted or moved. The mailbox keeps them in one property of
// the series, "Recurrence.Exceptions": "yyyy-mm-dd" of the occurrence, then "-" for a deleted one and "+" for
// one that was moved by an hour, each behind a blank. Clients see them as the pattern's Exceptions.
#pragma once

#include "sandbox/outlook/ItemDraft.h"
#include "sandbox/outlook/OutlookObject.h"

namespace sandbox::outlook
{

struct SeriesException
{
    automation::Date day;
    bool isDeleted = false;
};

std::vector<SeriesException> ExceptionsOf(const ItemDraft& series);
// The exceptions that a user would have made of a series: the second occurrence is deleted, the third moved.
// Empty for an item that is no series of so many occurrences.
std::wstring ExceptionsOfUser(const ItemDraft& series);
// A series whose pattern is written matches its pattern everywhere again ("Any exceptions associated with
// this recurring appointment will be cancelled", as Outlook asks its user beforehand).
void CancelExceptions(ItemDraft& series);

class ExceptionsObject : public OutlookObject
{
  public:
    ExceptionsObject(MailboxRef mailbox, std::shared_ptr<ItemDraft> draft)
        : OutlookObject(std::move(mailbox)), mDraft(std::move(draft))
    {
    }

  protected:
    const wchar_t* ClassName() const override { return L"Exceptions"; }
    const wchar_t* InterfaceName() const override { return L"Exceptions"; }
    const MemberTable& Members() const override;

  private:
    Value Item(const Call& call);
    Value Count(const Call&);

    std::shared_ptr<ItemDraft> mDraft;
};

class ExceptionObject : public OutlookObject
{
  public:
    ExceptionObject(MailboxRef mailbox, SeriesException exception)
        : OutlookObject(std::move(mailbox)), mException(exception)
    {
    }

  protected:
    const wchar_t* ClassName() const override { return L"Exception"; }
    const wchar_t* InterfaceName() const override { return L"Exception"; }
    const MemberTable& Members() const override;

  private:
    Value Deleted(const Call&) { return mException.isDeleted; }
    Value OriginalDate(const Call&) { return mException.day; }

    SeriesException mException;
};

} // namespace sandbox::outlook
