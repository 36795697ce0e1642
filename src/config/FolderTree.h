// The tree of Outlook's folders, reduced to what can be chosen for one kind of data: containers, and folders
// that hold the kind's items. A level is read when it is looked at, since every question to Outlook crosses
// processes; each folder is asked for its sub-folders and their number, and for its name and item type only
// where they are needed. Used by the folder picker.
#pragma once

#include "automation/Object.h"

#include <string>
#include <vector>

namespace config
{

struct FolderNode
{
    std::wstring Name;
    std::wstring Path;          // names from the top-level store down, joined by "\"
    automation::Object Folders; // the sub-folders of a container; nothing for a folder without any
    long Count = 0;             // how many there are

    bool IsContainer() const noexcept { return Count > 0; }
};

// The node above all: it stands for the MAPI namespace. Throws automation::Error.
FolderNode RootNode(const automation::Object& mapiNamespace);

// The nodes directly below a container. Throws automation::Error.
std::vector<FolderNode> ChildrenOf(const FolderNode& parent, long outlookItemType);

} // namespace config
