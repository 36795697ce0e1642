// The folder picker: the tree of the current profile's folders, reduced to those that suit one kind of data,
// and the folders chosen from it, one of them the default. Opened by FrmSynChoose as its owner; on OK it
// replaces the user's stored folders of the kind and enters the current one into the record.
#pragma once

#include "config/dialogs/Pictures.h"
#include "config/outlook/FolderTree.h"
#include "config/store/ChosenFolders.h"
#include "state/SynParameter.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/PictureListView.h"
#include "ui/TreeView.h"

namespace config
{

class FrmSynContent : public ui::Dialog
{
  public:
    // The record names the kind and outlives the dialog.
    explicit FrmSynContent(state::SynParameter& record);

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    LRESULT OnNotify(const NMHDR& notification) override;

    void SetCaptions();
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

    ui::Label lblPrompt;
    ui::Label lblTree;
    ui::TreeView tvOlFolder;
    ui::Button cmdAdd;
    ui::Button cmdRemove;
    ui::Button cmdDefault;
    ui::Label lblList;
    ui::PictureListView lvSelItems;
    ui::Button CmdOk;
    ui::Button cmdCancel;

    state::SynParameter& mRecord;
    const exchange::KindName* mKind; // null for an unknown kind: nothing is shown or written
    Pictures mPictures;
    std::vector<FolderNode> mNodes; // by the number that the tree's nodes carry
    ChosenFolders mChosen;
    ChosenFolders mStored;
    std::optional<int> mFirstSelected; // row of the list
    bool mIsLoaded = false;
};

} // namespace config
