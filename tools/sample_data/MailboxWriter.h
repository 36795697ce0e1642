// Sample records as items of a mailbox file.
#pragma once

#include "sandbox/database/Connection.h"
#include "sandbox/outlook/PropertyTable.h"
#include "tools/sample_data/Records.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tools
{

// Names and values of an item's properties; what Outlook takes for granted is left out.
using ItemProperties = std::vector<std::pair<std::wstring, automation::Value>>;

ItemProperties PropertiesOf(const SampleContact& contact);
ItemProperties PropertiesOf(const SampleTask& task);
ItemProperties PropertiesOf(const SampleEntry& entry);

class MailboxWriter
{
  public:
    // Makes the tables of a mailbox in an empty database. Throws automation::Error, as all members do.
    explicit MailboxWriter(sandbox::Connection& database);

    void AddFolder(const std::wstring& path, sandbox::outlook::ItemKind type);
    // Adds an item at the end of a folder; its index, from 1.
    long Add(const std::wstring& path, const ItemProperties& properties);
    // Links an item to a contact.
    void Link(const std::wstring& path, long index, const std::wstring& contactPath, long contactIndex);

  private:
    sandbox::Connection& mDatabase;
    std::map<std::wstring, long> mCounts;
};

} // namespace tools
