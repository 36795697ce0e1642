// The dialog "Config Translation": the kinds of data, whether each takes part and in which direction. Opened
// by the Configure button of the main dialog. Its rows are edited in memory and written on OK; the
// configuration record of the shared state always describes the selected row. At first that is the row of the
// kind that the record names: the one chosen in the main dialog.
#pragma once

#include "config/dialogs/Pictures.h"
#include "config/store/Translation.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/PictureListView.h"

namespace config
{

class FrmConfigure : public ui::Dialog
{
  public:
    FrmConfigure();

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    LRESULT OnNotify(const NMHDR& notification) override;

    void FillList();
    void SelectKindOfRecord();
    void DescribeSelected(int row);
    void EnableButtons();
    void Redraw(int row);
    void TakeCheckMark(int row);
    void OnChoose();
    void OnAdvance();
    void OnOk();

    ui::Label lblTran;
    ui::PictureListView lvTran;
    ui::Button cmdChoose;
    ui::Button cmdAdvance;
    ui::Button CmdOk;
    ui::Button cmdCancel;

    Pictures mPictures;
    std::vector<Translation> mRows;
    bool mDrawing = false; // the program, not the user, is changing the list
};

// Shows the dialog, modally and without an owner; returns when it is closed. Never throws.
void ShowConfigure();

} // namespace config
