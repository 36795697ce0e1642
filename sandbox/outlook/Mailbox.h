// The mailbox behind the fake Outlook: folders of items, each item a bag of typed properties and a list of
// links. It lives as long as an object of the fake (or a test) refers to it. Its lock is held during
// every call that a client makes, so that clients on several threads may share a mailbox.
#pragma once

#include "sandbox/outlook/Awkward.h"
#include "sandbox/outlook/MailboxStore.h"
#include "sandbox/outlook/PropertyBag.h"

#include <map>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace sandbox::outlook
{

class MailFolder;

struct StoredItem
{
    MailFolder* folder = nullptr; // null once the item is deleted
    long index = 0;               // its number in the mailbox file; not its position, which closes gaps
    ItemKind kind = ItemKind::Mail;
    PropertyBag properties;
    std::vector<std::wstring> links; // see Mailbox::LinkTo
};

using StoredItemRef = std::shared_ptr<StoredItem>;

class MailFolder
{
  public:
    MailFolder(std::wstring path, ItemKind type, MailFolder* parent);

    // Tells the folder from all others; see ShownPath for what Outlook shows of it.
    const std::wstring& Path() const noexcept { return mPath; }
    const std::wstring& Name() const noexcept { return mName; }
    ItemKind Type() const noexcept { return mType; }
    // Null for a top-level store.
    MailFolder* Parent() const noexcept { return mParent; }
    const std::vector<MailFolder*>& Children() const noexcept { return mChildren; }
    // The top-level store.
    const MailFolder& Store() const noexcept { return mParent != nullptr ? mParent->Store() : *this; }

  private:
    friend class Mailbox;

    std::wstring mPath;
    std::wstring mName;
    ItemKind mType;
    MailFolder* mParent;
    std::vector<MailFolder*> mChildren;
    bool mIsRead = false;
    std::vector<StoredItemRef> mItems;    // by index
    std::vector<StoredItemRef> mSeen;     // the same in the order in which clients see them
    bool mIsArranged = false;             // whether that order is up to date
    bool mIsPopulated = false;            // whether the switches have added to the items what they add
    std::map<long, StoredItemRef> mStale; // by index: copies of the items as tables show them
    long mFetches = 0;
    long mLastIndex = 0; // of the items that are or were there
};

class Mailbox
{
  public:
    using NamedValues = std::vector<std::pair<std::wstring, Value>>;

    // Without a store the mailbox lives in memory only. Throws automation::Error when the store cannot be
    // read.
    explicit Mailbox(std::unique_ptr<MailboxStore> store = nullptr);

    std::recursive_mutex& Lock() noexcept { return mLock; }

    // --- Building and inspecting a mailbox; paths are folder names joined by "\", positions count from 1.

    // Adds a folder, and those above it that are missing; an existing one stays as it is.
    MailFolder& AddFolder(const std::wstring& path, ItemKind type = ItemKind::Mail);
    // Adds an item of the folder's type (or that of its "MessageClass") with these properties, and returns
    // its position. Values are taken as they are, without the couplings that a client would meet.
    long AddItem(const std::wstring& path, const NamedValues& properties);
    void AddLink(const std::wstring& path, long position, const std::wstring& contactPath,
                 long contactPosition);
    // Throw automation::Error for a folder or an item that is not there.
    long ItemCount(const std::wstring& path);
    Value ItemProperty(const std::wstring& path, long position, const std::wstring& name);
    std::vector<std::wstring> ItemLinks(const std::wstring& path, long position);

    void RemoveItem(const std::wstring& path, long position);

    const Awkward& Behaviour() const noexcept { return mAwkward; }
    // Sets a switch (see Awkward.h). Throws automation::Error for one that does not exist.
    void Switch(const std::wstring& name, const Value& value);

    // True when the mailbox file is no longer what this mailbox has read and written.
    bool HasChangedElsewhere();

    // --- For the objects of the fake.

    const std::vector<MailFolder*>& Stores() const noexcept { return mStores; }
    // Null where there is none.
    MailFolder* FindFolder(const std::wstring& path) const;
    // The first store's folder for items of this type, by preference the one with Outlook's own name for it;
    // null where there is none.
    MailFolder* DefaultFolder(ItemKind type) const;
    const std::vector<StoredItemRef>& Items(MailFolder& folder);
    // The same in the order in which clients see them, which the switches decide.
    const std::vector<StoredItemRef>& Seen(MailFolder& folder);
    // The item as the tables of its folder show it: itself, or where they are stale as it was when the switch
    // was set.
    StoredItemRef AsInTable(const StoredItemRef& item) const;
    // A client fetches an item from a folder: the moment at which switches let items come and go.
    void CountFetch(MailFolder& folder);
    // Where stores are not connected, throws automation::Error for a folder of such a store.
    void FailIfOffline(const MailFolder& folder, const wchar_t* member) const;
    // Writes properties (and links, where given) of an item; a null item becomes a new one at the folder's
    // end. Returns the item.
    StoredItemRef Save(MailFolder& folder, StoredItemRef item, ItemKind kind, const PropertyBag& properties,
                       const std::vector<std::wstring>* links);
    void Delete(const StoredItemRef& item);
    // With everything in it. Not for a store.
    void DeleteFolder(MailFolder& folder);

    // How many items have been deleted so far: tells a collection whether to look for those that it lost.
    long Deletions() const noexcept { return mDeletions; }
    static std::wstring EntryIdOf(const StoredItem& item);
    // Null where there is none.
    StoredItemRef FindEntry(const std::wstring& entryId);

    // A link is written as the path of the linked item's folder, "\", and the item's index.
    static std::wstring LinkTo(const StoredItem& item);
    // The item that a link leads to; null for one that leads nowhere (any more).
    StoredItemRef Follow(const std::wstring& link);

  private:
    MailFolder& Adopt(const std::wstring& path, ItemKind type);
    void AddTwins();
    void Populate(MailFolder& folder);
    void AddForeignItems(MailFolder& folder);
    void AddExceptions(const StoredItemRef& item);
    void Arrange(MailFolder& folder);
    void ForgetOrders() noexcept;
    void Arrive(MailFolder& folder);
    void Freeze(MailFolder& folder);
    StoredItemRef FindIndex(MailFolder& folder, long index);
    const StoredItemRef& ItemAt(const std::wstring& path, long position);

    std::recursive_mutex mLock;
    std::unique_ptr<MailboxStore> mStore;
    std::unordered_map<std::wstring, std::unique_ptr<MailFolder>> mFolders;
    std::vector<MailFolder*> mStores;
    std::vector<std::unique_ptr<MailFolder>> mDeletedFolders; // which clients may still refer to
    long mDeletions = 0;
    Awkward mAwkward;
    unsigned mSaves = 0;
};

using MailboxRef = std::shared_ptr<Mailbox>;

// The kind that a message class names ("IPM.Task" and "IPM.Task.Special" are tasks); otherwise as given. An
// item whose class is unknown is none of its folder's kind: Outlook takes the general form for "items for
// which the specified form cannot be found" (Item Types and Message Classes), here that of a message.
ItemKind KindOfMessageClass(std::wstring_view messageClass, ItemKind otherwise);
const wchar_t* MessageClassOf(ItemKind kind);
// The version that marks an item as created by this Outlook.
inline constexpr const wchar_t* kOutlookVersion = L"16.0";

} // namespace sandbox::outlook
