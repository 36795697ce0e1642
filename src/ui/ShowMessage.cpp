#include "ui/ShowMessage.h"

#include "resources/ids.h"
#include "state/Failures.h"
#include "ui/FrmShowErr.h"
#include "ui/FrmShowInfor.h"

namespace ui
{

namespace
{

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
    state::Trapped(true, [&] {
        if (code != 0)
        {
            ShowOrAdd<FrmShowErr>(IDD_SHOWERR, title, code, message);
        }
        else
        {
            ShowOrAdd<FrmShowInfor>(IDD_SHOWINFOR, title, message);
        }
        return false;
    });
}

} // namespace ui
