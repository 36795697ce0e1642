#include "tools/demo/MessageTour.h"

#include "config/outlook/OutlookFolders.h"
#include "data/Permissions.h"
#include "resources/Strings.h"
#include "state/SharedState.h"
#include "tools/robot/Picture.h"
#include "tools/robot/Robot.h"

#include <functional>

namespace tools::demo
{

namespace
{

void TourMessage(const Options& options, const wchar_t* picture, const std::function<void()>& tell)
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
    tell();
    robot.Finish();
}

} // namespace

void TourMessages(const Options& options)
{
    state::Shared().gFontName = resources::Choose(L"宋体", L"Arial");
    state::Shared().gFontSize = resources::IsChinese() ? 9 : 8;
    TourMessage(options, L"message", [] {
        automation::Object folder;
        config::ResolveOutlookFolder(L"", folder);
    });
    TourMessage(options, L"refusal", [] {
        data::CheckPermission(data::kContactRecord, 1, data::kAddOperation); // there is no host to permit it
    });
}

} // namespace tools::demo
