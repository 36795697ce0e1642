// The items of a folder, all of them or those that a condition leaves. The items of a folder are seen as
// they are at each call; what a condition leaves was found when it was asked for.
#pragma once

#include "sandbox/outlook/Filter.h"
#include "sandbox/outlook/OutlookObject.h"

#include <optional>

namespace sandbox::outlook
{

class ItemsObject : public OutlookObject
{
  public:
    ItemsObject(MailboxRef mailbox, MailFolder& folder);
    ItemsObject(MailboxRef mailbox, MailFolder& folder, std::vector<StoredItemRef> selection);

  protected:
    const wchar_t* ClassName() const override { return L"Items"; }
    const wchar_t* InterfaceName() const override { return L"_Items"; }
    const MailFolder* Place() const override { return &mFolder; }
    const MemberTable& Members() const override;

  private:
    const std::vector<StoredItemRef>& Items();
    const StoredItemRef& BySubject(const std::wstring& subject);
    const StoredItemRef& At(const Value& index);
    Value ObjectAt(size_t index);
    Value NextFound();
    Value Item(const Call& call);
    Value Count(const Call&);
    Value Add(const Call& call);
    Value Remove(const Call& call);
    Value Restrict(const Call& call);
    Value Find(const Call& call);
    Value FindNext(const Call&);
    Value GetFirst(const Call&);
    Value GetNext(const Call&);

    MailFolder& mFolder;
    std::optional<std::vector<StoredItemRef>> mSelection;
    long mDeletionsSeen;
    ConditionRef mSought;
    size_t mNextSought = 0;
    size_t mNext = 0;
};

} // namespace sandbox::outlook
