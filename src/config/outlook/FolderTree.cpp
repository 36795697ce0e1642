#include "config/outlook/FolderTree.h"

#include "automation/Text.h"
#include "state/Failures.h"

#include <optional>

namespace config
{

namespace
{

using automation::LongOf;
using automation::Object;

// Nothing for a folder that is not shown.
std::optional<FolderNode> ChildAt(const Object& folders, long index, const std::wstring& parentPath,
                                  long outlookItemType)
{
    FolderNode node;
    node.Folder = folders.GetObject(L"Item", index);
    node.IsContainer = LongOf(node.Folder.GetObject(L"Folders").Get(L"Count")) > 0;
    if (!node.IsContainer && LongOf(node.Folder.Get(L"DefaultItemType")) != outlookItemType)
    {
        return std::nullopt;
    }
    node.Name = automation::TextOf(node.Folder.Get(L"Name"));
    node.Path = parentPath.empty() ? node.Name : parentPath + L"\\" + node.Name;
    return node;
}

} // namespace

FolderNode RootNode(const Object& mapiNamespace)
{
    FolderNode root;
    root.Folder = mapiNamespace;
    root.IsContainer = true;
    return root;
}

std::vector<FolderNode> ChildrenOf(const FolderNode& parent, long outlookItemType)
{
    const Object folders = parent.Folder.GetObject(L"Folders");
    const long count = LongOf(folders.Get(L"Count"));
    std::vector<FolderNode> children;
    for (long index = 1; index <= count; ++index)
    {
        auto child = state::Trapped(std::optional<FolderNode>(),
                                    [&] { return ChildAt(folders, index, parent.Path, outlookItemType); });
        if (child)
        {
            children.push_back(std::move(*child));
        }
    }
    return children;
}

bool LeadsThrough(const std::wstring& path, const FolderNode& node)
{
    const std::wstring whole = automation::UpperCased(path) + L"\\";
    return whole.starts_with(automation::UpperCased(node.Path) + L"\\");
}

} // namespace config
