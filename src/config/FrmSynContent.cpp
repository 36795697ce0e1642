#include "config/FrmSynContent.h"

#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/Busy.h"

#include <algorithm>

namespace config
{

FrmSynContent::FrmSynContent(state::SynParameter& record)
    : Dialog(IDD_SYNCONTENT),
      lblPrompt(*this, IDC_CONTENT_PROMPT),
      lblTree(*this, IDC_CONTENT_TREE_LABEL),
      tvOlFolder(*this, IDC_CONTENT_TREE),
      cmdAdd(*this, IDC_CONTENT_ADD),
      cmdRemove(*this, IDC_CONTENT_REMOVE),
      cmdDefault(*this, IDC_CONTENT_DEFAULT),
      lblList(*this, IDC_CONTENT_LIST_LABEL),
      lvSelItems(*this, IDC_CONTENT_LIST),
      CmdOk(*this, IDOK),
      cmdCancel(*this, IDCANCEL),
      mRecord(record),
      mKind(FindObjectKind(record.TransObject))
{
}

void FrmSynContent::OnInit()
{
    SetCaptions();
    tvOlFolder.UsePictures(mPictures.List());
    lvSelItems.Prepare();
    lvSelItems.UsePictures(mPictures.List());
    lvSelItems.AddColumn(resources::Choose(L"目录", L"Folder(s)"), 0);
    lvSelItems.FitFirstColumn();
    if (mKind == nullptr)
    {
        return;
    }
    state::Trapped(false, [&] {
        mChosen = LoadChosenFolders(*mKind);
        ShowChosen(0);
        FillTree();
        return true;
    });
}

void FrmSynContent::SetCaptions()
{
    if (mKind != nullptr)
    {
        SetCaption(resources::String(mKind->Caption));
        lblPrompt.SetText(resources::String(mKind->FolderPickerPrompt));
    }
    lblTree.SetText(resources::Choose(L"选择", L"Choose"));
    cmdAdd.SetText(resources::Choose(L"添加(&A)", L"&Add"));
    cmdDefault.SetText(resources::Choose(L"缺省(&D)", L"&Default"));
    cmdRemove.SetText(resources::Choose(L"移除(&R)", L"&Remove"));
    lblList.SetText(resources::String(IDS_PICKER_CHOSEN));
    CmdOk.SetText(resources::String(IDS_OK));
    cmdCancel.SetText(resources::String(IDS_CANCEL));
}

// The first store is opened, since a user's folders are usually there.
void FrmSynContent::FillTree()
{
    const ui::Busy busy(*this);
    const HTREEITEM first = AddNodes(nullptr, RootNode(state::Shared().gOlNamespace));
    if (first != nullptr)
    {
        OpenNode(first);
        tvOlFolder.Open(first);
        tvOlFolder.Select(first);
    }
}

// Returns the first node added; null when there is none.
HTREEITEM FrmSynContent::AddNodes(HTREEITEM parent, const FolderNode& folder)
{
    HTREEITEM first = nullptr;
    for (FolderNode& child : ChildrenOf(folder, mKind->OutlookItemType))
    {
        const auto picture = child.IsContainer() ? kOutlookPicture : std::wstring_view(mKind->Picture);
        const HTREEITEM node = tvOlFolder.Add(parent, child.Name, Pictures::IndexOf(picture),
                                              child.IsContainer(), mNodes.size());
        mNodes.push_back(std::move(child));
        first = first != nullptr ? first : node;
    }
    return first;
}

void FrmSynContent::OpenNode(HTREEITEM node)
{
    const FolderNode folder = mNodes.at(tvOlFolder.NumberOf(node));
    if (AddNodes(node, folder) == nullptr)
    {
        tvOlFolder.SetWithoutChildren(node);
    }
}

void FrmSynContent::ShowChosen(size_t selected)
{
    lvSelItems.Clear();
    for (const ChosenFolder& folder : mChosen)
    {
        const int row = lvSelItems.Add(folder.Path, folder.IsDefault ? L"Default" : L"");
        lvSelItems.SetPicture(row, 0, folder.IsDefault ? Pictures::IndexOf(kDefaultPicture) : -1);
    }
    lvSelItems.FitFirstColumn();
    if (!mChosen.empty())
    {
        lvSelItems.Select(static_cast<int>(std::min(selected, mChosen.size() - 1)));
    }
}

LRESULT FrmSynContent::OnNotify(const NMHDR& notification)
{
    return state::Trapped(LRESULT{0}, [&] {
        if (const auto opening = tvOlFolder.FirstOpening(notification))
        {
            const ui::Busy busy(*this);
            OpenNode(*opening);
        }
        else if (tvOlFolder.IsDoubleClickOnNode(notification))
        {
            OnAdd();
            return LRESULT{TRUE}; // and the node stays open or closed as it is
        }
        return LRESULT{FALSE};
    });
}

void FrmSynContent::OnCommand(int id, int notification)
{
    state::Trapped(false, [&] {
        switch (id)
        {
        case IDC_CONTENT_ADD: OnAdd(); break;
        case IDC_CONTENT_REMOVE: OnRemove(); break;
        case IDC_CONTENT_DEFAULT: OnDefault(); break;
        case IDOK: OnOk(); break;
        default: Dialog::OnCommand(id, notification); break;
        }
        return true;
    });
}

void FrmSynContent::OnAdd()
{
    const auto node = tvOlFolder.Selected();
    if (node && AddFolder(mChosen, mNodes.at(tvOlFolder.NumberOf(*node)).Path))
    {
        ShowChosen(mChosen.size() - 1);
    }
}

void FrmSynContent::OnRemove()
{
    if (const auto row = lvSelItems.Selected())
    {
        mChosen.erase(mChosen.begin() + *row);
        ShowChosen(static_cast<size_t>(*row));
    }
}

void FrmSynContent::OnDefault()
{
    if (const auto row = lvSelItems.Selected())
    {
        MakeDefault(mChosen, static_cast<size_t>(*row));
        ShowChosen(static_cast<size_t>(*row));
    }
}

void FrmSynContent::OnOk()
{
    if (mKind != nullptr)
    {
        if (StoreChosenFolders(*mKind, mChosen))
        {
            return;
        }
        TakeCurrentFolder(mRecord, mChosen, lvSelItems.Selected());
    }
    Unload(IDOK);
}

} // namespace config
