#include "sandbox/demo/MessageTour.h"

#include "resources/Strings.h"
#include "sandbox/robot/Picture.h"
#include "sandbox/robot/Robot.h"
#include "state/SharedState.h"
#include "ui/ShowMessage.h"

namespace sandbox::demo
{

namespace
{

void TourMessage(const Options& options, const wchar_t* picture, UINT titleId, long code,
                 const std::wstring& text)
{
    Robot robot([&](Robot& running) {
        const ShownDialog dialog = running.WaitForDialog();
        if (!options.ScreensFolder.empty())
        {
            SavePicture(dialog, options.ScreensFolder + L"\\" + picture + L".png");
        }
        dialog.Click(IDOK);
        running.WaitUntilClosed(dialog);
    });
    ui::ShowMessage(resources::String(titleId), code, text);
    robot.Finish();
}

} // namespace

void TourMessages(const Options& options)
{
    state::Shared().gFontName = resources::Choose(L"宋体", L"Arial");
    state::Shared().gFontSize = resources::IsChinese() ? 9 : 8;
    const std::wstring text = resources::Choose(L"请你先配置Outlook.", L"Please configue Outlook.");
    TourMessage(options, L"message", IDS_MESSAGE, 0, text);
    TourMessage(options, L"error", IDS_ERROR, 2, text);
}

} // namespace sandbox::demo
