#include "tests/tasks/TaskExchange.h"
#include "tasks/Tasks.h"

#include "tests/support/MessageBoxes.h"
#include "tests/support/WithLanguage.h"

namespace
{

using automation::TextOrEmpty;
using resources::Language;
using test_support::Day;
using test_support::kContactKind;
using test_support::kTaskKind;
using test_support::MessagesDuring;
using test_support::TaskExchange;
using test_support::WithLanguage;

} // namespace

TEST_F(TaskExchange, HostTasksThatWentToOutlookMatchOnTheNextRun)
{
    Execute(L"INSERT INTO TBLACCOUNT (F_ACCID,F_ACCSNAME) VALUES ('A1','O''Brien & Co')");
    AddHostTask(L"F_ACTNAME,F_ACTTYPE,F_ACTPSTIME,F_ACCID", L"'Call','Phone','2003-05-06 09:30:45','A1'");
    AddHostTask(L"F_ACTNAME,F_ACTTYPE,F_ACTPSTIME", L"' 电话 ',NULL,NULL");
    AddHostTask(L"F_ACTNAME,F_ACTTYPE,F_ACTSTATUS,F_ACTCTIME,F_ACTPSTIME,F_ACTPETIME",
                L"'Done','(Unspecified)',2,'2003-05-07','2003-05-06','2003-05-05'");
    EXPECT_EQ(3, ExchangeToOutlook());
    EXPECT_EQ(3, Mailbox->ItemCount(kTaskKind.folder));
    EXPECT_EQ(0, ExchangeToOutlook());
    EXPECT_EQ(0, ExchangeFromOutlook());
}

TEST_F(TaskExchange, OutlookTasksThatWentToTheHostMatchOnTheNextRun)
{
    for (const Language language : {Language::English, Language::Chinese})
    {
        const WithLanguage withLanguage(language);
        const std::wstring subject = resources::IsChinese() ? L"电话" : L"Call";
        AddOutlookTask({{L"Subject", subject},
                        {L"Categories", L"Phone"},
                        {L"StartDate", Day(2003, 5, 6)},
                        {L"Companies", L"Quenlar"}});
        AddOutlookTask({{L"Subject", subject + L" again"}});
        EXPECT_EQ(2, ExchangeFromOutlook());
        EXPECT_EQ(0, ExchangeFromOutlook());
        EXPECT_EQ(0, ExchangeToOutlook());
    }
    EXPECT_EQ(L"4", Count(L"TBLACTIVITY"));
    EXPECT_EQ(L"1", Count(L"TBLACCOUNT"));
}

TEST_F(TaskExchange, AnOutlookTaskArrivesWithItsValuesItsContactAndItsAccount)
{
    Execute(
        L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) VALUES ('C1',1,'张','伟')");
    Execute(L"INSERT INTO TBLACCOUNT (F_ACCID,F_CREATORID,F_ACCSNAME) VALUES ('A1',1,'Quenlar')");
    AddOutlookTask({{L"Subject", L"Call O'Brien"},
                    {L"Categories", L"Phone"},
                    {L"StartDate", Day(2003, 5, 6)},
                    {L"DueDate", Day(2003, 5, 8)},
                    {L"Status", 2},
                    {L"Complete", true},
                    {L"PercentComplete", 100},
                    {L"DateCompleted", Day(2003, 5, 7)},
                    {L"Importance", 2},
                    {L"ReminderSet", true},
                    {L"ContactNames", L"张伟"},
                    {L"Companies", L"Quenlar"}});
    EXPECT_EQ(1, ExchangeFromOutlook());
    EXPECT_EQ(
        L"Call O'Brien|Phone|2003-05-06 00:00:00|2003-05-08 00:00:00|2003-05-07 "
        L"00:00:00|1.0|2|1|3|1|C1|A1|1|1",
        HostValue(L"SELECT F_ACTNAME||'|'||F_ACTTYPE||'|'||F_ACTPSTIME||'|'||F_ACTPETIME||'|'||F_ACTCTIME"
                  L"||'|'||F_ACTPERCENT||'|'||F_ACTSTATUS||'|'||F_ACTCOMPLETED||'|'||F_ACTPRIORITY||'|'||"
                  L"F_ACTREMIND||'|'||F_CNTCTID||'|'||F_ACCID||'|'||F_ACTORID||'|'||F_CREATORID "
                  L"FROM TBLACTIVITY"));
}

TEST_F(TaskExchange, AHostTaskComesBackAsItWent)
{
    const std::wstring row =
        L"SELECT "
        L"F_ACTNAME||'|'||F_ACTTYPE||'|'||F_ACTPSTIME||'|'||F_ACTPETIME||'|'||F_ACTCTIME||'|'||F_ACTPERCENT"
        L"||'|'||F_ACTSTATUS||'|'||F_ACTCOMPLETED||'|'||F_ACTPRIORITY||'|'||F_ACTTOTALWORK||'|'||F_"
        L"ACTACTUALWORK"
        L"||'|'||F_ACTREMIND||'|'||F_CNTCTID||'|'||F_ACCID FROM TBLACTIVITY";
    Execute(
        L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) VALUES ('C1',1,'张','伟')");
    Execute(L"INSERT INTO TBLACCOUNT (F_ACCID,F_CREATORID,F_ACCSNAME) VALUES ('A1',1,'Quenlar')");
    AddHostTask(
        L"F_ACTNAME,F_ACTTYPE,F_ACTPSTIME,F_ACTPETIME,F_ACTCTIME,F_ACTPERCENT,F_ACTSTATUS,F_ACTCOMPLETED,"
        L"F_ACTTOTALWORK,F_ACTACTUALWORK,F_ACTREMIND,F_CNTCTID,F_ACCID",
        L"'Call','Phone','2003-05-06 00:00:00','2003-05-08 00:00:00','2003-05-07 00:00:00',1.0,2,1,480,90,1,"
        L"'C1','A1'");
    const std::wstring before = HostValue(row);
    EXPECT_EQ(1, ExchangeToOutlook());
    EXPECT_EQ(1, Mailbox->ItemCount(kContactKind.folder));
    Execute(L"UPDATE TBLACTIVITY SET F_ACTPETIME=NULL,F_ACTCTIME=NULL,F_ACTPERCENT=0,F_ACTSTATUS=0,"
            L"F_ACTCOMPLETED=0,F_ACTPRIORITY=1,F_ACTTOTALWORK=0,F_ACTACTUALWORK=0,F_ACTREMIND=0,"
            L"F_CNTCTID=NULL");
    SetRule(state::kOutlookWins);
    EXPECT_EQ(1, ExchangeFromOutlook());
    EXPECT_EQ(before, HostValue(row));
}

TEST_F(TaskExchange, ATaskInProgressCountsAsCompletedInTheHost)
{
    AddOutlookTask({{L"Subject", L"Call"}, {L"Status", 1}, {L"PercentComplete", 50}});
    EXPECT_EQ(1, ExchangeFromOutlook());
    EXPECT_EQ(L"1|1|0.5",
              HostValue(L"SELECT F_ACTCOMPLETED||'|'||F_ACTSTATUS||'|'||F_ACTPERCENT FROM TBLACTIVITY"));
}

TEST_F(TaskExchange, ATaskThatTheHostRefusesTakesItsNewAccountWithItAndTheNextOneIsWritten)
{
    AddOutlookTask({{L"Subject", L"One"}, {L"Companies", L"Quenlar"}});
    AddOutlookTask({{L"Subject", L"Two"}});
    const long before = TheHost.Failures().CallsOf(L"Insert");
    TheHost.Failures().Order(L"Insert", 3, {-1}); // after the account and its information row
    EXPECT_EQ(2, ExchangeFromOutlook());
    EXPECT_EQ(4, TheHost.Failures().CallsOf(L"Insert") - before);
    EXPECT_EQ(L"0", Count(L"TBLACCOUNT"));
    EXPECT_EQ(L"0", Count(L"TBLACCINFO"));
    EXPECT_EQ(L"Two", HostValue(L"SELECT F_ACTNAME FROM TBLACTIVITY"));
    EXPECT_FALSE(data::Host().InTransaction());
}

TEST_F(TaskExchange, AnErrorThatTheHostRaisesIsTheFailureOfOneTask)
{
    AddOutlookTask({{L"Subject", L"One"}});
    AddOutlookTask({{L"Subject", L"Two"}});
    TheHost.Failures().Order(L"Insert", 1, {std::nullopt});
    EXPECT_EQ(2, ExchangeFromOutlook());
    EXPECT_EQ(L"1", Count(L"TBLACTIVITY"));
    EXPECT_FALSE(data::Host().InTransaction());
}

TEST_F(TaskExchange, ACompanyLongerThanItsColumnIsFoundAgainAsItWasCut)
{
    const std::wstring kLong =
        std::wstring(79, L'x') + L"\u516c\u53f8 and brothers"; // cut before a wide character
    AddOutlookTask({{L"Subject", L"One"}, {L"Companies", kLong}});
    AddOutlookTask({{L"Subject", L"Two"}, {L"Companies", kLong}});
    EXPECT_EQ(2, ExchangeFromOutlook());
    EXPECT_EQ(L"1", Count(L"TBLACCOUNT"));
    EXPECT_EQ(std::wstring(79, L'x'), HostValue(L"SELECT F_ACCSNAME FROM TBLACCOUNT"));
    EXPECT_EQ(L"1", HostValue(L"SELECT COUNT(DISTINCT F_ACCID) FROM TBLACTIVITY WHERE F_ACCID IS NOT NULL"));
}

TEST_F(TaskExchange, ACompanyWithAnApostropheIsExchangedLikeAnyOther)
{
    AddOutlookTask({{L"Subject", L"One"}, {L"Companies", L"O'Brien"}});
    AddOutlookTask({{L"Subject", L"Two"}, {L"Companies", L"O'Brien"}});
    EXPECT_TRUE(MessagesDuring([&] { EXPECT_EQ(2, ExchangeFromOutlook()); }).empty());
    EXPECT_EQ(L"O'Brien", HostValue(L"SELECT group_concat(F_ACCSNAME) FROM TBLACCOUNT"));
    EXPECT_EQ(L"2", HostValue(L"SELECT COUNT(*) FROM TBLACTIVITY WHERE F_ACCID=(SELECT F_ACCID FROM "
                              L"TBLACCOUNT)"));
    EXPECT_EQ(L"", TheHost.LastRejection());
}

TEST_F(TaskExchange, AContactsNameFindsNothingThatItHasMadeUp)
{
    AddOutlookTask({{L"Subject", L"One"}, {L"ContactNames", L"' UNION SELECT 'C1'',F_ACTNAME=''Two"}});
    EXPECT_EQ(1, ExchangeFromOutlook());
    EXPECT_EQ(L"", TheHost.LastRejection());
    EXPECT_EQ(L"One", HostValue(L"SELECT F_ACTNAME FROM TBLACTIVITY"));
    EXPECT_EQ(L"1", Count(L"TBLACTIVITY WHERE F_CNTCTID IS NULL"));
}

TEST_F(TaskExchange, WithoutRightsToAccountsAndContactsATaskIsWrittenWithoutLinks)
{
    Execute(
        L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) VALUES ('C1',1,'张','伟')");
    TheHost.SetRight(1, 2, 2, 1);
    TheHost.SetRight(1, 2, 4, 2);
    TheHost.SetRight(2, 2, 4, 1);
    AddOutlookTask({{L"Subject", L"One"}, {L"ContactNames", L"张伟"}, {L"Companies", L"Quenlar"}});
    EXPECT_TRUE(MessagesDuring([&] { EXPECT_EQ(1, ExchangeFromOutlook()); }).empty());
    EXPECT_EQ(L"1",
              HostValue(L"SELECT COUNT(*) FROM TBLACTIVITY WHERE F_CNTCTID IS NULL AND F_ACCID IS NULL"));
    EXPECT_EQ(L"0", Count(L"TBLACCOUNT"));
}

TEST_F(TaskExchange, OnlyPendingTasksTravelWhenOnlyThoseAreAskedFor)
{
    state::Shared().gSynParameter.TaskTransItem = state::kPendingTasks;
    AddHostTask(L"F_ACTNAME,F_ACTCOMPLETED", L"'Host pending',0");
    AddHostTask(L"F_ACTNAME,F_ACTCOMPLETED", L"'Host done',1");
    AddOutlookTask({{L"Subject", L"Outlook pending"}});
    AddOutlookTask({{L"Subject", L"Outlook done"}, {L"Status", 2}, {L"Complete", true}});
    EXPECT_EQ(1, ExchangeToOutlook());
    EXPECT_EQ(L"Host pending", TextOrEmpty(TaskProperty(3, L"Subject")));
    EXPECT_EQ(1, ExchangeFromOutlook());
    EXPECT_EQ(L"Outlook pending",
              HostValue(L"SELECT F_ACTNAME FROM TBLACTIVITY ORDER BY F_ACTNO DESC LIMIT 1"));
}

TEST_F(TaskExchange, ADoubleQuoteInAContactsNameLeavesNothingOpenOnEitherSide)
{
    Execute(L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME) VALUES "
            L"('C1',1,'Zh\"ang','Wei')");
    AddHostTask(L"F_ACTNAME,F_CNTCTID", L"'One','C1'");
    AddHostTask(L"F_ACTNAME", L"'Two'");
    exchange::Run run = NewRun();
    EXPECT_FALSE(run::ChangeCollection(tasks::kTasks, run).CollectToOutlook());
    EXPECT_TRUE(tasks::kTasks.ToOutlook(run));
    EXPECT_EQ(1, Mailbox->ItemCount(kTaskKind.folder));
    EXPECT_EQ(0, Mailbox->ItemCount(kContactKind.folder));
    EXPECT_FALSE(data::Host().InTransaction());
    Execute(L"UPDATE TBLCONTACT SET F_SURNAME='Zhang'");
    EXPECT_EQ(1, ExchangeToOutlook()); // the next run goes on where this one ended
    EXPECT_EQ(2, Mailbox->ItemCount(kTaskKind.folder));
}
