#include "sandbox/outlook/Mailbox.h"

#include "sandbox/outlook/Paths.h"
#include "sandbox/outlook/PropertyValues.h"

#include <cwchar>

namespace sandbox::outlook
{

namespace
{

struct MessageClassRow
{
    ItemKind kind;
    const wchar_t* messageClass;
};

constexpr MessageClassRow kMessageClasses[] = {
    {ItemKind::Mail, L"IPM.Note"},
    {ItemKind::Appointment, L"IPM.Appointment"},
    {ItemKind::Contact, L"IPM.Contact"},
    {ItemKind::Task, L"IPM.Task"},
    {ItemKind::Note, L"IPM.StickyNote"},
    {ItemKind::Post, L"IPM.Post"},
    {ItemKind::DistributionList, L"IPM.DistList"},
};

struct DefaultFolderName
{
    ItemKind type;
    const wchar_t* english;
    const wchar_t* chinese;
};

constexpr DefaultFolderName kDefaultFolderNames[] = {
    {ItemKind::Mail, L"Inbox", L"收件箱"},       {ItemKind::Appointment, L"Calendar", L"日历"},
    {ItemKind::Contact, L"Contacts", L"联系人"}, {ItemKind::Task, L"Tasks", L"任务"},
    {ItemKind::Note, L"Notes", L"便笺"},
};

bool HasDefaultName(const MailFolder& folder)
{
    return std::ranges::any_of(kDefaultFolderNames, [&](const DefaultFolderName& row) {
        return row.type == folder.Type() && (folder.Name() == row.english || folder.Name() == row.chinese);
    });
}

// What every item states, whoever wrote it.
void FillIn(StoredItem& item)
{
    if (item.properties.Find(PropertyId::MessageClass) == nullptr)
    {
        item.properties.Put(PropertyId::MessageClass, MessageClassOf(item.kind));
    }
    if (item.properties.Find(PropertyId::OutlookVersion) == nullptr)
    {
        item.properties.Put(PropertyId::OutlookVersion, kOutlookVersion);
    }
}

StoredItemRef ItemOfRows(MailFolder& folder, long index, ItemRows&& rows)
{
    auto item = std::make_shared<StoredItem>();
    item->folder = &folder;
    item->index = index;
    item->kind = folder.Type();
    for (const auto& [name, text] : rows.properties)
    {
        if (name == L"MessageClass")
        {
            item->kind = KindOfMessageClass(text, ItemKind::Mail);
        }
    }
    for (const auto& [name, text] : rows.properties)
    {
        const auto id = FindProperty(item->kind, name);
        auto value = id ? ValueOfFileText(PropertyOf(*id).type, text) : std::nullopt;
        if (value)
        {
            item->properties.Put(*id, std::move(*value));
        }
    }
    item->links = std::move(rows.links);
    FillIn(*item);
    return item;
}

PropertyRows RowsOf(const PropertyBag& properties)
{
    PropertyRows rows;
    for (const auto& [id, value] : properties)
    {
        rows.emplace_back(PropertyOf(id).name,
                          value.Type() == VT_EMPTY ? std::nullopt : std::optional(FileText(value)));
    }
    return rows;
}

} // namespace

ItemKind KindOfMessageClass(std::wstring_view messageClass, ItemKind otherwise)
{
    for (const MessageClassRow& row : kMessageClasses)
    {
        const std::wstring_view known = row.messageClass;
        const bool isPrefix = _wcsnicmp(messageClass.data(), row.messageClass,
                                        std::min(known.size(), messageClass.size())) == 0;
        if (isPrefix && messageClass.size() >= known.size() &&
            (messageClass.size() == known.size() || messageClass[known.size()] == L'.'))
        {
            return row.kind;
        }
    }
    return otherwise;
}

const wchar_t* MessageClassOf(ItemKind kind)
{
    return std::ranges::find(kMessageClasses, kind, &MessageClassRow::kind)->messageClass;
}

MailFolder::MailFolder(std::wstring path, ItemKind type, MailFolder* parent)
    : mPath(std::move(path)), mName(ShownPath(NameIn(mPath))), mType(type), mParent(parent)
{
}

Mailbox::Mailbox(std::unique_ptr<MailboxStore> store) : mStore(std::move(store))
{
    if (mStore)
    {
        for (const auto& [path, type] : mStore->ReadFolders())
        {
            Adopt(path, type);
        }
        for (const auto& [name, value] : mStore->ReadSwitches())
        {
            Switch(name, value);
        }
    }
}

MailFolder* Mailbox::FindFolder(const std::wstring& path) const
{
    const auto found = mFolders.find(path);
    return found == mFolders.end() ? nullptr : found->second.get();
}

// Takes a folder into the tree. Rows may be in any order and parents may be missing, so that a parent seen
// later only brings its type.
MailFolder& Mailbox::Adopt(const std::wstring& path, ItemKind type)
{
    if (MailFolder* known = FindFolder(path))
    {
        known->mType = type;
        return *known;
    }
    const std::wstring above = ParentOf(path);
    MailFolder* known = FindFolder(above);
    MailFolder* parent = above.empty() || known != nullptr ? known : &Adopt(above, ItemKind::Mail);
    auto& folder = mFolders[path] = std::make_unique<MailFolder>(path, type, parent);
    (parent != nullptr ? parent->mChildren : mStores).push_back(folder.get());
    return *folder;
}

MailFolder& Mailbox::AddFolder(const std::wstring& path, ItemKind type)
{
    const std::lock_guard hold(mLock);
    if (MailFolder* known = FindFolder(path))
    {
        return *known;
    }
    const std::wstring above = ParentOf(path);
    if (!above.empty())
    {
        AddFolder(above);
    }
    if (mStore)
    {
        mStore->AddFolder(path, type);
    }
    return Adopt(path, type);
}

MailFolder* Mailbox::DefaultFolder(ItemKind type) const
{
    MailFolder* first = nullptr;
    const auto store = std::ranges::find_if(
        mStores, [](const MailFolder* one) { return one->Path().find(kTwinMark) == std::wstring::npos; });
    if (store != mStores.end())
    {
        for (MailFolder* folder : (*store)->Children())
        {
            if (folder->Type() == type && HasDefaultName(*folder))
            {
                return folder;
            }
            if (folder->Type() == type && first == nullptr)
            {
                first = folder;
            }
        }
    }
    return first;
}

const std::vector<StoredItemRef>& Mailbox::Items(MailFolder& folder)
{
    if (mStore && !folder.mIsRead)
    {
        for (auto& [index, rows] : mStore->ReadItems(folder.Path()))
        {
            folder.mItems.push_back(ItemOfRows(folder, index, std::move(rows)));
        }
    }
    folder.mIsRead = true;
    return folder.mItems;
}

bool Mailbox::HasChangedElsewhere()
{
    const std::lock_guard hold(mLock);
    return mStore && mStore->HasChangedElsewhere();
}

StoredItemRef Mailbox::Save(MailFolder& folder, StoredItemRef item, ItemKind kind,
                            const PropertyBag& properties, const std::vector<std::wstring>* links)
{
    const auto& items = Items(folder);
    // An EntryID is not given a second time (EntryID property: unique).
    folder.mLastIndex = std::max(folder.mLastIndex, items.empty() ? 0 : items.back()->index);
    const long index = item ? item->index : folder.mLastIndex + 1;
    if (mStore)
    {
        mStore->WriteItem(folder.Path(), index, RowsOf(properties), links);
    }
    if (!item)
    {
        item = std::make_shared<StoredItem>();
        item->folder = &folder;
        item->index = index;
        item->kind = kind;
        folder.mItems.push_back(item);
        folder.mLastIndex = index;
    }
    ++mSaves;
    ForgetOrders();
    for (const auto& [id, value] : properties)
    {
        value.Type() == VT_EMPTY ? item->properties.Remove(id) : item->properties.Put(id, value);
    }
    FillIn(*item);
    if (links != nullptr)
    {
        item->links = *links;
    }
    return item;
}

void Mailbox::Delete(const StoredItemRef& item)
{
    if (item->folder == nullptr)
    {
        return;
    }
    if (mStore)
    {
        mStore->DeleteItem(item->folder->Path(), item->index);
    }
    std::erase(item->folder->mItems, item);
    item->folder->mIsArranged = false;
    item->folder = nullptr;
    ++mDeletions;
}

void Mailbox::DeleteFolder(MailFolder& folder)
{
    for (MailFolder* child : std::vector(folder.mChildren))
    {
        DeleteFolder(*child);
    }
    for (const StoredItemRef& item : std::vector(Items(folder)))
    {
        Delete(item);
    }
    if (mStore)
    {
        mStore->DeleteFolder(folder.Path());
    }
    std::erase(folder.Parent()->mChildren, &folder);
    const auto known = mFolders.find(folder.Path());
    mDeletedFolders.push_back(std::move(known->second));
    mFolders.erase(known);
}

} // namespace sandbox::outlook
