#include "ui/FrmShowErr.h"

#include "resources/Strings.h"
#include "ui/FitText.h"

#include <utility>

namespace ui
{

std::wstring ErrorLine(long code)
{
    return resources::String(IDS_ERROR_LABEL) + std::to_wstring(code);
}

FrmShowErr::FrmShowErr(std::wstring title, long code, std::wstring message)
    : Dialog(IDD_SHOWERR),
      Picture(*this, IDC_SHOWERR_PICTURE),
      Txt_Title(*this, IDC_SHOWERR_TITLE),
      Txt_ErrDescription(*this, IDC_SHOWERR_DESCRIPTION),
      CmdOk(*this, IDOK),
      mTitle(std::move(title)),
      mCode(code),
      mMessage(std::move(message))
{
}

void FrmShowErr::OnInit()
{
    SetCaption(mTitle);
    CmdOk.SetText(resources::String(IDS_OK));
    Picture.ShowSystemIcon(IDI_ERROR);
    Txt_Title.SetText(ErrorLine(mCode));
    Txt_ErrDescription.SetText(mMessage);
    FitTextBox(*this, Txt_ErrDescription);
}

void FrmShowErr::Add(const std::wstring& title, long code, const std::wstring& message)
{
    SetCaption(title);
    Txt_Title.SetText(ErrorLine(code));
    Txt_ErrDescription.Append(L"\r\n" + message);
    FitTextBox(*this, Txt_ErrDescription);
}

void FrmShowErr::OnCommand(int id, int /*notification*/)
{
    if (id == IDOK || id == IDCANCEL)
    {
        Unload(id);
    }
}

int FrmShowErr::FirstFocus() const
{
    return CmdOk.Id();
}

} // namespace ui
