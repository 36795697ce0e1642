// The tree of Outlook's folders, reduced to those that suit one kind of data: containers, and folders
// that hold the kind's items. A level is read when it is opened, since every question to Outlook crosses
// processes. A folder that cannot be read (a store that is not at hand, a folder without rights) is left out;
// the others are shown. Used by the folder picker.
#pragma once

#include "automation/Object.h"

#include <string>
#include <vector>

namespace config
{

struct FolderNode
{
    std::wstring Name;
    std::wstring Path;         // names from the top-level store down, joined by "\"
    automation::Object Folder; // or the MAPI namespace
    bool IsContainer = false;  // it has sub-folders
};

// The node above all: the MAPI namespace.
FolderNode RootNode(const automation::Object& mapiNamespace);

// The nodes directly below a container. Throws automation::Error when the container itself cannot be asked.
std::vector<FolderNode> ChildrenOf(const FolderNode& parent, long outlookItemType);

// Whether a path leads to a node or through it, in whatever letter case: Outlook's folder names have none.
bool LeadsThrough(const std::wstring& path, const FolderNode& node);

} // namespace config
