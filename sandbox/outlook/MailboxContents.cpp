// How a test or a program of the sandbox builds a mailbox and looks into it, without automation objects.
#include "sandbox/outlook/Mailbox.h"

#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/ItemDraft.h"
#include "sandbox/outlook/PropertyValues.h"

namespace sandbox::outlook
{

const StoredItemRef& Mailbox::ItemAt(const std::wstring& path, long position)
{
    MailFolder* folder = FindFolder(path);
    if (folder == nullptr)
    {
        FailNotFound(L"Folder");
    }
    const auto& items = Items(*folder);
    if (position < 1 || position > static_cast<long>(items.size()))
    {
        FailOutOfBounds(L"Item");
    }
    return items[static_cast<size_t>(position) - 1];
}

long Mailbox::AddItem(const std::wstring& path, const NamedValues& properties)
{
    const std::lock_guard hold(mLock);
    MailFolder* folder = FindFolder(path);
    if (folder == nullptr)
    {
        FailNotFound(L"Folder");
    }
    ItemKind kind = folder->Type();
    for (const auto& [name, value] : properties)
    {
        kind = name == L"MessageClass" ? KindOfMessageClass(automation::TextOf(value), ItemKind::Mail) : kind;
    }
    PropertyBag bag;
    for (const auto& [name, value] : properties)
    {
        const auto id = FindProperty(kind, name);
        if (!id)
        {
            FailNotFound(name.c_str());
        }
        bag.Put(*id, Converted(PropertyOf(*id), value));
    }
    Save(*folder, nullptr, kind, bag, nullptr);
    return static_cast<long>(Items(*folder).size());
}

void Mailbox::AddLink(const std::wstring& path, long position, const std::wstring& contactPath,
                      long contactPosition)
{
    const std::lock_guard hold(mLock);
    const StoredItemRef item = ItemAt(path, position);
    auto links = item->links;
    links.push_back(LinkTo(*ItemAt(contactPath, contactPosition)));
    Save(*item->folder, item, item->kind, {}, &links);
}

void Mailbox::RemoveItem(const std::wstring& path, long position)
{
    const std::lock_guard hold(mLock);
    Delete(StoredItemRef(ItemAt(path, position)));
}

long Mailbox::ItemCount(const std::wstring& path)
{
    const std::lock_guard hold(mLock);
    MailFolder* folder = FindFolder(path);
    if (folder == nullptr)
    {
        FailNotFound(L"Folder");
    }
    return static_cast<long>(Items(*folder).size());
}

Value Mailbox::ItemProperty(const std::wstring& path, long position, const std::wstring& name)
{
    const std::lock_guard hold(mLock);
    const StoredItemRef& item = ItemAt(path, position);
    const auto id = FindProperty(item->kind, name);
    if (!id)
    {
        FailNotFound(name.c_str());
    }
    return ItemDraft(*this, item).Read(*id);
}

std::vector<std::wstring> Mailbox::ItemLinks(const std::wstring& path, long position)
{
    const std::lock_guard hold(mLock);
    return ItemAt(path, position)->links;
}

} // namespace sandbox::outlook
