#include "config/dialogs/FrmSynContent.h"

#include "config/dialogs/NotLoaded.h"
#include "config/dialogs/Pictures.h"
#include "config/outlook/FolderTree.h"
#include "config/store/ChosenFolders.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/Busy.h"
#include "ui/Control.h"
#include "ui/FitText.h"
#include "ui/PictureListView.h"
#include "ui/SentMessage.h"
#include "ui/TreeView.h"

#include <algorithm>

namespace config
{

namespace
{

constexpr ui::CaptionRow kContentCaptions[] = {
    {IDC_CONTENT_TREE_LABEL, {L"选择", L"Choose"}},
    {IDC_CONTENT_ADD, {L"添加(&A)", L"&Add"}},
    {IDC_CONTENT_DEFAULT, {L"缺省(&D)", L"&Default"}},
    {IDC_CONTENT_REMOVE, {L"移除(&R)", L"&Remove"}},
    {IDC_CONTENT_LIST_LABEL, IDS_PICKER_CHOSEN},
    {IDOK, IDS_OK},
    {IDCANCEL, IDS_CANCEL},
};

class FrmSynContent : public ui::Dialog
{
  public:
    explicit FrmSynContent(state::SynParameter& record)
        : Dialog(IDD_SYNCONTENT, kContentCaptions, ui::Errors::AreTrapped),
          mRecord(record),
          mKind(exchange::FindKindName(record.TransObject))
    {
    }

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    LRESULT OnNotify(const NMHDR& notification) override;

    void WriteKind();
    void FillTree();
    std::vector<HTREEITEM> AddNodes(HTREEITEM parent, const FolderNode& folder);
    std::vector<HTREEITEM> OpenNode(HTREEITEM node);
    HTREEITEM OpenDownTo(const std::wstring& path, std::vector<HTREEITEM> nodes);
    bool LoadChosen();
    void ShowChosen(size_t selected);
    void EnableButtons();
    bool IsChanged() const;
    void OnAdd();
    void OnRemove();
    void OnDefault();
    void OnOk();

    ui::Label lblPrompt{*this, IDC_CONTENT_PROMPT};
    ui::TreeView tvOlFolder{*this, IDC_CONTENT_TREE};
    ui::Button cmdAdd{*this, IDC_CONTENT_ADD};
    ui::Button cmdRemove{*this, IDC_CONTENT_REMOVE};
    ui::Button cmdDefault{*this, IDC_CONTENT_DEFAULT};
    ui::PictureListView lvSelItems{*this, IDC_CONTENT_LIST};
    ui::Button CmdOk{*this, IDOK};

    state::SynParameter& mRecord;
    const exchange::KindName* mKind; // null for an unknown kind: nothing is shown or written
    Pictures mPictures;
    std::vector<FolderNode> mNodes; // by the number that the tree's nodes carry
    ChosenFolders mChosen;
    ChosenFolders mStored;
    std::optional<int> mFirstSelected; // row of the list
    bool mIsLoaded = false;
};

} // namespace

void FrmSynContent::OnInit()
{
    WriteKind();
    ui::FitLabels(*this, {&lblPrompt});
    tvOlFolder.Prepare();
    tvOlFolder.UsePictures(mPictures.List());
    lvSelItems.Prepare();
    lvSelItems.UsePictures(mPictures.List());
    lvSelItems.AddColumn(resources::Choose(L"目录", L"Folder(s)"), 0);
    lvSelItems.FitFirstColumn();
    if (mKind != nullptr)
    {
        mIsLoaded = LoadChosen();
        state::Trapped([&] { FillTree(); });
    }
    EnableButtons();
}

// False for failure, after a message to the user.
bool FrmSynContent::LoadChosen()
{
    const auto stored = LoadChosenFolders(*mKind);
    if (!stored)
    {
        ShowNotLoaded();
        CmdOk.Enable(false);
        return false;
    }
    mChosen = mStored = *stored;
    ShowChosen(DefaultOf(mChosen).value_or(0));
    mFirstSelected = lvSelItems.Selected();
    return true;
}

void FrmSynContent::WriteKind()
{
    if (mKind != nullptr)
    {
        SetCaption(resources::String(mKind->FolderPickerCaption));
        lblPrompt.SetText(resources::String(mKind->FolderPickerPrompt));
    }
}

// The tree is opened down to the default folder; without one the first store is, since a user's folders are
// usually there.
void FrmSynContent::FillTree()
{
    const ui::Busy busy(*this);
    const auto stores = AddNodes(nullptr, RootNode(state::Shared().gOlNamespace));
    if (stores.empty())
    {
        return;
    }
    const auto chosen = DefaultOf(mChosen);
    HTREEITEM node = chosen ? OpenDownTo(mChosen[*chosen].Path, stores) : nullptr;
    if (node == nullptr)
    {
        node = stores.front();
        OpenNode(node);
        tvOlFolder.Open(node);
    }
    tvOlFolder.Select(node);
}

// Returns the nodes added.
std::vector<HTREEITEM> FrmSynContent::AddNodes(HTREEITEM parent, const FolderNode& folder)
{
    std::vector<HTREEITEM> added;
    for (FolderNode& child : ChildrenOf(folder, mKind->OutlookItemType))
    {
        const auto picture = child.IsContainer ? kOutlookPicture : std::wstring_view(mKind->Picture);
        added.push_back(
            tvOlFolder.Add(parent, child.Name, Pictures::IndexOf(picture), child.IsContainer, mNodes.size()));
        mNodes.push_back(std::move(child));
    }
    return added;
}

std::vector<HTREEITEM> FrmSynContent::OpenNode(HTREEITEM node)
{
    const FolderNode folder = mNodes.at(tvOlFolder.NumberOf(node));
    auto added = folder.IsContainer ? AddNodes(node, folder) : std::vector<HTREEITEM>();
    if (added.empty())
    {
        tvOlFolder.SetWithoutChildren(node);
    }
    return added;
}

// The last node on the way to the folder, which is its own where the tree shows it; null for none.
HTREEITEM FrmSynContent::OpenDownTo(const std::wstring& path, std::vector<HTREEITEM> nodes)
{
    HTREEITEM reached = nullptr;
    for (;;)
    {
        const auto next = std::find_if(nodes.begin(), nodes.end(), [&](HTREEITEM node) {
            return LeadsThrough(path, mNodes.at(tvOlFolder.NumberOf(node)));
        });
        if (next == nodes.end())
        {
            return reached;
        }
        reached = *next;
        if (mNodes.at(tvOlFolder.NumberOf(reached)).Path.size() >= path.size())
        {
            return reached;
        }
        nodes = OpenNode(reached);
        tvOlFolder.Open(reached);
    }
}

void FrmSynContent::ShowChosen(size_t selected)
{
    lvSelItems.Clear();
    for (const ChosenFolder& folder : mChosen)
    {
        const int row = lvSelItems.Add(folder.Path, folder.IsDefault ? L"Default" : L"");
        lvSelItems.SetPicture(row, 0, Pictures::IndexOf(folder.IsDefault ? kDefaultPicture : kEmptyPicture));
    }
    lvSelItems.FitFirstColumn();
    if (!mChosen.empty())
    {
        lvSelItems.Select(static_cast<int>(std::min(selected, mChosen.size() - 1)));
    }
    EnableButtons();
}

// A button that would do nothing is disabled.
void FrmSynContent::EnableButtons()
{
    const auto node = tvOlFolder.Selected();
    const auto row = lvSelItems.Selected();
    cmdAdd.Enable(mIsLoaded && node && !IsListed(mChosen, mNodes.at(tvOlFolder.NumberOf(*node)).Path),
                  tvOlFolder);
    cmdRemove.Enable(row.has_value(), lvSelItems);
    cmdDefault.Enable(row && !mChosen.at(static_cast<size_t>(*row)).IsDefault, lvSelItems);
}

LRESULT FrmSynContent::OnNotify(const NMHDR& notification)
{
    const auto opening = tvOlFolder.FirstOpening(notification);
    if (opening && ui::IsSenderWaiting())
    {
        tvOlFolder.OpenLater(*opening);
        return LRESULT{TRUE}; // not now
    }
    if (opening)
    {
        const ui::Busy busy(*this);
        OpenNode(*opening);
    }
    else if (tvOlFolder.IsDoubleClickOnNode(notification))
    {
        OnAdd();
        return LRESULT{TRUE}; // and the node stays open or closed as it is
    }
    else if (tvOlFolder.IsSelectionChange(notification) || lvSelItems.IsSelectionChange(notification))
    {
        EnableButtons();
    }
    return LRESULT{FALSE};
}

void FrmSynContent::OnCommand(int id, int notification)
{
    switch (id)
    {
    case IDC_CONTENT_ADD: OnAdd(); break;
    case IDC_CONTENT_REMOVE: OnRemove(); break;
    case IDC_CONTENT_DEFAULT: OnDefault(); break;
    case IDOK: OnOk(); break;
    default: Dialog::OnCommand(id, notification); break;
    }
}

void FrmSynContent::OnAdd()
{
    const auto node = tvOlFolder.Selected();
    if (mIsLoaded && node && AddFolder(mChosen, mNodes.at(tvOlFolder.NumberOf(*node)).Path))
    {
        ShowChosen(mChosen.size() - 1);
    }
}

void FrmSynContent::OnRemove()
{
    if (const auto row = lvSelItems.Selected())
    {
        RemoveFolder(mChosen, static_cast<size_t>(*row));
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

// Nothing is changed by an OK without a change, not even which folder FrmSynChoose shows.
bool FrmSynContent::IsChanged() const
{
    return mChosen != mStored || lvSelItems.Selected() != mFirstSelected;
}

void FrmSynContent::OnOk()
{
    if (mIsLoaded)
    {
        if (StoreChosenFolders(*mKind, mChosen))
        {
            return;
        }
        if (IsChanged())
        {
            TakeCurrentFolder(mRecord, mChosen, lvSelItems.Selected());
        }
    }
    Unload(IDOK);
}

void ShowSynContent(state::SynParameter& record, const ui::Dialog* owner)
{
    FrmSynContent picker(record);
    if (owner != nullptr)
    {
        picker.ShowModalOver(*owner);
    }
    else
    {
        picker.ShowModal();
    }
}

} // namespace config
