// The template of the error dialog with handlers of a test's own. Header only; for test programs that link
// telvix_ui.
#pragma once

#include "resources/ids.h"
#include "ui/Dialog.h"

#include <functional>
#include <utility>

namespace test_support
{

class ProbeDialog : public ui::Dialog
{
  public:
    explicit ProbeDialog(std::function<void()> onOk = {}) : Dialog(IDD_SHOWERR), mOnOk(std::move(onOk)) {}

    std::function<void()> Init;
    std::function<void(const NMHDR&)> Notify;
    std::function<void()> Close;
    int Unloaded = 0;

  private:
    void OnInit() override
    {
        if (Init)
        {
            Init();
        }
    }
    void OnCommand(int id, int notification) override
    {
        if (id == IDOK && mOnOk)
        {
            mOnOk();
        }
        Dialog::OnCommand(id, notification);
    }
    LRESULT OnNotify(const NMHDR& notification) override
    {
        if (Notify)
        {
            Notify(notification);
        }
        return 0;
    }
    void OnClose() override
    {
        if (Close)
        {
            Close();
        }
        Dialog::OnClose();
    }
    void OnUnload() override { ++Unloaded; }

    std::function<void()> mOnOk;
};

} // namespace test_support
