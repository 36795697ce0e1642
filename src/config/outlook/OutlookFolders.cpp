#include "config/outlook/OutlookFolders.h"

#include "automation/Recordset.h"
#include "config/store/UserRows.h"
#include "data/Host.h"
#include "data/Literals.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/ShowMessage.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace config
{

namespace
{

using automation::LongOf;
using automation::Object;
using automation::Recordset;
using automation::TextOf;

void ShowNoFolderChosen()
{
    ui::ShowMessage(resources::String(IDS_MESSAGE), 0,
                    resources::Choose(L"没有选择同步的目录\r\n\r\n"
                                      L"请选择一个有效的目录作为的同步对象,然后再进行同步。",
                                      L"You have not selected the synchronise folder .\r\n\r\n"
                                      L"Please select an effective folder for synchronization."));
}

Object FolderAt(const std::wstring& path)
{
    Object folder = state::Shared().gOlNamespace;
    for (size_t start = 0; start <= path.size();)
    {
        const size_t end = std::min(path.find(L'\\', start), path.size());
        folder = folder.GetObject(L"Folders").GetObject(L"Item", path.substr(start, end - start));
        start = end + 1;
    }
    return folder;
}

// The names of the top-level folders, each read once and only as far as the search needs.
class StoreNames
{
  public:
    bool Contains(const std::wstring& name)
    {
        for (long index = 1; index <= Count(); ++index)
        {
            if (At(index) == name)
            {
                return true;
            }
        }
        return false;
    }

  private:
    long Count()
    {
        if (!mCount)
        {
            mStores = state::Shared().gOlNamespace.GetObject(L"Folders");
            mCount = LongOf(mStores.Get(L"Count"));
        }
        return *mCount;
    }

    const std::wstring& At(long index)
    {
        while (static_cast<long>(mNames.size()) < index)
        {
            const long next = static_cast<long>(mNames.size()) + 1;
            mNames.push_back(TextOf(mStores.GetObject(L"Item", next).Get(L"Name")));
        }
        return mNames[static_cast<size_t>(index) - 1];
    }

    Object mStores;
    std::optional<long> mCount;
    std::vector<std::wstring> mNames;
};

void DeleteFolderRow(const data::Host& host, const Recordset& rows, const std::wstring& folder)
{
    const std::wstring where = L"F_UID=" + host.UserIdLiteral() + L" And TransObjectID=" +
                               data::NumberOrQuotedText(TextOf(rows.ValueOf(L"TransObjectID"))) +
                               L" And OutlookFolder=" + data::QuotedText(folder);
    data::ThrowUnless(host.Delete(kFolderTable, where) >= 0, L"Delete");
}

} // namespace

bool ResolveOutlookFolder(const std::wstring& folderPath, Object& folder)
{
    return state::Trapped(true, [&] {
        if (folderPath.empty())
        {
            ShowNoFolderChosen();
            state::LogError();
            return true;
        }
        folder = FolderAt(folderPath);
        return false;
    });
}

void PurgeMissingFolders()
{
    Recordset rows;
    const automation::RecordsetCloser closer(rows);
    state::Trapped([&] {
        const data::Host host;
        StoreNames stores;
        const std::wstring sql =
            L"Select * From " + std::wstring(kFolderTable) + L" Where F_UID=" + host.UserIdLiteral();
        data::ThrowUnless(host.OpenRecordsetByString(rows, sql) >= 0, L"OpenRecordsetByString");
        for (; !rows.AtEnd(); rows.MoveNext())
        {
            const std::wstring folder = TextOf(rows.ValueOf(L"OutlookFolder"));
            if (!stores.Contains(folder.substr(0, folder.find(L'\\'))))
            {
                DeleteFolderRow(host, rows, folder);
            }
        }
    });
}

} // namespace config
