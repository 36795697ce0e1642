#include "tools/conformance/Scratch.h"

#include "automation/Error.h"

namespace conformance
{

using automation::Object;

namespace
{

constexpr const wchar_t* kFolderName = L"Telvix conformance";

// Numbers of OlDefaultFolders.
long DefaultFolderOf(Kind kind)
{
    switch (kind)
    {
    case Kind::Contact: return 10;
    case Kind::Task: return 13;
    default: return 9;
    }
}

bool HasFolder(const Object& folders, const wchar_t* name)
{
    const long count = automation::LongOf(folders.Get(L"Count"));
    for (long i = 1; i <= count; ++i)
    {
        if (automation::TextOf(folders.GetObject(L"Item", i).Get(L"Name")) == name)
        {
            return true;
        }
    }
    return false;
}

} // namespace

const Object& Scratch::Session()
{
    if (!mSession)
    {
        mSession = Object::Create(L"Outlook.Application").GetObject(L"GetNamespace", L"MAPI");
    }
    return mSession;
}

const Object& Scratch::Folder(Kind kind)
{
    Object& folder = mFolders[kind];
    if (!folder)
    {
        const Object parent = Session().GetObject(L"GetDefaultFolder", DefaultFolderOf(kind));
        const Object folders = parent.GetObject(L"Folders");
        if (HasFolder(folders, kFolderName))
        {
            throw automation::Error(E_FAIL, kFolderName, L"The folder is there already: delete it first.");
        }
        folder = folders.GetObject(L"Add", kFolderName, DefaultFolderOf(kind));
    }
    return folder;
}

Object Scratch::Saved(Kind kind, const std::wstring& name)
{
    Object item = New(kind);
    item.Put(kind == Kind::Contact ? L"FullName" : L"Subject", name);
    item.Call(L"Save");
    return item;
}

void Scratch::Empty()
{
    for (const auto& [kind, folder] : mFolders)
    {
        const Object items = folder.GetObject(L"Items");
        for (long left = automation::LongOf(items.Get(L"Count")); left > 0; --left)
        {
            items.Call(L"Remove", left);
        }
    }
}

void Scratch::Delete()
{
    for (const auto& [kind, folder] : mFolders)
    {
        folder.Call(L"Delete");
    }
    mFolders.clear();
}

} // namespace conformance
