#include "sandbox/outlook/ItemsObject.h"

#include "sandbox/outlook/Application.h"
#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/Folders.h"
#include "sandbox/outlook/OutlookItem.h"

namespace sandbox::outlook
{

ItemsObject::ItemsObject(MailboxRef mailbox, MailFolder& folder)
    : OutlookObject(std::move(mailbox)), mFolder(folder), mDeletionsSeen(Box()->Deletions())
{
}

ItemsObject::ItemsObject(MailboxRef mailbox, MailFolder& folder, std::vector<StoredItemRef> selection)
    : OutlookObject(std::move(mailbox)),
      mFolder(folder),
      mSelection(std::move(selection)),
      mDeletionsSeen(Box()->Deletions())
{
}

const MemberTable& ItemsObject::Members() const
{
    static const MemberTable members =
        AsPublished(L"_Items", {
                                   {L"Item", Reads(&ItemsObject::Item), nullptr},
                                   {L"Count", Reads(&ItemsObject::Count), nullptr},
                                   {L"Add", Reads(&ItemsObject::Add), nullptr},
                                   {L"Remove", Reads(&ItemsObject::Remove), nullptr},
                                   {L"Restrict", Reads(&ItemsObject::Restrict), nullptr},
                                   {L"Find", Reads(&ItemsObject::Find), nullptr},
                                   {L"FindNext", Reads(&ItemsObject::FindNext), nullptr},
                                   {L"GetFirst", Reads(&ItemsObject::GetFirst), nullptr},
                                   {L"GetNext", Reads(&ItemsObject::GetNext), nullptr},
                                   Constant(L"Class", 16L),
                               });
    return members;
}

const std::vector<StoredItemRef>& ItemsObject::Items()
{
    if (!mSelection)
    {
        return Box()->Seen(mFolder);
    }
    if (mDeletionsSeen != Box()->Deletions())
    {
        std::erase_if(*mSelection, [](const StoredItemRef& item) { return item->folder == nullptr; });
        mDeletionsSeen = Box()->Deletions();
    }
    return *mSelection;
}

const StoredItemRef& ItemsObject::BySubject(const std::wstring& subject)
{
    for (const StoredItemRef& item : Items())
    {
        if (ItemDraft(*Box(), item).Text(PropertyId::Subject) == subject)
        {
            return item;
        }
    }
    FailNotFound(L"Items.Item");
}

// A text that is no number names an item by its subject.
const StoredItemRef& ItemsObject::At(const Value& index)
{
    const auto& items = Items();
    const long position = PositionOf(index);
    if (position == 0)
    {
        return BySubject(automation::TextOf(index));
    }
    if (position < 1 || position > static_cast<long>(items.size()))
    {
        FailOutOfBounds(L"Items.Item");
    }
    return items[static_cast<size_t>(position) - 1];
}

Value ItemsObject::ObjectAt(size_t index)
{
    Box()->CountFetch(mFolder);
    const auto& items = Items();
    return index < items.size() ? Value(ObjectOfItem(Box(), items[index])) : Value(automation::Object());
}

Value ItemsObject::Item(const Call& call)
{
    Box()->CountFetch(mFolder);
    return ObjectOfItem(Box(), At(call.At(0)));
}

Value ItemsObject::Count(const Call&)
{
    return static_cast<long>(Items().size());
}

// The type may be another than the folder's own; left out, it is that one.
Value ItemsObject::Add(const Call& call)
{
    const Value type = call.At(0);
    const ItemKind kind = automation::IsMissing(type) ? mFolder.Type() : KindOfItemType(type);
    return ObjectOfNewItem(Box(), mFolder, kind);
}

Value ItemsObject::Remove(const Call& call)
{
    const StoredItemRef item = At(call.At(0));
    Box()->Delete(item);
    return {};
}

Value ItemsObject::Restrict(const Call& call)
{
    const ConditionRef condition = ParsedFilter(automation::TextOf(call.At(0)));
    std::vector<StoredItemRef> selection;
    for (const StoredItemRef& item : Items())
    {
        if (condition->Holds(ItemDraft(*Box(), item)))
        {
            selection.push_back(item);
        }
    }
    return MakeObject<ItemsObject>(Box(), mFolder, std::move(selection));
}

Value ItemsObject::NextFound()
{
    const auto& items = Items();
    while (mNextSought < items.size())
    {
        const StoredItemRef& item = items[mNextSought++];
        if (mSought->Holds(ItemDraft(*Box(), item)))
        {
            return ObjectOfItem(Box(), item);
        }
    }
    return automation::Object();
}

Value ItemsObject::Find(const Call& call)
{
    mSought = ParsedFilter(automation::TextOf(call.At(0)));
    mNextSought = 0;
    return NextFound();
}

Value ItemsObject::FindNext(const Call&)
{
    return mSought ? NextFound() : Value(automation::Object());
}

Value ItemsObject::GetFirst(const Call&)
{
    mNext = 1;
    return ObjectAt(0);
}

Value ItemsObject::GetNext(const Call&)
{
    return ObjectAt(mNext++);
}

} // namespace sandbox::outlook
