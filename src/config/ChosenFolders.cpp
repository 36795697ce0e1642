#include "config/ChosenFolders.h"

#include "config/UserRows.h"
#include "data/Host.h"
#include "state/Failures.h"

#include <algorithm>

namespace config
{

using automation::Recordset;

ChosenFolders LoadChosenFolders(const ObjectKind& kind)
{
    ChosenFolders folders;
    Recordset rows;
    const automation::ClosesRecordset closes(rows);
    state::Trapped(false, [&] {
        if (OpenUserRecordset(rows, L"Select * From " + std::wstring(kFolderTable) +
                                        L" Where TransObjectID=" + std::to_wstring(kind.TransObjectID)))
        {
            return false;
        }
        for (; !rows.AtEnd(); rows.MoveNext())
        {
            folders.push_back({automation::TextOrEmpty(rows.ValueOf(L"OutlookFolder")), false});
            if (IsSet(rows.ValueOf(L"IsDefault"))) // of several, the last one counts
            {
                MakeDefault(folders, folders.size() - 1);
            }
        }
        return true;
    });
    return folders;
}

bool AddFolder(ChosenFolders& folders, const std::wstring& path)
{
    if (std::any_of(folders.begin(), folders.end(), [&](const auto& one) { return one.Path == path; }))
    {
        return false;
    }
    folders.push_back({path, folders.empty()});
    return true;
}

void MakeDefault(ChosenFolders& folders, size_t index)
{
    for (size_t i = 0; i < folders.size(); ++i)
    {
        folders[i].IsDefault = i == index;
    }
}

std::wstring FolderValueList(const ObjectKind& kind, const ChosenFolder& folder)
{
    return std::to_wstring(kind.TransObjectID) + L",'" + folder.Path + L"'" +
           (folder.IsDefault ? L",1" : L",0");
}

bool StoreChosenFolders(const ObjectKind& kind, const ChosenFolders& folders)
{
    return state::Trapped(true, [&] {
        const data::Host host;
        RequireAccepted(host.Delete(kFolderTable, L"TransObjectID=" + std::to_wstring(kind.TransObjectID) +
                                                      L" And F_UID=" + host.UserId()),
                        L"Delete");
        for (const ChosenFolder& folder : folders)
        {
            InsertUserRow(L"TransObjectID,OutlookFolder,IsDefault", FolderValueList(kind, folder),
                          kFolderTable);
        }
        return false;
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
