#include "ui/ShowMessage.h"

#include "resources/Strings.h"
#include "state/Failures.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/FitText.h"

#include <utility>

namespace ui
{

namespace
{

constexpr CaptionRow kMessageCaptions[] = {{IDOK, IDS_OK}};

// A text that grows when further messages arrive while the dialog is on the screen.
class MessageDialog : public Dialog
{
  protected:
    MessageDialog(UINT templateId, int descriptionId, std::wstring title, std::wstring message)
        : Dialog(templateId, kMessageCaptions),
          Txt_ErrDescription(*this, descriptionId),
          mTitle(std::move(title)),
          mMessage(std::move(message))
    {
    }

    void OnInit() override
    {
        SetCaption(mTitle);
        Txt_ErrDescription.SetText(mMessage);
        FitTextBox(*this, Txt_ErrDescription);
    }

    // Replaces the caption and adds a line.
    void AddLine(const std::wstring& title, const std::wstring& message)
    {
        SetCaption(title);
        Txt_ErrDescription.Append(L"\r\n" + message);
        FitTextBox(*this, Txt_ErrDescription);
    }

  private:
    void OnCommand(int id, int /*notification*/) override
    {
        if (id == IDOK || id == IDCANCEL)
        {
            Unload(id);
        }
    }

    int FirstFocus() const override { return IDOK; }

    TextBox Txt_ErrDescription;

    std::wstring mTitle;
    std::wstring mMessage;
};

class FrmShowInfor : public MessageDialog
{
  public:
    FrmShowInfor(std::wstring title, std::wstring message)
        : MessageDialog(IDD_SHOWINFOR, IDC_SHOWINFOR_DESCRIPTION, std::move(title), std::move(message))
    {
    }

    void Add(const std::wstring& title, const std::wstring& message) { AddLine(title, message); }

  private:
    void OnInit() override
    {
        Picture.ShowSystemIcon(IDI_INFORMATION);
        MessageDialog::OnInit();
    }

    IconBox Picture{*this, IDC_SHOWINFOR_PICTURE};
};

// With a line of the error's label and code.
class FrmShowErr : public MessageDialog
{
  public:
    FrmShowErr(std::wstring title, long code, std::wstring message)
        : MessageDialog(IDD_SHOWERR, IDC_SHOWERR_DESCRIPTION, std::move(title), std::move(message)),
          mCode(code)
    {
    }

    void Add(const std::wstring& title, long code, const std::wstring& message)
    {
        ShowCode(code);
        AddLine(title, message);
    }

  private:
    void OnInit() override
    {
        Picture.ShowSystemIcon(IDI_ERROR);
        ShowCode(mCode);
        MessageDialog::OnInit();
    }

    void ShowCode(long code)
    {
        Txt_Title.SetText(resources::String(IDS_ERROR_LABEL) + std::to_wstring(code));
    }

    IconBox Picture{*this, IDC_SHOWERR_PICTURE};
    TextBox Txt_Title{*this, IDC_SHOWERR_TITLE};

    long mCode;
};

// The dialog on the thread's screen is the one reference that is kept to either dialog: it goes with the
// window, and the next message makes a fresh one.
template<typename Form, typename... Contents>
void ShowOrAdd(UINT templateId, const Contents&... contents)
{
    if (auto* const shown = static_cast<Form*>(Dialog::Shown(templateId)); shown != nullptr)
    {
        shown->Add(contents...);
        return;
    }
    Form(contents...).ShowModal();
}

} // namespace

void ShowMessage(const std::wstring& title, long code, const std::wstring& message)
{
    if (code == 0 && message.empty())
    {
        return;
    }
    state::Trapped([&] {
        if (code != 0)
        {
            ShowOrAdd<FrmShowErr>(IDD_SHOWERR, title, code, message);
        }
        else
        {
            ShowOrAdd<FrmShowInfor>(IDD_SHOWINFOR, title, message);
        }
    });
}

} // namespace ui
