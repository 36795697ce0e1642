// The dialog in which one kind of data gets its translator, its direction and its Outlook folders. Opened by
// FrmConfigure for its selected row; edits the configuration record of the shared state, which FrmConfigure
// writes on its own OK. Only the folders are stored at once, by the folder picker.
#pragma once

#include "ui/Choices.h"
#include "ui/Control.h"
#include "ui/Dialog.h"

namespace config
{

class FrmSynChoose : public ui::Dialog
{
  public:
    FrmSynChoose();

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;

    void SetCaptions();
    void TakeFromRecord();
    void ShowFolder();
    void OnTranslator();
    void OnDirection(long transType);
    void OnBrowse();
    void OnOption();
    void OnOk();

    ui::Label lblPrompt;
    ui::Label lblTranslators;
    ui::ListBox lstTran;
    ui::Frame fraOperation;
    ui::OptionGroup OptSynType;
    ui::Label lblFolder;
    ui::TextBox txtFolder;
    ui::Button cmdBrowse;
    ui::Button cmdOption;
    ui::Button CmdOk;
    ui::Button cmdCancel;

    long mTransType = 0;
    std::wstring mTransTypePic;
    std::wstring mTransSource;
    bool mDirectionChosen = false; // by the user, in this dialog
};

} // namespace config
