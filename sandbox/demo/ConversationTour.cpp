// The tour of the configuration: every dialog of every kind is opened and left by Cancel.
#include "sandbox/demo/Conversation.h"

#include "resources/ids.h"

namespace sandbox::demo
{

namespace
{

constexpr int kKinds = 3;

} // namespace

void Conversation::Tour()
{
    mMain.ChooseRow(IDC_SYNC_CATEGORY, 0);
    mRobot.WaitUntil("Configure is enabled", [&] { return mMain.IsEnabled(IDC_SYNC_CONFIGURE); });
    const ShownDialog configure = OpenedBy(mMain, IDC_SYNC_CONFIGURE);
    for (int row = 0; row < kKinds; ++row)
    {
        TourKind(configure, row);
    }
    Leave(configure);
}

void Conversation::TourKind(const ShownDialog& configure, int row)
{
    const std::wstring suffix = L"-" + std::to_wstring(row + 1);
    configure.ChooseRow(IDC_CONFIGURE_LIST, row);
    SavePictureOf(configure, L"configure" + suffix);

    const ShownDialog choose = OpenedBy(configure, IDC_CONFIGURE_CHOOSE);
    SavePictureOf(choose, L"choose" + suffix);
    const ShownDialog picker = OpenedBy(choose, IDC_CHOOSE_BROWSE);
    SavePictureOf(picker, L"folders" + suffix);
    Leave(picker);
    const ShownDialog profile = OpenedBy(choose, IDC_CHOOSE_OPTION);
    SavePictureOf(profile, L"profile" + suffix);
    Leave(profile);
    Leave(choose);

    const ShownDialog advanced = OpenedBy(configure, IDC_CONFIGURE_ADVANCE);
    SavePictureOf(advanced, L"advanced" + suffix);
    Leave(advanced);
}

ShownDialog Conversation::OpenedBy(const ShownDialog& dialog, int control)
{
    dialog.Click(control);
    return mRobot.WaitForDialogAfter(dialog);
}

void Conversation::Leave(const ShownDialog& dialog)
{
    dialog.Click(IDCANCEL);
    mRobot.WaitUntilClosed(dialog);
}

} // namespace sandbox::demo
