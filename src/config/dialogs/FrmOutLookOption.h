// The dialog "Ms Outlook Options", in which the user picks the default profile of Outlook. Opened by
// FrmSynChoose. A change is written to the registry; the component then connects to Outlook anew, and stored
// folders whose store the new profile does not have are dropped.
#pragma once

#include "config/outlook/SysReg.h"
#include "ui/Choices.h"
#include "ui/Control.h"
#include "ui/Dialog.h"

namespace config
{

class FrmOutLookOption : public ui::Dialog
{
  public:
    FrmOutLookOption();

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;

    void SetCaptions();
    void LoadProfiles();
    void ListProfiles();
    void ShowDefaultProfile();
    void OnOk();
    void ChangeProfile();

    ui::Label lblExplanation;
    ui::Label lblProfile;
    ui::ComboBox CmbProfile;
    ui::Button CmdOk;
    ui::Button cmdCancel;

    TSysReg mRegistry;
    std::wstring mProfileShown; // as the dialog was opened
};

} // namespace config
