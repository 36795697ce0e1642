#include "config/FolderTree.h"

namespace config
{

namespace
{

using automation::LongOf;
using automation::Object;

FolderNode NodeOf(const Object& parent)
{
    FolderNode node;
    const Object folders = parent.GetObject(L"Folders");
    node.Count = LongOf(folders.Get(L"Count"));
    if (node.Count > 0)
    {
        node.Folders = folders;
    }
    return node;
}

bool IsShown(const FolderNode& node, const Object& folder, long outlookItemType)
{
    return node.IsContainer() || LongOf(folder.Get(L"DefaultItemType")) == outlookItemType;
}

} // namespace

FolderNode RootNode(const Object& mapiNamespace)
{
    return NodeOf(mapiNamespace);
}

std::vector<FolderNode> ChildrenOf(const FolderNode& parent, long outlookItemType)
{
    std::vector<FolderNode> children;
    for (long index = 1; index <= parent.Count; ++index)
    {
        const Object folder = parent.Folders.GetObject(L"Item", index);
        FolderNode node = NodeOf(folder);
        if (IsShown(node, folder, outlookItemType))
        {
            node.Name = automation::TextOf(folder.Get(L"Name"));
            node.Path = parent.Path.empty() ? node.Name : parent.Path + L"\\" + node.Name;
            children.push_back(std::move(node));
        }
    }
    return children;
}

} // namespace config
