// A mailbox file: a SQLite database with the tables Folder, ItemProperty, ItemLink
// and Switch. Every write is one
// transaction, so that another reader of the file sees an item whole or not at all. Rows may be added by
// hand: properties that Outlook does not know are left alone.
#pragma once

#include "sandbox/database/Connection.h"
#include "sandbox/outlook/MailboxStore.h"

namespace sandbox::outlook
{

class DatabaseStore : public MailboxStore
{
  public:
    // The path is a Windows path. Throws automation::Error when the file is not there or is no mailbox.
    explicit DatabaseStore(const std::wstring& path);

    // Makes the tables, and the file where there is none. Throws automation::Error.
    static void Create(const std::wstring& path);
    static void CreateTables(Connection& connection);

    std::vector<std::pair<std::wstring, Value>> ReadSwitches() override;
    std::vector<std::pair<std::wstring, ItemKind>> ReadFolders() override;
    void AddFolder(const std::wstring& path, ItemKind type) override;
    void DeleteFolder(const std::wstring& path) override;
    std::map<long, ItemRows> ReadItems(const std::wstring& path) override;
    void WriteItem(const std::wstring& path, long index, const PropertyRows& properties,
                   const std::vector<std::wstring>* links) override;
    void DeleteItem(const std::wstring& path, long index) override;
    bool HasChangedElsewhere() override;

  private:
    void RemoveProperties(const std::wstring& path, long index, const PropertyRows& properties);
    void AddProperties(const std::wstring& path, long index, const PropertyRows& properties);
    void WriteLinks(const std::wstring& path, long index, const std::vector<std::wstring>& links);

    long DataVersion();

    std::wstring mPath;
    Connection mConnection;
    unsigned long long mFileId;
    long mDataVersion;
};

} // namespace sandbox::outlook
