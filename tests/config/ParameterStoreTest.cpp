#include "config/store/ParameterStore.h"

#include "config/store/UserRows.h"
#include "tests/config/ConfigFixture.h"
#include "tests/support/Drive.h"
#include "tests/support/Fakes.h"
#include "tools/robot/Robot.h"

#include <gtest/gtest.h>

namespace
{

using automation::Recordset;
using state::SynParameter;
using Texts = std::vector<std::wstring>;

class ParameterStoreTest : public config_tests::ConfigFixture
{
};

class UserRowsTest : public config_tests::ConfigFixture
{
};

TEST_F(UserRowsTest, AStatementIsOpenedForTheCurrentUserOnly)
{
    GiveUserRows();
    Recordset rows;
    const automation::RecordsetCloser closer(rows);
    EXPECT_FALSE(
        config::OpenUserRecordset(rows, L"Select * From T_POutlookSyncParam Where TransObject='Task'"));
    EXPECT_EQ(1, rows.RecordCount());
    EXPECT_EQ(
        Texts{L"OpenRecordsetByString(nothing|Select * From T_POutlookSyncParam Where TransObject='Task' And "
              L"F_UID=7)"},
        mHost->Calls);
}

TEST_F(UserRowsTest, WithoutAConditionTheBareFilterIsOpenedAndFailsHarmlessly)
{
    Recordset rows;
    EXPECT_TRUE(config::OpenUserRecordset(rows, L""));
    EXPECT_FALSE(static_cast<bool>(rows));
    EXPECT_EQ(Texts{L"OpenRecordsetByString(nothing|F_UID=7)"}, mHost->Calls);
}

TEST_F(UserRowsTest, AnUpdateIsRestrictedToTheCurrentUser)
{
    GiveUserRows();
    EXPECT_FALSE(config::UpdateUserRows(L"TransType=2", L"T_POutlookSyncParam", L"TransObject='Task'"));
    EXPECT_EQ(Texts{L"Update(T_POutlookSyncParam|TransType=2||TransObject='Task' And F_UID=7)"},
              mHost->Calls);
    EXPECT_EQ((Texts{L"0|1", L"7|2"}),
              Rows(L"SELECT F_UID, TransType FROM T_POutlookSyncParam WHERE TransObject='Task'"));
}

TEST_F(UserRowsTest, AnUpdateWithoutAConditionFiltersOnPUidNotFUid)
{
    GiveUserRows();
    EXPECT_TRUE(config::UpdateUserRows(L"TransType=2", L"T_POutlookSyncParam", L""));
    EXPECT_EQ(Texts{L"Update(T_POutlookSyncParam|TransType=2||P_UID=7)"}, mHost->Calls);
}

TEST_F(UserRowsTest, OnlyANegativeStatusOfAnUpdateIsAFailure)
{
    mHost->Refuse = [](const std::wstring&) { return -1L; };
    EXPECT_TRUE(config::UpdateUserRows(L"TransType=2", L"T_POutlookSyncParam", L"TransType=1"));
    mHost->Refuse = nullptr;
    EXPECT_FALSE(config::UpdateUserRows(L"TransType=2", L"T_POutlookSyncParam", L"TransType=1"));
}

TEST_F(UserRowsTest, AnInsertedRowHasItsOwnerAppendedLast)
{
    EXPECT_FALSE(config::InsertUserRow(L"TransObjectID,OutlookFolder,IsDefault", L"10,'Store\\A',1",
                                       L"T_POutlookSyncFolder"));
    EXPECT_EQ(Texts{L"Insert(T_POutlookSyncFolder|TransObjectID,OutlookFolder,IsDefault,F_UID|"
                    L"10,'Store\\A',1,7|)"},
              mHost->Calls);
    EXPECT_EQ(Texts{L"10|Store\\A|1"}, Folders());
    RefuseEvery(L"Insert");
    EXPECT_TRUE(config::InsertUserRow(L"TransObjectID", L"10", L"T_POutlookSyncFolder"));
}

TEST_F(UserRowsTest, WithoutAHostEveryRoutineFailsWithoutRaising)
{
    state::Shared().gDTC = {};
    Recordset rows;
    EXPECT_TRUE(config::OpenUserRecordset(rows, L""));
    EXPECT_TRUE(config::UpdateUserRows(L"a=1", L"b", L"c=2"));
    EXPECT_TRUE(config::InsertUserRow(L"a", L"1", L"b"));
}

TEST_F(ParameterStoreTest, AUserWithoutRowsGetsOnePerTemplateAndTheLoadReturnsThem)
{
    SynParameter record;
    EXPECT_FALSE(config::SetSynParamenter(record, L"Task"));
    EXPECT_EQ(Texts({L"10|Contact", L"20|Task", L"30|Calendar"}),
              Rows(L"SELECT TransObjectID, TransObject FROM T_POutlookSyncParam WHERE F_UID=7"));
    EXPECT_EQ(L"Task", record.TransObject);
    EXPECT_EQ(L"task", record.TransObjectPic);
    EXPECT_EQ(1, record.TransType);
    EXPECT_EQ(L"left", record.TransTypePic);
    EXPECT_TRUE(record.IsTrans);
    EXPECT_EQ(3, record.TransConflictOption);
    EXPECT_EQ(L"Outlook", record.TransSource);
    EXPECT_EQ(1, record.TaskTransItem);
}

TEST_F(ParameterStoreTest, ATemplateIsCopiedColumnByColumnInTheContractsOrder)
{
    SynParameter record;
    config::SetSynParamenter(record, L"Calendar");
    const std::wstring columns =
        L"F_UID,TransObjectID,TransObject,TransObjectPic,TransType,TransTypePic,TransConflictOption,"
        L"TransSourceConfig,TransSource,CalendarTransItem,CalendarPrior,CalendarAfter,TaskTransItem,"
        L"TransNameEnglish,TransNameChinese,IsTrans";
    EXPECT_EQ((Texts{L"Insert(T_POutlookSyncParam|" + columns +
                         L"|7,10,'Contact','contact',3,'each',2,NULL,'Outlook',NULL,NULL,NULL,NULL,'Contact',"
                         L"'联系人',1|)",
                     L"Insert(T_POutlookSyncParam|" + columns +
                         L"|7,20,'Task','task',1,'left',3,NULL,'Outlook',0,0,0,1,'Task','任务',1|)",
                     L"Insert(T_POutlookSyncParam|" + columns +
                         L"|7,30,'Calendar','calendar',2,'right',4,'config','Null',2,7,3,0,'Calendar','日历"
                         L"',0|)"}),
              mHost->CallsOf(L"Insert"));
}

TEST_F(ParameterStoreTest, TheStatementsOfALoadAreTheContractsOwn)
{
    GiveUserRows();
    SynParameter record;
    config::SetSynParamenter(record, L"Contact");
    EXPECT_EQ(
        (Texts{L"OpenRecordsetByString(nothing|Select * From T_POutlookSyncParam Where TransObject='Contact' "
               L"And F_UID=7)",
               L"OpenRecordsetByString(nothing|Select * From T_POutlookSyncFolder Where TransObjectID=10 And "
               L"F_UID=7)"}),
        mHost->Calls);
}

TEST_F(ParameterStoreTest, ATemplateWithAnApostropheIsCopied)
{
    Execute(L"UPDATE T_POutlookSyncParam SET TransNameEnglish='Friend''s' WHERE TransObjectID=10");
    SynParameter record;
    EXPECT_FALSE(config::SetSynParamenter(record, L"Contact"));
    EXPECT_EQ(Texts{L"Friend's"},
              Rows(L"SELECT TransNameEnglish FROM T_POutlookSyncParam WHERE F_UID=7 AND TransObjectID=10"));
}

TEST_F(ParameterStoreTest, LaterChangesOfTheTemplatesDoNotReachAUserWithRows)
{
    SynParameter record;
    config::SetSynParamenter(record, L"Contact");
    Execute(L"UPDATE T_POutlookSyncParam SET TransType=1 WHERE F_UID=0");
    config::SetSynParamenter(record, L"Contact");
    EXPECT_EQ(3, record.TransType);
}

TEST_F(ParameterStoreTest, TemplatesWithoutTheKindLeaveTheRecordUnchangedAndShowNothing)
{
    Execute(L"DELETE FROM T_POutlookSyncParam WHERE TransObject='Task'");
    SynParameter record;
    record.TransObject = L"kept";
    record.TransType = 99;
    EXPECT_FALSE(config::SetSynParamenter(record, L"Task"));
    EXPECT_EQ(L"kept", record.TransObject);
    EXPECT_EQ(99, record.TransType);
}

TEST_F(ParameterStoreTest, ARefusedCopyStopsAndKeepsTheRowsInsertedSoFar)
{
    int inserts = 0;
    mHost->Refuse = [&](const std::wstring& member) {
        return member == L"Insert" && ++inserts == 2 ? -1L : 0L;
    };
    Recordset rows = config::CreateDefaultParameters();
    EXPECT_FALSE(static_cast<bool>(rows));
    EXPECT_EQ(Texts{L"Contact"}, Rows(L"SELECT TransObject FROM T_POutlookSyncParam WHERE F_UID=7"));
    EXPECT_EQ(2u, mHost->CallsOf(L"Insert").size());
}

TEST_F(ParameterStoreTest, CreatingTheRowsReturnsThemOpen)
{
    Recordset rows = config::CreateDefaultParameters();
    const automation::RecordsetCloser closer(rows);
    ASSERT_TRUE(static_cast<bool>(rows));
    EXPECT_EQ(3, rows.RecordCount());
    EXPECT_EQ(7, automation::LongOf(rows.ValueOf(L"F_UID")));
}

TEST_F(ParameterStoreTest, ARefusedOpenIsAFailureAndLeavesTheRecordUnchanged)
{
    RefuseEvery(L"OpenRecordsetByString");
    SynParameter record;
    record.TransType = 99;
    EXPECT_TRUE(config::SetSynParamenter(record, L"Task"));
    EXPECT_EQ(99, record.TransType);
}

TEST_F(ParameterStoreTest, ARangeOtherThanWithinDaysLeavesTheDaysAtTheirPreviousValues)
{
    GiveUserRows();
    Execute(L"UPDATE T_POutlookSyncParam SET CalendarTransItem=1 WHERE F_UID=7");
    SynParameter record;
    record.CalendarPrior = 11;
    record.CalendarAfter = 12;
    EXPECT_FALSE(config::SetSynParamenter(record, L"Calendar"));
    EXPECT_EQ(1, record.CalendarTransItem);
    EXPECT_EQ(11, record.CalendarPrior);
    EXPECT_EQ(12, record.CalendarAfter);
}

TEST_F(ParameterStoreTest, TheRangeWithinDaysLoadsTheDays)
{
    GiveUserRows();
    SynParameter record;
    EXPECT_FALSE(config::SetSynParamenter(record, L"Calendar"));
    EXPECT_EQ(2, record.CalendarTransItem);
    EXPECT_EQ(7, record.CalendarPrior);
    EXPECT_EQ(3, record.CalendarAfter);
}

TEST_F(ParameterStoreTest, ANullTranslatorAndConfigurationLoadAsEmpty)
{
    GiveUserRows();
    Execute(L"UPDATE T_POutlookSyncParam SET TransSource=NULL, TransSourceConfig=NULL WHERE F_UID=7");
    SynParameter record;
    record.TransSource = L"earlier";
    record.TransSourceConfig = L"earlier";
    EXPECT_FALSE(config::SetSynParamenter(record, L"Calendar"));
    EXPECT_EQ(L"", record.TransSource);
    EXPECT_EQ(L"", record.TransSourceConfig);
}

TEST_F(ParameterStoreTest, TheDefaultFolderIsTheCurrentOne)
{
    GiveUserRows();
    GiveFolder(10, L"Store\\Other", false);
    GiveFolder(10, L"Store\\Contacts", true);
    GiveFolder(20, L"Store\\Tasks", true);
    SynParameter record;
    config::SetSynParamenter(record, L"Contact");
    EXPECT_EQ(L"Store\\Contacts", record.DefaultFolder);
    EXPECT_EQ(L"Store\\Contacts", record.CurrentFolder);
}

TEST_F(ParameterStoreTest, WithoutAFolderRowBothFoldersAreEmpty)
{
    SynParameter record;
    record.DefaultFolder = record.CurrentFolder = L"earlier";
    EXPECT_EQ(L"", config::LoadDefaultFolder(record, L"Task"));
    EXPECT_EQ(L"", record.DefaultFolder);
    EXPECT_EQ(L"", record.CurrentFolder);
}

TEST_F(ParameterStoreTest, WithoutADefaultMarkBothFoldersAreEmpty)
{
    GiveFolder(20, L"Store\\Tasks", false);
    Execute(L"INSERT INTO T_POutlookSyncFolder VALUES (7, 20, 'Store\\Unmarked', NULL)");
    SynParameter record;
    record.DefaultFolder = record.CurrentFolder = L"earlier";
    config::LoadDefaultFolder(record, L"Task");
    EXPECT_EQ(L"", record.DefaultFolder);
    EXPECT_EQ(L"", record.CurrentFolder);
}

TEST_F(ParameterStoreTest, TheLaterOfTwoDefaultFoldersWins)
{
    GiveFolder(30, L"Store\\First", true);
    GiveFolder(30, L"Store\\Second", true);
    GiveFolder(30, L"Store\\Third", false);
    SynParameter record;
    EXPECT_EQ(L"Store\\Second", config::LoadDefaultFolder(record, L"Calendar"));
    EXPECT_EQ(L"Store\\Second", record.CurrentFolder);
}

TEST_F(ParameterStoreTest, AnUnknownKindHasNoDefaultFolderAndChangesNothing)
{
    SynParameter record;
    record.DefaultFolder = record.CurrentFolder = L"kept";
    EXPECT_EQ(L"", config::LoadDefaultFolder(record, L"Notes"));
    EXPECT_EQ(L"kept", record.DefaultFolder);
    EXPECT_EQ(L"kept", record.CurrentFolder);
    EXPECT_EQ(Texts{L"OpenRecordsetByString(nothing|F_UID=7)"}, mHost->Calls);
}

TEST_F(ParameterStoreTest, ARowOfAnUnknownKindShowsTheErrorBoxWithAbortRetryAndIgnore)
{
    Execute(
        L"INSERT INTO T_POutlookSyncParam VALUES (7, 40, 'Notes', 'notes', 3, 'each', 2, NULL, 'Outlook', "
        L"0, 0, 0, 0, 'Notes', '便笺', 1)");
    SynParameter record;
    test_support::Drive(
        [](tools::Robot& robot) {
            const tools::ShownDialog box = robot.WaitForDialog(L"SetSynParamenter");
            EXPECT_EQ(L"错误", box.Message());
            EXPECT_EQ((std::vector<int>{IDABORT, IDRETRY, IDIGNORE}), box.Buttons());
            box.Click(IDIGNORE);
        },
        [&] { config::SetSynParamenter(record, L"Notes"); });
    EXPECT_EQ(L"Notes", record.TransObject);
}

} // namespace
