// The tour of the configuration: every dialog of every kind is opened and left by Cancel.
#include "tools/demo/Conversation.h"

#include "resources/ids.h"

#include <commctrl.h>

namespace tools::demo
{

namespace
{

// The kinds in the order of the host's template rows, as the list shows them.
constexpr const wchar_t* kKinds[] = {L"contact", L"task", L"calendar"};

} // namespace

void Conversation::Tour()
{
    mMain.ChooseRow(IDC_SYNC_CATEGORY, 0);
    mRobot.WaitUntil("Configure is enabled", [&] { return mMain.IsEnabled(IDC_SYNC_CONFIGURE); });
    const ShownDialog configure = OpenedBy(mMain, IDC_SYNC_CONFIGURE);
    int row = 0;
    for (const wchar_t* kind : kKinds)
    {
        TourKind(configure, row++, kind);
    }
    Leave(configure);
}

void Conversation::TourKind(const ShownDialog& configure, int row, const std::wstring& kind)
{
    const std::wstring suffix = L"-" + kind;
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
    if (!advanced.Tab(IDC_ADV_TABS, 1).empty())
    {
        advanced.Ask(advanced.Control(IDC_ADV_TABS), TCM_SETCURFOCUS, 1); // with its notification
        SavePictureOf(advanced, L"advanced" + suffix + L"-range");
    }
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

} // namespace tools::demo
