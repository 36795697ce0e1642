#include "resources/Strings.h"
#include "tests/boundary/ProfileKeys.h"
#include "tests/boundary/Server.h"
#include "tests/support/Thoroughness.h"

#include <commctrl.h>

namespace boundary_tests
{

namespace
{

constexpr int kContactsRow = 0; // of the configuration's list

class OutlookUnderConfiguration : public testing::Test
{
  protected:
    OutlookUnderConfiguration() { mSite.Prepare(kExport); }

    // The dialogs from the main one to the choice of a kind's translator.
    void OpenChoice(Robot& robot, const User& user)
    {
        user.ChooseKind(L"contact");
        mConfigure = user.Open(user.Main(), IDC_SYNC_CONFIGURE);
        mConfigure.ChooseRow(IDC_CONFIGURE_LIST, kContactsRow);
        robot.WaitUntil("Choose is enabled", [&] { return mConfigure.IsEnabled(IDC_CONFIGURE_CHOOSE); });
        mChoose = user.Open(mConfigure, IDC_CONFIGURE_CHOOSE);
    }

    static long Nodes(const ShownDialog& picker)
    {
        return static_cast<long>(picker.Ask(picker.Control(IDC_CONTENT_TREE), TVM_GETCOUNT));
    }

    void LeaveAll(Robot& robot, const User& user)
    {
        for (const ShownDialog& dialog : {mChoose, mConfigure, user.Main()})
        {
            robot.WaitUntil("the dialog below", [&] { return dialog.TakesInput(); });
            user.Leave(dialog);
        }
    }

    std::vector<std::wstring> FolderRows()
    {
        std::vector<std::wstring> rows;
        for (const sandbox::Row& row :
             mSite.Host()
                 .Database()
                 .Query(
                     L"SELECT TransObjectID||OutlookFolder||IsDefault FROM T_POutlookSyncFolder ORDER BY 1")
                 .rows)
        {
            rows.push_back(automation::TextOrEmpty(row.front()));
        }
        return rows;
    }

    Site mSite;
    ShownDialog mConfigure{nullptr};
    ShownDialog mChoose{nullptr};
};

} // namespace

TEST_F(OutlookUnderConfiguration, EndingWhileTheFolderTreeIsOpenLeavesEveryDialogUsableAndEveryFolderStored)
{
    const auto folders = FolderRows();
    Server server(mSite);
    Seen seen;
    mSite.SynLoad([&](Robot& robot) {
        User user(robot);
        OpenChoice(robot, user);
        const ShownDialog picker = user.Open(mChoose, IDC_CHOOSE_BROWSE);
        EXPECT_LT(0, Nodes(picker));
        server.Disturb(L"Terminate");
        picker.Click(IDOK); // stores what was chosen before, which needs no Outlook
        robot.WaitUntilClosed(picker);
        robot.WaitUntil("the dialog below", [&] { return mChoose.TakesInput(); });
        const ShownDialog again = user.Open(mChoose, IDC_CHOOSE_BROWSE);
        EXPECT_EQ(0, Nodes(again));
        user.Leave(again);
        robot.WaitUntil("the dialog below", [&] { return mChoose.TakesInput(); });
        user.Leave(mChoose);
        robot.WaitUntil("the dialog below", [&] { return mConfigure.TakesInput(); });
        user.Leave(mConfigure);
        robot.WaitUntil("the main dialog", [&] { return user.Main().TakesInput(); });
        seen = user.Run(L"contact");
        user.Leave();
    });
    EXPECT_EQ(FailureStatus(), seen.status) << testing::PrintToString(seen.messages);
    EXPECT_EQ(folders, FolderRows());
    mSite.ExpectNothingLeft();

    const Task task{L"contact", kExport};
    Server next(mSite);
    EXPECT_EQ(SuccessStatus(), mSite.Run(task).status);
    ExpectReached(mSite.Look(), UndisturbedCourse(task).after);
    EXPECT_TRUE(next.EndsWhenLetGo());
}

TEST_F(OutlookUnderConfiguration, ABusyOneIsWaitedForByTheFolderTree)
{
    if (!test_support::IsLongRun())
    {
        GTEST_SKIP() << "takes as long as Outlook is busy; run with --long";
    }
    Server server(mSite);
    mSite.SynLoad([&](Robot& robot) {
        User user(robot);
        OpenChoice(robot, user);
        server.Disturb(L"RejectCallsFor", 10'000);
        const ShownDialog picker = user.Open(mChoose, IDC_CHOOSE_BROWSE);
        EXPECT_LT(0, Nodes(picker));
        user.Leave(picker);
        LeaveAll(robot, user);
    });
    mSite.ExpectNothingLeft();
}

TEST_F(OutlookUnderConfiguration, ChoosingAnotherProfileReplacesADeadOutlook)
{
    if (!test_support::IsLongRun())
    {
        GTEST_SKIP() << "takes two servers; run with --long";
    }
    const ProfileKeys profiles({L"Outlook", L"Second"});
    Seen dead;
    Seen anew;
    {
        Server server(mSite);
        mSite.SynLoad([&](Robot& robot) {
            User user(robot);
            server.Disturb(L"Terminate");
            dead = user.Run(L"contact");
            OpenChoice(robot, user);
            const ShownDialog options = user.Open(mChoose, IDC_CHOOSE_OPTION);
            options.Ask(options.Control(IDC_OUTLOOKOPTION_PROFILE), CB_SELECTSTRING, static_cast<WPARAM>(-1),
                        reinterpret_cast<LPARAM>(L"Second"));
            const ShownDialog question = user.Open(options, IDOK);
            question.Click(IDYES);
            robot.WaitUntilClosed(options);
            for (const ShownDialog& dialog : {mChoose, mConfigure})
            {
                robot.WaitUntil("the dialog below", [&] { return dialog.TakesInput(); });
                user.Leave(dialog);
            }
            robot.WaitUntil("the main dialog", [&] { return user.Main().TakesInput(); });
            anew = user.Run(L"contact");
            user.Leave();
        });
    }
    EXPECT_EQ(FailureStatus(), dead.status);
    EXPECT_EQ(SuccessStatus(), anew.status);
    EXPECT_EQ(L"Second", profiles.Default());
    mSite.ExpectNothingLeft();
    ExpectReached(mSite.Look(), UndisturbedCourse({L"contact", kExport}).after);
}

} // namespace boundary_tests
