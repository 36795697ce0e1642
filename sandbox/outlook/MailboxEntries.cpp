// How items of a mailbox are named from outside: by entry id, and as the target of a link.
#include "sandbox/outlook/Mailbox.h"

#include "sandbox/outlook/Paths.h"

#include <cwchar>

namespace sandbox::outlook
{

namespace
{

// A hash of the path (FNV-1a), so that an item keeps its entry id from one session to the next.
std::wstring HashOf(const std::wstring& path)
{
    unsigned long long hash = 14695981039346656037ull;
    for (const wchar_t character : path)
    {
        hash = (hash ^ character) * 1099511628211ull;
    }
    wchar_t digits[17];
    std::swprintf(digits, std::size(digits), L"%016llX", hash);
    return digits;
}

} // namespace

std::wstring Mailbox::EntryIdOf(const StoredItem& item)
{
    wchar_t digits[9];
    std::swprintf(digits, std::size(digits), L"%08lX", static_cast<unsigned long>(item.index));
    return HashOf(item.folder->Path()) + digits;
}

StoredItemRef Mailbox::FindEntry(const std::wstring& entryId)
{
    for (const auto& [path, folder] : mFolders)
    {
        const std::wstring hash = HashOf(path);
        if (entryId.starts_with(hash))
        {
            const std::wstring digits = entryId.substr(hash.size());
            return FindIndex(*folder, static_cast<long>(std::wcstoul(digits.c_str(), nullptr, 16)));
        }
    }
    return nullptr;
}

StoredItemRef Mailbox::FindIndex(MailFolder& folder, long index)
{
    const auto& items = Items(folder);
    const auto at = std::ranges::lower_bound(items, index, {}, [](const auto& item) { return item->index; });
    return at != items.end() && (*at)->index == index ? *at : nullptr;
}

std::wstring Mailbox::LinkTo(const StoredItem& item)
{
    return item.folder->Path() + kPathSeparator + std::to_wstring(item.index);
}

StoredItemRef Mailbox::Follow(const std::wstring& link)
{
    MailFolder* folder = FindFolder(ParentOf(link));
    const std::wstring last = NameIn(link);
    if (folder == nullptr || last.empty() || last.find_first_not_of(L"0123456789") != std::wstring::npos)
    {
        return nullptr;
    }
    return FindIndex(*folder, std::wcstol(last.c_str(), nullptr, 10));
}

} // namespace sandbox::outlook
