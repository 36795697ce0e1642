// The information dialog: a text that grows when further messages arrive while it is on the screen. Shown by
// ShowMessage only.
#pragma once

#include "ui/Control.h"
#include "ui/Dialog.h"

namespace ui
{

class FrmShowInfor : public Dialog
{
  public:
    FrmShowInfor(std::wstring title, std::wstring message);

    // Shows a further message in the dialog on the screen.
    void Add(const std::wstring& title, const std::wstring& message);

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    int FirstFocus() const override;

    IconBox Picture;
    TextBox Txt_ErrDescription;
    Button CmdOk;

    std::wstring mTitle;
    std::wstring mMessage;
};

} // namespace ui
