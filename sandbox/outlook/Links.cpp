#include "sandbox/outlook/Links.h"

#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/OutlookItem.h"

namespace sandbox::outlook
{

LinksObject::LinksObject(MailboxRef mailbox, std::shared_ptr<ItemDraft> draft)
    : OutlookObject(std::move(mailbox)), mDraft(std::move(draft))
{
}

const MemberTable& LinksObject::Members() const
{
    static const MemberTable members =
        AsPublished(L"Links", {
                                  {L"Item", Reads(&LinksObject::Item), nullptr},
                                  {L"Count", Reads(&LinksObject::Count), nullptr},
                                  {L"Add", Reads(&LinksObject::Add), nullptr},
                                  {L"Remove", Reads(&LinksObject::Remove), nullptr},
                                  Constant(L"Class", 76L),
                              });
    return members;
}

size_t LinksObject::IndexOf(const Call& call) const
{
    const long position = PositionOf(call.At(0));
    if (position < 1 || position > static_cast<long>(mDraft->Links().size()))
    {
        FailOutOfBounds(L"Links.Item");
    }
    return static_cast<size_t>(position) - 1;
}

Value LinksObject::Item(const Call& call)
{
    return MakeObject<LinkObject>(Box(), mDraft->Links()[IndexOf(call)]);
}

Value LinksObject::Count(const Call&)
{
    return static_cast<long>(mDraft->Links().size());
}

// Outlook links items to contacts only, and to such as it can find again.
Value LinksObject::Add(const Call& call)
{
    const Value given = call.At(0);
    if (given.Type() != VT_DISPATCH && given.Type() != VT_UNKNOWN)
    {
        FailTypeMismatch(L"Links.Add");
    }
    const StoredItemRef contact = ItemBehind(*Box(), automation::ObjectOf(given));
    if (!contact || contact->kind != ItemKind::Contact)
    {
        FailInvalid(L"Links.Add", L"You can add only saved contacts to the links of an item.");
    }
    auto links = mDraft->Links();
    links.push_back(Mailbox::LinkTo(*contact));
    mDraft->SetLinks(links);
    return MakeObject<LinkObject>(Box(), links.back());
}

Value LinksObject::Remove(const Call& call)
{
    auto links = mDraft->Links();
    links.erase(links.begin() + static_cast<std::ptrdiff_t>(IndexOf(call)));
    mDraft->SetLinks(std::move(links));
    return {};
}

LinkObject::LinkObject(MailboxRef mailbox, std::wstring link)
    : OutlookObject(std::move(mailbox)), mLink(std::move(link))
{
}

const MemberTable& LinkObject::Members() const
{
    static const MemberTable members = AsPublished(L"Link", {
                                                                {L"Name", Reads(&LinkObject::Name), nullptr},
                                                                {L"Item", Reads(&LinkObject::Item), nullptr},
                                                                Constant(L"Type", 2L),
                                                                Constant(L"Class", 75L),
                                                            });
    return members;
}

// A link that leads nowhere still has the name that it was made with, as far as there is one.
Value LinkObject::Name(const Call&)
{
    const StoredItemRef item = Box()->Follow(mLink);
    return item ? ItemDraft(*Box(), item).Read(PropertyId::FullName) : Value(mLink);
}

Value LinkObject::Item(const Call&)
{
    const StoredItemRef item = Box()->Follow(mLink);
    if (!item)
    {
        FailNotFound(L"Link.Item");
    }
    return ObjectOfItem(Box(), item);
}

} // namespace sandbox::outlook
