#include "sandbox/outlook/Folders.h"

#include "sandbox/outlook/Application.h"
#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/ItemsObject.h"
#include "sandbox/outlook/Paths.h"
#include "sandbox/outlook/Table.h"

#include <cwchar>

namespace sandbox::outlook
{

FoldersObject::FoldersObject(MailboxRef mailbox, MailFolder* parent)
    : OutlookObject(std::move(mailbox)), mParent(parent)
{
}

const MemberTable& FoldersObject::Members() const
{
    static const MemberTable members =
        AsPublished(L"_Folders", {
                                     {L"Item", Reads(&FoldersObject::Item), nullptr},
                                     {L"Count", Reads(&FoldersObject::Count), nullptr},
                                     {L"Add", Reads(&FoldersObject::Add), nullptr},
                                     {L"GetFirst", Reads(&FoldersObject::GetFirst), nullptr},
                                     {L"GetNext", Reads(&FoldersObject::GetNext), nullptr},
                                     Constant(L"Class", 15L),
                                 });
    return members;
}

const std::vector<MailFolder*>& FoldersObject::Children() const
{
    return mParent != nullptr ? mParent->Children() : Box()->Stores();
}

MailFolder* FoldersObject::Find(const std::wstring& name) const
{
    const auto found = std::ranges::find_if(Children(), [&](const MailFolder* folder) {
        return _wcsicmp(folder->Name().c_str(), name.c_str()) == 0;
    });
    return found == Children().end() ? nullptr : *found;
}

Value FoldersObject::At(size_t index) const
{
    return index < Children().size() ? Value(ObjectOfFolder(Box(), *Children()[index]))
                                     : Value(automation::Object());
}

// By name first: a folder may be called "2003".
Value FoldersObject::Item(const Call& call)
{
    const Value index = call.At(0);
    if (index.Type() == VT_BSTR)
    {
        if (MailFolder* folder = Find(automation::TextOf(index)))
        {
            return ObjectOfFolder(Box(), *folder);
        }
    }
    const long position = PositionOf(index);
    if (position < 1 || position > static_cast<long>(Children().size()))
    {
        FailNotFound(L"Folders.Item");
    }
    return At(static_cast<size_t>(position) - 1);
}

Value FoldersObject::Count(const Call&)
{
    return static_cast<long>(Children().size());
}

// The new folder's type is an OlDefaultFolders number, and that of the parent folder when it is left out.
Value FoldersObject::Add(const Call& call)
{
    const std::wstring name = automation::TextOf(call.At(0));
    if (mParent == nullptr || name.empty() || Find(name) != nullptr || name.find(L'\\') != std::wstring::npos)
    {
        FailInvalid(L"Folders.Add", L"Cannot create the folder \"" + name + L"\".");
    }
    const ItemKind kind = automation::IsMissing(call.At(1))
                              ? mParent->Type()
                              : KindOfDefaultFolder(automation::LongOf(call.At(1)));
    return ObjectOfFolder(Box(), Box()->AddFolder(mParent->Path() + L"\\" + name, kind));
}

Value FoldersObject::GetFirst(const Call&)
{
    mNext = 1;
    return At(0);
}

Value FoldersObject::GetNext(const Call&)
{
    return At(mNext++);
}

FolderObject::FolderObject(MailboxRef mailbox, MailFolder& folder)
    : OutlookObject(std::move(mailbox)), mFolder(folder)
{
}

const MemberTable& FolderObject::Members() const
{
    static const MemberTable members = AsPublished(
        L"MAPIFolder", {
                           {L"Name", Reads(&FolderObject::Name), nullptr},
                           {L"DefaultItemType", Reads(&FolderObject::DefaultItemType), nullptr},
                           {L"DefaultMessageClass", Reads(&FolderObject::DefaultMessageClass), nullptr},
                           {L"Folders", Reads(&FolderObject::Folders), nullptr},
                           {L"Items", Reads(&FolderObject::Items), nullptr},
                           {L"GetTable", Reads(&FolderObject::GetTable), nullptr},
                           {L"Delete", Reads(&FolderObject::Delete), nullptr},
                           {L"Parent", Reads(&FolderObject::Parent), nullptr},
                           {L"FolderPath", Reads(&FolderObject::FolderPath), nullptr},
                           {L"EntryID", Reads(&FolderObject::EntryId), nullptr},
                           {L"StoreID", Reads(&FolderObject::StoreId), nullptr},
                           Constant(L"Class", 2L),
                       });
    return members;
}

Value FolderObject::Name(const Call&)
{
    return mFolder.Name();
}

Value FolderObject::DefaultItemType(const Call&)
{
    return static_cast<long>(mFolder.Type());
}

Value FolderObject::DefaultMessageClass(const Call&)
{
    return MessageClassOf(mFolder.Type());
}

Value FolderObject::Folders(const Call& call)
{
    return WithIndex(MakeObject<FoldersObject>(Box(), &mFolder), call);
}

Value FolderObject::Items(const Call& call)
{
    return WithIndex(MakeObject<ItemsObject>(Box(), mFolder), call);
}

Value FolderObject::GetTable(const Call& call)
{
    if (Box()->Behaviour().noTable)
    {
        throw automation::Error(DISP_E_MEMBERNOTFOUND, L"GetTable");
    }
    return TableOf(Box(), mFolder, call.At(0), call.At(1));
}

Value FolderObject::Parent(const Call&)
{
    return mFolder.Parent() != nullptr ? ObjectOfFolder(Box(), *mFolder.Parent())
                                       : MakeObject<NameSpaceObject>(Box());
}

Value FolderObject::FolderPath(const Call&)
{
    return L"\\\\" + ShownPath(mFolder.Path());
}

Value FolderObject::EntryId(const Call&)
{
    return L"\\\\" + mFolder.Path();
}

Value FolderObject::StoreId(const Call&)
{
    return mFolder.Store().Path();
}

Value FolderObject::Delete(const Call&)
{
    if (mFolder.Parent() == nullptr)
    {
        FailInvalid(L"Delete", L"A store cannot be deleted.");
    }
    Box()->DeleteFolder(mFolder);
    return {};
}

automation::Object ObjectOfFolder(const MailboxRef& mailbox, MailFolder& folder)
{
    return MakeObject<FolderObject>(mailbox, folder);
}

} // namespace sandbox::outlook
