// The error dialog: a line with the error's label and code, and a description that grows when further errors
// arrive while it is on the screen. Shown by ShowMessage only.
#pragma once

#include "ui/Control.h"
#include "ui/Dialog.h"

namespace ui
{

class FrmShowErr : public Dialog
{
  public:
    FrmShowErr(std::wstring title, long code, std::wstring message);

    // Shows a further error in the dialog on the screen: replaces the caption and the first line, adds a line
    // to the description.
    void Add(const std::wstring& title, long code, const std::wstring& message);

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    int FirstFocus() const override;

    IconBox Picture;
    TextBox Txt_Title;
    TextBox Txt_ErrDescription;
    Button CmdOk;

    std::wstring mTitle;
    long mCode;
    std::wstring mMessage;
};

// "Error:" in the interface language, followed directly by the code.
std::wstring ErrorLine(long code);

} // namespace ui
