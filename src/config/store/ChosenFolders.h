// The folders chosen for one kind of data, one of them the default: the contents of the folder picker's list
// and their rows in T_POutlookSyncFolder.
#pragma once

#include "exchange/KindName.h"
#include "state/SynParameter.h"

#include <optional>
#include <string>
#include <vector>

namespace config
{

struct ChosenFolder
{
    std::wstring Path;
    bool IsDefault = false;

    bool operator==(const ChosenFolder&) const = default;
};

using ChosenFolders = std::vector<ChosenFolder>;

// The current user's folders of a kind; nothing on failure.
std::optional<ChosenFolders> LoadChosenFolders(const exchange::KindName& kind);

bool IsListed(const ChosenFolders& folders, const std::wstring& path);

// Adds a folder at the end and returns true; false for one that is listed already. It becomes the default
// where there is none.
bool AddFolder(ChosenFolders& folders, const std::wstring& path);

// Removes a folder, by its index. If it was the default, the folder that moves to its index (else the last
// one) becomes the default, so that a run finds a folder.
void RemoveFolder(ChosenFolders& folders, size_t index);

// Makes one folder, by its index, the only default.
void MakeDefault(ChosenFolders& folders, size_t index);

// The index of the default folder.
std::optional<size_t> DefaultOf(const ChosenFolders& folders);

// The literals of a folder's row, for the columns "TransObjectID,OutlookFolder,IsDefault".
std::wstring FolderValueList(const exchange::KindName& kind, const ChosenFolder& folder);

// Replaces the current user's folder rows of the kind. True for failure: the old rows could not be deleted.
bool StoreChosenFolders(const exchange::KindName& kind, const ChosenFolders& folders);

// Enters the folders into the record after OK: the only folder, else the selected one, is the current one;
// without any folder there is no default either.
void TakeCurrentFolder(state::SynParameter& record, const ChosenFolders& folders,
                       std::optional<size_t> selected);

} // namespace config
