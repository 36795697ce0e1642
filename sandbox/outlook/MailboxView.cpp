// What clients see of a mailbox where it is switched to be awkward: stores of equal names, the order of
// items, items of other kinds, and items that come and go while a client reads a folder.
#include "sandbox/outlook/Mailbox.h"

#include "sandbox/outlook/Clock.h"
#include "sandbox/outlook/Exceptions.h"
#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/ItemDraft.h"
#include "sandbox/outlook/Paths.h"

#include <random>

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;

constexpr const wchar_t* kForeign = L"Not of the folder's kind";

struct ForeignItem
{
    const wchar_t* messageClass;
    ItemKind kind;
    PropertyId title;
};

constexpr ForeignItem kForeignItems[] = {
    {L"IPM.DistList", ItemKind::DistributionList, DLName},
    {L"IPM.Post", ItemKind::Post, Subject},
    {L"IPM.StickyNote", ItemKind::Note, Body},
    {L"IPM.Acme", ItemKind::Mail, Subject},
};

bool HoldsRecords(const MailFolder& folder)
{
    return folder.Type() == ItemKind::Contact || folder.Type() == ItemKind::Task ||
           folder.Type() == ItemKind::Appointment;
}

bool IsForeign(const MailFolder& folder, const StoredItemRef& item)
{
    return item->kind != folder.Type();
}

PropertyBag PropertiesOfForeign(const ForeignItem& row)
{
    PropertyBag properties;
    properties.Put(MessageClass, row.messageClass);
    properties.Put(Body, kForeign);
    properties.Put(row.title, kForeign);
    properties.Put(CreationTime, Now());
    return properties;
}

// A record with as much as its kind needs to be one.
PropertyBag PropertiesOfArrival(ItemKind kind, long number)
{
    const std::wstring title = L"Arrived " + std::to_wstring(number);
    PropertyBag properties;
    properties.Put(MessageClass, MessageClassOf(kind));
    properties.Put(CreationTime, Now());
    if (kind == ItemKind::Contact)
    {
        properties.Put(LastName, title);
        return properties;
    }
    properties.Put(Subject, title);
    if (kind == ItemKind::Appointment)
    {
        properties.Put(Start, Today());
        properties.Put(Duration, 30L);
    }
    return properties;
}

} // namespace

void Mailbox::Switch(const std::wstring& name, const Value& value)
{
    const std::lock_guard hold(mLock);
    SetSwitch(mAwkward, name, value);
    for (const auto& [path, folder] : mFolders)
    {
        folder->mIsPopulated = false;
        if (folder->mIsRead)
        {
            Freeze(*folder);
        }
    }
    ForgetOrders();
    AddTwins();
}

void Mailbox::Freeze(MailFolder& folder)
{
    folder.mStale.clear();
    if (mAwkward.tableStale)
    {
        for (const StoredItemRef& item : Items(folder))
        {
            folder.mStale[item->index] = std::make_shared<StoredItem>(*item);
        }
    }
}

StoredItemRef Mailbox::AsInTable(const StoredItemRef& item) const
{
    const auto stale = item->folder->mStale.find(item->index);
    return stale == item->folder->mStale.end() ? item : stale->second;
}

// Outlook shows a store's name, which need not be the only one of its kind; what tells stores apart is the
// store's identifier (Store.DisplayName property, Store.StoreID property). The twins live in memory only.
void Mailbox::AddTwins()
{
    if (mAwkward.twins == Twins::None ||
        std::ranges::any_of(mStores, [](const MailFolder* store) { return store->Path() != store->Name(); }))
    {
        return;
    }
    std::vector<std::pair<std::wstring, ItemKind>> originals;
    for (const auto& [path, folder] : mFolders)
    {
        originals.emplace_back(path, folder->Type());
    }
    std::ranges::sort(originals);
    const size_t count = mStores.size();
    for (const auto& [path, type] : originals)
    {
        const size_t end = std::min(path.find(kPathSeparator), path.size());
        Adopt(path.substr(0, end) + kTwinMark + L"2" + path.substr(end), type);
    }
    if (mAwkward.twins == Twins::Before)
    {
        std::rotate(mStores.begin(), mStores.begin() + static_cast<std::ptrdiff_t>(count), mStores.end());
    }
}

void Mailbox::ForgetOrders() noexcept
{
    for (const auto& [path, folder] : mFolders)
    {
        folder->mIsArranged = false;
    }
}

void Mailbox::AddForeignItems(MailFolder& folder)
{
    const auto& items = Items(folder);
    if (std::ranges::any_of(items, [&](const StoredItemRef& item) { return IsForeign(folder, item); }))
    {
        return;
    }
    for (const ForeignItem& row : kForeignItems)
    {
        Save(folder, nullptr, row.kind, PropertiesOfForeign(row), nullptr);
    }
}

void Mailbox::AddExceptions(const StoredItemRef& item)
{
    if (item->properties.Find(RecurrenceExceptions) == nullptr && item->kind == ItemKind::Appointment)
    {
        const std::wstring exceptions = ExceptionsOfUser(ItemDraft(*this, item));
        if (!exceptions.empty())
        {
            item->properties.Put(RecurrenceExceptions, exceptions);
        }
    }
}

void Mailbox::Populate(MailFolder& folder)
{
    folder.mIsPopulated = true;
    if (mAwkward.foreignItems && HoldsRecords(folder) && folder.Path() == ShownPath(folder.Path()))
    {
        AddForeignItems(folder);
    }
    if (mAwkward.seriesHaveExceptions)
    {
        std::ranges::for_each(Items(folder), [&](const StoredItemRef& item) { AddExceptions(item); });
    }
    if (folder.mStale.empty())
    {
        Freeze(folder);
    }
}

// "The items in the Items collection object are not guaranteed to be in any particular order"; "the Items
// object returns the items in an Offline Folders file (.ost) in the reverse order" (Items object). Items of
// other kinds that a switch has added stand among the others: at places 1, 3, 5 and 7.
void Mailbox::Arrange(MailFolder& folder)
{
    folder.mIsArranged = true;
    folder.mSeen = Items(folder);
    if (mAwkward.foreignItems && HoldsRecords(folder))
    {
        std::vector<StoredItemRef> foreign;
        std::ranges::copy_if(folder.mSeen, std::back_inserter(foreign),
                             [&](const StoredItemRef& item) { return IsForeign(folder, item); });
        std::erase_if(folder.mSeen, [&](const StoredItemRef& item) { return IsForeign(folder, item); });
        for (size_t i = 0; i < foreign.size(); ++i)
        {
            const size_t place = std::min(2 * i, folder.mSeen.size());
            folder.mSeen.insert(folder.mSeen.begin() + static_cast<std::ptrdiff_t>(place), foreign[i]);
        }
    }
    if (mAwkward.order == ItemOrder::NewestFirst)
    {
        std::ranges::reverse(folder.mSeen);
    }
    if (mAwkward.order == ItemOrder::AnotherAtEachSave)
    {
        std::mt19937 random(mSaves + 1);
        std::ranges::shuffle(folder.mSeen, random);
    }
}

const std::vector<StoredItemRef>& Mailbox::Seen(MailFolder& folder)
{
    if (!folder.mIsPopulated)
    {
        Populate(folder);
    }
    if (mAwkward.order == ItemOrder::AsAdded && !mAwkward.foreignItems)
    {
        return Items(folder);
    }
    if (!folder.mIsArranged)
    {
        Arrange(folder);
    }
    return folder.mSeen;
}

void Mailbox::Arrive(MailFolder& folder)
{
    if (HoldsRecords(folder))
    {
        Save(folder, nullptr, folder.Type(), PropertiesOfArrival(folder.Type(), folder.mFetches), nullptr);
    }
}

// Other programs, and the server, add items to a folder and remove them at any time (Items.ItemAdd event,
// Items.ItemRemove event).
void Mailbox::CountFetch(MailFolder& folder)
{
    ++folder.mFetches;
    if (folder.mFetches == mAwkward.arriveAtFetch)
    {
        Arrive(folder);
    }
    if (folder.mFetches == mAwkward.vanishAtFetch && !Seen(folder).empty())
    {
        Delete(StoredItemRef(Seen(folder).front()));
    }
}

void Mailbox::FailIfOffline(const MailFolder& folder, const wchar_t* member) const
{
    if (!mAwkward.offlineStore.empty() && folder.Store().Name() == mAwkward.offlineStore)
    {
        FailOffline(member);
    }
}

} // namespace sandbox::outlook
