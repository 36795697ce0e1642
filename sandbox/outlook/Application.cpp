#include "sandbox/outlook/Application.h"

#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/Folders.h"
#include "sandbox/outlook/OutlookItem.h"

#include <cwchar>

namespace sandbox::outlook
{

namespace
{

std::atomic<long> gLiveApplications{0};

struct DefaultFolderRow
{
    long number;
    ItemKind kind;
};

constexpr DefaultFolderRow kDefaultFolders[] = {
    {6, ItemKind::Mail},  {9, ItemKind::Appointment}, {10, ItemKind::Contact},
    {12, ItemKind::Note}, {13, ItemKind::Task},
};

constexpr ItemKind kItemTypes[] = {
    ItemKind::Mail, ItemKind::Appointment, ItemKind::Contact,         ItemKind::Task,
    ItemKind::Note, ItemKind::Post,        ItemKind::DistributionList};

} // namespace

ItemKind KindOfItemType(const Value& type)
{
    if (automation::IsEmptyOrNull(type) || type.Type() == VT_DISPATCH)
    {
        FailTypeMismatch(L"ItemType");
    }
    constexpr auto kNone = static_cast<ItemKind>(-1);
    const std::wstring text = automation::TextOf(type);
    const bool isNumber = !text.empty() && text.find_first_not_of(L"-0123456789") == std::wstring::npos;
    const ItemKind kind =
        isNumber ? static_cast<ItemKind>(automation::LongOf(type)) : KindOfMessageClass(text, kNone);
    if (std::ranges::find(kItemTypes, kind) == std::end(kItemTypes))
    {
        FailInvalid(L"ItemType", L"The item type is not valid.");
    }
    return kind;
}

ItemKind KindOfDefaultFolder(long number)
{
    const auto row = std::ranges::find(kDefaultFolders, number, &DefaultFolderRow::number);
    if (row == std::end(kDefaultFolders))
    {
        FailInvalid(L"GetDefaultFolder", L"The folder type is not valid.");
    }
    return row->kind;
}

long LiveApplications() noexcept
{
    return gLiveApplications;
}

ApplicationObject::ApplicationObject(MailboxRef mailbox) : OutlookObject(std::move(mailbox))
{
    ++gLiveApplications;
}

ApplicationObject::~ApplicationObject()
{
    --gLiveApplications;
}

const MemberTable& ApplicationObject::Members() const
{
    static const MemberTable members =
        AsPublished(L"_Application", {
                                         {L"GetNamespace", Reads(&ApplicationObject::GetNamespace), nullptr},
                                         {L"Session", Reads(&ApplicationObject::Session), nullptr},
                                         {L"CreateItem", Reads(&ApplicationObject::CreateItem), nullptr},
                                         Constant(L"Name", L"Outlook"),
                                         Constant(L"Version", L"16.0.0.0"),
                                         Constant(L"Class", 0L),
                                         Ignored(L"Quit"),
                                     });
    return members;
}

Value ApplicationObject::GetNamespace(const Call& call)
{
    const Value type = call.At(0);
    if (type.Type() != VT_BSTR || _wcsicmp(automation::TextOf(type).c_str(), L"MAPI") != 0)
    {
        FailInvalid(L"GetNamespace", L"The only data source that can be accessed is MAPI.");
    }
    return MakeObject<NameSpaceObject>(Box());
}

Value ApplicationObject::Session(const Call&)
{
    return MakeObject<NameSpaceObject>(Box());
}

// The item will be saved to the default folder of its type.
Value ApplicationObject::CreateItem(const Call& call)
{
    const ItemKind kind = KindOfItemType(call.At(0));
    MailFolder* folder = Box()->DefaultFolder(kind);
    if (folder == nullptr)
    {
        FailNotFound(L"CreateItem");
    }
    return ObjectOfNewItem(Box(), *folder, kind);
}

NameSpaceObject::NameSpaceObject(MailboxRef mailbox) : OutlookObject(std::move(mailbox)) {}

const MemberTable& NameSpaceObject::Members() const
{
    static const MemberTable members = AsPublished(
        L"_NameSpace", {
                           {L"Folders", Reads(&NameSpaceObject::Folders), nullptr},
                           {L"GetDefaultFolder", Reads(&NameSpaceObject::GetDefaultFolder), nullptr},
                           {L"GetItemFromID", Reads(&NameSpaceObject::GetItemFromId), nullptr},
                           Constant(L"Type", L"MAPI"),
                           Constant(L"Class", 1L),
                           Ignored(L"Logon"),
                           Ignored(L"Logoff"),
                       });
    return members;
}

Value NameSpaceObject::Folders(const Call& call)
{
    return WithIndex(MakeObject<FoldersObject>(Box(), nullptr), call);
}

Value NameSpaceObject::GetDefaultFolder(const Call& call)
{
    const Value number = call.At(0);
    if (automation::IsMissing(number) || automation::IsEmptyOrNull(number))
    {
        FailTypeMismatch(L"GetDefaultFolder");
    }
    MailFolder* folder = Box()->DefaultFolder(KindOfDefaultFolder(automation::LongOf(number)));
    if (folder == nullptr)
    {
        FailNotFound(L"GetDefaultFolder");
    }
    return ObjectOfFolder(Box(), *folder);
}

// "EntryIDStore usually must be provided when retrieving an item based on its MAPI IDs" (GetItemFromID
// method): without it an item of the first store is found.
Value NameSpaceObject::GetItemFromId(const Call& call)
{
    const Value store = call.At(1);
    const std::wstring storeId =
        automation::IsMissing(store) ? Box()->Stores().front()->Path() : automation::TextOf(store);
    const StoredItemRef item = Box()->FindEntry(automation::TextOf(call.At(0)));
    if (!item || item->folder->Store().Path() != storeId)
    {
        FailNotFound(L"GetItemFromID");
    }
    Box()->FailIfOffline(*item->folder, L"GetItemFromID");
    return ObjectOfItem(Box(), item);
}

} // namespace sandbox::outlook
