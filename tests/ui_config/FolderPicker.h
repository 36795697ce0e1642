// Fixture of the folder picker: showing it, and adding a folder as a robot does.
#pragma once

#include "config/dialogs/FrmSynContent.h"
#include "config/dialogs/Pictures.h"
#include "tests/ui_config/Ground.h"
#include "tests/ui_config/Look.h"

#include <gtest/gtest.h>

namespace ui_config_tests
{

inline constexpr int kTree = IDC_CONTENT_TREE;
inline constexpr int kFolderList = IDC_CONTENT_LIST;
inline const std::wstring kStore = L"Personal Folders";
inline const int kMark = config::Pictures::IndexOf(config::kDefaultPicture);
inline const int kEmpty = config::Pictures::IndexOf(config::kEmptyPicture);

class FolderPicker : public testing::TestWithParam<Language>
{
  protected:
    FolderPicker() { mGround.UseKind(L"Contact"); }

    void Show(const std::function<void(Robot&, const ShownDialog&)>& script)
    {
        Drive([&](Robot& robot) { script(robot, robot.WaitForDialog()); },
              [&] { config::ShowSynContent(mGround.Record()); });
    }

    // Selects a folder by its names and presses Add.
    static void Add(Robot& robot, const ShownDialog& dialog, const Texts& names)
    {
        const int before = dialog.Rows(kFolderList);
        HTREEITEM node = nullptr;
        for (const std::wstring& name : names)
        {
            node = FindNode(dialog, kTree, node, name);
        }
        ASSERT_NE(nullptr, node);
        SelectNode(dialog, kTree, node);
        dialog.Click(IDC_CONTENT_ADD);
        robot.WaitUntil("a new row", [&] { return dialog.Rows(kFolderList) == before + 1; });
    }

    Ground mGround{GetParam()};
};

} // namespace ui_config_tests
