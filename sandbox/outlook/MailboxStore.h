// Where a mailbox is kept. The mailbox reads a folder when it is first looked into, and writes every saved
// item at once. Calls throw automation::Error; a call that throws has written nothing.
#pragma once

#include "sandbox/outlook/PropertyTable.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace sandbox::outlook
{

// One item as the mailbox file has it.
struct ItemRows
{
    std::vector<std::pair<std::wstring, std::wstring>> properties; // name and text
    std::vector<std::wstring> links;
};

using PropertyRows = std::vector<std::pair<std::wstring, std::optional<std::wstring>>>;

class MailboxStore
{
  public:
    virtual ~MailboxStore() = default;

    // Name and value of every switch that is set.
    virtual std::vector<std::pair<std::wstring, Value>> ReadSwitches() = 0;
    // Path and default item type of every folder, in the order in which they were added.
    virtual std::vector<std::pair<std::wstring, ItemKind>> ReadFolders() = 0;
    virtual void AddFolder(const std::wstring& path, ItemKind type) = 0;
    // The folder has no items (any more).
    virtual void DeleteFolder(const std::wstring& path) = 0;
    // The items of a folder by their index.
    virtual std::map<long, ItemRows> ReadItems(const std::wstring& path) = 0;
    // Writes these properties of an item (nothing for a text: the property goes), leaving its others; links
    // is the whole list, null to leave it.
    virtual void WriteItem(const std::wstring& path, long index, const PropertyRows& properties,
                           const std::vector<std::wstring>* links) = 0;
    virtual void DeleteItem(const std::wstring& path, long index) = 0;
    // True when somebody else has written to the mailbox, or put another file in its place, since it was
    // opened.
    virtual bool HasChangedElsewhere() = 0;
};

} // namespace sandbox::outlook
