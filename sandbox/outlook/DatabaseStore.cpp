#include "sandbox/outlook/DatabaseStore.h"

#include "automation/Error.h"

#include <algorithm>

#include <windows.h>

namespace sandbox::outlook
{

namespace
{

constexpr const wchar_t* kTables[] = {
    L"CREATE TABLE IF NOT EXISTS Folder (Path TEXT PRIMARY KEY, DefaultItemType INTEGER NOT NULL)",
    L"CREATE TABLE IF NOT EXISTS ItemProperty (FolderPath TEXT NOT NULL, ItemIndex INTEGER NOT NULL, "
    L"Name TEXT NOT NULL, Value TEXT, PRIMARY KEY (FolderPath, ItemIndex, Name))",
    L"CREATE TABLE IF NOT EXISTS ItemLink (FolderPath TEXT NOT NULL, ItemIndex INTEGER NOT NULL, "
    L"LinkedTo TEXT NOT NULL)",
    L"CREATE TABLE IF NOT EXISTS Switch (Name TEXT PRIMARY KEY, Value TEXT NOT NULL)",
    L"CREATE INDEX IF NOT EXISTS ItemLinkOfItem ON ItemLink (FolderPath, ItemIndex)",
};

constexpr ItemKind kKnownKinds[] = {ItemKind::Mail, ItemKind::Appointment, ItemKind::Contact,
                                    ItemKind::Task, ItemKind::Note,        ItemKind::Post};

ItemKind KindOfNumber(const Value& number)
{
    const auto kind =
        static_cast<ItemKind>(automation::IsEmptyOrNull(number) ? 0 : automation::LongOf(number));
    const bool isKnown =
        std::find(std::begin(kKnownKinds), std::end(kKnownKinds), kind) != std::end(kKnownKinds);
    return isKnown ? kind : ItemKind::Mail;
}

// Everything between its making and Commit happens, or nothing.
class Transaction
{
  public:
    explicit Transaction(Connection& connection) : mConnection(connection) { mConnection.Begin(); }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    ~Transaction()
    {
        try
        {
            if (mConnection.InTransaction())
            {
                mConnection.Rollback();
            }
        }
        catch (const automation::Error&)
        {
            // The failure that led here is being reported already.
        }
    }

    void Commit() { mConnection.Commit(); }

  private:
    Connection& mConnection;
};

std::wstring Repeated(const std::wstring& text, size_t count)
{
    std::wstring list;
    for (size_t i = 0; i < count; ++i)
    {
        list += (i == 0 ? L"" : L",") + text;
    }
    return list;
}

// What tells a file from another one in its place; 0 for a file that is not there.
unsigned long long FileId(const std::wstring& path)
{
    const HANDLE file = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    BY_HANDLE_FILE_INFORMATION information{};
    if (file != INVALID_HANDLE_VALUE)
    {
        GetFileInformationByHandle(file, &information);
        CloseHandle(file);
    }
    return static_cast<unsigned long long>(information.nFileIndexHigh) << 32 | information.nFileIndexLow;
}

const std::wstring& Existing(const std::wstring& path)
{
    if (GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES)
    {
        throw automation::Error(HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND), L"mailbox",
                                L"The mailbox file \"" + path + L"\" cannot be found.");
    }
    return path;
}

} // namespace

DatabaseStore::DatabaseStore(const std::wstring& path)
    : mPath(path),
      mConnection(ConnectionStringOf(Existing(path))),
      mFileId(FileId(path)),
      mDataVersion(DataVersion())
{
}

// SQLite's count of the changes that other connections have made.
long DatabaseStore::DataVersion()
{
    return automation::LongOf(mConnection.QueryValue(L"PRAGMA data_version"));
}

bool DatabaseStore::HasChangedElsewhere()
{
    return FileId(mPath) != mFileId || DataVersion() != mDataVersion;
}

void DatabaseStore::Create(const std::wstring& path)
{
    Connection connection(ConnectionStringOf(path));
    CreateTables(connection);
}

void DatabaseStore::CreateTables(Connection& connection)
{
    for (const wchar_t* statement : kTables)
    {
        connection.Execute(statement);
    }
}

// A file made by hand or long ago need not have the table.
std::vector<std::pair<std::wstring, Value>> DatabaseStore::ReadSwitches()
{
    std::vector<std::pair<std::wstring, Value>> switches;
    const Value table =
        mConnection.QueryValue(L"SELECT name FROM sqlite_master WHERE type = 'table' AND name = 'Switch'");
    if (!automation::IsEmptyOrNull(table))
    {
        for (const Row& row : mConnection.Query(L"SELECT Name, Value FROM Switch ORDER BY rowid").rows)
        {
            switches.emplace_back(automation::TextOrEmpty(row[0]), row[1]);
        }
    }
    return switches;
}

std::vector<std::pair<std::wstring, ItemKind>> DatabaseStore::ReadFolders()
{
    std::vector<std::pair<std::wstring, ItemKind>> folders;
    for (const Row& row : mConnection.Query(L"SELECT Path, DefaultItemType FROM Folder ORDER BY rowid").rows)
    {
        folders.emplace_back(automation::TextOrEmpty(row[0]), KindOfNumber(row[1]));
    }
    return folders;
}

void DatabaseStore::AddFolder(const std::wstring& path, ItemKind type)
{
    mConnection.Execute(L"INSERT INTO Folder (Path, DefaultItemType) VALUES (?, ?)",
                        {path, static_cast<long>(type)});
}

void DatabaseStore::DeleteFolder(const std::wstring& path)
{
    mConnection.Execute(L"DELETE FROM Folder WHERE Path = ?", {path});
}

std::map<long, ItemRows> DatabaseStore::ReadItems(const std::wstring& path)
{
    std::map<long, ItemRows> items;
    const ResultSet properties =
        mConnection.Query(L"SELECT ItemIndex, Name, Value FROM ItemProperty WHERE FolderPath = ?", {path});
    for (const Row& row : properties.rows)
    {
        ItemRows& item = items[automation::LongOf(row[0])];
        if (!automation::IsEmptyOrNull(row[2]))
        {
            item.properties.emplace_back(automation::TextOf(row[1]), automation::TextOf(row[2]));
        }
    }
    const ResultSet links = mConnection.Query(
        L"SELECT ItemIndex, LinkedTo FROM ItemLink WHERE FolderPath = ? ORDER BY rowid", {path});
    for (const Row& row : links.rows)
    {
        const auto item = items.find(automation::LongOf(row[0]));
        if (item != items.end())
        {
            item->second.links.push_back(automation::TextOrEmpty(row[1]));
        }
    }
    return items;
}

void DatabaseStore::WriteItem(const std::wstring& path, long index, const PropertyRows& properties,
                              const std::vector<std::wstring>* links)
{
    Transaction transaction(mConnection);
    RemoveProperties(path, index, properties);
    AddProperties(path, index, properties);
    if (links != nullptr)
    {
        WriteLinks(path, index, *links);
    }
    transaction.Commit();
}

void DatabaseStore::RemoveProperties(const std::wstring& path, long index, const PropertyRows& properties)
{
    if (properties.empty())
    {
        return;
    }
    Row parameters = {path, index};
    for (const auto& [name, text] : properties)
    {
        parameters.emplace_back(name);
    }
    mConnection.Execute(L"DELETE FROM ItemProperty WHERE FolderPath = ? AND ItemIndex = ? AND Name IN (" +
                            Repeated(L"?", properties.size()) + L")",
                        parameters);
}

void DatabaseStore::AddProperties(const std::wstring& path, long index, const PropertyRows& properties)
{
    Row parameters;
    for (const auto& [name, text] : properties)
    {
        if (text)
        {
            parameters.insert(parameters.end(), {path, index, name, *text});
        }
    }
    if (!parameters.empty())
    {
        mConnection.Execute(L"INSERT INTO ItemProperty (FolderPath, ItemIndex, Name, Value) VALUES " +
                                Repeated(L"(?,?,?,?)", parameters.size() / 4),
                            parameters);
    }
}

void DatabaseStore::WriteLinks(const std::wstring& path, long index, const std::vector<std::wstring>& links)
{
    mConnection.Execute(L"DELETE FROM ItemLink WHERE FolderPath = ? AND ItemIndex = ?", {path, index});
    for (const std::wstring& link : links)
    {
        mConnection.Execute(L"INSERT INTO ItemLink (FolderPath, ItemIndex, LinkedTo) VALUES (?, ?, ?)",
                            {path, index, link});
    }
}

void DatabaseStore::DeleteItem(const std::wstring& path, long index)
{
    Transaction transaction(mConnection);
    for (const wchar_t* table : {L"ItemProperty", L"ItemLink"})
    {
        mConnection.Execute(std::wstring(L"DELETE FROM ") + table +
                                L" WHERE FolderPath = ? AND ItemIndex = ?",
                            {path, index});
    }
    transaction.Commit();
}

} // namespace sandbox::outlook
