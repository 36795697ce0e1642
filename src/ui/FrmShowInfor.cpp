#include "ui/FrmShowInfor.h"

#include "resources/Strings.h"
#include "ui/FitText.h"

#include <utility>

namespace ui
{

FrmShowInfor::FrmShowInfor(std::wstring title, std::wstring message)
    : Dialog(IDD_SHOWINFOR),
      Picture(*this, IDC_SHOWINFOR_PICTURE),
      Txt_ErrDescription(*this, IDC_SHOWINFOR_DESCRIPTION),
      CmdOk(*this, IDOK),
      mTitle(std::move(title)),
      mMessage(std::move(message))
{
}

void FrmShowInfor::OnInit()
{
    SetCaption(mTitle);
    CmdOk.SetText(resources::String(IDS_OK));
    Picture.ShowSystemIcon(IDI_INFORMATION);
    Txt_ErrDescription.SetText(mMessage);
    FitTextBox(*this, Txt_ErrDescription);
}

void FrmShowInfor::Add(const std::wstring& title, const std::wstring& message)
{
    SetCaption(title);
    Txt_ErrDescription.Append(L"\r\n" + message);
    FitTextBox(*this, Txt_ErrDescription);
}

void FrmShowInfor::OnCommand(int id, int /*notification*/)
{
    if (id == IDOK || id == IDCANCEL)
    {
        Unload(id);
    }
}

int FrmShowInfor::FirstFocus() const
{
    return CmdOk.Id();
}

} // namespace ui
