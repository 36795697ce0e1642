#include "config/store/ChosenFolders.h"

#include "config/store/UserRows.h"
#include "data/Host.h"
#include "data/Literals.h"
#include "state/Failures.h"

#include <algorithm>

namespace config
{

using automation::Recordset;

namespace
{

ChosenFolders FoldersIn(const Recordset& rows)
{
    ChosenFolders folders;
    for (; !rows.AtEnd(); rows.MoveNext())
    {
        folders.push_back({automation::TextOrEmpty(rows.ValueOf(L"OutlookFolder")), false});
        if (IsSet(rows.ValueOf(L"IsDefault"))) // of several, the last one counts
        {
            MakeDefault(folders, folders.size() - 1);
        }
    }
    return folders;
}

} // namespace

std::optional<ChosenFolders> LoadChosenFolders(const exchange::KindName& kind)
{
    Recordset rows;
    const automation::RecordsetCloser closer(rows);
    ChosenFolders folders;
    const bool failed =
        OpenUserRecordset(rows, L"Select * From " + std::wstring(kFolderTable) + L" Where TransObjectID=" +
                                    std::to_wstring(kind.TransObjectID)) ||
        state::Failed([&] { folders = FoldersIn(rows); });
    return failed ? std::nullopt : std::optional(std::move(folders));
}

bool IsListed(const ChosenFolders& folders, const std::wstring& path)
{
    return std::any_of(folders.begin(), folders.end(), [&](const auto& one) { return one.Path == path; });
}

bool AddFolder(ChosenFolders& folders, const std::wstring& path)
{
    if (IsListed(folders, path))
    {
        return false;
    }
    folders.push_back({path, !DefaultOf(folders)});
    return true;
}

void RemoveFolder(ChosenFolders& folders, size_t index)
{
    const bool wasDefault = folders.at(index).IsDefault;
    folders.erase(folders.begin() + static_cast<std::ptrdiff_t>(index));
    if (wasDefault && !folders.empty())
    {
        MakeDefault(folders, std::min(index, folders.size() - 1));
    }
}

void MakeDefault(ChosenFolders& folders, size_t index)
{
    for (size_t i = 0; i < folders.size(); ++i)
    {
        folders[i].IsDefault = i == index;
    }
}

std::optional<size_t> DefaultOf(const ChosenFolders& folders)
{
    const auto found =
        std::find_if(folders.begin(), folders.end(), [](const auto& one) { return one.IsDefault; });
    return found != folders.end() ? std::optional(static_cast<size_t>(found - folders.begin()))
                                  : std::nullopt;
}

std::wstring FolderValueList(const exchange::KindName& kind, const ChosenFolder& folder)
{
    return std::to_wstring(kind.TransObjectID) + L"," + data::QuotedText(folder.Path) +
           (folder.IsDefault ? L",1" : L",0");
}

bool StoreChosenFolders(const exchange::KindName& kind, const ChosenFolders& folders)
{
    return state::Failed([&] {
        const data::Host host;
        data::ThrowUnless(host.Delete(kFolderTable, L"TransObjectID=" + std::to_wstring(kind.TransObjectID) +
                                                        L" And F_UID=" + host.UserIdLiteral()) >= 0,
                          L"Delete");
        for (const ChosenFolder& folder : folders)
        {
            InsertUserRow(L"TransObjectID,OutlookFolder,IsDefault", FolderValueList(kind, folder),
                          kFolderTable);
        }
    });
}

void TakeCurrentFolder(state::SynParameter& record, const ChosenFolders& folders,
                       std::optional<size_t> selected)
{
    if (folders.empty())
    {
        record.CurrentFolder.clear();
        record.DefaultFolder.clear();
    }
    else if (folders.size() == 1)
    {
        record.CurrentFolder = folders.front().Path;
    }
    else if (selected)
    {
        record.CurrentFolder = folders.at(*selected).Path;
    }
}

} // namespace config
